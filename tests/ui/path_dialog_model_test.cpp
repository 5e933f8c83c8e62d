#include "ui/path_dialog_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/fixed_locale.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/metered_files.h"
#include "platform/text.h"

namespace tidewell {
namespace {

using testing::ElementsAre;

std::vector<std::wstring> NamesOf(const PathDialogModel& model) {
  std::vector<std::wstring> names;
  for (const ListedEntry& row : model.Rows()) names.push_back(row.name);
  return names;
}

class PathDialogModelTest : public testing::Test {
 protected:
  PathDialogModelTest() {
    for (const wchar_t* path : {L"Sounds\\chime.wav", L"Sounds\\Alarm.WAV", L"Sounds\\read me.txt",
                                L"Sounds\\zz old\\", L"skins\\", L"Arrows\\", L"letter.txt"}) {
      files.Put(L"\\My Documents\\" + std::wstring(path));
    }
    files.Put(L"\\Windows\\");
  }

  PathDialogModel ChooseFolder(const std::wstring& present) {
    return {metered, locale, {L"", present, std::nullopt}, L"up"};
  }
  PathDialogModel ChooseFile(const std::wstring& present, const std::wstring& pattern = L"*.wav") {
    return {metered, locale, {L"", present, pattern}, L"up"};
  }
  // The next look at a path finds it gone.
  void LoseNext() {
    metered.Meter().Reset();
    metered.Meter().FailNth(1);
  }

  MemoryFiles files;
  MeteredFiles metered{files};
  FixedLocale locale;
};

TEST_F(PathDialogModelTest, StartsAtThePresentValueOrTheNearestFolderThatExists) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"\\My Documents\\skins\\", L"\\My Documents\\skins"},
      {L"\\my documents\\SKINS", L"\\my documents\\SKINS"},
      {L"\\My Documents\\skins\\gone\\too", L"\\My Documents\\skins"},
      {L"\\My Documents\\letter.txt", L"\\My Documents"},
      {L"\\My Documents\\letter.txt\\below a file", L"\\My Documents"},
      {L"\\Storage Card\\Skins", L"\\"},
      {L"\\My Documents\\*", L"\\My Documents"},
      {L"\\\\", L"\\"},
      {L"", L"\\"},
      {L"My Documents", L"\\"},
      {L"C:\\My Documents", L"\\"},
  };
  for (const auto& [present, folder] : cases) {
    EXPECT_EQ(ChooseFolder(present).Folder(), folder);
    EXPECT_EQ(ChooseFile(present).Folder(), folder);
  }
}

TEST_F(PathDialogModelTest, ShowsFoldersFirstThenTheFilesThatFitAndTheWayUpOnTop) {
  EXPECT_THAT(NamesOf(ChooseFile(L"\\My Documents\\Sounds")),
              ElementsAre(L"up", L"zz old", L"Alarm.WAV", L"chime.wav"));
  EXPECT_THAT(NamesOf(ChooseFile(L"\\My Documents\\Sounds", L"*.mp3;*.txt")),
              ElementsAre(L"up", L"zz old", L"read me.txt"));
  EXPECT_THAT(NamesOf(ChooseFolder(L"\\My Documents")),
              ElementsAre(L"up", L"Arrows", L"skins", L"Sounds"));
  EXPECT_THAT(NamesOf(ChooseFolder(L"\\")), ElementsAre(L"My Documents", L"Windows"));
}

TEST_F(PathDialogModelTest, MarksThePresentFileAndTheFolderLeftUpwards) {
  EXPECT_EQ(ChooseFile(L"\\My Documents\\Sounds\\CHIME.wav").Suggested(), 3u);
  EXPECT_EQ(ChooseFile(L"\\My Documents\\Sounds\\gone.wav").Suggested(), std::nullopt);
  EXPECT_EQ(ChooseFile(L"\\My Documents\\Sounds\\read me.txt").Suggested(), std::nullopt);

  PathDialogModel model = ChooseFolder(L"\\My Documents\\skins");
  EXPECT_EQ(model.Suggested(), std::nullopt);
  model.GoUp();
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(model.Suggested(), 2u);
  model.Activate(0);
  EXPECT_EQ(model.Folder(), L"\\");
  EXPECT_EQ(model.Suggested(), 0u);
  model.GoUp();
  EXPECT_EQ(model.Folder(), L"\\");
}

TEST_F(PathDialogModelTest, AFolderIsOpenedByActivatingAndChosenByTakingAFileByEither) {
  PathDialogModel model = ChooseFolder(L"\\");
  EXPECT_EQ(model.Take(std::nullopt), L"\\");
  EXPECT_EQ(model.Take(0), L"\\My Documents");
  EXPECT_EQ(model.Folder(), L"\\");
  EXPECT_EQ(model.Activate(0), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(model.Take(0), L"\\My Documents") << "the way up is no folder to choose";
  EXPECT_EQ(model.Take(2), L"\\My Documents\\skins");

  PathDialogModel file = ChooseFile(L"\\My Documents\\Sounds");
  EXPECT_FALSE(file.CanTake(std::nullopt));
  EXPECT_TRUE(file.CanTake(2));
  EXPECT_EQ(file.Take(std::nullopt), std::nullopt);
  EXPECT_EQ(file.Take(99), std::nullopt);
  EXPECT_EQ(file.Take(2), L"\\My Documents\\Sounds\\Alarm.WAV");
  EXPECT_EQ(file.Activate(3), L"\\My Documents\\Sounds\\chime.wav");
  EXPECT_EQ(file.Take(1), std::nullopt);
  EXPECT_EQ(file.Folder(), L"\\My Documents\\Sounds\\zz old");
}

TEST_F(PathDialogModelTest, ALostRowLeadsBackToTheFolderAndALostFolderToTheNearestAbove) {
  PathDialogModel model = ChooseFolder(L"\\My Documents");
  LoseNext();
  EXPECT_EQ(model.Take(2), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(metered.Count(FileCall::kList), 1) << "shown as it is now";

  model.Activate(3);
  LoseNext();
  model.GoUp();
  EXPECT_EQ(model.Folder(), L"\\");
  EXPECT_EQ(model.Suggested(), std::nullopt);

  PathDialogModel file = ChooseFile(L"\\My Documents\\Sounds");
  metered.Meter().FailEvery(FileCall::kFind);
  EXPECT_EQ(file.Take(3), std::nullopt);
  EXPECT_EQ(file.Folder(), L"\\");
}

TEST_F(PathDialogModelTest, TellsAnEmptyFolderFromOneThatCannotBeRead) {
  EXPECT_EQ(ChooseFolder(L"\\My Documents").Note(), FolderNote::kNone);
  EXPECT_EQ(ChooseFolder(L"\\My Documents\\Sounds\\zz old").Note(), FolderNote::kEmpty);

  metered.Meter().FailEvery(FileCall::kList);
  PathDialogModel model = ChooseFolder(L"\\My Documents\\skins");
  EXPECT_EQ(model.Folder(), L"\\My Documents\\skins");
  EXPECT_EQ(model.Note(), FolderNote::kUnreadable);
  EXPECT_THAT(NamesOf(model), ElementsAre(L"up"));
  EXPECT_EQ(model.Take(std::nullopt), L"\\My Documents\\skins");
  metered.Meter().Reset();
  model.Activate(0);
  EXPECT_EQ(model.Note(), FolderNote::kNone);
}

TEST_F(PathDialogModelTest, TakesFiveThousandEntriesInOneListingAndTheLongestNames) {
  const std::wstring longest(255, L'n');
  files.Put(L"\\Card\\" + longest + L"\\");
  for (int i = 0; i < 5000; ++i) {
    files.Put(L"\\Card\\" + FormatDecimal(10000 - i) + L".wav");
  }
  metered.Meter().Reset();
  PathDialogModel model = ChooseFile(L"\\Card\\7000.wav");
  EXPECT_EQ(metered.Count(FileCall::kList), 1);
  ASSERT_EQ(model.Rows().size(), 5002u);
  EXPECT_EQ(model.Rows()[2].name, L"10000.wav");
  EXPECT_EQ(model.Rows()[5001].name, L"9999.wav");
  EXPECT_EQ(model.Rows().at(model.Suggested().value()).name, L"7000.wav");
  model.Activate(1);
  EXPECT_EQ(model.Folder(), L"\\Card\\" + longest);
}

TEST(ShortenPathTest, DropsTheFirstNamesAndThenTheEndUntilItFits) {
  const struct {
    const wchar_t* path;
    std::size_t room;
    const wchar_t* shown;
  } cases[] = {
      {L"\\One\\Two\\Three", 14, L"\\One\\Two\\Three"},
      {L"\\One\\Two\\Three", 13, L"...\\Two\\Three"},
      {L"\\One\\Two\\Three", 9, L"...\\Three"},
      {L"\\One\\Two\\Three", 8, L"...\\T..."},
      {L"\\One\\Two\\Three", 1, L"...\\T..."},
      {L"\\Seventeen", 8, L"\\Seve..."},
  };
  for (const auto& c : cases) {
    const auto fits = [&](const std::wstring& shown) { return shown.size() <= c.room; };
    EXPECT_EQ(ShortenPath(c.path, fits), c.shown);
  }
}

}  // namespace
}  // namespace tidewell
