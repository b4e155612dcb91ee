#include "storage/ieee_stream.h"

#include <gtest/gtest.h>

#include <limits>

#include "storage/fixed_bytes.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

TEST(Primitives, numbers_are_little_endian_and_leave_the_field_alone_when_cut) {
  Decoder decoder(Bytes().u8(200).u16(0xFFFF).i32(-2).f64(-0.1).u8(1));
  std::uint8_t byte = 0;
  std::int16_t word = 0;
  std::int32_t number = 0;
  double real = 0;
  EXPECT_TRUE(read_number(decoder.stream, byte) && read_number(decoder.stream, word) &&
              read_number(decoder.stream, number) && read_number(decoder.stream, real));
  EXPECT_EQ(200, byte);
  EXPECT_EQ(-1, word);
  EXPECT_EQ(-2, number);
  EXPECT_EQ(-0.1, real);
  EXPECT_FALSE(read_number(decoder.stream, number));
  EXPECT_EQ(-2, number);
  EXPECT_EQ(15U, decoder.stream.tell());
}

struct String_case {
  const char* what;
  Bytes stored;
  bool ok;
  std::size_t length;
  std::uint64_t position;
};

template <class String>
void expect_strings(bool (*read)(Tmxd_ieee_stream&, String&),
                    std::initializer_list<String_case> cases) {
  for (const String_case& c : cases) {
    SCOPED_TRACE(c.what);
    Decoder decoder(c.stored);
    String text(6, 'b');
    EXPECT_EQ(c.ok, read(decoder.stream, text));
    EXPECT_EQ(c.length, text.size());
    EXPECT_EQ(c.position, decoder.stream.tell());
  }
}

TEST(Primitives, wide_strings) {
  expect_strings(read_wide_string,
                 {{"empty", Bytes().i32(0), true, 0, 4},
                  {"with its closing NUL", Bytes().wide(Wide_string(3, 0)), true, 3, 10},
                  {"odd count", Bytes().i32(3).zeros(8), false, 0, 4},
                  {"negative count", Bytes().i32(-2).zeros(8), false, 0, 4},
                  {"longest", Bytes().i32(9998).zeros(9998), true, 4999, 10002},
                  {"too long", Bytes().i32(10000).zeros(10000), false, 0, 4},
                  {"one unit missing", Bytes().i32(6).u16('a').u16('b'), false, 3, 8},
                  {"half a unit missing", Bytes().i32(6).u16('a').u16('b').u8('c'), false, 3, 8},
                  {"count cut", Bytes().u16(2), false, 0, 0}});
  Decoder decoder(Bytes().i32(6).u16('a').u16(0x0416));
  Wide_string text;
  EXPECT_FALSE(read_wide_string(decoder.stream, text));
  EXPECT_EQ((Wide_string{'a', 0x0416, 0}), text);
}

TEST(Primitives, narrow_strings_and_byte_runs) {
  expect_strings(read_narrow_string, {{"empty", Bytes().i32(0), true, 0, 4},
                                      {"odd lengths are fine", Bytes().narrow("abc"), true, 3, 7},
                                      {"longest", Bytes().i32(9999).zeros(9999), true, 9999, 10003},
                                      {"too long", Bytes().i32(10000).zeros(10000), false, 0, 4},
                                      {"cut", Bytes().i32(5).raw("ab"), false, 5, 6}});
  Decoder cut(Bytes().counting(3));
  Fixed_bytes<5> run;
  EXPECT_TRUE(read_bytes(cut.stream, run, 0));
  EXPECT_EQ(bytes_to_hex(run, ""), "");
  EXPECT_FALSE(read_bytes(cut.stream, run));
  EXPECT_EQ(bytes_to_hex(run, ""), "0102030000");
  EXPECT_EQ(3U, cut.stream.tell());
}

bool is_class_id(const Bytes& bytes, const Guid& id) {
  Decoder decoder(bytes);
  return read_class_id(decoder.stream, id);
}

bool is_trailer(const Bytes& bytes) {
  Decoder decoder(bytes);
  return read_symbol_trailer(decoder.stream);
}

TEST(Primitives, guids_class_ids_and_the_symbol_trailer) {
  const Guid id = guid_from_text("7914e5fb-c892-11d0-8bb6-080009ee4e41");
  EXPECT_EQ(id, guid_from_text("7914E5FB-C892-11D0-8BB6-080009EE4E41"));
  const Bytes stored =
      Bytes().raw("\xfb\xe5\x14\x79\x92\xc8\xd0\x11\x8b\xb6").u8(8).u8(0).raw("\x09\xee\x4e\x41");
  EXPECT_TRUE(is_class_id(stored, id));
  EXPECT_FALSE(is_class_id(stored.prefix(15), id));
  EXPECT_FALSE(is_class_id(Bytes().zeros(16), id));
  Decoder broken(stored.prefix(15));
  EXPECT_FALSE(read_class_id(broken.stream, id));
  EXPECT_EQ(15U, broken.stream.tell()) << "what there is of it is consumed";
  // Pairs that are no numbers, and texts that end too soon.
  EXPECT_EQ(0x0A, guid_from_text("a-zz").bytes[0]);
  EXPECT_EQ(0, guid_from_text("a-zz").bytes[1]);
  EXPECT_TRUE(guid_from_text("1").is_null());
  EXPECT_TRUE(is_trailer(Bytes().trailer(13)));
  EXPECT_FALSE(is_trailer(Bytes().trailer(12)));
  EXPECT_FALSE(is_trailer(Bytes().i32(13)));
}

TEST(Load_budget, once_spent_every_read_fails) {
  Decoder decoder(Bytes().zeros(8));
  const std::uint64_t limit = decoder.stream.load().budget().limit();
  EXPECT_EQ((std::uint64_t{4} << 20) + 16 * 8, limit);
  EXPECT_TRUE(decoder.load.spend(limit - 3));
  std::int32_t number = 0;
  std::uint8_t byte = 0;
  EXPECT_FALSE(read_number(decoder.stream, number));
  EXPECT_FALSE(read_number(decoder.stream, byte));
  EXPECT_FALSE(decoder.load.spend(std::numeric_limits<std::uint64_t>::max()));
}

}  // namespace
}  // namespace mxd::test
