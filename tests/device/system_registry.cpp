#include "system_registry.h"

#include <windows.h>

#include <sstream>

#include "driven_program.h"

namespace tidewell::device {

namespace {

constexpr wchar_t kRegTool[] = L"C:\\windows\\system32\\reg.exe";
constexpr wchar_t kImportFile[] = L"C:\\device_test.reg";
constexpr char kProductKeyInFull[] = "HKEY_CURRENT_USER\\Software\\Velmont\\Tidewell";

bool RunRegTool(const std::wstring& arguments) {
  return Process(kRegTool, arguments).WaitForExit() == 0u;
}

// What the tool prints, through a pipe of its own.
std::string ReadRegTool(const std::wstring& arguments) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE from = nullptr;
  HANDLE to = nullptr;
  CreatePipe(&from, &to, &inherited, 0);
  SetHandleInformation(from, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = to;
  PROCESS_INFORMATION made{};
  std::wstring line = std::wstring(kRegTool) + L" " + arguments;
  const bool started = CreateProcessW(kRegTool, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      nullptr, &start, &made);
  CloseHandle(to);
  std::string output;
  char buffer[4096];
  DWORD read = 0;
  while (ReadFile(from, buffer, sizeof buffer, &read, nullptr) && read) output.append(buffer, read);
  CloseHandle(from);
  if (!started) return {};
  CloseHandle(made.hThread);
  CloseHandle(made.hProcess);
  return output;
}

// "    name    REG_SZ    data" with its three parts told apart.
std::string ShownValue(const std::string& line) {
  const std::size_t type = line.find("    REG_");
  const std::size_t data = line.find("    ", type + 4);
  if (type == std::string::npos || data == std::string::npos) return line;
  return line.substr(0, type) + " = " + line.substr(type + 4, data - type - 4) + " " +
         line.substr(data + 4);
}

}  // namespace

bool ImportRegistry(const std::string& text) {
  const HANDLE file =
      CreateFileW(kImportFile, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  const std::string whole = "REGEDIT4\r\n\r\n" + text;
  DWORD written = 0;
  WriteFile(file, whole.data(), static_cast<DWORD>(whole.size()), &written, nullptr);
  CloseHandle(file);
  const bool taken = RunRegTool(std::wstring(L"import ") + kImportFile);
  DeleteFileW(kImportFile);
  return taken;
}

bool AddValue(const std::wstring& subkey, const std::wstring& name, const std::wstring& type,
              const std::wstring& data) {
  return RunRegTool(std::wstring(L"add ") + kProductKey + subkey + L" /v " + name + L" /t " + type +
                    L" /d " + data + L" /f");
}

std::string QueryProductTree() {
  std::istringstream lines(ReadRegTool(std::wstring(L"query ") + kProductKey + L" /s"));
  std::string shown;
  std::string head;
  for (std::string line; std::getline(lines, line);) {
    while (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.rfind(kProductKeyInFull, 0) == 0) {
      head = "[" + line.substr(sizeof kProductKeyInFull - 1) + "]\n";
    } else if (!line.empty()) {
      shown += head + ShownValue(line) + "\n";
      head.clear();
    }
  }
  return shown;
}

void ForgetProductKeys() {
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmont");
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today\\items\\Tidewell");
}

}  // namespace tidewell::device
