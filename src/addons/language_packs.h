// The language packs that are installed side by side.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/machine.h"

namespace tidewell {

inline constexpr std::size_t kLanguageSlots = 20;

struct LanguagePacks {
  std::vector<std::wstring> names;                   // the choices, each in its own language
  std::array<std::wstring, kLanguageSlots> paths{};  // by slot
  int selection = 0;                                 // the present pack's slot

  // Null when no pack is kept for that choice.
  const std::wstring* PathOf(int choice) const;
};

// Every library in the install folder's LangRes takes a slot, in the file system's order, until
// the slots are full; the choices are those that tell their name. A library without a name takes
// its slot all the same, on purpose: the slots of later packs are then no longer their choices'
// positions.
LanguagePacks ScanLanguagePacks(const Machine& machine, const std::wstring& installFolder,
                                const std::wstring& present);

}  // namespace tidewell
