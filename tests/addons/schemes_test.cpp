#include "addons/schemes.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr SettingKey kColors = SettingKey::kColors;
constexpr SettingKey kFonts = SettingKey::kFonts;
const std::wstring kFolder = L"\\Program Files\\Velmont\\Tidewell\\Schemes\\";
const std::wstring kTree = L"[Software\\Velmont\\Tidewell\\";

class SchemesTest : public testing::Test, protected TestDevice {
 protected:
  SchemesTest() {
    files.Put(L"\\Program Files\\Velmont\\Tidewell\\");
    PutNumbers(kColors, "GeneralFontColor=255 Unknown=7");
    Put(kFonts, L"FontFaceToUse", L"Arial");
    LoadWith({L"Work"});
  }
  std::string Trees() { return Dump(kColors) + Dump(kFonts); }
  SchemeResult Apply(const std::vector<std::byte>& bytes) {
    files.Put(kFolder + L"a.scm", bytes);
    return schemes.Apply(L"a.scm");
  }
  // What was there before the last application is there again, and in its file until then.
  void ExpectToGoBack(const std::string& trees, std::size_t at) {
    const auto kept = files.Contents(kFolder + kBeforeApplying);
    recorded.Calls().Watch([&](RegistryCall call) {
      if (call == RegistryCall::kSet) {
        EXPECT_EQ(files.Contents(kFolder + kBeforeApplying), kept);
      }
    });
    ASSERT_EQ(schemes.Apply(kBeforeApplying), SchemeResult::kApplied) << at;
    EXPECT_EQ(Trees(), trees) << at;
    recorded.Calls().Reset();
  }

  const std::wstring scheme_ =
      L"\n" + kTree + L"Colors]\n\"HighlightBgClr\"=dword:1\n\n" + kTree +
      L"Fonts]\n\"FontGnrlSize\"=dword:3\n\n[::Categories::]\n" +
      L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:4\n\"Color\"=dword:5\n";
  Schemes schemes{machine, store, catalog};
};

TEST_F(SchemesTest, HoldWhatIsSetNowSavedOrNotAndNothingElse) {
  store.colors.GeneralFontColor.Set(0x00FF00);
  store.colors.HighlightBgClr.Set(kNoColor);
  store.fonts.FontFaceToUse.Set(L"Tahoma");
  store.fonts.FontMsgsRead.color.Set(1);
  const std::string trees = Trees();
  EXPECT_EQ(schemes.Save(L"Mine"), FileStatus::kOk);
  EXPECT_EQ(Utf8(TextOfBytes(files.Contents(kFolder + L"mine.scm").value())),
            Utf8(L"\n" + kTree + L"Colors]\n\"GeneralFontColor\"=dword:65280\n" +
                 L"\"Unknown\"=dword:7\n\n" + kTree +
                 L"Fonts]\n\"FontMsgsReadlfColor\"=dword:1\n\n[::Categories::]\n" +
                 L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:0\n\"Color\"=dword:-1\n"));
  EXPECT_EQ(Trees(), trees) << "what is not saved stays out of the registry";
  recorded.Calls().FailEvery(RegistryCall::kCreate);
  EXPECT_EQ(schemes.Save(L"Unread"), FileStatus::kOther);
  EXPECT_EQ(schemes.Names(), std::vector<std::wstring>{L"Mine.scm"});
}

TEST_F(SchemesTest, ApplyAsFarAsTheyCanBeReadAndTheWayBackIsWhole) {
  Put(SettingKey::kRoot, L"OnClick", 1);
  Put(kFonts, L"Long", std::wstring(500, L'l'));
  PutBytes(std::wstring(LocationOf(kColors).path) + L"\\Sub", L"Bytes", {1, 2, 3});
  const std::string trees = Trees();
  for (std::size_t end = 0; end < scheme_.size(); end = scheme_.find(L'\n', end) + 1) {
    const SchemeResult result = Apply(BytesOf(scheme_.substr(0, end)));
    EXPECT_EQ(result, end == 0 ? SchemeResult::kRefused : SchemeResult::kApplied) << end;
    if (end == 0) {
      EXPECT_EQ(schemes.Apply(L"a.scm"), result) << "again, and nothing more is lost";
    }
    const auto isKept = [&](const wchar_t* line) { return scheme_.find(line) < end; };
    EXPECT_EQ(Stored(kColors, L"HighlightBgClr").has_value(), isKept(L"\"HighlightBgClr"));
    EXPECT_EQ(Stored(kFonts, L"FontGnrlSize").has_value(), isKept(L"\"FontGnrlSize"));
    EXPECT_EQ(Trees().find("Unknown"), std::string::npos) << "nothing of before is left";
    ExpectToGoBack(trees, end);
  }
  const std::wstring title = catalog.Filters()[0].title;
  recordedFiles.Calls().FailEvery(FileCall::kWrite);
  EXPECT_EQ(Apply(BytesOf(L"\n[Software\\Velmont\\Tidewell]\n\"OnClick\"=dword:9\n" + scheme_ +
                          L"\n[::Filters::]\n\"FilterName\"=\"x\"\n\"Index\"=dword:1\n" +
                          L"\"VisibleState\"=dword:1\n\"IncludeUncategorized\"=dword:1\n")),
            SchemeResult::kApplied)
      << "even when there is no way back";
  EXPECT_EQ(Stored(SettingKey::kRoot, L"OnClick"), 1u);
  EXPECT_EQ(Stored(kFonts, L"FontGnrlSize"), 3u);
  EXPECT_EQ(catalog.FindCategory(L"Work")->color, 5u);
  EXPECT_EQ(catalog.Filters()[0].title, title);
}

}  // namespace
}  // namespace tidewell
