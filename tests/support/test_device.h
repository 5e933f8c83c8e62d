// One device for all tests: a machine in memory that records every call to its registry and files,
// and what the program makes on it. Nothing is loaded before a test asks for it.
#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "pages/page_context.h"
#include "platform/memory/memory_machine.h"
#include "platform/memory/recorded_files.h"
#include "platform/memory/recorded_registry.h"
#include "platform/text.h"
#include "settings/registry_values.h"
#include "tests/support/fake_dialogs.h"
#include "tests/support/registry_support.h"

namespace tidewell {

// A key that a setting lives in, or one of the user's by its path.
struct KeyPlace {
  KeyPlace(SettingKey key) : root(LocationOf(key).root), path(LocationOf(key).path) {}
  KeyPlace(std::wstring itsPath) : path(std::move(itsPath)) {}
  KeyPlace(const wchar_t* itsPath) : path(itsPath) {}
  KeyPlace(RegistryRoot itsRoot, std::wstring itsPath) : root(itsRoot), path(std::move(itsPath)) {}

  RegistryRoot root = RegistryRoot::kCurrentUser;
  std::wstring path;
};

class ListedCategories final : public CategorySource {
 public:
  explicit ListedCategories(std::vector<PimCategory> categories)
      : categories_(std::move(categories)) {}
  void ReadInto(CategoryCatalog& catalog) override {
    for (const PimCategory& category : categories_) catalog.Add(category);
  }

 private:
  std::vector<PimCategory> categories_;
};

struct TestDevice {
  // Both forget the calls that were recorded before.
  void Load() {
    recorded.Calls().Reset();
    store.Load(machine, scale, language);
  }
  void Save() {
    recorded.Calls().Reset();
    store.Save(recorded, scale);
  }
  // Loads the settings and rebuilds the catalogue with categories of these names, which alone is
  // recorded.
  void LoadWith(const std::vector<std::wstring>& names) {
    Machine unrecorded = memory.Door();
    store.Load(unrecorded, scale, language);
    std::vector<PimCategory> categories;
    categories.reserve(names.size());
    for (const std::wstring& name : names) {
      categories.push_back({name, static_cast<std::uint16_t>(categories.size() + 1), false});
    }
    ListedCategories source(std::move(categories));
    catalog.Rebuild(source, L"All");
  }
  // The settings have the defaults of that screen then; the language stays.
  void UseScreen(int width, int height, int dpi, bool vgaMode = false) {
    memory.system.screen = {width, height, dpi, dpi};
    scale = context.scale = ScreenScale(dpi, dpi, vgaMode);
    Language unused;
    store.Load(machine, scale, unused);
  }

  void InstallCompanion() { Put(L"SOFTWARE\\Velmont Calendar", L"ExecutablePath", L""); }
  void InstallOtherPrograms() {
    Put(L"Software\\WebIS\\PocketInformant", L"version", L"");
    Put(L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath", L"");
    Put({RegistryRoot::kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion"}, L"VerMajor",
        L"");
    InstallWeather();
  }
  void InstallWeather() {
    Put(L"SOFTWARE\\Velmont Weather", L"UtilityLibrary", kWeatherLibrary);
    files.Put(kWeatherLibrary, "MZ");
  }

  // These make a key when it is missing.
  FlushedKey KeyOf(SettingKey key) { return CreateSettingKey(registry, key); }
  void Put(const KeyPlace& key, const std::wstring& name, std::uint32_t number) {
    PutRaw(key, name, kTypeDword, std::as_bytes(std::span(&number, 1)));
  }
  void Put(const KeyPlace& key, const std::wstring& name, const std::wstring& text) {
    PutRaw(key, name, kTypeString, BytesOf(text + L'\0'));
  }
  void PutBytes(const KeyPlace& key, const std::wstring& name,
                const std::vector<unsigned char>& bytes) {
    PutRaw(key, name, kTypeBinary, std::as_bytes(std::span(bytes)));
  }
  void PutRaw(const KeyPlace& key, const std::wstring& name, std::uint32_t type,
              std::span<const std::byte> data) {
    SetRaw(registry, key.root, key.path, name, type, data);
  }
  // Numbers by name: "dNumOfDays=7 TimelinesStart=-1".
  void PutNumbers(const KeyPlace& key, const char* text) {
    std::istringstream words(text);
    std::string name;
    long long number = 0;
    while (std::getline(words >> std::ws, name, '=') && words >> number) {
      Put(key, std::wstring(name.begin(), name.end()), static_cast<std::uint32_t>(number));
    }
  }
  std::optional<std::uint32_t> Stored(const KeyPlace& key, const std::wstring& name) {
    return FindDword(registry.Open(key.root, key.path).get(), name);
  }
  std::string Dump(const KeyPlace& key) { return DumpTree(registry, key.root, key.path); }
  void Delete(const KeyPlace& key) { registry.DeleteTree(key.root, key.path); }
  int Sets() const { return recorded.Count(RegistryCall::kSet); }
  int Deletes() const { return recorded.Count(RegistryCall::kDeleteValue); }

  static constexpr const wchar_t* kWeatherLibrary = L"\\Weather\\util.dll";
  MemoryMachine memory;
  MemoryRegistry& registry = memory.registry;
  MemoryFiles& files = memory.files;
  RecordedRegistry recorded{registry};
  RecordedFiles recordedFiles{files};
  Machine machine{recorded, recordedFiles, memory.locale, memory.libraries, memory.system};
  ScreenScale scale{96, 96, false};
  Language language;
  SettingsStore store;
  CategoryCatalog catalog{machine, store};
  FakeDialogs dialogs;
  PageContext context{machine, store, catalog, language, scale, &dialogs};
};

}  // namespace tidewell
