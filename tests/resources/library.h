// A resource library opened for a test, as the program opens it.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "tests/support/utf8.h"

namespace tidewell {

struct LibraryCloser {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

inline std::wstring Widen(const std::string& utf8) {
  std::wstring text(utf8.size(), L'\0');
  text.resize(size_t(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), text.data(),
                                         int(text.size()))));
  return text;
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
    names.push_back(Utf8(found.cFileName));
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

struct NamedText {
  std::string name;
  std::wstring english;
};

// What the header promises: name and English text by number.
inline std::map<int, NamedText> HeaderTexts() {
  std::map<int, NamedText> texts;
  std::ifstream header(TEXT_IDS_HEADER);
  const std::regex pattern(R"(#define (IDS_\w+) (\d+) +// (.*))");
  std::string line;
  std::smatch match;
  while (std::getline(header, line)) {
    if (line.starts_with("#define") && !std::regex_match(line, match, pattern)) {
      ADD_FAILURE() << line;
    } else if (!match.empty()) {
      const bool added =
          texts.try_emplace(std::stoi(match[2]), match[1].str(), Widen(match[3].str())).second;
      EXPECT_TRUE(added) << "number used twice: " << line;
    }
    match = {};
  }
  return texts;
}

inline std::string BareName(const testing::TestParamInfo<std::string>& library) {
  return library.param.substr(0, library.param.find('.'));
}

}  // namespace tidewell
