#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "resources/text/text_ids.h"
#include "tests/resources/library.h"

namespace tidewell {
namespace {

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
                         BareName);

TEST_P(LanguageLibraries, HoldTheHeadersNumbersKeepPlaceholdersAndHaveNoStrayBlanks) {
  ASSERT_GT(header_.size(), 100u);
  EXPECT_EQ(texts_.size(), header_.size()) << "a text without a name";
  for (const auto& [id, promised] : header_) {
    ASSERT_TRUE(texts_.contains(id)) << promised.name << " is missing";
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

// Only names and the few words that are the same in German.
TEST(GermanLibrary, LeavesNothingUntranslated) {
  const auto texts = TextsOf(OpenLibrary("LangRes/TWGerRc.dll"));
  std::vector<int> same;
  for (const auto& [id, text] : HeaderTexts()) {
    if (texts.at(id) == text.english) same.push_back(id);
  }
  EXPECT_THAT(same, testing::UnorderedElementsAre(
                        IDS_GROUP_PIM, IDS_GROUP_TABS, IDS_COLOR_AUTOMATIC, IDS_PIM_COMPANION,
                        IDS_PIM_POCKET_INFORMANT, IDS_PIM_AGENDA_FUSION, IDS_PIM_AGENDA_ONE,
                        IDS_TABS_POSITION, IDS_TABS_STYLE_TEXT, IDS_PLUGIN_LABEL, IDS_OK,
                        IDS_FONT_OK, IDS_FILTER));
}

}  // namespace
}  // namespace tidewell
