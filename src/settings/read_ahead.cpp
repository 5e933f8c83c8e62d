#include "settings/read_ahead.h"

#include <algorithm>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr std::size_t kOwnCalls = 2;  // counting the values, and seeing that they end
constexpr std::uint32_t kLongestData =
    16 * 1024;  // a key with more than that is not held in memory

bool IsBefore(const EnumeratedValue& left, const EnumeratedValue& right) {
  return CompareFolded(left.name, right.name) < 0;
}

// Nothing when it would cost more calls than the questions, or when the key refused one of them or
// changed meanwhile.
std::optional<std::vector<EnumeratedValue>> ReadAllValues(RegistryKey& key, std::size_t questions) {
  ValueCounts counts;
  if (questions <= kOwnCalls || key.CountValues(counts) != kStatusSuccess) return std::nullopt;
  if (counts.values + kOwnCalls >= questions || counts.longestData > kLongestData) {
    return std::nullopt;
  }
  std::vector<EnumeratedValue> values(counts.values);
  EnumeratedValue surplus;
  for (std::uint32_t i = 0; i <= counts.values; ++i) {
    const bool isEnd = i == counts.values;
    const RegistryStatus status =
        key.EnumValue(i, counts.longestName + 1, counts.longestData, isEnd ? surplus : values[i]);
    if (status != (isEnd ? kStatusNoMoreItems : kStatusSuccess)) return std::nullopt;
  }
  std::ranges::sort(values, IsBefore);
  return values;
}

}  // namespace

ReadAhead::ReadAhead(RegistryKey* key, std::size_t questions) : key_(key) {
  if (key) values_ = ReadAllValues(*key, questions);
}

RegistryStatus ReadAhead::Query(const std::wstring& name, std::span<std::byte> buffer,
                                ValueInfo& info) {
  if (!key_) return kStatusAccessDenied;
  if (!values_) return key_->Query(name, buffer, info);
  const auto found = std::ranges::lower_bound(
      *values_, name,
      [](const auto& left, const auto& right) { return CompareFolded(left, right) < 0; },
      &EnumeratedValue::name);
  if (found == values_->end() || !EqualIgnoringCase(found->name, name)) return kStatusFileNotFound;
  info = {found->type, static_cast<std::uint32_t>(found->data.size())};
  if (buffer.empty()) return kStatusSuccess;
  if (buffer.size() < found->data.size()) return kStatusMoreData;
  std::ranges::copy(found->data, buffer.begin());
  return kStatusSuccess;
}

}  // namespace tidewell
