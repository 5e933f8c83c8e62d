// The icon sets that are installed side by side; docs/icon-sets.md tells what one is.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/files.h"
#include "settings/catalogue/icon_set_settings.h"

namespace tidewell {

class IconSets {
 public:
  // The set that ships, whose folder is not looked at; then every other folder in the install
  // folder's IconSets, by name.
  IconSets(Files& files, const std::wstring& installFolder);

  const std::vector<std::wstring>& Names() const { return names_; }
  // Which of them the settings name; -1 for none.
  int Find(const IconSetSettings& settings) const;
  void Choose(int set, IconSetSettings& settings) const;

 private:
  // In the order of the settings' lines.
  using Folders = std::array<std::wstring, 4>;

  Folders FoldersOf(const std::wstring& name) const;

  Files& files_;
  std::wstring folder_;
  std::vector<std::wstring> names_;
};

}  // namespace tidewell
