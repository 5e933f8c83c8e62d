// The theme's colours and the other calendar programs: what is read beside the settings.
#include "settings/theme_colors.h"

#include <numeric>

#include "settings/calendar_programs.h"
#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

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
  std::vector<std::uint32_t> Colors(SystemVersion version) {
    const ThemeColors colors = ReadThemeColors(metered, version);
    return {colors.color1, colors.color2,    colors.color3,
            colors.color4, colors.highlight, colors.highlightText};
  }
};

TEST_P(DeviceProbeTest, AColorComesFromItsOwnValueElseFromTheTableElseFromTheDefault) {
  constexpr std::uint32_t kDefault = 0x123456;
  const auto find = [&](std::uint32_t index) {
    return ThemeColorLookup(*registry).Find(index, kDefault);
  };
  EXPECT_EQ(find(34), kDefault) << "no key";
  PutTable(140);
  EXPECT_EQ(find(34), kDefault) << "the table ends with the entry";
  PutTable(141);
  EXPECT_EQ(find(34), 0x8A8988u) << "bytes 136 to 138";
  EXPECT_EQ(find(35), kDefault);
  EXPECT_EQ(find(0xFFFFFFFF), kDefault);
  const std::vector<unsigned char> own = {10, 20, 30, 40, 50};
  for (const int size : {2, 3, 4, 5}) {
    PutColor(L"34", {own.begin(), own.begin() + size});
    EXPECT_EQ(find(34), size == 3 || size == 4 ? 0x1E140Au : 0x8A8988u) << size << " bytes";
  }
}

TEST_P(DeviceProbeTest, TheHighlightPairIsReadOnNewerSystemsOnly) {
  const std::vector<std::uint32_t> defaults = {0x000000, 0xEF8E73, 0x9C4D2C,
                                               0xFFFFFF, 0x9C4D2C, 0xFFFFFF};
  EXPECT_EQ(Colors({5, 2}), defaults) << "no theme";
  PutTable(150);
  metered.Meter().Reset();
  const std::vector<std::uint32_t> all = {0x121110, 0x1A1918, 0x222120,
                                          0x262524, 0x8A8988, 0x8E8D8C};
  EXPECT_EQ(Colors({5, 1}), all);
  EXPECT_EQ(metered.Count(RegistryCall::kOpen), 1);
  EXPECT_EQ(metered.Count(RegistryCall::kQuery), 6 + 2) << "six names, the table's size, the table";

  std::vector<std::uint32_t> older(all.begin(), all.begin() + 4);
  older.insert(older.end(), defaults.begin() + 4, defaults.end());
  for (const SystemVersion version : {SystemVersion{3, 0}, {3, 20}, {4, 20}}) {
    EXPECT_EQ(Colors(version), older) << version.major << "." << version.minor;
  }
  for (const SystemVersion version : {SystemVersion{4, 0}, {4, 21}, {5, 20}}) {
    EXPECT_EQ(Colors(version), all) << version.major << "." << version.minor;
  }
}

TEST_P(DeviceProbeTest, ACalendarProgramIsThereWhenItsValueExists) {
  struct Case {
    CalendarProgram program;
    RegistryRoot root;
    const wchar_t *path, *value;
  };
  using enum CalendarProgram;
  using enum RegistryRoot;
  for (const Case& c :
       {Case{kVelmontCalendar, kCurrentUser, L"SOFTWARE\\Velmont Calendar", L"ExecutablePath"},
        {kPocketInformant, kCurrentUser, L"Software\\WebIS\\PocketInformant", L"version"},
        {kAgendaFusion, kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion",
         L"VerMajor"},
        {kAgendaOne, kCurrentUser, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath"}}) {
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
