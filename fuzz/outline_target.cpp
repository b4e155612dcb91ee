// The outline of a document whose stream "Maps" has these bytes. Its other streams have them, too.
#include "support/object_builder.h"
#include "support/outline_checks.h"
#include "target.h"

namespace {

using namespace mxd;

std::string shape(const Outline& outline) {
  std::string out;
  for (const Map_outline& map : outline.maps) {
    for (const Layer_record& record : map.records) {
      out += kind_in_words(record.class_id) + " at " + std::to_string(record.position) + " of " +
             std::to_string(record.length) + ": " + to_narrow(record.name) + '\n';
    }
  }
  return out + std::to_string(outline.steps);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> all(data, size);
  Tmxd_mxd document;
  test::Recorded_errors errors;
  test::load_maps(document, all, errors);
  const Outline outline = read_outline(document, {all, all, all});
  const std::string fault = test::outline_fault(outline, size);
  fuzz::require(fault.empty(), fault.c_str());
  fuzz::require(shape(outline) == shape(read_outline(document, {all, all, all})),
                "the outline is the same every time");
  return 0;
}
