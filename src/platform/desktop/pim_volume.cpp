#include "platform/desktop/pim_volume.h"

#include <algorithm>
#include <charconv>

namespace tidewell {

namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// Takes what stands before `end` away from `rest`, and the end with it.
std::string_view TakeUntil(std::string_view& rest, std::string_view end) {
  const std::string_view taken = rest.substr(0, rest.find_first_of(end));
  rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
  return taken;
}

// Takes a number, or a dash or nothing for none; false for anything else.
bool TakeNumber(std::string_view& rest, std::optional<std::uint32_t>& number) {
  const std::string_view field = TakeUntil(rest, kBlanks);
  rest = Trimmed(rest);
  if (field.empty() || field == "-") return true;
  const char* end = field.data() + field.size();
  const auto result = std::from_chars(field.data(), end, number.emplace());
  return result.ec == std::errc() && result.ptr == end;
}

}  // namespace

std::vector<PimRecord> ParsePimVolume(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<PimRecord> records;
  while (!text.empty()) {
    std::string_view line = Trimmed(TakeUntil(text, "\n"));
    if (line.empty() || line.front() == '#') continue;
    PimRecord record;
    if (!TakeNumber(line, record.id) || !TakeNumber(line, record.flag)) continue;
    record.name = line;
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace tidewell
