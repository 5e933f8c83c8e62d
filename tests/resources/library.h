// A resource library opened for a test by what the program opens it with.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "platform/windows/windows_files.h"
#include "platform/windows/windows_libraries.h"
#include "tests/support/utf8.h"

namespace tidewell {

using Library = std::unique_ptr<ResourceLibrary>;

inline std::wstring Widen(const std::string& utf8) {
  std::wstring text(utf8.size(), L'\0');
  text.resize(size_t(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), text.data(),
                                         int(text.size()))));
  return text;
}

// `name` is relative to the install folder.
inline Library OpenLibrary(const std::string& name) {
  WindowsFiles files;
  return WindowsLibraries(files).Load(Widen(INSTALL_FOLDER "/" + name));
}

// The file names of all language libraries.
inline std::vector<std::string> LanguageLibraryNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(INSTALL_FOLDER "/LangRes")) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

// Every text of a language library by its number.
inline std::map<int, std::wstring> TextsOf(const Library& library) {
  std::map<int, std::wstring> texts;
  for (int id = 1; id < 0x10000; ++id) {
    if (const auto text = library->FindText(id)) texts.emplace(id, *text);
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
