// Min, Max, MinMax, MinIndx, MaxIndx: against the definition, pixel by pixel.
#include <cmath>
#include <limits>

#include "huxi_stats.h"
#include "support/forms.h"

namespace hux::test {
namespace {

using ExtremeFn = HuxStatus(const void*, int, HuxiSize, void* first, void* second);
using IndexFn = HuxStatus(const void*, int, HuxiSize, void*, void* x, void* y);
enum class Kind { kMin, kMax, kMinMax, kMinIndx, kMaxIndx };

// One channel of the definition.
template <class T>
struct Reference {
  T first, second;
  int x = 0, y = 0;

  void take(Kind kind, T p, int px, int py) {
    if (kind == Kind::kMin && !(first < p)) first = p;
    if (kind == Kind::kMax && !(first > p)) first = p;
    if (kind == Kind::kMinMax) {
      if (first > p)
        first = p;
      else if (!(second > p))
        second = p;
    }
    if ((kind == Kind::kMinIndx && first > p) || (kind == Kind::kMaxIndx && first < p)) first = p, x = px, y = py;
  }
};

template <class T>
T anyElement(Rng& rng) {
  if constexpr (std::is_integral_v<T>) {
    return T(rng());
  } else {
    return Hux32f(Hux32s(rng())) / 1024;
  }
}
// Elements of which many are equal, or differ by the sign of a zero alone.
template <class T>
T fewElement(Rng& rng) {
  if constexpr (std::is_integral_v<T>) {
    return T(std::numeric_limits<T>::lowest() + T(rng() % 3 + 1));
  } else {
    constexpr T some[] = {-0.0f, 0.0f, -0.0f, 0.0f, -1e-40f, 1e-40f, 1, -1};
    return some[rng() % 8];
  }
}

// What the elements of an image are like.
enum class Sort { kAny, kFew, kZeros, kPositive, kNegative, kNaNs, kNaNFirst, kFalling, kRising };

template <class T>
void fill(Image& image, Rng& rng, Sort sort) {
  T last = sort == Sort::kFalling ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
  image.fill<T>([&]() -> T {
    if (sort == Sort::kFalling || sort == Sort::kRising) {
      if (std::is_integral_v<T> && rng() % 8 == 0 && last != T(1)) last = T(last + (sort == Sort::kRising ? 1 : -1));
      if (!std::is_integral_v<T>)
        last = T(std::isfinite(last) && std::fabs(last) < 1e9f ? last * 1.01f + (sort == Sort::kRising ? 1 : -1) : 0);
      return last;
    }
    if (sort == Sort::kFew) return fewElement<T>(rng);
    if constexpr (!std::is_integral_v<T>) {
      constexpr T inf = std::numeric_limits<T>::infinity();
      if (sort == Sort::kZeros) return rng() % 2 ? 0.0f : -0.0f;
      if (rng() % 64 == 0) return rng() % 2 ? inf : -inf;
      if (sort == Sort::kPositive) return std::fmax(anyElement<T>(rng), rng() % 2 ? 0.0f : -0.0f);
      if (sort == Sort::kNegative) return std::fmin(anyElement<T>(rng), rng() % 2 ? 0.0f : -0.0f);
      if (sort == Sort::kNaNs && rng() % 16 == 0) return rng() % 2 ? NAN : -NAN;
    }
    return anyElement<T>(rng);
  });
  if constexpr (!std::is_integral_v<T>)
    if (sort == Sort::kNaNFirst) image.set<T>(0, 0, int(rng() % 2), NAN);
}

struct Member : Form {
  Kind kind;
  ExtremeFn* extreme;
  IndexFn* index = nullptr;

  HuxStatus call(const void* src, int step, HuxiSize roi, void* first, void* second, void* x, void* y) const {
    return index ? index(src, step, roi, first, x, y) : extreme(src, step, roi, first, second);
  }
};
#define EXTREME(kind, t, l) Member{HUX_NAMED(kind, t, l), Kind::k##kind, as<ExtremeFn, huxi##kind##_##t##_##l##R>},
#define INDEX(kind, t, l) Member{HUX_NAMED(kind, t, l), Kind::k##kind, nullptr, as<IndexFn, huxi##kind##_##t##_##l##R>},
#define MEMBERS(t, l) \
  EXTREME(Min, t, l) EXTREME(Max, t, l) EXTREME(MinMax, t, l) INDEX(MinIndx, t, l) INDEX(MaxIndx, t, l)
const Member kMembers[] = {HUX_STAMP(MEMBERS, (8u, 16s, 32f), (C1, C3, AC4, C4))};

template <class T>
void verify(const Member& f, const Image& image) {
  Reference<T> expected[4];
  for (int c = 0; c < f.layout.touched; ++c) expected[c].first = expected[c].second = image.get<T>(0, 0, c);
  forElements(image.size(), f.layout.touched,
              [&](int x, int y, int c) { expected[c].take(f.kind, image.get<T>(x, y, c), x, y); });
  const Image before = image;
  T first[5], second[5];
  int x[5], y[5];
  std::fill_n(first, 5, T(77)), std::fill_n(second, 5, T(77)), std::fill_n(x, 5, -1), std::fill_n(y, 5, -1);
  ASSERT_EQ(f.call(image.bytes(), image.step(), image.size(), first, second, x, y), huxStsOk);
  ASSERT_TRUE(same(image, before));
  for (int c = 0; c < f.layout.touched; ++c) {
    const Reference<T>& e = expected[c];
    const auto where = testing::Message() << f.name << ", channel " << c << " of " << image.width() << " x "
                                          << image.height() << ": " << +first[c] << ", expected " << +e.first;
    ASSERT_EQ(std::memcmp(&first[c], &e.first, sizeof(T)), 0) << where;
    ASSERT_TRUE(f.kind != Kind::kMinMax || std::memcmp(&second[c], &e.second, sizeof(T)) == 0) << where << +second[c];
    ASSERT_TRUE(!f.index || (x[c] == e.x && y[c] == e.y)) << where << " at " << x[c] << ", " << y[c];
  }
  ASSERT_TRUE(first[f.layout.touched] == 77 && second[f.layout.touched] == 77 && x[f.layout.touched] == -1 &&
              y[f.layout.touched] == -1);
}

void fillAndVerify(const Member& f, Rng& rng, Image& image, Sort sort) {
  const auto run = [&]<class T>(T) { fill<T>(image, rng, sort), verify<T>(f, image); };
  f.type == Number::k8u ? run(Hux8u()) : f.type == Number::k16s ? run(Hux16s()) : run(Hux32f());
}

TEST(Extrema, EveryWidth) {
  Rng rng(1);
  for (const Member& f : kMembers)
    for (int sort = 0; sort <= int(Sort::kRising); ++sort)
      forShapes(rng, f.elementBytes == 4 ? 100 : 300, [&](int width, int height, Place place) {
        if (width > 40 && width % 7 != sort % 7) return;
        Image image(rng, width, height, f.pixelBytes(), place);
        fillAndVerify(f, rng, image, Sort(sort));
      });
}

// Images that are reduced in several batches, with what matters in some of them only.
TEST(Extrema, SeveralBatches) {
  Rng rng(2);
  for (const Member& f : kMembers) {
    const int width = between(rng, 300, 400) * (rng() % 4 == 0 ? 400 : 1), height = 140000 / width + 1;
    Image image(rng, width, height, f.pixelBytes());
    fillAndVerify(f, rng, image, Sort(rng() % 6));
    // The largest and the smallest element late, so that a batch replaces another's.
    std::memset(image.bytes(0, height - 1), 0x7f, std::size_t(image.width() * image.pixelBytes()));
    std::memset(image.bytes(width / 2, height - 1), 0x80, std::size_t(image.pixelBytes()));
    f.type == Number::k8u    ? verify<Hux8u>(f, image)
    : f.type == Number::k16s ? verify<Hux16s>(f, image)
                             : verify<Hux32f>(f, image);
    // Ever smaller floats, none of which is compared with the NaN before them, wherever a batch may end.
    if (f.type != Number::k32f) continue;
    for (int i = 0; i < width * height; ++i)
      for (int c = 0; c < f.layout.stride; ++c)
        image.set(i % width, i / width, c, i > 1000 && (i & (i + 1)) == 0 ? NAN : -Hux32f(i));
    verify<Hux32f>(f, image);
  }
}

TEST(Extrema, ChecksInOrder) {
  Rng rng(3);
  const Image image(rng, 8, 4, 16);
  for (const Member& f : kMembers) {
    SCOPED_TRACE(f.name);
    int at[8];
    void *second = image.bytes(0, 2), *x = at, *y = at + 4;
    Arguments a(image);
    a.d = image.bytes(0, 1);
    CheckOrder order([&] { return f.call(a.a, a.aStep, a.roi, a.d, second, x, y); });
    order.in(a, "ad");
    if (f.kind == Kind::kMinMax) order.nulls(second);
    if (f.index) order.nulls(x, y);
    order.in(a, "zA").run(image);
  }
}

}  // namespace
}  // namespace hux::test
