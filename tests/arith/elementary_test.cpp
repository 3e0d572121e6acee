// Abs, Sqr, Sqrt, Exp and Ln on images and vectors, against the exact results: integer comparison, extended precision,
// and the C library's functions in double precision for floats.
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <numbers>

#include "arith/operation.h"
#include "huxcore.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

enum class Function { Abs, Sqr, Sqrt, Exp, Ln };
using enum Function;

struct Member : Operation {
  Function function;
  bool scaled = false;
};
#define PLAIN(f, t, l) Member{HUX_OF_ONE(f, t, l, ), f},
#define SCALED(f, t, l) Member{HUX_OF_ONE(f, t, l, Sfs), f, true},
#define ABS(t, l) PLAIN(Abs, t, l)
#define SQR(t, l) SCALED(Sqr, t, l)
#define SQRT(t, l) SCALED(Sqrt, t, l)
#define EXP_LN(t, l) SCALED(Exp, t, l) SCALED(Ln, t, l)
#define FLOATS(_, l) PLAIN(Sqr, 32f, l)
#define FLOAT_ROOTS(_, l) PLAIN(Sqrt, 32f, l)
#define FLOAT_LOGS(_, l) PLAIN(Exp, 32f, l) PLAIN(Ln, 32f, l)

#define LINES(t, f) Member{HUX_LINES_OF_ONE(f, t, , ), f},
#define SCALED_LINES(t, f) Member{HUX_LINES_OF_ONE(f, t, _Sfs, Sfs), f, true},

std::vector<Member> members() {
  return {
    HUX_STAMP(ABS, (16s, 32f), (C1, C3, C4, AC4))
    HUX_STAMP(SQR, (8u, 16u, 16s), (C1, C3, C4, AC4))
    HUX_STAMP(FLOATS, (_), (C1, C3, C4, AC4))
    HUX_STAMP(SQRT, (8u, 16u, 16s), (C1, C3, AC4))
    HUX_STAMP(FLOAT_ROOTS, (_), (C1, C3, AC4))
    HUX_STAMP(EXP_LN, (8u, 16s), (C1, C3))
    HUX_STAMP(FLOAT_LOGS, (_), (C1, C3))
    HUX_STAMP(LINES, (16s), (Abs))
    HUX_STAMP(SCALED_LINES, (8u, 16u, 16s), (Sqr, Sqrt))
    HUX_STAMP(SCALED_LINES, (16s), (Exp, Ln))
    HUX_STAMP(LINES, (32f), (Abs, Sqr, Sqrt, Exp))
    // The one form that exists in place alone.
    Member { {HUX_NAMED(Sqrt, 32f, C4), First::kNone, nullptr, as<OperationFn, huxiSqrt_32f_C4IR, 4, 5, 6>}, Sqrt }
  };
}

HuxStatus call(const Member& m, const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, int scale) {
  return m.call(nullptr, 0, src, srcStep, dst, dstStep, roi, &scale);
}
HuxStatus inPlace(const Member& m, void* srcDst, int step, HuxiSize roi, int scale) {
  return m.inPlace(nullptr, 0, nullptr, 0, srcDst, step, roi, &scale);
}

// The expected results of all elements of an integer type, by the unsigned value of their bits, as values.
using Results = std::vector<int>;

// v * 2^-scale, ties to even, limited. A scale beyond +-80 moves everything out of the range.
int scaledExactly(__int128 v, int scale, int limit) {
  if (scale <= 0) return v == 0 ? 0 : int(std::min<__int128>(v << -std::max(scale, -40), limit));
  if (scale > 80) return 0;
  const __int128 unit = __int128(1) << scale, quotient = v >> scale, twice = (v - quotient * unit) * 2;
  return int(std::min<__int128>(quotient + (twice > unit || (twice == unit && quotient % 2 == 1)), limit));
}

// Of transcendental numbers, which are no ties.
int nearest(long double v, int limit) { return v >= limit ? limit : int(v + 0.5L); }

Results expectedIntegers(Function function, Number type, int scale) {
  const bool bytes = type == Number::k8u;
  const int count = bytes ? 256 : 65536, limit = bytes ? 255 : type == Number::k16u ? 65535 : 32767;
  Results results(static_cast<std::size_t>(count));
  const auto element = [&](int bits) { return type == Number::k16s ? int(std::int16_t(bits)) : bits; };
  static const std::vector<long double> logarithms = [] {
    std::vector<long double> table(32768);
    for (int p = 1; p < 32768; ++p) table[std::size_t(p)] = std::log((long double)p);
    return table;
  }();
  const long double factor = std::ldexp(1.0L, -std::clamp(scale, -40, 40));
  __int128 root = 0;
  for (int bits = 0; bits < count; ++bits) {
    const int p = element(bits);
    int& result = results[std::size_t(bits)];
    switch (function) {
      case Abs:
        result = std::min(std::abs(p), limit);
        break;
      case Sqr:
        result = scaledExactly(__int128(p) * p, scale, limit);
        break;
      case Sqrt: {
        // The root steps on while root(p) * 2^-scale is above root + 1/2: compared by squares, times 4 and 4^scale.
        const int s = std::clamp(scale, -25, 25);
        const auto isAbove = [&] {
          const __int128 square = (2 * root + 1) * (2 * root + 1) << (s > 0 ? 2 * s : 0);
          const __int128 operand = __int128(4 * p) << (s < 0 ? -2 * s : 0);
          return operand > square || (operand == square && root % 2 == 1);
        };
        while (p > 0 && root < limit && isAbove()) ++root;
        result = p > 0 ? int(root) : 0;
        break;
      }
      case Exp: {
        const long double power = p - std::clamp(scale, -60000, 60000) * std::numbers::ln2_v<long double>;
        if (p == 0 && scale == 1)
          result = bytes;  // the only tie
        else if (power > 12)
          result = limit;
        else if (power > -2)
          result = nearest(std::exp(power), limit);
        break;
      }
      case Ln:
        result = p < 1 ? (bytes ? 0 : -32768) : nearest(logarithms[std::size_t(p)] * factor, limit);
        break;
    }
  }
  return results;
}

float expectedFloat(Function function, float p) {
  const double x = p;
  switch (function) {
    case Abs:
      return std::bit_cast<float>(std::bit_cast<std::uint32_t>(p) & 0x7FFFFFFF);
    case Sqr:
      return float(x * x);
    case Sqrt:
      return x >= 0 ? float(std::sqrt(x)) : huxConstantOfNAN_32f;
    case Exp:
      return x == x ? float(std::exp(x)) : huxConstantOfNAN_32f;
    default:
      return x == 0 ? -huxConstantOfINF_32f : x > 0 ? float(std::log(x)) : huxConstantOfNAN_32f;
  }
}

HuxStatus expectedWarning(Function function, double p) {
  if (function == Sqrt && !(p >= 0)) return huxStsSqrtNegWarn;
  if (function == Ln && p <= 0) return p < 0 ? huxStsLogNegWarn : huxStsLogZeroWarn;
  return huxStsOk;
}

const Results& cachedIntegers(Function function, Number type, int scale) {
  static std::map<std::tuple<Function, Number, int>, Results> cache;
  Results& results = cache[{function, type, scale}];
  if (results.empty()) results = expectedIntegers(function, type, scale);
  return results;
}

// Applies the definition to an image, whose rows start at whole elements where a function moves its row pointers in
// those; the warning is that of the first element, alpha included, that has one.
HuxStatus apply(const Member& f, const Image& src, const Image& dst, int scale) {
  HuxStatus status = huxStsOk;
  const int unit = f.function == Exp || f.function == Ln ? 1 : f.elementBytes;
  const Results* results = f.type == Number::k32f ? nullptr : &cachedIntegers(f.function, f.type, scale);
  for (int y = 0; y < src.height(); ++y)
    for (int i = 0; i < src.width() * f.layout.stride; ++i) {
      const auto at = [&](const Image& image) {
        return image.bytes() + std::ptrdiff_t(y) * (image.step() / unit * unit) + i * f.elementBytes;
      };
      const double p = numberAt(f.type, at(src));
      if (status == huxStsOk) status = expectedWarning(f.function, p);
      if (i % f.layout.stride >= f.layout.touched) continue;
      const float r = results ? 0 : expectedFloat(f.function, valueAt<float>(at(src)));
      const int integer = results ? (*results)[std::size_t(int(p)) & (results->size() - 1)] : 0;
      std::memcpy(at(dst), results ? static_cast<const void*>(&integer) : &r, std::size_t(f.elementBytes));
    }
  return status;
}

float randomFloat(Rng& rng) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  constexpr float special[] = {0.0f,      -0.0f,     1.0f,      -1.0f,      infinity,   -infinity,  NAN,      -NAN,
                               1e-45f,    -1e-45f,   1e-38f,    3.4e38f,    88.722839f, 88.72284f,  87.0f,    87.00001f,
                               -87.3365f, -103.972f, -103.973f, -103.9721f, 1.0000001f, 0.9999999f, 0x1p-25f, 0x1p-24f};
  switch (between(rng, 0, 3)) {
    case 0:
      return special[between(rng, 0, int(std::size(special)) - 1)];
    case 1:
      return std::bit_cast<float>(std::uint32_t(rng()));
    case 2:
      return float(between(rng, -110000, 95000)) / 1000;
    default:
      return float(between(rng, 1, 4000)) / 1000;
  }
}

// Fills an image with one of three mixtures: anything; nothing that is a warning; one such element at most.
void fillSource(Rng& rng, const Member& f, const Image& image) {
  const int kind = between(rng, 0, 2);
  const auto fill = [&]<class T>(auto make, T good, T bad) {
    image.fill<T>([&] {
      const T p = make();
      return kind == 0 || p > T(0) ? p : good;
    });
    if (kind == 2)
      image.set<T>(between(rng, 0, image.width() - 1), between(rng, 0, image.height() - 1),
                   between(rng, 0, f.layout.stride - 1), bad);
  };
  if (f.type == Number::k32f)
    fill([&] { return randomFloat(rng); }, 2.5f, between(rng, 0, 1) ? -2.5f : 0.0f);
  else if (f.type == Number::k8u)
    fill([&] { return Hux8u(rng() >> between(rng, 0, 7)); }, Hux8u(7), Hux8u(0));
  else
    fill([&] { return Hux16s(Hux16s(rng()) >> between(rng, 0, 15)); }, Hux16s(7), Hux16s(between(rng, -1, 0)));
}

TEST(Elementary, EveryFormAppliesTheDefinition) {
  Rng rng(1);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    forShapes(rng, f.layout.stride == 1 ? 200 : 60, [&](int width, int height, Place place) {
      if (f.line) height = 1;
      const Image src(rng, width, height, f.pixelBytes(), place), dst(rng, width, height, f.pixelBytes(), place);
      fillSource(rng, f, src);
      const int scale = f.scaled ? std::array{0, -3, 4, -9}[std::size_t(between(rng, 0, 3))] : 0;
      const Image expected = dst, image = src, replaced = src, srcBefore = src;
      const HuxStatus status = apply(f, src, expected, scale);
      apply(f, srcBefore, replaced, scale);
      if (f.call) {
        ASSERT_EQ(call(f, src.bytes(), src.step(), dst.bytes(), dst.step(), src.size(), scale), status);
        ASSERT_TRUE(same(dst, expected)) << "scale " << scale;
        ASSERT_TRUE(same(src, srcBefore));
      }
      ASSERT_EQ(inPlace(f, image.bytes(), image.step(), src.size(), scale), status);
      ASSERT_TRUE(same(image, replaced)) << "scale " << scale;
    });
  }
}

TEST(Elementary, EveryIntegerAtEveryScaleThatMatters) {
  for (const Member& f : members()) {
    if (f.line || f.layout.stride != 1 || f.type == Number::k32f) continue;
    SCOPED_TRACE(f.name);
    constexpr int far = std::numeric_limits<int>::max();
    std::vector<int> scales = {-far - 1, -far, -60000, -47300, -1000, -100,  100,
                               360,      370,  1000,   20000,  47300, 60000, far};
    for (int scale = -18; scale <= 34; ++scale) scales.push_back(scale);
    if (!f.scaled) scales = {0};
    const bool bytes = f.type == Number::k8u;
    const int count = bytes ? 256 : 65536, step = count * f.elementBytes;
    std::vector<std::byte> src(65536 * 2), dst(src.size());
    for (int i = 0; i < count; ++i) std::memcpy(&src[std::size_t(i * f.elementBytes)], &i, std::size_t(f.elementBytes));
    for (const int scale : scales) {
      call(f, src.data(), step, dst.data(), step, {count, 1}, scale);
      const Results expected = expectedIntegers(f.function, f.type, scale);
      int i = 0;
      while (i < count && std::memcmp(&expected[std::size_t(i)], &dst[std::size_t(i * f.elementBytes)],
                                      std::size_t(f.elementBytes)) == 0)
        ++i;
      ASSERT_EQ(i, count) << "wrong result at scale " << scale;
    }
  }
}

// Dense over all bit patterns, and about the places where the results change their kind or are hardest to round.
TEST(Elementary, FloatsAreThoseOfDoublePrecisionNarrowed) {
  std::vector<float> src;
  for (std::uint64_t bits = 0; bits < std::uint64_t(1) << 32; bits += 10007)
    src.push_back(std::bit_cast<float>(std::uint32_t(bits)));
  for (const float centre :
       {0.0f, 1.0f, 0.69921875f, 1.3984375f, 87.0f, -87.0f, 88.72284f, -103.97208f, 0x1p-126f, 0x1.455342p+0f})
    for (std::uint32_t i = 0; i < 20000; ++i)
      src.push_back(std::bit_cast<float>(std::bit_cast<std::uint32_t>(centre) - 10000 + i));
  std::vector<float> dst(src.size());
  const HuxiSize size = {int(src.size()), 1};
  for (const Member& f : members()) {
    if (f.line || f.layout.stride != 1 || f.type != Number::k32f) continue;
    SCOPED_TRACE(f.name);
    call(f, src.data(), 1, dst.data(), 1, size, 0);
    for (std::size_t i = 0; i < src.size(); ++i)
      ASSERT_EQ(std::bit_cast<std::uint32_t>(dst[i]), std::bit_cast<std::uint32_t>(expectedFloat(f.function, src[i])))
          << "of " << src[i];
  }
}

TEST(Elementary, ChecksPointersThenSizeThenSteps) {
  Rng rng(2);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    const Image image(rng, 5, 3, f.pixelBytes());
    Arguments a(image, image.size());
    const auto failure = [](HuxStatus status) { return std::min<HuxStatus>(status, huxStsOk); };
    const auto apart = [&] { return failure(call(f, a.a, a.aStep, a.d, a.dStep, a.roi, 0)); };
    const std::string without = f.line ? "hAD" : "";
    if (f.call) CheckOrder(apart).in(a, "adwhAD", without).run(image);
    const auto within = [&] { return failure(inPlace(f, a.d, a.dStep, a.roi, 0)); };
    CheckOrder(within).in(a, "dwhD", without).run(image);
    EXPECT_EQ(failuresOf(within) > 0, f.layout.touched < f.layout.stride) << "only alpha forms take memory";
  }
}

}  // namespace
}  // namespace hux::test
