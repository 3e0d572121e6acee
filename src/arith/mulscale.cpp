// MulScale: the product of two images, or of an image and a constant, as fractions of the type's maximum.
#include "arith/bitwise_images.h"
#include "arith/fraction.h"
#include "core/stamp.h"
#include "huxi_arith.h"

namespace hux {
namespace {

template <class T>
struct Product : Fraction<T> {
  using F = Fraction<T>;
  auto operator()(typename F::Pixels a, typename F::Pixels b) const {
    return F::pixels(F::product(F::of(a), F::of(b)));
  }
};

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                              \
  HUX_EXPORT_ARITH_IMAGES(MulScale, t, l, , hux::zipImages<hux::l, hux::Product<Hux##t>, Hux##t>) \
  HUX_EXPORT_ARITH_CONSTANT(MulCScale, t, l, , hux::zipConstant<hux::l, hux::Product<Hux##t>, Hux##t>)
HUX_STAMP(EXPORT, (8u, 16u), (C1, C3, C4, AC4))
