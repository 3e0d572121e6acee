// Erode and Dilate, with a mask and with all nine cells, into another image and in place.
#include <algorithm>

#include "filter/windows.h"
#include "huxi_filter.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

using OutOf3x3 = HuxStatus (*)(const void*, int, void*, int, HuxiSize);
using In3x3 = HuxStatus (*)(void*, int, HuxiSize);
using OutOf = HuxStatus (*)(const void*, int, void*, int, HuxiSize, const void*, HuxiSize, HuxiPoint);
using In = HuxStatus (*)(void*, int, HuxiSize, const void*, HuxiSize, HuxiPoint);

struct MorphForm : Form {
  bool dilate;
  OutOf3x3 outOf3x3;
  In3x3 in3x3;
  OutOf outOf;
  In in = nullptr;
};

#define FORM_OF(name, dilate, t, l, ...)           \
  MorphForm{HUX_FORM(t, l),                        \
            dilate,                                \
            erased<huxi##name##3x3_##t##_##l##R>,  \
            erased<huxi##name##3x3_##t##_##l##IR>, \
            erased<huxi##name##_##t##_##l##R>,     \
            __VA_ARGS__},
#define FORMS(t, l)                                            \
  FORM_OF(Erode, false, t, l, erased<huxiErode_##t##_##l##IR>) \
  FORM_OF(Dilate, true, t, l, erased<huxiDilate_##t##_##l##IR>)
#define FORMS_WITHOUT(t, l) FORM_OF(Erode, false, t, l) FORM_OF(Dilate, true, t, l)

std::vector<MorphForm> forms() {
  return {
    HUX_STAMP(FORMS, (8u, 32f), (C1, C3, AC4))
    HUX_STAMP(FORMS_WITHOUT, (8u, 32f), (C4))
  };
}

std::string name(const MorphForm& f) { return (f.dilate ? "dilate " : "erode ") + f.name; }

constexpr HuxiSize k3x3 = {3, 3};

// Without a mask the columns of the window come first, then what they gave.
template <class T>
T reference(const MorphForm& f, const WindowImage& src, const std::vector<Hux8u>* mask, int x, int y, int c) {
  const auto pick = [&](T a, T b) { return f.dilate ? (a > b ? a : b) : (a < b ? a : b); };
  const HuxiSize size = src.mask();
  T best = f.dilate ? std::numeric_limits<T>::lowest() : std::numeric_limits<T>::max();
  if (mask) {
    for (int j = 0; j < size.height; ++j)
      for (int i = 0; i < size.width; ++i)
        if ((*mask)[std::size_t(j * size.width + i)]) best = pick(best, src.cell<T>(x, y, i, j, c));
  } else {
    for (int i = 0; i < size.width; ++i) {
      T column = src.cell<T>(x, y, i, 0, c);
      for (int j = 1; j < size.height; ++j) column = pick(column, src.cell<T>(x, y, i, j, c));
      best = pick(best, column);
    }
  }
  return best;
}

enum class Shape { kFull, kSparse, kOne, kMost };
std::vector<Hux8u> maskOf(Rng& rng, HuxiSize size, Shape shape) {
  std::vector<Hux8u> mask(std::size_t(size.width * size.height));
  for (Hux8u& cell : mask) {
    const Hux8u set = Hux8u(between(rng, 1, 255));
    cell = shape == Shape::kFull || (shape == Shape::kMost && between(rng, 0, 31)) ? set : Hux8u(0);
    if (shape == Shape::kSparse && between(rng, 0, 3) == 0) cell = set;
  }
  if (shape == Shape::kMost) mask[rng() % mask.size()] = 0;
  mask[shape == Shape::kFull ? 0 : rng() % mask.size()] = 7;
  return mask;
}

// The rows of a form in place are those of the other form with as many rows as are written, here: no row is written
// before those that read it. With a mask, a region that the anchor reaches beyond is written on below its end.
void expectBoth(Rng& rng, const MorphForm& f, HuxiSize roi, HuxiSize size, const std::vector<Hux8u>* mask,
                Place place) {
  const Contents contents = anyContents(rng);
  const HuxiPoint anchor = mask ? anyAnchor(rng, size) : HuxiPoint{1, 1};
  const HuxiSize written = {roi.width, mask && f.in ? std::max(roi.height, anchor.y + 1) : roi.height};
  const WindowImage src(rng, f, written, size, place, contents);
  const Image dst = formImage(rng, f, roi.width, roi.height, place), expected = dst;
  const Image before = src.image();
  // The windows' image with its region replaced.
  const Image inPlace = src.image();
  withElement(f, [&](auto zero) {
    using T = decltype(zero);
    const auto value = [&](int x, int y, int c) { return reference<T>(f, src, mask, x, y, c); };
    expectPixels(f, expected, roi, value);
    forElements({roi.width, written.height}, f.layout.touched, [&](int x, int y, int c) {
      const T v = value(x, y, c);
      std::memcpy(inPlace.bytes((anchor.x + x) * f.pixelBytes() + c * f.elementBytes, anchor.y + y), &v, sizeof v);
    });
  });
  const auto trace = [&] {
    return testing::Message() << roi.width << " x " << roi.height << ", mask " << size.width << " x " << size.height
                              << " at " << anchor.x << ", " << anchor.y << ", contents " << int(contents);
  };
  std::byte* at = src.at(anchor);
  ASSERT_EQ(mask ? f.outOf(at, src.step(), dst.bytes(), dst.step(), roi, mask->data(), size, anchor)
                 : f.outOf3x3(at, src.step(), dst.bytes(), dst.step(), roi),
            huxStsOk);
  ASSERT_TRUE(same(dst, expected)) << trace();
  ASSERT_TRUE(same(src.image(), before)) << trace();
  if (mask && !f.in) return;
  ASSERT_EQ(mask ? f.in(at, src.step(), roi, mask->data(), size, anchor) : f.in3x3(at, src.step(), roi), huxStsOk);
  ASSERT_TRUE(same(src.image(), inPlace)) << "in place, " << trace();
}

TEST(Morphology, SelectsTheExtremesOfCells) {
  Rng rng(1);
  for (const MorphForm& f : forms()) {
    SCOPED_TRACE(name(f));
    int turn = 0;
    forShapes(rng, 150, [&](int width, int height, Place place) {
      if (testing::Test::HasFatalFailure()) return;
      ++turn;
      const HuxiSize roi = {width, height + (turn % 8 == 0 ? 12 : 0)};
      const HuxiSize size = turn % 4 == 0 ? k3x3 : HuxiSize{between(rng, 1, 9), between(rng, 1, 7)};
      const auto mask = maskOf(rng, size, Shape(turn / 2 % 4));
      expectBoth(rng, f, roi, turn % 2 ? size : k3x3, turn % 2 ? &mask : nullptr, place);
    });
  }
}

TEST(Morphology, LargeMasksAndStrips) {
  Rng rng(2);
  constexpr HuxiSize sizes[] = {{40, 30}, {1, 50}, {50, 1}, {300, 3}, {3, 700}};
  for (const MorphForm& f : forms()) {
    SCOPED_TRACE(name(f));
    for (HuxiSize size : sizes)
      for (Shape shape : {Shape::kFull, Shape::kSparse, Shape::kMost}) {
        const auto mask = maskOf(rng, size, shape);
        const bool large = size.width * size.height > 1000 && f.layout.stride > 1;
        const HuxiSize roi = {between(rng, 1, large ? 3 : 50), size.height > 100 ? 2 : between(rng, 1, 4)};
        ASSERT_NO_FATAL_FAILURE(expectBoth(rng, f, roi, size, &mask, Place::kEnd));
      }
    for (Shape shape : {Shape::kFull, Shape::kSparse, Shape::kMost}) {
      const auto mask = maskOf(rng, {5, 3}, shape);
      ASSERT_NO_FATAL_FAILURE(expectBoth(rng, f, {between(rng, 2000, 4000), 5}, {5, 3}, &mask, Place::kStart));
    }
    ASSERT_NO_FATAL_FAILURE(expectBoth(rng, f, {between(rng, 500, 1100), 7}, k3x3, nullptr, Place::kEnd));
  }
}

struct Structure {
  const void* mask;
  HuxiSize size;
};

TEST(Morphology, ChecksPointersStepsSizeMaskAnchorAndRows) {
  Rng rng(3);
  const std::vector<Hux8u> cells = maskOf(rng, {5, 3}, Shape::kSparse), none(15);
  for (const MorphForm& f : forms()) {
    SCOPED_TRACE(name(f));
    HuxiSize roi = {6, 4};
    HuxiPoint anchor = {2, 1};
    const Image image(rng, 20, 12, f.pixelBytes()), dst(rng, 6, 4, f.pixelBytes());
    void *at = image.bytes(4, 4), *to = dst.bytes();
    int step = image.step(), dstStep = dst.step();
    Structure s = {cells.data(), {5, 3}};
    const auto run = [&](auto call, bool out, bool masked) {
      CheckOrder order(call);
      order.nulls(at);
      if (out) order.nulls(to);
      if (masked) order.breaks(huxStsNullPtr, s, {nullptr, {5, 3}});
      order.steps(step);
      if (out) order.steps(dstStep);
      order.sizes(roi);
      if (masked) {
        order.breaks(huxStsBadMaskSize, s, {cells.data(), {0, 3}}).breaks(huxStsBadMaskSize, s, {cells.data(), {5, 0}});
        order.breaks(huxStsZeroMask, s, {none.data(), {5, 3}}).anchors(anchor, s.size);
      }
      order.breaks(huxStsStepBelowWidth, step, (masked ? 10 : 8) * f.pixelBytes() - 1);
      if (out) order.breaks(huxStsStepBelowWidth, dstStep, 6 * f.pixelBytes() - 1);
      order.run(out ? dst : image);
    };
    run([&] { return f.outOf(at, step, to, dstStep, roi, s.mask, s.size, anchor); }, true, true);
    run([&] { return f.outOf3x3(at, step, to, dstStep, roi); }, true, false);
    run([&] { return f.in3x3(at, step, roi); }, false, false);
    if (f.in) run([&] { return f.in(at, step, roi, s.mask, s.size, anchor); }, false, true);
  }
}

// Out of place memory is not needed, also with masks for which it would be asked.
TEST(Morphology, MissingMemory) {
  Rng rng(4);
  for (const MorphForm& f : forms()) {
    SCOPED_TRACE(name(f));
    const HuxiSize roi = {5, 2}, size = {300, 130};
    const auto mask = maskOf(rng, size, Shape::kFull);
    const WindowImage src(rng, f, roi, size, Place::kInside, Contents::kAny);
    const Image dst(rng, roi.width, roi.height, f.pixelBytes()), other = dst;
    const auto outOf = [&](const Image& to) {
      return f.outOf(src.at({0, 0}), src.step(), to.bytes(), to.step(), roi, mask.data(), size, {0, 0});
    };
    ASSERT_EQ(outOf(other), huxStsOk);
    failAllocation(0);
    EXPECT_EQ(outOf(dst), huxStsOk);
    stopFailing();
    EXPECT_TRUE(same(dst, other));
  }
}

}  // namespace
}  // namespace hux::test
