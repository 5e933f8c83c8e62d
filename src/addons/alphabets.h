// The alphabets that the index of contacts and notes offers: four built-in ones, and one for each
// file in the install folder's CustomAlphabets.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"
#include "settings/exact_key.h"

namespace tidewell {

// The bits of the active alphabets; the last one stands for all custom ones together.
inline constexpr std::uint32_t kLatin = 1;
inline constexpr std::uint32_t kCyrillic = 2;
inline constexpr std::uint32_t kHebrew = 4;
inline constexpr std::uint32_t kGreek = 8;
inline constexpr std::uint32_t kCustomAlphabets = 16;

struct Alphabet {
  std::wstring name;
  std::uint32_t bit = 0;
  bool active = false;

  bool operator==(const Alphabet&) const = default;
};

// Whether the first of the characters ".", "t" and "x" stands four characters before the end of a
// name of five or more: on purpose, for the Today item has it so. "Thai.txt" is an alphabet's,
// "Latvian.txt" is none. "Latin.txt" is one all the same.
bool IsAlphabetFile(std::wstring_view name);

class Alphabets {
 public:
  Alphabets(const Machine& machine, const std::wstring& installFolder);

  // The built-in ones by `bits`, then those of the files, which are active by their key.
  std::vector<Alphabet> Offered(std::uint32_t bits);
  // Keeps which of those that were offered are active; returns the bits. A key that could not be
  // read to its end stays as it is. Failures are silent.
  std::uint32_t Activate(const std::vector<Alphabet>& alphabets) const;
  // The active custom ones whose file is there.
  std::vector<std::wstring> ActiveCustom() const;

 private:
  struct ActiveNames {
    std::vector<std::wstring> names;
    bool isNew = false;  // there was no key, or it was refused
    bool isWhole = true;
  };

  ActiveNames ReadKey() const;
  void SaveKey(const std::vector<KeyValue>& values) const;
  // Those of the files that fit a pattern.
  std::vector<std::wstring> FileNames(const wchar_t* pattern) const;

  const Machine& machine_;
  std::wstring folder_;
  ActiveNames known_;  // when they were last offered
};

}  // namespace tidewell
