// What a setting is when the registry does not hold it: a literal, or a rule that the load
// answers with what it knows of the screen, the locale and the installation.
#pragma once

#include <cstdint>
#include <string>

#include "platform/scale.h"

namespace tidewell {

class StringSetting;

// What computed defaults are computed from.
struct LoadContext {
  ScreenScale scale;
  std::wstring installFolder;
  std::uint32_t firstDayOfWeek = 0;  // 0 is Monday, 6 Sunday
};

struct DwordDefault {
  enum class Rule : std::uint8_t { kLiteral, kScaledX, kScaledY, kFirstDayOfWeek };

  constexpr DwordDefault(std::uint32_t literal) : number(literal) {}
  constexpr DwordDefault(Rule computed, std::uint32_t length) : rule(computed), number(length) {}
  std::uint32_t Resolve(const LoadContext& context) const;

  Rule rule = Rule::kLiteral;
  std::uint32_t number;  // the literal, or the length at 96 dots per inch
};

constexpr DwordDefault ScaledX(std::uint32_t length) {
  return {DwordDefault::Rule::kScaledX, length};
}
constexpr DwordDefault ScaledY(std::uint32_t length) {
  return {DwordDefault::Rule::kScaledY, length};
}
inline constexpr DwordDefault kFirstDayOfWeek{DwordDefault::Rule::kFirstDayOfWeek, 0};

// The signed numbers that a setting may have beside its default, both ends included; any other is
// replaced by the default, as a change that the next save writes.
struct ValueRange {
  enum class Checked : std::uint8_t { kNever, kAtLoad, kAtSave };

  bool Has(std::uint32_t value) const {
    const auto number = static_cast<std::int32_t>(value);
    return first <= number && number <= last;
  }

  Checked checked = Checked::kNever;
  std::int32_t first = 0;
  std::int32_t last = 0;
};
constexpr ValueRange WithinAtLoad(std::int32_t first, std::int32_t last) {
  return {ValueRange::Checked::kAtLoad, first, last};
}
constexpr ValueRange WithinAtSave(std::int32_t first, std::int32_t last) {
  return {ValueRange::Checked::kAtSave, first, last};
}

struct StringDefault {
  enum class Rule : std::uint8_t { kLiteral, kInstallFolder, kOtherSetting };

  constexpr StringDefault(const wchar_t* literal) : text(literal) {}
  constexpr StringDefault(Rule computed, const StringSetting* setting, const wchar_t* suffix)
      : rule(computed), other(setting), text(suffix) {}
  std::wstring Resolve(const LoadContext& context) const;

  Rule rule = Rule::kLiteral;
  const StringSetting* other = nullptr;
  const wchar_t* text;  // the literal, or what follows the computed part
};

constexpr StringDefault InstallFolder(const wchar_t* suffix = L"") {
  return {StringDefault::Rule::kInstallFolder, nullptr, suffix};
}
// Follows the value of a setting that stands on an earlier line.
constexpr StringDefault ValueOf(const StringSetting& setting, const wchar_t* suffix = L"") {
  return {StringDefault::Rule::kOtherSetting, &setting, suffix};
}

}  // namespace tidewell
