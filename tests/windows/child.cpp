#include "windows/child.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstdio>
#include <stdexcept>

#include "vqk_file_mxd.h"

namespace mxd::test {
namespace {

constexpr wchar_t task_variable[] = L"VQK_CHILD_TASK";
constexpr wchar_t path_variable[] = L"VQK_CHILD_PATH";

std::wstring variable(const wchar_t* name) {
  std::wstring value(4096, L'\0');
  value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
  return value;
}

// The two ends of a pipe, of which the child gets one.
struct Pipe {
  HANDLE read = nullptr;
  HANDLE write = nullptr;

  explicit Pipe(HANDLE Pipe::*kept) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    if (CreatePipe(&read, &write, &inherited, 0) == 0) throw std::runtime_error("no pipe");
    SetHandleInformation(this->*kept, HANDLE_FLAG_INHERIT, 0);
  }
};

HANDLE start(STARTUPINFOW& startup, DWORD flags) {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  PROCESS_INFORMATION process;
  const BOOL inherits = (startup.dwFlags & STARTF_USESTDHANDLES) != 0;
  if (CreateProcessW(program, nullptr, nullptr, nullptr, inherits, flags, nullptr, nullptr,
                     &startup, &process) == 0) {
    throw std::runtime_error("no child");
  }
  CloseHandle(process.hThread);
  return process.hProcess;
}

int hold(const std::wstring& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  std::puts(file == INVALID_HANDLE_VALUE ? "not held" : "held");
  std::fflush(stdout);
  std::getchar();
  CloseHandle(file);
  return 0;
}

int load(const std::wstring& path) {
  vq_mxd_mxd* document = vq_mxd_mxd_create();
  int result = vq_mxd_mxd_load(document, path.c_str()) == 1 ? child_loaded : 0;
  vq_mxd_mxd_destroy(document);
  if (GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) != FILE_TYPE_UNKNOWN) result += child_has_output;
  return result;
}

}  // namespace

Child::Child(Task task, const std::wstring& path, Child_streams streams) {
  SetEnvironmentVariableW(task_variable, task == Task::hold ? L"hold" : L"load");
  SetEnvironmentVariableW(path_variable, path.c_str());
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  if (streams == Child_streams::none) {
    process_ = start(startup, DETACHED_PROCESS);
  } else {
    const Pipe input(&Pipe::write);
    const Pipe output(&Pipe::read);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input.read;
    startup.hStdOutput = startup.hStdError = output.write;
    process_ = start(startup, 0);
    CloseHandle(input.read);
    CloseHandle(output.write);
    to_child_ = input.write;
    from_child_ = output.read;
  }
  SetEnvironmentVariableW(task_variable, nullptr);
}

Child::~Child() {
  finish();
  if (from_child_) CloseHandle(from_child_);
  CloseHandle(process_);
}

std::string Child::read_line() {
  std::string line;
  char next = 0;
  DWORD size = 0;
  while (next != '\n' && ReadFile(from_child_, &next, 1, &size, nullptr) != 0 && size == 1) {
    line += next;
  }
  return line;
}

int Child::finish() {
  if (to_child_) CloseHandle(to_child_);
  to_child_ = nullptr;
  WaitForSingleObject(process_, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process_, &code);
  return static_cast<int>(code);
}

Task child_task() {
  const std::wstring task = variable(task_variable);
  if (task.empty()) return Task::none;
  return task == L"hold" ? Task::hold : Task::load;
}

int run_as_child(Task task) {
  const std::wstring path = variable(path_variable);
  return task == Task::hold ? hold(path) : load(path);
}

}  // namespace mxd::test
