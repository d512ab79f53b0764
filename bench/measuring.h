// Measuring times and printing figures, for the measuring programs.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace bench {

constexpr int rounds = 9;

template <typename Work>
[[nodiscard]] double milliseconds(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

[[nodiscard]] inline double median(std::vector<double> figures) {
  std::sort(figures.begin(), figures.end());
  return figures[figures.size() / 2];
}

/// The measured value and the floor of each round.
struct Figure {
  std::vector<double> measured;
  std::vector<double> floor;

  void add(double measuredNow, double floorNow) {
    measured.push_back(measuredNow);
    floor.push_back(floorNow);
  }
  /// Prints a line of tabs: name, median measured, median floor, median of the rounds' ratios,
  /// and the ratio that is allowed.
  void tell(const char* name, double limit) const {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < measured.size(); ++i) ratios.push_back(measured[i] / floor[i]);
    std::printf("figure\t%s\t%.3f\t%.3f\t%.3f\t%.3f\n", name, median(measured), median(floor),
                median(ratios), limit);
    std::fflush(stdout);
  }
};

}  // namespace bench
