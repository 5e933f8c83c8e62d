// What each saved value means: where the owner sees it, what it is called there, and what its
// choices are. Everything is taken from the pages' own tables.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "companion/texts.h"
#include "pages/page_context.h"
#include "platform/memory/memory_machine.h"
#include "settings/settings_store.h"

namespace tidewell {

enum class ValueKind : std::uint8_t {
  kNumber,
  kSwitch,
  kChoice,  // a number with a text
  kCodes,   // a sum of choices
  kColor,
  kText,
  kBits,  // flags, which only a copy holds
  kFont,  // six values
};

struct MeaningChoice {
  std::uint32_t number;
  std::wstring text;
};

struct Meaning {
  ValueKind kind = ValueKind::kNumber;
  std::vector<Setting*> settings;  // one or, of a font, six
  int page = -1;                   // in kPages; -1 for none
  std::wstring tab;
  std::wstring label;
  std::wstring name;  // "Calendar/dNumOfDays"
  std::vector<MeaningChoice> choices;
  std::optional<Word> reason;  // why it is on no page
};

struct DeviceFacts {
  std::optional<ScreenFacts> screen;   // nothing: defaults that follow from it are not known
  std::optional<std::wstring> locale;  // the same
  Tongue tongue = Tongue::kEnglish;
};
// "qvga", "vga-landscape"; nothing for another.
std::optional<ScreenFacts> ScreenOfName(std::string_view name);
std::vector<std::string> ScreenNames();
// "en_US".
std::vector<std::string> LocaleNames();

// A device in memory that has every program, with its settings and what its pages make of them.
class MeaningDevice {
 public:
  explicit MeaningDevice(const DeviceFacts& facts);

  const DeviceFacts& Facts() const { return facts_; }
  SettingsStore& Store() { return store_; }
  MemoryRegistry& OwnRegistry() { return memory_.registry; }
  // Reads the settings anew.
  void Load();
  // In the order in which the owner sees them, then those that no page shows.
  const std::vector<Meaning>& Meanings() const { return meanings_; }
  std::wstring PageTitle(int page) const;
  std::wstring Text(int id) const;
  std::wstring Said(Word word) const { return WordIn(facts_.tongue, word); }
  // Whether the default follows from what is known of the device.
  bool KnowsDefault(Setting& setting) const;
  // Why not, or what it follows from.
  std::wstring DefaultRuleInWords(Setting& setting) const;

 private:
  class Collector;

  void InstallPrograms();
  void UseLocale();
  void Walk(const ScreenFacts& screen, Collector& collector);

  DeviceFacts facts_;
  MemoryMachine memory_;
  Machine machine_ = memory_.Door();
  SettingsStore store_;
  Language language_;
  CategoryCatalog catalog_{machine_, store_};
  PageContext context_{machine_, store_, catalog_, language_, {}};
  std::vector<Meaning> meanings_;
};

struct StoredLine {
  Setting* setting;
  std::vector<Setting*> members;  // itself, or a font's six
};
// The settings in load order, each font as one.
std::vector<StoredLine> LinesOf(SettingsStore& store);
// The last name of a key: "Calendar".
std::wstring KeyName(SettingKey key);

}  // namespace tidewell
