// The PIM page: the personal-information program that the item works with.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

// What `PimSw` holds.
enum class PimProgram : std::uint32_t {
  kBuiltIn = 0,
  kPocketInformant = 1,
  kAgendaFusion = 2,
  kAgendaOne = 3,
  kCompanion = 4,
};

// Stands for no reminder where a reminder's minutes are stored.
inline constexpr std::uint32_t kNoReminder = 949998;

namespace pim_ids {
inline constexpr int kProgram = 1201;
inline constexpr int kAppointmentReminderLabel = 1202;
inline constexpr int kAppointmentReminder = 1203;
inline constexpr int kTaskReminderLabel = 1204;
inline constexpr int kTaskReminder = 1205;
inline constexpr int kOverrideIcons = 1206;
inline constexpr int kOverrideColors = 1207;
inline constexpr int kLeaveFusionRunning = 1208;
inline constexpr int kHideAbc = 1209;
}  // namespace pim_ids

std::unique_ptr<PageRules> MakePimPage(PageContext& context);

}  // namespace tidewell
