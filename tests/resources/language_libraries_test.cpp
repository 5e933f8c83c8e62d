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

class LanguageLibraries : public testing::Test {
 protected:
  const std::map<int, NamedText> header_ = HeaderTexts();
  const std::map<int, std::wstring> english_ = TextsOf(OpenLibrary("LangRes/TWEngRc.dll"));
  const std::map<int, std::wstring> german_ = TextsOf(OpenLibrary("LangRes/TWGerRc.dll"));
};

TEST_F(LanguageLibraries, HoldTheHeadersNumbersAndNoOthers) {
  ASSERT_GT(header_.size(), 100u);
  EXPECT_EQ(NumbersOf(english_), NumbersOf(header_));
  EXPECT_EQ(NumbersOf(german_), NumbersOf(header_));
}

TEST_F(LanguageLibraries, TheHeaderQuotesTheEnglishTexts) {
  for (const auto& [id, text] : header_) {
    EXPECT_EQ(english_.at(id), text.english) << text.name;
  }
}

TEST_F(LanguageLibraries, AgreeInPlaceholdersAndHaveNoStrayBlanks) {
  for (const auto& [id, text] : header_) {
    EXPECT_EQ(PlaceholdersOf(german_.at(id)), PlaceholdersOf(english_.at(id))) << text.name;
    for (const std::wstring& found : {english_.at(id), german_.at(id)}) {
      EXPECT_NE(found.front(), L' ') << text.name;
      EXPECT_NE(found.back(), L' ') << text.name;
      EXPECT_EQ(found.find(L"  "), std::wstring::npos) << text.name;
    }
  }
}

// Names and the few words that are the same in German.
TEST_F(LanguageLibraries, NothingIsLeftUntranslated) {
  std::vector<int> same;
  for (const auto& [id, text] : english_) {
    if (german_.at(id) == text) same.push_back(id);
  }
  EXPECT_THAT(same, testing::UnorderedElementsAre(IDS_GROUP_PIM, IDS_COLOR_AUTOMATIC,
                                                  IDS_PIM_COMPANION, IDS_PIM_POCKET_INFORMANT,
                                                  IDS_PIM_AGENDA_FUSION, IDS_PIM_AGENDA_ONE,
                                                  IDS_TABS_POSITION, IDS_TABS_STYLE_TEXT));
}

TEST_F(LanguageLibraries, KeepTheWordingsThatOthersRelyOn) {
  EXPECT_EQ(english_.at(IDS_LANGUAGE_NAME), L"English");
  EXPECT_EQ(german_.at(IDS_LANGUAGE_NAME), L"Deutsch");
  EXPECT_EQ(english_.at(IDS_FILE_NAME), L"File Name");
  EXPECT_EQ(english_.at(IDS_FILE_NAME_MISSING), L"File name value is missing");
  EXPECT_EQ(english_.at(IDS_FILE_NAME_ILLEGAL), L"File name include illegal characters");
  EXPECT_EQ(english_.at(IDS_FILE_NAME_ERROR), L"File Name Error");
}

}  // namespace
}  // namespace tidewell
