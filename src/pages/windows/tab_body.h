// What stands on one tab of a page: its controls, made, shown, moved and stored. One class for each
// kind of body. Windows only.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "pages/page_rules.h"
#include "pages/windows/settings_page.h"

namespace tidewell {

class TabBody {
 public:
  using Raise = std::function<void(const PageEvent&)>;

  TabBody(SettingsPage& page, Raise raise, const PaintedRoom& room)
      : page_(page), raise_(std::move(raise)), room_(room) {}
  TabBody(const TabBody&) = delete;
  TabBody& operator=(const TabBody&) = delete;
  virtual ~TabBody() = default;

  // Makes the controls, none of them visible.
  virtual void Build() = 0;
  // SW_SHOW or SW_HIDE.
  virtual void Show(int showCommand) = 0;
  // The client area has another size.
  virtual void LayOut() = 0;
  // Sets the settings to what the controls hold; a control that is not there stores nothing.
  virtual void Store() = 0;

  // True when a command was the body's own business.
  virtual bool OnCommand(int /*id*/, int /*notification*/) { return false; }
  virtual void OnSelection(int /*listId*/, int /*line*/, bool /*selected*/) {}
  // A line of the body's list comes into view whose picture is still to be told.
  virtual void OnShowLine(LVITEMW& /*line*/) {}
  // False when the list is none of the body's.
  virtual bool SetLines(int /*listId*/, const std::vector<ListLine>& /*lines*/) { return false; }
  virtual bool SetLook(int /*listId*/, int /*line*/, const LineLook& /*look*/) { return false; }
  // Answers NM_CUSTOMDRAW of a list.
  virtual LRESULT OnDrawLine(NMLVCUSTOMDRAW& /*draw*/) { return CDRF_DODEFAULT; }
  // Brings a control into view.
  virtual void OnFocus(HWND /*control*/) {}
  virtual bool OnPageKey(int /*direction*/) { return false; }
  virtual void OnWheel(int /*distance*/) {}
  virtual void OnPointer(UINT /*message*/, POINT /*point*/) {}
  virtual void PaintBackground(HDC /*dc*/) {}
  // Where the page's rules paint, in pixels of the client area; as high as nothing for none.
  virtual Rect PlaceOfRoom() const;

 protected:
  SettingsPage& Page() const { return page_; }
  const ScreenScale& Scale() const { return page_.Scale(); }
  const PaintedRoom& Room() const { return room_; }
  // To uncover the place of each hidden control by itself would cost more than all at once. None of
  // those hidden may have the focus: keys would go on to what is not seen.
  void ShowControls(const std::vector<int>& ids, int showCommand) const;
  void Tell(int id, PageEventKind kind) const { raise_({id, kind}); }
  // Clears a path or browses for one, where the command is that of one of the row's two buttons.
  bool RunPathCommand(int id, int pathId, int clearId, int browseId, const Browse& browse) const;

 private:
  SettingsPage& page_;
  Raise raise_;
  PaintedRoom room_;
};

// The body of a tab that the page keeps.
std::unique_ptr<TabBody> MakeBody(const PageTab& tab, SettingsPage& page, TabBody::Raise raise);

}  // namespace tidewell
