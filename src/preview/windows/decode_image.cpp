#include "preview/windows/decode_image.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

#include "platform/image_check.h"
#include "platform/tga.h"
#include "platform/whole_file.h"
#include "win32/bitmaps.h"
#include "win32/com.h"

namespace tidewell {

namespace {

using Bytes = std::span<const std::byte>;

void AddRow(const BitmapData& data, int y, std::vector<Argb>& points) {
  const auto* row = static_cast<const std::byte*>(data.Scan0) + std::ptrdiff_t{y} * data.Stride;
  const auto* first = reinterpret_cast<const Argb*>(row);
  std::transform(first, first + data.Width, std::back_inserter(points), Premultiplied);
}

std::optional<Pixels> PixelsOf(IBitmapImage& bitmap) {
  SIZE size{};
  BitmapData data{};
  if (FAILED(bitmap.GetSize(&size))) return std::nullopt;
  const RECT whole{0, 0, size.cx, size.cy};
  if (FAILED(bitmap.LockBits(&whole, ImageLockModeRead, PixelFormat32bppARGB, &data))) {
    return std::nullopt;
  }
  Pixels pixels{size.cx, size.cy, {}};
  pixels.points.reserve(std::size_t{data.Width} * data.Height);
  for (int y = 0; y < size.cy; ++y) AddRow(data, y, pixels.points);
  bitmap.UnlockBits(&data);
  return pixels;
}

std::optional<Pixels> DecodeBySystem(IImagingFactory* imaging, Bytes file) {
  if (!imaging || file.empty()) return std::nullopt;
  ComPointer<IImage> image;
  ComPointer<IBitmapImage> bitmap;
  if (FAILED(imaging->CreateImageFromBuffer(file.data(), static_cast<UINT>(file.size()),
                                            BufferDisposalFlagNone, image.Put())) ||
      FAILED(imaging->CreateBitmapFromImage(image.Get(), 0, 0, PixelFormat32bppARGB,
                                            InterpolationHintDefault, bitmap.Put()))) {
    return std::nullopt;
  }
  return PixelsOf(*bitmap.Get());
}

// A bitmap's transparency, where it has any, as drawing wants it.
Bitmap WithAlpha(Bitmap bitmap) {
  DIBSECTION facts{};
  if (bitmap && GetObjectW(bitmap.Get(), sizeof facts, &facts) == sizeof facts &&
      facts.dsBm.bmBitsPixel == 32) {
    const auto points = static_cast<std::size_t>(facts.dsBm.bmWidth) *
                        static_cast<std::size_t>(facts.dsBm.bmHeight);
    MultiplyWithAlpha({static_cast<Argb*>(facts.dsBm.bmBits), points}, false);
  }
  return bitmap;
}

std::optional<Pixels> DecodePixels(Files& files, IImagingFactory* imaging, const std::wstring& path,
                                   ImageDecoder decoder) {
  auto [bytes, status] = ReadWholeFile(files, path, kMaxImageFile);
  if (status != FileStatus::kOk) return std::nullopt;
  return decoder == ImageDecoder::kTga ? DecodeTga(bytes)
                                       : DecodeBySystem(imaging, DecodablePart(std::move(bytes)));
}

}  // namespace

std::unique_ptr<GdiImage> DecodeImage(Files& files, IImagingFactory* imaging,
                                      const std::wstring& path) {
  const ImageDecoder decoder = DecoderOf(path);
  if (decoder == ImageDecoder::kNone) return nullptr;
  if (decoder == ImageDecoder::kBitmap) {
    return GdiImage::Of(WithAlpha(LoadBitmapFile(files, path)));
  }
  const auto pixels = DecodePixels(files, imaging, path, decoder);
  return pixels ? GdiImage::Of(*pixels) : nullptr;
}

}  // namespace tidewell
