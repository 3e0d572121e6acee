// Mirror, Transpose, SwapChannels and Dup: each element of the destination is one of the source, by a rule.
#include "huxi_pixel.h"
#include "support/forms.h"

namespace hux::test {
namespace {

enum class Rule { kMirror, kTranspose, kSwap, kDup };

// The axis, or the order of channels, comes through a pointer.
using ApartFn = HuxStatus(const void*, int, void*, int, HuxiSize, const void*);
using InPlaceFn = HuxStatus(void*, int, HuxiSize, const void*);
struct MoveForm : Form {
  Rule rule;
  ApartFn* apart = nullptr;
  InPlaceFn* inPlace = nullptr;

  int srcBytes() const { return rule == Rule::kDup ? elementBytes : pixelBytes(); }
};
#define BOTH(rule, t, l)                                                          \
  MoveForm{HUX_FORM(t, l), Rule::k##rule, as<ApartFn, huxi##rule##_##t##_##l##R>, \
           as<InPlaceFn, huxi##rule##_##t##_##l##IR>},
#define MIRROR(t, l) BOTH(Mirror, t, l)
#define TRANSPOSE(t, l) BOTH(Transpose, t, l)
#define SWAP(t, l) MoveForm{HUX_FORM(t, l), Rule::kSwap, as<ApartFn, huxiSwapChannels_##t##_##l##R>},
std::vector<MoveForm> forms() {
  return {
    HUX_STAMP(MIRROR, (8u, 16u, 32s), (C1, C3, C4, AC4))
    HUX_STAMP(TRANSPOSE, (8u, 16u, 32s), (C1, C3, C4))
    HUX_STAMP(SWAP, (8u, 16u, 32s, 32f), (C3, AC4))
    MoveForm{HUX_FORM(8u, C3), Rule::kSwap, nullptr, as<InPlaceFn, huxiSwapChannels_8u_C3IR>}, MoveForm {
      HUX_FORM(8u, C3), Rule::kDup, as<ApartFn, huxiDup_8u_C1C3R>
    }
  };
}
std::string name(const MoveForm& f) { return f.name + ", rule " + std::to_string(int(f.rule)); }

// Moves the elements of a source of that size.
void move(const MoveForm& f, HuxiSize size, const int* how, const View& src, const View& dst) {
  const bool transposes = f.rule == Rule::kTranspose;
  forElements(size, f.layout.touched, [&](int x, int y, int c) {
    const bool acrossX = f.rule == Rule::kMirror && *how != huxAxsHorizontal;
    const bool acrossY = f.rule == Rule::kMirror && *how != huxAxsVertical;
    const int from = f.rule == Rule::kSwap ? how[c] : f.rule == Rule::kDup ? 0 : c;
    std::memcpy((transposes ? dst.at(y, x) : dst.at(x, y)) + c * f.elementBytes,
                src.at(acrossX ? size.width - 1 - x : x, acrossY ? size.height - 1 - y : y) + from * f.elementBytes,
                std::size_t(f.elementBytes));
  });
}

// In place an element's partner is read before it is overwritten, and alpha does not move with its pixel.
TEST(Moves, ElementsComeFromWhereTheRuleTells) {
  Rng rng(1);
  int turn = 0;
  for (const MoveForm& f : forms()) {
    SCOPED_TRACE(name(f));
    const bool transposes = f.rule == Rule::kTranspose, anyStep = f.rule != Rule::kSwap;
    for (int round = 0; round < (transposes ? 1 : 3); ++round)
      forShapes(rng, 300, [&](int width, int height, Place place) {
        if (transposes) height = between(rng, 1, 140);
        if (transposes && width % 2) std::swap(width, height);
        ++turn;
        const int axes[] = {huxAxsHorizontal, huxAxsVertical, huxAxsBoth};
        const int how[3] = {f.rule == Rule::kMirror ? axes[round] : turn / 9 % 3, turn / 3 % 3, turn % 3};
        const HuxiSize to = transposes ? HuxiSize{height, width} : HuxiSize{width, height};
        const Walk srcWalk = anyStep ? anyWalk(rng, Walk::kStay) : Walk::kDown;
        const Walk dstWalk = anyStep ? anyWalk(rng, Walk::kUp) : Walk::kDown;
        const Image src(rng, width, height, f.srcBytes(), place), dst(rng, to.width, to.height, f.pixelBytes(), place);
        const Image expected = dst;
        const View from(src, srcWalk), view(dst, dstWalk);
        move(f, src.size(), how, from, View(expected, dstWalk));
        if (f.apart) {
          ASSERT_EQ(f.apart(from.first, from.step, view.first, view.step, src.size(), how), huxStsOk);
          ASSERT_TRUE(same(dst, expected));
        }
        if (!f.inPlace) return;
        const int side = transposes ? width : height;
        const Image before(rng, width, side, f.pixelBytes(), place), image = before, moved = before;
        const View both(image, dstWalk);
        move(f, before.size(), how, View(before, dstWalk), View(moved, dstWalk));
        ASSERT_EQ(f.inPlace(both.first, both.step, before.size(), how), huxStsOk);
        ASSERT_TRUE(same(image, moved)) << "in place";
      });
  }
}

TEST(Moves, OrderOfChecks) {
  Rng rng(2);
  const Image image(rng, 4, 4, 16);
  for (const MoveForm& f : forms()) {
    SCOPED_TRACE(name(f));
    const bool swaps = f.rule == Rule::kSwap, mirrors = f.rule == Rule::kMirror;
    int channels[3] = {2, 0, 1}, srcStep = swaps ? image.step() : -1, dstStep = swaps ? image.step() : 0;
    const void *src = image.bytes(), *how = channels;
    void* dst = image.bytes();
    HuxiSize roi = {1, 1};
    const auto run = [&](auto call, bool inPlace) {
      CheckOrder order(call);
      if (!inPlace) order.nulls(src);
      order.nulls(dst);
      if (swaps) order.nulls(how);
      order.sizes(roi);
      if (f.rule == Rule::kTranspose && inPlace)
        order.breaks(huxStsBadSize, roi, {1, 2}).breaks(huxStsBadSize, roi, {2, 1});
      if (swaps && !inPlace) order.steps(srcStep);
      if (swaps) order.steps(dstStep);
      for (int& number : channels)
        for (int bad : {3, -1}) {
          if (swaps) order.breaks(huxStsBadChannelOrder, number, bad);
          if (mirrors && &number == channels) order.breaks(huxStsBadAxis, number, bad);
        }
      order.run(image);
    };
    if (f.apart) run([&] { return f.apart(src, srcStep, dst, dstStep, roi, how); }, false);
    if (f.inPlace) run([&] { return f.inPlace(dst, dstStep, roi, how); }, true);
  }
}

}  // namespace
}  // namespace hux::test
