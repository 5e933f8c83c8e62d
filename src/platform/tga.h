// Decodes TGA pictures.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "platform/pixels.h"

namespace tidewell {

// The points premultiplied. Of the kinds 1, 2, 3 and 9, 10, 11: a palette, colours or shades of
// grey, as they are or in runs, from any of the four corners; 15, 16, 24 or 32 bits a colour, 8 or
// 16 (with transparency) a grey, palettes of up to 65,535 colours. 15 and 16 bits have no
// transparency, nor have 32 that promise none and are clear all over. Nothing for other kinds, for
// what is cut off, broken, or larger than the image limits.
std::optional<Pixels> DecodeTga(std::span<const std::byte> file);

}  // namespace tidewell
