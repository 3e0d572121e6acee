// The cosine transform of eight numbers, of lanes or plain: x[n] * cos(pi (2n + 1) k / 16) summed over n, and its
// transpose. Orthonormal or without a factor.
#pragma once

#include "huxdefs.h"

namespace hux {

template <bool Orthonormal>
struct EightFactors {
  static constexpr Hux32f scaled(double v) { return Hux32f(Orthonormal ? v / 2 : v); }
  static constexpr Hux32f c1 = scaled(0.98078528040323044913), c2 = scaled(0.92387953251128675613),
                          c3 = scaled(0.83146961230254523708), c4 = scaled(0.70710678118654752440),
                          c5 = scaled(0.55557023301960222474), c6 = scaled(0.38268343236508977173),
                          c7 = scaled(0.19509032201612826785);
  template <class V>
  static V first(V v) {
    if constexpr (Orthonormal)
      return v * c4;
    else
      return v;
  }
};

template <bool Orthonormal, class V>
void eightForward(V (&x)[8]) {
  using F = EightFactors<Orthonormal>;
  const V s0 = x[0] + x[7], s1 = x[1] + x[6], s2 = x[2] + x[5], s3 = x[3] + x[4];
  const V d0 = x[0] - x[7], d1 = x[1] - x[6], d2 = x[2] - x[5], d3 = x[3] - x[4];
  const V a = s0 + s3, b = s1 + s2, c = s0 - s3, d = s1 - s2;
  x[0] = F::first(a + b);
  x[4] = (a - b) * F::c4;
  x[2] = c * F::c2 + d * F::c6;
  x[6] = c * F::c6 - d * F::c2;
  x[1] = (d0 * F::c1 + d1 * F::c3) + (d2 * F::c5 + d3 * F::c7);
  x[3] = (d0 * F::c3 - d1 * F::c7) - (d2 * F::c1 + d3 * F::c5);
  x[5] = (d0 * F::c5 - d1 * F::c1) + (d2 * F::c7 + d3 * F::c3);
  x[7] = (d0 * F::c7 - d1 * F::c5) + (d2 * F::c3 - d3 * F::c1);
}

template <bool Orthonormal, class V>
void eightInverse(V (&x)[8]) {
  using F = EightFactors<Orthonormal>;
  const V a = F::first(x[0]), b = x[4] * F::c4, sum = a + b, difference = a - b;
  const V c = x[2] * F::c2 + x[6] * F::c6, d = x[2] * F::c6 - x[6] * F::c2;
  const V e0 = sum + c, e3 = sum - c, e1 = difference + d, e2 = difference - d;
  const V o0 = (x[1] * F::c1 + x[3] * F::c3) + (x[5] * F::c5 + x[7] * F::c7);
  const V o1 = (x[1] * F::c3 - x[3] * F::c7) - (x[5] * F::c1 + x[7] * F::c5);
  const V o2 = (x[1] * F::c5 - x[3] * F::c1) + (x[5] * F::c7 + x[7] * F::c3);
  const V o3 = (x[1] * F::c7 - x[3] * F::c5) + (x[5] * F::c3 - x[7] * F::c1);
  x[0] = e0 + o0, x[7] = e0 - o0;
  x[1] = e1 + o1, x[6] = e1 - o1;
  x[2] = e2 + o2, x[5] = e2 - o2;
  x[3] = e3 + o3, x[4] = e3 - o3;
}

}  // namespace hux
