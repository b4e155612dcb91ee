// A valid record of every class in src/symbology.
#pragma once

#include <algorithm>
#include <memory>
#include <regex>

#include "support/object_builder.h"
#include "symbology/symbol_classes.h"

namespace mxd::test {

struct Class_row {
  std::string_view type;
  Class_id class_id;
  int version;
  // The symbol trailer's first word is 13 in a valid record.
  Bytes (*fields)(int number, int mark);
  std::unique_ptr<Tmxd_obj> (*make)();
  void (*expect_prefixes_fail)(const Bytes& record, std::size_t optional);
};

template <class T>
Class_row class_row(int version, Bytes (*fields)(int number, int mark)) {
  return {T::type,
          T::clsid,
          version,
          fields,
          [] { return std::unique_ptr<Tmxd_obj>(std::make_unique<T>()); },
          expect_prefixes_fail<T>};
}

const std::vector<Class_row>& class_table();

// The row of a class by its name without "Tmxd_".
inline const Class_row& row_named(std::string_view name) {
  const auto& rows = class_table();
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const Class_row& row) { return row.type.substr(4) == name; });
  return found == rows.end() ? throw std::string(name) : *found;
}

inline Bytes record(const Class_row& row, int number, int mark = 13) {
  return Bytes().object(row.class_id, number, row.version, row.fields(number, mark));
}
inline Bytes record(std::string_view name, int number, int mark = 13) {
  return record(row_named(name), number, mark);
}

// The same object of that number, written as a reference.
inline Bytes reference(std::string_view name, int number) {
  return Bytes().reference(row_named(name).class_id, number);
}

// The dump without the header's lines, which no copy shares with its source.
inline std::string fields_of(const Tmxd_obj& object) {
  static const std::regex header(" *(number|reserve|version) = .*\n");
  return std::regex_replace(dump_of(object), header, "");
}

}  // namespace mxd::test
