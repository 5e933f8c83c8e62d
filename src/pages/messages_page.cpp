#include "pages/messages_page.h"

#include "pages/page_choices.h"
#include "resources/text/text_ids.h"

namespace tidewell {

std::unique_ptr<PageRules> MakeMessagesPage(PageContext& context) {
  MessagesSettings& s = context.settings.messages;
  return std::make_unique<NoRules>(PageTabs{
      RowTab(IDS_PAGE_TAB_GENERAL,
             {
                 List(1200, 1201, IDS_ACTION_KEY, s.MsgsDPadActionOverride,
                      {IDS_ACTION_KEY_AS_GENERAL, IDS_ACTION_KEY_OPENS}),
                 Check(1202, IDS_TAP_OPENS, s.MsgsOpenOnClick),
                 Check(1203, IDS_PREVIEW_WHEN_OPENED, s.MsgsPreviewWhenOpen),
                 Check(1204, IDS_MESSAGES_PREVIEW_MARKS_READ, s.MsgsMrkReadOnPrev),
             }),
      RowTab(IDS_PAGE_TAB_DISPLAY,
             {
                 List(1205, 1206, IDS_DIVIDER, s.MsgsBreakLineStyle, DividingLines()),
                 Check(1207, IDS_SHOW_COUNTERS, s.MsgsIncldCounters),
                 Check(1208, IDS_SHOW_FOLD_BUTTONS, s.MsgsIncldFoldBttns),
             }),
  });
}

}  // namespace tidewell
