// A document's own properties in words.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "outline/document_facts.h"

namespace mxdinfo {

// Pairs of a label and a text, such as "author" and "A. Cartographer"; only those that are known.
std::vector<std::pair<std::string, std::string>> property_texts(const mxd::Document_facts& facts);

// "2019-03-04T17:05:06.123456Z" for microseconds since 1970 UTC.
std::string time_text(std::int64_t microseconds);

// "2019-03-04 17:05" for days since 1899-12-30; empty for dates before that or after the year 9999.
std::string date_text(double days);

}  // namespace mxdinfo
