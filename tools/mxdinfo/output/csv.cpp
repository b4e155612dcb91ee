// A table with a row for each layer.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/output/report_writer.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr std::string_view header =
    "document,map,group,layer,kind,visible,min_scale,max_scale,dataset,feature_dataset,"
    "dataset_type,workspace,geometry,coordinate_system,map_coordinate_system,renderer,fields,"
    "legend_classes\n";

// Spreadsheets may also split cells at semicolons and bars.
bool ends_cell(char c) {
  return c == ';' || c == '|';
}

// An apostrophe in front keeps a text from being taken for a formula.
std::string without_formulas(std::string_view text) {
  std::string out;
  bool at_start = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (at_start) {
      const std::size_t first = std::min(text.find_first_not_of(" '\"", i), text.size() - 1);
      if (std::string_view("=+-@").find(text[first]) != std::string_view::npos) out += '\'';
    }
    out += text[i];
    at_start = ends_cell(text[i]);
  }
  return out;
}

std::string cell(const std::string& value) {
  const std::string text = without_formulas(escape_controls(value));
  if (text.find_first_of(",;|\"") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

std::string scale(double denominator) {
  return denominator == 0 ? std::string() : fmt::format("{:.10g}", denominator);
}

std::string row(const Report& report, const Tmxd_map& map, const Layer_place& place) {
  const Tmxd_layer& layer = *place.layer;
  const auto shown = visible(layer);
  const Source source = source_of(layer);
  const auto* system = coordinate_system_of(layer);
  const auto* map_system = map.coordinate_system.get();
  const auto* renderer = renderer_of(layer);
  const std::array<std::string, 18> cells = {

      cell(report.name),
      cell(utf8(map.name)),
      cell(group_path(place)),
      cell(utf8(layer.layer_name)),
      layer.repeat ? "repeated" : kind_of(layer),
      !shown   ? ""
      : *shown ? "true"
               : "false",
      scale(layer.min_scale),
      scale(layer.max_scale),
      cell(source.dataset),
      cell(source.feature_dataset),
      cell(source.type),
      cell(source.workspace),
      geometry_of(layer),
      system ? cell(coordinate_system_name(*system)) : "",
      map_system ? cell(coordinate_system_name(*map_system)) : "",
      renderer ? renderer_kind(*renderer) : "",
      renderer ? cell(fmt::format("{}", fmt::join(renderer_fields(*renderer), ", "))) : "",
      fmt::format("{}", legend_class_count(layer))};
  return fmt::format("{}\n", fmt::join(cells, ","));
}

class Csv_writer final : public Report_writer {
 public:
  explicit Csv_writer(const Options& options)
      : wanted_(fold_case(utf8_of_path(options.find_source))) {}

  std::string begin() const override { return std::string(header); }

  std::string document(const Report& report) const override {
    std::string rows;
    for (const auto& map : report.content.maps) {
      for (const Layer_place& place : placed_layers(*map)) {
        if (is_wanted(*place.layer)) rows += row(report, *map, place);
      }
    }
    return rows;
  }

 private:
  bool is_wanted(const Tmxd_layer& layer) const {
    return wanted_.empty() || source_of(layer).contains(wanted_);
  }

  std::string wanted_;
};

}  // namespace

std::unique_ptr<Report_writer> make_csv_writer(const Options& options) {
  return std::make_unique<Csv_writer>(options);
}

}  // namespace mxdinfo
