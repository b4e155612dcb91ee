#include "mxdinfo/facts/document_text.h"

#include <fmt/format.h>

#include <chrono>
#include <cmath>
#include <optional>

#include "mxdinfo/facts/display_text.h"

namespace mxdinfo {
namespace {

// Replaces line breaks by spaces.
std::string in_one_line(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const bool is_break = c == '\r' || c == '\n';
    if (!is_break)
      line += c;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  while (line.ends_with(' ')) line.pop_back();
  return line;
}

}  // namespace

std::vector<std::pair<std::string, std::string>> property_texts(const mxd::Document_facts& facts) {
  std::vector<std::pair<std::string, std::string>> texts;
  const auto add = [&](const char* label, std::string text) {
    text = in_one_line(text);
    if (!text.empty()) texts.emplace_back(label, std::move(text));
  };
  if (facts.properties) {
    add("title", utf8(facts.properties->title));
    add("author", utf8(facts.properties->author));
    add("summary", utf8(facts.properties->summary));
    add("description", utf8(facts.properties->description));
    add("tags", utf8(facts.properties->tags));
    add("credits", utf8(facts.properties->credits));
    add("hyperlink base", utf8(facts.properties->hyperlink_base));
  }
  if (facts.version) add("saved by", "ArcMap " + utf8(*facts.version));
  if (facts.saved_date) add("saved on", date_text(*facts.saved_date));
  if (facts.saved_path) add("saved as", utf8(*facts.saved_path));
  return texts;
}

std::string date_text(double days) {
  namespace chrono = std::chrono;
  constexpr double days_to_year_10000 = 2958466;
  if (!(days > 0 && days < days_to_year_10000)) return {};
  constexpr int minutes_per_hour = 60;
  constexpr int minutes_per_day = 24 * minutes_per_hour;
  const auto minutes = std::llround(days * minutes_per_day);
  const chrono::sys_days first = chrono::year(1899) / 12 / 30;
  const chrono::year_month_day date = first + chrono::days(minutes / minutes_per_day);
  const auto time = minutes % minutes_per_day;
  return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}", static_cast<int>(date.year()),
                     static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                     time / minutes_per_hour, time % minutes_per_hour);
}

std::string time_text(std::int64_t microseconds) {
  namespace chrono = std::chrono;
  const chrono::sys_time<chrono::microseconds> time{chrono::microseconds(microseconds)};
  const auto day = chrono::floor<chrono::days>(time);
  const chrono::year_month_day date(day);
  const chrono::hh_mm_ss clock(time - day);
  return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}.{:06}Z", static_cast<int>(date.year()),
                     static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                     clock.hours().count(), clock.minutes().count(), clock.seconds().count(),
                     clock.subseconds().count());
}

}  // namespace mxdinfo
