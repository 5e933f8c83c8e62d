// The theme's colours and the other calendar programs: what is read beside the settings.
#include "settings/theme_colors.h"

#include <numeric>

#include "settings/calendar_programs.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/registry_support.h"

namespace tidewell {
namespace {

constexpr std::uint32_t kDefault = 0x123456;

class DeviceProbeTest : public StoreFixture {
 protected:
  void PutColor(const std::wstring& name, const std::vector<unsigned char>& bytes) {
    SetBinary(*registry, RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Color", name, bytes);
  }
  // A table whose bytes count up from 0.
  void PutTable(std::size_t size) {
    std::vector<unsigned char> table(size);
    std::iota(table.begin(), table.end(), static_cast<unsigned char>(0));
    PutColor(L"SHColor", table);
  }
  std::uint32_t Find(std::uint32_t index) {
    return ThemeColorLookup(*registry).Find(index, kDefault);
  }
};

TEST_P(DeviceProbeTest, AColorComesFromItsOwnValueElseFromTheTableElseFromTheDefault) {
  EXPECT_EQ(Find(34), kDefault) << "no key";
  PutTable(140);
  EXPECT_EQ(Find(34), kDefault) << "the table ends with the entry";
  PutTable(141);
  EXPECT_EQ(Find(34), 0x8A8988u) << "bytes 136 to 138";
  EXPECT_EQ(Find(35), kDefault);
  EXPECT_EQ(Find(0xFFFFFFFF), kDefault);
  PutColor(L"34", {10, 20, 30, 0});
  EXPECT_EQ(Find(34), 0x1E140Au);
  PutColor(L"34", {10, 20, 30});
  EXPECT_EQ(Find(34), 0x1E140Au) << "three bytes are a colour";
  PutColor(L"34", {10, 20});
  EXPECT_EQ(Find(34), 0x8A8988u) << "two are not";
  PutColor(L"34", {10, 20, 30, 40, 50});
  EXPECT_EQ(Find(34), 0x8A8988u) << "nor are five";
}

TEST_P(DeviceProbeTest, TheLookupOpensItsKeyOnceAndReadsTheTableOnce) {
  PutTable(150);
  ReadThemeColors(metered, {5, 1});
  EXPECT_EQ(metered.Count(RegistryCall::kOpen), 1);
  EXPECT_EQ(metered.Count(RegistryCall::kQuery), 6 + 2) << "six names, the table's size, the table";
}

TEST_P(DeviceProbeTest, TheHighlightPairIsReadOnNewerSystemsOnly) {
  for (const wchar_t* name : {L"4", L"6", L"8", L"9", L"34", L"35"}) {
    PutColor(name, {1, 2, 3, 0});
  }
  struct Case {
    SystemVersion version;
    bool isRead;
  };
  for (const Case& c : std::vector<Case>{{{3, 0}, false},
                                         {{3, 20}, false},
                                         {{4, 20}, false},
                                         {{4, 21}, true},
                                         {{4, 0}, true},
                                         {{5, 1}, true},
                                         {{5, 20}, true}}) {
    const ThemeColors colors = ReadThemeColors(*registry, c.version);
    EXPECT_EQ(colors.highlight, c.isRead ? 0x030201u : 0x9C4D2Cu) << c.version.major;
    EXPECT_EQ(colors.highlightText, c.isRead ? 0x030201u : 0xFFFFFFu) << c.version.minor;
    for (const std::uint32_t color : {colors.color1, colors.color2, colors.color3, colors.color4}) {
      EXPECT_EQ(color, 0x030201u);
    }
  }
}

TEST_P(DeviceProbeTest, WithoutAThemeTheColorsAreTheirDefaults) {
  const ThemeColors colors = ReadThemeColors(*registry, {5, 2});
  EXPECT_EQ(colors.color1, 0x000000u);
  EXPECT_EQ(colors.color2, 0xEF8E73u);
  EXPECT_EQ(colors.color3, 0x9C4D2Cu);
  EXPECT_EQ(colors.color4, 0xFFFFFFu);
  EXPECT_EQ(colors.highlight, 0x9C4D2Cu);
  EXPECT_EQ(colors.highlightText, 0xFFFFFFu);
}

TEST_P(DeviceProbeTest, ACalendarProgramIsThereWhenItsValueExists) {
  struct Case {
    CalendarProgram program;
    RegistryRoot root;
    const wchar_t* path;
    const wchar_t* value;
  };
  const std::vector<Case> cases = {
      {CalendarProgram::kVelmontCalendar, RegistryRoot::kCurrentUser, L"SOFTWARE\\Velmont Calendar",
       L"ExecutablePath"},
      {CalendarProgram::kPocketInformant, RegistryRoot::kCurrentUser,
       L"Software\\WebIS\\PocketInformant", L"version"},
      {CalendarProgram::kAgendaFusion, RegistryRoot::kLocalMachine,
       L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"VerMajor"},
      {CalendarProgram::kAgendaOne, RegistryRoot::kCurrentUser,
       L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath"},
  };
  for (const Case& c : cases) {
    EXPECT_FALSE(IsInstalled(metered, c.program)) << "no key";
    const FlushedKey key(registry->Create(c.root, c.path));
    EXPECT_FALSE(IsInstalled(metered, c.program)) << "no value";
    key.Get()->Set(c.value, 99, {});
    EXPECT_TRUE(IsInstalled(metered, c.program)) << "an empty value of any type";
  }
  EXPECT_EQ(metered.Count(RegistryCall::kCreate), 0) << "a probe leaves no trace";
}

INSTANTIATE_TEST_SUITE_P(On, DeviceProbeTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
