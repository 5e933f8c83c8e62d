#include "addons/language_packs.h"

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr std::size_t kNameCapacity = 255;

}  // namespace

const std::wstring* LanguagePacks::PathOf(int choice) const {
  const auto slot = static_cast<std::size_t>(choice);
  if (choice < 0 || slot >= paths.size() || paths[slot].empty()) return nullptr;
  return &paths[slot];
}

LanguagePacks ScanLanguagePacks(const Machine& machine, const std::wstring& installFolder,
                                const std::wstring& present) {
  LanguagePacks packs;
  std::size_t slot = 0;
  machine.files.List(installFolder + L"\\LangRes\\*.dll", [&](const FileEntry& entry) {
    const std::wstring path = installFolder + L"\\LangRes\\" + entry.name;
    const auto library = machine.libraries.Load(path);
    if (!library) return true;
    if (const auto name = library->FindText(IDS_LANGUAGE_NAME)) {
      packs.paths[slot] = path;
      packs.names.push_back(name->substr(0, kNameCapacity));
      if (path == present) packs.selection = static_cast<int>(slot);
    }
    return ++slot < kLanguageSlots;
  });
  return packs;
}

}  // namespace tidewell
