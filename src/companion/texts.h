// The words of the companion: the language libraries' texts, and what it says itself.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace tidewell {

enum class Tongue : std::uint8_t { kEnglish, kGerman };

// By the numbers of resources/text/text_ids.h; written from the libraries' scripts by the build.
const std::map<int, std::wstring>& EnglishTexts();
const std::map<int, std::wstring>& GermanTexts();
const std::map<int, std::wstring>& TextsOf(Tongue tongue);

enum class Word : std::uint8_t {
  kOn,
  kOff,
  kNone,  // of a set
  kNoIcon,
  kAbsent,  // a value
  kEmpty,
  kNoSuchChoice,
  kOfTheScreen,
  kOfTheLocale,
  kInstallFolder,
  kOtherValues,
  kRecords,
  kFilters,
  kNoPage,
  kShown,
  kPlace,
  kName,
  kWeight,
  kItalic,
  kUnderlined,
  kStruckOut,
  kHeight,
  kBold,
  kUncategorized,
  kHidden,
  kInFilters,
  kKeptByTodayItem,
  kNotInBackups,
  kNoteAfterFirstStart,
  kOnTodayScreen,
  kWithAnother,
  kNotListed,
  kNoPageShowsIt,
  kTo,
};
const wchar_t* WordIn(Tongue tongue, Word word);

// Takes a character off the front of a text that is not empty; a lone surrogate counts as what
// cannot be read.
std::uint32_t TakeCharacter(std::wstring_view& text);

// UTF-8, a lone surrogate as the sign for what cannot be read; and back.
std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view text);

}  // namespace tidewell
