// Every class of the symbology: a record of it, and what both outputs show of that.
#pragma once

#include <algorithm>
#include <cctype>
#include <memory>
#include <sstream>

#include "support/object_builder.h"
#include "symbology/fill_symbols.h"
#include "symbology/line_symbols.h"
#include "symbology/marker_symbols.h"

namespace mxd::test {

inline void put(Bytes& out, int value) {
  out.i32(value);
}
inline void put(Bytes& out, double value) {
  out.f64(value);
}
inline void put(Bytes& out, const char* text) {
  out.wide(text);
}
inline void put(Bytes& out, const Bytes& bytes) {
  out.add(bytes);
}

// Fields in the order of the stream: int32, float64 and wide strings as they are, others as bytes.
template <class... T>
Bytes packed(const T&... fields) {
  Bytes out;
  (put(out, fields), ...);
  return out;
}
inline Bytes byte(int value) {
  return Bytes().u8(value);
}
inline Bytes run(int count) {
  return Bytes().counting(count);
}
inline Bytes trailer(int mark) {
  return Bytes().trailer(mark);
}

// In the texts "#" is the record's own number, "$dot7" the output of the record "dot" of number 7,
// "$run3" the bytes 1 to 3. Line breaks and indents count as one blank.
struct Class_row {
  const char* name;
  const char* type;
  const char* class_id;
  int version;
  // The symbol trailer's first word is 13 in a valid record.
  Bytes (*fields)(int number, int mark);
  const char* dump;
  const char* xml;
  std::unique_ptr<Tmxd_obj> (*make)();
  void (*expect_prefixes_fail)(const Bytes& record, std::size_t complete_from);
  // Prefixes that lack no more than that may succeed.
  std::size_t dispensable = 0;
};

template <class T>
Class_row class_row(const char* name, const char* type, const char* class_id, int version,
                    Bytes (*fields)(int number, int mark), const char* dump, const char* xml) {
  return {name,
          type,
          class_id,
          version,
          fields,
          dump,
          xml,
          [] { return std::unique_ptr<Tmxd_obj>(std::make_unique<T>()); },
          expect_prefixes_fail<T>};
}

const std::vector<Class_row>& class_table();

inline const Class_row& row_named(std::string_view name) {
  const auto& rows = class_table();
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const Class_row& row) { return name == row.name; });
  return found == rows.end() ? throw std::string(name) : *found;
}

inline Bytes record(const Class_row& row, int number, int mark = 13) {
  return Bytes().object(Class_id(row.class_id), number, row.version, row.fields(number, mark));
}
inline Bytes record(std::string_view name, int number, int mark = 13) {
  return record(row_named(name), number, mark);
}

// The same object of that number, written as a reference.
inline Bytes reference(std::string_view name, int number) {
  return Bytes().reference(Class_id(row_named(name).class_id), number);
}

inline std::string folded(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const char plain = c == '\n' ? ' ' : c;
    if (plain != ' ' || (!result.empty() && result.back() != ' ')) result.push_back(plain);
  }
  if (!result.empty() && result.back() == ' ') result.pop_back();
  return result;
}

enum class Face { dump, xml };

std::string output(const Class_row& row, int number, Face face);

inline std::string expanded(std::string_view text, int own_number, Face face) {
  std::string result;
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] != '$') {
      result.push_back(text[i++]);
      continue;
    }
    std::string name, number;
    for (++i; i < text.size() && std::isalpha(text[i]); ++i) name.push_back(text[i]);
    for (; i < text.size() && (std::isdigit(text[i]) || text[i] == '#'); ++i) {
      number += text[i] == '#' ? std::to_string(own_number) : std::string(1, text[i]);
    }
    result += name == "run" ? bytes_to_hex(Bytes().counting(std::stoi(number)).data(), " ")
                            : output(row_named(name), std::stoi(number), face);
  }
  return result;
}

inline std::string output(const Class_row& row, int number, Face face) {
  const std::string type = row.type, n = std::to_string(number), v = std::to_string(row.version);
  if (face == Face::dump) {
    return folded(type + " = { number = " + n + " reserve = 3 version = " + v + " " +
                  expanded(row.dump, number, face) + " }");
  }
  return folded("<" + type + "> <number>" + n + "</number> <reserve>3</reserve> <version>" + v +
                "</version> " + expanded(row.xml, number, face) + " </" + type + ">");
}

// The dump without the header's lines, which no copy shares with its source.
inline std::string fields_of(const Tmxd_obj& object) {
  std::string result;
  std::istringstream lines(dump_of(object));
  for (std::string line; std::getline(lines, line);) {
    const std::string key = folded(line).substr(0, folded(line).find(' '));
    if (key != "number" && key != "reserve" && key != "version") result += line + "\n";
  }
  return result;
}

}  // namespace mxd::test
