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
  kNone,
  kEmpty,
  kNoSuchChoice,
  kDefault,
  kOfTheScreen,
  kOfTheLocale,
  kInstallFolder,
  kOtherValues,
  kRecords,
  kFilters,
  kNoPage,
  kShown,
  kPlace,
  kWeight,
  kItalic,
  kUnderlined,
  kStruckOut,
  kHeight,
  kColor,
  kBold,
  kUncategorized,
  kHidden,
  kFlags,
  kKeptByTodayItem,
  kNotInBackups,
  kNoteAfterFirstStart,
  kOnTodayScreen,
  kWithAnother,
  kNotListed,
  kNoPageShowsIt,
};
const wchar_t* WordIn(Tongue tongue, Word word);

// UTF-8, a lone surrogate as the sign for what cannot be read; and back.
std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view text);

}  // namespace tidewell
