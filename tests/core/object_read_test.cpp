#include "core/object_read.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>

#include "core/read_helpers.h"
#include "document/names.h"
#include "support/object_builder.h"

namespace mxd::test {
namespace {

const Class_id& workspace_id = Tmxd_workspace_name::clsid;
const Class_id& dataset_id = Tmxd_feature_dataset_name::clsid;

using Names = std::vector<std::string>;
using Entry_point = std::function<bool(Tmxd_obj&, Tmxd_mxd_stream&)>;

bool mandatory(Tmxd_obj& object, Tmxd_mxd_stream& stream) {
  return read_object(object, stream, -1, -1);
}
bool or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream) {
  return read_object_or_null(object, stream, -1);
}
bool if_present(Tmxd_obj& object, Tmxd_mxd_stream& stream) {
  return read_object_if_present(object, stream, -1);
}
bool copy_if_present(Tmxd_obj& object, Tmxd_mxd_stream& stream) {
  return read_object_if_present(object, stream, -1, Back_reference::copy);
}
bool copy_or_null(Tmxd_obj& object, Tmxd_mxd_stream& stream) {
  return read_object_or_null(object, stream, -1, Back_reference::copy);
}

// A workspace name of number 5 is read first, then what follows it through the entry point.
struct Entry_case {
  const char* what;
  Entry_point read;
  Bytes follows;
  bool ok;
  int exists;
  int repeat;
  const char* name;
  std::uint64_t consumed;
  const char* error;
};

TEST(Object_read, the_entry_points_differ_in_what_absence_and_back_references_mean) {
  const Bytes again = Bytes().reference(workspace_id, 5);
  const Bytes fresh = Bytes().object(workspace_id, 6, 1, Bytes().wide("new"));
  const Bytes null = Bytes().null_object().zeros(20);
  const Bytes foreign = Bytes().reference(dataset_id, 5).zeros(4);
  const Bytes cut_name = Bytes().object(workspace_id, 7, 1, Bytes().i32(8).u16('n'));
  const Bytes cut_header = Bytes().guid(workspace_id.guid).u8(1);
  const char* cut_name_line = "ERROR IN 7 mxd_workspace_name  32";
  const char* cut_header_line = "ERROR IN 0 mxd_workspace_name  32";
  const Entry_case cases[] = {
      {"object", mandatory, fresh, true, 1, 0, "new", fresh.size(), ""},
      {"object again", mandatory, again, true, 1, 1, "old", 20, ""},
      {"object foreign", mandatory, foreign, false, 1, 0, "", 16, ""},
      {"object cut in its fields", mandatory, cut_name, false, 1, 0, "n", 28, cut_name_line},
      {"object cut in its header", mandatory, cut_header, false, 1, 0, "", 16, cut_header_line},
      {"or null", or_null, fresh, true, 1, 0, "new", fresh.size(), ""},
      {"or null again", or_null, again, true, 1, 1, "", 20, ""},
      {"or null absent", or_null, null, true, 0, 0, "", 16, ""},
      {"or null foreign", or_null, foreign, false, 1, 0, "", 16, ""},
      {"or null cut", or_null, cut_name, false, 1, 0, "n", 28, cut_name_line},
      {"or null at the end", or_null, Bytes().zeros(15), false, 1, 0, "", 15, ""},
      {"if present", if_present, fresh, true, 1, 0, "new", fresh.size(), ""},
      {"if present again", if_present, again, true, 1, 1, "", 20, ""},
      {"if present absent", if_present, null, true, 0, 0, "", 0, ""},
      {"if present foreign", if_present, foreign, true, 0, 0, "", 0, ""},
      {"if present at the end", if_present, Bytes().zeros(15), true, 0, 0, "", 0, ""},
      {"if present cut", if_present, cut_name, false, 1, 0, "n", 28, cut_name_line},
      {"copy if present again", copy_if_present, again, true, 1, 1, "old", 20, ""},
      {"copy if present foreign", copy_if_present, foreign, true, 0, 0, "", 0, ""},
      {"copy if present at the end", copy_if_present, Bytes().zeros(15), true, 0, 0, "", 0, ""},
      {"copy or null again", copy_or_null, again, true, 1, 1, "old", 20, ""},
      {"copy or null absent", copy_or_null, null, true, 0, 0, "", 16, ""},
      {"copy or null foreign", copy_or_null, foreign, false, 1, 0, "", 16, ""},
  };
  const Bytes old = Bytes().object(workspace_id, 5, 2, Bytes().wide("old"));
  ASSERT_EQ(32U, old.size());
  for (const Entry_case& c : cases) {
    SCOPED_TRACE(c.what);
    Decoder decoder(Bytes(old).add(c.follows));
    Tmxd_workspace_name earlier;
    ASSERT_TRUE(read_object(earlier, decoder.stream, 0, -1));
    Tmxd_workspace_name name;
    EXPECT_EQ(c.ok, c.read(name, decoder.stream));
    EXPECT_EQ(c.exists, name.exists);
    EXPECT_EQ(c.repeat, name.repeat);
    EXPECT_EQ(c.name, to_narrow(name.name));
    EXPECT_EQ(old.size() + c.consumed, decoder.stream.tell());
    EXPECT_EQ(*c.error ? Names{c.error} : Names{}, decoder.errors.lines);
    if (name.repeat) {
      EXPECT_EQ(5, name.number);
      EXPECT_EQ(3, name.reserve);
      EXPECT_EQ(0, name.version);
    }
  }
}

TEST(Load_observer, a_failed_read_is_one_flushed_line) {
  std::FILE* file = std::tmpfile();
  File_error_reporter(file).read_failed({12, "mxd_feature_layer", 4711});
  std::rewind(file);
  std::array<char, 100> line{};
  EXPECT_NE(std::fgets(line.data(), line.size(), file), nullptr);
  EXPECT_STREQ(line.data(), "ERROR IN 12 mxd_feature_layer  4711\n");
  EXPECT_EQ(std::fgetc(file), EOF);
  std::fclose(file);
}

TEST(Object_read, an_object_of_another_class_under_the_number_is_not_copied) {
  Decoder decoder(
      Bytes()
          .object(workspace_id, 5, 1, Bytes().wide("w"))
          .reference(dataset_id, 5)
          .object(dataset_id, 6, 1, Bytes().wide("a").wide("b").wide("c").wide("d").u8(9))
          .reference(dataset_id, 6));
  Tmxd_workspace_name workspace;
  Tmxd_feature_dataset_name other, dataset, copy;
  EXPECT_TRUE(mandatory(workspace, decoder.stream));
  EXPECT_TRUE(mandatory(other, decoder.stream));
  EXPECT_EQ(1, other.repeat);
  EXPECT_TRUE(other.str1.empty());
  EXPECT_TRUE(mandatory(dataset, decoder.stream));
  EXPECT_TRUE(mandatory(copy, decoder.stream));
  EXPECT_EQ(9, copy.byte1);
  EXPECT_EQ("d", to_narrow(copy.str4));
}

TEST(Object_read, the_first_object_registered_under_a_number_keeps_it) {
  Object_registry registry;
  Tmxd_workspace_name first, second;
  registry.add(5, {&first, 1, 1});
  registry.add(5, {&second, 2, 1});
  EXPECT_EQ(&first, registry.find(5)->object);
  EXPECT_EQ(nullptr, registry.find(4));
  EXPECT_EQ(nullptr, registry.find(65535));
}

// Objects that hold the same class again, as deep as the data says.
class Nest final : public Copyable_class<Nest> {
 public:
  static constexpr Class_id clsid{"00000000-0000-0000-0000-0000000000AA"};
  static constexpr std::string_view type = "nest";

  static const Object_family& family() {
    static const Object_family family = family_of<Class_list<Nest>>();
    return family;
  }

  bool read_fields(Tmxd_mxd_stream& stream, std::int64_t limit) override {
    std::uint8_t count = 0;
    if (!read_number(stream, count)) return false;
    for (int i = 0; i < count; ++i) {
      if (!read_into(held, std::make_unique<Nest>(), stream, -1, limit)) return false;
    }
    return true;
  }

  Cloned_list<Nest> held;

 protected:
  void describe(Field_writer& writer) const override {
    for (const Nest* nest : held) writer.object("nest", *nest);
  }
};

Bytes nested(int levels) {
  Bytes bytes;
  for (int level = 1; level <= levels; ++level) {
    bytes.reference(Nest::clsid, level).u16(1).u8(level < levels ? 1 : 0);
  }
  return bytes;
}

TEST(Object_read, nesting_ends_silently_at_a_hundred_levels) {
  Decoder fits(nested(100));
  Nest nest;
  EXPECT_TRUE(mandatory(nest, fits.stream));
  Decoder too_deep(nested(101));
  Nest deeper;
  EXPECT_FALSE(mandatory(deeper, too_deep.stream));
  // The innermost read reports nothing; each of the hundred around it does.
  EXPECT_EQ(100U, too_deep.errors.lines.size());
}

TEST(Object_read, copies_count_as_the_levels_that_they_stand_for) {
  // Each object holds a reference to the one before: the copies grow by a level each.
  Bytes chain = reference<Nest>(1).u16(1).u8(0);
  constexpr int links = 150;
  for (int link = 2; link <= links; ++link) {
    chain.reference(Nest::clsid, link).u16(1).u8(1).reference(Nest::clsid, link - 1);
  }
  Decoder decoder(chain);
  std::vector<std::unique_ptr<Nest>> nests;
  do {
    nests.push_back(std::make_unique<Nest>());
  } while (mandatory(*nests.back(), decoder.stream));
  EXPECT_EQ(101U, nests.size());
  // The refused read reports nothing; the read around it does.
  EXPECT_EQ(Names({"ERROR IN 101 nest  4280"}), decoder.errors.lines);
}

}  // namespace
}  // namespace mxd::test
