// Views of other libraries' images, where those are there.
#include <gtest/gtest.h>

#include <vector>

#include "hux/eigen.hpp"
#include "hux/hux.hpp"
#include "hux/mdspan.hpp"
#include "hux/opencv.hpp"

namespace {

#if __has_include(<opencv2/core/mat.hpp>)
TEST(Convert, MatricesOfOpenCVShareTheirPixels) {
  std::vector<std::uint8_t> pixels(10 * 40, 3);
  const cv::Mat mat(10, 12, CV_8UC3, pixels.data(), 40);
  const auto view = hux::as_view<const std::uint8_t, 3>(mat);
  EXPECT_EQ(view.row(2), pixels.data() + 80);
  hux::add(view, {1, 2, 3}, hux::as_view<std::uint8_t, 3>(mat));
  EXPECT_EQ(pixels[9 * 40 + 35], 6);
  EXPECT_EQ(pixels[9 * 40 + 36], 3);
  EXPECT_THROW((hux::as_view<const std::uint8_t, 4>(mat)), std::invalid_argument);
  EXPECT_THROW((hux::as_view<const std::int8_t, 3>(mat)), std::invalid_argument);
  hux::image<std::int16_t, 1> image(5, 4);
  const cv::Mat back = hux::as_mat(hux::view<std::int16_t, 1>(image));
  EXPECT_EQ(back.type(), CV_16SC1);
  EXPECT_EQ(back.ptr(3), reinterpret_cast<std::uint8_t*>(image.row(3)));
}
#endif

#if __has_include(<Eigen/Core>)
TEST(Convert, RowsOfEigenAreRows) {
  Eigen::Array<float, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> rows(4, 6);
  rows.setConstant(2);
  hux::mul(hux::as_view<const float, 1>(rows), 3.f, hux::as_view<float, 1>(rows));
  EXPECT_EQ(rows(3, 5), 6);
  EXPECT_EQ((hux::as_view<const float, 3>(rows).width()), 2);
  EXPECT_THROW((hux::as_view<const float, 4>(rows)), std::invalid_argument);
  const Eigen::MatrixXf columns(4, 6);
  EXPECT_THROW((hux::as_view<const float, 1>(columns)), std::invalid_argument);
}
#endif

// The members of std::mdspan that the header asks for.
template <std::size_t Rank>
struct Span {
  float* data;
  std::array<std::size_t, Rank> extents, strides;
  static constexpr std::size_t rank() { return Rank; }
  float* data_handle() const { return data; }
  std::size_t extent(std::size_t i) const { return extents[i]; }
  std::size_t stride(std::size_t i) const { return strides[i]; }
};

TEST(Convert, SpansOfTwoAndThreeDimensions) {
  std::vector<float> elements(4 * 20);
  const auto flat = hux::as_view<float, 1>(Span<2>{elements.data(), {4, 18}, {20, 1}});
  EXPECT_EQ(flat.width(), 18);
  EXPECT_EQ(flat.row(3), elements.data() + 60);
  const auto colours = hux::as_view<const float, 3>(Span<3>{elements.data(), {4, 6, 3}, {20, 3, 1}});
  EXPECT_EQ(colours.at(5, 1), elements.data() + 35);
  EXPECT_THROW((hux::as_view<float, 3>(Span<3>{elements.data(), {4, 6, 3}, {20, 1, 6}})), std::invalid_argument);
  EXPECT_THROW((hux::as_view<float, 1>(Span<2>{elements.data(), {18, 4}, {1, 20}})), std::invalid_argument);
}

}  // namespace
