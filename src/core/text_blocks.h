// Text that only grows: never moved, and handed to a file block by block.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include "storage/default_init_vector.h"

namespace mxd {

class Text_blocks {
 public:
  // Room for that many characters at the end; `keep` takes those before `end` over.
  char* room(std::size_t size) {
    if (size > left_) add_block(size);
    return end_;
  }
  void keep(const char* end) {
    const auto size = static_cast<std::size_t>(end - end_);
    blocks_.back().size += size;
    end_ += size;
    left_ -= size;
  }

  void append(std::string_view text) { keep(put(room(text.size()), text)); }

  // What follows the copy. Most texts are tags of a few characters: two copies of fixed sizes,
  // which may overlap, cost less than a call.
  static char* put(char* to, std::string_view text) {
    const std::size_t size = text.size();
    if (size > 32 || size < 4) {
      std::memcpy(to, text.data(), size);
    } else if (size > 16) {
      put_ends<16>(to, text);
    } else if (size > 8) {
      put_ends<8>(to, text);
    } else {
      put_ends<4>(to, text);
    }
    return to + size;
  }

  // Errors are the file's.
  void write(std::FILE* file) const {
    for (const Block& block : blocks_) {
      static_cast<void>(std::fwrite(block.room.data(), 1, block.size, file));
    }
  }

 private:
  struct Block {
    Default_init_vector<char> room;
    std::size_t size;
  };
  static constexpr std::size_t block_size = std::size_t{1} << 16;

  template <std::size_t part>
  static void put_ends(char* to, std::string_view text) {
    std::memcpy(to, text.data(), part);
    std::memcpy(to + text.size() - part, text.data() + text.size() - part, part);
  }

  void add_block(std::size_t size) {
    blocks_.push_back({Default_init_vector<char>(std::max(size, block_size)), 0});
    end_ = blocks_.back().room.data();
    left_ = blocks_.back().room.size();
  }

  std::vector<Block> blocks_;
  char* end_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace mxd
