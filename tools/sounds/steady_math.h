// SPDX-License-Identifier: MIT
// Sine and power of two from additions and multiplications alone. Used by the synthesiser: the C library's
// versions differ in the last bit from machine to machine, and the sound files must not.
#pragma once

#include <cmath>

namespace kestrel::sounds {

inline constexpr double kPi = 3.14159265358979323846;

// The sine of `turns` full turns (0.25 gives 1). Folded into a quarter turn, then Taylor's series; the error
// stays below 1e-9, far under the 3e-5 of a 16-bit step.
inline double Sine(double turns) {
  double t = turns - std::floor(turns + 0.5);  // -0.5 .. 0.5
  if (t > 0.25) t = 0.5 - t;
  if (t < -0.25) t = -0.5 - t;
  const double x = 2 * kPi * t;
  const double x2 = x * x;
  double term = x;
  double sum = x;
  for (int n = 3; n <= 15; n += 2) {
    term *= -x2 / (n * (n - 1));
    sum += term;
  }
  return sum;
}

inline double Cosine(double turns) {
  return Sine(turns + 0.25);
}

// 2 to the power x, for x within -1000..1000.
inline double Exp2(double x) {
  const double whole = std::floor(x + 0.5);
  const double y = (x - whole) * 0.69314718055994530942;  // times ln 2
  double term = 1;
  double sum = 1;
  for (int n = 1; n <= 12; ++n) {
    term *= y / n;
    sum += term;
  }
  return std::ldexp(sum, static_cast<int>(whole));
}

// The factor of so many decibels: 20 gives 10.
inline double Gain(double decibels) {
  return Exp2(decibels * 0.16609640474436811739);  // log2(10) / 20
}

}  // namespace kestrel::sounds
