#include "platform/windows/windows_locale.h"
#include "tests/pages/page_host.h"

namespace tidewell {
namespace {

class SpecialEventsPage : public PageHost {
 protected:
  SpecialEventsSettings& events() { return store_.specialEvents; }
};

TEST_F(SpecialEventsPage, ShowsStoredNumbersAsTheirLines) {
  struct Case {
    std::uint32_t span;
    int spanLine;
    std::uint32_t spanStored;
    std::uint32_t alert;
    int alertLine;
    std::uint32_t alertStored;
  };
  const Case cases[] = {
      {15, 0, 15, 0, 0, 0},
      {365, 4, 365, 15, 15, 15},
      {45, 1, 30, 16, -1, ~0u},
      {~0u, 1, 30, ~0u, -1, ~0u},
  };
  Load();
  for (const Case& c : cases) {
    events().SEApptsDaySpan.Set(c.span);
    events().SEAlertBeforeDays.Set(c.alert);
    Open(PageIndex::kSpecialEvents);
    EXPECT_EQ(Selection(1209), c.spanLine) << c.span;
    EXPECT_EQ(Selection(1203), c.alertLine) << c.alert;
    Close();
    EXPECT_EQ(events().SEApptsDaySpan.Value(), c.spanStored) << c.span;
    EXPECT_EQ(events().SEAlertBeforeDays.Value(), c.alertStored) << c.alert;
  }
}

TEST_F(SpecialEventsPage, OffersTheCategoriesByName) {
  Load();
  events().AdditionalFilterCat1.Set(L"FAMILY");
  events().AdditionalFilterCat2.Set(L"Gone");
  Open(PageIndex::kSpecialEvents);
  Turn(1);
  EXPECT_EQ(Count(1213), 4);
  EXPECT_EQ(Line(1213, 0), L"None");
  EXPECT_EQ(Selection(1213), 2);
  EXPECT_EQ(Selection(1215), 0);
  Choose(1217, 3);
  Close();
  EXPECT_EQ(events().AdditionalFilterCat1.Value(), L"family");
  EXPECT_EQ(events().AdditionalFilterCat2.Value(), L"");
  EXPECT_EQ(events().AdditionalFilterCat3.Value(), L"Holiday");
  EXPECT_EQ(events().AdditionalFilterCat4.Value(), L"");
}

TEST_F(SpecialEventsPage, AnUnselectedDaySpanStoresNone) {
  Open(PageIndex::kSpecialEvents);
  SendMessageW(Control(1209), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  Close();
  EXPECT_EQ(events().SEApptsDaySpan.Value(), 0u);
}

// Its slashes are the pattern's own, not the locale's separators.
TEST_F(SpecialEventsPage, ShowsTodayInEachFormatInEveryLocale) {
  for (const std::uint32_t id : {0x0409, 0x0407, 0x0809}) {
    WindowsLocale locale(id);
    Load();
    Machine door{registry_, machine_.files, locale, libraries_, machine_.system};
    PageContext context{door, store_, *categories_, language_.get(), context_->scale};
    const LocalTime today = locale.Now();
    const auto two = [](int number) {
      return std::wstring{static_cast<wchar_t>(L'0' + number / 10 % 10),
                          static_cast<wchar_t>(L'0' + number % 10)};
    };
    page_ = CreatePage(static_cast<int>(PageIndex::kSpecialEvents), host_, context);
    EXPECT_EQ(Count(1205), 5);
    EXPECT_EQ(Line(1205, 0), L"As on the device");
    EXPECT_EQ(Line(1205, 1), two(today.month) + L"/" + two(today.day)) << id;
    EXPECT_EQ(Line(1205, 4), two(today.day) + L"/" + two(today.month) + L"/" + two(today.year))
        << id;
    Close();
  }
}

}  // namespace
}  // namespace tidewell
