// A registry that holds nonsense: every value is read whole or not at all.
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

}  // namespace
}  // namespace tidewell
