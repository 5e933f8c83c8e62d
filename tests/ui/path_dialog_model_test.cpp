#include "ui/path_dialog_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/fixed_locale.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/recorded_files.h"
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
    return {recorded, locale, {L"", present, std::nullopt}, L"up"};
  }
  PathDialogModel ChooseFile(const std::wstring& present, const std::wstring& pattern = L"*.wav") {
    return {recorded, locale, {L"", present, pattern}, L"up"};
  }
  MemoryFiles files;
  RecordedFiles recorded{files};
  FixedLocale locale;
};

TEST_F(PathDialogModelTest, StartsAtThePresentValueOrTheNearestFolderThatExists) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"\\my documents\\SKINS\\", L"\\my documents\\SKINS"},
      {L"\\My Documents\\skins\\gone\\too", L"\\My Documents\\skins"},
      {L"\\My Documents\\letter.txt", L"\\My Documents"},
      {L"\\My Documents\\letter.txt\\below a file", L"\\My Documents"},
      {L"\\My Documents\\*", L"\\My Documents"},
      {L"\\Storage Card\\Skins", L"\\"},
      {L"\\\\", L"\\"},
      {L"", L"\\"},
      {L"C:\\My Documents", L"\\"},
  };
  for (const auto& [present, folder] : cases) {
    EXPECT_EQ(ChooseFolder(present).Folder(), folder);
    EXPECT_EQ(ChooseFile(present).Folder(), folder);
  }
}

TEST_F(PathDialogModelTest, ShowsFoldersFirstThenTheFilesThatFitAndTheWayUpOnTop) {
  const PathDialogModel model = ChooseFile(L"\\My Documents\\Sounds\\CHIME.wav");
  EXPECT_THAT(NamesOf(model), ElementsAre(L"up", L"zz old", L"Alarm.WAV", L"chime.wav"));
  EXPECT_EQ(model.Suggested(), 3u) << "the present file";
  EXPECT_EQ(recorded.Count(FileCall::kList), 1);
  EXPECT_THAT(NamesOf(ChooseFile(L"\\My Documents\\Sounds", L"*.mp3;*.txt")),
              ElementsAre(L"up", L"zz old", L"read me.txt"));
  EXPECT_THAT(NamesOf(ChooseFolder(L"\\My Documents")),
              ElementsAre(L"up", L"Arrows", L"skins", L"Sounds"));
}

TEST_F(PathDialogModelTest, AFolderOrAFileIsTakenAndNothingThatIsNeither) {
  PathDialogModel folder = ChooseFolder(L"\\My Documents");
  EXPECT_EQ(folder.Take(std::nullopt), L"\\My Documents");
  EXPECT_EQ(folder.Take(0), L"\\My Documents") << "the way up is no folder to choose";
  EXPECT_EQ(folder.Take(2), L"\\My Documents\\skins");

  PathDialogModel file = ChooseFile(L"\\My Documents\\Sounds");
  EXPECT_FALSE(file.CanTake(std::nullopt));
  EXPECT_EQ(file.Take(99), std::nullopt);
  EXPECT_EQ(file.Take(2), L"\\My Documents\\Sounds\\Alarm.WAV");
  EXPECT_EQ(file.Take(1), std::nullopt);
  EXPECT_EQ(file.Folder(), L"\\My Documents\\Sounds\\zz old");
}

TEST_F(PathDialogModelTest, ALostRowLeadsBackToTheFolderAndALostFolderToTheNearestAbove) {
  PathDialogModel model = ChooseFolder(L"\\My Documents");
  recorded.Calls().Reset();
  recorded.Calls().FailNth(1);  // the look at the row
  EXPECT_EQ(model.Take(2), std::nullopt);
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(recorded.Count(FileCall::kList), 1) << "shown as it is now";

  PathDialogModel file = ChooseFile(L"\\My Documents\\Sounds");
  recorded.Calls().FailEvery(FileCall::kFind);
  EXPECT_EQ(file.Take(3), std::nullopt);
  EXPECT_EQ(file.Folder(), L"\\");
}

TEST_F(PathDialogModelTest, AFolderThatCannotBeReadIsTakenOrLeft) {
  recorded.Calls().FailEvery(FileCall::kList);
  PathDialogModel model = ChooseFolder(L"\\My Documents\\skins");
  EXPECT_EQ(model.Note(), FolderNote::kUnreadable);
  EXPECT_EQ(model.Take(std::nullopt), L"\\My Documents\\skins");
  recorded.Calls().Reset();
  model.Activate(0);
  EXPECT_EQ(model.Folder(), L"\\My Documents");
  EXPECT_EQ(model.Note(), FolderNote::kNone);
}

TEST(ShortenPathTest, DropsTheFirstNamesAndThenTheEndUntilItFits) {
  const std::pair<std::size_t, const wchar_t*> cases[] = {{14, L"\\One\\Two\\Three"},
                                                          {13, L"...\\Two\\Three"},
                                                          {9, L"...\\Three"},
                                                          {8, L"...\\T..."},
                                                          {1, L"...\\T..."}};
  for (const auto& [room, shortened] : cases) {
    const auto fits = [&](const std::wstring& shown) { return shown.size() <= room; };
    EXPECT_EQ(ShortenPath(L"\\One\\Two\\Three", fits), shortened);
  }
}

}  // namespace
}  // namespace tidewell
