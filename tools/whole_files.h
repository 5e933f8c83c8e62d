// Files of this computer, read and written in one piece. Paths are UTF-8.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tidewell {

std::optional<std::vector<std::byte>> ReadFile(const std::string& path);
// What to do about a file that could not be read, as the end of a sentence.
std::string WhyNotRead(const std::string& path);
// Writes a new file beside it and puts that in its place when it is complete; the old one stays as
// it was when that fails. A link leads to the file that is replaced.
bool WriteFile(const std::string& path, std::span<const std::byte> bytes);
// A file that is there, also under another spelling.
bool IsSameFile(const std::string& left, const std::string& right);

}  // namespace tidewell
