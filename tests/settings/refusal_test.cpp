// A registry that refuses: never a crash, a hang, half a value or a lost one. Every refusal in turn
// needs thousands of loads; the twin in memory is fast enough for that.
#include <algorithm>

#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

class RefusingRegistryTest : public StoreFixture {
 protected:
  // Loads, changes a setting and saves, on a registry that refuses as `arrange` says and on the
  // device of a user with settings of every kind and two plug-ins. Returns how many calls could
  // have been refused.
  template <typename Arrange>
  int Run(SettingsStore& refused, Arrange arrange) {
    registry->DeleteTree(RegistryRoot::kCurrentUser, L"Software");
    PutNumbers(SettingKey::kRoot, "OnClick=5");
    Put(SettingKey::kRoot, L"SkinPath", std::wstring(4000, L's'));
    KeyOf(SettingKey::kTasks).Get()->Set(L"FoldState", kTypeBinary, kFolded);
    for (const wchar_t* name : {L"\\One", L"\\Two"}) {
      const KeyLocation tabs = LocationOf(SettingKey::kTabSettings);
      SetString(*registry, tabs.root, std::wstring(tabs.path) + name, L"DLL", L"plug-in.dll");
    }
    metered.Meter().Reset();
    arrange(metered.Meter());
    LoadInto(refused);
    ExpectWholeValues(refused);
    refused.contacts.ContactsCustomSearchBarSelected.Set(L"abc");
    refused.Save(metered, scale);
    // Whatever is refused, a value that nobody changed stays as it was.
    EXPECT_EQ(Stored(SettingKey::kRoot, L"OnClick"), 5u);
    EXPECT_EQ(Stored(SettingKey::kRoot, L"ActiveTab"), std::nullopt);
    return metered.Meter().FailableCount();
  }

  // Every value of `store`, which met no refusal, or its default.
  void ExpectWholeValues(SettingsStore& refused) {
    const auto expectWhole = [](const auto& settings, const auto& others) {
      for (std::size_t i = 0; i < settings.size(); ++i) {
        const auto& value = settings[i]->Value();
        EXPECT_TRUE(value == others[i]->Value() || value == settings[i]->Default())
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

TEST_P(RefusingRegistryTest, ARefusalCostsNoMoreThanWhatItWasFor) {
  using Meter = CallMeter<RegistryCall>;
  const int calls = Run(store, [](Meter&) {});
  ASSERT_GT(calls, 480);
  for (int n = 1; n <= calls && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    SettingsStore once;
    metered.SetFailure(kStatusMoreData);  // the answer that invites a second question
    Run(once, [n](Meter& meter) { meter.FailNth(n); });
    SettingsStore everSince;
    metered.SetFailure(kStatusAccessDenied);
    Run(everSince, [n](Meter& meter) { meter.FailFrom(n); });
  }
  SettingsStore refused;
  Run(refused, [](Meter& meter) { meter.FailEvery(RegistryCall::kDeleteTree); });
  EXPECT_EQ(metered.Count(RegistryCall::kDeleteTree), 2) << "each plug-in's subkey once";
}

INSTANTIATE_TEST_SUITE_P(On, RefusingRegistryTest, testing::Values(RegistryKind::kMemory),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
