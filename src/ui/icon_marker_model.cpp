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

void DrawCentred(Canvas& canvas, const Rect& cell, const MarkerItem& item, IconSource& icons) {
  const std::optional<IconSymbol> symbol = SymbolOf(item.value);
  const Image* icon = symbol ? icons.Find(*symbol) : nullptr;
  if (!icon) return;
  PaintIcon(canvas, icon, cell.left + (cell.width - icon->Width()) / 2,
            cell.top + (cell.height - icon->Height()) / 2);
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
    const bool isOn = mode == MarkerMode::kMany ? (choice.value & current) != 0  //
                                                : choice.value == current;
    items_.push_back({choice.value, isOn ? MarkerState::kOn : MarkerState::kOff,
                      language.Text(choice.textId), choice.orderKey, index++});
  }
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

int IconMarkerModel::Width(const ScreenScale& scale) const {
  if (mode_ == MarkerMode::kOne) return scale.ScaleX(16) + scale.ScaleX(1, true);
  return scale.ScaleX(1) + scale.ScaleX(16) * static_cast<int>(items_.size());
}

const MarkerItem* IconMarkerModel::Tap(int x, const ScreenScale& scale) {
  MarkerItem* item = ItemOfIndex(x / scale.ScaleX(16));
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
                            IconSource& icons) const {
  const int edge = scale.ScaleX(1);
  Rect cell{client.left + edge, client.top + edge, scale.ScaleX(15), client.height - 2 * edge};
  if (mode_ == MarkerMode::kOne) {
    canvas.Fill(client, kOffColor);
    const auto isOn = [](const MarkerItem& item) { return item.state == MarkerState::kOn; };
    const auto chosen = std::find_if(items_.begin(), items_.end(), isOn);
    if (chosen != items_.end()) DrawCentred(canvas, cell, *chosen, icons);
    return;
  }
  canvas.Fill(client, kStripColor);
  for (const MarkerItem& item : items_) {
    canvas.Fill(cell, item.state == MarkerState::kOn ? kOnColor : kOffColor);
    DrawCentred(canvas, cell, item, icons);
    if (item.state == MarkerState::kDisabled) canvas.Overlay(cell, kDisabledColor, kDisabledWeight);
    cell.left += scale.ScaleX(16);
  }
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

}  // namespace tidewell
