#include "preview/color.h"

#include <cmath>
#include <utility>

namespace tidewell {

namespace {

// The share of the light that a channel sends, of what it sends at most.
double Light(Color color, int shift) {
  const double level = (color >> shift & 0xFF) / 255.0;
  return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
}

// As bright as an eye takes it for, from 0 to 1.
double Luminance(Color color) {
  return 0.2126 * Light(color, 0) + 0.7152 * Light(color, 8) + 0.0722 * Light(color, 16);
}

}  // namespace

double Contrast(Color a, Color b) {
  double bright = Luminance(a);
  double dark = Luminance(b);
  if (bright < dark) std::swap(bright, dark);
  return (bright + 0.05) / (dark + 0.05);
}

}  // namespace tidewell
