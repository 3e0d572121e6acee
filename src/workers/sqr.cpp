// Sqr: the square, on integers as the product of two equal operands is scaled and saturated.
#include "workers/elementary.h"
#include "workers/scaled.h"

namespace hux {
namespace {

template <class Product>
struct Square {
  static constexpr int lanes = Product::lanes;
  Product product;
  auto operator()(typename Product::V v) const { return product(v, v); }
};
template <class Product>
Square(Product) -> Square<Product>;

}  // namespace

template <class T>
HuxStatus Sqr<T>::operator()(const Element<T>* src, Element<T>* dst, Index n) const {
  const auto run = [&](auto product) { mapRow<C1>(src, dst, n, Square{product}); };
  if constexpr (std::is_floating_point_v<T>)
    run(Float<MulOp, T>{});
  else if (scaleFactor > MulOp::allZeroAbove<T>)
    std::memset(dst, 0, std::size_t(n) * sizeof(T));
  else
    withRule<MulOp, T>(scaleFactor, run);
  return huxStsOk;
}
template struct Sqr<Hux8u>;
template struct Sqr<Hux16u>;
template struct Sqr<Hux16s>;
template struct Sqr<Hux32f>;

}  // namespace hux
