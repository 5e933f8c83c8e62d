#include "companion/backup_settings.h"

#include <algorithm>
#include <span>

#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

class Reader final : public SettingVisitor {
 public:
  explicit Reader(bool isDefault) : isDefault_(isDefault) {}
  using SettingVisitor::Visit;

  void Visit(DwordSetting& setting) override {
    const std::uint32_t number = isDefault_ ? setting.Default() : setting.Value();
    reading = {true, static_cast<std::int32_t>(number), {}};
  }
  void Visit(StringSetting& setting) override {
    reading = {false, 0, isDefault_ ? setting.Default() : setting.Value()};
  }
  void Visit(FlagArraySetting& setting) override {
    if (isDefault_) return;
    for (std::size_t bit = 0; bit < setting.Bits(); ++bit) {
      const std::byte byte = setting.Bytes()[bit / 8];
      reading.text += (byte >> (bit % 8) & std::byte{1}) == std::byte{1} ? L'1' : L'0';
    }
  }

  Reading reading;

 private:
  bool isDefault_;
};

Reading ReadingOf(Setting& setting, bool isDefault) {
  Reader reader(isDefault);
  setting.Accept(reader);
  return reader.reading;
}

class RangeFinder final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;
  void Visit(DwordSetting& setting) override { range = setting.Range(); }
  void Visit(StringSetting&) override {}
  void Visit(FlagArraySetting&) override {}

  ValueRange range;
};

std::wstring Hex(std::uint32_t number, int digits) {
  std::wstring text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text += L"0123456789ABCDEF"[number >> shift & 0xF];
  }
  return text;
}

std::wstring HexOf(std::span<const std::byte> data) {
  std::wstring hex;
  for (const std::byte byte : data) hex += Hex(std::to_integer<std::uint32_t>(byte), 2);
  return hex;
}

constexpr std::wstring_view kBetweenParts = L", ";

void AppendPart(std::wstring& list, const std::wstring& part) {
  if (!list.empty() && !part.empty()) list += kBetweenParts;
  list += part;
}

std::wstring CodesInWords(const Meaning& meaning, std::uint32_t codes,
                          const MeaningDevice& device) {
  std::wstring list;
  for (const MeaningChoice& choice : meaning.choices) {
    if ((codes & choice.number) != choice.number) continue;
    AppendPart(list, choice.text);
    codes &= ~choice.number;
  }
  if (codes != 0) AppendPart(list, L"+" + FormatDecimal(static_cast<std::int32_t>(codes)));
  return list.empty() ? device.Said(Word::kNone) : list;
}

std::optional<std::uint32_t> ChoiceOfWords(const Meaning& meaning, std::wstring_view words) {
  const auto choice = std::ranges::find_if(meaning.choices, [&](const MeaningChoice& each) {
    return EqualIgnoringCase(each.text, words);
  });
  if (choice == meaning.choices.end()) return std::nullopt;
  return choice->number;
}

// As CodesInWords lists them.
std::optional<std::uint32_t> CodesOfWords(const Meaning& meaning, std::wstring_view words) {
  for (const MeaningChoice& choice : meaning.choices) {
    if (!EqualIgnoringCase(words.substr(0, choice.text.size()), choice.text)) continue;
    std::wstring_view others = words.substr(choice.text.size());
    if (others.empty()) return choice.number;
    if (!others.starts_with(L',')) continue;
    others.remove_prefix(std::min(others.find_first_not_of(L' ', 1), others.size()));
    const auto codes = CodesOfWords(meaning, others);
    if (codes) return choice.number | *codes;
  }
  return std::nullopt;
}

// Decimal, all of it, of 32 bits.
std::optional<std::int32_t> WholeNumber(std::wstring_view text) {
  const std::int32_t number = ParseNumber(text, 10);
  if (FormatDecimal(number) != text) return std::nullopt;
  return number;
}

std::optional<std::uint32_t> ColorOfWords(std::wstring_view words) {
  if (words.size() != 7 || words.front() != L'#') return std::nullopt;
  std::uint32_t red_green_blue = 0;
  for (const wchar_t unit : words.substr(1)) {
    const std::size_t digit = std::wstring_view(L"0123456789abcdef").find(FoldCase(unit));
    if (digit == std::wstring_view::npos) return std::nullopt;
    red_green_blue = red_green_blue << 4 | static_cast<std::uint32_t>(digit);
  }
  return red_green_blue >> 16 | (red_green_blue & 0xFF00) | (red_green_blue & 0xFF) << 16;
}

}  // namespace

std::wstring Reading::Plain() const {
  return isNumber ? FormatDecimal(number) : text;
}

Reading DefaultOf(Setting& setting) {
  return ReadingOf(setting, true);
}

std::wstring PathOf(const Setting& setting) {
  return LocationOf(setting.Key()).path;
}

BackupSettings::BackupSettings(const BackupDocument& document, const DeviceFacts& facts)
    : document_(document), device_(facts) {
  for (const Meaning& meaning : Meanings()) {
    for (Setting* setting : meaning.settings) {
      const StoredValue* value = Stored(*setting);
      if (!value) continue;
      const auto key = device_.OwnRegistry().Create(RegistryRoot::kCurrentUser, PathOf(*setting));
      key->Set(setting->Name(), value->type, document_.DataOf(*value));
    }
  }
  device_.Load();
}

const MeaningDevice& BackupSettings::InOtherTongue() const {
  if (!otherTongue_) {
    DeviceFacts facts = device_.Facts();
    const bool isGerman = facts.tongue == Tongue::kGerman;
    facts.tongue = isGerman ? Tongue::kEnglish : Tongue::kGerman;
    otherTongue_ = std::make_unique<MeaningDevice>(facts);
  }
  return *otherTongue_;
}

const StoredValue* BackupSettings::Stored(const Setting& setting) const {
  if (LocationOf(setting.Key()).root != RegistryRoot::kCurrentUser) return nullptr;
  return document_.Find(PathOf(setting), setting.Name());
}

std::optional<Reading> BackupSettings::Read(Setting& setting) const {
  return Read(setting, false);
}

std::optional<Reading> BackupSettings::Read(Setting& setting, bool isDefault) const {
  const bool isStored = !isDefault && Stored(setting);
  if (!isStored && !device_.KnowsDefault(setting)) return std::nullopt;
  return ReadingOf(setting, isDefault);
}

bool BackupSettings::IsChanged(const Meaning& meaning) const {
  return std::ranges::any_of(meaning.settings, [&](Setting* setting) {
    return Stored(*setting) && Read(*setting, true) != Read(*setting, false);
  });
}

std::wstring BackupSettings::InWords(const Meaning& meaning) const {
  return InWords(meaning, false);
}
std::wstring BackupSettings::DefaultInWords(const Meaning& meaning) const {
  return InWords(meaning, true);
}

std::wstring BackupSettings::InWords(const Meaning& meaning, bool isDefault) const {
  if (meaning.kind == ValueKind::kFont) return FontInWords(meaning, isDefault);
  Setting& setting = *meaning.settings.front();
  const std::optional<Reading> reading = Read(setting, isDefault);
  if (!reading) return device_.DefaultRuleInWords(setting);
  if (reading->isNumber) {
    return NumberInWords(meaning, static_cast<std::uint32_t>(reading->number), device_);
  }
  return reading->text.empty() ? device_.Said(Word::kEmpty) : reading->text;
}

// In the order of its members.
std::wstring BackupSettings::FontInWords(const Meaning& meaning, bool isDefault) const {
  const auto number = [&](std::size_t member) {
    const std::optional<Reading> reading = Read(*meaning.settings[member], isDefault);
    return reading ? std::optional(static_cast<std::uint32_t>(reading->number)) : std::nullopt;
  };
  const auto isSet = [&](std::size_t member) { return number(member).value_or(0) != 0; };
  const std::uint32_t weight = number(0).value_or(kFontThin);
  const std::optional<std::uint32_t> height = number(4);
  std::wstring words = device_.Said(Word::kHeight) + L" ";
  words += height ? FormatDecimal(static_cast<std::int32_t>(*height))
                  : L"(" + device_.DefaultRuleInWords(*meaning.settings[4]) + L")";
  if (weight == kFontBold) {
    AppendPart(words, device_.Said(Word::kBold));
  } else if (weight != kFontThin) {
    AppendPart(words, device_.Said(Word::kWeight) + L" " +
                          FormatDecimal(static_cast<std::int32_t>(weight)));
  }
  if (isSet(1)) AppendPart(words, device_.Said(Word::kItalic));
  if (isSet(2)) AppendPart(words, device_.Said(Word::kUnderlined));
  if (isSet(3)) AppendPart(words, device_.Said(Word::kStruckOut));
  const std::uint32_t color = number(5).value_or(kNoColor);
  if (color != kNoColor) AppendPart(words, ColorInWords(color, device_));
  return words;
}

std::vector<const StoredValue*> BackupSettings::OtherValues() const {
  const std::vector<StoredValue>& values = document_.Values();
  std::vector<bool> isKnown(values.size());
  for (const Meaning& meaning : Meanings()) {
    for (const Setting* setting : meaning.settings) {
      const StoredValue* value = document_.Find(PathOf(*setting), setting->Name());
      if (value) isKnown[static_cast<std::size_t>(value - values.data())] = true;
    }
  }
  std::vector<const StoredValue*> others;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (document_.IsInEffect(i) && !isKnown[i]) others.push_back(&values[i]);
  }
  return others;
}

std::wstring ColorInWords(std::uint32_t color, const MeaningDevice& device) {
  if (color == kNoColor) return device.Text(IDS_COLOR_AUTOMATIC);
  const std::uint32_t redFirst = (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
  return L"#" + Hex(redFirst, 6);
}

std::wstring NumberInWords(const Meaning& meaning, std::uint32_t number,
                           const MeaningDevice& device) {
  if (meaning.kind == ValueKind::kColor) return ColorInWords(number, device);
  if (meaning.kind == ValueKind::kCodes) return CodesInWords(meaning, number, device);
  if (meaning.kind == ValueKind::kSwitch) {
    return device.Said(number == 0 ? Word::kOff : Word::kOn);
  }
  std::wstring plain = FormatDecimal(static_cast<std::int32_t>(number));
  if (meaning.kind != ValueKind::kChoice) return plain;
  const auto choice = std::ranges::find(meaning.choices, number, &MeaningChoice::number);
  if (choice != meaning.choices.end()) return choice->text;
  const ValueRange range = RangeOf(*meaning.settings.front());
  if (range.checked != ValueRange::Checked::kNever && range.Has(number)) return plain;
  return plain + L" (" + device.Said(Word::kNoSuchChoice) + L")";
}

ValueRange RangeOf(Setting& setting) {
  RangeFinder finder;
  setting.Accept(finder);
  return finder.range;
}

bool HasLimits(Setting& setting) {
  return RangeOf(setting).checked != ValueRange::Checked::kNever;
}

bool IsColor(const Meaning& meaning, const Setting& setting) {
  return meaning.kind == ValueKind::kColor || setting.Name().ends_with(L"lfColor");
}

std::optional<std::int32_t> NumberOfWords(const Meaning& meaning, Setting& setting,
                                          std::wstring_view words, const MeaningDevice& device) {
  const bool isSet = meaning.kind == ValueKind::kCodes;
  if (isSet && EqualIgnoringCase(words, device.Said(Word::kNone))) return 0;
  const std::optional<std::uint32_t> chosen =
      isSet ? CodesOfWords(meaning, words) : ChoiceOfWords(meaning, words);
  if (chosen) return static_cast<std::int32_t>(*chosen);
  if (IsColor(meaning, setting)) {
    if (EqualIgnoringCase(words, device.Text(IDS_COLOR_AUTOMATIC))) return -1;
    const std::optional<std::uint32_t> color = ColorOfWords(words);
    if (color) return static_cast<std::int32_t>(*color);
  }
  const std::optional<std::int32_t> number = WholeNumber(words);
  if (!number) return std::nullopt;
  const ValueRange range = RangeOf(setting);
  if (HasLimits(setting)) {
    const bool fits =
        range.Has(static_cast<std::uint32_t>(*number)) || DefaultOf(setting).number == *number;
    return fits ? number : std::nullopt;
  }
  const bool needsChoice = meaning.kind == ValueKind::kSwitch || meaning.kind == ValueKind::kChoice;
  const bool isChoice = std::ranges::any_of(meaning.choices, [&](const MeaningChoice& each) {
    return each.number == static_cast<std::uint32_t>(*number);
  });
  return needsChoice && !isChoice ? std::nullopt : number;
}

std::wstring ChoicesInWords(const Meaning& meaning, Setting& setting, const MeaningDevice& device,
                            std::size_t most) {
  const ValueRange range = RangeOf(setting);
  if (HasLimits(setting)) {
    return FormatDecimal(range.first) + L" " + device.Said(Word::kTo) + L" " +
           FormatDecimal(range.last);
  }
  std::wstring list;
  for (const MeaningChoice& choice : meaning.choices) {
    if (most-- == 0) return list + L" and others";
    const std::wstring number = FormatDecimal(static_cast<std::int32_t>(choice.number));
    AppendPart(list, choice.text == number ? number : number + L" = " + choice.text);
  }
  return list;
}

std::wstring ValueInWords(const BackupDocument& document, const StoredValue& value) {
  if (value.type == kTypeDword) return FormatDecimal(value.number);
  return value.type == kTypeString ? document.StringOf(value) : HexOf(document.DataOf(value));
}

std::wstring ExactlyInWords(const BackupDocument& document, const StoredValue& value) {
  std::wstring words = L"hex:" + FormatDecimal(static_cast<std::int32_t>(value.type)) + L':';
  return words += HexOf(document.DataOf(value));
}

}  // namespace tidewell
