// How the device shell's own strips look: the title strip and the menu bar.
#pragma once

#include <windows.h>

#include "platform/scale.h"
#include "win32/gdi.h"
#include "win32/palette.h"

namespace tidewell {

// Design height of the title strip and of a menu bar.
inline constexpr int kStripHeight = 26;

inline constexpr COLORREF kStripText = RGB(255, 255, 255);
inline constexpr COLORREF kStripTextDisabled = RGB(148, 160, 176);
inline constexpr COLORREF kStripEdge = RGB(24, 34, 50);

// Tabs, and the keys of boxes that lie on white paper.
inline constexpr COLORREF kFlatPaper = RGB(236, 239, 243);

// The scale of the screen itself, whatever a program does with its own lengths.
const ScreenScale& ShellScale();

// Tahoma of a design height in the shell's scale.
Font ShellFont(int height, int weight);

// The background of a strip, or of the part of one that is being pressed.
void DrawStripBackground(HDC dc, const RECT& area, bool pressed);
// A circle with smooth edges, `thickness` pixels wide; a thickness of the radius fills it.
void DrawCircle(HDC dc, const RECT& around, int thickness, COLORREF colour);

}  // namespace tidewell
