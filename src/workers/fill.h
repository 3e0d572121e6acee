// Row workers that fill and copy contiguous elements. They check nothing and demand no alignment.
#pragma once

#include "core/layout.h"

namespace hux {

void ownsSet_8u(Hux8u value, Element<Hux8u>* pDst, Index len);
void ownsSet_16u(Hux16u value, Element<Hux16u>* pDst, Index len);
void ownsSet_32s(Hux32s value, Element<Hux32s>* pDst, Index len);
void ownsZero_8u(void* pDst, Index bytes);

// Elements of `elementBytes` go first to last: where the destination starts inside the source, what was already written
// is read again, as element-wise code does. `streaming` tells that the row is part of more than a cache holds.
void ownsCopy_8u(const void* pSrc, void* pDst, Index bytes, int elementBytes, bool streaming = false);

}  // namespace hux
