// What the main list offers: the twelve groups with the about entry, or the tools.
#pragma once

#include <span>
#include <vector>

#include "pages/page_list.h"

namespace tidewell {

// Commands of the main list. 0 to 11 open the page of that group.
inline constexpr int kGroupCount = kPageCount;
inline constexpr int kAboutCommand = 12;
inline constexpr int kExportCommand = 21;
inline constexpr int kImportCommand = 22;
inline constexpr int kExitCommand = 23;

// Commands of the command bar.
inline constexpr int kDoneCommand = 0;
inline constexpr int kShowToolsCommand = 1;
inline constexpr int kShowMainCommand = 2;

struct MainEntry {
  int command;
  int textId;           // a text of the language library, or 0
  const wchar_t* text;  // the caption where there is no such text
  int picture;          // a bitmap of the resolution library, or 0
};

std::vector<MainEntry> MainEntries();
std::span<const MainEntry> ToolEntries();

}  // namespace tidewell
