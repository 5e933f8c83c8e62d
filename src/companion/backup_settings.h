// The settings of a backup as a device would have them, in words.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "companion/backup_document.h"
#include "companion/meanings.h"

namespace tidewell {

// What a value is now or by default. Either a number or a text.
struct Reading {
  bool isNumber = false;
  std::int32_t number = 0;
  std::wstring text;

  std::wstring Plain() const;
  bool operator==(const Reading&) const = default;
};
Reading DefaultOf(Setting& setting);

std::wstring PathOf(const Setting& setting);

class BackupSettings {
 public:
  // The document must outlive it.
  BackupSettings(const BackupDocument& document, const DeviceFacts& facts);

  const BackupDocument& Document() const { return document_; }
  const MeaningDevice& Device() const { return device_; }
  const std::vector<Meaning>& Meanings() const { return device_.Meanings(); }
  // The same device without the backup, whose words are in the other language.
  const MeaningDevice& InOtherTongue() const;

  // Null when it is not stored.
  const StoredValue* Stored(const Setting& setting) const;
  // Nothing when it is a default that is not known.
  std::optional<Reading> Read(Setting& setting) const;
  // Any of its values is stored and not known to be the default.
  bool IsChanged(const Meaning& meaning) const;
  // "0", "#FF0000", "Tahoma".
  std::wstring InWords(const Meaning& meaning) const;
  std::wstring DefaultInWords(const Meaning& meaning) const;
  // The values that are in effect and no setting of the catalogue.
  std::vector<const StoredValue*> OtherValues() const;

 private:
  std::wstring FontInWords(const Meaning& meaning, bool isDefault) const;
  std::wstring InWords(const Meaning& meaning, bool isDefault) const;
  std::optional<Reading> Read(Setting& setting, bool isDefault) const;

  const BackupDocument& document_;
  MeaningDevice device_;
  mutable std::unique_ptr<MeaningDevice> otherTongue_;
};

// A number as the page would say it.
std::wstring NumberInWords(const Meaning& meaning, std::uint32_t number,
                           const MeaningDevice& device);
// The number that words stand for; nothing when they stand for none, or for one that is no choice.
std::optional<std::int32_t> NumberOfWords(const Meaning& meaning, Setting& setting,
                                          std::wstring_view words, const MeaningDevice& device);
// What a value may be, in words; of more choices than `most` the first.
std::wstring ChoicesInWords(const Meaning& meaning, Setting& setting, const MeaningDevice& device,
                            std::size_t most = static_cast<std::size_t>(-1));
bool IsColor(const Meaning& meaning, const Setting& setting);
// What a number is to be between, where HasLimits.
ValueRange RangeOf(Setting& setting);
bool HasLimits(Setting& setting);
std::wstring ValueInWords(const BackupDocument& document, const StoredValue& value);
// Its type and its data as well, for two that are called alike: "hex:4:01000000".
std::wstring ExactlyInWords(const BackupDocument& document, const StoredValue& value);
std::wstring ColorInWords(std::uint32_t color, const MeaningDevice& device);

}  // namespace tidewell
