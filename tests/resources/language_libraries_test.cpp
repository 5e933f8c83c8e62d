#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "resources/text/text_ids.h"
#include "tests/resources/library.h"

namespace tidewell {
namespace {

struct NamedText {
  std::string name;
  std::wstring english;
};

// What the header promises: name and English text by number.
std::map<int, NamedText> HeaderTexts() {
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

template <typename Text>
std::vector<int> NumbersOf(const std::map<int, Text>& texts) {
  std::vector<int> numbers;
  for (const auto& [id, text] : texts) numbers.push_back(id);
  return numbers;
}

std::vector<std::wstring> PlaceholdersOf(const std::wstring& text) {
  static const std::wregex pattern(L"%[^ %]*[a-zA-Z]");
  return {std::wsregex_token_iterator(text.begin(), text.end(), pattern), {}};
}

class LanguageLibraries : public testing::TestWithParam<std::string> {
 protected:
  const std::map<int, NamedText> header_ = HeaderTexts();
  const std::map<int, std::wstring> texts_ = TextsOf(OpenLibrary("LangRes/" + GetParam()));
};
INSTANTIATE_TEST_SUITE_P(Every, LanguageLibraries, testing::ValuesIn(LanguageLibraryNames()),
                         [](const auto& which) {
                           return which.param.substr(0, which.param.find('.'));
                         });

TEST_P(LanguageLibraries, HoldTheHeadersNumbersAndNoOthers) {
  ASSERT_GT(header_.size(), 100u);
  EXPECT_EQ(NumbersOf(texts_), NumbersOf(header_));
}

TEST_P(LanguageLibraries, KeepPlaceholdersAndHaveNoStrayBlanks) {
  for (const auto& [id, promised] : header_) {
    const std::wstring& text = texts_.at(id);
    EXPECT_EQ(PlaceholdersOf(text), PlaceholdersOf(promised.english)) << promised.name;
    EXPECT_NE(text.front(), L' ') << promised.name;
    EXPECT_NE(text.back(), L' ') << promised.name;
    EXPECT_EQ(text.find(L"  "), std::wstring::npos) << promised.name;
  }
}

TEST(EnglishLibrary, HoldsTheTextsThatTheHeaderQuotes) {
  const auto texts = TextsOf(OpenLibrary("LangRes/TWEngRc.dll"));
  for (const auto& [id, text] : HeaderTexts()) EXPECT_EQ(texts.at(id), text.english) << text.name;
}

TEST(EnglishLibrary, KeepsTheWordingsThatOthersRelyOn) {
  const auto texts = TextsOf(OpenLibrary("LangRes/TWEngRc.dll"));
  EXPECT_EQ(texts.at(IDS_FILE_NAME), L"File Name");
  EXPECT_EQ(texts.at(IDS_FILE_NAME_MISSING), L"File name value is missing");
  EXPECT_EQ(texts.at(IDS_FILE_NAME_ILLEGAL), L"File name include illegal characters");
  EXPECT_EQ(texts.at(IDS_FILE_NAME_ERROR), L"File Name Error");
}

// Only names and the few words that are the same in German.
TEST(GermanLibrary, LeavesNothingUntranslated) {
  const auto texts = TextsOf(OpenLibrary("LangRes/TWGerRc.dll"));
  std::vector<int> same;
  for (const auto& [id, text] : HeaderTexts()) {
    if (texts.at(id) == text.english) same.push_back(id);
  }
  EXPECT_THAT(same, testing::UnorderedElementsAre(IDS_GROUP_PIM, IDS_COLOR_AUTOMATIC,
                                                  IDS_PIM_COMPANION, IDS_PIM_POCKET_INFORMANT,
                                                  IDS_PIM_AGENDA_FUSION, IDS_PIM_AGENDA_ONE,
                                                  IDS_TABS_POSITION, IDS_TABS_STYLE_TEXT));
}

}  // namespace
}  // namespace tidewell
