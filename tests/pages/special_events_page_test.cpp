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
  EXPECT_EQ(Selection(1213), 3);
  EXPECT_EQ(Selection(1215), 0);
  Choose(1217, 2);
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

// The patterns name their own order and separators, so that they read the same everywhere; the
// separator is the locale's where the pattern has a slash.
TEST_F(SpecialEventsPage, ShowsTodayInEveryFormatOfTheUsersLocale) {
  struct Case {
    std::uint32_t locale;
    std::wstring monthFirst;
    std::wstring dayFirst;
  };
  const Case cases[] = {
      {0x0409, L"03/14/08", L"14/03/08"},
      {0x0407, L"03.14.08", L"14.03.08"},
      {0x0809, L"03/14/08", L"14/03/08"},
  };
  class OnPiDay final : public Locale {
   public:
    explicit OnPiDay(std::uint32_t id) : locale_(id) {}
    std::wstring TimeStyle() override { return locale_.TimeStyle(); }
    std::wstring FirstDayOfWeek() override { return locale_.FirstDayOfWeek(); }
    int CompareIgnoringCase(const std::wstring& a, const std::wstring& b) override {
      return locale_.CompareIgnoringCase(a, b);
    }
    LocalTime Now() override { return {2008, 3, 14, 9, 5}; }
    std::wstring FormatDate(const LocalTime& date, const std::wstring& picture) override {
      return locale_.FormatDate(date, picture);
    }
    std::wstring FormatTime(const LocalTime& time) override { return locale_.FormatTime(time); }

   private:
    WindowsLocale locale_;
  };
  for (const Case& c : cases) {
    OnPiDay locale(c.locale);
    Machine door{registry_, machine_.files, locale, libraries_, machine_.system};
    Load();
    PageContext context{door, store_, language_.get(), context_->scale};
    page_ = CreatePage(static_cast<int>(PageIndex::kSpecialEvents), host_, context);
    EXPECT_EQ(Count(1205), 5);
    EXPECT_EQ(Line(1205, 0), L"As on the device");
    EXPECT_EQ(Line(1205, 2), c.monthFirst) << c.locale;
    EXPECT_EQ(Line(1205, 4), c.dayFirst) << c.locale;
    Close();
  }
}

}  // namespace
}  // namespace tidewell
