#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include "platform/text.h"
#include "platform/windows/windows_machine.h"
#include "tests/platform/contracts.h"

namespace tidewell {

namespace {

// Below the user's folder for temporary files, named for this process.
std::wstring TestFolder() {
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  const auto process = static_cast<std::int32_t>(GetCurrentProcessId());
  return JoinPath(folder, L"TidewellContract." + FormatDecimal(process));
}

void RemoveFolder(const std::wstring& folder) {
  const std::wstring list = folder + L'\0';  // two zeros end it
  SHFILEOPSTRUCTW removal{};
  removal.wFunc = FO_DELETE;
  removal.pFrom = list.c_str();
  removal.fFlags = FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT;
  SHFileOperationW(&removal);
}

class WindowsFilesUnderTest final : public FilesUnderTest {
 public:
  WindowsFilesUnderTest() { files_.MakeFolder(folder_); }
  ~WindowsFilesUnderTest() override { RemoveFolder(folder_); }
  WindowsFilesUnderTest(const WindowsFilesUnderTest&) = delete;
  WindowsFilesUnderTest& operator=(const WindowsFilesUnderTest&) = delete;

  Files& Door() override { return files_; }
  std::wstring Folder() const override { return folder_; }
  std::shared_ptr<void> Lock(const std::wstring& path) override {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    return {file, CloseHandle};
  }
  void MakeReadOnly(const std::wstring& path) override {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  }

 private:
  WindowsFiles files_;
  std::wstring folder_ = TestFolder();
};

}  // namespace

std::vector<Answer<Registry>> RegistryAnswers() {
  return {{"Windows", [] { return std::make_shared<WindowsRegistry>(); }}};
}

std::vector<Answer<FilesUnderTest>> FilesAnswers() {
  return {{"Windows", [] { return std::make_shared<WindowsFilesUnderTest>(); }}};
}

namespace {

TEST(WindowsFiles, APathWithoutADriveStartsAtTheCurrentDrivesRoot) {
  WindowsFilesUnderTest underTest;
  const std::wstring folder = underTest.Folder();
  wchar_t before[MAX_PATH] = {};
  GetCurrentDirectoryW(MAX_PATH, before);
  SetCurrentDirectoryW(folder.c_str());
  const auto file = underTest.Door().OpenForWriting(folder.substr(2) + L"\\file");
  SetCurrentDirectoryW(before);
  EXPECT_TRUE(file);
  EXPECT_TRUE(underTest.Door().Find(folder + L"\\file"));
}

TEST(WindowsLocale, TellsTheFactsOfTheLocaleItWasGivenAndNoneOfAnUnknownOne) {
  const struct {
    LCID localeId;
    const wchar_t *timeStyle, *firstDay, *time, *date;
  } cases[] = {{0x0409, L"0", L"6", L"3:05 PM", L"2008_03_04 04/03/08"},
               {0x0407, L"1", L"0", L"15:05", L"2008_03_04 04/03/08"},
               {0x0809, L"1", L"0", L"15:05", L"2008_03_04 04/03/08"},
               {0x7FFF, L"", L"", L"", L""}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.localeId);
    WindowsLocale locale(c.localeId);
    EXPECT_EQ(locale.TimeStyle(), c.timeStyle);
    EXPECT_EQ(locale.FirstDayOfWeek(), c.firstDay);
    const LocalTime moment{2008, 3, 4, 15, 5};
    EXPECT_EQ(locale.FormatTime(moment), c.time);
    EXPECT_EQ(locale.FormatDate(moment, L"yyyy_MM_dd dd/MM/yy"), c.date);
    EXPECT_EQ(locale.CompareIgnoringCase(L"\u00C4pfel", L"\u00E4PFEL"), 0);
    EXPECT_LT(locale.CompareIgnoringCase(L"a", L"B"), 0);
    EXPECT_GT(locale.CompareIgnoringCase(L"ab", L"A"), 0);
  }
}

std::wstring BesideThisProgram(const wchar_t* name) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  const std::wstring path = program;
  return path.substr(0, path.rfind(L'\\') + 1) + name;
}

TEST(WindowsLibraries, GiveTextsByIdAndNothingForOthers) {
  WindowsLibraries libraries;
  const auto library = libraries.Load(BesideThisProgram(L"sample_library.dll"));
  ASSERT_TRUE(library);
  EXPECT_NE(library->Handle(), nullptr);
  EXPECT_EQ(library->FindText(100), L"Plain");
  EXPECT_EQ(library->FindText(101), L"Gr\u00F6\u00DFe, \u03A9, \u0416");
  EXPECT_EQ(library->FindText(60000), L"Last");
  // Absent in a block that is there, empty, absent with its block, and beyond all ids.
  for (const std::uint32_t id : {102u, 116u, 30000u, 70000u}) {
    EXPECT_EQ(library->FindText(id), std::nullopt) << id;
  }
}

TEST(WindowsLibraries, AFileThatIsNoLibraryIsNoneAndNoBoxIsShown) {
  WindowsFilesUnderTest underTest;
  WindowsLibraries libraries;
  const UINT modeBefore = SetErrorMode(0);
  for (const std::string& bytes : {std::string(), std::string("just a text"),
                                   "MZ" + std::string(58, '\0') + "\xFF\xFF\xFF\x7F"}) {
    const auto file = underTest.Door().OpenForWriting(underTest.Folder() + L"\\broken.dll");
    ASSERT_TRUE(file->Write(std::as_bytes(std::span(bytes))) && file->Close());
    EXPECT_EQ(libraries.Load(underTest.Folder() + L"\\broken.dll"), nullptr) << bytes.size();
  }
  EXPECT_EQ(libraries.Load(underTest.Folder()), nullptr);
  EXPECT_EQ(libraries.Load(underTest.Folder() + L"\\absent.dll"), nullptr);
  EXPECT_EQ(SetErrorMode(modeBefore), 0u);  // as it was found
}

}  // namespace
}  // namespace tidewell
