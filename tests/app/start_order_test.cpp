// In which order the program asks the machine for things when it starts, and lets go of them.
#include "app/single_instance.h"
#include "program_fixture.h"

namespace tidewell {
namespace {

using Journal = std::vector<std::wstring>;

class JournalLibrary final : public ResourceLibrary {
 public:
  JournalLibrary(std::wstring path, Journal& journal) : path_(std::move(path)), journal_(journal) {
    journal_.push_back(L"load " + path_);
  }
  ~JournalLibrary() override { journal_.push_back(L"free " + path_); }
  std::optional<std::wstring> FindText(std::uint32_t) const override { return std::nullopt; }
  void* Handle() const override { return nullptr; }

 private:
  std::wstring path_;
  Journal& journal_;
};

// Notes down as well how many keys were opened before it was asked for the screen.
struct JournalMachine final : ResourceLibraries, System {
  explicit JournalMachine(const MeteredRegistry& metered) : registry(metered) {}
  std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) override {
    return std::make_unique<JournalLibrary>(path, journal);
  }
  ScreenFacts Screen() override {
    const int keys = registry.Count(RegistryCall::kOpen) + registry.Count(RegistryCall::kCreate);
    journal.push_back(L"screen after " + std::to_wstring(keys) + L" key");
    return screen;
  }
  SystemVersion Version() override { return {}; }

  const MeteredRegistry& registry;
  ScreenFacts screen;
  Journal journal;
};

class StartOrderTest : public ProgramTest {
 protected:
  void StartWithJournal() {
    MainWindowParts parts = Parts();
    parts.openCategories = [this](const std::wstring& icons) {
      journal.push_back(L"categories " + icons);
      return std::make_unique<ListedCategories>(categories);
    };
    StartOn({registry, device.files, device.locale, machine, machine}, std::move(parts));
  }

  JournalMachine machine{registry};
  Journal& journal = machine.journal;
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
    machine.screen.dpiX = machine.screen.dpiY = c.dpi;
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

}  // namespace
}  // namespace tidewell
