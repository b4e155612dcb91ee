// Saving a document as XML. Baselines: writing the same bytes, and building and writing the same
// tree with pugixml. All write to the same file.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <pugixml.hpp>

#include "benchmarks.h"
#include "storage/unicode.h"
#include "vqk_file_mxd.h"

namespace mxd::bench {
namespace {

// In memory if possible, because disks vary more than the programs.
const std::string& output_path() {
  static const std::string path = [] {
    const std::filesystem::path memory = "/dev/shm";
    const auto folder =
        std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
    return (folder / ("vqk_bench_" + std::to_string(getpid()) + ".xml")).string();
  }();
  return path;
}

struct Destroy {
  void operator()(vq_mxd_mxd* mxd) const { vq_mxd_mxd_destroy(mxd); }
};
using Mxd = std::unique_ptr<vq_mxd_mxd, Destroy>;

Mxd load(const Document& document) {
  Mxd mxd(vq_mxd_mxd_create());
  vq_mxd_mxd_load(mxd.get(), document.wide_path.c_str());
  return mxd;
}

std::string xml_of(const Document& document) {
  const Mxd mxd = load(document);
  vq_mxd_mxd_save_xml(mxd.get(), path_from_bytes(output_path()).c_str());
  std::ifstream in(output_path(), std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(in), {}};
  std::filesystem::remove(output_path());
  return text;
}

void save(benchmark::State& state, const Document& document) {
  const Mxd mxd = load(document);
  const Wide_string path = path_from_bytes(output_path());
  for (auto _ : state) benchmark::DoNotOptimize(vq_mxd_mxd_save_xml(mxd.get(), path.c_str()));
  std::filesystem::remove(output_path());
}

void write(benchmark::State& state, const Document& document) {
  const std::string text = xml_of(document);
  for (auto _ : state) {
    std::FILE* file = std::fopen(output_path().c_str(), "w");
    benchmark::DoNotOptimize(std::fwrite(text.data(), 1, text.size(), file));
    std::fclose(file);
  }
  std::filesystem::remove(output_path());
}

struct Element {
  std::string name, value;
  std::vector<Element> children;
};

Element element_of(const pugi::xml_node& node) {
  Element result{node.name(), node.text().get(), {}};
  for (const auto& child : node.children()) {
    if (child.type() == pugi::node_element) result.children.push_back(element_of(child));
  }
  return result;
}

void add(pugi::xml_node parent, const Element& element) {
  pugi::xml_node node = parent.append_child(element.name.c_str());
  if (!element.value.empty()) node.append_child(pugi::node_pcdata).set_value(element.value.c_str());
  for (const Element& child : element.children) add(node, child);
}

void build_and_write(benchmark::State& state, const Document& document) {
  const std::string text = xml_of(document);
  pugi::xml_document parsed;
  parsed.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_latin1);
  const Element root = element_of(parsed.document_element());
  for (auto _ : state) {
    pugi::xml_document tree;
    add(tree, root);
    benchmark::DoNotOptimize(tree.save_file(output_path().c_str(), "", pugi::format_raw));
  }
  std::filesystem::remove(output_path());
}

}  // namespace

void add_save_benchmarks(const std::vector<Document>& documents) {
  for (const Document& document : documents) {
    const auto add_one = [&](const char* what, auto function) {
      const std::string name = std::string(what) + "/" + document.name;
      benchmark::RegisterBenchmark(name.c_str(), function, document)->UseRealTime();
    };
    add_one("save", save);
    add_one("fwrite", write);
    add_one("pugixml", build_and_write);
  }
}

}  // namespace mxd::bench
