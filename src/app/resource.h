// The program's own resources and the commands of its accelerators.
#pragma once

#define IDI_TIDEWELL 1557

#define ID_LEFT_BUTTON 101   // the command bar's left button
#define ID_RIGHT_BUTTON 102  // and its right one
