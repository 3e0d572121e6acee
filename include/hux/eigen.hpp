// Views of Eigen's matrices and arrays: the elements are shared. Include it where Eigen is there.
#ifndef HUX_EIGEN_HPP
#define HUX_EIGEN_HPP

#include "view.hpp"

#if __has_include(<Eigen/Core>)
#include <Eigen/Core>

namespace hux {

// hux::as_view<float, 1>(matrix): rows of the matrix are rows of the image, of C elements to a pixel. Throws
// std::invalid_argument where rows are not laid out one by one (Eigen::RowMajor does so) or no multiple of C.
template <class T, int C, class Derived>
requires std::is_same_v<typename Derived::Scalar, std::remove_const_t<T>> view<T, C> as_view(
    const Eigen::DenseBase<Derived>& dense) {
  const Derived& matrix = dense.derived();
  constexpr int elements = detail::elements_of(C);
  const Eigen::Index down = Derived::IsRowMajor ? matrix.outerStride() : matrix.innerStride();
  const Eigen::Index along = Derived::IsRowMajor ? matrix.innerStride() : matrix.outerStride();
  if ((along != 1 && matrix.cols() > 1) || matrix.cols() % elements != 0 || matrix.rows() > INT_MAX ||
      matrix.cols() > INT_MAX)
    throw std::invalid_argument("hux::as_view: rows of the matrix are not rows of such an image");
  return view<T, C>(const_cast<T*>(matrix.data()), static_cast<std::ptrdiff_t>(down * Eigen::Index{sizeof(T)}),
                    {static_cast<int>(matrix.cols() / elements), static_cast<int>(matrix.rows())});
}
// What may be written must not be const.
template <class T, int C, class Derived>
requires(!std::is_const_v<T> &&
         std::is_same_v<typename Derived::Scalar, T>) view<T, C> as_view(Eigen::DenseBase<Derived>& dense) {
  const view<const T, C> read = as_view<const T, C>(static_cast<const Eigen::DenseBase<Derived>&>(dense));
  return view<T, C>(dense.derived().data(), read.step(), read.size());
}

}  // namespace hux

#endif
#endif
