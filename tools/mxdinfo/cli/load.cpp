#include "mxdinfo/cli/load.h"

#include <algorithm>
#include <array>

#include "core/load.h"
#include "mxdinfo/cli/platform.h"
#include "mxdinfo/facts/display_text.h"
#include "storage/compound_file.h"
#include "storage/file_stream.h"
#include "storage/memory_stream.h"
#include "storage/unicode.h"

namespace mxdinfo {
namespace {

// Compound files with sectors of 512 bytes cannot be larger.
constexpr std::size_t max_document_size = std::size_t{1} << 31;

class Error_collector final : public mxd::Load_observer {
 public:
  explicit Error_collector(std::vector<Decode_error>& errors) : errors_(errors) {}
  void read_failed(const mxd::Read_error& error) override {
    errors_.push_back({error.number, error.type_name, error.position});
  }

 private:
  std::vector<Decode_error>& errors_;
};

bool read_standard_input(mxd::Tmxd_stream_m& bytes) {
  std::FILE* input = binary_standard_input();
  std::array<char, 1 << 16> piece;
  std::size_t size = 0;
  while (const std::size_t got = std::fread(piece.data(), 1, piece.size(), input)) {
    if (size + got > max_document_size || !bytes.set_size(size + got)) return false;
    std::copy_n(piece.data(), got, bytes.bytes().begin() + static_cast<std::ptrdiff_t>(size));
    size += got;
  }
  return std::ferror(input) == 0 && bytes.seek(0);
}

// Counts what is read of another stream.
class Counting_stream final : public mxd::Tmxd_stream {
 public:
  explicit Counting_stream(mxd::Tmxd_stream& stream) : stream_(stream) {}

  bool set_size(std::uint64_t new_size) override { return stream_.set_size(new_size); }
  std::uint64_t get_size() override { return stream_.get_size(); }
  bool seek(std::uint64_t position) override { return stream_.seek(position); }
  std::uint64_t tell() override { return stream_.tell(); }
  bool read(void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    const std::uint64_t before = stream_.tell();
    const bool result = stream_.read(buffer, element_size, count);
    bytes_read_ += stream_.tell() - before;
    return result;
  }
  bool write(const void* buffer, std::uint64_t element_size, std::uint64_t count) override {
    return stream_.write(buffer, element_size, count);
  }

  std::uint64_t bytes_read() const { return bytes_read_; }

 private:
  mxd::Tmxd_stream& stream_;
  std::uint64_t bytes_read_ = 0;
};

bool load_maps(mxd::Tmxd_stream& file, const mxd::Wide_string& path, Report& report) {
  if (!mxd::read_named_stream(file, mxd::from_ascii("Maps"), report.maps)) return false;
  Error_collector errors(report.errors);
  mxd::Load load(errors, report.maps.get_size());
  return report.content.load_maps(report.maps, path, load);
}

void load_stream(mxd::Tmxd_stream& file, const mxd::Wide_string& path, Report& report) {
  report.size = file.get_size();
  Counting_stream stream(file);
  if (!load_maps(stream, path, report)) {
    report.failure = not_a_document;
    return;
  }
  report.bytes_read = std::min(stream.bytes_read(), report.size);
  mxd::Tmxd_stream_m version;
  mxd::Tmxd_stream_m metadata;
  // A missing stream is empty.
  static_cast<void>(mxd::read_named_stream(file, mxd::from_ascii("Version"), version));
  static_cast<void>(mxd::read_named_stream(file, mxd::from_ascii("Metadata"), metadata));
  report.outline =
      mxd::read_outline(report.content, {report.maps.bytes(), version.bytes(), metadata.bytes()});
}

}  // namespace

void load(const std::string& path, Report& report) {
  const mxd::Wide_string wide_path = mxd::path_from_bytes(path);
  report.name = utf8(wide_path);
  if (report.name != path) report.name_bytes = path;
  if (path == "-") {
    mxd::Tmxd_stream_m bytes;
    if (read_standard_input(bytes)) {
      load_stream(bytes, wide_path, report);
    } else {
      report.failure = "cannot be read";
    }
    return;
  }
  // Before the content: if the file changes meanwhile, its time shows that.
  const auto status = file_status(path);
  mxd::Tmxd_stream_f file;
  if (file.open(wide_path, mxd::from_ascii("rb"))) {
    if (status) report.modified = status->modified;
    load_stream(file, wide_path, report);
  } else {
    report.failure = open_failure(path);
  }
}

}  // namespace mxdinfo
