// In which order the program asks the machine for things when it starts, and lets go of them.
#include "app/single_instance.h"
#include "program_fixture.h"

namespace tidewell {

namespace {

using Journal = std::vector<std::wstring>;

class JournalLibraries final : public ResourceLibraries {
 public:
  explicit JournalLibraries(Journal& journal) : journal_(journal) {}
  std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) override {
    journal_.push_back(L"load " + path);
    return std::make_unique<Library>(path, journal_);
  }

 private:
  class Library final : public ResourceLibrary {
   public:
    Library(std::wstring path, Journal& journal) : path_(std::move(path)), journal_(journal) {}
    ~Library() override { journal_.push_back(L"free " + path_); }
    std::optional<std::wstring> FindText(std::uint32_t) const override { return std::nullopt; }
    void* Handle() const override { return nullptr; }

   private:
    std::wstring path_;
    Journal& journal_;
  };

  Journal& journal_;
};

class JournalSystem final : public System {
 public:
  JournalSystem(Journal& journal, const MeteredRegistry& registry)
      : journal_(journal), registry_(registry) {}
  ScreenFacts Screen() override {
    const int keys = registry_.Count(RegistryCall::kOpen) + registry_.Count(RegistryCall::kCreate);
    journal_.push_back(L"screen after " + std::to_wstring(keys) + L" key");
    return screen;
  }
  SystemVersion Version() override { return {}; }

  ScreenFacts screen;

 private:
  Journal& journal_;
  const MeteredRegistry& registry_;
};

class StartOrderTest : public ProgramTest {
 protected:
  void StartWithJournal() {
    MainWindowParts parts = Parts();
    parts.openCategories = [this](const std::wstring& icons) {
      journal.push_back(L"categories " + icons);
      return std::make_unique<ListedCategories>(categories);
    };
    StartOn({registry, device.files, device.locale, libraries, system}, std::move(parts));
  }

  Journal journal;
  JournalLibraries libraries{journal};
  JournalSystem system{journal, registry};
};

TEST_F(StartOrderTest, ScaleSettingsLibrariesCategoriesAndEverythingIsFreedInOrder) {
  const std::wstring english = kEnglishLibrary;
  const std::wstring pictures = L"\\Program Files\\Velmont\\Tidewell\\LowDpiRes.dll";
  StartWithJournal();
  // MyVgaMode is read alone, through a key of its own, before the screen's scale is fixed.
  EXPECT_EQ(journal, (Journal{L"screen after 1 key", L"load " + english, L"load " + pictures,
                              L"categories \\Program Files\\Velmont\\Tidewell\\CategoryIcons"}));
  journal.clear();
  DestroyWindow(Window());
  EXPECT_EQ(journal, (Journal{L"free " + english, L"free " + pictures}));
  EXPECT_TRUE(PumpMessages()) << "the message loop ends";
}

TEST_F(StartOrderTest, TheScreenChoosesTheResolutionLibrary) {
  const struct {
    int dpi;
    std::uint32_t vgaMode;
    const wchar_t* library;
  } cases[] = {{131, 0, L"LowDpiRes.dll"}, {144, 0, L"HighDpiRes.dll"}, {96, 1, L"HighDpiRes.dll"}};
  for (const auto& c : cases) {
    system.screen.dpiX = system.screen.dpiY = c.dpi;
    SetDword(L"MyVgaMode", c.vgaMode);
    journal.clear();
    StartWithJournal();
    EXPECT_TRUE(journal.at(2).ends_with(c.library)) << c.dpi << " " << c.vgaMode;
    program.reset();
  }
}

TEST_F(ProgramTest, ARunningInstanceIsFoundAlsoWhileAPageHasTakenItsCaption) {
  EXPECT_FALSE(BringRunningInstanceForward());
  hasPages = true;
  Start();
  EXPECT_TRUE(BringRunningInstanceForward());
  RunRow(0);
  ASSERT_EQ(CaptionOf(Window()), L"");
  EXPECT_TRUE(BringRunningInstanceForward());
}

// Waits for its turn on a thread of its own, as a second process would.
DWORD WINAPI TryToStart(void* started) {
  StartTurn turn;
  SetEvent(static_cast<HANDLE>(started));
  return 0;
}

TEST(StartTurn, StartsGoOneAfterTheOther) {
  const HANDLE started = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  StartTurn first;
  ASSERT_TRUE(first.IsOurs());
  const HANDLE thread = CreateThread(nullptr, 0, TryToStart, started, 0, nullptr);
  EXPECT_EQ(WaitForSingleObject(started, 20), static_cast<DWORD>(WAIT_TIMEOUT));
  first.End();
  EXPECT_EQ(WaitForSingleObject(started, 5000), WAIT_OBJECT_0);
  WaitForSingleObject(thread, 5000);
  CloseHandle(thread);
  CloseHandle(started);
}

}  // namespace

}  // namespace tidewell
