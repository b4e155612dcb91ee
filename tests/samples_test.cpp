// Real documents, where there are any beside the project: what they hold is known.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "document/mxd.h"
#include "storage/native_path.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

namespace fs = std::filesystem;

using Row = std::map<std::string, std::string>;

const fs::path samples = fs::path(VQK_SOURCE_DIR) / ".." / "shared" / "samples";

std::vector<std::string> cells(const std::string& line) {
  std::vector<std::string> result;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, '\t');) result.push_back(cell);
  return result;
}

// The table of what each document holds, a row per file.
std::vector<Row> expected_rows() {
  std::ifstream file(samples / "EXPECTED.tsv");
  std::vector<Row> rows;
  std::vector<std::string> names;
  for (std::string line; std::getline(file, line);) {
    const std::vector<std::string> row = cells(line);
    if (names.empty()) {
      names = row;
      continue;
    }
    rows.emplace_back();
    for (std::size_t i = 0; i < std::min(names.size(), row.size()); ++i) {
      rows.back()[names[i]] = row[i];
    }
  }
  return rows;
}

std::map<std::string, int> counts(const Tmxd_mxd& document) {
  std::map<std::string, int> result;
  for (const auto& map : document.maps) {
    ++result["maps"];
    result["repeated_maps"] += map->repeat;
    for (const auto& layer : map->layers) ++result[std::string(layer->type_name())];
  }
  return result;
}

// The names that every feature layer of a real document has, but for references to an earlier one.
int named_feature_layers(const Tmxd_mxd& document) {
  int named = 0;
  for (const auto& map : document.maps) {
    for (const auto& layer : map->layers) {
      const auto* feature = dynamic_cast<const Tmxd_feature_layer*>(layer.get());
      if (!feature || feature->repeat) continue;
      const auto* data = feature->feature_class_name.get();
      const bool has_all = !to_narrow(feature->layer_name).empty() && data &&
                           !to_narrow(data->name).empty() &&
                           !to_narrow(feature->workspace_name.name).empty();
      EXPECT_TRUE(has_all) << to_narrow(feature->layer_name);
      named += has_all;
    }
  }
  return named;
}

TEST(Samples, hold_what_is_known_of_them) {
  const std::vector<Row> rows = expected_rows();
  if (rows.empty()) GTEST_SKIP() << "no sample documents beside the project";
  int named = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.at("file"));
    Recorded_errors errors;
    Tmxd_mxd document;
    ASSERT_TRUE(document.load(path_from_bytes((samples / row.at("file")).string()), errors));
    std::map<std::string, int> found = counts(document);
    EXPECT_EQ(std::stoi(row.at("maps")), found["maps"]);
    EXPECT_EQ(std::stoi(row.at("repeated_maps")), found["repeated_maps"]);
    EXPECT_EQ(std::stoi(row.at("feature")), found["mxd_feature_layer"]);
    EXPECT_EQ(std::stoi(row.at("group")), found["mxd_group_layer"]);
    EXPECT_EQ(std::stoi(row.at("raster")), found["mxd_raster_layer"]);
    EXPECT_EQ(std::stoi(row.at("graphics")), found["mxd_fdo_graphics_layer"]);
    named += named_feature_layers(document);
  }
  std::cout << "documents: " << rows.size() << ", feature layers with all their names: " << named
            << "\n";
}

}  // namespace
}  // namespace mxd::test
