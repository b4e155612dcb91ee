// What happens at the library's edge: without memory, without disk, with files that change, in two
// threads, and under a host's locale.
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <locale>
#include <stdexcept>
#include <thread>

#include "counted_memory.h"
#include "document/mxd.h"
#include "storage/compound_file.h"
#include "support/compound_builder.h"
#include "support/host_document.h"
#include "support/sample_document.h"
#include "support/temp_file.h"
#include "tree_walk.h"

namespace mxd::fuzz {
namespace {

namespace fs = std::filesystem;
using namespace mxd::test;

class Document : public Host_document {
 public:
  std::uint64_t walk() const { return walk_tree(handle()); }
};

std::string text_of(const Wide_string& path) {
  std::ifstream in(fs::path(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Runs the action without the first allocation, then without the second, ... until it has all that
// it asks for; how many it asked for.
template <class Action>
int with_ever_more_memory(Action succeeds) {
  for (int allocations = 1;; ++allocations) {
    fail_from_allocation(static_cast<std::uint64_t>(allocations));
    const bool ok = succeeds();
    fail_from_allocation(0);
    if (ok) return allocations;
  }
}

TEST(Boundary, memory_that_runs_out_at_any_point_only_fails_the_call) {
  const Temp_file file(sample_document());
  const Wide_string xml = file.beside(u"map.xml");
  Document document;
  EXPECT_GT(with_ever_more_memory([&] { return document.load(file.path()); }), 100);
  const std::uint64_t seen = document.walk();
  EXPECT_GT(with_ever_more_memory([&] { return document.save(xml); }), 3);
  EXPECT_EQ(document.walk(), seen);

  Document fresh;
  ASSERT_TRUE(fresh.load(file.path()));
  EXPECT_EQ(fresh.walk(), seen);
  const Wide_string other = file.beside(u"other.xml");
  ASSERT_TRUE(fresh.save(other));
  EXPECT_EQ(text_of(xml), text_of(other));
}

TEST(Boundary, a_stream_that_does_not_fit_into_memory_is_not_found) {
  const Temp_file file(Compound_file().stream("Maps", noise(100000)).build());
  const int allocations = with_ever_more_memory([&] {
    Tmxd_stream_m out;
    const bool found = read_named_stream(file.path(), from_ascii("Maps"), out);
    EXPECT_EQ(out.get_size(), found ? 100000U : 0U);
    return found;
  });
  EXPECT_GT(allocations, 5);
  Tmxd_stream_m stream;
  EXPECT_FALSE(stream.set_size(std::uint64_t{1} << 62));
  EXPECT_FALSE(stream.set_size(~std::uint64_t{0}));
  EXPECT_EQ(stream.get_size(), 0U);
}

TEST(Boundary, saving_answers_whether_the_file_could_be_opened) {
  const Temp_file file(sample_document());
  Document document;
  ASSERT_TRUE(document.load(file.path()));
  const std::uint64_t seen = document.walk();
  EXPECT_FALSE(document.save(file.folder()));
  EXPECT_FALSE(document.save(file.beside(u"missing/map.xml")));
  EXPECT_FALSE(document.save({}));
  // A full disk shows only when the bytes are on their way.
  if (fs::exists("/dev/full")) {
    EXPECT_TRUE(document.save(from_ascii("/dev/full")));
  }

  const Wide_string locked = file.beside(u"locked");
  fs::create_directory(fs::path(locked));
  fs::permissions(fs::path(locked), fs::perms::owner_read | fs::perms::owner_exec);
  // The superuser writes everywhere.
  std::ofstream probe(fs::path(locked) / "probe");
  const bool may_write = probe.is_open();
  EXPECT_EQ(document.save((fs::path(locked) / "map.xml").string<Wide_char>()), may_write);
  fs::permissions(fs::path(locked), fs::perms::owner_all);

  // Over the document itself: what was read stays, and the file is XML from then on.
  EXPECT_TRUE(document.save(file.path()));
  EXPECT_EQ(document.walk(), seen);
  EXPECT_TRUE(file.text().starts_with("<?xml"));
  EXPECT_FALSE(document.load(file.path()));
  EXPECT_EQ(document.maps(), 0);
}

TEST(Boundary, a_file_that_shrinks_and_grows_while_it_is_read_does_no_harm) {
  const Byte_run bytes = sample_document();
  const Temp_file file(bytes);
  const fs::path path(file.path());
  std::thread host([&] {
    Document document;
    for (int i = 0; i < 200; ++i) {
      document.load(file.path());
      document.walk();
    }
  });
  for (int i = 0; i < 400; ++i) {
    std::error_code ignored;
    fs::resize_file(path, bytes.size() * static_cast<unsigned>(i % 7) / 6, ignored);
    try {
      if (i % 7 == 6) file.write(bytes);
    } catch (const std::runtime_error&) {
      // Windows lets nobody write what is being read.
    }
  }
  host.join();
  file.write(bytes);
  Document document;
  EXPECT_TRUE(document.load(file.path()));
  EXPECT_EQ(document.maps(), 3);
}

TEST(Boundary, two_documents_may_be_used_in_two_threads) {
  const Temp_file file(sample_document());
  const auto work = [&](std::u16string_view name) {
    const Wide_string xml = file.beside(name);
    Document document;
    for (int i = 0; i < 20; ++i) {
      EXPECT_TRUE(document.load(file.path()));
      document.walk();
      EXPECT_TRUE(document.save(xml));
    }
    return text_of(xml);
  };
  std::string first, second;
  std::thread one([&] { first = work(u"one.xml"); });
  std::thread two([&] { second = work(u"two.xml"); });
  one.join();
  two.join();
  EXPECT_EQ(first, second);
  EXPECT_FALSE(first.empty());
}

struct Comma final : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Boundary, the_outputs_do_not_depend_on_the_hosts_locale) {
  const Temp_file file(sample_document());
  const auto outputs = [&] {
    class Silent final : public Load_observer {
      void read_failed(const Read_error&) override {}
    } errors;
    Tmxd_mxd document;
    EXPECT_TRUE(document.load(file.path(), errors));
    EXPECT_TRUE(document.save_xml(file.beside(u"map.xml")));
    return document.dump(0, 2) + text_of(file.beside(u"map.xml"));
  };
  const std::string plain = outputs();
  EXPECT_NE(plain.find("0.75"), std::string::npos);
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
  EXPECT_EQ(outputs(), plain);
  const char* name = std::setlocale(LC_ALL, "de_DE.UTF-8");
  if (!name) name = std::setlocale(LC_ALL, "German_Germany");
  if (name) {
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(outputs(), plain) << name;
  }
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
  if (!name) GTEST_SKIP() << "no German locale; only that of C++ was set";
}

}  // namespace
}  // namespace mxd::fuzz
