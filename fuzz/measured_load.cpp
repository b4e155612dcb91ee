#include "measured_load.h"

#include "core/mxd_stream.h"
#include "counted_memory.h"
#include "document/known_class_scanner.h"
#include "document/mxd.h"
#include "storage/compound_file.h"
#include "support/temp_file.h"

namespace mxd::fuzz {
namespace {

class Counted_errors final : public Error_sink {
 public:
  void read_failed(const Read_error&) override { ++count; }
  std::uint64_t count = 0;
};

void decode(Tmxd_stream_m& bytes, Tmxd_mxd& document, Work& work) {
  Counted_errors errors;
  Tmxd_mxd_stream stream(bytes, known_class_scanner(), errors);
  work.loaded =
      stream.seek(0) && read_number(stream, document.int1) && read_maps(document.maps, stream);
  work.spent = stream.budget().used();
  work.limit = stream.budget().limit();
  work.exhausted = stream.budget().exhausted();
  work.objects = stream.counts().objects;
  work.search_steps = stream.counts().search_steps;
  work.errors = errors.count;
}

void write_outputs(const Tmxd_mxd& document, Work& work) {
  static const test::Temp_file xml;
  work.output = document.dump(0, 2).size();
  document.save_xml(xml.path());
  work.memory = peak_memory();
  work.output += xml.contents().size();
}

}  // namespace

Work work_of_file(const Wide_string& path) {
  Work work;
  Tmxd_mxd document;
  forget_peak();
  {
    Tmxd_stream_m bytes;
    if (read_named_stream(path, from_ascii("Maps"), bytes, &work.bytes_read) != 0) {
      decode(bytes, document, work);
    }
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
    bytes.write(maps.data(), 1, maps.size());
    decode(bytes, document, work);
  }
  write_outputs(document, work);
  return work;
}

}  // namespace mxd::fuzz
