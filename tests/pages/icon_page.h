// A page of icon pickers, with room below them that shows the codes of a set as a colour.
#pragma once

#include "pages/page_context.h"
#include "pages/page_rules.h"
#include "resources/text/text_ids.h"

namespace tidewell {

class IconPage : public PageRules {
 public:
  enum : int { kFirst = 1240, kFirstStrip, kSecond, kSecondStrip, kSet, kSetStrip };

  explicit IconPage(PageContext& context) : settings_(context.settings.calendar) {}

  PageTabs Tabs() override {
    const auto offered = AppointmentMarkerChoices();
    CalendarSettings& s = settings_;
    return {
        {IDS_PAGE_TAB_DISPLAY,
         IconPickers{{{{Icon(kFirst, kFirstStrip, IDS_ICON_NOTE, s.ApptLeftAlignIcon1, offered),
                        Icon(kSecond, kSecondStrip, IDS_ICON_LINK, s.ApptLeftAlignIcon2, offered)},
                       {Icons(kSet, kSetStrip, IDS_ICON_CATEGORY, s.ClrApptRightIcons, offered)}}}},
         {42, PaintedRoom::Place::kBelow}}};
  }
  void OnEvent(PageView& view, const PageEvent& event) override {
    if (event.kind == PageEventKind::kChosen) view.Repaint();
  }
  void PaintRoom(Canvas& canvas, int width, int height, int) override {
    canvas.Fill({0, 0, width, height}, settings_.ClrApptRightIcons.Value());
  }

 private:
  CalendarSettings& settings_;
};

}  // namespace tidewell
