// A registry that refuses: never a crash, a hang, half a value or a lost one. Every refusal in turn
// needs thousands of loads; the twin in memory is fast enough for that.
#include <algorithm>
#include <map>

#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

class RefusingRegistryTest : public StoreFixture {
 protected:
  using Meter = CallMeter<RegistryCall>;

  // The device of a user with settings of every kind and two plug-ins, none in need of repair.
  void SetUp() override {
    PutNumbers(SettingKey::kRoot, "OnClick=5 dHeightLimit=400");
    Put(SettingKey::kRoot, L"SkinPath", std::wstring(4000, L's'));
    PutNumbers(SettingKey::kCalendar,
               "CalTitlesOrder0=1 CalTitlesOrder1=0 TimelinesStart=2 TimelinesLength=9 "
               "PinnedMonthlyClr=1");
    KeyOf(SettingKey::kTasks).Get()->Set(L"FoldState", kTypeBinary, kFolded);
    PutNumbers(SettingKey::kTabSettings, "CalendarTabOrder=3 TasksTabOrder=1 NotesTabEnabled=0");
    for (const auto& [name, order] : {std::pair(L"\\One", 2u), {L"\\Two", 6u}}) {
      const std::wstring path = LocationOf(SettingKey::kTabSettings).path + std::wstring(name);
      SetString(registry, RegistryRoot::kCurrentUser, path, L"DLL", std::wstring(300, L'd'));
      SetString(registry, RegistryRoot::kCurrentUser, path, L"InstallPath", L"\\Plug-ins");
      SetDword(registry, RegistryRoot::kCurrentUser, path, L"Order", order);
      SetDword(registry, RegistryRoot::kCurrentUser, path, L"Enabled", 1);
    }
    Load();
    Save();
  }

  std::string Tree() { return DumpTree(registry, RegistryRoot::kCurrentUser, L"Software"); }
  // By "[key]name".
  std::map<std::string, std::string> Values() {
    std::map<std::string, std::string> values;
    std::istringstream lines(Tree());
    std::string key;
    for (std::string line; std::getline(lines, line);) {
      const std::size_t end = line.find(" = ");
      if (end == std::string::npos) {
        key = line;
      } else {
        values[key + line.substr(0, end)] = line.substr(end + 3);
      }
    }
    return values;
  }

  // Loads and saves on a registry that refuses as `arrange` says; returns how many calls could
  // have been refused.
  template <typename Arrange>
  int Run(SettingsStore& refused, Arrange arrange) {
    metered.Meter().Reset();
    arrange(metered.Meter());
    LoadInto(refused);
    ExpectWholeValues(refused);
    refused.Save(metered, scale);
    return metered.Meter().FailableCount();
  }

  // Every value of `store`, which met no refusal, or its default.
  void ExpectWholeValues(SettingsStore& refused) {
    const auto expectWhole = [](const auto& settings, const auto& others) {
      for (std::size_t i = 0; i < settings.size(); ++i) {
        const auto& value = settings[i]->Value();
        // The length that stands for a refused one ends at midnight.
        EXPECT_TRUE(value == others[i]->Value() || value == settings[i]->Default() ||
                    settings[i]->Name() == L"TimelinesLength")
            << Utf8(settings[i]->Name());
      }
    };
    expectWhole(SettingLines(refused).dwords, SettingLines(store).dwords);
    expectWhole(SettingLines(refused).strings, SettingLines(store).strings);
    const auto folded = refused.tasks.FoldState.Bytes();
    EXPECT_TRUE(std::ranges::equal(folded, kFolded) ||
                std::ranges::count(folded, std::byte(0)) == 6);
  }

  inline static const std::string kTabs = "[Software\\Velmont\\Tidewell\\TabSettings";
  const std::vector<std::byte> kFolded = std::vector<std::byte>(6, std::byte(0x5A));
};

TEST_F(RefusingRegistryTest, ARefusalCostsNoMoreThanWhatItWasFor) {
  const std::string tree = Tree();
  const int calls = Run(store, [](Meter&) {});
  EXPECT_EQ(metered.CountWrites(), 0) << "nothing was changed";
  ASSERT_GT(calls, 480);
  for (int n = 1; n <= calls && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    SettingsStore once;
    metered.SetFailure(kStatusMoreData);  // the answer that invites a second question
    Run(once, [n](Meter& meter) { meter.FailNth(n); });
    SettingsStore everSince;
    metered.SetFailure(kStatusAccessDenied);
    Run(everSince, [n](Meter& meter) { meter.FailFrom(n); });
    EXPECT_EQ(Tree(), tree);
  }
}

TEST_F(RefusingRegistryTest, ASaveThatIsCutOffLeavesEachValueTheOldOrTheNewOne) {
  const std::map<std::string, std::string> before = Values();
  std::map<std::string, std::string> after = before;
  after.erase(kTabs + "\\One]DLL");
  after.erase(kTabs + "\\One]Enabled");
  after[kTabs + "\\One]Order"] = "8";
  std::erase_if(after, [](const auto& value) { return value.first.starts_with(kTabs + "\\Two"); });
  after.insert({{kTabs + "\\New]Order", "5"}, {kTabs + "\\New]Type", "1"}});
  int calls = 1;
  for (int n = 1; n <= calls + 1 && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    registry.DeleteTree(RegistryRoot::kCurrentUser, L"Software");
    SetUp();
    Load();
    for (TabEntry& entry : store.tabs) {
      if (entry.caption == L"Two") entry = {entry.type, 5, 0, L"New", L"", L"", L""};
      if (entry.caption == L"One") entry = {entry.type, 8, 0, L"One", L"", L"\\Plug-ins", L""};
    }
    metered.Meter().Reset();
    metered.Meter().FailFrom(n);
    store.Save(metered, scale);
    calls = metered.Meter().FailableCount();
    const std::map<std::string, std::string> left = Values();
    for (const auto& [name, value] : left) {
      const auto isIn = [&](const auto& values) {
        return values.contains(name) && values.at(name) == value;
      };
      EXPECT_TRUE(isIn(before) || isIn(after)) << name << " = " << value;
    }
    for (const auto& [name, value] : before) {
      EXPECT_TRUE(left.contains(name) || !after.contains(name)) << name;
    }
    Save();
    EXPECT_EQ(Values(), after) << "what was refused is made good";
  }
  ASSERT_GT(calls, 25);
}

}  // namespace
}  // namespace tidewell
