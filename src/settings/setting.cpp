#include "settings/setting.h"

#include "settings/registry_values.h"

namespace tidewell {

namespace {

constexpr std::uint8_t kClearTypeQuality = 5;
constexpr std::size_t kFaceNameLength = 31;

std::uint32_t Pixels(int length) {
  return static_cast<std::uint32_t>(length);
}

}  // namespace

std::uint32_t DwordDefault::Resolve(const LoadContext& context) const {
  switch (rule) {
    case Rule::kScaledX:
      return Pixels(context.scale.ScaleX(static_cast<int>(number)));
    case Rule::kScaledY:
      return Pixels(context.scale.ScaleY(static_cast<int>(number)));
    case Rule::kFirstDayOfWeek:
      return context.firstDayOfWeek;
    case Rule::kLiteral:
      break;
  }
  return number;
}

std::wstring StringDefault::Resolve(const LoadContext& context) const {
  switch (rule) {
    case Rule::kInstallFolder:
      return context.installFolder + text;
    case Rule::kOtherSetting:
      return other->Value() + text;
    case Rule::kLiteral:
      break;
  }
  return text;
}

void SettingVisitor::Visit(FontSetting& setting) {
  for (DwordSetting* member : setting.Members()) Visit(*member);
}

Setting::Setting(SettingKey key, std::wstring name, Access access)
    : key_(key), name_(std::move(name)), access_(access) {}

Setting::Setting(SettingGroup& group, const wchar_t* name, Access access)
    : Setting(group.key_, name, access) {
  group.settings_.push_back(this);
}

void Setting::Load(ValueSource* values, const LoadContext& context) {
  changed_ = false;
  refused_ = false;
  Read(values, context, refused_);
}

void Setting::Save(RegistryKey* key) {
  PrepareSave();
  if (key && !IsReadOnly() && IsChanged()) Write(*key);
}

void Setting::LoadAlone(Registry& registry, const LoadContext& context) {
  const FlushedKey key = CreateSettingKey(registry, key_);
  Load(key.Get(), context);
}

void Setting::SaveAlone(Registry& registry) {
  const FlushedKey key = CreateSettingKey(registry, key_);
  Save(key.Get());
}

std::uint32_t DwordSetting::Set(std::uint32_t value) {
  MarkChanged();
  return std::exchange(value_, value);
}

void DwordSetting::Read(ValueSource* values, const LoadContext& context, bool& refused) {
  default_ = rule_.Resolve(context);
  value_ = ReadDword(values, Name(), default_, &refused);
  if (range_.checked == ValueRange::Checked::kAtLoad) KeepInRange();
}

void DwordSetting::PrepareSave() {
  if (range_.checked == ValueRange::Checked::kAtSave) KeepInRange();
}

void DwordSetting::KeepInRange() {
  if (value_ != default_ && !range_.Has(value_)) Set(default_);
}

void DwordSetting::Write(RegistryKey& key) {
  WriteDwordOrDelete(&key, Name(), value_, default_);
}

void StringSetting::Set(std::wstring text) {
  MarkChanged();
  value_ = std::move(text);
}

void StringSetting::Read(ValueSource* values, const LoadContext& context, bool& refused) {
  default_ = rule_.Resolve(context);
  ReadString(values, Name(), default_, value_, &refused);
}

void StringSetting::Write(RegistryKey& key) {
  WriteStringOrDelete(&key, Name(), value_, default_);
}

void FlagArraySetting::Read(ValueSource* values, const LoadContext&, bool&) {
  const std::size_t count = (bits_ + 7) / 8;
  const auto fill = std::byte(fill_ == FlagFill::kAllSet ? 0xFF : 0x00);
  bytes_.assign(count, fill);
  if (!values) return;
  ValueInfo info;
  const RegistryStatus status = values->Query(Name(), bytes_, info);
  const bool fits = status == kStatusSuccess && info.type == kTypeBinary && info.size == count;
  // A value that does not fit may have been copied in part.
  if (!fits) bytes_.assign(count, fill);
}

FontSetting::FontSetting(SettingGroup& group, const wchar_t* name, const FontLook& look,
                         std::uint32_t defaultWeight, std::uint32_t defaultStrikeOut)
    : Setting(group, name, kSaved),
      weight(Key(), Name() + L"lfWeight", defaultWeight),
      italic(Key(), Name() + L"lfItalic", 0),
      underline(Key(), Name() + L"lfUnderline", 0),
      strikeOut(Key(), Name() + L"lfStrikeOut", defaultStrikeOut),
      height(Key(), Name() + L"lfHeight", ScaledX(12)),
      color(Key(), Name() + L"lfColor", kNoColor),
      look_(look) {}

LogFont FontSetting::Font() const {
  const auto flag = [](const DwordSetting& setting) {
    return static_cast<std::uint8_t>(setting.Value() != 0);
  };
  return {.height = height.Signed(),
          .weight = weight.Signed(),
          .italic = flag(italic),
          .underline = flag(underline),
          .strikeOut = flag(strikeOut),
          .quality = clearType_ ? kClearTypeQuality : std::uint8_t{0},
          .faceName = faceName_};
}

std::uint32_t FontSetting::Set(const LogFont& font, std::uint32_t newColor) {
  height.Set(static_cast<std::uint32_t>(font.height));
  italic.Set(font.italic);
  strikeOut.Set(font.strikeOut);
  underline.Set(font.underline);
  weight.Set(static_cast<std::uint32_t>(font.weight));
  return color.Set(newColor);
}

bool FontSetting::IsChanged() const {
  return weight.IsChanged() || italic.IsChanged() || underline.IsChanged() ||
         strikeOut.IsChanged() || height.IsChanged() || color.IsChanged();
}

std::array<DwordSetting*, 6> FontSetting::Members() {
  return {&weight, &italic, &underline, &strikeOut, &height, &color};
}

void FontSetting::Read(ValueSource* values, const LoadContext& context, bool&) {
  for (DwordSetting* member : Members()) member->Load(values, context);
  faceName_ = look_.face.Value().substr(0, kFaceNameLength);
  clearType_ = look_.clearType.Value() != 0;
}

void FontSetting::Write(RegistryKey& key) {
  for (DwordSetting* member : Members()) member->Save(&key);
}

void SettingGroup::Load(ValueSource* values, const LoadContext& context) {
  for (Setting* setting : settings_) setting->Load(values, context);
}

void SettingGroup::Save(RegistryKey* key) {
  for (Setting* setting : settings_) setting->Save(key);
}

void SettingGroup::Accept(SettingVisitor& visitor) {
  for (Setting* setting : settings_) setting->Accept(visitor);
}

}  // namespace tidewell
