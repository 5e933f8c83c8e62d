// The registry as the system's own reg tool fills and shows it.
#pragma once

#include <windows.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "driven_program.h"

namespace tidewell::device {

inline constexpr wchar_t kProductKey[] = L"HKCU\\Software\\Velmont\\Tidewell";

inline constexpr wchar_t kRegTool[] = L"C:\\windows\\system32\\reg.exe";
inline constexpr wchar_t kImportFile[] = L"C:\\device_test.reg";
inline constexpr wchar_t kPrinted[] = L"C:\\device_test.printed";
inline constexpr char kProductKeyInFull[] = "HKEY_CURRENT_USER\\Software\\Velmont\\Tidewell";

// What a tool prints stays in a file. Returns its exit code.
inline std::optional<DWORD> RunPrinting(const std::wstring& tool, const std::wstring& arguments) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE printed =
      CreateFileW(kPrinted, GENERIC_WRITE, 0, &inherited, CREATE_ALWAYS, 0, nullptr);
  const std::optional<DWORD> code = Process(tool, arguments, printed).WaitForExit();
  CloseHandle(printed);
  return code;
}

inline bool RunRegTool(const std::wstring& arguments) {
  return RunPrinting(kRegTool, arguments) == 0u;
}

// "    name    REG_SZ    data" with its three parts told apart.
inline std::string ShownValue(const std::string& line) {
  const std::size_t type = line.find("    REG_");
  const std::size_t data = line.find("    ", type + 4);
  if (type == std::string::npos || data == std::string::npos) return line;
  return line.substr(0, type) + " = " + line.substr(type + 4, data - type - 4) + " " +
         line.substr(data + 4);
}

// A file's bytes; empty for none.
inline std::string ReadFileBytes(const wchar_t* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteFileBytes(const wchar_t* path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// Runs `reg import` on a file of that text, which needs no head line. False when it refuses.
inline bool ImportRegistry(const std::string& text) {
  WriteFileBytes(kImportFile, "REGEDIT4\r\n\r\n" + text);
  const bool taken = RunRegTool(std::wstring(L"import ") + kImportFile);
  DeleteFileW(kImportFile);
  return taken;
}

// `reg add` of one value below the product's key; `subkey` is empty or "\Calendar".
inline bool AddValue(const std::wstring& subkey, const std::wstring& name, const std::wstring& type,
                     const std::wstring& data) {
  return RunRegTool(std::wstring(L"add ") + kProductKey + subkey + L" /v " + name + L" /t " + type +
                    L" /d " + data + L" /f");
}

// What `reg query KEY /s` prints, one value a line ("    dNumOfDays = REG_DWORD 0x7") below its
// key's name ("[\Calendar]", "[]" for the product's key itself). Keys without values are left out.
// Empty when there is no such key.
inline std::string QueryProductTree() {
  RunRegTool(std::wstring(L"query ") + kProductKey + L" /s");
  std::istringstream lines(ReadFileBytes(kPrinted));
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

// Takes the product's keys away as if it had never run, and those of programs it works with.
inline void ForgetProductKeys() {
  for (const wchar_t* key :
       {L"Software\\Velmont", L"Software\\Velmont Calendar", L"Software\\Velmont Weather"}) {
    RegDeleteTreeW(HKEY_CURRENT_USER, key);
  }
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\today\\items\\Tidewell");
}

}  // namespace tidewell::device
