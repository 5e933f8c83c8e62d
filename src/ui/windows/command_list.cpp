#include "ui/windows/command_list.h"

#include <algorithm>
#include <utility>

#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr int kRowHeight = 36;
constexpr int kMargin = 8;

}  // namespace

void CommandList::Create(HWND window, const ScreenScale& scale, HFONT regular, HFONT bold,
                         Run run) {
  window_ = window;
  scale_ = scale;
  regular_ = regular;
  bold_ = bold;
  run_ = std::move(run);
}

void CommandList::Show(std::vector<CommandEntry> entries, int width, int height) {
  entries_ = std::move(entries);
  pictureWidth_ = 0;
  pictureHeight_ = 0;
  for (const auto& entry : entries_) {
    pictureWidth_ = std::max(pictureWidth_, entry.picture.Width());
    pictureHeight_ = std::max(pictureHeight_, entry.picture.Height());
  }
  selected_ = 0;
  pressed_.reset();
  list_.Initialise(window_, 0, *this, scale_, {0, 0, width, height});
}

void CommandList::MoveSelection(int step) {
  const bool canMove = step < 0 ? selected_ > 0 : selected_ + 1 < entries_.size();
  if (!canMove) return;
  selected_ = step < 0 ? selected_ - 1 : selected_ + 1;
  const int top = static_cast<int>(selected_) * RowHeight();
  if (!list_.BringIntoView(top, top + RowHeight())) list_.Redraw();
}

void CommandList::RunSelected() {
  if (selected_ < entries_.size()) run_(entries_[selected_].command);
}

int CommandList::RowHeight() const {
  return std::max(scale_.ScaleY(kRowHeight), pictureHeight_);
}

std::optional<std::size_t> CommandList::RowAt(int contentY) const {
  if (contentY < 0) return std::nullopt;
  const auto row = static_cast<std::size_t>(contentY / RowHeight());
  if (row >= entries_.size()) return std::nullopt;
  return row;
}

// While the list scrolls, what may be drawn on is the strip that comes into view: rows beside it
// are left out.
int CommandList::Paint(int, void* surface, void*, int offset, int width, int) {
  const HDC dc = static_cast<HDC>(surface);
  RECT part{};
  GetClipBox(dc, &part);
  FillPlain(dc, part, kPaper);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, kInk);
  const tidewell::Selected font(dc, regular_);
  const int height = RowHeight();
  const int count = static_cast<int>(entries_.size());
  const int end = std::min((static_cast<int>(part.bottom) - offset + height - 1) / height, count);
  for (int i = std::max((static_cast<int>(part.top) - offset) / height, 0); i < end; ++i) {
    const int top = offset + i * height;
    const auto row = static_cast<std::size_t>(i);
    PaintRow(dc, {0, top, width, top + height}, entries_[row], row == pressed_.value_or(selected_));
  }
  return count * height;
}

void CommandList::PaintRow(HDC dc, const RECT& row, const CommandEntry& entry,
                           bool selected) const {
  if (selected) FillVertically(dc, row, kSelectionTop, kSelectionBottom);
  FillPlain(dc, {row.left, row.bottom - 1, row.right, row.bottom},
            selected ? kSelectionEdge : kHairline);

  const int margin = scale_.ScaleX(kMargin);
  RECT place = row;
  place.left += margin;
  if (pictureWidth_ > 0) {
    entry.picture.DrawCentred(dc, {place.left, row.top, place.left + pictureWidth_, row.bottom});
    place.left += pictureWidth_ + margin;
  }
  place.right -= margin;
  const tidewell::Selected font(dc, selected ? bold_ : regular_);
  DrawTextW(dc, entry.caption.c_str(), static_cast<int>(entry.caption.size()), &place,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

bool CommandList::Highlight(int, int, int contentY) {
  const auto row = RowAt(contentY);
  const bool changed = row != pressed_;
  pressed_ = row;
  return changed;
}

void CommandList::DragStarted(int) {
  pressed_.reset();
}

void CommandList::Activate(int, int, int contentY) {
  pressed_.reset();
  const auto row = RowAt(contentY);
  if (!row) return;
  selected_ = *row;
  list_.Redraw();
  run_(entries_[selected_].command);
}

}  // namespace tidewell
