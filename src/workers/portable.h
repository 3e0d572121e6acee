// Sine, cosine, arc tangent, exponential, logarithm of double precision, the same on every machine. C libraries differ
// in the last bits of theirs, and results that are promised to the bit lean on these. They are made of additions,
// multiplications, divisions and roots alone, at twice the precision: rounded as the exact value is, but for about one
// argument in 2^40. That takes about a microsecond, so loops use approximations of known error, and come here where an
// approximation does not decide (see workers/nearest.h).
#pragma once

#include "huxdefs.h"

namespace hux::portable {

// Of any argument; of an infinite one they are NaN.
Hux64f sin(Hux64f x);
Hux64f cos(Hux64f x);
// The angle of the point (x, y), with the signs and the limits of the C function.
Hux64f atan2(Hux64f y, Hux64f x);
// Of -700 to 700, and of NaN, which stays.
Hux64f exp(Hux64f x);
// Of positive normal numbers.
Hux64f log(Hux64f x);
// x to the power of -halves / 2, for up to 5 halves and magnitudes between 1e-59 and 1e59, infinity or NaN.
Hux64f rootOfInverse(Hux64f x, int halves);

// Sine and cosine of -pi/4 to pi/4 to within 2^-52, fast: for tables that are narrowed to float.
struct SinCos {
  Hux64f sin, cos;
};
SinCos ofEighth(Hux64f x);

}  // namespace hux::portable
