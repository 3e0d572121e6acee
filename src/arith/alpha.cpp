// Alpha composition of two images, and colours multiplied by their alpha.
#include "arith/fraction.h"
#include "core/check.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "workers/delegate.h"
#include "workers/fill.h"

namespace hux {
namespace {

// Images of alpha alone; four planes, the fourth of them alpha.
using AC1 = C1;
struct AP4 {};

// An image argument: a pointer, or an array of plane pointers.
template <class L, class T>
using Image = std::conditional_t<std::is_same_v<L, AP4>, T* const*, T*>;

// A type that stands for one of the twelve rules. Those of plain colours are those of premultiplied ones after a
// multiplication of each colour by its alpha.
template <HuxiAlphaType Type>
struct Composition {
  static constexpr bool plain = Type < huxAlphaOverPremul;
  static constexpr HuxiAlphaType rule = plain ? Type + (huxAlphaOverPremul - huxAlphaOver) : Type;
};

// Premultiplied colours A and B composed by their alphas. With the alphas for colours this is the composed alpha as
// well, in all rules but ATop, whose alpha is b.
template <class F, HuxiAlphaType Rule, class V = typename F::V>
V compose(V A, V B, V a, V b) {
  const V notA = F::one - a, notB = F::one - b;
  if constexpr (Rule == huxAlphaOverPremul)
    return F::sum(A, F::product(notA, B));
  else if constexpr (Rule == huxAlphaInPremul)
    return F::product(b, A);
  else if constexpr (Rule == huxAlphaOutPremul)
    return F::product(notB, A);
  else if constexpr (Rule == huxAlphaATopPremul)
    return F::sum(F::product(b, A), F::product(notA, B));
  else if constexpr (Rule == huxAlphaXorPremul)
    return F::sum(F::product(notB, A), F::product(notA, B));
  else
    return F::sum(A, B);
}

template <class F, class C, class V = typename F::V>
typename F::Pixels composeColours(V A, V B, V a, V b) {
  if constexpr (C::plain) A = F::product(A, a), B = F::product(B, b);
  return F::pixels(compose<F, C::rule>(A, B, a, b));
}

// Lanes of four-channel pixels: the fourth spread over its pixel; all bits set in every fourth lane.
template <class V>
V spreadAlpha(V v) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) { return __builtin_shufflevector(v, v, int(I | 3)...); }
  (std::make_index_sequence<lanesIn<V>>{});
}
template <class V>
V alphaLanes() {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return V{LaneType<V>(I % 4 == 3 ? ~LaneType<V>(0) : LaneType<V>(0))...};
  }
  (std::make_index_sequence<lanesIn<V>>{});
}

// Multipliers that are the pixel's alpha in lanes of colour, and the maximum, which changes nothing, in those of alpha.
template <class F, class V = typename F::V>
V colourMultipliers(V pixels) {
  return (spreadAlpha(pixels) | alphaLanes<V>()) & F::one;
}

// Rules of composition, by what their lanes hold: pixels of colours and alpha, ...
template <class C, class T>
struct ComposePixels : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  P operator()(P first, P second) const {
    auto A = F::of(first), B = F::of(second);
    const auto a = spreadAlpha(A), b = spreadAlpha(B), alpha = alphaLanes<typename F::V>();
    if constexpr (C::plain) A = F::product(A, colourMultipliers<F>(A)), B = F::product(B, colourMultipliers<F>(B));
    const auto v = compose<F, C::rule>(A, B, a, b);
    return F::pixels(C::rule == huxAlphaATopPremul ? (v & ~alpha) | (B & alpha) : v);
  }
};
// ... colours, with lanes of their alphas, ...
template <class C, class T>
struct ComposeColours : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  P operator()(P A, P B, P a, P b) const { return composeColours<F, C>(F::of(A), F::of(B), F::of(a), F::of(b)); }
};
// ... colours, with one alpha for each image, ...
template <class C, class T>
struct ComposeConstant : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  T a, b;
  ComposeConstant(T a, T b) : a(a), b(b) {}
  P operator()(P A, P B) const { return composeColours<F, C>(F::of(A), F::of(B), F::of(a), F::of(b)); }
};
// ... alphas alone.
template <class C, class T>
struct ComposeAlphas : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  P operator()(P first, P second) const {
    const auto a = F::of(first), b = F::of(second);
    return F::pixels(C::rule == huxAlphaATopPremul ? b : compose<F, C::rule>(a, b, a, b));
  }
};

HuxStatus known(HuxiAlphaType type) {
  return failUnless(type >= huxAlphaOver && type <= huxAlphaPlusPremul, huxStsBadAlphaType);
}

// Calls run(Composition<type>) for a known type.
template <HuxiAlphaType Type = huxAlphaOver, class Run>
void withComposition(HuxiAlphaType type, Run&& run) {
  if (type == Type) return run(Composition<Type>{});
  if constexpr (Type < huxAlphaPlusPremul) withComposition<Type + 1>(type, run);
}

template <class L, template <class, class> class Rule, class T, class... Alphas>
void composeRows(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi,
                 HuxiAlphaType type, Alphas... alphas) {
  withComposition(type, [&](auto composition) {
    const Rule<decltype(composition), T> rule{alphas...};
    forEachRow(roi, rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step), rows<L>(pDst, dstStep),
               [&](auto* a, auto* b, auto* d, Index n) { zipRow<L>(a, b, d, n, rule); });
  });
}

template <class L, class T>
HuxStatus alphaComp(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi,
                    HuxiAlphaType type) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), size(roi), known(type))) return s;
  if constexpr (L::channels == 1)
    composeRows<C1, ComposeAlphas>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, type);
  else
    composeRows<C4, ComposePixels>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, type);
  return huxStsOk;
}

// Planar rows are gone through in pieces that stay in the cache, since the alphas serve all planes. The alpha plane
// goes last: the destination may be one of the sources.
constexpr Index kPiece = 4096;

template <class, class T>
HuxStatus alphaComp(const T* const* pSrc1, int src1Step, const T* const* pSrc2, int src2Step, T* const* pDst,
                    int dstStep, HuxiSize roi, HuxiAlphaType type) {
  if (HuxStatus s =
          check(planePointers<4>(pSrc1), planePointers<4>(pSrc2), planePointers<4>(pDst), size(roi), known(type)))
    return s;
  withComposition(type, [&](auto composition) {
    using C = decltype(composition);
    using Operand = FromRow<T, Fraction<T>::lanes>;
    forEachRow(roi, wordPlanes<4>(pSrc1, src1Step), wordPlanes<4>(pSrc2, src2Step), wordPlanes<4>(pDst, dstStep),
               [](auto A, auto B, auto dst, Index width) {
                 forPieces(width, kPiece, [&](Index x, Index n) {
                   const Operand a{A[3] + x}, b{B[3] + x};
                   for (int c = 0; c < 3; ++c)
                     applyRule<C1>(dst[c] + x, n, ComposeColours<C, T>{}, Operand{A[c] + x}, Operand{B[c] + x}, a, b);
                   applyRule<C1>(dst[3] + x, n, ComposeAlphas<C, T>{}, a, b);
                 });
               });
  });
  return huxStsOk;
}

template <class L, class T>
HuxStatus alphaCompC(const T* pSrc1, int src1Step, T alpha1, const T* pSrc2, int src2Step, T alpha2, T* pDst,
                     int dstStep, HuxiSize roi, HuxiAlphaType type) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), size(roi), known(type))) return s;
  composeRows<L, ComposeConstant>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, type, alpha1, alpha2);
  return huxStsOk;
}

template <class, class T>
HuxStatus alphaCompC(const T* const* pSrc1, int src1Step, T alpha1, const T* const* pSrc2, int src2Step, T alpha2,
                     T* const* pDst, int dstStep, HuxiSize roi, HuxiAlphaType type) {
  if (HuxStatus s =
          check(planePointers<4>(pSrc1), planePointers<4>(pSrc2), planePointers<4>(pDst), size(roi), known(type)))
    return s;
  for (int c = 0; c < 3; ++c)
    composeRows<C1, ComposeConstant>(pSrc1[c], src1Step, pSrc2[c], src2Step, pDst[c], dstStep, roi, type, alpha1,
                                     alpha2);
  return huxStsOk;
}

// Rules of multiplication by alpha: pixels of colours and alpha; colours, with lanes of their alphas; ...
template <class T>
struct PremulPixels : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  P operator()(P pixels) const { return F::pixels(F::product(F::of(pixels), colourMultipliers<F>(F::of(pixels)))); }
};
template <class T>
struct PremulColours : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  P operator()(P colours, P alphas) const { return F::pixels(F::product(F::of(colours), F::of(alphas))); }
};
// ... one alpha, which the alphas of pixels become: it is the maximum multiplied by it.
template <class L, class T>
struct PremulConstant : Fraction<T> {
  using F = Fraction<T>;
  using P = typename F::Pixels;
  T alpha;
  explicit PremulConstant(T alpha) : alpha(alpha) {}
  P operator()(P pixels) const {
    if constexpr (L::channels != L::processed) pixels |= alphaLanes<P>();
    return F::pixels(F::product(F::of(pixels), F::of(alpha)));
  }
};

template <class L, bool InPlace, class T>
HuxStatus alphaPremul(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
             [](auto* s, auto* d, Index n) { mapRow<C4>(s, d, n, PremulPixels<T>{}); });
  return huxStsOk;
}

template <class, bool InPlace, class T>
HuxStatus alphaPremul(const T* const* pSrc, int srcStep, T* const* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(planePointers<4>(pSrc), planePointers<4>(pDst), size(roi))) return s;
  forEachRow(roi, wordPlanes<4>(pSrc, srcStep), wordPlanes<4>(pDst, dstStep), [](auto src, auto dst, Index width) {
    forPieces(width, kPiece, [&](Index x, Index n) {
      for (int c = 0; c < 3; ++c) zipRow<C1>(src[c] + x, src[3] + x, dst[c] + x, n, PremulColours<T>{});
    });
  });
  return InPlace ? HuxStatus(huxStsOk) : copyAll<C1>(pSrc[3], srcStep, pDst[3], dstStep, roi);
}

template <class L, class T>
void premulRows(const T* pSrc, int srcStep, T alpha, T* pDst, int dstStep, HuxiSize roi) {
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
             [&](auto* s, auto* d, Index n) { mapRow<C1>(s, d, n * L::channels, PremulConstant<L, T>(alpha)); });
}

template <class L, class T>
HuxStatus alphaPremulC(const T* pSrc, int srcStep, T alpha, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  premulRows<L>(pSrc, srcStep, alpha, pDst, dstStep, roi);
  return huxStsOk;
}

// The alpha plane is not filled through Set, which would test the step.
template <class, class T>
HuxStatus alphaPremulC(const T* const* pSrc, int srcStep, T alpha, T* const* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(planePointers<4>(pSrc), planePointers<4>(pDst), size(roi))) return s;
  for (int c = 0; c < 3; ++c) premulRows<C1>(pSrc[c], srcStep, alpha, pDst[c], dstStep, roi);
  forEachRow(roi, rows<C1>(pDst[3], dstStep), [&](auto* dst, Index n) {
    if constexpr (sizeof(T) == 1)
      ownsSet_8u(alpha, dst, n);
    else
      ownsSet_16u(alpha, dst, n);
  });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                              \
  HuxStatus huxiAlphaComp_##t##_##l##R(                                                                           \
      hux::Image<hux::l, const Hux##t> pSrc1, int src1Step, hux::Image<hux::l, const Hux##t> pSrc2, int src2Step, \
      hux::Image<hux::l, Hux##t> pDst, int dstStep, HuxiSize roiSize, HuxiAlphaType alphaType) {                  \
    return hux::alphaComp<hux::l, Hux##t>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, alphaType);   \
  }
HUX_STAMP(EXPORT, (8u, 16u), (AC4, AC1, AP4))
#undef EXPORT

#define EXPORT(t, l)                                                                                                 \
  HuxStatus huxiAlphaCompC_##t##_##l##R(hux::Image<hux::l, const Hux##t> pSrc1, int src1Step, Hux##t alpha1,         \
                                        hux::Image<hux::l, const Hux##t> pSrc2, int src2Step, Hux##t alpha2,         \
                                        hux::Image<hux::l, Hux##t> pDst, int dstStep, HuxiSize roiSize,              \
                                        HuxiAlphaType alphaType) {                                                   \
    return hux::alphaCompC<hux::l, Hux##t>(pSrc1, src1Step, alpha1, pSrc2, src2Step, alpha2, pDst, dstStep, roiSize, \
                                           alphaType);                                                               \
  }                                                                                                                  \
  HuxStatus huxiAlphaPremulC_##t##_##l##R(hux::Image<hux::l, const Hux##t> pSrc, int srcStep, Hux##t alpha,          \
                                          hux::Image<hux::l, Hux##t> pDst, int dstStep, HuxiSize roiSize) {          \
    return hux::alphaPremulC<hux::l, Hux##t>(pSrc, srcStep, alpha, pDst, dstStep, roiSize);                          \
  }                                                                                                                  \
  HuxStatus huxiAlphaPremulC_##t##_##l##IR(Hux##t alpha, hux::Image<hux::l, Hux##t> pSrcDst, int srcDstStep,         \
                                           HuxiSize roiSize) {                                                       \
    return hux::alphaPremulC<hux::l, Hux##t>(pSrcDst, srcDstStep, alpha, pSrcDst, srcDstStep, roiSize);              \
  }
HUX_STAMP(EXPORT, (8u, 16u), (C1, C3, C4, AC4, AP4))
#undef EXPORT

#define EXPORT(t, l)                                                                                              \
  HuxStatus huxiAlphaPremul_##t##_##l##R(hux::Image<hux::l, const Hux##t> pSrc, int srcStep,                      \
                                         hux::Image<hux::l, Hux##t> pDst, int dstStep, HuxiSize roiSize) {        \
    return hux::alphaPremul<hux::l, false, Hux##t>(pSrc, srcStep, pDst, dstStep, roiSize);                        \
  }                                                                                                               \
  HuxStatus huxiAlphaPremul_##t##_##l##IR(hux::Image<hux::l, Hux##t> pSrcDst, int srcDstStep, HuxiSize roiSize) { \
    return hux::alphaPremul<hux::l, true, Hux##t>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);             \
  }
HUX_STAMP(EXPORT, (8u, 16u), (AC4, AP4))
