// A registry that refuses: never a crash, a hang, half a value or a lost one. Every refusal in turn
// needs thousands of loads; the twin in memory is fast enough for that.
#include "tests/settings/store_fixture.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

class RefusingRegistryTest : public testing::Test {
 protected:
  // A device whose user has changed a few settings and hosts two plug-ins.
  static void Fill(Registry& registry) {
    const RegistryRoot user = RegistryRoot::kCurrentUser;
    const std::wstring root = L"Software\\Velmont\\Tidewell";
    SetDword(registry, user, root, L"OnClick", 5);
    SetString(registry, user, root, L"SkinPath", std::wstring(4000, L's'));
    SetDword(registry, user, root + L"\\Notes", L"NotesSearchMode", 7);
    SetString(registry, user, root + L"\\Contacts", L"ContactsSelCategory", L"Family");
    SetBinary(registry, user, root + L"\\Tasks", L"FoldState", {1, 2, 3, 4, 5, 6});
    for (const wchar_t* name : {L"\\TabSettings\\One", L"\\TabSettings\\Two"}) {
      SetDword(registry, user, root + name, L"Order", 20);
      SetString(registry, user, root + name, L"DLL", L"plug-in.dll");
    }
    SetBinary(registry, RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Color", L"SHColor",
              std::vector<unsigned char>(150, 0x10));
  }

  // Loads, changes two settings and saves, on a registry that refuses as `arrange` says. Returns
  // how many calls could have been refused.
  template <typename Arrange>
  int Run(Arrange arrange) {
    MemoryMachine machine;
    Fill(machine.registry);
    MeteredRegistry metered(machine.registry);
    arrange(metered);
    Machine door{metered, machine.files, machine.locale, machine.libraries, machine.system};
    SettingsStore store;
    std::unique_ptr<ResourceLibrary> language;
    store.Load(door, ScreenScale(), language);
    ExpectWholeValues(store);
    store.calendar.HideEmptyGroups.Set(0);
    store.contacts.ContactsCustomSearchBarSelected.Set(L"abc");
    store.Save(metered, ScreenScale());
    ExpectUntouched(machine.registry);
    return metered.Meter().FailableCount();
  }

  static void ExpectWholeValues(SettingsStore& store) {
    const auto oneOf = [](const auto& value, const auto& first, const auto& second) {
      return value == first || value == second;
    };
    EXPECT_TRUE(oneOf(store.root.OnClick.Value(), 0u, 5u));
    EXPECT_TRUE(oneOf(store.root.SkinPath.Value(), L"", std::wstring(4000, L's')));
    EXPECT_TRUE(oneOf(store.notes.NotesSearchMode.Value(), 0u, 7u));
    EXPECT_TRUE(oneOf(store.contacts.ContactsSelCategory.Value(), L"", L"Family"));
    ASSERT_EQ(store.tasks.FoldState.Bytes().size(), 6u);
    EXPECT_TRUE(oneOf(store.tasks.FoldState.Bytes().back(), std::byte(0), std::byte(6)));
    EXPECT_TRUE(oneOf(store.themeColors.color1, 0u, 0x101010u));
    for (const TabEntry& entry : store.tabs) {
      EXPECT_TRUE(oneOf(entry.dll, L"", L"plug-in.dll"));
    }
    SettingLines lines(store);
    for (DwordSetting* setting : lines.dwords) {
      const bool isFilled =
          setting == &store.root.OnClick || setting == &store.notes.NotesSearchMode;
      if (isFilled) continue;
      EXPECT_EQ(setting->Value(), setting->Default()) << Utf8(setting->Name());
    }
  }

  // Whatever is refused, a value that nobody changed stays as it was.
  static void ExpectUntouched(Registry& registry) {
    const RegistryRoot user = RegistryRoot::kCurrentUser;
    const std::wstring root = L"Software\\Velmont\\Tidewell";
    EXPECT_EQ(FindDword(registry, user, root, L"OnClick"), 5u);
    EXPECT_EQ(FindString(registry, user, root, L"SkinPath"), std::wstring(4000, L's'));
    EXPECT_EQ(FindDword(registry, user, root + L"\\Notes", L"NotesSearchMode"), 7u);
    EXPECT_EQ(FindDword(registry, user, root, L"ActiveTab"), std::nullopt);
  }
};

TEST_F(RefusingRegistryTest, AnySingleRefusalCostsNoMoreThanWhatItWasFor) {
  const int calls = Run([](MeteredRegistry&) {});
  ASSERT_GT(calls, 480);
  for (int n = 1; n <= calls && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    Run([n](MeteredRegistry& registry) {
      registry.SetFailure(kStatusMoreData);  // the answer that invites a second question
      registry.Meter().FailNth(n);
    });
  }
}

TEST_F(RefusingRegistryTest, ARegistryThatIsGoneFromSomeMomentOnIsBorne) {
  const int calls = Run([](MeteredRegistry&) {});
  for (int n = 1; n <= calls && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    Run([n](MeteredRegistry& registry) { registry.Meter().FailFrom(n); });
  }
}

}  // namespace
}  // namespace tidewell
