#include "mxdinfo/facts/losses.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "mxdinfo/facts/facts.h"

namespace mxdinfo {
namespace {

using namespace mxd;

using Errors = std::vector<const Decode_error*>;

std::uint64_t position_of(const Decode_error* error) {
  return static_cast<std::uint64_t>(error->position);
}

// Sorted by position, those of one position in the order in which they were found.
Errors sorted_errors(const Report& report) {
  Errors errors;
  for (const Decode_error& error : report.errors) errors.push_back(&error);
  std::stable_sort(errors.begin(), errors.end(),
                   [](const auto* a, const auto* b) { return position_of(a) < position_of(b); });
  return errors;
}

Errors errors_of_renderers(const Errors& errors) {
  Errors found;
  std::copy_if(errors.begin(), errors.end(), std::back_inserter(found),
               [](const Decode_error* error) { return error->type.ends_with("_renderer"); });
  return found;
}

Errors::const_iterator first_from(const Errors& errors, std::uint64_t position) {
  return std::lower_bound(
      errors.begin(), errors.end(), position,
      [](const Decode_error* error, std::uint64_t at) { return position_of(error) < at; });
}

// The last layer that begins at or before the position.
std::optional<Listed_layer> layer_at(const std::vector<Listed_layer>& layers,
                                     std::uint64_t position) {
  const auto after = std::upper_bound(
      layers.begin(), layers.end(), position,
      [](std::uint64_t at, const Listed_layer& layer) { return at < layer.record().position; });
  if (after == layers.begin()) return std::nullopt;
  return *(after - 1);
}

Loss loss_of(const Map_outline& map, std::optional<Listed_layer> layer, const Decode_error* error) {
  Loss loss{&map, layer, loss_words(error->type), error};
  if (layer && layer->record().position == position_of(error)) {
    const bool failed = layer->record().read_failed();
    loss.words.consequence = failed ? "only its name is known" : "a part of it is missing";
  }
  return loss;
}

bool has_error_within(const Errors& errors, const Layer_record& record) {
  const auto error = first_from(errors, record.position);
  return error != errors.end() && position_of(*error) < record.position + record.length;
}

// Whether labels are shown of which a class, a color or a font could not be read.
bool has_unknown_labels(const Layer_record& record) {
  const auto& labels = record.facts.labels;
  if (!labels || !labels->shown) return false;
  return !labels->all_read ||
         std::any_of(labels->classes.begin(), labels->classes.end(), [](const Label_class& label) {
           return !label.color || !label.font || label.font->name.empty();
         });
}

void add_layer_losses(std::vector<Loss>& losses, const Errors& errors,
                      const Errors& renderer_errors, const Listed_layer& listed) {
  const Layer_record& record = listed.record();
  if (const Tmxd_layer* layer = record.layer) {
    // Of an unknown class, it is no error of the load.
    if (has_unknown_renderer(*layer) && !has_error_within(renderer_errors, record)) {
      losses.push_back(
          {listed.map,
           listed,
           {"renderer",
            "how the layer is drawn is not known; what is stored after it may be missing"}});
    }
    if (has_unknown_labels(record)) {
      losses.push_back({listed.map, listed, {"labels", "how its labels look is not known"}});
    }
    if (is_possible_scale(layer->min_scale) && is_possible_scale(layer->max_scale)) return;
    losses.push_back(
        {listed.map, listed, {"scales", "its scales are impossible numbers and not shown"}});
  } else if (!record.read_failed()) {
    losses.push_back({listed.map, listed, loss_words(record.kind())});
  } else {
    const auto error = first_from(errors, record.position);
    if (error != errors.end() && position_of(*error) == record.position) return;
    losses.push_back(
        {listed.map, listed, {"layer", "it could not be read: only its name is known"}});
  }
}

// Where the loss is in the stream; missing layers come last.
std::uint64_t position_of(const Loss& loss) {
  if (loss.error) return position_of(loss.error);
  return loss.layer ? loss.layer->record().position : loss.map->end;
}

void add_map_losses(std::vector<Loss>& losses, const Errors& errors, const Map_outline& map) {
  const auto layers = listed_layers(map);
  const auto first = static_cast<std::ptrdiff_t>(losses.size());
  auto error = first_from(errors, map.position);
  for (; error != errors.end() && position_of(*error) < map.end; ++error) {
    losses.push_back(loss_of(map, layer_at(layers, position_of(*error)), *error));
  }
  const Errors renderer_errors = errors_of_renderers(errors);
  for (const Listed_layer& layer : layers) {
    add_layer_losses(losses, errors, renderer_errors, layer);
  }
  if (map.missing_layers() > 0) {
    losses.push_back(
        {&map, std::nullopt, {"layers", "some layers that the map counts were not found"}});
  }
  std::stable_sort(losses.begin() + first, losses.end(),
                   [](const Loss& a, const Loss& b) { return position_of(a) < position_of(b); });
}

}  // namespace

std::vector<Loss> losses_of(const Report& report) {
  std::vector<Loss> losses;
  const Errors errors = sorted_errors(report);
  for (const Map_outline& map : report.outline.maps) add_map_losses(losses, errors, map);
  // Maps do not overlap, so each error was in at most one.
  auto map = report.outline.maps.begin();
  for (const Decode_error* error : errors) {
    while (map != report.outline.maps.end() && map->end <= position_of(error)) ++map;
    if (map != report.outline.maps.end() && map->position <= position_of(error)) continue;
    losses.push_back({nullptr, std::nullopt, loss_words(error->type), error});
  }
  return losses;
}

std::optional<std::uint64_t> offset_of(const Loss& loss) {
  if (loss.error || loss.layer) return position_of(loss);
  return std::nullopt;
}

std::string path_of(const Loss& loss) {
  if (loss.layer) return full_name(*loss.layer);
  return loss.map ? name_of(*loss.map) : std::string();
}

std::string text_of(const Loss& loss) {
  if (!loss.error) return std::string(loss.words.consequence);
  return fmt::format("the {} could not be read: {}", loss.words.subject, loss.words.consequence);
}

std::string line_of(const Report& report, const Loss& loss) {
  std::string line = report.name + ": ";
  if (loss.map) line += path_of(loss) + ": ";
  line += text_of(loss);
  if (loss.error) {
    line += fmt::format(" ({} {} at byte {})", loss.error->type, loss.error->number,
                        loss.error->position);
  }
  return line;
}

}  // namespace mxdinfo
