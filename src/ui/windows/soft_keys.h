// The two soft keys of dialogs that make a choice, for the resource scripts as well: IDOK on the
// left, IDCANCEL or a menu on the right.
#pragma once

#define IDR_CHOICE_KEYS 300
#define IDR_CHOICE_AND_MENU 301
