// What rows show of a setting, and what they store of what was left in them.
#include "pages/page_rows.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

class Rows : public testing::Test {
 protected:
  struct Group : SettingGroup {
    Group() : SettingGroup(SettingKey::kRoot) {}
    DwordSetting number{*this, L"number", 1};
    StringSetting text{*this, L"text", L""};
  } group;
  Row check = Check(1, 2, group.number);
  Row list = List(1, 2, 3, group.number, {10, 11, 12});
  Row data = DataList(1, 2, 3, group.number, Numbers(60, 70, 5));
  Row dataOrSecond = DataList(1, 2, 3, group.number, {{L"15", 15}, {L"30", 30}}, 1, 0);
  Row number = Number(1, 2, 3, group.number, Numbers(80, 600, 20));
  Row icon = Icon(1, 2, 3, group.number, AppointmentMarkerChoices());
  Row icons = Icons(1, 2, 3, group.number, AppointmentMarkerChoices());
  Row name = NameList(1, 2, 3, group.text, {40, L"Business", L"Stra\u00DFe", L"\u00C4rzte"});
  Row path = Path(1, 2, 3, 4, 5, group.text, {L"Folder"});
};

TEST_F(Rows, ShowTheLineOfTheStoredNumberAndStoreTheNumberOfTheLine) {
  struct Case {
    const Row& row;
    std::uint32_t stored;
    int line;
    std::uint32_t storedAgain;
  };
  const Case cases[] = {
      {list, 0, 0, 0},           {list, 2, 2, 2},
      {list, 3, kNoChoice, ~0u}, {list, ~0u, -1, ~0u},
      {data, 60, 0, 60},         {data, 70, 2, 70},
      {data, 62, -1, ~0u},       {dataOrSecond, 15, 0, 15},
      {dataOrSecond, 45, 1, 30}, {dataOrSecond, ~0u, 1, 30},
  };
  for (const Case& c : cases) {
    group.number.Set(c.stored);
    const ControlState state = StateOf(c.row);
    EXPECT_EQ(state.selection, c.line) << c.stored;
    group.number.Set(77);
    Store(c.row, state);
    EXPECT_EQ(group.number.Value(), c.storedAgain) << c.stored;
  }
  for (const std::uint32_t stored : {0u, 1u, 2u, ~0u}) {
    group.number.Set(stored);
    Store(check, StateOf(check));
    EXPECT_EQ(group.number.Value(), stored ? 1u : 0u);
  }
  group.number.Set(0x403);
  ControlState codes = StateOf(icons);
  EXPECT_EQ(codes.data, 0x403u);
  codes.data = 8;
  Store(icons, codes);
  EXPECT_EQ(group.number.Value(), 0x408u) << "and a code that it does not offer";
  Store(icon, codes);
  EXPECT_EQ(group.number.Value(), 8u);
  Store(dataOrSecond, ControlState());
  EXPECT_EQ(group.number.Value(), 0u) << "its number for no line";
}

TEST_F(Rows, TakeTypedNumbersInTheirOwnBaseAndCutTexts) {
  const std::pair<std::wstring, std::uint32_t> cases[] = {
      {L"150", 150}, {L"0x50", 80}, {L"010", 8},   {L"-20", ~0u - 19},
      {L"", 0},      {L"tall", 0},  {L"12px", 12}, {std::wstring(256, L' ') + L"7", 0},
  };
  for (const auto& [text, expected] : cases) {
    Store(number, ControlState::OfText(text));
    EXPECT_EQ(group.number.Value(), expected);
  }
  group.number.Set(~0u);
  EXPECT_EQ(StateOf(number).text, L"-1");
  Store(path, ControlState::OfText(std::wstring(261, L'x')));
  EXPECT_EQ(StateOf(path).text, std::wstring(260, L'x'));
}

TEST_F(Rows, FindNamesWithoutRegardToCaseAndStoreNoneForTheFirstLine) {
  struct Case {
    const wchar_t* stored;
    int line;
    const wchar_t* storedAgain;
  };
  const Case cases[] = {{L"", 0, L""},
                        {L"bUSINESS", 1, L"Business"},
                        {L"\u00E4RZTE", 3, L"\u00C4rzte"},
                        {L"Busines", 0, L""}};
  for (const Case& c : cases) {
    group.text.Set(c.stored);
    EXPECT_EQ(StateOf(name).selection, c.line);
    ControlState left = StateOf(name);
    left.text = name.choices[static_cast<std::size_t>(c.line)].text;
    Store(name, left);
    EXPECT_EQ(group.text.Value(), c.storedAgain);
  }
}

}  // namespace
}  // namespace tidewell
