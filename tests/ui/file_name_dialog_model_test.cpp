#include "ui/file_name_dialog_model.h"

#include <gtest/gtest.h>

#include "platform/memory/fixed_locale.h"
#include "platform/memory/memory_files.h"

namespace tidewell {
namespace {

class FileNameDialogModelTest : public testing::Test {
 protected:
  FileNameDialogModelTest() {
    request.folder = L"\\My Documents";
    request.extension = L"twsb";
    for (const wchar_t* name : {L"monday.twsb", L"letter.txt", L"zoo twsb\\", L"Friday.TWSB",
                                L"Business\\", L"rawtwsb", L"Backups of twsb\\"}) {
      files.Put(L"\\My Documents\\" + std::wstring(name));
    }
    model.Fill();
  }

  MemoryFiles files;
  FixedLocale locale;
  FileNameRequest request;
  FileNameDialogModel model{files, locale, request};
};

TEST_F(FileNameDialogModelTest, ListsFoldersFirstAndTagsAcceptedEntriesInTheOrderFound) {
  std::vector<std::pair<std::wstring, std::uint32_t>> listed;
  for (const ListedEntry& entry : model.Entries()) listed.emplace_back(entry.name, entry.tag);
  EXPECT_EQ(listed, (decltype(listed){{L"Backups of twsb", 0x10004},
                                      {L"zoo twsb", 0x10001},
                                      {L"Friday.TWSB", 2},
                                      {L"monday.twsb", 0},
                                      {L"rawtwsb", 3}}));
  request.extension.clear();
  model.Fill();
  EXPECT_EQ(model.Entries().size(), 7u);
  request.folder = L"\\Storage Card";
  model.Fill();
  EXPECT_TRUE(model.Entries().empty());
}

TEST_F(FileNameDialogModelTest, ConfirmsOrRefusesTypedNames) {
  const std::wstring longest(300, L'n');
  const std::pair<std::wstring, std::wstring> accepted[] = {
      {L"TW_Backup_2026_11_15", L"TW_Backup_2026_11_15.twsb"},
      {L"   ", L"   .twsb"},
      {L"a\\b", L"a\\b.twsb"},
      {L"monday.twsb", L"monday.twsb.twsb"},
      {longest, longest.substr(0, 256) + L".twsb"},
  };
  for (const auto& [name, path] : accepted) {
    EXPECT_EQ(model.Confirm(name), NameProblem::kNone);
    EXPECT_EQ(request.resultPath, L"\\My Documents\\" + path);
    EXPECT_EQ(FileNameDialogModel::LastConfirmedPath(), request.resultPath);
  }
  request.resultPath.clear();
  EXPECT_EQ(model.Confirm(L""), NameProblem::kMissing);
  for (const wchar_t* name : {L"a/b", L":", L"what*", L"?", L"say \"a\"", L"a<", L">a", L"|"}) {
    EXPECT_EQ(model.Confirm(name), NameProblem::kIllegal);
  }
  EXPECT_EQ(request.resultPath, L"");
  request.extension.clear();
  model.Confirm(L"notes");
  EXPECT_EQ(request.resultPath, L"\\My Documents\\notes.");
}

TEST_F(FileNameDialogModelTest, AMarkedFileIsTakenAsItStandsOrGivesTheNameThatConfirmsIt) {
  for (const auto& nothing : {std::optional<std::size_t>(), {0u}, {5u}}) {
    EXPECT_FALSE(model.Activate(nothing));
    EXPECT_EQ(model.NameFor(nothing), std::nullopt);
  }
  EXPECT_TRUE(model.Activate(4));
  EXPECT_EQ(request.resultPath, L"\\My Documents\\rawtwsb");
  EXPECT_EQ(model.NameFor(4), std::nullopt);
  EXPECT_EQ(model.NameFor(3), L"monday");
}

TEST_F(FileNameDialogModelTest, TheNextOpeningStartsWhereTheLastOneEnded) {
  model.Confirm(L"Business\\year");
  EXPECT_EQ(FolderConfirmedLast(files, L"\\My Documents"), L"\\My Documents\\Business");
  model.Confirm(L"gone\\year");
  EXPECT_EQ(FolderConfirmedLast(files, L"\\My Documents"), L"\\My Documents");
}

TEST(FileNameLayoutTest, StacksTheRowsAndGivesTheRestToTheList) {
  const FileNameLayout small = LayOutFileNameDialog(240, 268, true, ScreenScale(96, 96, false));
  EXPECT_EQ(small.nameLabel, (DialogPlace{10, 13, 50, 20}));
  EXPECT_EQ(small.nameField, (DialogPlace{60, 10, 170, 20}));
  EXPECT_EQ(small.extensionLabel, (DialogPlace{10, 37, 50, 20}));
  EXPECT_EQ(small.extensionField, (DialogPlace{60, 34, 170, 20}));
  EXPECT_EQ(small.folder, (DialogPlace{10, 58, 200, 20}));
  EXPECT_EQ(small.list, (DialogPlace{10, 82, 220, 176}));
  EXPECT_EQ(small.columnWidth, 220);
  const FileNameLayout large = LayOutFileNameDialog(480, 536, false, ScreenScale(192, 192, false));
  EXPECT_EQ(large.nameField, (DialogPlace{120, 20, 340, 40}));
  EXPECT_EQ(large.list, (DialogPlace{20, 116, 440, 400}));
}

}  // namespace
}  // namespace tidewell
