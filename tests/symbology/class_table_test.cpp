#include "support/class_table.h"

#include "rendering/legend.h"
#include "support/golden.h"

namespace mxd::test {
namespace {

TEST(Symbology_classes, all_have_a_record) {
  for_each_class(Join<Symbol_classes, Color_classes, Line_decoration_element_classes>(),
                 []<class Class>(std::type_identity<Class>) {
                   EXPECT_NO_THROW(row_named(Class::type.substr(4))) << Class::type;
                 });
}

TEST(Symbology_classes, read_show_and_copy_every_field) {
  for (const Class_row& row : class_table()) {
    SCOPED_TRACE(row.type);
    const Bytes whole = record(row, 5);
    Decoder decoder(Bytes(whole).add(reference(row.type.substr(4), 5)));
    const auto object = row.make();
    ASSERT_TRUE(read_object(*object, decoder.stream, -1, -1));
    EXPECT_EQ(decoder.stream.tell(), whole.size());
    expect_golden("symbology", std::string(row.type), *object);

    // Copies keep enabled, locked and tag, except those of one class.
    auto* symbol = dynamic_cast<Tmxd_symbol*>(object.get());
    if (symbol) symbol->tag = from_ascii("tag");
    const auto copy = row.make();
    ASSERT_TRUE(read_object(*copy, decoder.stream, -1, -1));
    EXPECT_EQ(copy->repeat, 1);
    EXPECT_EQ(fields_of(*copy), fields_of(*object));
    if (symbol) {
      const bool stays = row.type == Tmxd_line_fill_symbol::type;
      EXPECT_EQ(to_narrow(dynamic_cast<Tmxd_symbol&>(*copy).tag), stays ? "" : "tag");
    }
    EXPECT_FALSE(copy->copy_from(Tmxd_legend_class()));
    EXPECT_EQ(fields_of(*copy), fields_of(*object));
    EXPECT_TRUE(decoder.errors.lines.empty());
  }
}

TEST(Symbology_classes, fail_on_a_cut_record_and_on_another_trailer) {
  int trailers = 0;
  for (const Class_row& row : class_table()) {
    SCOPED_TRACE(row.type);
    const Bytes whole = record(row, 5);
    // When the outline's color is cut within its id, the closing bytes are found in that.
    const std::size_t dispensable = row.type == Tmxd_simple_marker_symbol::type ? 51 : 0;
    row.expect_prefixes_fail(whole, dispensable);
    const Bytes other = record(row, 5, 12);
    if (other.data() == whole.data()) continue;
    ++trailers;
    Decoder decoder(other);
    EXPECT_FALSE(read_object(*row.make(), decoder.stream, -1, -1));
  }
  EXPECT_GE(trailers, 13);
}

}  // namespace
}  // namespace mxd::test
