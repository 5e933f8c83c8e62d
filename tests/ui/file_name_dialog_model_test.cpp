#include "ui/file_name_dialog_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/fixed_locale.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_libraries.h"
#include "platform/memory/metered_files.h"

namespace tidewell {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileNameDialogModelTest : public testing::Test {
 protected:
  FileNameDialogModelTest() {
    request.folder = L"\\My Documents";
    request.extension = L"twsb";
    files.Put(L"\\My Documents\\monday.twsb");
    files.Put(L"\\My Documents\\letter.txt");
    files.Put(L"\\My Documents\\zoo twsb\\");
    files.Put(L"\\My Documents\\Friday.TWSB");
    files.Put(L"\\My Documents\\Business\\");
    files.Put(L"\\My Documents\\rawtwsb");
    files.Put(L"\\My Documents\\Backups of twsb\\");
  }

  FileNameDialogModel Filled() {
    FileNameDialogModel model(files, locale, request);
    model.Fill();
    return model;
  }

  MemoryFiles files;
  FixedLocale locale;
  FileNameRequest request;
};

struct Listed {
  std::wstring name;
  std::uint32_t tag;
  bool operator==(const Listed&) const = default;
};

std::vector<Listed> ListedBy(const FileNameDialogModel& model) {
  std::vector<Listed> listed;
  for (const ListedEntry& entry : model.Entries()) listed.push_back({entry.name, entry.tag});
  return listed;
}

TEST_F(FileNameDialogModelTest, ListsFoldersFirstAndTagsEntriesInTheOrderFound) {
  EXPECT_THAT(
      ListedBy(Filled()),
      ElementsAre(Listed{L"Backups of twsb", 0x10004}, Listed{L"zoo twsb", 0x10001},
                  Listed{L"Friday.TWSB", 2}, Listed{L"monday.twsb", 0}, Listed{L"rawtwsb", 3}));
}

class FilesOnly : public FileNameDialogModel {
 public:
  using FileNameDialogModel::FileNameDialogModel;

 protected:
  bool Lists(bool isFolder, const std::wstring& name) const override {
    return !isFolder && name != L"rawtwsb";
  }
};

TEST_F(FileNameDialogModelTest, ACallersFilterDecidesAndOnlyAcceptedEntriesAreCounted) {
  FilesOnly model(files, locale, request);
  model.Fill();
  EXPECT_THAT(ListedBy(model), ElementsAre(Listed{L"Friday.TWSB", 1}, Listed{L"monday.twsb", 0}));
}

TEST_F(FileNameDialogModelTest, FillingAgainShowsTheFolderAsItIsNow) {
  FileNameDialogModel model = Filled();
  files.Remove(L"\\My Documents\\monday.twsb");
  model.Fill();
  EXPECT_EQ(model.Entries().size(), 4u);

  request.folder = L"\\Storage Card";
  model.Fill();
  EXPECT_THAT(model.Entries(), IsEmpty());
}

TEST_F(FileNameDialogModelTest, WithoutAnExtensionEverythingIsListedAndTheResultEndsInADot) {
  request.extension.clear();
  FileNameDialogModel model = Filled();
  EXPECT_EQ(model.Entries().size(), 7u);
  EXPECT_EQ(model.Confirm(L"notes"), NameProblem::kNone);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\notes.");
}

TEST_F(FileNameDialogModelTest, ConfirmsOrRefusesTypedNames) {
  const std::wstring longest(300, L'n');
  struct Case {
    std::wstring name;
    NameProblem problem;
    std::wstring path;
  };
  const Case cases[] = {
      {L"TW_Backup_2026_11_15", NameProblem::kNone, L"\\My Documents\\TW_Backup_2026_11_15.twsb"},
      {L"", NameProblem::kMissing, L""},
      {L"   ", NameProblem::kNone, L"\\My Documents\\   .twsb"},
      {L"a\\b", NameProblem::kNone, L"\\My Documents\\a\\b.twsb"},
      {L"monday.twsb", NameProblem::kNone, L"\\My Documents\\monday.twsb.twsb"},
      {L"a/b", NameProblem::kIllegal, L""},
      {L":", NameProblem::kIllegal, L""},
      {L"what*", NameProblem::kIllegal, L""},
      {L"?", NameProblem::kIllegal, L""},
      {L"say \"a\"", NameProblem::kIllegal, L""},
      {L"a<", NameProblem::kIllegal, L""},
      {L">a", NameProblem::kIllegal, L""},
      {L"|", NameProblem::kIllegal, L""},
      {longest, NameProblem::kNone, L"\\My Documents\\" + longest.substr(0, 256) + L".twsb"}};
  for (const Case& c : cases) {
    request.resultPath.clear();
    const std::wstring before = FileNameDialogModel::LastConfirmedPath();
    EXPECT_EQ(FileNameDialogModel(files, locale, request).Confirm(c.name), c.problem);
    EXPECT_EQ(request.resultPath, c.path);
    EXPECT_EQ(FileNameDialogModel::LastConfirmedPath(),
              c.problem == NameProblem::kNone ? c.path : before);
  }
}

TEST_F(FileNameDialogModelTest, ActivatingTakesAFileAsItStandsAndNothingElse) {
  FileNameDialogModel model = Filled();
  EXPECT_FALSE(model.Activate(std::nullopt));
  EXPECT_FALSE(model.Activate(0));
  EXPECT_FALSE(model.Activate(5));
  EXPECT_EQ(request.resultPath, L"");

  EXPECT_TRUE(model.Activate(2));
  EXPECT_EQ(request.resultPath, L"\\My Documents\\Friday.TWSB");
  EXPECT_EQ(FileNameDialogModel::LastConfirmedPath(), L"\\My Documents\\Friday.TWSB");
  EXPECT_TRUE(model.Activate(4));
  EXPECT_EQ(request.resultPath, L"\\My Documents\\rawtwsb");
}

TEST_F(FileNameDialogModelTest, AMarkedFileGivesTheNameThatConfirmsIt) {
  FileNameDialogModel model = Filled();
  EXPECT_EQ(model.NameFor(std::nullopt), std::nullopt);
  EXPECT_EQ(model.NameFor(0), std::nullopt);
  EXPECT_EQ(model.NameFor(3), L"monday");
  EXPECT_EQ(model.NameFor(4), std::nullopt);
  EXPECT_EQ(model.Confirm(*model.NameFor(3)), NameProblem::kNone);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\monday.twsb");
}

TEST_F(FileNameDialogModelTest, TheNextOpeningStartsWhereTheLastOneEnded) {
  FileNameDialogModel model = Filled();
  model.Confirm(L"Business\\year");
  EXPECT_EQ(FolderConfirmedLast(files, L"\\My Documents"), L"\\My Documents\\Business");
  model.Confirm(L"gone\\year");
  EXPECT_EQ(FolderConfirmedLast(files, L"\\My Documents"), L"\\My Documents");
}

TEST_F(FileNameDialogModelTest, TextsComeFromTheLibraryTheRequestOrTheProgram) {
  const FileNameDialogTexts builtIn(nullptr, request);
  EXPECT_EQ(builtIn.cancel, L"Cancel");
  EXPECT_EQ(builtIn.select, L"Select");
  EXPECT_EQ(builtIn.nameLabel, L"File Name");
  EXPECT_EQ(builtIn.extensionLabel, L"Extension");
  EXPECT_EQ(builtIn.nameMissing, L"File name value is missing");
  EXPECT_EQ(builtIn.nameIllegal, L"File name include illegal characters");
  EXPECT_EQ(builtIn.errorCaption, L"File Name Error");

  MemoryLibraries libraries;
  libraries.Put(L"\\german.dll", {{2000, L"Abbrechen"}, {2002, L"Dateiname"}});
  request.extensionCaption = L"Type";
  const auto german = libraries.Load(L"\\german.dll");
  const FileNameDialogTexts texts(german.get(), request);
  EXPECT_EQ(texts.cancel, L"Abbrechen");
  EXPECT_EQ(texts.select, L"Select");
  EXPECT_EQ(texts.nameLabel, L"Dateiname");
  EXPECT_EQ(texts.extensionLabel, L"Type");
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
  EXPECT_EQ(large.extensionField, (DialogPlace{}));
  EXPECT_EQ(large.folder, (DialogPlace{20, 68, 400, 40}));
  EXPECT_EQ(large.list, (DialogPlace{20, 116, 440, 400}));
}

}  // namespace
}  // namespace tidewell
