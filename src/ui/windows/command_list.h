// A finger-scrolled list of commands: one row each with a picture and a caption. A tap on a row,
// or Enter on the selected one, runs its command.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/windows/kinetic_list.h"
#include "ui/windows/picture.h"

namespace tidewell {

struct CommandEntry {
  std::wstring caption;
  Picture picture;
  int command = 0;
};

class CommandList final : private ScrollerClient {
 public:
  using Run = std::function<void(int command)>;

  // `regular` and `bold` are lent and outlive the list. `run` may change the entries or destroy
  // the window.
  void Create(HWND window, const ScreenScale& scale, HFONT regular, HFONT bold, Run run);
  // Shows other entries from the top, the first one selected.
  void Show(std::vector<CommandEntry> entries, int width, int height);
  void Resize(int width, int height) { list_.Resize(width, height); }
  void Paint(HDC dc) const { list_.Paint(dc); }

  // Selects the neighbour above (-1) or below (1) and brings it into view.
  void MoveSelection(int step);
  void RunSelected();

  KineticList& Pointer() { return list_; }
  const std::vector<CommandEntry>& Entries() const { return entries_; }
  std::size_t Selected() const { return selected_; }
  int RowHeight() const;

 private:
  int Paint(int clientId, void* surface, void* context, int offset, int width, int height) override;
  bool Highlight(int clientId, int x, int contentY) override;
  void DragStarted(int clientId) override;
  void Activate(int clientId, int x, int contentY) override;

  std::optional<std::size_t> RowAt(int contentY) const;
  void PaintRow(HDC dc, const RECT& row, const CommandEntry& entry, bool selected) const;

  KineticList list_;
  HWND window_ = nullptr;
  ScreenScale scale_;
  HFONT regular_ = nullptr;
  HFONT bold_ = nullptr;
  Run run_;
  std::vector<CommandEntry> entries_;
  int pictureWidth_ = 0;   // of the widest picture
  int pictureHeight_ = 0;  // of the highest picture
  std::size_t selected_ = 0;
  std::optional<std::size_t> pressed_;  // looks selected while it is touched
};

}  // namespace tidewell
