#include "pages/pim_table.h"

#include <gmock/gmock.h>

#include "platform/windows/windows_locale.h"
#include "tests/pages/page_host.h"

namespace tidewell {
namespace {

using namespace pim_ids;

class PimPage : public PageHost {
 protected:
  CustomPimSettings& pim() { return store_.customPim; }
  void Install(RegistryRoot root, const wchar_t* key, const wchar_t* value) {
    machine_.registry.Create(root, key)->Set(value, kTypeString, {});
  }
  void InstallPocketInformant() {
    Install(RegistryRoot::kCurrentUser, L"Software\\WebIS\\PocketInformant", L"version");
  }
  std::vector<int> Usable() const {
    std::vector<int> ids;
    for (int id = 1202; id <= 1209; ++id) {
      if (IsUsable(id)) ids.push_back(id);
    }
    return ids;
  }
};

TEST_F(PimPage, AProgramIsStoredAtOnceAndGreysWhatItDoesNotHave) {
  InstallPocketInformant();
  Open(PageIndex::kPim);
  EXPECT_EQ(Count(kProgram), 3);
  EXPECT_EQ(Usable(), (std::vector<int>{1202, 1203, 1204, 1205}));
  Choose(kProgram, 2);
  EXPECT_EQ(pim().PimSw.Value(), 1u);
  EXPECT_EQ(Usable(), (std::vector<int>{1206, 1207, 1209}));
  Choose(kProgram, 0);
  EXPECT_EQ(pim().PimSw.Value(), 0u);
  EXPECT_EQ(Usable(), (std::vector<int>{1202, 1203, 1204, 1205}));
}

TEST_F(PimPage, TheCompanionMustBeThere) {
  InstallPocketInformant();
  Load();
  pim().PimSw.Set(1);
  Open(PageIndex::kPim);
  EXPECT_EQ(Selection(kProgram), 2);
  Choose(kProgram, 1);
  EXPECT_THAT(
      dialogs_.messages,
      testing::ElementsAre(L"Not installed: Velmont Calendar is not installed on this device."));
  EXPECT_EQ(Selection(kProgram), 0);
  EXPECT_EQ(pim().PimSw.Value(), 0u);
  EXPECT_EQ(Usable(), (std::vector<int>{1202, 1203, 1204, 1205}));

  Install(RegistryRoot::kCurrentUser, L"SOFTWARE\\Velmont Calendar", L"ExecutablePath");
  Choose(kProgram, 1);
  EXPECT_EQ(dialogs_.messages.size(), 1u);
  Close();
  EXPECT_EQ(pim().PimSw.Value(), 4u);
}

TEST_F(PimPage, AgendaFusionAloneCanBeLeftRunning) {
  Install(RegistryRoot::kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion",
          L"VerMajor");
  Load();
  pim().PimSw.Set(2);
  Open(PageIndex::kPim);
  EXPECT_EQ(Usable(), (std::vector<int>{1206, 1207, 1208, 1209}));
}

TEST_F(PimPage, RemindersAreStoredAsMinutes) {
  struct Case {
    std::uint32_t appointment;
    int appointmentLine;
    std::uint32_t appointmentStored;
    std::uint32_t task;
    int taskLine;
    std::uint32_t taskStored;
  };
  const Case cases[] = {
      {15, 4, 15, 480, 17, 480},        {949998, 0, 949998, 949998, 0, 949998},
      {1440, 11, 1440, 0, 1, 0},        {20, 0, 949998, 481, 0, 949998},
      {~0u, 0, 949998, ~0u, 0, 949998},
  };
  Load();
  for (const Case& c : cases) {
    pim().DefaultReminderAppts.Set(c.appointment);
    pim().DefaultReminderTasks.Set(c.task);
    Open(PageIndex::kPim);
    EXPECT_EQ(Selection(kAppointmentReminder), c.appointmentLine) << c.appointment;
    EXPECT_EQ(Selection(kTaskReminder), c.taskLine) << c.task;
    Close();
    EXPECT_EQ(pim().DefaultReminderAppts.Value(), c.appointmentStored) << c.appointment;
    EXPECT_EQ(pim().DefaultReminderTasks.Value(), c.taskStored) << c.task;
  }
}

TEST_F(PimPage, AProgramThatHasGoneShowsTheFirstAndStoresIt) {
  Load();
  pim().PimSw.Set(3);
  Open(PageIndex::kPim);
  EXPECT_EQ(Selection(kProgram), 0);
  Close();
  EXPECT_EQ(pim().PimSw.Value(), 0u);
}

TEST_F(PimPage, RemindersReadAsTheUserReadsThem) {
  Open(PageIndex::kPim);
  EXPECT_EQ(Line(kAppointmentReminder, 0), L"None");
  EXPECT_EQ(Line(kAppointmentReminder, 2), L"5 minutes");
  EXPECT_EQ(Line(kAppointmentReminder, 7), L"1 hour");
  EXPECT_EQ(Line(kAppointmentReminder, 11), L"1 day");
  Close();

  struct Case {
    std::uint32_t locale;
    const wchar_t* eight;
    const wchar_t* halfPastThree;
  };
  const Case cases[] = {
      {0x0409, L"8:00 AM", L"3:30 PM"},
      {0x0407, L"08:00", L"15:30"},
      {0x0809, L"08:00", L"15:30"},
  };
  for (const Case& c : cases) {
    WindowsLocale locale(c.locale);
    Machine door{registry_, machine_.files, locale, libraries_, machine_.system};
    PageContext context{door, store_, *categories_, language_.get(), context_->scale};
    page_ = CreatePage(static_cast<int>(PageIndex::kPim), host_, context);
    EXPECT_EQ(Line(kTaskReminder, 17), c.eight) << c.locale;
    EXPECT_EQ(Line(kTaskReminder, 32), c.halfPastThree) << c.locale;
    Close();
  }
}

}  // namespace
}  // namespace tidewell
