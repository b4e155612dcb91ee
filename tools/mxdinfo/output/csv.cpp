// A table with a row for each layer.
#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "mxdinfo/cli/options.h"
#include "mxdinfo/facts/data_source.h"
#include "mxdinfo/facts/deep_search.h"
#include "mxdinfo/facts/display_text.h"
#include "mxdinfo/facts/document_text.h"
#include "mxdinfo/facts/facts.h"
#include "mxdinfo/facts/layers.h"
#include "mxdinfo/output/bounded_text.h"
#include "mxdinfo/output/csv_cell.h"
#include "mxdinfo/output/layer_filter.h"
#include "mxdinfo/output/report_writer.h"
#include "outline/epsg_code.h"

namespace mxdinfo {
namespace {

using namespace mxd;

constexpr std::string_view header =
    "document,map,group,layer,kind,visible,min_scale,max_scale,dataset,feature_dataset,"
    "dataset_type,workspace,geometry,coordinate_system,map_coordinate_system,renderer,fields,"
    "legend_classes,epsg,map_epsg,query,labels,display_field,normalization_field,decoded,bytes,"
    "differs_from_map,source_kind,source_path,xmin,ymin,xmax,ymax,title,author,tags,credits,"
    "arcmap_version,saved_path,saved_date";
constexpr auto column_count =
    1 + static_cast<std::size_t>(std::count(header.begin(), header.end(), ','));

std::string scale(double denominator) {
  const bool shown = denominator != 0 && is_possible_scale(denominator);
  return shown ? fmt::format("{:.10g}", denominator) : std::string();
}

std::string true_or_false(std::optional<bool> value) {
  if (!value) return {};
  return *value ? "true" : "false";
}

std::string epsg(const Tmxd_coordinate_system* system) {
  const auto code = system ? epsg_code(system->get_wkt()) : std::nullopt;
  return code ? fmt::format("{}", *code) : std::string();
}

std::string name_cell(const Tmxd_coordinate_system* system) {
  return system ? coordinate_system_name(*system) : std::string();
}

// The cells from "visible" to "epsg", which only decoded layers have. The caller fills in that of
// the map's coordinate system.
std::vector<std::string> decoded_cells(const Tmxd_layer& layer) {
  const Source source = source_of(layer);
  const auto* renderer = renderer_of(layer);
  return {true_or_false(visible(layer)),
          scale(layer.min_scale),
          scale(layer.max_scale),
          source.dataset,
          source.feature_dataset,
          source.type,
          source.workspace,
          geometry_of(layer),
          name_cell(coordinate_system_of(layer)),
          "",
          renderer                      ? renderer_kind(*renderer)
          : has_unknown_renderer(layer) ? "unknown"
                                        : "",
          renderer ? fmt::format("{}", fmt::join(renderer_fields(*renderer), ", ")) : "",
          renderer ? fmt::format("{}", legend_class_count(layer)) : "",
          epsg(coordinate_system_of(layer))};
}

std::vector<std::string> cells_of(const Report& report, const Listed_layer& listed) {
  constexpr std::size_t decoded_cell_count = 14;
  constexpr std::size_t map_system_cell = 9;
  const Layer_record& record = listed.record();
  const Feature_facts& facts = record.facts;
  const Tmxd_layer* layer = listed.layer();
  std::vector<std::string> cells = {report.name, shortened(name_of(*listed.map)),
                                    group_path(listed), name_of(record), kind_word(record.kind())};
  auto decoded = layer ? decoded_cells(*layer) : std::vector<std::string>(decoded_cell_count);
  decoded[map_system_cell] = name_cell(listed.map->map->coordinate_system.get());
  cells.insert(cells.end(), decoded.begin(), decoded.end());
  cells.push_back(epsg(listed.map->map->coordinate_system.get()));
  cells.push_back(utf8(facts.definition_query.value_or(Wide_string())));
  cells.push_back(labels_text(record));
  cells.push_back(layer ? display_field_of(*layer) : "");
  cells.push_back(utf8(facts.normalization_field.value_or(Wide_string())));
  cells.emplace_back(layer ? "true" : "false");
  cells.push_back(record.length == 0 ? "" : fmt::format("{}", record.length));
  cells.push_back(true_or_false(differs_from_map(listed)));
  cells.emplace_back(layer ? data_kind(*layer) : "");
  cells.push_back(layer ? data_path(*layer) : "");
  const auto& extent = listed.map->extent;
  for (const auto bound : {&Extent::xmin, &Extent::ymin, &Extent::xmax, &Extent::ymax}) {
    cells.push_back(extent ? fmt::format("{:.10g}", (*extent).*bound) : "");
  }
  return cells;
}

std::vector<std::string> document_cells(const Document_facts& facts) {
  const auto properties = facts.properties.value_or(Document_facts::Properties());
  return {utf8(properties.title),
          utf8(properties.author),
          utf8(properties.tags),
          utf8(properties.credits),
          utf8(facts.version.value_or(Wide_string())),
          utf8(facts.saved_path.value_or(Wide_string())),
          facts.saved_date ? date_text(*facts.saved_date) : ""};
}

class Csv_writer final : public Report_writer {
 public:
  explicit Csv_writer(const Options& options)
      : format_(options), filter_(options), states_(options.check_sources) {}

  std::string begin() const override {
    return fmt::format("{}{}{}{}\n", format_.begin(), header,
                       states_ ? ",data_state,data_path,missing_parts" : "",
                       is_deep() ? ",position,context" : "");
  }

  Written_document document(const Report& report) const override {
    Bounded_text rows(max_output_size(report));
    std::size_t matches = 0;
    for (const Map_outline& map : report.outline.maps) {
      for (const Listed_layer& layer : listed_layers(map)) {
        if (rows.is_full()) break;
        if (!filter_.is_wanted(report, layer)) continue;
        ++matches;
        rows.append(row(report, &layer, nullptr));
      }
    }
    if (is_deep()) matches += append_deep(rows, report);
    return {rows.take(), !rows.is_full(), matches};
  }

 private:
  bool is_deep() const { return !filter_.deep_text().empty(); }

  std::size_t append_deep(Bounded_text& rows, const Report& report) const {
    const auto is_known = [&](const Listed_layer& layer) {
      return filter_.is_wanted(report, layer);
    };
    const auto hits = deep_search(report, filter_.deep_text(), is_known);
    for (const Deep_hit& hit : hits) {
      rows.append(row(report, hit.layer ? &*hit.layer : nullptr, &hit));
    }
    return hits.size();
  }

  // The row of a hit outside of layers has no cells of a layer.
  std::string row(const Report& report, const Listed_layer* layer, const Deep_hit* hit) const {
    auto cells = layer ? cells_of(report, *layer) : std::vector<std::string>{report.name};
    if (!layer && hit->map) cells.push_back(shortened(name_of(*hit->map)));
    std::vector<std::string> common = document_cells(report.outline.document);
    cells.resize(column_count - common.size());
    for (std::string& cell : common) cells.push_back(shortened(std::move(cell)));
    if (states_) {
      const Source_state* state = layer ? report.source_state(layer->layer()) : nullptr;
      cells.emplace_back(state ? presence_word(state->presence) : "");
      cells.push_back(state ? state->path : "");
      cells.push_back(state ? fmt::format("{}", fmt::join(state->missing_parts, " ")) : "");
    }
    if (is_deep()) {
      cells.push_back(hit ? fmt::format("{}", hit->position) : "");
      cells.push_back(hit ? hit->context : "");
    }
    return format_.row(cells);
  }

  Csv_format format_;
  Layer_filter filter_;
  bool states_;
};

}  // namespace

std::unique_ptr<Report_writer> make_csv_writer(const Options& options) {
  return std::make_unique<Csv_writer>(options);
}

}  // namespace mxdinfo
