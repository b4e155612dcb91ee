#include "support/golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>

#include "support/decoded.h"

namespace mxd::test {
namespace {

const std::string section_mark = "== ";

using Sections = std::map<std::string, std::string>;

Sections read_sections(const std::string& path) {
  Sections sections;
  std::string name;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(section_mark)) {
      name = line.substr(section_mark.size());
    } else {
      sections[name] += line + "\n";
    }
  }
  return sections;
}

// In ASCII, with one "\n" at its end.
std::string as_section(const std::string& text) {
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<std::uint8_t>(c);
    result += byte < 0x80 ? std::string(1, c) : "\\x" + bytes_to_hex(Byte_run{byte}, "");
  }
  return result.ends_with("\n") ? result : result + "\n";
}

}  // namespace

void expect_golden(const std::string& family, const std::string& section, const std::string& text) {
  const std::string path = std::string(VQK_SOURCE_DIR) + "/tests/golden/" + family + ".txt";
  Sections sections = read_sections(path);
  if (!std::getenv("VQK_WRITE_GOLDEN")) {
    EXPECT_EQ(as_section(text), sections[section]) << family << ": " << section;
    return;
  }
  sections[section] = as_section(text);
  std::ofstream file(path, std::ios::binary);
  for (const auto& [name, kept] : sections) file << section_mark << name << "\n" << kept;
}

std::string decoded(Tmxd_obj& object, Decoder& decoder, std::int64_t limit) {
  std::string text = read_object(object, decoder.stream, -1, limit) ? "read, " : "failed, ";
  text += std::to_string(decoder.stream.tell()) + " of ";
  return text + std::to_string(decoder.stream.get_size()) + " bytes\n" + dump_of(object);
}

void expect_golden(const std::string& family, const std::string& section, const Tmxd_obj& object) {
  const std::string id(object.class_id().text);
  expect_golden(family, section, id + "\n" + dump_of(object) + xml_of(object));
}

}  // namespace mxd::test
