// The pictures of the resolution libraries by number, shared by the program and their script.
// Numbers are a contract with the installed libraries.
#pragma once

#define IDB_LOGO 281  // opaque, pure red where the background shows through

// The list of groups: 28 pixels square at 96 dots per inch, premultiplied alpha, as below.
#define IDB_CALENDAR 1649
#define IDB_CATEGORIES 1650
#define IDB_COLORS 1651
#define IDB_CONTACTS 1652
#define IDB_FONTS 1653
#define IDB_GENERAL 1654
#define IDB_MESSAGES 1655
#define IDB_NOTES 1656
#define IDB_PIM 1657
#define IDB_SPECIAL_EVENTS 1658
#define IDB_TABS 1659
#define IDB_TASKS 1660
#define IDB_ABOUT 1661

// The command bar.
#define IDB_EXIT 1662  // also in the list of tools
#define IDB_DONE 1663
#define IDB_TOOLS 1664

// The icons of items, in the order of IconSymbol: 12 pixels square at 96 dots per inch.
#define IDB_FIRST_ITEM_ICON 1700
