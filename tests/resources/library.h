// A resource library opened for a test, as the program opens it.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tidewell {

struct LibraryCloser {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

inline std::wstring Widen(const std::string& utf8) {
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), nullptr, 0);
  std::wstring text(size_t(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), text.data(), size);
  return text;
}

inline std::string Narrow(const std::wstring& text) {
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0, nullptr, nullptr);
  std::string utf8(size_t(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), utf8.data(), size, nullptr,
                      nullptr);
  return utf8;
}

// `name` is relative to the install folder.
inline Library OpenLibrary(const std::string& name) {
  return Library(LoadLibraryW(Widen(INSTALL_FOLDER "/" + name).c_str()));
}

// The file names of all language libraries.
inline std::vector<std::string> LanguageLibraryNames() {
  std::vector<std::string> names;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(Widen(INSTALL_FOLDER "/LangRes/*.dll").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    names.push_back(Narrow(found.cFileName));
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return names;
}

// Every text of a language library by its number.
inline std::map<int, std::wstring> TextsOf(const Library& library) {
  std::map<int, std::wstring> texts;
  for (int id = 1; id < 0x10000; ++id) {
    wchar_t buffer[1024];
    const int length = LoadStringW(library.get(), UINT(id), buffer, 1024);
    if (length > 0) texts.emplace(id, std::wstring(buffer, size_t(length)));
  }
  return texts;
}

}  // namespace tidewell
