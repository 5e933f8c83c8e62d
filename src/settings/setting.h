// The kinds of settings: each is one registry value (a font is six) that knows its name, its
// default and whether it was changed. A setting equal to its default is never stored.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/registry.h"
#include "settings/setting_default.h"
#include "settings/setting_key.h"

namespace tidewell {

class DwordSetting;
class StringSetting;
class FlagArraySetting;
class FontSetting;
class SettingGroup;

// Read-only settings belong to the Today item: loaded here, never saved.
enum Access : std::uint8_t { kSaved, kReadOnly };

// Is shown the settings of a walk.
class SettingVisitor {
 public:
  virtual ~SettingVisitor() = default;
  virtual void Visit(DwordSetting& setting) = 0;
  virtual void Visit(StringSetting& setting) = 0;
  virtual void Visit(FlagArraySetting& setting) = 0;
  // Visits the font's six numbers unless overridden.
  virtual void Visit(FontSetting& setting);
};

class Setting {
 public:
  virtual ~Setting() = default;
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;

  SettingKey Key() const { return key_; }
  const std::wstring& Name() const { return name_; }
  bool IsReadOnly() const { return access_ == kReadOnly; }
  // True from the first set operation on, also after a save, until the next load.
  virtual bool IsChanged() const { return changed_; }
  // True when the last load was not told what is stored: the default merely stands for it.
  bool WasRefused() const { return refused_; }

  // `values` are those of the setting's own key; null loads the default.
  void Load(ValueSource* values, const LoadContext& context);
  // Writes nothing unless the setting was changed; deletes the value when it is the default.
  void Save(RegistryKey* key);

  // The same through a key of its own, created when missing, flushed and closed.
  void LoadAlone(Registry& registry, const LoadContext& context);
  void SaveAlone(Registry& registry);

  virtual void Accept(SettingVisitor& visitor) = 0;

 protected:
  Setting(SettingKey key, std::wstring name, Access access);
  Setting(SettingGroup& group, const wchar_t* name, Access access);
  void MarkChanged() { changed_ = true; }

 private:
  // Null is a refusal.
  virtual void Read(ValueSource* values, const LoadContext& context, bool& refused) = 0;
  virtual void Write(RegistryKey& key) = 0;
  virtual void PrepareSave() {}

  SettingKey key_;
  std::wstring name_;
  Access access_;
  bool changed_ = false;
  bool refused_ = false;
};

class DwordSetting final : public Setting {
 public:
  DwordSetting(SettingGroup& group, const wchar_t* name, DwordDefault rule, Access access = kSaved)
      : Setting(group, name, access), rule_(rule) {}
  DwordSetting(SettingGroup& group, const wchar_t* name, DwordDefault rule, ValueRange range)
      : Setting(group, name, kSaved), rule_(rule), range_(range) {}
  DwordSetting(SettingKey key, std::wstring name, DwordDefault rule, Access access = kSaved)
      : Setting(key, std::move(name), access), rule_(rule) {}

  std::uint32_t Value() const { return value_; }
  std::int32_t Signed() const { return static_cast<std::int32_t>(value_); }
  std::uint32_t Default() const { return default_; }
  const DwordDefault& DefaultRule() const { return rule_; }
  const ValueRange& Range() const { return range_; }
  // Marks the setting changed, also when the value is the same. Returns the previous value.
  std::uint32_t Set(std::uint32_t value);
  // Puts right what stands there without a change: it is never saved.
  void Replace(std::uint32_t value) { value_ = value; }
  void Accept(SettingVisitor& visitor) override { visitor.Visit(*this); }

 private:
  void Read(ValueSource* values, const LoadContext& context, bool& refused) override;
  void Write(RegistryKey& key) override;
  void PrepareSave() override;
  void KeepInRange();

  DwordDefault rule_;
  ValueRange range_;
  std::uint32_t value_ = 0;
  std::uint32_t default_ = 0;
};

class StringSetting final : public Setting {
 public:
  StringSetting(SettingGroup& group, const wchar_t* name, StringDefault rule,
                Access access = kSaved)
      : Setting(group, name, access), rule_(rule) {}
  StringSetting(SettingKey key, std::wstring name, StringDefault rule, Access access = kSaved)
      : Setting(key, std::move(name), access), rule_(rule) {}

  const std::wstring& Value() const { return value_; }
  const std::wstring& Default() const { return default_; }
  const StringDefault& DefaultRule() const { return rule_; }
  void Set(std::wstring text);
  void Accept(SettingVisitor& visitor) override { visitor.Visit(*this); }

 private:
  void Read(ValueSource* values, const LoadContext& context, bool& refused) override;
  void Write(RegistryKey& key) override;

  StringDefault rule_;
  std::wstring value_;
  std::wstring default_;
};

enum class FlagFill : std::uint8_t { kAllClear, kAllSet };

// A row of bits that the Today item writes; this program only reads it.
class FlagArraySetting final : public Setting {
 public:
  FlagArraySetting(SettingGroup& group, const wchar_t* name, std::size_t bits, FlagFill fill)
      : Setting(group, name, kReadOnly), bits_(bits), fill_(fill) {}
  FlagArraySetting(SettingKey key, std::wstring name, std::size_t bits, FlagFill fill)
      : Setting(key, std::move(name), kReadOnly), bits_(bits), fill_(fill) {}

  std::span<const std::byte> Bytes() const { return bytes_; }
  std::size_t Bits() const { return bits_; }
  FlagFill DefaultRule() const { return fill_; }
  void Accept(SettingVisitor& visitor) override { visitor.Visit(*this); }

 private:
  void Read(ValueSource* values, const LoadContext& context, bool& refused) override;
  void Write(RegistryKey&) override {}

  std::size_t bits_;
  FlagFill fill_;
  std::vector<std::byte> bytes_;
};

// The parts of the system's LOGFONTW that settings decide; every other field of it is 0.
struct LogFont {
  std::int32_t height = 0;
  std::int32_t weight = 0;
  std::uint8_t italic = 0;
  std::uint8_t underline = 0;
  std::uint8_t strikeOut = 0;
  std::uint8_t quality = 0;  // 5 is ClearType
  std::wstring faceName;     // at most 31 characters

  bool operator==(const LogFont&) const = default;
};

inline constexpr std::uint32_t kFontThin = 100;
inline constexpr std::uint32_t kFontBold = 700;
// As a colour: none of its own, the scheme's, the general font's or the system's is used.
inline constexpr std::uint32_t kNoColor = 0xFFFFFFFF;

// The settings that every font follows at load.
struct FontLook {
  const StringSetting& face;
  const DwordSetting& clearType;
};

class FontSetting final : public Setting {
 public:
  // `name` is the prefix of the six value names.
  FontSetting(SettingGroup& group, const wchar_t* name, const FontLook& look,
              std::uint32_t defaultWeight, std::uint32_t defaultStrikeOut = 0);

  LogFont Font() const;
  std::uint32_t Color() const { return color.Value(); }
  // Takes height, italic, strike-out, underline and weight. Returns the previous colour.
  std::uint32_t Set(const LogFont& font, std::uint32_t newColor);
  bool IsChanged() const override;
  void Accept(SettingVisitor& visitor) override { visitor.Visit(*this); }
  // In load and save order.
  std::array<DwordSetting*, 6> Members();

  DwordSetting weight;
  DwordSetting italic;
  DwordSetting underline;
  DwordSetting strikeOut;
  DwordSetting height;
  DwordSetting color;

 private:
  void Read(ValueSource* values, const LoadContext& context, bool& refused) override;
  void Write(RegistryKey& key) override;

  const FontLook& look_;
  std::wstring faceName_;
  bool clearType_ = false;
};

// The settings of one registry key. Each is a member of a derived struct, declared in one line;
// the order of the lines is the order of loading and saving.
class SettingGroup {
 public:
  explicit SettingGroup(SettingKey key) : key_(key) {}
  SettingGroup(const SettingGroup&) = delete;
  SettingGroup& operator=(const SettingGroup&) = delete;

  SettingKey Key() const { return key_; }
  void Load(ValueSource* values, const LoadContext& context);
  void Save(RegistryKey* key);
  void Accept(SettingVisitor& visitor);

 private:
  friend class Setting;
  SettingKey key_;
  std::vector<Setting*> settings_;
};

}  // namespace tidewell
