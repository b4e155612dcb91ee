#include "mxdinfo/cli/progress.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>

#include "mxdinfo/facts/plural.h"

namespace mxdinfo {
namespace {

constexpr auto min_interval = std::chrono::milliseconds(100);

}  // namespace

void print_stderr(std::string_view text) {
  static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr));
  static_cast<void>(std::fflush(stderr));
}

double Progress::seconds() const {
  return std::max(std::chrono::duration<double>(Clock::now() - start_).count(), 1e-3);
}

void Progress::erase() {
  if (width_ == 0) return;
  print_stderr(fmt::format("\r{:{}}\r", "", width_));
  width_ = 0;
}

void Progress::count(const Totals& totals) {
  if (!shown_ || Clock::now() - last_ < min_interval) return;
  last_ = Clock::now();
  const double rate = static_cast<double>(totals.documents) / seconds();
  const double left = static_cast<double>(total_ - totals.documents) / rate;
  const std::string line = fmt::format("{} of {} documents, {:.0f} a second, {:.0f} s left",
                                       totals.documents, total_, rate, left);
  erase();
  print_stderr(line);
  width_ = line.size();
}

void Progress::print(const std::string& lines) {
  if (lines.empty()) return;
  erase();
  print_stderr(lines);
}

void Progress::end(const Totals& totals) {
  erase();
  std::string line = "mxdinfo: " + plural(totals.documents, "document");
  if (totals.unchanged != 0) line += fmt::format(", {} of them unchanged", totals.unchanged);
  if (totals.gone != 0) line += fmt::format(", {} gone", totals.gone);
  if (totals.unreadable != 0) line += fmt::format(", {} of them unreadable", totals.unreadable);
  line += totals.unchanged == 0 ? ", " : "; read: ";
  line += plural(totals.maps, "map") + ", " + plural(totals.layers, "layer");
  if (totals.decoded_layers != totals.layers) {
    line += fmt::format(" ({} of them not decoded)", totals.layers - totals.decoded_layers);
  }
  if (totals.losses != 0) line += ", " + plural(totals.losses, "loss", "losses");
  print_stderr(fmt::format("{}; {:.2f} s, {:.0f} documents a second\n", line, seconds(),
                           static_cast<double>(totals.documents) / seconds()));
}

}  // namespace mxdinfo
