// Abs: the absolute value; -32768 becomes 32767, and a float loses its sign whatever it is.
#include "lanes/elementwise.h"
#include "workers/elementary.h"

namespace hux {
namespace {

template <class T>
struct Magnitude {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V v) const {
    if constexpr (std::is_integral_v<T>) {
      return greater(v, subSaturated(V{}, v));
    } else {
      using U = Lanes<Hux32u, lanes>;
      return bitsAs<V>(bitsAs<U>(v) & 0x7FFFFFFFu);
    }
  }
};

}  // namespace

template <class T>
HuxStatus Abs<T>::operator()(const Element<T>* src, Element<T>* dst, Index n) const {
  mapRow<C1>(src, dst, n, Magnitude<T>{});
  return huxStsOk;
}
template struct Abs<Hux16s>;
template struct Abs<Hux32f>;

}  // namespace hux
