// The lines of a copy for what the ordinary lines cannot carry: any type, any data, any name, all
// in hexadecimal. No ordinary reader takes them for anything.
#pragma once

#include <string>
#include <string_view>

#include "platform/registry.h"

namespace tidewell {

// `hex:TYPE:NAME:DATA`, the type decimal, without a line end.
void AppendExactLine(std::wstring& text, const EnumeratedValue& value);
// A line with exactly one final unit. False, and `value` of no meaning, when it has another form.
bool ParseExactLine(std::wstring_view line, EnumeratedValue& value);

// A key's path as the name of a section, and back. False when the section is an ordinary one.
std::wstring ExactSectionName(std::wstring_view path);
bool ParseExactSectionName(std::wstring_view section, std::wstring& path);

}  // namespace tidewell
