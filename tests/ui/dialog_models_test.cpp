// What the full-screen dialogs compute.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/fixed_locale.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/recorded_files.h"
#include "platform/text.h"
#include "ui/color_picker_model.h"
#include "ui/file_name_dialog_model.h"
#include "ui/font_dialog_model.h"
#include "ui/path_dialog_model.h"

namespace tidewell {
namespace {

constexpr Color kBegin = 0x332211;

TEST(ColorPickerModelTest, TakesFromTypedTextWhatIsAColor) {
  const std::pair<std::wstring, std::wstring> html[] = {{L"FF8000", L"FF8000"},
                                                        {L"ff80", L"FF8033"},
                                                        {L"F", L"0F2233"},
                                                        {L"", L"112233"},
                                                        {L" 1 2\t3", L"010203"},
                                                        {L"-1+2ff", L"1102FF"},
                                                        {L"#FF8000", L"112233"},
                                                        {L"FFzz00", L"FF2233"},
                                                        {L"+", L"112233"},
                                                        {L"FF800077", L"FF8000"},
                                                        {std::wstring(10'000, L'a'), L"AAAAAA"}};
  for (const auto& [text, shown] : html) {
    ColorPickerModel model(kBegin, true);
    model.EnterHtml(text);
    EXPECT_EQ(model.HtmlText(), shown) << text.size();
  }
  const std::pair<std::wstring, int> numbers[] = {
      {L"255", 255}, {L"256", -1}, {L"-1", -1},     {L" +7", 7},
      {L"", 0},      {L"x", 0},    {L"12 Uhr", 12}, {std::wstring(10'000, L'9'), -1}};
  for (const auto& [text, value] : numbers) {
    ColorPickerModel model(kBegin, true);
    EXPECT_EQ(model.EnterNumber(0, text), value >= 0);
    EXPECT_EQ(model.Chosen(), value < 0 ? kBegin : 0x332200u + static_cast<Color>(value));
  }
}

TEST(ColorPickerModelTest, TheDefaultStaysWhereItIsAllowedUntilAChannelMoves) {
  for (const bool isAllowed : {false, true}) {
    ColorPickerModel model(kNoColor, isAllowed);
    EXPECT_EQ(model.Chosen(), isAllowed ? kNoColor : kWhite);
    for (const auto& [position, value, back] :
         {std::tuple(0, 0u, 0), {50, 127u, 49}, {99, 252u, 98}, {100, 255u, 100}}) {
      model.MoveSlider(2, position);
      EXPECT_EQ(model.Chosen(), Rgb(255, 255, value));
      EXPECT_EQ(model.SliderPosition(2), back);
    }
    model.ChooseDefault();
    EXPECT_EQ(model.Chosen(), isAllowed ? kNoColor : kWhite);
  }
}

TEST(PickerLayoutTest, EveryViewFitsTheSmallestScreens) {
  for (const auto& [width, height, dpi] :
       {std::tuple(240, 188, 96), {320, 188, 96}, {480, 536, 192}, {640, 376, 192}}) {
    const PickerLayout layout(width, height, ScreenScale(dpi, dpi, false));
    const int side = 16 * dpi / 96;
    const int pitch = side + (width - 10 * side - 20 * dpi / 96) / 10;
    const int left = (width - 9 * pitch - side) / 2;
    EXPECT_EQ(layout.swatches[49], (Rect{left + 9 * pitch, 114 * dpi / 96, side, side}));
    EXPECT_LE(layout.card.Bottom(), layout.tabs.top);
    EXPECT_EQ(layout.tabs.Bottom(), layout.band.top);
    EXPECT_LT(layout.sample.Right(), layout.defaultButton.left);
  }
}

TEST(FontDialogModelTest, MakesThinWhatIsNotBoldAndNineOfASizeThatIsNotOffered) {
  for (const auto& [height, weight, newHeight, newWeight] :
       {std::tuple(12, 400, 12, 100), {30, 700, 30, 700}, {9, 900, 9, 100}, {31, 0, 9, 100}}) {
    LogFont font{.height = height, .weight = weight, .italic = 255, .faceName = L"Tahoma"};
    FontDialogModel model(font);
    EXPECT_EQ(model.Edited(), (LogFont{newHeight, newWeight, 1, 0, 0, 0, L"Tahoma"}));
    model.ChooseSize(5);
    for (int style = kBold; style <= kStrikeOut; ++style) {
      model.Set(static_cast<FontStyle>(style), style == kUnderline);
    }
    EXPECT_EQ(model.Edited(), (LogFont{15, 100, 0, 1, 0, 0, L"Tahoma"}));
  }
}

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
