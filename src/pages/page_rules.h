// What a settings page does beyond showing and storing its rows, without windows: a rules object
// hears of events and answers through its page's view. Tests stand in for the window.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "categories/records.h"
#include "pages/page_tabs.h"
#include "preview/canvas.h"
#include "settings/setting.h"

namespace tidewell {

// A line of an item list.
struct ListLine {
  std::wstring text;
  std::intptr_t data = 0;
  bool ticked = false;
  CategoryIcon* icon = nullptr;  // of a list of categories; null where there is none

  bool operator==(const ListLine&) const = default;
};

// How a line of an item list differs from the others. kNoColor is the list's own.
struct LineLook {
  LogFont font;  // without a face: the list's own
  Color ink = kNoColor;
  Color paper = kNoColor;
  std::optional<Color> swatch;  // stands at the line's right edge

  bool operator==(const LineLook&) const = default;
};

// What rules may ask of their page's window. An id without a control on this device has the state
// of nothing, and changes to it are lost.
class PageView {
 public:
  virtual ~PageView() = default;
  // Whether there is a control of that id.
  virtual bool Has(int id) const = 0;
  virtual ControlState State(int id) const = 0;
  // Whichever of the state's fields the control has.
  virtual void SetState(int id, const ControlState& state) = 0;
  // Replaces the lines of a drop-down list; none is selected.
  virtual void SetChoices(int id, const Choices& choices) = 0;
  virtual std::vector<ListLine> Lines(int listId) const = 0;
  virtual ListLine Line(int listId, int line) const = 0;
  virtual void SetLines(int listId, const std::vector<ListLine>& lines) = 0;
  // Lasts until the list gets other lines.
  virtual void SetLook(int listId, int line, const LineLook& look) = 0;
  // kNoChoice stands for none, in both directions.
  virtual int SelectedLine(int listId) const = 0;
  // A selected line comes into view.
  virtual void SelectLine(int listId, int line) = 0;
  // Moves the selected line one place; without one, tells the user to select it first.
  virtual void MoveLine(int listId, bool up) = 0;
  // Paints the room of the tab in view anew, and only that.
  virtual void Repaint() = 0;
};

enum class PageEventKind : std::uint8_t {
  kClicked,     // a button or a box
  kChosen,      // a line of a drop-down list, or an icon, is decided on; the icon is stored by then
  kChanged,     // another line of a drop-down list is marked
  kEdited,      // a typed text changed, or a path was browsed for or cleared
  kSelected,    // a line of a list
  kDeselected,  // a line of a list; an option is stored by then
  kTicked,      // a line's tick came or went
  kActivated,   // a line was tapped twice, or Enter pressed on one without a box
};

struct PageEvent {
  int id;
  PageEventKind kind;
  int line = kNoChoice;  // of a list

  bool operator==(const PageEvent&) const = default;
};

class PageRules {
 public:
  virtual ~PageRules() = default;
  // Asked for once.
  virtual PageTabs Tabs() = 0;
  // The tab's controls are there and show what their rows say.
  virtual void OnBuilt(PageView&, int /*tab*/) {}
  virtual void OnShown(PageView&, int /*tab*/) {}
  virtual void OnEvent(PageView&, const PageEvent&) {}
  // Which controls can be used: asked after a tab is built and after each event.
  virtual std::vector<Enabling> Enabled(const PageView&) const { return {}; }
  // Paints the room of a tab, which is white so far, in pixels from its top left.
  virtual void PaintRoom(Canvas&, int /*width*/, int /*height*/, int /*tab*/) {}
  // The rows are stored; what they cannot store by themselves is now.
  virtual void Store(const PageView&) {}
};

// The rules of a page whose rows say it all.
class NoRules final : public PageRules {
 public:
  explicit NoRules(PageTabs tabs) : tabs_(std::move(tabs)) {}
  PageTabs Tabs() override { return std::move(tabs_); }

 private:
  PageTabs tabs_;
};

}  // namespace tidewell
