// A registry that refuses: never a crash, a hang, half a value or a lost one. Every refusal in turn
// needs thousands of loads; the twin in memory is fast enough for that.
#include <algorithm>

#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

class RefusingRegistryTest : public StoreFixture {
 protected:
  // A device whose user has changed a few settings and hosts two plug-ins.
  void Fill() {
    PutNumbers(SettingKey::kRoot, "OnClick=5");
    Put(SettingKey::kRoot, L"SkinPath", std::wstring(4000, L's'));
    PutNumbers(SettingKey::kNotes, "NotesSearchMode=7");
    KeyOf(SettingKey::kTasks).Get()->Set(L"FoldState", kTypeBinary, kFolded);
    for (const std::wstring name : {L"One", L"Two"}) {
      const std::wstring path = L"Software\\Velmont\\Tidewell\\TabSettings\\" + name;
      SetString(*registry, RegistryRoot::kCurrentUser, path, L"DLL", L"plug-in.dll");
    }
  }

  // Loads, changes two settings and saves, on a registry that refuses as `arrange` says. Returns
  // how many calls could have been refused.
  template <typename Arrange>
  int Run(Arrange arrange) {
    registry->DeleteTree(RegistryRoot::kCurrentUser, L"Software");
    Fill();
    metered.Meter().Reset();
    arrange(metered.Meter());
    SettingsStore refused;
    LoadInto(refused);
    ExpectWholeValues(refused);
    refused.calendar.HideEmptyGroups.Set(0);
    refused.contacts.ContactsCustomSearchBarSelected.Set(L"abc");
    refused.Save(metered, scale);
    // Whatever is refused, a value that nobody changed stays as it was.
    EXPECT_EQ(Stored(SettingKey::kRoot, L"OnClick"), 5u);
    EXPECT_EQ(Stored(SettingKey::kNotes, L"NotesSearchMode"), 7u);
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
    for (const TabEntry& entry : refused.tabs) {
      EXPECT_TRUE(entry.dll.empty() || entry.dll == L"plug-in.dll");
    }
  }

  const std::vector<std::byte> kFolded = std::vector<std::byte>(6, std::byte(0x5A));
};

TEST_P(RefusingRegistryTest, ARefusalCostsNoMoreThanWhatItWasFor) {
  using Meter = CallMeter<RegistryCall>;
  Fill();
  Load();
  const int calls = Run([](Meter&) {});
  ASSERT_GT(calls, 480);
  for (int n = 1; n <= calls && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    metered.SetFailure(kStatusMoreData);  // the answer that invites a second question
    Run([n](Meter& meter) { meter.FailNth(n); });
    metered.SetFailure(kStatusAccessDenied);
    Run([n](Meter& meter) { meter.FailFrom(n); });
  }
  Run([](Meter& meter) { meter.FailEvery(RegistryCall::kDeleteTree); });
  EXPECT_EQ(metered.Count(RegistryCall::kDeleteTree), 2) << "each plug-in's subkey once";
}

INSTANTIATE_TEST_SUITE_P(On, RefusingRegistryTest, testing::Values(RegistryKind::kMemory),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
