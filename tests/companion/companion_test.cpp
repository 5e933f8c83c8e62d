// What the companion makes of backups.
#include <gtest/gtest.h>

#include <set>

#include "companion/backup_check.h"
#include "companion/backup_edits.h"
#include "companion/reports.h"
#include "platform/text.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

BackupDocument DocumentOf(const std::wstring& text) {
  return BackupDocument(BytesOf(text));
}

TEST(Meanings, GiveEverySettingALabelAndEveryChoiceAText) {
  for (const Tongue tongue : {Tongue::kEnglish, Tongue::kGerman}) {
    MeaningDevice device({std::nullopt, std::nullopt, tongue});
    std::set<const Setting*> told;
    for (const Meaning& meaning : device.Meanings()) {
      EXPECT_FALSE(meaning.label.empty()) << Utf8(meaning.name);
      EXPECT_NE(meaning.page >= 0, meaning.reason.has_value()) << Utf8(meaning.name);
      EXPECT_NE(device.PageTitle(meaning.page), L"");
      EXPECT_EQ(meaning.page >= 0, !meaning.tab.empty()) << Utf8(meaning.name);
      for (const MeaningChoice& choice : meaning.choices) {
        EXPECT_FALSE(choice.text.empty()) << Utf8(meaning.name) << " " << choice.number;
      }
      for (const Setting* setting : meaning.settings) EXPECT_TRUE(told.insert(setting).second);
    }
    for (const StoredLine& line : LinesOf(device.Store())) {
      for (const Setting* setting : line.members) EXPECT_TRUE(told.contains(setting));
    }
  }
}

TEST(Backups, TellADefaultOnlyWhereItIsKnown) {
  const BackupDocument document =
      DocumentOf(L"\n[Software\\Velmont\\Tidewell]\n\"dHeightLimit\"=dword:160\n");
  const auto words = [&](const DeviceFacts& facts, const wchar_t* name) {
    BackupSettings backup(document, facts);
    std::string trouble;
    const auto found = FindNamed(backup, name, trouble);
    return Utf8(backup.DefaultInWords(*found.at(0).meaning)) +
           (backup.IsChanged(*found[0].meaning) ? " changed" : "");
  };
  const DeviceFacts qvga{ScreenOfName("qvga"), L"de_DE", Tongue::kEnglish};
  EXPECT_EQ(words({}, L"dHeightLimit"), "depends on the screen changed");
  EXPECT_EQ(words(qvga, L"dHeightLimit"), "160");
  EXPECT_EQ(words({}, L"MonthlyStartDay"), "depends on the locale");
  EXPECT_EQ(words(qvga, L"MonthlyStartDay"), "Monday");
}

// Each line with where and why an import would not bring it back; those without one it does.
TEST(Check, SaysWhatAnImportWouldNotBringBack) {
  struct Case {
    const wchar_t* text;
    const char* found;  // line, column and the beginning of the reason
  };
  const Case cases[] = {
      {L"\"a\"=dword:1\n", ""},
      {L"\"a\"=\"\"\n", "3:7 no string without"},
      {L"\"ab\"=\"\"\n", ""},
      {L"\"a\"=dword: 007\r\n", ""},
      {L"\"a\"=dword:12x\n", "3:13 read as \"a\"=dword:12"},
      {L"\"a\"=dword:9999999999\n", "3:11 read as \"a\"=dword:2147483647"},
      {L"\"a%%b\"=dword:1\n", "3:4 read as \"a%b\"=dword:1"},
      {L"\"ab\"=\"x\"\r\n", "3:10 no string without"},
      {L"\"ab\"=\"not_the_same\"\n", "3:1 this text deletes"},
      {L"hello\n", "3:1 not read"},
      {L"\n[Software\\Velmont\\Tidewell\\Tasks]\r\n", "4:34 no header because"},
      {L"\"ab\"=dword:1\n\"AB\"=dword:2\n", "3:1 overruled by line 4"},
      {L"\"ab\"=dword:1\n\n[Software\\Velmont\\Tidewell]\n", "3:1 deleted by a later line"},
      {L"\n[\\Software]\n", "4:1 no key can have that name"},
      {L"\n[::Categories::]\n\"Category\"=\"x\"\n", "5:1 of a record that the end"},
      {L"\n[::Filters::]\n\"FilterName\"=\"x\"\n\"Index\"=dword:40\n\"VisibleState\"=dword:1\n"
       L"\"IncludeUncategorized\"=dword:0\n",
       "5:1 no filter has that index"},
  };
  for (const Case& c : cases) {
    const std::wstring head = L"\n[Software\\Velmont\\Tidewell]\n";
    const BackupDocument document = DocumentOf(head + c.text);
    BackupSettings backup(document, {});
    std::string first;
    for (const Finding& finding : CheckBackup(backup)) {
      if (!finding.isLoss || !first.empty()) continue;
      first =
          std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " + finding.text;
    }
    EXPECT_EQ(first.substr(0, std::string(c.found).size()), c.found) << Utf8(c.text);
    EXPECT_EQ(first.empty(), std::string(c.found).empty()) << Utf8(c.text) << first;
  }
}

TEST(Edits, RefuseWhatASettingCannotBe) {
  struct Case {
    const wchar_t* assignment;
    bool isTaken;
  };
  const Case cases[] = {
      {L"Calendar/dNumOfDays=14", true},
      {L"dNumOfDays=121", false},
      {L"Days shown=7", true},
      {L"DPadEnabled=2", false},
      {L"DPadEnabled=ON", true},
      {L"SeperatorLineClr=#12", false},
      {L"SeperatorLineClr=#12abEF", true},
      {L"FontGeneral=700", false},
      {L"FontGeneral=default", true},
      {L"Calendar/FoldState=1", false},
      {L"SkinPath=\n", false},
      {L"Nothing=1", false},
      {L"=1", false},
      {L"Beim Tippen=Ausw\u00E4hlen", true},
      {L"Action key=1", false},
      {L"NotesScannedFileTypes=Notes (pwi), word documents (doc, docx)", true},
      {L"NotesScannedFileTypes=Notes (pwi), ", false},
      {L"NotesScannedFileTypes=None", true},
      {L"Rechte Symbole=1", false},
      {L"NotesActiveSearchBar=8", false},
      {L"DPadCompleteAction=99999999999", false},
  };
  for (const Case& c : cases) {
    BackupDocument document = DocumentOf(L"\n[Software\\Velmont\\Tidewell]\n");
    const BackupSettings settings(document, {});
    EXPECT_EQ(SetByName(document, settings, {c.assignment}).empty(), c.isTaken)
        << Utf8(c.assignment);
  }
}

// What the settings make of both is the same.
TEST(Differences, AreToldOfWhatIsStored) {
  const wchar_t* const lines[] = {L"dNumOfDays\"=dword:500", L"dNumOfDays\"=dword:600",
                                  L"dNumOfDays\"=\"long\"", L"other\"=dword:1"};
  const char* const words[] = {"7 (500)", "7 (600)", "7 (long)", "7 (absent)"};
  for (std::size_t i = 0; i < 3; ++i) {
    const std::wstring head = L"\n[Software\\Velmont\\Tidewell\\Calendar]\n\"";
    const BackupDocument before = DocumentOf(head + lines[i] + L"\n");
    const BackupDocument after = DocumentOf(head + lines[i + 1] + L"\n");
    BackupSettings left(before, {});
    BackupSettings right(after, {});
    const std::vector<Record> told = CompareBackups(left, right);
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(Utf8(told[0].fields[1].text), words[i]);
    EXPECT_EQ(Utf8(told[0].fields[2].text), words[i + 1]);
  }
}

TEST(Listings, AlignTextsOfAnyScript) {
  const auto line = [](const wchar_t* label) {
    return Record{L"Page", L"", {{"label", label}, {"text", L"x"}}};
  };
  EXPECT_EQ(Render({line(L"four"), line(L"\u4F1A\u8B70"), line(L"A\u0308r\u202Ee")},
                   ListingStyle::kAligned),
            "Page\n  four  x\n  \u4F1A\u8B70  x\n  A\u0308r\uFFFDe  x\n");
}

TEST(Schemes, ComeOutOfABackupAndGoIntoAnother) {
  const std::wstring root = L"\n[Software\\Velmont\\Tidewell";
  const std::wstring category = L"\n[::Categories::]\n\"Category\"=\"x\"\n\"FiltersFlag\"=dword:";
  const std::wstring wanted = L"]\n\"OnClick\"=dword:1\n" + root +
                              L"\\Colors]\n\"ClrStatusFree\"=dword:255\n\"ours\"=\"kept\"\n" +
                              root + L"\\Fonts]\n" + category + L"3\n\"Color\"=dword:7\n";
  const BackupDocument from = DocumentOf(root + wanted);
  BackupDocument into =
      DocumentOf(root + L"]\n\"OnClick\"=dword:1\n" + root +
                 L"\\Colors]\n\"ClrStatusBusy\"=dword:1\n\"ours\"=\"\"\n" + root +
                 L"\\Fonts]\n\"FontGnrlSize\"=dword:9\n" + category + L"0\n\"Color\"=dword:-1\n");
  std::vector<std::byte> scheme;
  EXPECT_EQ(SchemeOf(from, scheme), "");
  EXPECT_EQ(ApplyScheme(into, BackupDocument(scheme)), "");
  const BackupDocument edited(into.Edited());
  BackupSettings left(from, {});
  BackupSettings right(edited, {});
  EXPECT_TRUE(CompareBackups(left, right).empty());
}

}  // namespace
}  // namespace tidewell
