#include "measured_load.h"

#include "counted_memory.h"
#include "document/mxd.h"
#include "storage/compound_file.h"
#include "support/counting_stream.h"
#include "support/object_builder.h"
#include "support/outline_checks.h"
#include "support/temp_file.h"

namespace mxd::fuzz {

namespace {

// With both outputs.
void load(Tmxd_stream_m& maps, Work& work) {
  static const test::Temp_file xml;
  Tmxd_mxd document;
  test::Recorded_errors observer;
  const Load_budget budget = test::load_maps(document, maps, observer);
  work.found = true;
  work.spent = budget.used();
  work.limit = budget.limit();
  work.exhausted = budget.exhausted();
  work.objects = observer.objects;
  work.search_steps = observer.search_steps;
  work.errors = observer.lines.size();
  work.output = document.dump(0, 2).size();
  static_cast<void>(document.save_xml(xml.path()));
  work.memory = peak_memory();
  work.output += xml.contents().size();
}

}  // namespace

Work work_of_file(const Byte_run& file) {
  Work work;
  test::Counting_stream counted(file);
  forget_peak();
  Tmxd_stream_m maps;
  if (read_named_stream(counted, from_ascii("Maps"), maps)) load(maps, work);
  work.bytes_read = counted.bytes_read();
  return work;
}

Work work_of_stream(std::span<const std::uint8_t> bytes) {
  Work work;
  forget_peak();
  Tmxd_stream_m maps;
  static_cast<void>(maps.write(bytes.data(), 1, bytes.size()));
  load(maps, work);
  return work;
}

}  // namespace mxd::fuzz
