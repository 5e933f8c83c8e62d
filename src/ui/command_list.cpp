#include "ui/command_list.h"

#include <algorithm>
#include <utility>

#include "ui/look.h"

namespace tidewell {

namespace {

constexpr int kRowHeight = 36;
constexpr int kMargin = 8;
constexpr int kThumbWidth = 3;
constexpr int kThumbMargin = 2;
constexpr int kShortestThumb = 16;

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
  for (const auto& entry : entries_) {
    pictureWidth_ = std::max(pictureWidth_, entry.picture.Width());
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
  list_.BringIntoView(top, top + RowHeight());
  list_.Redraw();
}

void CommandList::RunSelected() {
  if (selected_ < entries_.size()) run_(entries_[selected_].command);
}

int CommandList::RowHeight() const {
  return scale_.ScaleY(kRowHeight);
}

std::optional<std::size_t> CommandList::RowAt(int contentY) const {
  if (contentY < 0) return std::nullopt;
  const auto row = static_cast<std::size_t>(contentY / RowHeight());
  if (row >= entries_.size()) return std::nullopt;
  return row;
}

int CommandList::Paint(int, void* surface, void*, int offset, int width, int height) {
  const HDC dc = static_cast<HDC>(surface);
  FillPlain(dc, {0, 0, width, height}, kPaper);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, kInk);
  const std::size_t highlighted = pressed_.value_or(selected_);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const int top = offset + static_cast<int>(i) * RowHeight();
    const int bottom = top + RowHeight();
    if (bottom > 0 && top < height) {
      PaintRow(dc, {0, top, width, bottom}, entries_[i], i == highlighted);
    }
  }
  PaintThumb(dc, offset, width, height);
  return static_cast<int>(entries_.size()) * RowHeight();
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

// A thin mark at the right edge tells that there is more than the view shows, and where it is.
void CommandList::PaintThumb(HDC dc, int offset, int width, int height) const {
  const int content = static_cast<int>(entries_.size()) * RowHeight();
  if (content <= height) return;
  const int margin = scale_.ScaleX(kThumbMargin);
  const int track = height - 2 * margin;
  const int length = std::max(scale_.ScaleY(kShortestThumb), track * height / content);
  const int scrolled = std::clamp(-offset, 0, content - height);
  const int top = margin + (track - length) * scrolled / (content - height);
  const int right = width - margin;
  FillPlain(dc, {right - scale_.ScaleX(kThumbWidth), top, right, top + length}, kScrollThumb);
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
