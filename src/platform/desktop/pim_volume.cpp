#include "platform/desktop/pim_volume.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tidewell {

namespace {

constexpr std::array<unsigned char, 8> kMagic = {'T', 'W', 'P', 'I', 'M', 'V', 'O', 'L'};
constexpr std::uint32_t kFormat = 1;
constexpr std::size_t kHeaderSize = 20;

// FNV-1a: no change of a single byte goes unseen.
std::uint32_t ChecksumOf(std::span<const std::byte> bytes) {
  std::uint32_t sum = 2166136261u;
  for (const std::byte byte : bytes) {
    sum = (sum ^ std::to_integer<std::uint32_t>(byte)) * 16777619u;
  }
  return sum;
}

class ByteWriter {
 public:
  void Put(std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) bytes_.push_back(static_cast<std::byte>(number >> (8 * i)));
  }
  void PutText(std::wstring_view text) {
    text = text.substr(0, std::numeric_limits<std::uint16_t>::max());
    Put(static_cast<std::uint32_t>(text.size()), 2);
    for (const wchar_t unit : text) Put(static_cast<std::uint32_t>(unit), 2);
  }
  void PutBytes(std::span<const std::byte> bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  }
  std::vector<std::byte> Take() { return std::move(bytes_); }

 private:
  std::vector<std::byte> bytes_;
};

// Reads past the end give zeros and are remembered.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::byte> bytes) : rest_(bytes) {}

  std::uint32_t Take(std::size_t size) {
    if (rest_.size() < size) {
      ok_ = false;
      return 0;
    }
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
      number |= std::to_integer<std::uint32_t>(rest_[i]) << (8 * i);
    }
    rest_ = rest_.subspan(size);
    return number;
  }
  std::wstring TakeText() {
    const std::size_t length = Take(2);
    if (rest_.size() < 2 * length) {
      ok_ = false;
      return {};
    }
    std::wstring text;
    for (std::size_t i = 0; i < length; ++i) text += static_cast<wchar_t>(Take(2));
    return text;
  }
  bool Ok() const { return ok_; }
  bool AtEnd() const { return rest_.empty(); }

 private:
  std::span<const std::byte> rest_;
  bool ok_ = true;
};

VolumeRecord TakeRecord(ByteReader& reader) {
  VolumeRecord record;
  const std::uint32_t count = reader.Take(2);
  for (std::uint32_t i = 0; i < count && reader.Ok(); ++i) {
    VolumeProperty property;
    property.id = reader.Take(4);
    if (IsTextProperty(property.id)) {
      property.text = reader.TakeText();
    } else {
      property.number = reader.Take(4);
    }
    record.properties.push_back(std::move(property));
  }
  return record;
}

VolumeDatabase TakeDatabase(ByteReader& reader) {
  VolumeDatabase database;
  database.name = reader.TakeText();
  const std::uint32_t count = reader.Take(4);
  for (std::uint32_t i = 0; i < count && reader.Ok(); ++i) {
    database.records.push_back(TakeRecord(reader));
  }
  return database;
}

}  // namespace

std::vector<std::byte> WrapVolumeBody(std::span<const std::byte> body) {
  ByteWriter writer;
  writer.PutBytes(std::as_bytes(std::span(kMagic)));
  writer.Put(kFormat, 4);
  writer.Put(static_cast<std::uint32_t>(body.size()), 4);
  writer.Put(ChecksumOf(body), 4);
  writer.PutBytes(body);
  return writer.Take();
}

std::vector<std::byte> FormatPimVolume(const PimVolume& volume) {
  ByteWriter body;
  body.Put(static_cast<std::uint32_t>(volume.databases.size()), 2);
  for (const VolumeDatabase& database : volume.databases) {
    body.PutText(database.name);
    body.Put(static_cast<std::uint32_t>(database.records.size()), 4);
    for (const VolumeRecord& record : database.records) {
      body.Put(static_cast<std::uint32_t>(record.properties.size()), 2);
      for (const VolumeProperty& property : record.properties) {
        body.Put(property.id, 4);
        if (IsTextProperty(property.id)) {
          body.PutText(property.text);
        } else {
          body.Put(property.number, 4);
        }
      }
    }
  }
  return WrapVolumeBody(body.Take());
}

std::optional<PimVolume> ParsePimVolume(std::span<const std::byte> bytes) {
  if (bytes.size() < kHeaderSize) return std::nullopt;
  if (!std::ranges::equal(bytes.first(kMagic.size()), std::as_bytes(std::span(kMagic)))) {
    return std::nullopt;
  }
  const std::span<const std::byte> body = bytes.subspan(kHeaderSize);
  ByteReader header(bytes.subspan(kMagic.size()));
  if (header.Take(4) != kFormat || header.Take(4) != body.size()) return std::nullopt;
  if (header.Take(4) != ChecksumOf(body)) return std::nullopt;

  ByteReader reader(body);
  PimVolume volume;
  const std::uint32_t count = reader.Take(2);
  for (std::uint32_t i = 0; i < count && reader.Ok(); ++i) {
    volume.databases.push_back(TakeDatabase(reader));
  }
  if (!reader.Ok() || !reader.AtEnd()) return std::nullopt;
  return volume;
}

}  // namespace tidewell
