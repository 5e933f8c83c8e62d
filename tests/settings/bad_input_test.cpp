// A registry that holds nonsense, and one that refuses: never a crash, a hang or half a value.
#include <array>

#include "tests/settings/store_fixture.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

class BadInputTest : public StoreFixture {
 protected:
  // Puts the same data under every name of the catalogue.
  void PutEverywhere(std::uint32_t type, std::span<const std::byte> data) {
    for (SettingGroup* group : store.Groups()) {
      const FlushedKey key = KeyOf(group->Key());
      for (Setting* setting : SettingLines(*group).all) key.Get()->Set(setting->Name(), type, data);
    }
  }
};

// What the load itself may make of a value.
bool IsRepaired(const std::wstring& name) {
  return name == L"dNumOfDays" || name == L"TimelinesLength" || name == L"ActiveTab" ||
         name.starts_with(L"CalTitlesOrder");
}

TEST_P(BadInputTest, EveryValueIsReadWholeOrNotAtAll) {
  for (const std::uint32_t type : {0u, kTypeString, kTypeBinary, kTypeDword, 0xFFFFFFFFu}) {
    for (const std::size_t size : {0, 1, 3, 4, 5, 16, 511, 513, 8002}) {
      const std::vector<std::byte> data(size, std::byte('A'));
      PutEverywhere(type, data);
      Load();
      SettingLines lines(store);
      for (DwordSetting* setting : lines.dwords) {
        if (IsRepaired(setting->Name())) continue;
        EXPECT_EQ(setting->Value(), size == 4 ? 0x41414141u : setting->Default())
            << size << " bytes, type " << type << ": " << Utf8(setting->Name());
      }
      for (StringSetting* setting : lines.strings) {
        EXPECT_EQ(setting->Value(), TextOfBytes(data)) << Utf8(setting->Name());
      }
      for (FlagArraySetting* setting : lines.flags) {
        const bool fits = type == kTypeBinary && size == setting->Bytes().size();
        EXPECT_EQ(setting->Bytes()[0], fits ? std::byte('A') : std::byte(0));
      }
    }
  }
}

TEST_P(BadInputTest, NamesInAnyLetterCaseAreOurs) {
  const auto upper = [](std::wstring name) {
    for (wchar_t& unit : name) unit = unit >= L'a' && unit <= L'z' ? unit - 32 : unit;
    return name;
  };
  Put(SettingKey::kCalendar, upper(L"HideAlldayEventIcon"), 44);
  Put(SettingKey::kFonts, upper(L"FontSEFilter2lfHeight"), 45);
  SetDword(*registry, RegistryRoot::kCurrentUser, L"SOFTWARE\\VELMONT\\TIDEWELL\\notes",
           L"nOTESbREAKlINEsTYLE", 46);
  Load();
  EXPECT_EQ(store.calendar.HideAlldayEventIcon.Value(), 44u);
  EXPECT_EQ(store.fonts.FontSEFilter2.height.Value(), 45u);
  EXPECT_EQ(store.notes.NotesBreakLineStyle.Value(), 46u);
  store.calendar.HideAlldayEventIcon.Set(0);
  Save();
  EXPECT_EQ(Stored(SettingKey::kCalendar, L"HideAlldayEventIcon"), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(On, BadInputTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

// Every refusal in turn needs thousands of loads; the twin in memory is fast enough for that.
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

// "More data" is the answer that invites a second question.
constexpr std::array kRefusals = {kStatusAccessDenied, kStatusMoreData};

TEST_F(RefusingRegistryTest, AnySingleRefusalCostsNoMoreThanWhatItWasFor) {
  const int calls = Run([](MeteredRegistry&) {});
  ASSERT_GT(calls, 480);
  for (const RegistryStatus status : kRefusals) {
    for (int n = 1; n <= calls && !HasFailure(); ++n) {
      SCOPED_TRACE(n);
      Run([n, status](MeteredRegistry& registry) {
        registry.SetFailure(status);
        registry.Meter().FailNth(n);
      });
    }
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
