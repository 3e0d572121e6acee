// Min, Max, MinMax, MinIndx, MaxIndx: against the definition, pixel by pixel.
#include <cmath>
#include <limits>

#include "core/stamp.h"
#include "huxi_stats.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

struct Args {
  const void* src;
  int step;
  HuxiSize roi;
  void *first, *second;  // the extremes; MinIndx and MaxIndx have one
  int *x, *y;
};

enum class Kind { kMin, kMax, kMinMax, kMinIndx, kMaxIndx };
constexpr bool isIndx(Kind k) { return k >= Kind::kMinIndx; }

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

struct Form {
  std::string name;
  Kind kind;
  int bytes, channels, colours;
  HuxStatus (*call)(const Args&);
  void (*fill)(Image&, Rng&, Sort);
  void (*verify)(const Form&, const Image&);
};

template <class T>
void verify(const Form& f, const Image& image) {
  Reference<T> expected[4];
  for (int c = 0; c < f.colours; ++c) expected[c].first = expected[c].second = image.get<T>(0, 0, c);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      for (int c = 0; c < f.colours; ++c) expected[c].take(f.kind, image.get<T>(x, y, c), x, y);
  const Image before = image;
  T first[5], second[5];
  int x[5], y[5];
  std::fill_n(first, 5, T(77)), std::fill_n(second, 5, T(77)), std::fill_n(x, 5, -1), std::fill_n(y, 5, -1);
  ASSERT_EQ(f.call({image.bytes(), image.step(), image.size(), first, second, x, y}), huxStsOk);
  ASSERT_TRUE(same(image, before));
  for (int c = 0; c < f.colours; ++c) {
    const Reference<T>& e = expected[c];
    const auto where = testing::Message() << f.name << ", channel " << c << " of " << image.width() << " x "
                                          << image.height() << ": " << +first[c] << ", expected " << +e.first;
    ASSERT_EQ(std::memcmp(&first[c], &e.first, sizeof(T)), 0) << where;
    ASSERT_TRUE(f.kind != Kind::kMinMax || std::memcmp(&second[c], &e.second, sizeof(T)) == 0) << where << +second[c];
    ASSERT_TRUE(!isIndx(f.kind) || (x[c] == e.x && y[c] == e.y)) << where << " at " << x[c] << ", " << y[c];
  }
  ASSERT_TRUE(first[f.colours] == 77 && second[f.colours] == 77 && x[f.colours] == -1 && y[f.colours] == -1);
}

#define FORM(kind, t, l, c, p, ...)                                                                                 \
  Form {                                                                                                            \
#kind "_" #t "_" #l, Kind::k##kind, sizeof(Hux##t), c, p,                                                         \
        [](const Args& a) {                                                                                           \
          auto* first = static_cast<Hux##t*>(a.first);                                                                \
          [[maybe_unused]] auto* second = static_cast<Hux##t*>(a.second);                                             \
          return huxi##kind##_##t##_##l##R(static_cast<const Hux##t*>(a.src), a.step, a.roi, first __VA_OPT__(, )     \
                                               __VA_ARGS__);                                                          \
        },                                                                                                            \
        fill<Hux##t>, verify<Hux##t> \
  }
#define FORMS(t, l, c, p)                                                                                              \
  FORM(Min, t, l, c, p), FORM(Max, t, l, c, p), FORM(MinMax, t, l, c, p, second), FORM(MinIndx, t, l, c, p, a.x, a.y), \
      FORM(MaxIndx, t, l, c, p, a.x, a.y)
#define ALL(t) FORMS(t, C1, 1, 1), FORMS(t, C3, 3, 3), FORMS(t, AC4, 4, 3), FORMS(t, C4, 4, 4)
const Form kForms[] = {ALL(8u), ALL(16s), ALL(32f)};

TEST(Extrema, EveryWidth) {
  Rng rng(1);
  for (const Form& f : kForms)
    for (int sort = 0; sort <= int(Sort::kRising); ++sort)
      forShapes(rng, f.bytes == 4 ? 100 : 300, [&](int width, int height, Place place) {
        if (width > 40 && width % 7 != sort % 7) return;
        Image image(rng, width, height, f.bytes * f.channels, place);
        f.fill(image, rng, Sort(sort));
        f.verify(f, image);
      });
}

// Images that are reduced in several batches, with what matters in some of them only.
TEST(Extrema, SeveralBatches) {
  Rng rng(2);
  for (const Form& f : kForms) {
    const int width = between(rng, 300, 400) * (rng() % 4 == 0 ? 400 : 1), height = 140000 / width + 1;
    Image image(rng, width, height, f.bytes * f.channels);
    f.fill(image, rng, Sort(rng() % 6));
    f.verify(f, image);
    // The largest and the smallest element late, so that a batch replaces another's.
    std::memset(image.bytes(0, height - 1), 0x7f, std::size_t(image.width() * image.pixelBytes()));
    std::memset(image.bytes(width / 2, height - 1), 0x80, std::size_t(image.pixelBytes()));
    f.verify(f, image);
    // Ever smaller floats, none of which is compared with the NaN before them, wherever a batch may end.
    if (f.bytes != 4) continue;
    for (int i = 0; i < width * height; ++i)
      for (int c = 0; c < f.channels; ++c)
        image.set(i % width, i / width, c, i > 1000 && (i & (i + 1)) == 0 ? NAN : -Hux32f(i));
    f.verify(f, image);
  }
}

TEST(Extrema, ChecksInOrder) {
  Rng rng(3);
  const Image image(rng, 8, 4, 16);
  for (const Form& f : kForms) {
    SCOPED_TRACE(f.name);
    int at[8];
    Args a = {image.bytes(), 16, {1, 1}, image.bytes(0, 1), image.bytes(0, 2), at, at + 4};
    CheckOrder order([&] { return f.call(a); });
    order.breaks(huxStsNullPtr, a.src, nullptr).breaks(huxStsNullPtr, a.first, nullptr);
    if (f.kind == Kind::kMinMax) order.breaks(huxStsNullPtr, a.second, nullptr);
    if (isIndx(f.kind)) order.breaks(huxStsNullPtr, a.x, nullptr).breaks(huxStsNullPtr, a.y, nullptr);
    order.breaks(huxStsBadSize, a.roi.width, 0).breaks(huxStsBadSize, a.roi.height, -1);
    order.breaks(huxStsBadStep, a.step, 0).run(image);
  }
}

}  // namespace
}  // namespace hux::test
