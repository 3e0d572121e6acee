// Abs, Sqr, Sqrt, Exp and Ln on images, against the exact results: integer comparison, extended precision, and the C
// library's functions in double precision for floats.
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <numbers>

#include "core/stamp.h"
#include "huxcore.h"
#include "huxi_arith.h"
#include "support/failing_malloc.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

enum class Function { Abs, Sqr, Sqrt, Exp, Ln };
using enum Function;

using CallFn = HuxStatus (*)(const void*, int, void*, int, HuxiSize, int);
using InPlaceFn = HuxStatus (*)(void*, int, HuxiSize, int);
struct Form {
  std::string name;
  Function function;
  char type;  // b: 8u, u: 16u, s: 16s, f: 32f
  int channels, processed;
  bool scaled;
  CallFn call;
  InPlaceFn inPlace;
  int elementBytes() const { return type == 'b' ? 1 : type == 'f' ? 4 : 2; }
};

constexpr char kType_8u = 'b', kType_16u = 'u', kType_16s = 's', kType_32f = 'f';
constexpr int kChannels_C1 = 1, kChannels_C3 = 3, kChannels_C4 = 4, kChannels_AC4 = 4;
constexpr int kProcessed_C1 = 1, kProcessed_C3 = 3, kProcessed_C4 = 4, kProcessed_AC4 = 3;

#define CALL(f, t, l, suffix, ...)                                                                             \
  [](const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, [[maybe_unused]] int scale) {         \
    return huxi##f##_##t##_##l##R##suffix(static_cast<const Hux##t*>(src), srcStep, static_cast<Hux##t*>(dst), \
                                          dstStep, roi __VA_OPT__(, ) __VA_ARGS__);                            \
  }
#define IN_PLACE(f, t, l, suffix, ...)                                                                          \
  [](void* srcDst, int step, HuxiSize roi, [[maybe_unused]] int scale) {                                        \
    return huxi##f##_##t##_##l##IR##suffix(static_cast<Hux##t*>(srcDst), step, roi __VA_OPT__(, ) __VA_ARGS__); \
  }
#define FORM(f, t, l, suffix, ...)         \
  Form{#f "_" #t "_" #l,                   \
       f,                                  \
       kType_##t,                          \
       kChannels_##l,                      \
       kProcessed_##l,                     \
       #suffix[0] == 'S',                  \
       CALL(f, t, l, suffix, __VA_ARGS__), \
       IN_PLACE(f, t, l, suffix, __VA_ARGS__)},
#define ABS(t, l) FORM(Abs, t, l, )
#define SQR(t, l) FORM(Sqr, t, l, Sfs, scale)
#define SQR_FLOAT(t, l) FORM(Sqr, t, l, )
#define SQRT(t, l) FORM(Sqrt, t, l, Sfs, scale)
#define SQRT_FLOAT(t, l) FORM(Sqrt, t, l, )
#define EXP_LN(t, l) FORM(Exp, t, l, Sfs, scale) FORM(Ln, t, l, Sfs, scale)
#define EXP_LN_FLOAT(t, l) FORM(Exp, t, l, ) FORM(Ln, t, l, )

const std::vector<Form>& forms() {
  static const std::vector<Form> all = {
    HUX_STAMP(ABS, (16s, 32f), (C1, C3, C4, AC4)) HUX_STAMP(SQR, (8u, 16u, 16s), (C1, C3, C4, AC4))
        HUX_STAMP(SQR_FLOAT, (32f), (C1, C3, C4, AC4)) HUX_STAMP(SQRT, (8u, 16u, 16s), (C1, C3, AC4))
            HUX_STAMP(SQRT_FLOAT, (32f), (C1, C3, AC4)) HUX_STAMP(EXP_LN, (8u, 16s), (C1, C3))
                HUX_STAMP(EXP_LN_FLOAT, (32f), (C1, C3))
    // The one form that exists in place alone.
    Form{"Sqrt_32f_C4I", Sqrt, 'f', 4, 4, false, nullptr, IN_PLACE(Sqrt, 32f, C4, )}
  };
  return all;
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

Results expectedIntegers(Function function, char type, int scale) {
  const int count = type == 'b' ? 256 : 65536, limit = type == 'b' ? 255 : type == 'u' ? 65535 : 32767;
  Results results(static_cast<std::size_t>(count));
  const auto element = [&](int bits) { return type == 's' ? int(std::int16_t(bits)) : bits; };
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
          result = type == 'b';  // the only tie
        else if (power > 12)
          result = limit;
        else if (power > -2)
          result = nearest(std::exp(power), limit);
        break;
      }
      case Ln:
        result = p < 1 ? (type == 'b' ? 0 : -32768) : nearest(logarithms[std::size_t(p)] * factor, limit);
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

const Results& cachedIntegers(Function function, char type, int scale) {
  static std::map<std::tuple<Function, char, int>, Results> cache;
  Results& results = cache[{function, type, scale}];
  if (results.empty()) results = expectedIntegers(function, type, scale);
  return results;
}

// An element of an image, whose rows start at whole elements where a function moves its row pointers in those.
template <class T>
struct Pixels {
  const Image& image;
  std::ptrdiff_t step;
  Pixels(const Form& f, const Image& image)
      : image(image),
        step(image.step() - (f.function == Exp || f.function == Ln ? 0 : image.step() % int(sizeof(T)))) {}
  std::byte* at(int x, int y, int c) const {
    return image.bytes() + y * step + x * image.pixelBytes() + c * int(sizeof(T));
  }
  T get(int x, int y, int c) const {
    T value;
    std::memcpy(&value, at(x, y, c), sizeof value);
    return value;
  }
  void set(int x, int y, int c, T value) const { std::memcpy(at(x, y, c), &value, sizeof value); }
};

// Applies the definition to an image; the warning is that of the first element, alpha included, that has one.
HuxStatus apply(const Form& f, const Image& src, const Image& dst, int scale) {
  HuxStatus status = huxStsOk;
  const auto note = [&](double p) {
    if (status == huxStsOk) status = expectedWarning(f.function, p);
  };
  const Results* results = f.type == 'f' ? nullptr : &cachedIntegers(f.function, f.type, scale);
  for (int y = 0; y < src.height(); ++y)
    for (int x = 0; x < src.width(); ++x)
      for (int c = 0; c < f.channels; ++c) {
        const bool written = c < f.processed;
        if (f.type == 'f') {
          const float p = Pixels<float>(f, src).get(x, y, c), r = expectedFloat(f.function, p);
          note(p);
          if (written) Pixels<float>(f, dst).set(x, y, c, r);
        } else if (f.type == 'b') {
          const Hux8u p = Pixels<Hux8u>(f, src).get(x, y, c);
          note(p);
          if (written) Pixels<Hux8u>(f, dst).set(x, y, c, Hux8u((*results)[p]));
        } else {
          const Hux16u p = Pixels<Hux16u>(f, src).get(x, y, c);
          note(f.type == 's' ? Hux16s(p) : p);
          if (written) Pixels<Hux16u>(f, dst).set(x, y, c, Hux16u((*results)[p]));
        }
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
void fillSource(Rng& rng, const Form& f, Image& image) {
  const int kind = between(rng, 0, 2);
  const auto fill = [&]<class T>(auto make, T good, T bad) {
    image.fill<T>([&] {
      const T p = make();
      return kind == 0 || p > T(0) ? p : good;
    });
    if (kind == 2)
      image.set<T>(between(rng, 0, image.width() - 1), between(rng, 0, image.height() - 1),
                   between(rng, 0, f.channels - 1), bad);
  };
  if (f.type == 'f')
    fill([&] { return randomFloat(rng); }, 2.5f, between(rng, 0, 1) ? -2.5f : 0.0f);
  else if (f.type == 'b')
    fill([&] { return Hux8u(rng() >> between(rng, 0, 7)); }, Hux8u(7), Hux8u(0));
  else
    fill([&] { return Hux16s(Hux16s(rng()) >> between(rng, 0, 15)); }, Hux16s(7), Hux16s(between(rng, -1, 0)));
}

TEST(Elementary, EveryFormAppliesTheDefinition) {
  const int blocks = liveBlocks();
  Rng rng(1);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    forShapes(rng, f.channels == 1 ? 200 : 60, [&](int width, int height, Place place) {
      const int bytes = f.channels * f.elementBytes();
      Image src(rng, width, height, bytes, place);
      const Image dst(rng, width, height, bytes, place);
      fillSource(rng, f, src);
      const int scale = f.scaled ? std::array{0, -3, 4, -9}[std::size_t(between(rng, 0, 3))] : 0;
      Image expected = dst, inPlace = src, expectedInPlace = src;
      const Image srcBefore = src;
      const HuxStatus status = apply(f, src, expected, scale);
      apply(f, src, expectedInPlace, scale);
      if (f.call) {
        ASSERT_EQ(f.call(src.bytes(), src.step(), dst.bytes(), dst.step(), src.size(), scale), status);
        ASSERT_TRUE(same(dst, expected)) << "scale " << scale;
        ASSERT_TRUE(same(src, srcBefore));
      }
      ASSERT_EQ(f.inPlace(inPlace.bytes(), inPlace.step(), src.size(), scale), status);
      ASSERT_TRUE(same(inPlace, expectedInPlace)) << "scale " << scale;
    });
  }
  EXPECT_EQ(liveBlocks(), blocks);
}

TEST(Elementary, EveryIntegerAtEveryScaleThatMatters) {
  for (const Form& f : forms()) {
    if (f.channels != 1 || f.type == 'f') continue;
    SCOPED_TRACE(f.name);
    constexpr int far = std::numeric_limits<int>::max();
    std::vector<int> scales = {-far - 1, -far, -60000, -47300, -1000, -100,  100,
                               360,      370,  1000,   20000,  47300, 60000, far};
    for (int scale = -18; scale <= 34; ++scale) scales.push_back(scale);
    if (!f.scaled) scales = {0};
    const int count = f.type == 'b' ? 256 : 65536;
    std::vector<Hux16u> src(65536), dst(src.size());
    for (int i = 0; i < count; ++i) {
      if (f.type == 'b')
        reinterpret_cast<Hux8u*>(src.data())[i] = Hux8u(i);
      else
        src[std::size_t(i)] = Hux16u(i);
    }
    const int step = count * f.elementBytes();
    for (const int scale : scales) {
      f.call(src.data(), step, dst.data(), step, {count, 1}, scale);
      const Results expected = expectedIntegers(f.function, f.type, scale);
      const auto result = [&](int i) {
        return f.type == 'b' ? reinterpret_cast<Hux8u*>(dst.data())[i] : dst[std::size_t(i)];
      };
      int i = 0;
      while (i < count && Hux16u(expected[std::size_t(i)]) == result(i)) ++i;
      ASSERT_EQ(i, count) << "wrong result " << result(i) << " at scale " << scale;
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
  for (const Form& f : forms()) {
    if (f.channels != 1 || f.type != 'f') continue;
    SCOPED_TRACE(f.name);
    f.call(src.data(), 1, dst.data(), 1, size, 0);
    for (std::size_t i = 0; i < src.size(); ++i)
      ASSERT_EQ(std::bit_cast<std::uint32_t>(dst[i]), std::bit_cast<std::uint32_t>(expectedFloat(f.function, src[i])))
          << "of " << src[i];
  }
}

TEST(Elementary, ChecksPointersThenSizeThenSteps) {
  Rng rng(2);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    const Image src(rng, 5, 3, f.channels * f.elementBytes()), dst = src;
    HuxiSize roi = src.size();
    const void* from = src.bytes();
    void* to = dst.bytes();
    int srcStep = src.step(), dstStep = dst.step();
    const auto positive = [&](HuxStatus status) { return status < 0 ? status : HuxStatus(huxStsOk); };
    if (f.call)
      CheckOrder([&] { return positive(f.call(from, srcStep, to, dstStep, roi, 0)); })
          .breaks(huxStsNullPtr, from, nullptr)
          .breaks(huxStsNullPtr, to, nullptr)
          .breaks(huxStsBadSize, roi.width, 0)
          .breaks(huxStsBadSize, roi.height, -1)
          .breaks(huxStsBadStep, srcStep, 0)
          .breaks(huxStsBadStep, dstStep, -8)
          .run(dst);
    CheckOrder([&] { return positive(f.inPlace(to, dstStep, roi, 0)); })
        .breaks(huxStsNullPtr, to, nullptr)
        .breaks(huxStsBadSize, roi.width, -3)
        .breaks(huxStsBadSize, roi.height, 0)
        .breaks(huxStsBadStep, dstStep, 0)
        .run(dst);
  }
}

TEST(Elementary, WithoutMemoryAlphaFormsWriteNothing) {
  Rng rng(3);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    Image image(rng, 9, 4, f.channels * f.elementBytes());
    const Image before = image;
    int failures = 0;
    const int blocks = liveBlocks();
    walkAllocationFailures([&] { return f.inPlace(image.bytes(), image.step(), image.size(), 0); },
                           [&](HuxStatus status) {
                             ++failures;
                             EXPECT_EQ(status, huxStsNoMem);
                             EXPECT_TRUE(same(image, before));
                           });
    EXPECT_EQ(failures, f.processed < f.channels ? 1 : 0);
    EXPECT_EQ(liveBlocks(), blocks);
  }
}

}  // namespace
}  // namespace hux::test
