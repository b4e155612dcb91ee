// A whole load. Baseline: extracting the stream with libgsf.
#include <gsf/gsf.h>

#include <cstdlib>
#include <memory>

#include "benchmarks.h"
#include "vqk_file_mxd.h"

namespace mxd::bench {
namespace {

void load(benchmark::State& state, const Document& document) {
  for (auto _ : state) {
    vq_mxd_mxd* mxd = vq_mxd_mxd_create();
    if (!vq_mxd_mxd_load(mxd, document.wide_path.c_str())) state.SkipWithError("not loaded");
    vq_mxd_mxd_destroy(mxd);
  }
}

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unref>;

using Open = GsfInput* (*)(const char* path, GError** error);

void extract(benchmark::State& state, const Document& document, Open open) {
  for (auto _ : state) {
    const Owned<GsfInput> file(open(document.path.c_str(), nullptr));
    if (!file) return state.SkipWithError("not opened");
    const Owned<GsfInfile> folder(gsf_infile_msole_new(file.get(), nullptr));
    const Owned<GsfInput> stream(folder ? gsf_infile_child_by_name(folder.get(), "Maps") : nullptr);
    if (!stream) return state.SkipWithError("no stream");
    const auto size = static_cast<std::size_t>(gsf_input_size(stream.get()));
    const std::unique_ptr<guint8[]> bytes(new guint8[size]);
    benchmark::DoNotOptimize(gsf_input_read(stream.get(), size, bytes.get()));
  }
}

}  // namespace

void add_load_benchmarks(const std::vector<Document>& documents) {
  gsf_init();
  for (const Document& document : documents) {
    benchmark::RegisterBenchmark(("load/" + document.name).c_str(), load, document)->UseRealTime();
    benchmark::RegisterBenchmark(("gsf/" + document.name).c_str(), extract, document,
                                 &gsf_input_stdio_new)
        ->UseRealTime();
    benchmark::RegisterBenchmark(("gsf_mapped/" + document.name).c_str(), extract, document,
                                 &gsf_input_mmap_new)
        ->UseRealTime();
  }
}

}  // namespace mxd::bench
