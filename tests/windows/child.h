// This program once more, as another process that does one thing to a document.
#pragma once

#include <string>

namespace mxd::test {

enum class Task {
  none,  // this process is no child
  hold,  // says so, and keeps the file open for writing until it is released
  load,  // loads it through the library
};
enum class Child_streams { piped, none };

// What a child that loads ends with, a sum of these.
constexpr int child_loaded = 2;
constexpr int child_has_output = 4;

class Child {
 public:
  Child(Task task, const std::wstring& path, Child_streams streams);
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child();

  // What it wrote up to the end of a line; less at the end of its output.
  std::string read_line();
  // Lets it go on; its exit code.
  int finish();

 private:
  void* process_ = nullptr;
  void* to_child_ = nullptr;
  void* from_child_ = nullptr;
};

// What this process is to do, and for which file.
Task child_task();
// Does it; the exit code.
int run_as_child(Task task);

}  // namespace mxd::test
