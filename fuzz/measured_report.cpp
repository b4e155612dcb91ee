#include "measured_report.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <utility>

#include "mxdinfo/output/bounded_text.h"
#include "storage/unicode.h"
#include "support/outline_checks.h"

namespace mxd::fuzz {
namespace {

using namespace mxdinfo;

class Error_collector final : public Load_observer {
 public:
  explicit Error_collector(std::vector<Decode_error>& errors) : errors_(errors) {}
  void read_failed(const Read_error& error) override {
    errors_.push_back({error.number, error.type_name, error.position});
  }

 private:
  std::vector<Decode_error>& errors_;
};

Report_form form(const std::string& arguments) {
  std::istringstream words(arguments + " plan.mxd");
  std::vector<std::string> argv(std::istream_iterator<std::string>(words), {});
  std::vector<const char*> pointers = {"mxdinfo"};
  for (const std::string& argument : argv) pointers.push_back(argument.c_str());
  auto options =
      std::get<Options>(parse_options(static_cast<int>(pointers.size()), pointers.data()));
  options.single = true;
  auto writer = make_writer(options);
  return {arguments, std::move(options), std::move(writer)};
}

// Valid UTF-8 without characters that terminals act on. ESC is one of the colors'.
bool is_harmless(std::string_view text, bool in_color) {
  while (!text.empty()) {
    const Code_point c = first_code_point(text);
    const bool control = c.value < 0x20 || (c.value >= 0x7F && c.value < 0xA0);
    const bool allowed = c.value == '\n' || (in_color && c.value == 0x1B);
    const bool direction = (c.value >= 0x2028 && c.value <= 0x202E) || c.value == 0x61C ||
                           (c.value >= 0x2066 && c.value <= 0x2069);
    if (!c.valid || (control && !allowed) || direction) return false;
    text.remove_prefix(c.length);
  }
  return true;
}

// Every start tag has its end tag, in order.
bool tags_match(std::string_view html) {
  std::vector<std::string_view> open;
  for (std::size_t at = html.find('<'); at != html.npos; at = html.find('<', at + 1)) {
    const std::size_t end = html.find('>', at);
    if (end == html.npos) return false;
    const std::string_view tag = html.substr(at + 1, end - at - 1);
    if (tag.ends_with('/')) continue;
    if (!tag.starts_with('/')) {
      open.push_back(tag.substr(0, tag.find(' ')));
    } else if (open.empty() || open.back() != tag.substr(1)) {
      return false;
    } else {
      open.pop_back();
    }
  }
  return open.empty();
}

// Every row has as many cells as the header.
bool is_table(std::string_view header, std::string_view rows) {
  const auto columns = std::count(header.begin(), header.end(), ',');
  bool quoted = false;
  std::ptrdiff_t separators = 0;
  for (const char c : rows) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == ',') ++separators;
    if (c == '\n' && std::exchange(separators, 0) != columns) return false;
  }
  return !quoted && separators == 0;
}

bool is_well_formed(const Report_form& form, const std::string& text) {
  switch (form.options.format) {
    case Format::json:
      return nlohmann::json::accept(text);
    case Format::ndjson:
      return text.find('\n') == text.size() - 1 && nlohmann::json::accept(text);
    case Format::csv:
      return is_table(form.writer->begin(), text);
    case Format::html:
      return tags_match(text);
    default:
      return text.empty() || text.ends_with('\n');
  }
}

// A JSON value is written as a whole, so one large value may be all that is cut.
bool is_cut_without_need(const Report_form& form, const Written_document& output) {
  constexpr std::size_t min_cut_size = 100'000;
  const bool is_json = form.options.format == Format::json || form.options.format == Format::ndjson;
  return !output.is_complete && !is_json && output.text.size() < min_cut_size;
}

}  // namespace

const std::vector<Report_form>& report_forms() {
  static const std::vector<Report_form> forms = [] {
    std::vector<Report_form> list;
    for (const char* arguments :
         {"-f text", "-v --color always", "--layers", "--sources", "--crs", "--symbols", "--losses",
          "--find-source s", "-f csv", "-f csv --find-source s", "-f csv --losses",
          "-f json --losses", "-f ndjson --losses", "-f json", "-f ndjson", "-f html"}) {
      list.push_back(form(arguments));
    }
    return list;
  }();
  return forms;
}

void load_report(Report& report, std::span<const std::uint8_t> maps) {
  report.name = "plan.mxd";
  report.size = report.bytes_read = maps.size();
  Error_collector errors(report.errors);
  test::load_maps(report.content, maps, errors);
  report.outline = read_outline(report.content, {maps, maps, maps});
}

std::string output_fault(const Report_form& form, const Report& report,
                         const Written_document& output) {
  const std::string_view fault = output.text.size() > max_output_size(report) ? "is too long"
                                 : !is_harmless(output.text, form.options.color)
                                     ? "has control characters"
                                 : !is_well_formed(form, output.text) ? "is not well formed"
                                 : is_cut_without_need(form, output)  ? "was cut without need"
                                                                      : "";
  return fault.empty() ? "" : form.arguments + " " + std::string(fault);
}

}  // namespace mxd::fuzz
