// Do the texts of every language fit where they are shown on the narrowest screen, 240 pixels?
#include <gtest/gtest.h>

#include <sstream>

#include "pages/page_list.h"
#include "tests/resources/library.h"
#include "win32/gdi.h"

namespace tidewell {
namespace {

// Texts in one kind of place, with the pixels there are for each.
struct Place {
  std::string name;
  int width = 0;
  bool isBold = false;
  std::vector<int> ids;
};

std::vector<Place> ReadPlaces() {
  std::map<std::string, int> numbers;
  for (const auto& [id, text] : HeaderTexts()) numbers.emplace(text.name, id);
  std::vector<Place> places;
  std::ifstream file(TEXT_PLACES);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] != ' ') {
      const auto comma = line.find(", ");
      places.push_back(
          {line.substr(0, comma), std::stoi(line.substr(comma + 2)), line.ends_with(" bold:"), {}});
      continue;
    }
    std::istringstream names(line);
    for (std::string name; names >> name;) places.back().ids.push_back(numbers.at(name));
  }
  return places;
}

constexpr int kTabChrome = 14;
constexpr int kEntryRoom = 186;  // beside the picture of an entry in the main list

// Measures in Tahoma, its letters 12 pixels high, as every page has it at 96 dots per inch.
class TextFit : public testing::TestWithParam<std::string> {
 protected:
  int Width(const std::wstring& text, bool isBold) {
    const WindowDc dc(nullptr);
    const Font font(
        CreateFontW(-12, 0, 0, 0, isBold ? FW_BOLD : FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
    const Selected selected(dc.Dc(), font.Get());
    wchar_t face[LF_FACESIZE] = L"";
    GetTextFaceW(dc.Dc(), LF_FACESIZE, face);
    EXPECT_STREQ(face, L"Tahoma");
    SIZE size{};
    GetTextExtentPoint32W(dc.Dc(), text.data(), int(text.size()), &size);
    return size.cx;
  }

  const std::map<int, std::wstring> texts_ = TextsOf(OpenLibrary("LangRes/" + GetParam()));
};
INSTANTIATE_TEST_SUITE_P(Every, TextFit, testing::ValuesIn(LanguageLibraryNames()), BareName);

TEST_P(TextFit, EveryTextFitsItsPlace) {
  for (const Place& place : ReadPlaces()) {
    const bool isRow = place.name == "row";
    int rowWidth = 0;
    for (const int id : place.ids) {
      const int width = Width(texts_.at(id), place.isBold);
      rowWidth += width + kTabChrome;
      EXPECT_LE(isRow ? rowWidth : width, place.width)
          << place.name << ": " << id << " " << Utf8(texts_.at(id));
    }
  }
  for (const PageEntry& page : kPages) {
    EXPECT_LE(Width(texts_.at(page.captionId), true), kEntryRoom) << page.captionId;
  }
}

}  // namespace
}  // namespace tidewell
