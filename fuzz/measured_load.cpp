#include "measured_load.h"

#include "counted_memory.h"
#include "document/mxd.h"
#include "storage/compound_file.h"
#include "storage/file_stream.h"
#include "support/counting_stream.h"
#include "support/object_builder.h"
#include "support/temp_file.h"

namespace mxd::fuzz {
namespace {

void decode(Tmxd_stream_m& bytes, Tmxd_mxd& document, Work& work) {
  test::Recorded_errors observer;
  Load load(observer, bytes.get_size());
  work.loaded = document.load_maps(bytes, {}, load);
  work.spent = load.budget().used();
  work.limit = load.budget().limit();
  work.exhausted = load.budget().exhausted();
  work.objects = observer.objects;
  work.search_steps = observer.search_steps;
  work.errors = observer.lines.size();
}

void write_outputs(const Tmxd_mxd& document, Work& work) {
  static const test::Temp_file xml;
  work.output = document.dump(0, 2).size();
  static_cast<void>(document.save_xml(xml.path()));
  work.memory = peak_memory();
  work.output += xml.contents().size();
}

}  // namespace

Work work_of_file(const Wide_string& path) {
  Work work;
  Tmxd_mxd document;
  forget_peak();
  {
    Tmxd_stream_f file;
    test::Counting_stream counted(file);
    Tmxd_stream_m bytes;
    if (file.open(path, from_ascii("rb")) &&
        read_named_stream(counted, from_ascii("Maps"), bytes)) {
      decode(bytes, document, work);
    }
    work.bytes_read = counted.bytes_read();
  }
  write_outputs(document, work);
  return work;
}

Work work_of_stream(const Byte_run& maps) {
  Work work;
  Tmxd_mxd document;
  forget_peak();
  {
    Tmxd_stream_m bytes;
    static_cast<void>(bytes.write(maps.data(), 1, maps.size()));
    decode(bytes, document, work);
  }
  write_outputs(document, work);
  return work;
}

}  // namespace mxd::fuzz
