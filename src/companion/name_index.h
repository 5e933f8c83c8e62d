// Places in a list by the names of what stands there. A file may have a million of them: a slot is
// eight bytes, so that one look costs one stretch of memory.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/text.h"

namespace tidewell {

class NameIndex {
 public:
  // Of a name in a group of names, whatever its letter case.
  static std::uint32_t HashOf(std::size_t group, std::wstring_view name) {
    std::uint64_t hash = (group + 1) * 0x9E3779B97F4A7C15;
    for (const wchar_t unit : name) {
      hash = (hash ^ static_cast<std::uint64_t>(FoldCase(unit))) * 0x100000001B3;
    }
    return static_cast<std::uint32_t>(hash * 0x9E3779B97F4A7C15 >> 32);
  }

  // The slot with that hash whose place fits; kNoSlot without one. Good until the next Add.
  static constexpr std::size_t kNoSlot = static_cast<std::size_t>(-1);
  template <typename Fits>
  std::size_t Find(std::uint32_t hash, Fits fits) const {
    for (std::size_t i = hash; !slots_.empty(); ++i) {
      const std::size_t slot = i & (slots_.size() - 1);
      if (slots_[slot].place == kFree) break;
      if (slots_[slot].hash == hash && fits(slots_[slot].place)) return slot;
    }
    return kNoSlot;
  }
  std::size_t PlaceIn(std::size_t slot) const { return slots_[slot].place; }
  void Move(std::size_t slot, std::size_t place) {
    slots_[slot].place = static_cast<std::uint32_t>(place);
  }

  void Add(std::uint32_t hash, std::size_t place) {
    if (2 * ++used_ > slots_.size()) Grow();
    Put({hash, static_cast<std::uint32_t>(place)});
  }

 private:
  static constexpr std::uint32_t kFree = 0xFFFFFFFF;
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t place = kFree;
  };

  void Put(const Slot& slot) {
    std::size_t i = slot.hash;
    while (slots_[i & (slots_.size() - 1)].place != kFree) ++i;
    slots_[i & (slots_.size() - 1)] = slot;
  }
  void Grow() {
    const std::vector<Slot> old =
        std::exchange(slots_, std::vector<Slot>(std::max<std::size_t>(2 * slots_.size(), 64)));
    for (const Slot& slot : old) {
      if (slot.place != kFree) Put(slot);
    }
  }

  std::vector<Slot> slots_;  // as many as a power of two
  std::size_t used_ = 0;
};

}  // namespace tidewell
