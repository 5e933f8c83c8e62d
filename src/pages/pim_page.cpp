#include "pages/pim_page.h"

#include "pages/pim_table.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/calendar_programs.h"

namespace tidewell {

using namespace pim_ids;

PimPage::PimPage(PageContext& context) : TablePage(context, PimTable(context)) {}

void PimPage::OnTabBuilt(int) {
  ApplyRule();
}

LRESULT PimPage::OnCommand(HWND, WPARAM wParam, LPARAM) {
  if (LOWORD(wParam) == kProgram && HIWORD(wParam) == CBN_SELENDOK) ChooseProgram();
  return 0;
}

void PimPage::ChooseProgram() {
  const std::uint32_t chosen = ChosenProgram();
  if (chosen == static_cast<std::uint32_t>(PimProgram::kCompanion) &&
      !IsInstalled(Context().machine.registry, CalendarProgram::kVelmontCalendar)) {
    ShowMessage(IDS_PIM_COMPANION_MISSING, IDS_PIM_COMPANION_MISSING_CAPTION);
    FallBack();
  } else {
    Program().Set(chosen);
  }
  ApplyRule();
}

// To the line whose text begins with the stored number, else the first. No program's name begins
// with one, so it is the built-in one unless a language pack has it otherwise.
void PimPage::FallBack() {
  const std::wstring stored = FormatDecimal(Program().Signed());
  const LRESULT found = Send(kProgram, CB_FINDSTRING, static_cast<WPARAM>(-1),
                             reinterpret_cast<LPARAM>(stored.c_str()));
  Send(kProgram, CB_SETCURSEL, static_cast<WPARAM>(found == CB_ERR ? 0 : found));
  Program().Set(ChosenProgram());
}

std::uint32_t PimPage::ChosenProgram() const {
  const LRESULT line = Send(kProgram, CB_GETCURSEL);
  return static_cast<std::uint32_t>(
      Send(kProgram, CB_GETITEMDATA, static_cast<WPARAM>(line == CB_ERR ? 0 : line)));
}

void PimPage::ApplyRule() const {
  Enable(PimRule(Program().Value()));
}

}  // namespace tidewell
