// The values of a key that is about to be asked for many of them by name. Each question is a call
// to the system, and most of what could be stored is not: where the key holds fewer values than it
// is asked for, they are enumerated first and the questions answered from memory.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/registry.h"

namespace tidewell {

class ReadAhead final : public ValueSource {
 public:
  // A null key refuses every question. `questions` is how many are to come.
  ReadAhead(RegistryKey* key, std::size_t questions);
  RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                       ValueInfo& info) override;

 private:
  RegistryKey* key_;
  std::optional<std::vector<EnumeratedValue>> values_;  // by name; nothing where the key is asked
};

}  // namespace tidewell
