// How large texts are on the screen, in steps of a point from the size that they begin with.
#pragma once

#include <algorithm>
#include <cmath>

namespace parvik {

inline constexpr double PuntiMinimi = 6;
inline constexpr double PuntiMassimi = 48;

/// The size of a text that begins with `base` points.
inline double PuntiIngranditi(double base, int passi) {
  if (passi == 0) return base;
  return std::clamp(base + passi, std::min(base, PuntiMinimi), std::max(base, PuntiMassimi));
}

/// As many of the steps as make a difference.
inline int PassiAmmessi(double base, int passi) {
  const int minimi = std::min(0, static_cast<int>(std::ceil(PuntiMinimi - base)));
  const int massimi = std::max(0, static_cast<int>(std::floor(PuntiMassimi - base)));
  return std::clamp(passi, minimi, massimi);
}

}  // namespace parvik
