// Records that are decoded, and golden texts of what came of it.
#pragma once

#include <tuple>

#include "support/golden.h"
#include "support/object_builder.h"

namespace mxd::test {

struct Decode_case {
  std::string what;
  Bytes bytes;
  std::int64_t limit = -1;
};

// "read, 40 of 62 bytes" and the object's dump, read from the current position.
std::string decoded(Tmxd_obj& object, Decoder& decoder, std::int64_t limit = -1);

// A golden section with the objects of these classes, in order, and the errors of each case.
template <class... Class>
void expect_decoded(const std::string& family, const std::string& section,
                    const std::vector<Decode_case>& cases) {
  std::string text;
  for (const Decode_case& c : cases) {
    Decoder decoder(c.bytes);
    text.append("-- ").append(c.what).append("\n");
    const auto append = [&](Tmxd_obj& object) { text += decoded(object, decoder, c.limit); };
    // Later objects may refer to earlier ones.
    std::tuple<Class...> objects;
    std::apply([&](auto&... object) { (append(object), ...); }, objects);
    for (const std::string& line : decoder.errors.lines) text += line + "\n";
  }
  expect_golden(family, section, text);
}

}  // namespace mxd::test
