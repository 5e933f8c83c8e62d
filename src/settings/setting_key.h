// The registry keys that settings live in.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "platform/registry.h"

namespace tidewell {

enum class SettingKey : std::int32_t {
  kTodayItem = 0,
  kPocketInformant = 1,
  kAgendaFusion = 2,
  kRoot = 3,
  kCalendar = 4,
  kTasks = 5,
  kNotes = 6,
  kContacts = 7,
  kMessages = 8,
  kSEvents = 9,
  kFonts = 10,
  kColors = 11,
  kCustomPim = 12,
  kTabSettings = 13,
  kCategories = 14,
  kIconSet = 15,
};

struct KeyLocation {
  RegistryRoot root = RegistryRoot::kNone;
  const wchar_t* path = L"";
};

// Any number without a key of its own has no root and no path, and cannot be opened.
KeyLocation LocationOf(SettingKey key);

// An open key, or none when the system refused it. Flushed, then closed at the end of its life.
class FlushedKey {
 public:
  explicit FlushedKey(std::unique_ptr<RegistryKey> key) : key_(std::move(key)) {}
  FlushedKey(FlushedKey&&) = default;
  FlushedKey& operator=(FlushedKey&&) = delete;
  ~FlushedKey() {
    if (key_) key_->Flush();
  }
  RegistryKey* Get() const { return key_.get(); }

 private:
  std::unique_ptr<RegistryKey> key_;
};

// Opens a key that is there already.
FlushedKey OpenSettingKey(Registry& registry, SettingKey key);
// Opens a key and makes it when it is missing.
FlushedKey CreateSettingKey(Registry& registry, SettingKey key);

}  // namespace tidewell
