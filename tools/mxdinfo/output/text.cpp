// The text output: views, the search for data sources, and losses.
#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/deep_search.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/output/csv_cell.h"
#include "mxdinfo/output/layer_filter.h"
#include "mxdinfo/output/text_views.h"

namespace mxdinfo {
namespace {

class Text_report_writer final : public Report_writer {
 public:
  explicit Text_report_writer(const Options& options)
      : view_(options.view),
        color_(options.color),
        references_(options.verbose ? References::shown : References::hidden) {}

  Written_document document(const Report& report) const override {
    if (!report.failure.empty()) return {};
    Text_lines lines(report, color_);
    lines.line(0, lines.bold(escape_controls(report.name)));
    append(lines, report);
    return lines.take();
  }

 private:
  void append(Text_lines& lines, const Report& report) const {
    switch (view_) {
      case View::tree:
        return append_tree(lines, report, references_);
      case View::symbols:
        return append_symbols(lines, report);
      case View::layers:
        return append_layers(lines, report);
      case View::sources:
        return append_sources(lines, report);
      case View::coordinate_systems:
        return append_coordinate_systems(lines, report);
      case View::fonts:
        return append_fonts(lines, report);
      case View::losses:
      case View::broken:
        break;
    }
  }

  View view_;
  bool color_;
  References references_;
};

// One line per layer that the search is for.
class Layer_finder final : public Report_writer {
 public:
  explicit Layer_finder(const Options& options) : filter_(options) {}

  Written_document document(const Report& report) const override {
    Text_lines lines(report, false);
    std::size_t matches = 0;
    for (const auto& map : report.outline.maps) {
      for (const Listed_layer& layer : listed_layers(map)) {
        if (lines.is_full()) break;
        if (!filter_.is_wanted(report, layer)) continue;
        ++matches;
        append(lines, report, layer);
      }
    }
    if (!filter_.deep_text().empty()) matches += append_deep(lines, report);
    Written_document written = lines.take();
    written.matches = matches;
    return written;
  }

 private:
  static void append(Text_lines& lines, const Report& report, const Listed_layer& layer) {
    const Source_state* state = report.source_state(layer.layer());
    lines.line(0, fmt::format("{}: {}: {}{}", escape_controls(report.name),
                              escape_controls(full_name(layer)),
                              escape_controls(source_of(*layer.layer()).text()),
                              state ? ": " + escape_controls(state_text(*state)) : ""));
  }

  std::size_t append_deep(Text_lines& lines, const Report& report) const {
    const auto is_known = [&](const Listed_layer& layer) {
      return filter_.is_wanted(report, layer);
    };
    const auto hits = deep_search(report, filter_.deep_text(), is_known);
    for (const Deep_hit& hit : hits) {
      const std::string place = hit.layer ? full_name(*hit.layer) + ": "
                                : hit.map ? name_of(*hit.map) + ": "
                                          : "";
      const bool is_decoded = hit.layer && hit.layer->layer();
      lines.line(0, fmt::format("{}: {}{}, at byte {}: {}", escape_controls(report.name),
                                escape_controls(place),
                                is_decoded ? "elsewhere in the layer" : "not decoded", hit.position,
                                escape_controls(hit.context)));
    }
    return hits.size();
  }

  Layer_filter filter_;
};

// One line or CSV row per loss.
class Loss_writer final : public Report_writer {
 public:
  explicit Loss_writer(const Options& options)
      : format_(options), csv_(options.format == Format::csv) {}

  std::string begin() const override {
    if (!csv_) return {};
    return std::string(format_.begin()) + "document,path,what,consequence,type,number,position\n";
  }

  Written_document document(const Report& report) const override {
    Text_lines lines(report, false);
    for (const Loss& loss : losses_of(report)) {
      if (lines.is_full()) break;
      lines.line(0, csv_ ? row(report, loss) : escape_controls(line_of(report, loss)));
    }
    return csv_ ? lines.take(cut_row(report)) : lines.take();
  }

 private:
  std::string cut_row(const Report& report) const {
    return format_.cell(shortened(report.name)) +
           ",,output,\"it is too long, and the rest is left out\",,,";
  }
  std::string row(const Report& report, const Loss& loss) const {
    std::string row =
        fmt::format("{},{},{},{},", format_.cell(report.name), format_.cell(path_of(loss)),
                    loss.words.subject, format_.cell(loss.words.consequence));
    row += loss.error ? fmt::format("{},{},", loss.error->type, loss.error->number) : ",,";
    const auto offset = offset_of(loss);
    return offset ? row + fmt::format("{}", *offset) : row;
  }

  Csv_format format_;
  bool csv_;
};

}  // namespace

std::unique_ptr<Report_writer> make_text_writer(const Options& options) {
  return std::make_unique<Text_report_writer>(options);
}

std::unique_ptr<Report_writer> make_layer_finder(const Options& options) {
  return std::make_unique<Layer_finder>(options);
}

std::unique_ptr<Report_writer> make_loss_writer(const Options& options) {
  return std::make_unique<Loss_writer>(options);
}

}  // namespace mxdinfo
