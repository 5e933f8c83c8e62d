#include "ui/icon_marker_model.h"

#include <algorithm>

#include "preview/today_item.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr Color kStripColor = Rgb(20, 20, 50);
constexpr Color kOnColor = Rgb(80, 90, 170);
constexpr Color kOffColor = Rgb(243, 243, 243);
constexpr Color kDisabledColor = Rgb(190, 190, 190);
constexpr std::uint32_t kDisabledWeight = 200;
constexpr Color kFocusColor = Rgb(255, 160, 0);

constexpr MarkerChoice kAppointmentChoices[] = {
    {kReminderIcon, IDS_ICON_REMINDER, 1},   {kPrivateIcon, IDS_ICON_PRIVATE, 2},
    {kRecurringIcon, IDS_ICON_RECURRING, 3}, {kNoteIcon, IDS_ICON_NOTE, 4},
    {kCategoryIcon, IDS_ICON_CATEGORY, 5},   {kAttendeesIcon, IDS_ICON_ATTENDEES, 6},
    {kAttachedIcon, IDS_ICON_ATTACHED, 7},   {kLinkIcon, IDS_ICON_LINK, 8},
};
constexpr MarkerChoice kTaskChoices[] = {
    {kReminderIcon, IDS_ICON_REMINDER, 1},   {kPrivateIcon, IDS_ICON_PRIVATE, 2},
    {kRecurringIcon, IDS_ICON_RECURRING, 3}, {kNoteIcon, IDS_ICON_NOTE, 4},
    {kCategoryIcon, IDS_ICON_CATEGORY, 5},   {kImportanceIcon, IDS_ICON_IMPORTANCE, 6},
    {kAttachedIcon, IDS_ICON_ATTACHED, 7},   {kLinkIcon, IDS_ICON_LINK, 8},
};

// The picture that stands for a code where there is no item to ask.
std::optional<IconSymbol> SymbolOf(std::uint32_t code) {
  TodayItem item;
  item.kind = code == kImportanceIcon ? ItemKind::kTask : ItemKind::kAppointment;
  item.reminder = item.note = item.link = 1;
  item.sensitivity = 2;
  item.recurrence = 1;
  item.attendees = true;
  item.importance = kHighImportance;
  return IconOf(item, code);
}

void DrawCentred(Canvas& canvas, const Rect& cell, const MarkerItem& item, IconSource* icons) {
  const std::optional<IconSymbol> symbol = SymbolOf(item.value);
  const Image* icon = symbol && icons ? icons->Find(*symbol) : nullptr;
  if (!icon) return;
  PaintIcon(canvas, icon, cell.left + (cell.width - icon->Width()) / 2,
            cell.top + (cell.height - icon->Height()) / 2);
}

void PaintCell(Canvas& canvas, const Rect& cell, const MarkerItem& item, IconSource* icons) {
  canvas.Fill(cell, item.state == MarkerState::kOn ? kOnColor : kOffColor);
  DrawCentred(canvas, cell, item, icons);
  if (item.state == MarkerState::kDisabled) canvas.Overlay(cell, kDisabledColor, kDisabledWeight);
}

void DrawFrame(Canvas& canvas, const Rect& cell, int width) {
  canvas.Fill({cell.left, cell.top, cell.width, width}, kFocusColor);
  canvas.Fill({cell.left, cell.Bottom() - width, cell.width, width}, kFocusColor);
  canvas.Fill({cell.left, cell.top, width, cell.height}, kFocusColor);
  canvas.Fill({cell.Right() - width, cell.top, width, cell.height}, kFocusColor);
}

}  // namespace

std::span<const MarkerChoice> AppointmentMarkerChoices() {
  return kAppointmentChoices;
}

std::span<const MarkerChoice> TaskMarkerChoices() {
  return kTaskChoices;
}

IconMarkerModel::IconMarkerModel(MarkerMode mode, std::span<const MarkerChoice> choices,
                                 std::uint32_t current, const Language& language)
    : mode_(mode), noneText_(language.Text(IDS_ICON_NONE)) {
  int index = 0;
  for (const MarkerChoice& choice : choices) {
    items_.push_back(
        {choice.value, MarkerState::kOff, language.Text(choice.textId), choice.orderKey, index++});
  }
  SetValue(current);
  std::stable_sort(items_.begin(), items_.end(),
                   [](const MarkerItem& left, const MarkerItem& right) {
                     return left.orderKey < right.orderKey;
                   });
}

std::uint32_t IconMarkerModel::Value() const {
  std::uint32_t value = 0;
  for (const MarkerItem& item : items_) {
    if (item.state == MarkerState::kOn) value |= item.value;
  }
  return value;
}

void IconMarkerModel::SetValue(std::uint32_t current) {
  for (MarkerItem& item : items_) {
    if (item.state == MarkerState::kDisabled) continue;
    item.state = IsOn(item.value, current) ? MarkerState::kOn : MarkerState::kOff;
  }
}

bool IconMarkerModel::IsOn(std::uint32_t value, std::uint32_t current) const {
  return mode_ == MarkerMode::kMany ? (value & current) != 0 : value == current;
}

int IconMarkerModel::Width(MarkerMode mode, std::size_t choices, const ScreenScale& scale) {
  if (mode == MarkerMode::kOne) return scale.ScaleX(16) + scale.ScaleX(1, true);
  return scale.ScaleX(1) + scale.ScaleX(16) * static_cast<int>(choices);
}

Rect IconMarkerModel::PlaceOfCell(int cell, const ScreenScale& scale) {
  const int edge = scale.ScaleX(1);
  return {edge + cell * scale.ScaleX(16), edge, scale.ScaleX(15), Height(scale) - 2 * edge};
}

std::wstring IconMarkerModel::NameOfCell(int cell) const {
  const MarkerItem* chosen = ChosenItem();
  if (mode_ == MarkerMode::kOne) return chosen ? chosen->name : noneText_;
  const auto item = std::find_if(items_.begin(), items_.end(),
                                 [&](const MarkerItem& any) { return any.index == cell; });
  return item == items_.end() ? std::wstring() : item->name;
}

const MarkerItem* IconMarkerModel::Tap(int x, const ScreenScale& scale) {
  MarkerItem* item = ItemOfIndex(CellAt(x, scale));
  if (item && item->state != MarkerState::kDisabled) {
    item->state = item->state == MarkerState::kOn ? MarkerState::kOff : MarkerState::kOn;
  }
  return item;
}

std::vector<MarkerMenuEntry> IconMarkerModel::Menu() const {
  std::vector<MarkerMenuEntry> entries{{noneText_, 0, true}};
  for (const MarkerItem& item : items_) {
    const bool isOn = item.state == MarkerState::kOn;
    entries.push_back({item.name, kFirstMarkerCommand + item.index, isOn});
    if (isOn) entries[0].isChecked = false;
  }
  return entries;
}

std::optional<std::uint32_t> IconMarkerModel::Choose(int command) {
  MarkerItem* chosen = nullptr;
  if (command != 0) {
    if (command < kFirstMarkerCommand || command > kLastMarkerCommand) return std::nullopt;
    chosen = ItemOfIndex(command - kFirstMarkerCommand);
    if (!chosen) return std::nullopt;
  }
  for (MarkerItem& item : items_) item.state = MarkerState::kOff;
  if (!chosen) return 0;
  chosen->state = MarkerState::kOn;
  return chosen->value;
}

void IconMarkerModel::Paint(Canvas& canvas, const Rect& client, const ScreenScale& scale,
                            IconSource* icons, std::optional<int> focusedCell) const {
  const auto placeOf = [&](int cell) {
    return PlaceOfCell(cell, scale).Moved(client.left, client.top);
  };
  canvas.Fill(client, mode_ == MarkerMode::kOne ? kOffColor : kStripColor);
  if (mode_ == MarkerMode::kOne) {
    if (const MarkerItem* chosen = ChosenItem()) DrawCentred(canvas, placeOf(0), *chosen, icons);
  } else {
    for (int cell = 0; cell < CellCount(); ++cell) {
      PaintCell(canvas, placeOf(cell), items_[static_cast<std::size_t>(cell)], icons);
    }
  }
  if (focusedCell) DrawFrame(canvas, placeOf(*focusedCell), scale.ScaleX(1));
}

void IconMarkerModel::SetState(std::uint32_t value, MarkerState state) {
  const auto item = std::find_if(items_.begin(), items_.end(),
                                 [&](const MarkerItem& any) { return any.value == value; });
  if (item != items_.end()) item->state = state;
}

MarkerItem* IconMarkerModel::ItemOfIndex(int index) {
  const auto item = std::find_if(items_.begin(), items_.end(),
                                 [&](const MarkerItem& any) { return any.index == index; });
  return item == items_.end() ? nullptr : &*item;
}

const MarkerItem* IconMarkerModel::ChosenItem() const {
  const auto isOn = [](const MarkerItem& item) { return item.state == MarkerState::kOn; };
  const auto chosen = std::find_if(items_.begin(), items_.end(), isOn);
  return chosen == items_.end() ? nullptr : &*chosen;
}

}  // namespace tidewell
