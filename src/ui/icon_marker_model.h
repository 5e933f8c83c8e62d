// The choices of an icon marker, a strip with one cell for each icon: which are on, what a tap
// does, what its menu offers, and how it is painted.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/language.h"
#include "platform/scale.h"
#include "preview/canvas.h"
#include "preview/icons.h"

namespace tidewell {

enum class MarkerState : std::uint8_t { kOn = 0, kOff = 1, kDisabled = 2 };

// Whether a strip shows a set of icons, all of them, or one, chosen from a menu.
enum class MarkerMode : std::uint8_t { kMany, kOne };

// What a strip offers.
struct MarkerChoice {
  std::uint32_t value;  // an icon code
  int textId;
  int orderKey;
};

// The icons that can be chosen for appointments and for tasks, in their order.
std::span<const MarkerChoice> AppointmentMarkerChoices();
std::span<const MarkerChoice> TaskMarkerChoices();

struct MarkerItem {
  std::uint32_t value;
  MarkerState state;
  std::wstring name;
  int orderKey;
  int index;  // in the order in which the choices were given
};

struct MarkerMenuEntry {
  std::wstring text;
  int command;
  bool isChecked;

  bool operator==(const MarkerMenuEntry&) const = default;
};

inline constexpr int kFirstMarkerCommand = 1144;
inline constexpr int kLastMarkerCommand = 1174;

class IconMarkerModel {
 public:
  // `current` is a mask of codes, or the one that is chosen. The language may be null.
  IconMarkerModel(MarkerMode mode, std::span<const MarkerChoice> choices, std::uint32_t current,
                  const Language& language);

  MarkerMode Mode() const { return mode_; }
  // By ascending order key; of equal ones the later given comes later.
  const std::vector<MarkerItem>& Items() const { return items_; }
  // The codes that are on: a mask, or one code, or 0.
  std::uint32_t Value() const;
  // Turns on what `current` says, as above, and the rest off, but for what is disabled.
  void SetValue(std::uint32_t current);
  void SetOff(std::uint32_t value) { SetState(value, MarkerState::kOff); }
  void SetDisabled(std::uint32_t value) { SetState(value, MarkerState::kDisabled); }

  // In pixels.
  static int Width(MarkerMode mode, std::size_t choices, const ScreenScale& scale);
  static int Height(const ScreenScale& scale) { return scale.ScaleX(17); }
  // Counted from 0, also beside the cells.
  static int CellAt(int x, const ScreenScale& scale) { return x / scale.ScaleX(16); }
  // Within the strip, without the lines around it.
  static Rect PlaceOfCell(int cell, const ScreenScale& scale);
  int CellCount() const { return mode_ == MarkerMode::kOne ? 1 : static_cast<int>(items_.size()); }
  // What a cell is called: by its icon or, in a strip of one, by the chosen one's.
  std::wstring NameOfCell(int cell) const;

  // A tap in a strip of many, `x` from its left edge: turns the cell's item on or off unless that
  // is disabled. Returns the item, or null beside the cells.
  const MarkerItem* Tap(int x, const ScreenScale& scale);

  // The menu of a strip of one. Its first entry chooses none.
  std::vector<MarkerMenuEntry> Menu() const;
  // Chooses what a command of the menu says. Returns its value; nothing for another's command.
  std::optional<std::uint32_t> Choose(int command);

  // Without icons where `icons` is null; a cell that keys would work has a frame.
  void Paint(Canvas& canvas, const Rect& client, const ScreenScale& scale, IconSource* icons,
             std::optional<int> focusedCell = std::nullopt) const;

 private:
  bool IsOn(std::uint32_t value, std::uint32_t current) const;
  void SetState(std::uint32_t value, MarkerState state);
  MarkerItem* ItemOfIndex(int index);
  const MarkerItem* ChosenItem() const;

  MarkerMode mode_;
  std::vector<MarkerItem> items_;
  std::wstring noneText_;
};

}  // namespace tidewell
