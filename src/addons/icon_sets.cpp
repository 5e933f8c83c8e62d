#include "addons/icon_sets.h"

#include <algorithm>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kShippedSet = L"Tidewell";

}  // namespace

IconSets::IconSets(Files& files, const std::wstring& installFolder)
    : files_(files), folder_(JoinPath(installFolder, L"IconSets")) {
  files_.List(JoinPath(folder_, L"*"), [&](const FileEntry& entry) {
    const bool isSet = entry.isFolder && !EqualIgnoringCase(entry.name, kShippedSet);
    if (isSet) names_.push_back(entry.name);
    return true;
  });
  std::ranges::sort(names_, [](const std::wstring& left, const std::wstring& right) {
    return CompareFolded(left, right) < 0;
  });
  names_.insert(names_.begin(), kShippedSet);
}

int IconSets::Find(const IconSetSettings& settings) const {
  const Folders stored = {settings.InstallPath12.Value(), settings.InstallPath18.Value(),
                          settings.InstallPath24.Value(), settings.InstallPathBlank.Value()};
  const auto found = std::ranges::find_if(names_, [&](const std::wstring& name) {
    return std::ranges::equal(FoldersOf(name), stored, EqualIgnoringCase);
  });
  return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

void IconSets::Choose(int set, IconSetSettings& settings) const {
  const Folders folders = FoldersOf(names_[static_cast<std::size_t>(set)]);
  settings.InstallPath12.Set(folders[0]);
  settings.InstallPath18.Set(folders[1]);
  settings.InstallPath24.Set(folders[2]);
  settings.InstallPathBlank.Set(folders[3]);
}

IconSets::Folders IconSets::FoldersOf(const std::wstring& name) const {
  if (name == kShippedSet) return {};
  const std::wstring set = JoinPath(folder_, name);
  const std::wstring blank = JoinPath(set, L"Blank");
  const auto entry = files_.Find(blank);
  return {JoinPath(set, L"12"), JoinPath(set, L"18"), JoinPath(set, L"24"),
          entry && entry->isFolder ? blank : L""};
}

}  // namespace tidewell
