// What rows show of a setting, and what they store of what was left in them.
#include "pages/page_table.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

struct Group : SettingGroup {
  Group() : SettingGroup(SettingKey::kRoot) {}
  DwordSetting number{*this, L"number", 1};
  StringSetting text{*this, L"text", L""};
};

ControlState Selected(int line) {
  ControlState state;
  state.selection = line;
  return state;
}
ControlState Typed(std::wstring text) {
  ControlState state;
  state.text = std::move(text);
  return state;
}

class Rows : public testing::Test {
 protected:
  Group group;
  Row list = List(1, 2, 3, group.number, {10, 11, 12});
  Row data = DataList(1, 2, 3, group.number, Numbers(60, 70, 5));
  Row dataOrSecond = DataList(1, 2, 3, group.number, {{L"15", 15}, {L"30", 30}, {L"60", 60}}, 1, 0);
  Row names = NameList(1, 2, 3, group.text, {40, L"Business", L"Stra\u00DFe", L"\u00C4rzte"});
};

TEST_F(Rows, ListsShowTheLineThatStandsForTheValue) {
  struct Case {
    const Row& row;
    std::uint32_t stored;
    int shown;
  };
  const Case cases[] = {
      {list, 0, 0},          {list, 2, 2},          {list, 3, kNoChoice},  {list, ~0u, kNoChoice},
      {data, 60, 0},         {data, 70, 2},         {data, 62, kNoChoice}, {data, ~0u, kNoChoice},
      {dataOrSecond, 60, 2}, {dataOrSecond, 45, 1}, {dataOrSecond, 0, 1},
  };
  for (const Case& c : cases) {
    group.number.Set(c.stored);
    EXPECT_EQ(StateOf(c.row).selection, c.shown) << c.stored;
  }
}

TEST_F(Rows, ListsStoreWhatTheirKindStands) {
  struct Case {
    const Row& row;
    int chosen;
    std::uint32_t stored;
  };
  const Case cases[] = {
      {list, 0, 0},  {list, 2, 2},           {list, kNoChoice, ~0u}, {data, 1, 65},
      {data, 2, 70}, {data, kNoChoice, ~0u}, {dataOrSecond, 2, 60},  {dataOrSecond, kNoChoice, 0},
  };
  for (const Case& c : cases) {
    group.number.Set(77);
    Store(c.row, Selected(c.chosen));
    EXPECT_EQ(group.number.Value(), c.stored) << c.chosen;
  }
}

TEST_F(Rows, NamesAreFoundWithoutRegardToCaseAndTheFirstLineStoresNone) {
  const std::pair<const wchar_t*, int> shown[] = {
      {L"", 0}, {L"bUSINESS", 1}, {L"\u00E4RZTE", 3}, {L"Busines", 0}, {L"gone", 0}};
  for (const auto& [name, line] : shown) {
    group.text.Set(name);
    EXPECT_EQ(StateOf(names).selection, line);
  }
  const std::pair<int, const wchar_t*> stored[] = {
      {1, L"Business"}, {2, L"Stra\u00DFe"}, {0, L""}, {kNoChoice, L""}};
  for (const auto& [line, name] : stored) {
    Store(names, Selected(line));
    EXPECT_EQ(group.text.Value(), name);
  }
}

TEST_F(Rows, TypedNumbersFindTheirBaseThemselves) {
  const Row row = Number(1, 2, 3, group.number, Numbers(80, 600, 20));
  EXPECT_EQ(row.choices.size(), 27u);
  const std::pair<std::wstring, std::uint32_t> cases[] = {
      {L"150", 150}, {L"0x50", 80}, {L"010", 8},   {L"-1", ~0u},
      {L"", 0},      {L"tall", 0},  {L"12px", 12}, {std::wstring(256, L' ') + L"7", 0},
  };
  for (const auto& [text, number] : cases) {
    Store(row, Typed(text));
    EXPECT_EQ(group.number.Value(), number);
  }
  group.number.Set(static_cast<std::uint32_t>(-20));
  EXPECT_EQ(StateOf(row).text, L"-20");
}

TEST_F(Rows, PathsAreCutAtTheirLimit) {
  const Row row = Path(1, 2, 3, 4, 5, group.text);
  Store(row, Typed(std::wstring(261, L'x')));
  EXPECT_EQ(group.text.Value(), std::wstring(260, L'x'));
  EXPECT_EQ(StateOf(row).text, group.text.Value());
}

TEST_F(Rows, CheckBoxesStoreOneOrNone) {
  const Row row = Check(1, 2, group.number);
  for (const std::uint32_t stored : {0u, 1u, 2u, ~0u}) {
    group.number.Set(stored);
    const ControlState state = StateOf(row);
    EXPECT_EQ(state.checked, stored != 0);
    Store(row, state);
    EXPECT_EQ(group.number.Value(), stored ? 1u : 0u);
  }
}

TEST_F(Rows, ARowThatOnlySteersStoresNothing) {
  const Row row = Selector(1, 2, 3, {10, 11});
  EXPECT_EQ(StateOf(row).selection, 0);
  Store(row, Selected(1));
  EXPECT_FALSE(group.number.IsChanged() || group.text.IsChanged());
}

}  // namespace
}  // namespace tidewell
