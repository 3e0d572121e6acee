// Where windows start, for each sense of an anchor.
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

}  // namespace
}  // namespace hux::test
