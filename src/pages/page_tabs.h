// The tabs of a settings page as data. A tab has one body below its title: a column of rows, a list
// of options with an editor above it, a list of items, or a column of icon pickers; and, if its
// rules paint something, room for that.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <set>
#include <variant>
#include <vector>

#include "pages/page_layout.h"
#include "pages/page_rows.h"

namespace tidewell {

struct RowColumn {
  std::vector<Row> rows;  // those that this device has
};

// The controls that the options of a page share, one set for all of its option lists. Of these an
// option shows its tip and those of its row's kind; 0 stands for a control that no option needs.
struct OptionEditor {
  int tipId = 0;
  int labelId = 0;
  int listId = 0;
  int checkId = 0;
  int pathId = 0;
  int clearPathId = 0;
  int browseId = 0;
  int textId = 0;
  int clearTextId = 0;
  int orderId = 0;
  int upId = 0;
  int downId = 0;
};

// A line of an option list. While it is selected `editor` is shown above the list, in the editor's
// controls; when it is no longer, its setting has what they held.
struct Option {
  int lineTextId;
  int tipTextId;  // 0: without a tip
  Row editor;
  int tipNumber = 0;  // what a "%d" in the tip stands for
};

Option CheckOption(int lineTextId, int captionId, int tipTextId, DwordSetting& setting);
Option ListOption(int lineTextId, int labelTextId, int tipTextId, DwordSetting& setting,
                  Choices choices);
// Stores the data of the chosen line, as DataList does.
Option DataOption(int lineTextId, int labelTextId, int tipTextId, DwordSetting& setting,
                  Choices choices, int otherwise = kNoChoice, std::uint32_t ofNoChoice = ~0u);
Option PathOption(int lineTextId, int tipTextId, StringSetting& setting, Browse browse);
Option TextOption(int lineTextId, int tipTextId, StringSetting& setting);

struct OptionList {
  int listId;
  OptionEditor editor;
  std::vector<Option> options;
};

enum class ListLook : std::uint8_t {
  kPlain,
  kTicked,      // with a box before each line
  kIcons,       // with the icon of the folder that each line names
  kCategories,  // with a category's icon before each line
};

// A text that can be typed above the list, and the button that takes it.
struct ItemField {
  int id;
  DesignPlace place;
  int longest;  // in characters
  ItemButton button;
};

// A line that stands for a setting, which the page's rules store.
struct SettingLine {
  std::wstring TextIn(const Language& language) const;

  int textId;
  Setting* setting;
  int groupId = 0;  // of a text that stands before the line's own
};

// Items that the page's rules fill in, and buttons that do something to them.
struct ItemList {
  int listId;
  ListLook look;
  DesignPlace place;
  std::vector<ItemButton> buttons = {};
  std::vector<ItemButton> labels = {};
  std::vector<const Setting*> settings = {};  // that the items are stored in
  std::vector<ItemField> fields = {};
  std::vector<SettingLine> lines = {};          // those that are the same whatever is stored
  const wchar_t* columnTitle = L"List Column";  // nobody sees it: there is no header
  // Above the list, whose place is then counted from below them.
  RowColumn rows = {};
};

// Strips of icons behind their labels, on two lines.
struct TwoRowPicker {
  std::vector<Row> upper;
  std::vector<Row> lower;
};

struct IconPickers {
  std::vector<TwoRowPicker> pickers;
};

// Where the page's rules paint, over the whole width of the page. A column begins below room that
// is above it, and moves with either; a list leaves it free by its own place.
struct PaintedRoom {
  enum class Place : std::uint8_t { kAbove, kBelow };

  int height = 0;  // at 96 dots per inch; 0 for none
  Place place = Place::kAbove;
};

struct PageTab {
  int titleId;
  std::variant<RowColumn, OptionList, ItemList, IconPickers> body;
  PaintedRoom room = {};

  // Of the controls that are its own, whether this device has them or not; those of an option's
  // editor are the page's. Ascending.
  std::vector<int> ControlIds() const;
  // The rows that show a setting of their own, those of options and pickers among them.
  std::vector<const Row*> Rows() const;
  // Of its rows and its items.
  std::set<const Setting*> Settings() const;
};
using PageTabs = std::vector<PageTab>;

// A column of those rows that this device has.
PageTab RowTab(int titleId, std::initializer_list<Row> rows);

}  // namespace tidewell
