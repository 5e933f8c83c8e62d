// In which order the program asks the machine for things when it starts, and lets go of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <span>

#include "program_fixture.h"

namespace tidewell {

namespace {

using Journal = std::vector<std::wstring>;

class JournalRegistry final : public Registry {
 public:
  JournalRegistry(Registry& inner, Journal& journal) : inner_(inner), journal_(journal) {}
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override {
    journal_.push_back(L"key " + path);
    return inner_.Open(root, path);
  }
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override {
    journal_.push_back(L"key " + path);
    return inner_.Create(root, path);
  }
  RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) override {
    return inner_.DeleteTree(root, path);
  }

 private:
  Registry& inner_;
  Journal& journal_;
};

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
  explicit JournalSystem(Journal& journal) : journal_(journal) {}
  ScreenFacts Screen() override {
    journal_.push_back(L"screen");
    return screen;
  }
  SystemVersion Version() override { return {}; }

  ScreenFacts screen;

 private:
  Journal& journal_;
};

class StartOrderTest : public testing::Test {
 protected:
  StartOrderTest() : device_(), registry_(device_.registry, journal) {}
  ~StartOrderTest() override { PumpMessages(); }

  std::unique_ptr<MainWindow> Start() {
    auto program = std::make_unique<MainWindow>(
        GetModuleHandleW(nullptr),
        Machine{registry_, device_.files, device_.locale, libraries_, system},
        MainWindowParts{[](int, HWND, PageContext&) { return nullptr; },
                        [this](const std::wstring& icons) {
                          journal.push_back(L"categories " + icons);
                          return std::make_unique<ListedCategories>(std::vector<PimCategory>{});
                        },
                        [](HWND, const std::wstring&, const std::wstring&, UINT) { return IDYES; },
                        [](const DialogContext&, FileNameRequest&) { return false; }});
    EXPECT_TRUE(program->Create());
    return program;
  }

  Journal Loads() const {
    Journal loads;
    for (const auto& entry : journal) {
      if (entry.starts_with(L"load ")) loads.push_back(entry);
    }
    return loads;
  }

  std::wstring LoadedPictures() const {
    const std::wstring path = Loads().back();
    return path.substr(path.rfind(L'\\') + 1);
  }

  Journal journal;
  MemoryMachine device_;
  JournalRegistry registry_;
  JournalLibraries libraries_{journal};
  JournalSystem system{journal};
};

TEST_F(StartOrderTest, ScaleThenSettingsThenLibrariesAndEverythingIsFreedInOrder) {
  auto program = Start();
  ASSERT_GT(journal.size(), 6u);
  // MyVgaMode alone, before the screen's own scale is read.
  EXPECT_EQ(journal[0], std::wstring(L"key ") + kRootKey);
  EXPECT_EQ(journal[1], L"screen");
  EXPECT_EQ(std::count(journal.begin(), journal.end(), L"screen"), 1);
  EXPECT_EQ(Loads(), (Journal{std::wstring(L"load ") + kEnglishLibrary,
                              L"load \\Program Files\\Velmont\\Tidewell\\LowDpiRes.dll"}));
  const auto pictures = std::find(journal.begin(), journal.end(), Loads().back());
  EXPECT_EQ(Journal(pictures + 1, journal.end()),
            (Journal{L"categories \\Program Files\\Velmont\\Tidewell\\CategoryIcons",
                     std::wstring(L"key ") + kRootKey + L"\\Categories"}))
      << "the pictures come after every setting, the categories after the pictures";

  journal.clear();
  DestroyWindow(program->Window());
  EXPECT_EQ(journal, (Journal{std::wstring(L"free ") + kEnglishLibrary,
                              L"free \\Program Files\\Velmont\\Tidewell\\LowDpiRes.dll"}));
  EXPECT_TRUE(PumpMessages()) << "the message loop ends";
}

TEST_F(StartOrderTest, TheScreenChoosesTheResolutionLibrary) {
  struct Case {
    int dpi;
    std::uint32_t vgaMode;
    const wchar_t* library;
  };
  for (const Case& c : {Case{96, 0, L"LowDpiRes.dll"}, Case{131, 0, L"LowDpiRes.dll"},
                        Case{144, 0, L"HighDpiRes.dll"}, Case{192, 0, L"HighDpiRes.dll"},
                        Case{96, 1, L"HighDpiRes.dll"}}) {
    system.screen.dpiX = system.screen.dpiY = c.dpi;
    device_.registry.Create(RegistryRoot::kCurrentUser, kRootKey)
        ->Set(L"MyVgaMode", kTypeDword, std::as_bytes(std::span(&c.vgaMode, 1)));
    Start();
    EXPECT_EQ(LoadedPictures(), c.library) << c.dpi << " " << c.vgaMode;
  }
}

}  // namespace

}  // namespace tidewell
