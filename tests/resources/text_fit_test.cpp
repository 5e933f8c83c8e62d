// Do the texts of every language fit where they are shown on the narrowest screen, 240 pixels?
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "tests/resources/library.h"

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

// Text widths in Tahoma, 12 pixels high, as every page has it at 96 dots per inch.
class Ruler {
 public:
  Ruler() : dc_(CreateCompatibleDC(nullptr)) {}
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;
  ~Ruler() {
    DeleteDC(dc_);
    for (const HFONT font : fonts_) DeleteObject(font);
  }

  int Width(const std::wstring& text, bool isBold) {
    SelectObject(dc_, fonts_[isBold]);
    SIZE size{};
    GetTextExtentPoint32W(dc_, text.data(), int(text.size()), &size);
    return size.cx;
  }
  std::wstring Face() {
    SelectObject(dc_, fonts_[0]);
    wchar_t face[LF_FACESIZE] = L"";
    GetTextFaceW(dc_, LF_FACESIZE, face);
    return face;
  }

 private:
  static HFONT Tahoma(int weight) {
    return CreateFontW(12, 0, 0, 0, weight, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
  }

  HDC dc_;
  HFONT fonts_[2] = {Tahoma(0), Tahoma(700)};
};

class TextFit : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override { ASSERT_EQ(ruler_.Face(), L"Tahoma"); }

  Ruler ruler_;
  const std::map<int, std::wstring> texts_ = TextsOf(OpenLibrary("LangRes/" + GetParam()));
};
INSTANTIATE_TEST_SUITE_P(Every, TextFit, testing::ValuesIn(LanguageLibraryNames()), BareName);

TEST_P(TextFit, EveryTextHasAPlaceAndFitsIt) {
  std::set<int> placed;
  for (const Place& place : ReadPlaces()) {
    const bool isRow = place.name == "row";
    int rowWidth = 0;
    for (const int id : place.ids) {
      placed.insert(id);
      const int width = ruler_.Width(texts_.at(id), place.isBold);
      rowWidth += width + kTabChrome;
      EXPECT_LE(isRow ? rowWidth : width, place.width)
          << place.name << ": " << id << " " << Narrow(texts_.at(id));
    }
  }
  for (const auto& [id, text] : texts_) {
    EXPECT_EQ(placed.count(id), 1u) << id << " " << Narrow(text) << " is shown nowhere";
  }
}

}  // namespace
}  // namespace tidewell
