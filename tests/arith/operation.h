// The members of operations on images, a pixel of constants and an image, or one image; vectors are images of one row.
#pragma once

#include "huxi_arith.h"
#include "huxs.h"
#include "support/forms.h"

namespace hux::test {

// What the first operand is. The second one is an image, in place the destination.
enum class First { kImage, kConstant, kNone };

// Each member takes what it has; behind the region a scale factor, an operator, through a pointer.
using OperationFn = HuxStatus(const void* a, int aStep, const void* b, int bStep, void* dst, int dstStep, HuxiSize roi,
                              const void* more);
struct Operation : Form {
  First first;
  OperationFn *call, *inPlace;
  bool line = false;  // of vectors: without steps

  // With as many elements as the layout: C3 and C4 forms on two images often stand for C1.
  bool equalChannels() const { return layout.stride > 1 && layout.stride == layout.touched; }
};

#define HUX_OF_IMAGES(f, t, l, s)                                                  \
  Operation {                                                                      \
    HUX_NAMED(f, t, l), First::kImage, as<OperationFn, huxi##f##_##t##_##l##R##s>, \
        as<OperationFn, huxi##f##_##t##_##l##IR##s, 0, 1, 4, 5, 6, 7>              \
  }
#define HUX_OF_CONSTANT(f, t, l, s)                                                                        \
  Operation {                                                                                              \
    HUX_NAMED(f, t, l), First::kConstant, as<OperationFn, huxi##f##_##t##_##l##R##s, 2, 3, 0, 4, 5, 6, 7>, \
        as<OperationFn, huxi##f##_##t##_##l##IR##s, 0, 4, 5, 6, 7>                                         \
  }
#define HUX_OF_ONE(f, t, l, s)                                                                      \
  Operation {                                                                                       \
    HUX_NAMED(f, t, l), First::kNone, as<OperationFn, huxi##f##_##t##_##l##R##s, 2, 3, 4, 5, 6, 7>, \
        as<OperationFn, huxi##f##_##t##_##l##IR##s, 4, 5, 6, 7>                                     \
  }

// A member of vectors, whose length is the region's width.
using LineFn = HuxStatus(const void* a, const void* b, void* dst, int len, const void* more);
template <auto Fn, std::size_t... order>
HuxStatus onLine(const void* a, int, const void* b, int, void* dst, int, HuxiSize roi, const void* more) {
  return as<LineFn, Fn, order...>(a, b, dst, roi.width, more);
}
#define HUX_LINES_OF_IMAGES(f, t, s, i)                                          \
  Operation {                                                                    \
    HUX_NAMED(f, t, C1), First::kImage, onLine<huxs##f##_##t##s, 0, 1, 2, 3, 4>, \
        onLine<huxs##f##_##t##_I##i, 0, 2, 3, 4>, true                           \
  }
#define HUX_LINES_OF_CONSTANT(f, t, s, i)                                           \
  Operation {                                                                       \
    HUX_NAMED(f, t, C1), First::kConstant, onLine<huxs##f##_##t##s, 1, 0, 2, 3, 4>, \
        onLine<huxs##f##_##t##_I##i, 0, 2, 3, 4>, true                              \
  }
#define HUX_LINES_OF_ONE(f, t, s, i)                                                                                \
  Operation {                                                                                                       \
    HUX_NAMED(f, t, C1), First::kNone, onLine<huxs##f##_##t##s, 1, 2, 3, 4>, onLine<huxs##f##_##t##_I##i, 2, 3, 4>, \
        true                                                                                                        \
  }

}  // namespace hux::test
