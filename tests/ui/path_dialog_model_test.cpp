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

std::vector<std::wstring> NamesOf(const std::vector<ListedEntry>& rows) {
  std::vector<std::wstring> names;
  for (const ListedEntry& row : rows) names.push_back(row.name);
  return names;
}

class PathDialogModelTest : public testing::Test {
 protected:
  PathDialogModelTest() {
    files.Put(L"\\My Documents\\Sounds\\chime.wav");
    files.Put(L"\\My Documents\\Sounds\\Alarm.WAV");
    files.Put(L"\\My Documents\\Sounds\\read me.txt");
    files.Put(L"\\My Documents\\Sounds\\zz old\\");
    files.Put(L"\\My Documents\\skins\\");
    files.Put(L"\\My Documents\\Arrows\\");
    files.Put(L"\\My Documents\\letter.txt");
    files.Put(L"\\Windows\\");
  }

  PathDialogModel ChooseFolder(const std::wstring& present) {
    return {metered, locale, {L"", present, std::nullopt}, L"up"};
  }
  PathDialogModel ChooseFile(const std::wstring& present, const std::wstring& pattern) {
    return {metered, locale, {L"", present, pattern}, L"up"};
  }

  MemoryFiles files;
  MeteredFiles metered{files};
  FixedLocale locale;
};

TEST_F(PathDialogModelTest, StartsAtThePresentValueOrTheNearestFolderThatExists) {
  struct Case {
    const wchar_t* present;
    const wchar_t* folder;
  };
  const Case cases[] = {{L"\\My Documents\\skins", L"\\My Documents\\skins"},
                        {L"\\My Documents\\skins\\", L"\\My Documents\\skins"},
                        {L"\\my documents\\SKINS", L"\\my documents\\SKINS"},
                        {L"\\My Documents\\skins\\gone\\too", L"\\My Documents\\skins"},
                        {L"\\My Documents\\letter.txt", L"\\My Documents"},
                        {L"\\My Documents\\letter.txt\\below a file", L"\\My Documents"},
                        {L"\\Storage Card\\Skins", L"\\"},
                        {L"\\My Documents\\*", L"\\My Documents"},
                        {L"\\", L"\\"},
                        {L"\\\\", L"\\"},
                        {L"", L"\\"},
                        {L"My Documents", L"\\"},
                        {L"C:\\My Documents", L"\\"}};
  for (const Case& c : cases) {
    EXPECT_EQ(ChooseFolder(c.present).Folder(), c.folder);
    EXPECT_EQ(ChooseFile(c.present, L"*").Folder(), c.folder);
  }
}

TEST_F(PathDialogModelTest, ShowsFoldersFirstThenTheFilesThatFitAndTheWayUpOnTop) {
  EXPECT_THAT(NamesOf(ChooseFile(L"\\My Documents\\Sounds", L"*.wav").Rows()),
              ElementsAre(L"up", L"zz old", L"Alarm.WAV", L"chime.wav"));
  EXPECT_THAT(NamesOf(ChooseFile(L"\\My Documents\\Sounds", L"*.mp3;*.txt").Rows()),
              ElementsAre(L"up", L"zz old", L"read me.txt"));
  EXPECT_THAT(NamesOf(ChooseFolder(L"\\My Documents").Rows()),
              ElementsAre(L"up", L"Arrows", L"skins", L"Sounds"));
  EXPECT_THAT(NamesOf(ChooseFolder(L"\\").Rows()), ElementsAre(L"My Documents", L"Windows"));
}

TEST_F(PathDialogModelTest, MarksThePresentFileAndTheFolderLeftUpwards) {
  EXPECT_EQ(ChooseFile(L"\\My Documents\\Sounds\\CHIME.wav", L"*.wav").Suggested(), 3u);
  EXPECT_EQ(ChooseFile(L"\\My Documents\\Sounds\\gone.wav", L"*.wav").Suggested(), std::nullopt);
  EXPECT_EQ(ChooseFile(L"\\My Documents\\Sounds\\read me.txt", L"*.wav").Suggested(), std::nullopt);

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

TEST_F(PathDialogModelTest, AFolderIsOpenedByActivatingAndChosenByTaking) {
  PathDialogModel model = ChooseFolder(L"\\");
  EXPECT_EQ(model.Take(std::nullopt), L"\\");
  EXPECT_EQ(model.Take(0), L"\\My Documents");
  EXPECT_EQ(model.Folder(), L"\\");

  EXPECT_EQ(model.Activate(0), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(model.Suggested(), std::nullopt);
  EXPECT_EQ(model.Take(std::nullopt), L"\\My Documents");
  EXPECT_EQ(model.Take(0), L"\\My Documents") << "the way up is no folder to choose";
  EXPECT_EQ(model.Take(2), L"\\My Documents\\skins");
}

TEST_F(PathDialogModelTest, AFileIsChosenByEither) {
  PathDialogModel model = ChooseFile(L"\\My Documents\\Sounds", L"*.wav");
  EXPECT_FALSE(model.CanTake(std::nullopt));
  EXPECT_TRUE(model.CanTake(2));
  EXPECT_EQ(model.Take(std::nullopt), std::nullopt);
  EXPECT_EQ(model.Take(99), std::nullopt);
  EXPECT_EQ(model.Take(2), L"\\My Documents\\Sounds\\Alarm.WAV");
  EXPECT_EQ(model.Activate(3), L"\\My Documents\\Sounds\\chime.wav");

  EXPECT_EQ(model.Take(1), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\My Documents\\Sounds\\zz old");
}

// The first look at a path after a listing finds it gone.
TEST_F(PathDialogModelTest, ALostRowLeadsBackToTheFolderAndALostFolderToTheNearestAbove) {
  PathDialogModel model = ChooseFolder(L"\\My Documents");
  metered.Meter().Reset();
  metered.Meter().FailNth(1);
  EXPECT_EQ(model.Take(2), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(metered.Count(FileCall::kList), 1) << "shown as it is now";

  model.Activate(3);
  EXPECT_EQ(model.Folder(), L"\\My Documents\\Sounds");
  metered.Meter().Reset();
  metered.Meter().FailNth(1);
  model.GoUp();
  EXPECT_EQ(model.Folder(), L"\\");
  EXPECT_EQ(model.Suggested(), std::nullopt);

  PathDialogModel file = ChooseFile(L"\\My Documents\\Sounds", L"*.wav");
  metered.Meter().Reset();
  metered.Meter().FailEvery(FileCall::kFind);
  EXPECT_EQ(file.Take(3), std::nullopt);
  EXPECT_EQ(file.Folder(), L"\\");
  EXPECT_EQ(file.Take(0), std::nullopt);
}

TEST_F(PathDialogModelTest, TellsAnEmptyFolderFromOneThatCannotBeRead) {
  EXPECT_EQ(ChooseFolder(L"\\My Documents").Note(), FolderNote::kNone);
  EXPECT_EQ(ChooseFolder(L"\\My Documents\\skins").Note(), FolderNote::kEmpty);
  EXPECT_EQ(ChooseFolder(L"\\My Documents\\Sounds\\zz old").Note(), FolderNote::kEmpty);

  metered.Meter().FailEvery(FileCall::kList);
  PathDialogModel model = ChooseFolder(L"\\My Documents\\skins");
  EXPECT_EQ(model.Folder(), L"\\My Documents\\skins");
  EXPECT_EQ(model.Note(), FolderNote::kUnreadable);
  EXPECT_THAT(NamesOf(model.Rows()), ElementsAre(L"up"));
  EXPECT_EQ(model.Take(std::nullopt), L"\\My Documents\\skins");

  metered.Meter().Reset();
  model.Activate(0);
  EXPECT_EQ(model.Note(), FolderNote::kNone);
  EXPECT_EQ(model.Suggested(), 2u);
}

TEST_F(PathDialogModelTest, TakesFiveThousandEntriesInOneListing) {
  for (int i = 0; i < 5000; ++i) {
    files.Put(L"\\Card\\" + FormatDecimal(10000 - i) + L".wav");
  }
  metered.Meter().Reset();
  PathDialogModel model = ChooseFile(L"\\Card\\7000.wav", L"*.wav");
  EXPECT_EQ(metered.Count(FileCall::kList), 1);
  ASSERT_EQ(model.Rows().size(), 5001u);
  EXPECT_EQ(model.Rows()[1].name, L"10000.wav");
  EXPECT_EQ(model.Rows()[5000].name, L"9999.wav");
  ASSERT_TRUE(model.Suggested());
  EXPECT_EQ(model.Rows()[*model.Suggested()].name, L"7000.wav");
}

TEST_F(PathDialogModelTest, TakesTheLongestNames) {
  const std::wstring longest(255, L'n');
  files.Put(L"\\" + longest + L"\\" + longest);
  PathDialogModel model = ChooseFile(L"\\", L"*");
  EXPECT_EQ(model.Activate(1), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\" + longest);
  EXPECT_EQ(model.Take(1), L"\\" + longest + L"\\" + longest);
}

TEST(PathDialogTextsTest, AreBuiltInWithoutALibrary) {
  const PathDialogTexts texts(nullptr);
  EXPECT_EQ(texts.select, L"Select");
  EXPECT_EQ(texts.cancel, L"Cancel");
  EXPECT_EQ(texts.root, L"My Device");
}

TEST(ShortenPathTest, DropsTheFirstNamesAndThenTheEndUntilItFits) {
  struct Case {
    const wchar_t* path;
    std::size_t room;
    const wchar_t* shown;
  };
  const Case cases[] = {{L"\\One\\Two\\Three", 14, L"\\One\\Two\\Three"},
                        {L"\\One\\Two\\Three", 13, L"...\\Two\\Three"},
                        {L"\\One\\Two\\Three", 12, L"...\\Three"},
                        {L"\\One\\Two\\Three", 9, L"...\\Three"},
                        {L"\\One\\Two\\Three", 8, L"...\\T..."},
                        {L"\\One\\Two\\Three", 1, L"...\\T..."},
                        {L"\\Seventeen", 8, L"\\Seve..."}};
  for (const Case& c : cases) {
    EXPECT_EQ(
        ShortenPath(c.path, [&](const std::wstring& shown) { return shown.size() <= c.room; }),
        c.shown);
  }
}

}  // namespace
}  // namespace tidewell
