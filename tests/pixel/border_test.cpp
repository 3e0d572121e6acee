// CopyConstBorder, CopyReplicateBorder and CopyWrapBorder: a source region and the frame around it.
#include "huxi_pixel.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "support/forms.h"

namespace hux::test {
namespace {

// The constant, which only some families take, comes last.
using BorderFn = HuxStatus(const void*, int, HuxiSize, void*, int, HuxiSize, int top, int left, const void* value);
using InPlaceFn = HuxStatus(void*, int, HuxiSize, HuxiSize, int top, int left);
enum class Rule { kConst, kReplicate, kWrap };
struct BorderForm : Form {
  Rule rule;
  BorderFn* border;
  InPlaceFn* inPlace = nullptr;
};

#define CONST_FORM(t, l) BorderForm{HUX_FORM(t, l), Rule::kConst, as<BorderFn, huxiCopyConstBorder_##t##_##l##R>},
#define FRAME_FORM(t, l, name)                                                                 \
  BorderForm{HUX_FORM(t, l), Rule::k##name, as<BorderFn, huxiCopy##name##Border_##t##_##l##R>, \
             as<InPlaceFn, huxiCopy##name##Border_##t##_##l##IR>},
#define REPLICATE_FORM(t, l) FRAME_FORM(t, l, Replicate)

std::vector<BorderForm> forms() {
  return {
    HUX_STAMP(CONST_FORM, (8u, 16s, 32s), (C1, C3, C4, AC4))
    HUX_STAMP(REPLICATE_FORM, (8u, 16s, 32s), (C1, C3, C4, AC4))
    FRAME_FORM(32s, C1, Wrap)
  };
}

std::string name(const BorderForm& f) {
  return (f.rule == Rule::kConst ? "const " : f.rule == Rule::kReplicate ? "replicate " : "wrap ") + f.name;
}

// The size of a border to one side: none, narrow, or wide enough to take whole vectors.
int anyBorder(Rng& rng) {
  const int kind = between(rng, 0, 3);
  return kind == 0 ? 0 : kind == 1 ? between(rng, 1, 4) : kind == 2 ? between(rng, 1, 80) : between(rng, 60, 300);
}

// The source coordinate that stands at a place in front of (negative), in, or behind the source.
int sourceOf(Rule rule, int at, int size) {
  return rule == Rule::kWrap ? (at % size + size) % size : std::clamp(at, 0, size - 1);
}

TEST(Border, FrameContinuesTheSource) {
  Rng rng(1);
  for (const BorderForm& f : forms()) {
    SCOPED_TRACE(name(f));
    forShapes(rng, 200, [&](int width, int height, Place place) {
      const int left = anyBorder(rng), right = anyBorder(rng), top = between(rng, 0, 6), bottom = between(rng, 0, 6);
      const HuxiSize full = {left + width + right, top + height + bottom};
      const Image src(rng, width, height, f.pixelBytes(), place),
          value(rng, f.layout.touched, 1, f.elementBytes, place);
      const Image dst(rng, full.width, full.height, f.pixelBytes(), place), expected = dst, image = dst, framed = dst;
      const auto expect = [&](const Image& out, const std::byte* source, std::ptrdiff_t step) {
        movePixels(
            f, full, [&](int x, int y) { return out.bytes(x, y); },
            [&](int x, int y) {
              const int sx = sourceOf(f.rule, x - left, width), sy = sourceOf(f.rule, y - top, height);
              const bool inFrame = sx != x - left || sy != y - top;
              return f.rule == Rule::kConst && inFrame ? value.bytes() : source + sy * step + sx * f.pixelBytes();
            });
      };
      expect(expected, src.bytes(), src.step());
      ASSERT_EQ(f.border(src.bytes(), src.step(), src.size(), dst.bytes(), dst.step(), full, top, left, value.bytes()),
                huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << width << " x " << height << " at " << left << ", " << top;
      if (!f.inPlace) return;
      const Image before = image;
      expect(framed, before.bytes(left, top), before.step());
      ASSERT_EQ(f.inPlace(image.bytes(left, top), image.step(), src.size(), full, top, left), huxStsOk);
      ASSERT_TRUE(same(image, framed)) << "in place, " << width << " x " << height << " at " << left << ", " << top;
    });
  }
}

struct Geometry {
  HuxiSize src, dst;
  int top, left;
};

// The destination must hold the borders and the source, also where their sum or the difference from the destination
// does not fit 32 bits. A missing constant comes last of all.
TEST(Border, ChecksPointersStepsSizesAndThenTheConstant) {
  Rng rng(2);
  constexpr int huge = std::numeric_limits<int>::max();
  constexpr Geometry fitting = {{10, 3}, {13, 5}, 2, 3};
  constexpr Geometry bad[] = {
      {{0, 3}, {13, 5}, 2, 3},       {{10, 0}, {13, 5}, 2, 3},      {{-huge, 3}, {13, 5}, 2, 3},
      {{10, 3}, {12, 5}, 2, 3},      {{10, 3}, {13, 4}, 2, 3},      {{10, 3}, {13, -huge - 1}, 2, 3},
      {{10, 3}, {13, 5}, -1, 3},     {{10, 3}, {13, 5}, 2, -1},     {{10, 3}, {13, 5}, 2, huge},
      {{10, 3}, {13, 5}, huge, 3},   {{huge, 3}, {13, 5}, 2, 3},    {{10, huge}, {13, 5}, 2, 3},
      {{huge, 3}, {13, 5}, 2, huge}, {{10, huge}, {13, 5}, huge, 3}};
  const Image source(rng, 10, 3, 16), image(rng, 13, 5, 16);
  for (const BorderForm& f : forms()) {
    SCOPED_TRACE(name(f));
    const void *src = source.bytes(), *value = source.bytes();
    void *dst = image.bytes(), *inside = image.bytes(fitting.left, fitting.top);
    int srcStep = source.step(), dstStep = image.step();
    Geometry g = fitting;
    CheckOrder order([&] { return f.border(src, srcStep, g.src, dst, dstStep, g.dst, g.top, g.left, value); });
    order.nulls(src, dst).steps(srcStep, dstStep);
    for (const Geometry& b : bad) order.breaks(huxStsBadSize, g, b);
    if (f.rule == Rule::kConst && f.layout.stride > 1) order.nulls(value);
    order.run(image);
    if (!f.inPlace) continue;
    CheckOrder inPlace([&] { return f.inPlace(inside, dstStep, g.src, g.dst, g.top, g.left); });
    inPlace.nulls(inside).steps(dstStep);
    for (const Geometry& b : bad) inPlace.breaks(huxStsBadSize, g, b);
    inPlace.run(image);
  }
}

}  // namespace
}  // namespace hux::test
