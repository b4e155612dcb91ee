// The text output: views, the search for data sources, and losses.
#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/facts/losses.h"
#include "mxdinfo/output/csv_cell.h"
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
      case View::losses:
        break;
    }
  }

  View view_;
  bool color_;
  References references_;
};

class Source_finder final : public Report_writer {
 public:
  explicit Source_finder(const Options& options)
      : wanted_(fold_case(utf8_of_path(options.find_source))) {}

  Written_document document(const Report& report) const override {
    Text_lines lines(report, false);
    for (const auto& map : report.outline.maps) {
      for (const Listed_layer& layer : listed_layers(map)) {
        if (lines.is_full()) break;
        if (layer.layer()) append(lines, report, layer);
      }
    }
    return lines.take();
  }

 private:
  void append(Text_lines& lines, const Report& report, const Listed_layer& layer) const {
    const Source source = source_of(*layer.layer());
    if (!source.contains(wanted_)) return;
    lines.line(0, fmt::format("{}: {}: {}", escape_controls(report.name),
                              escape_controls(full_name(layer)), escape_controls(source.text())));
  }

  std::string wanted_;
};

// One line or CSV row per loss.
class Loss_writer final : public Report_writer {
 public:
  explicit Loss_writer(const Options& options) : csv_(options.format == Format::csv) {}

  std::string begin() const override {
    return csv_ ? "document,path,what,consequence,class,number,position\n" : "";
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
  static std::string cut_row(const Report& report) {
    return csv_cell(shortened(report.name)) +
           ",,output,\"it is too long, and the rest is left out\",,,";
  }
  static std::string row(const Report& report, const Loss& loss) {
    std::string row = fmt::format("{},{},{},{},", csv_cell(report.name), csv_cell(path_of(loss)),
                                  loss.words.subject, csv_cell(loss.words.consequence));
    if (!loss.error) return row + ",,";
    return row +
           fmt::format("{},{},{}", loss.error->type, loss.error->number, loss.error->position);
  }

  bool csv_;
};

}  // namespace

std::unique_ptr<Report_writer> make_text_writer(const Options& options) {
  return std::make_unique<Text_report_writer>(options);
}

std::unique_ptr<Report_writer> make_source_finder(const Options& options) {
  return std::make_unique<Source_finder>(options);
}

std::unique_ptr<Report_writer> make_loss_writer(const Options& options) {
  return std::make_unique<Loss_writer>(options);
}

}  // namespace mxdinfo
