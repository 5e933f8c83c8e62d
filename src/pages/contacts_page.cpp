#include "pages/contacts_page.h"

#include "pages/page_choices.h"
#include "pages/search_bar.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

using namespace contacts_ids;

constexpr int kPhoneColumnLayout = 0;
constexpr int kPictureLayout = 2;

class ContactsRules final : public PageRules {
 public:
  explicit ContactsRules(PageContext& context)
      : settings_(context.settings.contacts),
        searchBar_(context, 1200, kSearchBar, settings_.CntctsActiveSearchBar,
                   settings_.ContactsCustomSearchBarSelected) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override {
    if (tab == 0) searchBar_.Show(view);
  }
  void OnEvent(PageView& view, const PageEvent& event) override { searchBar_.OnEvent(view, event); }
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void Store(const PageView& view) override { searchBar_.Store(view); }

 private:
  ContactsSettings& settings_;
  SearchBar searchBar_;
};

PageTabs ContactsRules::Tabs() {
  ContactsSettings& s = settings_;
  return {
      RowTab(IDS_PAGE_TAB_GENERAL,
             {
                 searchBar_.AsRow(),
                 List(1202, 1203, IDS_NAME_FORMAT, s.CntctsTitleStruct,
                      {IDS_NAME_FIRST_LAST, IDS_NAME_LAST_FIRST, IDS_NAME_AS_FILED}),
                 List(1204, 1205, IDS_ACTION_KEY, s.CntctsDPadActionOverride,
                      {IDS_ACTION_KEY_AS_GENERAL, IDS_ACTION_KEY_OPENS, IDS_ACTION_KEY_CALLS}),
                 Check(1206, IDS_TAP_OPENS, s.CntctsOnClickActionOpenItem),
                 Check(1207, IDS_PREVIEW_WHEN_OPENED, s.CntctsPrvwDlgUponOpenItem),
                 Check(1208, IDS_CONTACTS_CATEGORY_COLOR, s.ContactsTxtByCategoryClr),
             }),
      RowTab(IDS_PAGE_TAB_DISPLAY,
             {
                 List(1209, 1210, IDS_DIVIDER, s.CntctsBreakLineStyle, DividingLines()),
                 Check(1211, IDS_SHOW_FOLD_BUTTONS, s.CntctsIncldFoldBttns),
                 Check(1212, IDS_SHOW_COUNTERS, s.CntctsIncldCounters),
             }),
      RowTab(
          IDS_CONTACTS_TAB_COLUMNS,
          {
              List(1213, kLayout, IDS_CONTACTS_LAYOUT, s.ContactsLayout,
                   {IDS_CONTACTS_LAYOUT_COLUMNS, IDS_CONTACTS_LAYOUT_LINES,
                    IDS_CONTACTS_LAYOUT_PICTURES}),
              DataList(kPhoneWidthLabel, kPhoneWidth, IDS_CONTACTS_PHONE_WIDTH,
                       s.CntctsPhoneColumnWidth, Numbers(60, 120, 5)),
              Check(kHideWithoutPicture, IDS_CONTACTS_HIDE_WITHOUT_PICTURE, s.CntctsHideNoPicture),
          }),
  };
}

std::vector<Enabling> ContactsRules::Enabled(const PageView& view) const {
  const int layout = view.State(kLayout).selection;
  const bool hasPhoneColumn = layout == kPhoneColumnLayout;
  return {{kPhoneWidthLabel, hasPhoneColumn},
          {kPhoneWidth, hasPhoneColumn},
          {kHideWithoutPicture, layout == kPictureLayout}};
}

}  // namespace

std::unique_ptr<PageRules> MakeContactsPage(PageContext& context) {
  return std::make_unique<ContactsRules>(context);
}

}  // namespace tidewell
