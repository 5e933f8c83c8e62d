// The lines of a list view, all at once. Windows only.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <map>
#include <vector>

#include "pages/page_rules.h"
#include "platform/scale.h"
#include "win32/gdi.h"

namespace tidewell {

ListLine LineOf(HWND list, int index);
std::vector<ListLine> LinesOf(HWND list);
// Replaces all lines; none is selected. The list stays where it was scrolled to. With pictures, it
// asks for that of each line it paints.
void ShowLines(HWND list, const std::vector<ListLine>& lines, bool havePictures = false);

// Makes the column of texts as wide as the list beside its scroll bar, if it has one: a desktop's
// list view scrolls sideways otherwise. To be called after each change of the lines or of the
// place; a list gets its columns from the first call: before it has lines, it does not know of the
// scroll bar. Texts end `besides` pixels before the right edge, where an empty second column keeps
// them away; each list is fitted with the same number.
void FitColumn(HWND list, const wchar_t* title = L"List Column", int besides = 0);

// What some lines of a list look like, drawn when the list asks for it.
class LineLooks {
 public:
  // `nameOfNone` stands in the swatch of no color.
  LineLooks(const ScreenScale& scale, std::wstring nameOfNone)
      : scale_(scale), nameOfNone_(std::move(nameOfNone)) {}

  // What a list keeps free at its right edge if its texts may be longer than swatches allow.
  int SwatchRoom() const;
  void Clear() { lines_.clear(); }
  void Set(HWND list, int line, const LineLook& look);
  // Answers NM_CUSTOMDRAW.
  LRESULT Draw(NMLVCUSTOMDRAW& draw) const;

 private:
  struct Line {
    LineLook look;
    Font font;  // none: the list's own
  };

  LRESULT Dress(const Line& line, NMLVCUSTOMDRAW& draw) const;
  void DrawSwatchOf(const Line& line, const NMLVCUSTOMDRAW& draw) const;

  const ScreenScale& scale_;
  std::wstring nameOfNone_;
  std::map<int, Line> lines_;
};

}  // namespace tidewell
