#include "support/class_table.h"
#include "support/decoded.h"
#include "symbology/line_symbols.h"

namespace mxd::test {
namespace {

// What came of each read, and of each layer whether it is enabled and locked, and its tag.
template <class T, class List>
void expect_layers(const std::string& section, List T::*list,
                   const std::vector<Decode_case>& cases) {
  std::string text;
  for (const Decode_case& c : cases) {
    Decoder decoder(c.bytes);
    T object;
    const std::string result = decoded(object, decoder);
    text += c.what + ": " + result.substr(0, result.find('\n'));
    for (const auto& layer : object.*list) {
      text += "; " + std::to_string(layer->enabled) + std::to_string(layer->locked) + " " +
              to_narrow(layer->tag);
    }
    text += "\n";
  }
  expect_golden("symbology", section, text);
}

template <class T, class List>
void expect_versions(const std::string& name, List T::*list) {
  std::vector<Decode_case> cases;
  for (const int version : {1, 2, 3}) {
    cases.push_back({std::to_string(version),
                     Bytes().object(T::clsid, 5, version, row_named(name).fields(5, 13))});
  }
  expect_layers(name + ", by version", list, cases);
}

TEST(Symbol_lists, have_tags_from_a_version_on) {
  expect_versions("multilayer_marker_symbol", &Tmxd_multilayer_marker_symbol::marker_symbols);
  expect_versions("multilayer_line_symbol", &Tmxd_multilayer_line_symbol::line_symbols);
  expect_versions("multilayer_fill_symbol", &Tmxd_multilayer_fill_symbol::fill_symbols);
}

// A tag that breaks off is left out.
TEST(Symbol_lists, keep_the_layers_before_a_failure) {
  const Bytes one = record("simple_line_symbol", 1);
  const Bytes two = Packed(one, record("hash_line_symbol", 2));
  const auto lines = [](const Bytes& layers) {
    return object<Tmxd_multilayer_line_symbol>(5, 2, {trailer(13), layers});
  };
  expect_layers("lists of layers", &Tmxd_multilayer_line_symbol::line_symbols,
                {{"none", lines(Packed(0, two))},
                 {"negative", lines(Packed(-1, two))},
                 {"more than there are", lines(Packed(0x7FFFFFFF, two))},
                 {"the second one fails", lines(Packed(2, one, record("hash_line_symbol", 2, 12)))},
                 {"one of another kind", lines(Packed(2, one, record("line_template", 3)))},
                 {"cut in the first flags", lines(Packed(2, two, 0))},
                 {"cut in the second flags", lines(Packed(2, two, 0, 0, 1))},
                 {"cut in a tag", lines(Packed(1, one, 1, 0, 8, run(4, 'A')))}});
}

}  // namespace
}  // namespace mxd::test
