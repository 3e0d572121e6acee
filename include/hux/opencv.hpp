// Views of OpenCV's matrices, and matrices over views: the pixels are shared. Include it where OpenCV's core is there.
#ifndef HUX_OPENCV_HPP
#define HUX_OPENCV_HPP

#include "view.hpp"

#if __has_include(<opencv2/core/mat.hpp>)
#include <opencv2/core/mat.hpp>

namespace hux {
namespace detail {

template <class T>
constexpr int depth_of() {
  if constexpr (std::is_same_v<T, std::uint8_t>)
    return CV_8U;
  else if constexpr (std::is_same_v<T, std::int8_t>)
    return CV_8S;
  else if constexpr (std::is_same_v<T, std::uint16_t>)
    return CV_16U;
  else if constexpr (std::is_same_v<T, std::int16_t>)
    return CV_16S;
  else if constexpr (std::is_same_v<T, std::int32_t>)
    return CV_32S;
  else if constexpr (one_of_types<T, float, std::complex<float>>)
    return CV_32F;
  else if constexpr (one_of_types<T, double, std::complex<double>>)
    return CV_64F;
  else
    return -1;
}
template <class T, int C>
constexpr int mat_type_of() {
  static_assert(depth_of<T>() >= 0 && C <= 4, "OpenCV has no such elements");
  constexpr bool complex = one_of_types<T, std::complex<float>, std::complex<double>>;
  return CV_MAKETYPE(depth_of<T>(), elements_of(C) * (complex ? 2 : 1));
}

}  // namespace detail

// hux::as_view<const std::uint8_t, 3>(mat). Throws std::invalid_argument where the matrix has other elements, another
// number of channels, or not two dimensions.
template <class T, int C>
view<T, C> as_view(const cv::Mat& mat) {
  if (mat.dims != 2 || mat.type() != detail::mat_type_of<std::remove_const_t<T>, C>())
    throw std::invalid_argument("hux::as_view: the matrix is of another type");
  return view<T, C>(reinterpret_cast<T*>(mat.data), static_cast<std::ptrdiff_t>(mat.step[0]), {mat.cols, mat.rows});
}

// A header over the pixels of a view. Throws std::invalid_argument where the step is below 0.
template <class T, int C>
cv::Mat as_mat(view<T, C> pixels) {
  if (pixels.step() < 0) throw std::invalid_argument("hux::as_mat: the step is below 0");
  return cv::Mat(pixels.height(), pixels.width(), detail::mat_type_of<T, C>(), pixels.data(),
                 static_cast<std::size_t>(pixels.step()));
}

}  // namespace hux

#endif
#endif
