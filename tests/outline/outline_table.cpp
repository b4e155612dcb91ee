// outline_table [--facts] DOCUMENT...: a row for each document with the number of its layer
// records. Fails if a list counts other layers than the outline has, or a decoded layer is in no
// list.
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "outline/epsg_code.h"
#include "outline/outline.h"
#include "storage/file_stream.h"
#include "storage/unicode.h"

namespace {

using namespace mxd;

class No_errors final : public Load_observer {
 public:
  void read_failed(const Read_error&) override {}
};

struct Counts {
  std::size_t counted = 0;  // by the lists
  std::size_t listed = 0;   // in the outline
  std::size_t read = 0;
  std::size_t other_kinds = 0;
  std::size_t failed = 0;
  std::size_t unlisted = 0;

  bool complete() const { return counted == listed && unlisted == 0; }
};

Counts count(const Outline& outline) {
  Counts counts;
  for (const Map_outline& map : outline.maps) {
    counts.counted += static_cast<std::size_t>(map.counted_layers.value_or(0));
    for (const Layer_record& record : map.records) {
      counts.counted += static_cast<std::size_t>(record.counted_members.value_or(0));
      if (record.length == 0) {
        if (!record.is_reference) ++counts.unlisted;
        continue;
      }
      ++counts.listed;
      if (record.layer) ++counts.read;
      if (record.read_failed()) ++counts.failed;
      if (record.kind() > Layer_kind::graphics) ++counts.other_kinds;
    }
  }
  return counts;
}

std::string text(const std::optional<Wide_string>& wide) {
  return wide ? "\"" + to_utf8(*wide) + "\"" : "-";
}

std::size_t depth(const Map_outline& map, const Layer_record& record) {
  std::size_t depth = 0;
  for (auto parent = record.parent; parent; parent = map.records[*parent].parent) ++depth;
  return depth;
}

void print_labels(const Labels& labels) {
  std::printf(" labels %s", labels.shown ? "shown" : "hidden");
  for (const Label_class& item : labels.classes) {
    std::printf(" %s", to_utf8(item.expression).c_str());
    if (item.color) {
      std::printf(" #%02X%02X%02X", item.color->red, item.color->green, item.color->blue);
    }
    if (item.font) {
      std::printf(" %s %g", to_utf8(item.font->name).c_str(), item.font->size_in_points);
    }
  }
}

void print_record(const Map_outline& map, const Layer_record& record) {
  std::printf("    %*s%s (%s%s%s) at %llu, %llu bytes", static_cast<int>(2 * depth(map, record)),
              "", to_utf8(record.name).c_str(), kind_in_words(record.class_id).c_str(),
              record.is_reference ? ", reference" : "", record.read_failed() ? ", failed" : "",
              static_cast<unsigned long long>(record.position),
              static_cast<unsigned long long>(record.length));
  if (record.counted_members) std::printf(", counts %d", *record.counted_members);
  if (record.facts.definition_query) {
    std::printf(" query %s", text(record.facts.definition_query).c_str());
  }
  if (record.facts.labels) print_labels(*record.facts.labels);
  if (record.facts.classes_ascend) {
    std::printf(" divided by %s, %s", text(record.facts.normalization_field).c_str(),
                *record.facts.classes_ascend ? "ascending" : "descending");
  }
  std::printf("\n");
}

void print_facts(const Outline& outline) {
  const Document_facts& facts = outline.document;
  std::printf("  version %s saved %s %.5f\n", text(facts.version).c_str(),
              text(facts.saved_path).c_str(), facts.saved_date.value_or(0));
  if (const auto& properties = facts.properties) {
    for (const Wide_string* property :
         {&properties->title, &properties->author, &properties->description, &properties->summary,
          &properties->tags, &properties->hyperlink_base, &properties->credits}) {
      std::printf("  %s;", text(*property).c_str());
    }
    std::printf("\n");
  }
  for (const Map_outline& map : outline.maps) {
    std::printf("  map \"%s\" counts %d, missing %lld", to_utf8(map.map->name).c_str(),
                map.counted_layers.value_or(-1), static_cast<long long>(map.missing_layers()));
    if (map.extent) {
      std::printf(", extent %.6f %.6f %.6f %.6f", map.extent->xmin, map.extent->ymin,
                  map.extent->xmax, map.extent->ymax);
    }
    if (const auto* system = map.map->coordinate_system.get()) {
      std::printf(", EPSG %d", epsg_code(system->get_wkt()).value_or(0));
    }
    std::printf("\n");
    for (const Layer_record& record : map.records) print_record(map, record);
  }
}

bool print_row(const std::string& path, bool with_facts) {
  Tmxd_stream_f file;
  Tmxd_mxd document;
  No_errors errors;
  const Wide_string wide_path = path_from_bytes(path);
  if (!file.open(wide_path, from_ascii("rb")) || !document.load(file, wide_path, errors)) {
    std::printf("| %s | not readable |\n", path.c_str());
    return false;
  }
  const Outline outline = read_outline(document, file);
  const Counts counts = count(outline);
  std::printf("| %s | %zu | %zu | %zu | %zu | %zu | %zu |\n",
              std::filesystem::path(path).filename().string().c_str(), counts.counted,
              counts.listed, counts.read, counts.other_kinds, counts.failed, counts.unlisted);
  if (with_facts) print_facts(outline);
  return counts.complete();
}

}  // namespace

int main(int count, char** arguments) {
  bool ok = count > 1;
  bool with_facts = false;
  std::printf("| document | records | listed | read | other kinds | failed | unlisted |\n");
  std::printf("|---|---|---|---|---|---|---|\n");
  for (int i = 1; i < count; ++i) {
    if (std::strcmp(arguments[i], "--facts") == 0) {
      with_facts = true;
    } else {
      ok = print_row(arguments[i], with_facts) && ok;
    }
  }
  return ok ? 0 : 1;
}
