// Whether a picture file may be decoded: a hostile one must not make its decoder ask for all of the
// memory or run for minutes, nor a file that was cut off be shown in part.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tidewell {

inline constexpr std::uint32_t kMaxImageSide = 2048;     // points, of either side
inline constexpr std::size_t kMaxImageFile = 16u << 20;  // bytes

constexpr bool FitsImageLimits(std::uint32_t width, std::uint32_t height) {
  return width > 0 && height > 0 && width <= kMaxImageSide && height <= kMaxImageSide;
}

enum class ImageDecoder : std::uint8_t { kNone, kImaging, kBitmap, kTga };

// By the path's extension, in either case: png, gif, jpg and jpeg, bmp, tga.
ImageDecoder DecoderOf(std::wstring_view path);

// What the system's imaging component may be given of a file: all of a PNG or JPEG file, a GIF
// file as far as its first picture. Nothing when it is none of these, is larger than the limits,
// or was cut off.
std::vector<std::byte> DecodablePart(std::vector<std::byte> file);

}  // namespace tidewell
