// Transforms in double precision, and how far a result may be from them.
#pragma once

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "huxdefs.h"
#include "support/image.h"

namespace hux::test {

using Complex = std::complex<double>;
using Numbers = std::vector<Complex>;

// The sum of x[i] * exp(-2 pi i k i / n), by the smallest factor of n; of a prime as it stands. roots are those of 1,
// `every` of them for one of order n.
inline void spectrum(const Complex* x, std::size_t step, std::size_t n, Complex* y, const Numbers& roots) {
  const std::size_t every = roots.size() / n;
  std::size_t p = 2;
  while (p * p <= n && n % p) ++p;
  if (n % p) p = n;
  const std::size_t m = n / p;
  Numbers parts(n);
  for (std::size_t i = 0; i < p; ++i)
    if (m <= 1)
      parts[i] = x[i * step];
    else
      spectrum(x + i * step, step * p, m, parts.data() + i * m, roots);
  for (std::size_t k = 0; k < n; ++k) {
    y[k] = parts[k % m];
    for (std::size_t i = 1; i < p; ++i) y[k] += parts[i * m + k % m] * roots[k * i % n * every];
  }
}
inline Numbers spectrum(const Numbers& x) {
  const std::size_t n = x.size();
  Numbers roots(n), y(n);
  for (std::size_t k = 0; k < n; ++k) roots[k] = std::polar(1.0, -2 * std::numbers::pi * double(k) / double(n));
  spectrum(x.data(), 1, n, y.data(), roots);
  return y;
}
inline Numbers inverseSpectrum(Numbers x) {
  for (Complex& z : x) z = std::conj(z);
  x = spectrum(x);
  for (Complex& z : x) z = std::conj(z);
  return x;
}

// The factor of a direction under a flag.
inline double factorOf(int flag, bool forward, double n) {
  if (flag == huxFftScaleRoot) return 1 / std::sqrt(n);
  return flag == (forward ? huxFftScaleFwd : huxFftScaleInv) ? 1 / n : 1;
}
inline constexpr int kFlags[] = {huxFftScaleFwd, huxFftScaleInv, huxFftScaleRoot, huxFftScaleNone};

// Relative to the whole vector: 2e-7 for each doubling of the length.
inline double tolerance(double n) { return 2e-7 * std::max(1.0, std::log2(n)); }
inline testing::AssertionResult near(const Numbers& actual, const Numbers& expected, double bound) {
  double error = 0, size = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    error += std::norm(actual[i] - expected[i]);
    size += std::norm(expected[i]);
  }
  const double relative = std::sqrt(error / size);
  if (actual.size() == expected.size() && relative < bound) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "relative error " << relative << ", bound " << bound;
}

// A spectrum of real numbers in its packed orders, and back; a length of any kind.
inline std::vector<double> packed(const Numbers& spectrum, bool perm = false) {
  const std::size_t n = spectrum.size();
  std::vector<double> p{spectrum[0].real()};
  if (perm && n % 2 == 0) p.push_back(spectrum[n / 2].real());
  for (std::size_t k = 1; 2 * k < n; ++k) p.push_back(spectrum[k].real()), p.push_back(spectrum[k].imag());
  if (!perm && n % 2 == 0) p.push_back(spectrum[n / 2].real());
  return p;
}

inline Numbers unpacked(const Numbers& p, bool perm = false) {
  const std::size_t n = p.size();
  Numbers x(n);
  x[0] = p[0];
  if (n % 2 == 0) x[n / 2] = p[perm ? 1 : n - 1];
  for (std::size_t k = 1; 2 * k < n; ++k) {
    const std::size_t at = 2 * k - (perm && n % 2 == 0 ? 0 : 1);
    x[k] = {p[at].real(), p[at + 1].real()};
    x[n - k] = std::conj(x[k]);
  }
  return x;
}
// What complex transforms, and real ones, give.
inline Numbers expectedLine(bool real, bool forward, bool perm, const Numbers& input) {
  if (!real) return forward ? spectrum(input) : inverseSpectrum(input);
  if (forward) {
    const std::vector<double> p = packed(spectrum(input), perm);
    return {p.begin(), p.end()};
  }
  Numbers x = inverseSpectrum(unpacked(input, perm));
  for (Complex& z : x) z = z.real();
  return x;
}

// Vectors in guarded memory, of complex or real floats.
class Floats {
 public:
  Floats(Rng& rng, std::size_t count, int parts, Place place = Place::kInside)
      : image_(rng, int(count) * parts * 4, 1, 1, place), parts_(parts) {
    image_.fill<float>([&] { return std::uniform_real_distribution<float>(-1, 1)(rng); });
  }
  template <class T>
  T* as() const {
    return image_.data<T>();
  }
  float at(std::size_t i) const { return image_.get<float>(0, 0, int(i)); }
  int parts() const { return parts_; }
  std::size_t count() const { return std::size_t(image_.width()) / 4; }
  Numbers numbers() const {
    Numbers n;
    for (std::size_t i = 0; i < count(); i += std::size_t(parts_)) n.push_back({at(i), parts_ == 2 ? at(i + 1) : 0});
    return n;
  }
  const Image& image() const { return image_; }

 private:
  Image image_;
  int parts_;
};
inline Numbers scaledBy(double factor, Numbers n) {
  for (Complex& z : n) z *= factor;
  return n;
}

}  // namespace hux::test
