#include "addons/language_packs.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "tests/support/test_device.h"

namespace tidewell {
namespace {

class Packs : public testing::Test, protected TestDevice {
 protected:
  // A file that is a library with a name, with texts but no name (null), or none at all.
  void PutPack(const std::wstring& file, const wchar_t* name) {
    const std::wstring path = L"\\Tidewell\\LangRes\\" + file;
    files.Put(path, "MZ");
    memory.libraries.Put(path, name ? MemoryLibraries::Texts{{IDS_LANGUAGE_NAME, name}}
                                    : MemoryLibraries::Texts{{IDS_LANGUAGE, L"Language"}});
  }
  LanguagePacks Scan(const std::wstring& present = L"") {
    return ScanLanguagePacks(machine, L"\\Tidewell", present);
  }
};

TEST_F(Packs, NoFolderOffersNothing) {
  const LanguagePacks packs = Scan();
  EXPECT_TRUE(packs.names.empty());
  EXPECT_EQ(packs.selection, 0);
  for (const int choice : {-1, 0, 20}) EXPECT_EQ(packs.PathOf(choice), nullptr);
}

// Two packs may have one name.
TEST_F(Packs, WhatIsNoLibraryTakesNoSlotButALibraryWithoutANameDoes) {
  files.Put(L"\\Tidewell\\LangRes\\Aaa.dll", "not a library");
  files.Put(L"\\Tidewell\\LangRes\\Folder.dll\\");
  PutPack(L"Bbb.dll", nullptr);
  PutPack(L"TWEngRc.dll", L"English");
  PutPack(L"TWOldRc.dll", L"English");
  const LanguagePacks packs = Scan(L"\\Tidewell\\LangRes\\TWOldRc.dll");
  EXPECT_EQ(packs.names, (std::vector<std::wstring>{L"English", L"English"}));
  EXPECT_EQ(packs.selection, 2);
  EXPECT_EQ(packs.PathOf(0), nullptr);
  ASSERT_TRUE(packs.PathOf(1));
  EXPECT_EQ(*packs.PathOf(1), L"\\Tidewell\\LangRes\\TWEngRc.dll");
  EXPECT_EQ(Scan(L"\\Tidewell\\LangRes\\twoldrc.dll").selection, 0) << "by its exact path";
  EXPECT_EQ(memory.libraries.LoadedCount(), 0);
}

TEST_F(Packs, TheFirstTwentyAreOffered) {
  for (int i = 0; i < 25; ++i) PutPack(FormatDecimal(100 + i) + L".dll", L"Pack");
  const LanguagePacks packs = Scan(L"\\Tidewell\\LangRes\\119.dll");
  EXPECT_EQ(packs.names.size(), 20u);
  EXPECT_EQ(packs.selection, 19);
}

}  // namespace
}  // namespace tidewell
