#include "platform/image_check.h"

#include <algorithm>
#include <array>

#include "platform/file_start.h"
#include "platform/text.h"

namespace tidewell {

namespace {

using Bytes = std::span<const std::byte>;

bool Has(Bytes bytes, std::size_t at, std::size_t size) {
  return at <= bytes.size() && size <= bytes.size() - at;
}

bool StartsWith(Bytes bytes, std::string_view start) {
  return Has(bytes, 0, start.size()) &&
         std::ranges::equal(bytes.first(start.size()), std::as_bytes(std::span(start)));
}

// The other way round than NumberAt.
std::uint32_t BigNumberAt(Bytes bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i) number = number << 8 | NumberAt(bytes, at + i, 1);
  return number;
}

// ---- PNG: chunks, the sides in the first one, up to one that says the end.

constexpr std::string_view kPngStart("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
constexpr std::size_t kPngMagicSize = 8;
constexpr std::uint32_t kPngEnd = 0x49454E44;  // "IEND"

bool IsDecodablePng(Bytes bytes) {
  if (!StartsWith(bytes, kPngStart) || !Has(bytes, kPngStart.size(), 8)) return false;
  if (!FitsImageLimits(BigNumberAt(bytes, 16, 4), BigNumberAt(bytes, 20, 4))) return false;
  std::size_t at = kPngMagicSize;
  while (Has(bytes, at, 12)) {
    if (BigNumberAt(bytes, at + 4, 4) == kPngEnd) return true;
    at += std::size_t{12} + BigNumberAt(bytes, at, 4);
  }
  return false;
}

// ---- GIF: each of any number of pictures has sides of its own, and a few bytes unfold to many
// points; so the file is ended behind its first picture.

constexpr std::size_t kGifHeaderSize = 13;
constexpr std::size_t kGifPictureSize = 10;  // the part before its palette
enum GifBlock : std::uint32_t { kGifExtension = 0x21, kGifPicture = 0x2C, kGifEnd = 0x3B };

std::size_t GifPaletteSize(std::uint32_t flags) {
  return flags & 0x80 ? 6u << (flags & 7) : 0;
}

// Behind pieces of up to 255 bytes, the last one of none; or anywhere beyond the end.
std::size_t SkipGifPieces(Bytes bytes, std::size_t at) {
  std::uint32_t size = 1;
  while (size > 0 && Has(bytes, at, 1)) {
    size = NumberAt(bytes, at, 1);
    at += 1 + size;
  }
  return size > 0 ? bytes.size() + 1 : at;
}

bool FitsLimitsAt(Bytes bytes, std::size_t at) {
  return FitsImageLimits(NumberAt(bytes, at, 2), NumberAt(bytes, at + 2, 2));
}

// 0 when there is none that may be decoded.
std::size_t EndOfFirstGifPicture(Bytes bytes) {
  if (!Has(bytes, 0, kGifHeaderSize) || !FitsLimitsAt(bytes, 6)) return 0;
  std::size_t at = kGifHeaderSize + GifPaletteSize(NumberAt(bytes, 10, 1));
  while (Has(bytes, at, 2) && NumberAt(bytes, at, 1) == kGifExtension) {
    at = SkipGifPieces(bytes, at + 2);
  }
  if (!Has(bytes, at, kGifPictureSize) || NumberAt(bytes, at, 1) != kGifPicture) return 0;
  if (!FitsLimitsAt(bytes, at + 5)) return 0;
  at += kGifPictureSize + GifPaletteSize(NumberAt(bytes, at + 9, 1));
  const std::size_t end = SkipGifPieces(bytes, at + 1);  // behind the code size
  return Has(bytes, end, 1) ? end : 0;
}

// ---- JPEG: segments up to the picture's end. Every scan runs over all of the points once more.

constexpr std::string_view kJpegStart("\xFF\xD8\xFF", 3);
constexpr int kMaxJpegScans = 16;

enum JpegMarker : std::uint32_t {
  kJpegFirstFrame = 0xC0,
  kJpegTables = 0xC4,
  kJpegExtension = 0xC8,
  kJpegArithmetic = 0xCC,
  kJpegLastFrame = 0xCF,
  kJpegFirstRestart = 0xD0,
  kJpegPictureStart = 0xD8,
  kJpegEnd = 0xD9,
  kJpegScan = 0xDA,
  kJpegMark = 0xFF,  // stands before each of the others, any number of times
};

bool IsJpegFrame(std::uint32_t marker) {
  return marker >= kJpegFirstFrame && marker <= kJpegLastFrame && marker != kJpegTables &&
         marker != kJpegExtension && marker != kJpegArithmetic;
}

bool IsJpegRestart(std::uint32_t marker) {
  return marker >= kJpegFirstRestart && marker < kJpegPictureStart;
}

bool EndsJpegScan(std::uint32_t marker) {
  return marker != 0 && marker != kJpegMark && !IsJpegRestart(marker);
}

std::size_t EndOfJpegScan(Bytes bytes, std::size_t at) {
  while (Has(bytes, at, 2) &&
         (NumberAt(bytes, at, 1) != kJpegMark || !EndsJpegScan(NumberAt(bytes, at + 1, 1)))) {
    ++at;
  }
  return at;
}

class JpegCheck {
 public:
  explicit JpegCheck(Bytes bytes) : bytes_(bytes) {}

  bool IsDecodable() {
    while (Has(bytes_, at_, 2) && NumberAt(bytes_, at_, 1) == kJpegMark) {
      const std::uint32_t marker = NumberAt(bytes_, at_ + 1, 1);
      if (marker == kJpegEnd) return frames_ == 1 && scans_ > 0 && scans_ <= kMaxJpegScans;
      if (marker == kJpegMark) {
        ++at_;
      } else if (!TakeSegment(marker)) {
        return false;
      }
    }
    return false;
  }

 private:
  bool TakeSegment(std::uint32_t marker) {
    const bool hasSize =
        marker >= kJpegFirstFrame && !IsJpegRestart(marker) && marker != kJpegPictureStart;
    if (!hasSize || !Has(bytes_, at_, 4)) return false;
    if (IsJpegFrame(marker) && !TakeFrame()) return false;
    at_ += 2 + BigNumberAt(bytes_, at_ + 2, 2);
    if (marker == kJpegScan) {
      ++scans_;
      at_ = EndOfJpegScan(bytes_, at_);
    }
    return true;
  }
  bool TakeFrame() {
    ++frames_;
    return Has(bytes_, at_, 9) &&
           FitsImageLimits(BigNumberAt(bytes_, at_ + 7, 2), BigNumberAt(bytes_, at_ + 5, 2));
  }

  Bytes bytes_;
  std::size_t at_ = 2;
  int frames_ = 0;
  int scans_ = 0;
};

}  // namespace

ImageDecoder DecoderOf(std::wstring_view path) {
  struct Extension {
    std::wstring_view name;
    ImageDecoder decoder;
  };
  static constexpr std::array<Extension, 6> kExtensions = {{{L"png", ImageDecoder::kImaging},
                                                            {L"gif", ImageDecoder::kImaging},
                                                            {L"jpg", ImageDecoder::kImaging},
                                                            {L"jpeg", ImageDecoder::kImaging},
                                                            {L"bmp", ImageDecoder::kBitmap},
                                                            {L"tga", ImageDecoder::kTga}}};
  const std::wstring_view extension = path.substr(path.rfind(L'.') + 1);
  for (const Extension& known : kExtensions) {
    if (EqualIgnoringCase(known.name, extension)) return known.decoder;
  }
  return ImageDecoder::kNone;
}

std::vector<std::byte> DecodablePart(std::vector<std::byte> file) {
  if (file.size() > kMaxImageFile) return {};
  if (StartsWith(file, "GIF8")) {
    const std::size_t end = EndOfFirstGifPicture(file);
    file.resize(end > 0 ? end + 1 : 0);
    if (end > 0) file[end] = std::byte{kGifEnd};
    return file;
  }
  const bool isDecodable =
      StartsWith(file, kJpegStart) ? JpegCheck(file).IsDecodable() : IsDecodablePng(file);
  if (!isDecodable) file.clear();
  return file;
}

}  // namespace tidewell
