#include "workers/portable.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

namespace hux::portable {
namespace {

// A number as the sum of two, of which the second is at most half a unit of the first one's last place.
struct Wide {
  Hux64f high = 0, low = 0;
};

// a + b exactly, where a is the larger or both are of any size.
constexpr Wide orderedSum(Hux64f a, Hux64f b) {
  const Hux64f sum = a + b;
  return {sum, b - (sum - a)};
}
constexpr Wide exactSum(Hux64f a, Hux64f b) {
  const Hux64f sum = a + b, second = sum - a;
  return {sum, (a - (sum - second)) + (b - second)};
}
// a * b exactly, by halves of 26 digits.
constexpr Wide exactProduct(Hux64f a, Hux64f b) {
  const auto upper = [](Hux64f v) {
    const Hux64f t = v * 0x1.0000002p27;
    return t - (t - v);
  };
  const Hux64f product = a * b, ah = upper(a), bh = upper(b), al = a - ah, bl = b - bh;
  return {product, ((ah * bh - product) + ah * bl + al * bh) + al * bl};
}

constexpr Wide operator-(Wide a) { return {-a.high, -a.low}; }
constexpr Wide operator+(Wide a, Wide b) {
  const Wide high = exactSum(a.high, b.high), low = exactSum(a.low, b.low);
  const Wide sum = orderedSum(high.high, high.low + low.high);
  return orderedSum(sum.high, sum.low + low.low);
}
constexpr Wide operator-(Wide a, Wide b) { return a + -b; }
constexpr Wide operator*(Wide a, Wide b) {
  const Wide product = exactProduct(a.high, b.high);
  return orderedSum(product.high, product.low + (a.high * b.low + a.low * b.high));
}
constexpr Wide operator/(Wide a, Wide b) {
  const Hux64f first = a.high / b.high;
  const Wide rest = a - b * Wide{first};
  const Hux64f second = rest.high / b.high;
  const Hux64f third = (rest - b * Wide{second}).high / b.high;
  return orderedSum(first, second) + Wide{third};
}
Wide squareRoot(Wide a) {
  const Hux64f first = std::sqrt(a.high);
  return Wide{first} + (a - exactProduct(first, first)) / Wide{2 * first};
}

constexpr Wide kPi = {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53}, kHalfPi = {kPi.high / 2, kPi.low / 2},
               kQuarterPi = {kPi.high / 4, kPi.low / 4};
constexpr Wide kLn2 = {0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

// The sum of terms[first], terms[first + 2] z, terms[first + 4] z^2, ... or, by steps of 1, of all.
template <std::size_t N>
constexpr Wide series(const std::array<Wide, N>& terms, std::size_t first, std::size_t by, Wide z) {
  Wide sum;
  for (std::size_t k = first + (N - 1 - first) / by * by;; k -= by) {
    sum = sum * z + terms[k];
    if (k == first) return sum;
  }
}

// 1/k!, and 1/(2k + 1).
constexpr auto kFactorials = [] {
  std::array<Wide, 29> terms{};
  terms[0] = {1};
  for (std::size_t k = 1; k < terms.size(); ++k) terms[k] = terms[k - 1] / Wide{Hux64f(k)};
  return terms;
}();
template <std::size_t N>
constexpr auto kOddReciprocals = [] {
  std::array<Wide, N> terms{};
  for (std::size_t k = 0; k < N; ++k) terms[k] = Wide{1} / Wide{Hux64f(2 * k + 1)};
  return terms;
}();

// Of angles of up to an eighth of the circle.
Wide sineOf(Wide r) { return series(kFactorials, 1, 2, -(r * r)) * r; }
Wide cosineOf(Wide r) { return series(kFactorials, 0, 2, -(r * r)); }

// The binary digits of 2/pi, 64 in front of the point among them.
constexpr std::uint64_t kTwoOverPi[] = {0x0000000000000000, 0xa2f9836e4e441529, 0xfc2757d1f534ddc0, 0xdb6295993c439041,
                                        0xfe5163abdebbc561, 0xb7246e3a424dd2e0, 0x06492eea09d1921c, 0xfe1deb1cb129a73e,
                                        0xe88235f52ebb4484, 0xe99c7026b45f7e41, 0x3991d639835339f4, 0x9c845f8bbdf9283b,
                                        0x1ff897ffde05980f, 0xef2f118b5a0a6d1f, 0x6d367ecf27cb09b7, 0x4f463f669e5fea2d,
                                        0x7527bac7ebe5f17b, 0x3d0739f78a5292ea, 0x6bfb5fb11f8d5d08, 0x56033046fc7b6bab,
                                        0xf0cfbc209af4361d};

// An angle as a number of quarters of the circle, of which the last two bits are right, and a rest of an eighth at
// most.
struct Reduced {
  int quarters;
  Wide rest;
};
Reduced reduced(Hux64f x) {
  if (std::fabs(x) <= kQuarterPi.high) return {0, {x}};
  // |x| is mantissa * 2^exponent. Times the digits of 2/pi from those on that still count modulo 4 quarters, in 256
  // bits of which the first two come to stand in front of the point.
  const auto bits = std::bit_cast<std::uint64_t>(std::fabs(x));
  const int exponent = int(bits >> 52) - 1075, from = exponent - 2 + 64;
  const std::uint64_t mantissa = (bits & ((std::uint64_t(1) << 52) - 1)) | std::uint64_t(1) << 52;
  std::uint64_t turns[4], carry = 0;
  for (int i = 3; i >= 0; --i) {
    const std::uint64_t* word = kTwoOverPi + from / 64 + i;
    const std::uint64_t digits = from % 64 ? word[0] << from % 64 | word[1] >> (64 - from % 64) : word[0];
    __extension__ const unsigned __int128 product = static_cast<unsigned __int128>(digits) * mantissa + carry;
    turns[i] = std::uint64_t(product), carry = std::uint64_t(product >> 64);
  }
  // What is behind the point, to the nearest quarter and up to half of one on either side.
  int quarters = int(turns[0] >> 62);
  for (int i = 0; i < 4; ++i) turns[i] = turns[i] << 2 | (i < 3 ? turns[i + 1] >> 62 : 0);
  const bool up = turns[0] >> 63;
  if (up) {
    ++quarters;
    for (std::uint64_t& word : turns) word = ~word;
  }
  int zeros = 0;
  while (!(turns[0] >> 63)) {
    for (int i = 0; i < 4; ++i) turns[i] = turns[i] << 1 | (i < 3 ? turns[i + 1] >> 63 : 0);
    ++zeros;
  }
  const Hux64f high = std::ldexp(Hux64f(turns[0] >> 11), -53 - zeros);
  const Hux64f low = std::ldexp(Hux64f((turns[0] & 0x7ff) << 42 | turns[1] >> 22), -106 - zeros);
  Wide rest = orderedSum(high, low) * kHalfPi;
  if (up != std::signbit(x)) rest = -rest;
  return {std::signbit(x) ? -quarters : quarters, rest};
}

Hux64f circular(Hux64f x, int ahead) {
  if (!std::isfinite(x)) return std::numeric_limits<Hux64f>::quiet_NaN();
  const Reduced r = reduced(x);
  const int quarters = (r.quarters + ahead) & 3;
  const Hux64f value = (quarters & 1 ? cosineOf(r.rest) : sineOf(r.rest)).high;
  return quarters & 2 ? -value : value;
}

}  // namespace

Hux64f sin(Hux64f x) { return x == 0 ? x : circular(x, 0); }
Hux64f cos(Hux64f x) { return circular(x, 1); }

Hux64f atan2(Hux64f y, Hux64f x) {
  if (std::isnan(x) || std::isnan(y)) return std::numeric_limits<Hux64f>::quiet_NaN();
  Hux64f a = std::fabs(y), b = std::fabs(x);
  if (std::isinf(a) || std::isinf(b)) a = std::isinf(a), b = std::isinf(b);
  const bool steep = a > b;
  const Hux64f shorter = steep ? b : a, longer = steep ? a : b;
  Wide angle;
  if (shorter > 0) {
    Wide t = Wide{shorter} / Wide{longer};
    const bool far = t.high > std::numbers::sqrt2 - 1;
    if (far) t = (t - Wide{1}) / (t + Wide{1});
    angle = series(kOddReciprocals<42>, 0, 1, -(t * t)) * t;
    if (far) angle = angle + kQuarterPi;
  }
  if (steep) angle = kHalfPi - angle;
  if (std::signbit(x)) angle = kPi - angle;
  return std::copysign(angle.high, y);
}

Hux64f exp(Hux64f x) {
  if (std::isnan(x)) return x;
  const Hux64f doublings = std::floor(x * (1 / std::numbers::ln2) + 0.5);
  const Wide rest = Wide{x} - Wide{doublings} * kLn2;
  return std::ldexp(series(kFactorials, 0, 1, rest).high, int(doublings));
}

Hux64f log(Hux64f x) {
  int doublings = 0;  // also of what has no exponent
  Hux64f m = std::frexp(x, &doublings);
  if (m < std::numbers::sqrt2 / 2) m *= 2, --doublings;
  const Wide t = exactSum(m, -1) / exactSum(m, 1);
  return (series(kOddReciprocals<24>, 0, 1, t * t) * t * Wide{2} + kLn2 * Wide{Hux64f(doublings)}).high;
}

Hux64f rootOfInverse(Hux64f x, int halves) {
  if (!std::isfinite(x)) return halves == 2 ? 1 / x : 1 / (x * x);
  Wide power = {1};
  for (int k = halves % 2 ? halves : halves / 2; k > 0; --k) power = power * Wide{x};
  return (Wide{1} / (halves % 2 ? squareRoot(power) : power)).high;
}

SinCos ofEighth(Hux64f x) {
  const Hux64f z = x * x;
  Hux64f sine = 0, cosine = 0;
  for (std::size_t k = 18; k >= 2; k -= 2) {
    sine = (sine + kFactorials[k + 1].high) * -z;
    cosine = (cosine + kFactorials[k].high) * -z;
  }
  return {x + x * sine, 1 + cosine};
}

}  // namespace hux::portable
