#include "settings/changed_registry.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/text.h"
#include "settings/setting_key.h"

namespace tidewell {

namespace {

// What a group writes when it is saved is kept here, and stands in place of the key's own values.
class ChangedKey final : public RegistryKey {
 public:
  ChangedKey(std::unique_ptr<RegistryKey> key, SettingGroup& group) : key_(std::move(key)) {
    group.Save(this);
  }

  RegistryStatus Query(const std::wstring&, std::span<std::byte>, ValueInfo&) override {
    return kStatusAccessDenied;
  }
  RegistryStatus Set(const std::wstring& name, std::uint32_t type,
                     std::span<const std::byte> data) override {
    changed_.push_back(name);
    written_.push_back({name, type, {data.begin(), data.end()}});
    return kStatusSuccess;
  }
  RegistryStatus DeleteValue(const std::wstring& name) override {
    changed_.push_back(name);
    return kStatusSuccess;
  }
  RegistryStatus CountValues(ValueCounts&) override { return kStatusAccessDenied; }
  // What is written comes first, then what the key has beside it.
  RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                           std::uint32_t dataCapacity, EnumeratedValue& value) override {
    if (index == 0) passedOver_ = 0;
    const auto count = static_cast<std::uint32_t>(written_.size());
    if (index < count) return Give(written_[index], nameCapacity, dataCapacity, value);
    for (;; ++passedOver_) {
      const RegistryStatus status =
          key_->EnumValue(index - count + passedOver_, nameCapacity, dataCapacity, value);
      if (status != kStatusSuccess || !IsChanged(value.name)) return status;
    }
  }
  RegistryStatus EnumSubkey(std::uint32_t index, std::uint32_t nameCapacity,
                            std::wstring& name) override {
    return key_->EnumSubkey(index, nameCapacity, name);
  }
  void Flush() override {}

 private:
  static RegistryStatus Give(const EnumeratedValue& written, std::uint32_t nameCapacity,
                             std::uint32_t dataCapacity, EnumeratedValue& value) {
    const bool fits = written.name.size() < nameCapacity && written.data.size() <= dataCapacity;
    if (fits) value = written;
    return fits ? kStatusSuccess : kStatusMoreData;
  }
  bool IsChanged(const std::wstring& name) const {
    return std::ranges::any_of(
        changed_, [&](const std::wstring& each) { return EqualIgnoringCase(each, name); });
  }

  std::unique_ptr<RegistryKey> key_;
  std::vector<std::wstring> changed_;
  std::vector<EnumeratedValue> written_;
  std::uint32_t passedOver_ = 0;
};

}  // namespace

std::unique_ptr<RegistryKey> ChangedRegistry::Open(RegistryRoot root, const std::wstring& path) {
  return WithChanges(registry_.Open(root, path), root, path);
}

std::unique_ptr<RegistryKey> ChangedRegistry::Create(RegistryRoot root, const std::wstring& path) {
  return WithChanges(registry_.Create(root, path), root, path);
}

std::unique_ptr<RegistryKey> ChangedRegistry::WithChanges(std::unique_ptr<RegistryKey> key,
                                                          RegistryRoot root,
                                                          const std::wstring& path) const {
  for (SettingGroup* group : groups_) {
    const KeyLocation location = LocationOf(group->Key());
    if (key && location.root == root && EqualIgnoringCase(location.path, path)) {
      return std::make_unique<ChangedKey>(std::move(key), *group);
    }
  }
  return key;
}

}  // namespace tidewell
