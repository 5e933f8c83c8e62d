#include "app/main_entries.h"

#include "pages/page_list.h"
#include "resources/art/bitmap_ids.h"

namespace tidewell {

namespace {

constexpr MainEntry kAboutEntry{kAboutCommand, 0, L"About Tidewell", IDB_ABOUT};

constexpr MainEntry kToolEntries[] = {
    {kExportCommand, 0, L"Export Settings", 0},
    {kImportCommand, 0, L"Import Settings", 0},
    {kExitCommand, 0, L"Exit Settings", IDB_EXIT},
};

}  // namespace

std::vector<MainEntry> MainEntries() {
  std::vector<MainEntry> entries;
  for (const PageEntry& page : kPages) {
    const int command = static_cast<int>(entries.size());
    entries.push_back({command, page.captionId, L"", page.pictureId});
  }
  entries.push_back(kAboutEntry);
  return entries;
}

std::span<const MainEntry> ToolEntries() {
  return kToolEntries;
}

}  // namespace tidewell
