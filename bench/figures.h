// The lines of the one table: a figure, nearly always a ratio, with its spread and its aim.
#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace tidewell::bench {

class Samples {
 public:
  void Add(double value) { values_.push_back(value); }
  // The value that a share of all values does not exceed, 0 to 1.
  double Quantile(double share) const {
    if (values_.empty()) return 0;
    std::vector<double> sorted = values_;
    std::sort(sorted.begin(), sorted.end());
    return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1) + 0.5)];
  }
  double Median() const { return Quantile(0.5); }

 private:
  std::vector<double> values_;
};

// What was measured and its floor or peer, round by round in turns.
struct Comparison {
  Samples ours;
  Samples floor;
  Samples ratios;

  void Add(double our, double other) {
    ours.Add(our);
    floor.Add(other);
    ratios.Add(our / other);
  }
};

inline constexpr double kNoAim = -1;

// One line: name, figure, spread, aim, what stands behind it.
inline void PrintFigure(const char* name, double figure, const std::string& spread, double aim,
                        const char* unit, const std::string& behind) {
  char aimText[64] = "";
  if (aim != kNoAim) std::snprintf(aimText, sizeof aimText, "%.4g%s", aim, unit);
  std::printf("%-52s %8.2f%-4s %-16s %-8s %s\n", name, figure, unit, spread.c_str(), aimText,
              behind.c_str());
  std::fflush(stdout);
}

inline std::string Spread(double low, double high) {
  char text[64];
  std::snprintf(text, sizeof text, "%.2f to %.2f", low, high);
  return text;
}

// The median, between the quartiles.
inline void PrintSamples(const std::string& name, const Samples& samples, double aim,
                         const char* unit, const std::string& behind = "") {
  PrintFigure(name.c_str(), samples.Median(),
              Spread(samples.Quantile(0.25), samples.Quantile(0.75)), aim, unit, behind);
}

// The median of the rounds' ratios, between their quartiles; behind it the medians in `unit`.
inline void PrintRatio(const char* name, const Comparison& comparison, double aim,
                       const char* unit) {
  char behind[96];
  std::snprintf(behind, sizeof behind, "%.4g against %.4g %s", comparison.ours.Median(),
                comparison.floor.Median(), unit);
  PrintFigure(name, comparison.ratios.Median(),
              Spread(comparison.ratios.Quantile(0.25), comparison.ratios.Quantile(0.75)), aim, "",
              behind);
}

}  // namespace tidewell::bench
