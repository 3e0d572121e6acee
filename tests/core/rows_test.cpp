// Row walking: whether rows without gaps are walked as one, which no result tells.
#include "core/rows.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace hux::test {
namespace {

TEST(Rows, GaplessRowsAreOneLongRow) {
  std::array<Hux8u, 64> a{}, b{};
  const auto visits = [&](HuxiSize roi, int stepA, int stepB) {
    std::vector<Index> widths;
    forEachRow(roi, rows<C3>(a.data(), stepA), rows<C1>(b.data(), stepB),
               [&](auto*, auto*, Index n) { widths.push_back(n); });
    return widths;
  };
  EXPECT_EQ(visits({4, 5}, 12, 4), std::vector<Index>{20});
  EXPECT_EQ(visits({4, 3}, 12, 5), (std::vector<Index>{4, 4, 4}));  // one operand with a gap is enough
  EXPECT_EQ(visits({4, 2}, 13, 4), (std::vector<Index>{4, 4}));
}

}  // namespace
}  // namespace hux::test
