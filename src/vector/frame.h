// The call frame of the exported vector functions.
#pragma once

#include "core/check.h"

namespace hux {

// A length below 1 is refused; the functions test it behind their pointers.
constexpr HuxStatus length(int len) { return failUnless(len >= 1, huxStsBadSize); }

// A caller's vector may start at any address.
template <class T>
const Element<T>* elements(const T* p) {
  return reinterpret_cast<const Element<T>*>(p);
}
template <class T>
Element<T>* elements(T* p) {
  return reinterpret_cast<Element<T>*>(p);
}

}  // namespace hux
