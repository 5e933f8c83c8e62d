// Why a setting has no row on any page.
#pragma once

#include <cstdint>

#include "settings/setting.h"

namespace tidewell {

enum class NoRow : std::uint8_t {
  kNotKnown,          // it ought to have one
  kKeptByTodayItem,   // which alone writes it
  kOfAnotherProgram,  // below a key that is not the product's
  kAfterFirstStart,   // a note of this program
  kOnTodayScreen,     // the user chooses it there
  kWithAnother,       // stored by the row of another setting
  kNotListed,         // the calendar's tab, which the list of tabs leaves out
};
NoRow WhyNoRow(const Setting& setting);

}  // namespace tidewell
