// The fixed filters against sums of weighted pixels: integers in whatever order, floats operation by operation.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <map>

#include "filter/windows.h"
#include "huxi_filter.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

// What a filter is, by its name and size. `floats` computes one pixel from rows of pixels, the window's first cell
// first.
using Line = std::array<Hux32f, 5>;
using Window = std::array<Line, 5>;
struct Definition {
  int size;
  std::vector<int> weights;
  std::function<Hux32f(const Window&)> floats;
};

using Sum = Hux32f (*)(const Line&);
struct Factor {
  std::vector<int> weights;
  Sum sum;
};
const Factor kFall3{{1, 0, -1}, [](const Line& v) { return v[0] - v[2]; }};
const Factor kRise3{{-1, 0, 1}, [](const Line& v) { return v[2] - v[0]; }};
const Factor kOnes3{{1, 1, 1}, [](const Line& v) { return v[0] + v[1] + v[2]; }};
const Factor kSmooth3{{1, 2, 1}, [](const Line& v) { return v[0] + v[2] + v[1] + v[1]; }};
const Factor kSecond3{{1, -2, 1}, [](const Line& v) { return v[0] + v[2] - v[1] - v[1]; }};
const Factor kScharr3{{3, 10, 3}, [](const Line& v) { return (v[0] + v[2]) * 3.0f + v[1] * 10.0f; }};
const Factor kFall5{{1, 2, 0, -2, -1}, [](const Line& v) {
                      const Hux32f d = v[1] - v[3];
                      return v[0] - v[4] + d + d;
                    }};
const Factor kRise5{{-1, -2, 0, 2, 1}, [](const Line& v) {
                      const Hux32f d = v[3] - v[1];
                      return v[4] - v[0] + d + d;
                    }};
const Factor kSmooth5{{1, 4, 6, 4, 1}, [](const Line& v) { return v[0] + v[4] + (v[1] + v[3]) * 4.0f + v[2] * 6.0f; }};
const Factor kSecond5{{1, 0, -2, 0, 1}, [](const Line& v) { return v[0] + v[4] - v[2] - v[2]; }};

Line rowSums(const Window& w, Sum sum) {
  Line r;
  std::ranges::transform(w, r.begin(), sum);
  return r;
}
Definition separable(const Factor& along, const Factor& down) {
  Definition d{int(down.weights.size()), {}, {}};
  for (int c : down.weights)
    for (int r : along.weights) d.weights.push_back(c * r);
  d.floats = [=](const Window& w) { return down.sum(rowSums(w, along.sum)); };
  return d;
}

// All weights alike but the one in the middle.
std::vector<int> around(int size, int others, int middle) {
  std::vector<int> weights(std::size_t(size * size), others);
  weights[weights.size() / 2] = middle;
  return weights;
}
// Weights of 5 by 5 kernels, each divided in single precision, as products added up from left to right, top to bottom.
Definition products5(std::vector<int> weights, Hux32f divisor) {
  return {5, weights, [=](const Window& w) {
            Hux32f total = 0;
            for (std::size_t y = 0; y < 5; ++y) {
              Hux32f sum = 0;
              bool first = true;
              for (std::size_t x = 0; x < 5; ++x) {
                const int weight = weights[y * 5 + x];
                if (weight == 0) continue;
                const Hux32f product = w[y][x] * (Hux32f(weight) / divisor);
                sum = first ? product : sum + product;
                first = false;
              }
              total = y == 0 ? sum : total + sum;
            }
            return total;
          }};
}

const std::map<std::string, Definition> kDefinitions = {
    {"PrewittVert3", separable(kFall3, kOnes3)},
    {"PrewittHoriz3", separable(kOnes3, kRise3)},
    {"SobelVert3", separable(kFall3, kSmooth3)},
    {"SobelVert5", separable(kFall5, kSmooth5)},
    {"SobelHoriz3", separable(kSmooth3, kRise3)},
    {"SobelHoriz5", separable(kSmooth5, kRise5)},
    {"SobelVertSecond3", separable(kSecond3, kSmooth3)},
    {"SobelVertSecond5", separable(kSecond5, kSmooth5)},
    {"SobelHorizSecond3", separable(kSmooth3, kSecond3)},
    {"SobelHorizSecond5", separable(kSmooth5, kSecond5)},
    {"SobelCross3", separable(kFall3, kRise3)},
    {"SobelCross5", separable(kFall5, kRise5)},
    {"ScharrVert3", separable(kRise3, kScharr3)},
    {"ScharrHoriz3", separable(kScharr3, kRise3)},
    {"RobertsDown3", {3, {-1, 0, 0, 0, 1, 0, 0, 0, 0}, [](const Window& w) { return w[1][1] - w[0][0]; }}},
    {"RobertsUp3", {3, {0, 0, -1, 0, 1, 0, 0, 0, 0}, [](const Window& w) { return w[1][1] - w[0][2]; }}},
    {"Laplace3",
     {3, around(3, -1, 8),
      [](const Window& w) {
        const Line r = rowSums(w, kOnes3.sum);
        return w[1][1] * 9.0f - r[0] - r[1] - r[2];
      }}},
    {"Sharpen3",
     {3, around(3, -1, 16),
      [](const Window& w) {
        const Line r = rowSums(w, kOnes3.sum);
        return (w[1][1] * 17.0f - r[0] - r[1] - r[2]) * 0.125f;
      }}},
    {"Gauss3",
     {3,
      {1, 2, 1, 2, 4, 2, 1, 2, 1},
      [](const Window& w) { return kSmooth3.sum(rowSums(w, kSmooth3.sum)) * 0.0625f; }}},
    {"Lowpass3",
     {3, around(3, 1, 1),
      [](const Window& w) { return kOnes3.sum(rowSums(w, kOnes3.sum)) * std::bit_cast<Hux32f>(0x3de38e37u); }}},
    {"Laplace5",
     products5({-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1}, 1)},
    {"Gauss5",
     products5({2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2}, 571)},
    {"Lowpass5", {5, around(5, 1, 1), {}}},
    {"Hipass5", {5, around(5, -1, 24), {}}},
};

// The output for the weighted sum t.
Hux32s limited(Hux64s t, Hux32s low, Hux32s high) { return Hux32s(std::clamp<Hux64s>(t, low, high)); }
Hux32s byteOf(const std::string& filter, Hux32s t) {
  if (filter == "Sharpen3") return t <= 0 ? 0 : std::min((t + ((t >> 3) & 1) + 3) >> 3, 255);
  if (filter == "Gauss3") return (t + ((t >> 4) & 1) + 7) >> 4;
  if (filter == "Gauss5") return Hux32s((Hux32u(t) * 29382u + 8403252u) >> 24);
  if (filter == "Lowpass3") return (t * 455 + 2275) >> 12;
  if (filter == "Lowpass5") return ((t + 13) * 10485) >> 18;
  return limited(t, 0, 255);
}
Hux32s wordOf(const std::string& filter, Hux64s t) {
  const auto highWord = [&](Hux64s bias, Hux64s factor) { return Hux16s(((t + bias) * factor >> 32) ^ 0x8000); };
  if (filter == "Sharpen3") return limited((t + ((t >> 3) & 1) + 3) >> 3, -32768, 32767);
  if (filter == "Gauss3") return Hux16s((t + ((t >> 4) & 1) + 7) >> 4);
  if (filter == "Gauss5") return highWord(18710814, 7521834);
  if (filter == "Lowpass3") return highWord(294917, 477218588);
  if (filter == "Lowpass5") return highWord(819213, 171798691);
  return limited(t, -32768, 32767);
}

struct Member : Form {
  std::string filter;  // without its size
  int dstBytes, size;
  HuxiMaskSize mask;  // 0 where it takes none
  bool lenient;       // takes any other mask for 5 by 5
  HuxStatus (*plain)(const void*, int, void*, int, HuxiSize);
  HuxStatus (*masked)(const void*, int, void*, int, HuxiSize, HuxiMaskSize);

  HuxStatus call(const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, HuxiMaskSize m) const {
    return masked ? masked(src, srcStep, dst, dstStep, roi, m) : plain(src, srcStep, dst, dstStep, roi);
  }
  std::string definition() const { return filter + std::to_string(size); }
  int reach() const { return size / 2; }
  bool isRoberts() const { return filter.starts_with("Roberts"); }
  bool runs() const { return type == Number::k32f && (definition() == "Lowpass5" || definition() == "Hipass5"); }
};

// Names that differ from the filter's.
std::string filterOf(std::string name, int size) {
  if (name == "Hipass" && size == 3) return "Laplace";
  if (name.ends_with("Mask")) name.resize(name.size() - 4);
  return name;
}
#define MEMBER(name, types, t, d, l, n, mask, lenient, plain, masked)            \
  Member{{#name "_" #types "_" #l " " #n, int(sizeof(Hux##t)), l, Number::k##t}, \
         filterOf(#name, n),                                                     \
         sizeof(Hux##d),                                                         \
         n,                                                                      \
         mask,                                                                   \
         lenient,                                                                \
         plain,                                                                  \
         masked},
#define PLAIN(name, types, t, d, l) \
  MEMBER(name, types, t, d, l, 3, 0, false, erased<huxiFilter##name##_##types##_##l##R>, nullptr)
#define SIZED(name, types, t, d, l, lenient)                                                                    \
  MEMBER(name, types, t, d, l, 3, huxMskSize3x3, lenient, nullptr, erased<huxiFilter##name##_##types##_##l##R>) \
  MEMBER(name, types, t, d, l, 5, huxMskSize5x5, lenient, nullptr, erased<huxiFilter##name##_##types##_##l##R>)
#define MEMBERS(t, l)               \
  PLAIN(PrewittVert, t, t, t, l)    \
  PLAIN(PrewittHoriz, t, t, t, l)   \
  PLAIN(SobelVert, t, t, t, l)      \
  PLAIN(SobelHoriz, t, t, t, l)     \
  PLAIN(Sharpen, t, t, t, l)        \
  SIZED(Laplace, t, t, t, l, false) \
  SIZED(Gauss, t, t, t, l, false)   \
  SIZED(Hipass, t, t, t, l, false)
#define MEMBERS_BUT_C4(t, l)     \
  PLAIN(RobertsDown, t, t, t, l) \
  PLAIN(RobertsUp, t, t, t, l)   \
  SIZED(Lowpass, t, t, t, l, false)
#define MEMBERS_OF_C1(types, t, d, vert, horiz, lenient) \
  PLAIN(ScharrVert, types, t, d, C1)                     \
  PLAIN(ScharrHoriz, types, t, d, C1)                    \
  SIZED(vert, types, t, d, C1, lenient)                  \
  SIZED(horiz, types, t, d, C1, lenient)                 \
  SIZED(SobelVertSecond, types, t, d, C1, lenient)       \
  SIZED(SobelHorizSecond, types, t, d, C1, lenient)      \
  SIZED(SobelCross, types, t, d, C1, lenient)

const std::vector<Member>& members() {
  static const std::vector<Member> all = {
    HUX_STAMP(MEMBERS, (8u, 16s, 32f), (C1, C3, C4, AC4)) HUX_STAMP(MEMBERS_BUT_C4, (8u, 16s, 32f), (C1, C3, AC4))
        MEMBERS_OF_C1(8u16s, 8u, 16s, SobelVert, SobelHoriz, false)
            MEMBERS_OF_C1(8s16s, 8s, 16s, SobelVert, SobelHoriz, false)
                MEMBERS_OF_C1(32f, 32f, 32f, SobelVertMask, SobelHorizMask, true)
                    SIZED(Laplace, 8u16s, 8u, 16s, C1, false) SIZED(Laplace, 8s16s, 8s, 16s, C1, false)
  };
  return all;
}

// A source with the pixels around it that the window reads, and nothing readable where the others would be.
struct Source {
  Image image;
  int left, above;

  static Source make(Rng& rng, const Member& m, int width, int height, Place place) {
    Layout layout = m.layout;
    int left = m.reach(), right = left, below = left;
    if (m.isRoberts()) {
      below = 0, layout.touched = layout.stride;  // one column on one side, and of the last pixel alpha as well
      (m.filter == "RobertsUp" ? left : right) = 0;
    }
    return {touchedImage(rng, left + width + right, m.reach() + height + below, layout, m.elementBytes, place), left,
            m.reach()};
  }
  std::byte* first(const Member& m) const { return image.bytes() + above * image.step() + left * m.pixelBytes(); }
};

// Contents that reach the ends of the type, small differences, and floats of many magnitudes.
void scatter(Rng& rng, const Member& m, const Image& image) {
  const int kind = between(rng, 0, 4), special = between(rng, 0, 3) == 0 ? between(rng, 50, 900) : 0;
  withType(m.type, [&]<class T>(T) {
    image.fill<T>([&] {
      if constexpr (std::is_integral_v<T>) {
        if (kind == 2) return T(between(rng, 100, 103));
        const bool low = between(rng, 0, 1 + kind * 20) == 0;
        return kind > 2 ? T(rng()) : low ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
      } else {
        if (special && between(rng, 0, special) == 0) return rng() % 2 ? INFINITY : NAN;
        return std::ldexp(Hux32f(Hux32s(rng())), between(rng, -34, -28));
      }
    });
  });
}

class Expectation {
  using Floats = std::vector<Hux32f>;

 public:
  Expectation(const Member& m, const std::byte* src, int srcStep)
      : m_(m), definition_(kDefinitions.at(m.definition())), src_(src), step_(srcStep - srcStep % m.elementBytes) {}

  // What the filter makes of its source, written to where the library would write it.
  void write(std::byte* dst, int dstStep, HuxiSize roi) const {
    dstStep -= dstStep % m_.dstBytes;
    for (int c = 0; c < m_.layout.touched; ++c) {
      std::vector<Floats> sums;  // of a filter that runs
      if (m_.runs()) sums = runningSums(roi, c);
      forPixels(roi, [&](int x, int y) {
        std::byte* to = dst + std::ptrdiff_t(y) * dstStep + (x * m_.layout.stride + c) * m_.dstBytes;
        if (m_.type == Number::k32f) {
          Hux32f v;
          if (m_.runs()) {
            const Hux32f s = sums[std::size_t(y)][std::size_t(x)];
            v = m_.filter == "Lowpass" ? s * 0.04f : pixel(x, y, c) * 25.0f - s;
          } else {
            v = definition_.floats(window(x, y, c));
          }
          std::memcpy(to, &v, sizeof v);
        } else if (m_.dstBytes == 1) {
          *to = std::byte(byteOf(m_.definition(), Hux32s(sum(x, y, c))));
        } else {
          const Hux64s t = sum(x, y, c);
          const Hux16s v = m_.elementBytes == 1 ? Hux16s(t) : Hux16s(wordOf(m_.definition(), t));
          std::memcpy(to, &v, sizeof v);
        }
      });
    }
  }

 private:
  double number(int x, int y, int c) const {
    return numberAt(m_.type, src_ + std::ptrdiff_t(y) * step_ + (x * m_.layout.stride + c) * m_.elementBytes);
  }
  Hux32f pixel(int x, int y, int c) const { return Hux32f(number(x, y, c)); }
  Hux64s sum(int x, int y, int c) const {
    Hux64s t = 0;
    const int n = m_.size, r = m_.reach();
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < n; ++i)
        if (const int w = definition_.weights[std::size_t(j * n + i)])
          t += Hux64s(w) * Hux64s(number(x + i - r, y + j - r, c));
    return t;
  }
  Window window(int x, int y, int c) const {
    const int n = m_.size, r = m_.reach();
    Window w = {};
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < n; ++i)
        if (!m_.isRoberts() || definition_.weights[std::size_t(j * n + i)])
          w[std::size_t(j)][std::size_t(i)] = pixel(x + i - r, y + j - r, c);
    return w;
  }
  std::vector<Floats> runningSums(HuxiSize roi, int c) const {
    std::vector<Floats> rows, totals;
    for (int y = -2; y < roi.height + 2; ++y) {
      Floats sums;
      Hux32f v = pixel(-2, y, c) + pixel(-1, y, c) + pixel(0, y, c) + pixel(1, y, c);
      for (int x = 0; x < roi.width; ++x) {
        v = v + pixel(x + 2, y, c);
        sums.push_back(v);
        v = v - pixel(x - 2, y, c);
      }
      rows.push_back(sums);
      if (y < 2) continue;
      Floats total;
      const std::size_t last = rows.size() - 1;
      for (std::size_t x = 0; x < sums.size(); ++x)
        total.push_back(y == 2 ? rows[0][x] + rows[1][x] + rows[2][x] + rows[3][x] + rows[4][x]
                               : totals.back()[x] - rows[last - 5][x] + rows[last][x]);
      totals.push_back(total);
    }
    return totals;
  }

  const Member& m_;
  const Definition& definition_;
  const std::byte* src_;
  int step_;
};

void expectFiltered(Rng& rng, const Member& m, int width, int height, Place place, HuxiMaskSize mask) {
  const Source src = Source::make(rng, m, width, height, place);
  scatter(rng, m, src.image);
  const Image dst = touchedImage(rng, width, height, m.layout, m.dstBytes, place), before = src.image, expected = dst;
  // A step below an element is one of 0, which reads one row again and again.
  const int step = m.elementBytes > 1 && between(rng, 0, 15) == 0 ? 1 : src.image.step();
  const HuxiSize roi = {width, height};
  Expectation(m, src.first(m), step).write(expected.bytes(), expected.step(), roi);
  ASSERT_EQ(m.call(src.first(m), step, dst.bytes(), dst.step(), roi, mask), huxStsOk);
  ASSERT_TRUE(m.type == Number::k32f ? sameBut<Hux32f>(dst, expected, 4) : same(dst, expected))
      << width << " x " << height;
  ASSERT_TRUE(same(src.image, before));
}

TEST(FixedFilters, EveryShape) {
  Rng rng(1);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    forShapes(rng, 150 / m.layout.stride, [&](int width, int height, Place place) {
      if (between(rng, 0, 3) == 0) height = between(rng, 1, 40);
      expectFiltered(rng, m, width, width < 40 ? height : 1 + height % 4, place, m.mask);
    });
    if (testing::Test::HasFatalFailure()) return;
  }
}

// Large regions are gone through in blocks of rows and, beside alpha, in pieces of a multiple of 64 elements; what is
// left behind the last may be short.
TEST(FixedFilters, LargeRegions) {
  Rng rng(2);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    for (int piece : {8, 16, 24})
      expectFiltered(rng, m, (piece * 64 + between(rng, 0, 20)) / m.layout.stride, between(rng, 1, 2),
                     Place(between(rng, 0, 2)), m.mask);
    for (int width : {between(rng, 1, 8), between(rng, 9, 80)})
      expectFiltered(rng, m, width, between(rng, 16, 40), Place(between(rng, 0, 2)), m.mask);
    if (testing::Test::HasFatalFailure()) return;
  }
}

TEST(FixedFilters, ChecksInOrderAndMemory) {
  Rng rng(3);
  const Image image(rng, 16, 16, 16);
  const HuxiMaskSize others[] = {0, huxMskSize1x3, huxMskSize3x1, huxMskSize1x5, huxMskSize5x1, 34, -33};
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    Arguments a(image);
    a.a = image.bytes(4, 4), a.d = image.bytes(8, 8);
    HuxiMaskSize mask = m.mask;
    const auto call = [&] { return m.call(a.a, a.aStep, a.d, a.dStep, a.roi, mask); };
    CheckOrder order(call);
    order.in(a, "adzAD");
    if (m.masked && !m.lenient)
      for (HuxiMaskSize other : others) order.breaks(huxStsBadMaskSize, mask, other);
    order.run(image);
    if (m.lenient && m.size == 5)
      for (HuxiMaskSize other : others) expectFiltered(rng, m, 9, 3, Place::kInside, other);
    // Only the filters that run take memory.
    EXPECT_EQ(failuresOf(call) > 0, m.runs());
  }
}

}  // namespace
}  // namespace hux::test
