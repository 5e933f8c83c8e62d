// What a user is told who could not have a file written or read.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/language.h"

namespace tidewell {

// The text, and what can be done about the cause where something can.
std::wstring WithAdvice(const Language& language, int textId, FileStatus cause);

}  // namespace tidewell
