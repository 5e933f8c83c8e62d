// Whether a library is all there. The system follows a library's headers and its tree of resources
// without looking where they lead, so a library is checked before it is loaded.
#pragma once

#include <string>

#include "platform/files.h"

namespace tidewell {

// True when the headers are a library's (of any processor), every section lies within the file,
// and so does everything that the tree of resources names. Reads no further than the tree's end.
bool IsWholeLibrary(Files& files, const std::wstring& path);

}  // namespace tidewell
