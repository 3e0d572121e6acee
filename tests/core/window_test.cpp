// Windows as operands of the row walk, for each sense of an anchor.
#include "core/window.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace hux::test {
namespace {

// The window of the pixel at column `left`, row `above` of an image of 100 bytes a row starts at its first byte.
TEST(Window, AnchorsMoveItsFirstPixel) {
  std::array<Hux8u, 4000> image{};
  const auto startsAtFirst = [&](Reach reach, Index left, Index above) {
    const auto* pixel = image.data() + above * 100 + left * 3;
    return windowRows<C3>(pixel, 100, reach).top.first == elements(image.data());
  };
  EXPECT_TRUE(startsAtFirst(imageOrder({7, 5}, {1, 4}), 1, 4));
  EXPECT_TRUE(startsAtFirst(fromFarCorner({7, 5}, {1, 4}), 5, 0));
  EXPECT_TRUE(startsAtFirst(centred(5), 2, 2));
  EXPECT_TRUE(startsAtFirst(centred(3, 1), 1, 0));
  const Reach far = fromFarCorner({2, 2}, {-2147483647 - 1, 5});  // no anchor overflows
  EXPECT_EQ(far.left, Index(1) + 2147483648);
  EXPECT_EQ(far.above, -4);
  EXPECT_EQ(far.left + far.right, 1);
}

TEST(Window, RowsAreWalkedAsAnyOperand) {
  std::array<Hux16s, 64> image{};
  const auto at = [&](const void* p) {
    return static_cast<const std::byte*>(p) - reinterpret_cast<std::byte*>(image.data());
  };
  // Steps equal to the row length: the windows keep the walk from taking all rows for one.
  const auto windows = windowRows<C1>(image.data() + 9, 8, imageOrder({3, 3}, {1, 2}));
  std::vector<Index> starts;
  const auto walk = [&](Window<Hux16s> window, const Element<Hux16s>* row, Index n) {
    EXPECT_EQ(n, 4);
    EXPECT_EQ(at(window[2]), at(row) - 2);
    starts.push_back(at(window[0]));
  };
  forEachRow({4, 3}, windows, rows<C1>(std::as_const(image).data() + 9, 8), walk);
  EXPECT_EQ(starts, (std::vector<Index>{0, 8, 16}));
  forEachRow({4, 1}, windows.from(2), rows<C1>(std::as_const(image).data() + 9, 8).from(2), walk);
  EXPECT_EQ(starts.back(), 16);
}

TEST(Check, MasksAnchorsAndStepsThatHoldARow) {
  EXPECT_EQ(check(maskSize({1, 1}), anchorInside({0, 0}, {1, 1})), huxStsOk);
  EXPECT_EQ(check(maskSize({0, 1}), anchorInside({0, 0}, {0, 1})), huxStsBadMaskSize);
  EXPECT_EQ(maskSize({1, 0}), huxStsBadMaskSize);
  EXPECT_EQ(maskSize(0), huxStsBadMaskSize);
  for (HuxiPoint outside : {HuxiPoint{-1, 0}, HuxiPoint{0, -1}, HuxiPoint{3, 0}, HuxiPoint{0, 2}})
    EXPECT_EQ(anchorInside(outside, {3, 2}), huxStsBadAnchor);
  EXPECT_EQ(anchorInside({2, 1}, {3, 2}), huxStsOk);
  EXPECT_EQ(stepsHold<Hux32f>(3, 12, 20), huxStsOk);
  EXPECT_EQ(stepsHold<Hux32f>(3, 12, 11), huxStsBadStep);
  EXPECT_EQ(stepsHold<Hux32f>(Index(1) << 40, 12), huxStsBadStep);
}

}  // namespace
}  // namespace hux::test
