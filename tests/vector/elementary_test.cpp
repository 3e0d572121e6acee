// Abs, Sqr, Sqrt, Exp and Ln on vectors: the image functions' results, which are tested against the definitions, in
// their own frame.
#include "core/stamp.h"
#include "huxi_arith.h"
#include "huxs.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

using CallFn = HuxStatus (*)(const void*, void*, int, int);
struct Form {
  std::string name;
  int elementBytes;
  CallFn vector, image;
  HuxStatus (*inPlace)(void*, int, int);
};

#define FORM(f, t, suffix, letter, ...)                                                                       \
  Form{#f "_" #t, sizeof(Hux##t),                                                                             \
       [](const void* src, void* dst, int len, [[maybe_unused]] int scale) {                                  \
         return huxs##f##_##t##suffix(static_cast<const Hux##t*>(src), static_cast<Hux##t*>(dst),             \
                                      len __VA_OPT__(, ) __VA_ARGS__);                                        \
       },                                                                                                     \
       [](const void* src, void* dst, int len, [[maybe_unused]] int scale) {                                  \
         return huxi##f##_##t##_C1R##letter(static_cast<const Hux##t*>(src), 1, static_cast<Hux##t*>(dst), 1, \
                                            HuxiSize{len, 1} __VA_OPT__(, ) __VA_ARGS__);                     \
       },                                                                                                     \
       [](void* srcDst, int len, [[maybe_unused]] int scale) {                                                \
         return huxs##f##_##t##_I##letter(static_cast<Hux##t*>(srcDst), len __VA_OPT__(, ) __VA_ARGS__);      \
       }},
#define SCALED(t, f) FORM(f, t, _Sfs, Sfs, scale)
#define PLAIN(t, f) FORM(f, t, , )

const std::vector<Form>& forms() {
  static const std::vector<Form> all = {
    HUX_STAMP(PLAIN, (16s), (Abs)) HUX_STAMP(SCALED, (8u, 16u, 16s), (Sqr, Sqrt)) HUX_STAMP(SCALED, (16s), (Exp, Ln))
        HUX_STAMP(PLAIN, (32f), (Abs, Sqr, Sqrt, Exp))
  };
  return all;
}

TEST(VectorElementary, GivesTheResultsOfImages) {
  Rng rng(1);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    forShapes(rng, 150, [&](int length, int, Place place) {
      const Image src(rng, length, 1, f.elementBytes, place), dst(rng, length, 1, f.elementBytes, place);
      const Image expected = dst, inPlace = src, expectedInPlace = src;
      const int scale = between(rng, -12, 12);
      const HuxStatus status = f.image(src.bytes(), expected.bytes(), length, scale);
      f.image(src.bytes(), expectedInPlace.bytes(), length, scale);
      ASSERT_EQ(f.vector(src.bytes(), dst.bytes(), length, scale), status);
      ASSERT_TRUE(same(dst, expected));
      ASSERT_EQ(f.inPlace(inPlace.bytes(), length, scale), status);
      ASSERT_TRUE(same(inPlace, expectedInPlace));
    });
  }
}

TEST(VectorElementary, ChecksPointersThenLength) {
  Rng rng(2);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    Image src(rng, 5, 1, f.elementBytes);
    src.fill<Hux8u>([] { return Hux8u(1); });
    const Image dst = src;
    const void* from = src.bytes();
    void* to = dst.bytes();
    int length = 5;
    CheckOrder([&] { return f.vector(from, to, length, 0); })
        .breaks(huxStsNullPtr, from, nullptr)
        .breaks(huxStsNullPtr, to, nullptr)
        .breaks(huxStsBadSize, length, 0)
        .run(dst);
    CheckOrder([&] { return f.inPlace(to, length, 0); })
        .breaks(huxStsNullPtr, to, nullptr)
        .breaks(huxStsBadSize, length, -1)
        .run(dst);
  }
}

}  // namespace
}  // namespace hux::test
