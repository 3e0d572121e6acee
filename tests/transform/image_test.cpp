// Transforms of images: bit by bit those of their rows and columns, against double precision, and what contexts refuse.
#include <algorithm>

#include "huxi_transform.h"
#include "huxs.h"
#include "transform/contexts.h"

namespace hux::test {
namespace {

enum Content { kComplexes, kReals, kIntegers };

// One kind of transform: its contexts and those of its rows and columns, all as pointers to void.
struct Kind {
  bool byPower;
  HuxStatus (*initAlloc[3])(void*, int, int, int, HuxAccuracyHint);
  FreeFn* free[3];
  BufSizeFn* getBufSize[3];
  HuxStatus (*lineInitAlloc[2])(void*, int, int, HuxAccuracyHint);
  FreeFn* lineFree[2];
  BufSizeFn* lineGetBufSize[2];
  HuxStatus (*line[2][2])(const void*, void*, const void*, void*);  // [complex, real][inverse, forward]
};
#define THREE(T, name) \
  { erased<huxi##T##name##_C_32fc>, erased<huxi##T##name##_R_32f>, erased<huxi##T##name##_R_32s> }
#define LINES(T, name) \
  { erased<huxs##T##name##_C_32fc>, erased<huxs##T##name##_R_32f> }
#define KIND(T, byPower)                                                                                     \
  {                                                                                                          \
    byPower, THREE(T, InitAlloc), THREE(T, Free), THREE(T, GetBufSize), LINES(T, InitAlloc), LINES(T, Free), \
        LINES(T, GetBufSize), {                                                                              \
      {erased<huxs##T##Inv_CToC_32fc>, erased<huxs##T##Fwd_CToC_32fc>}, {                                    \
        erased<huxs##T##Inv_PackToR_32f>, erased<huxs##T##Fwd_RToPack_32f>                                   \
      }                                                                                                      \
    }                                                                                                        \
  }
const Kind kFft = KIND(FFT, true), kDft = KIND(DFT, false);

using ImageFn = HuxStatus(const void*, int, void*, int, const void* record, int scaleFactor, void* buffer);
struct Transform {
  Form form;  // of the elements that go in and come out; complex numbers are elements of 8 bytes
  const Kind* kind;
  Content content;
  bool forward;
  ImageFn *call, *within;  // that of integers has no form in place
};
#define REAL(T, k, name, forward, l)                                                                         \
  {                                                                                                          \
    {#T #name "_" #l, 4, l}, &k, kReals, forward, as<ImageFn, huxi##T##name##_32f_##l##R, 0, 1, 2, 3, 4, 6>, \
        as<ImageFn, huxi##T##name##_32f_##l##IR, 2, 3, 4, 6>                                                 \
  }
#define INTEGER(T, k, name, forward, l) \
  { {#T #name "_" #l, 4, l}, &k, kIntegers, forward, as<ImageFn, huxi##T##name##_##l##RSfs>, nullptr }
#define COMPLEX(T, k, way, forward)                                                                         \
  {                                                                                                         \
    {#T #way, 8, C1}, &k, kComplexes, forward, as<ImageFn, huxi##T##way##_CToC_32fc_C1R, 0, 1, 2, 3, 4, 6>, \
        as<ImageFn, huxi##T##way##_CToC_32fc_C1IR, 2, 3, 4, 6>                                              \
  }
#define ALL(M, T, k, name, forward) \
  M(T, k, name, forward, C1), M(T, k, name, forward, C3), M(T, k, name, forward, C4), M(T, k, name, forward, AC4)
#define TRANSFORMS(T, k)                                                                   \
  COMPLEX(T, k, Fwd, true), COMPLEX(T, k, Inv, false), ALL(REAL, T, k, Fwd_RToPack, true), \
      ALL(REAL, T, k, Inv_PackToR, false), ALL(INTEGER, T, k, Fwd_RToPack_8u32s, true),    \
      ALL(INTEGER, T, k, Inv_PackToR_32s8u, false)
const Transform kTransforms[] = {TRANSFORMS(FFT, kFft), TRANSFORMS(DFT, kDft)};

int orderOf(int n) {
  int order = 0;
  while (1 << order < n) ++order;
  return order;
}

class Context {
 public:
  Context(const Kind& kind, Content content, HuxiSize size, int flag) : kind_(kind), content_(content) {
    const int x = kind.byPower ? orderOf(size.width) : size.width,
              y = kind.byPower ? orderOf(size.height) : size.height;
    EXPECT_EQ(kind.initAlloc[content](&record_, x, y, flag, huxHintNone), huxStsOk);
  }
  Context(const Context&) = delete;
  ~Context() { EXPECT_EQ(kind_.free[content_](record_), huxStsOk); }
  void* get() const { return record_; }
  int bytes() const {
    int n = 0;
    EXPECT_EQ(kind_.getBufSize[content_](record_, &n), huxStsOk);
    return n;
  }

 private:
  const Kind& kind_;
  Content content_;
  void* record_ = nullptr;
};

// The channels of an image as floats, or complex numbers as pairs of them, row by row.
using Plane = std::vector<Hux32f>;

// A context for lines of one length.
class Line {
 public:
  Line(const Kind& kind, bool real, int n, int flag) : kind_(kind), real_(real), n_(std::size_t(n)) {
    EXPECT_EQ(kind.lineInitAlloc[real](&record_, kind.byPower ? orderOf(n) : n, flag, huxHintNone), huxStsOk);
  }
  Line(const Line&) = delete;
  ~Line() { kind_.lineFree[real_](record_); }
  // Of floats `step` apart; complex numbers are two floats each.
  void run(bool forward, Hux32f* data, std::size_t step) const {
    const std::size_t parts = real_ ? 1 : 2;
    Plane line(n_ * parts);
    for (std::size_t i = 0; i < n_ * parts; ++i) line[i] = data[i / parts * step + i % parts];
    EXPECT_EQ(kind_.line[real_][forward](line.data(), line.data(), record_, nullptr), huxStsOk);
    for (std::size_t i = 0; i < n_ * parts; ++i) data[i / parts * step + i % parts] = line[i];
  }
  int bytes() const {
    int n = 0;
    kind_.lineGetBufSize[real_](record_, &n);
    return n;
  }

 private:
  const Kind& kind_;
  bool real_;
  std::size_t n_;
  void* record_ = nullptr;
};

// The definition: transforms of rows and of columns.
void transformPlane(const Transform& t, Plane& plane, HuxiSize size, int flag) {
  const std::size_t w = std::size_t(size.width), h = std::size_t(size.height);
  const bool real = t.content != kComplexes;
  const std::size_t pitch = real ? w : 2 * w;
  const Line row(*t.kind, real, size.width, flag), column(*t.kind, false, size.height, flag);
  const auto rows = [&] {
    for (std::size_t y = 0; y < h; ++y) row.run(t.forward, plane.data() + y * pitch, real ? 1 : 2);
  };
  if (!real) {
    if (w > 1 || h == 1) rows();
    for (std::size_t x = 0; x < w && h > 1; ++x) column.run(t.forward, plane.data() + 2 * x, pitch);
    return;
  }
  if (h == 1) return rows();
  const Line outer(*t.kind, true, size.height, flag);
  if (w > 1 && t.forward) rows();
  outer.run(t.forward, plane.data(), pitch);
  for (std::size_t x = 1; x + 1 < w; x += 2) column.run(t.forward, plane.data() + x, pitch);
  if (w > 1 && w % 2 == 0) outer.run(t.forward, plane.data() + w - 1, pitch);
  if (w > 1 && !t.forward) rows();
}

// Runs a transform with a buffer that ends with its page, and in place without one, and compares with the definition.
void expectTransform(Rng& rng, const Transform& t, HuxiSize size, int flag) {
  SCOPED_TRACE(testing::Message() << t.form.name << " " << size.width << " by " << size.height << " flag " << flag);
  const Context context(*t.kind, t.content, size, flag);
  const Image buffer(rng, context.bytes() + 1, 1, 1, Place::kEnd);
  auto* work = buffer.data<Hux8u>() + 1;
  const bool bytesIn = t.content == kIntegers && t.forward, bytesOut = t.content == kIntegers && !t.forward;
  const int channels = t.form.layout.stride, parts = t.content == kComplexes ? 2 : 1;
  Image src(rng, size.width, size.height, channels * (bytesIn ? 1 : 4 * parts), Place(between(rng, 0, 2)));
  if (t.content != kIntegers)
    src.fill<Hux32f>([&] { return Hux32f(between(rng, -1000, 1000)) / 512; });
  else if (!t.forward)
    src.fill<Hux32s>([&] { return between(rng, -100000, 100000); });
  const Image before = src;
  Image dst(rng, size.width, size.height, channels * (bytesOut ? 1 : 4 * parts), Place(between(rng, 0, 2)));
  Image expected = dst;
  const int scaleFactor = t.content == kIntegers ? between(rng, -2, 6) : 0;
  for (int c = 0; c < t.form.layout.touched; ++c) {
    Plane plane;
    for (int y = 0; y < size.height; ++y)
      for (int e = 0; e < size.width * parts; ++e) {
        const int x = e / parts, k = c * parts + e % parts;
        plane.push_back(bytesIn    ? Hux32f(src.get<Hux8u>(x, y, k))
                        : bytesOut ? Hux32f(src.get<Hux32s>(x, y, k))
                                   : src.get<Hux32f>(x, y, k));
      }
    transformPlane(t, plane, size, flag);
    const int n = int(plane.size());
    std::vector<Hux32s> words(plane.size());
    std::vector<Hux8u> bytes(plane.size());
    if (bytesIn) huxsConvert_32f32s_Sfs(plane.data(), words.data(), n, huxRndNear, scaleFactor);
    if (bytesOut) huxsConvert_32f8u_Sfs(plane.data(), bytes.data(), n, huxRndNear, scaleFactor);
    for (int i = 0; i < n; ++i) {
      const int x = i / parts % size.width, y = i / parts / size.width, k = c * parts + i % parts;
      const auto at = std::size_t(i);
      if (bytesIn)
        expected.set<Hux32s>(x, y, k, words[at]);
      else if (bytesOut)
        expected.set<Hux8u>(x, y, k, bytes[at]);
      else
        expected.set<Hux32f>(x, y, k, plane[at]);
    }
  }
  ASSERT_EQ(t.call(src.bytes(), src.step(), dst.bytes(), dst.step(), context.get(), scaleFactor, work), huxStsOk);
  ASSERT_TRUE(same(dst, expected));
  ASSERT_TRUE(same(src, before));
  if (!t.within) return;
  ASSERT_EQ(t.within(nullptr, 0, src.bytes(), src.step(), context.get(), 0, nullptr), huxStsOk);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x)
      ASSERT_EQ(std::memcmp(src.bytes(x, y), dst.bytes(x, y), t.form.touchedBytes()), 0)
          << "in place " << x << " " << y;
}

TEST(ImageTransform, IsThatOfRowsAndColumns) {
  Rng rng(1);
  for (const Transform& t : kTransforms) {
    std::vector<HuxiSize> sizes;
    if (t.kind->byPower) {
      for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) sizes.push_back({1 << x, 1 << y});
      // Columns by every path of theirs; rows likewise.
      for (int order = 7; order <= 13; ++order) sizes.push_back({8, 1 << order}), sizes.push_back({1 << order, 4});
      sizes.push_back({1, 8192}), sizes.push_back({64, 1024});
    } else {
      for (int i = 0; i < 40; ++i) sizes.push_back({between(rng, 1, 40), between(rng, 1, 40)});
      for (int n : {1, 2, 3, 4, 5, 6, 15, 16})
        sizes.push_back({n, 1}), sizes.push_back({1, n}), sizes.push_back({n, 3});
      sizes.insert(sizes.end(), {{17, 240}, {150, 151}, {302, 21}, {5, 4096}, {31, 31}, {3, 8192}});
    }
    for (HuxiSize size : sizes) {
      expectTransform(rng, t, size, kFlags[between(rng, 0, 3)]);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(ImageTransform, BufferSizes) {
  for (const Kind* kind : {&kFft, &kDft})
    for (HuxiSize size : {HuxiSize{8, 16}, {1, 1}, {4, 4}, {16384, 2}, {1, 16384}, {32768, 1}, {2, 8192}}) {
      const auto line = [&](bool real, int n) { return Line(*kind, real, n, 1).bytes(); };
      const int w = size.width, h = size.height;
      const int complex = std::max(64 * h + line(false, h), line(false, w));
      const int real = std::max({16 * h + line(true, h), 64 * h + line(false, h), 16 * w + line(true, w)});
      EXPECT_EQ(Context(*kind, kComplexes, size, 1).bytes(), complex + 16);
      EXPECT_EQ(Context(*kind, kReals, size, 1).bytes(), real + 16);
      EXPECT_EQ(Context(*kind, kIntegers, size, 1).bytes(), real + 16 + 4 * w + 16 * w * h + 16 + 16);
    }
}

TEST(ImageTransform, ChecksInOrder) {
  Rng rng(4);
  const Image image(rng, 8, 8, 16);
  for (const Transform& t : kTransforms) {
    const HuxiSize size{4, 4};
    const Context good(*t.kind, t.content, size, 8), other(*t.kind, Content((t.content + 1) % 3), size, 8),
        foreign(t.kind == &kFft ? kDft : kFft, t.content, size, 8);
    Image src = image;
    const Image dst = image;
    if (t.content != kIntegers) src.fill<Hux32f>([] { return 1.0f; });
    const void* context = good.get();
    Arguments a(src);
    a.d = dst.bytes();
    const auto call = [&] { return t.call(a.a, a.aStep, a.d, a.dStep, context, 0, nullptr); };
    CheckOrder(call).nulls(context).in(a, "aA").run(dst);
    for (const void* bad : {other.get(), foreign.get()})
      CheckOrder(call).breaks(huxStsBadContext, context, bad).in(a, "dD").run(dst);
    EXPECT_GT(failuresOf(call, dst), 0);
    expectContract(
        [&](void* pp) { return t.kind->initAlloc[t.content](pp, 5, t.kind->byPower ? 6 : 151, 1, huxHintNone); },
        t.kind->free[t.content], t.kind->getBufSize[t.content], foreign.get());
  }
}

TEST(ImageTransform, ContextsThatCannotBeMade) {
  for (const Kind* kind : {&kFft, &kDft})
    for (auto* make : kind->initAlloc) {
      void* record = nullptr;
      const HuxStatus outside = kind->byPower ? huxStsBadOrder : huxStsBadSize;
      EXPECT_EQ(make(nullptr, -1, -1, 0, huxHintNone), huxStsNullPtr);
      EXPECT_EQ(make(&record, 3, kind->byPower ? 31 : 0, 0, huxHintNone), outside);
      EXPECT_EQ(make(&record, kind->byPower ? 31 : 0, 3, 0, huxHintNone), outside);
      EXPECT_EQ(make(&record, 3, 3, 0, huxHintNone), huxStsBadFlag);
      const int huge = kind->byPower ? 30 : 0x7fffffff;
      for (const auto& [x, y] : {std::pair{huge, huge}, {3, huge}, {huge, 3}})
        EXPECT_EQ(make(&record, x, y, 0, huxHintNone), huxStsNoMem);
      EXPECT_EQ(record, nullptr);
    }
}

}  // namespace
}  // namespace hux::test
