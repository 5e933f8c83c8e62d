// A registry that refuses: never a crash, a hang, half a value or a lost one. Every refusal in turn
// needs thousands of loads; the fake in memory is fast enough for that.
#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "settings/read_ahead.h"
#include "settings/registry_values.h"
#include "tests/support/setting_lines.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

// Whether every line of `left` is the line that `before` or `after` has there, and none is missing.
bool IsOldOrNew(const std::string& before, const std::string& after, const std::string& left) {
  std::istringstream olds(before);
  std::istringstream news(after);
  std::istringstream lines(left);
  std::string old;
  std::string current;
  for (std::string line; std::getline(lines, line);) {
    if (!std::getline(olds, old) || !std::getline(news, current)) return false;
    if (line != old && line != current) return false;
  }
  return !std::getline(olds, old) && !std::getline(news, current);
}

class RefusingRegistryTest : public testing::Test, protected TestDevice {
 protected:
  using Calls = CallRecorder<RegistryCall>;

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
      Put(path, L"DLL", std::wstring(300, L'd'));
      Put(path, L"InstallPath", L"\\Plug-ins");
      Put(path, L"Order", order);
      Put(path, L"Enabled", 1);
    }
    Load();
    Save();
  }

  std::string Tree() { return DumpTree(registry, RegistryRoot::kCurrentUser, L"Software"); }

  // Loads and saves on a registry that refuses as `arrange` says; returns how many calls could
  // have been refused.
  template <typename Arrange>
  int Run(SettingsStore& refused, Arrange arrange) {
    recorded.Calls().Reset();
    arrange(recorded.Calls());
    refused.Load(machine, scale, language);
    ExpectWholeValues(refused);
    refused.Save(recorded, scale);
    return recorded.Calls().FailableCount();
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

  const std::vector<std::byte> kFolded = std::vector<std::byte>(6, std::byte(0x5A));
};

TEST_F(RefusingRegistryTest, ARefusalCostsNoMoreThanWhatItWasFor) {
  const std::string tree = Tree();
  for (const bool isAskedValueByValue : {false, true}) {
    const auto arrange = [&](Calls& made) {
      if (isAskedValueByValue) made.FailEvery(RegistryCall::kCountValues);
    };
    const int calls = Run(store, arrange);
    EXPECT_EQ(recorded.CountWrites(), 0) << "nothing was changed";
    ASSERT_GT(calls, isAskedValueByValue ? 480 : 100);
    for (int n = 1; n <= calls && !HasFailure(); ++n) {
      SCOPED_TRACE(n);
      SettingsStore once;
      recorded.SetFailure(kStatusMoreData);  // the answer that invites a second question
      Run(once, [&](Calls& made) { arrange(made), made.FailNth(n); });
      SettingsStore everSince;
      recorded.SetFailure(kStatusAccessDenied);
      Run(everSince, [&](Calls& made) { arrange(made), made.FailFrom(n); });
      EXPECT_EQ(Tree(), tree);
    }
  }
}

TEST(ReadAhead, AValueThatComesOrGoesMeanwhileHidesNoOther) {
  for (const bool comes : {true, false}) {
    MemoryRegistry sorted(MemoryRegistry::Order::kSorted);
    RecordedRegistry read(sorted);
    const auto key = read.Create(RegistryRoot::kCurrentUser, L"Read");
    for (const wchar_t* name : {L"B", L"c", L"D"}) WriteDword(key.get(), name, 7);
    const auto other = sorted.Open(RegistryRoot::kCurrentUser, L"Read");
    read.Calls().Watch([&](RegistryCall call) {
      if (call != RegistryCall::kEnumValue || read.Count(call) != 2) return;
      comes ? WriteDword(other.get(), L"A", 7) : static_cast<void>(other->DeleteValue(L"B"));
    });
    ReadAhead values(key.get(), 10);
    EXPECT_EQ(ReadDword(&values, L"C", 0), 7u) << comes;
    EXPECT_EQ(ReadDword(&values, L"D", 0), 7u) << comes;
  }
}

TEST_F(RefusingRegistryTest, ASaveThatIsCutOffLeavesEachValueTheOldOrTheNewOne) {
  const std::string before = Tree();
  std::string after;
  int calls = 0;
  for (int n = 0; n <= calls && !HasFailure(); ++n) {
    Delete(L"Software");
    SetUp();
    Load();
    for (TabEntry& entry : store.tabs) {
      if (entry.type == TabType::kHosted)
        entry = {entry.type, 8, 2, entry.caption, L"d", L"p", L""};
    }
    recorded.Calls().Reset();
    if (n > 0) recorded.Calls().FailFrom(n);
    store.Save(recorded, scale);
    if (n == 0) {
      calls = recorded.Calls().FailableCount();
      after = Tree();
    }
    EXPECT_TRUE(IsOldOrNew(before, after, Tree())) << n << Tree();
    Save();
    EXPECT_EQ(Tree(), after) << "what was refused is made good";
  }
  ASSERT_GT(calls, 25);
}

}  // namespace
}  // namespace tidewell
