#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include "platform/text.h"
#include "platform/whole_file.h"
#include "platform/windows/windows_machine.h"
#include "tests/platform/contracts.h"

namespace tidewell {

namespace {

// A folder below the user's for temporary files, named for this process.
class WindowsFilesUnderTest final : public FilesUnderTest {
 public:
  WindowsFilesUnderTest() {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    folder_ = JoinPath(folder, L"TidewellContract." + std::to_wstring(GetCurrentProcessId()));
    files_.MakeFolder(folder_);
  }
  ~WindowsFilesUnderTest() override {
    folder_ += L'\0';  // two zeros end a list
    constexpr FILEOP_FLAGS kQuietly = FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT;
    SHFILEOPSTRUCTW removal{nullptr,  FO_DELETE, folder_.c_str(), nullptr,
                            kQuietly, FALSE,     nullptr,         nullptr};
    SHFileOperationW(&removal);
  }
  WindowsFilesUnderTest(const WindowsFilesUnderTest&) = delete;
  WindowsFilesUnderTest& operator=(const WindowsFilesUnderTest&) = delete;

  Files& Door() override { return files_; }
  std::wstring Folder() const override { return folder_; }
  std::shared_ptr<void> Lock(const std::wstring& path) override {
    return {CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
            CloseHandle};
  }
  void MakeReadOnly(const std::wstring& path) override {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  }
  std::wstring FileOnFullDisk() override { return L"\\\\?\\unix\\dev\\full"; }

 private:
  WindowsFiles files_;
  std::wstring folder_;
};

}  // namespace

Answers<Registry> RegistryAnswers() {
  return {std::make_shared<WindowsRegistry>};
}

Answers<FilesUnderTest> FilesAnswers() {
  return {std::make_shared<WindowsFilesUnderTest>};
}

namespace {

TEST(WindowsLocale, TellsTheFactsOfTheLocaleItWasGivenAndNoneOfAnUnknownOne) {
  const struct {
    LCID localeId;
    const wchar_t *timeStyle, *firstDay, *time, *ownTime, *date;
  } cases[] = {{0x0409, L"0", L"6", L"3:05 PM", L"03:05P", L"2008_03_04 04/03/08"},
               {0x0407, L"1", L"0", L"15:05", L"03:05P", L"2008_03_04 04/03/08"},
               {0x0809, L"1", L"0", L"15:05", L"03:05p", L"2008_03_04 04/03/08"},
               {0x7FFF, L"", L"", L"", L"", L""}};
  for (const auto& c : cases) {
    WindowsLocale locale(c.localeId);
    EXPECT_EQ(locale.TimeStyle(), c.timeStyle) << c.localeId;
    EXPECT_EQ(locale.FirstDayOfWeek(), c.firstDay) << c.localeId;
    const LocalTime moment{2008, 3, 4, 15, 5};
    EXPECT_EQ(locale.FormatTime(moment), c.time);
    EXPECT_EQ(locale.FormatTime(moment, L"hh:mmt"), c.ownTime);
    EXPECT_EQ(locale.FormatDate(moment, L"yyyy_MM_dd dd/MM/yy"), c.date);
    EXPECT_EQ(locale.CompareIgnoringCase(L"\u00C4pfel", L"\u00E4PFEL"), 0);
    EXPECT_LT(locale.CompareIgnoringCase(L"a", L"B"), 0);
  }
}

TEST(WindowsLibraries, GiveTextsByIdAndNothingForOthers) {
  WindowsMachine machine;
  const auto library = machine.libraries.Load(L"" SAMPLE_LIBRARY);
  ASSERT_TRUE(library);
  EXPECT_EQ(library->FindText(101), L"Gr\u00F6\u00DFe, \u03A9, \u0416");
  EXPECT_EQ(library->FindText(60000), L"Last");
  // Absent in a block that is there, empty, absent with its block, and beyond all ids.
  for (const int id : {-1, 102, 116, 30000, 70000}) {
    EXPECT_EQ(library->FindText(id), std::nullopt) << id;
  }
}

TEST(WindowsLibraries, AFileThatIsNoLibraryIsNone) {
  WindowsFilesUnderTest underTest;
  WindowsLibraries libraries(underTest.Door());
  const std::wstring path = underTest.Folder() + L"\\broken.dll";
  EXPECT_EQ(libraries.Load(path), nullptr);
  const std::vector<std::byte> whole = ReadWholeFile(underTest.Door(), L"" SAMPLE_LIBRARY).bytes;
  for (const std::size_t size : {whole.size(), whole.size() / 2, std::size_t{0}}) {
    const auto file = underTest.Door().OpenForWriting(path).stream;
    file->Write(std::span(whole).first(size));
    ASSERT_EQ(file->Close(), FileStatus::kOk);
    EXPECT_EQ(libraries.Load(path) != nullptr, size == whole.size()) << size;
  }
}

}  // namespace
}  // namespace tidewell
