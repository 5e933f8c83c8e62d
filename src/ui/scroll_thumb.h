// The mark beside a content that is not seen whole: how much of it is seen, and where. Pixels
// throughout.
#pragma once

#include <algorithm>

namespace tidewell {

struct ScrollThumb {
  int top = 0;
  int height = 0;

  bool operator==(const ScrollThumb&) const = default;
};

// In a track of that length; nothing when all of the content is seen. `offset` is how far the
// content is scrolled, from 0 to what is not seen of it.
inline ScrollThumb PlaceThumb(int track, int view, int content, int offset, int shortest) {
  if (content <= view) return {};
  const int height = std::min(std::max(track * view / content, shortest), track);
  return {(track - height) * offset / (content - view), height};
}

}  // namespace tidewell
