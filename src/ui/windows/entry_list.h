// A list control with the entries of a folder. It stays instant with thousands of entries: names
// are lent to the control as it asks for them, and icons are fetched for the rows in view alone,
// after the names have been painted. Windows only.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/scale.h"
#include "ui/folder_listing.h"
#include "ui/windows/file_icons.h"
#include "win32/control_hook.h"

namespace tidewell {

class EntryList {
 public:
  using Row = std::optional<std::size_t>;
  // Answers a key before the list does; true when the list is not to have it.
  using OnKey = std::function<bool(WPARAM key)>;

  void Create(HWND parent, int id, HFONT font, const ScreenScale& scale, OnKey onKey);
  HWND Window() const { return list_; }
  // In the parent's client area; the column is no wider than the room beside the scroll bar.
  void Place(int x, int y, int width, int height, int columnWidth);

  // Shows other entries from the top, none marked. `entries` is lent until the next call; `upPath`
  // is where a row that leads upwards finds its icon.
  void Show(const std::vector<ListedEntry>& entries, const std::wstring& folder,
            const std::wstring& upPath);
  // Selects a row and brings it into view.
  void Mark(std::size_t row);
  void Unmark();
  Row Marked() const;
  // The row where a selection by keys or stylus begins; none before the first one.
  Row Anchor() const;

  // The list's own notifications; the answer to them, or nothing for those of the dialog.
  std::optional<LRESULT> OnNotify(const NMHDR& header);
  // The parent's WM_MEASUREITEM, which comes during Create, and WM_DRAWITEM.
  void Measure(MEASUREITEMSTRUCT& item) const;
  void Draw(const DRAWITEMSTRUCT& item);

 private:
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void FillItem(LVITEMW& item) const;
  int FindName(const NMLVFINDITEMW& wanted) const;
  void FitColumn();
  void PaintIcon(HDC dc, std::size_t row, const RECT& cell);
  void LoadIconsInView();

  HWND list_ = nullptr;
  ScreenScale scale_;
  ControlHook hook_;
  OnKey onKey_;
  FileIcons icons_;
  const std::vector<ListedEntry>* entries_ = nullptr;
  std::wstring folder_;
  std::wstring upPath_;
  std::vector<int> images_;  // per row; kNotLoaded until the row has been in view
  int columnWidth_ = 0;
};

}  // namespace tidewell
