// Copy in all its forms, against the definition: element by element, in order.
#include "huxi_pixel.h"

#include "support/forms.h"

namespace hux::test {
namespace {

using CopyFn = HuxStatus(const void*, int, void*, int, HuxiSize);
using MaskedFn = HuxStatus(const void*, int, void*, int, HuxiSize, const void*, int);

// A form moves the touched elements of each source pixel to those of a destination pixel.
struct CopyForm {
  std::string name;
  int bytes;
  Layout src, dst;
  CopyFn* copy = nullptr;
  MaskedFn* masked = nullptr;
};

#define PLAIN(t, f, src, dst) \
  CopyForm{#t "_" #f, int(sizeof(Hux##t)), src, dst, erased<huxiCopy_##t##_##f##R>, nullptr},
#define UNPACK(t, ...) PLAIN(t, __VA_ARGS__)
#define FORM(t, shape) UNPACK(t, HUX_LIST shape)
#define MASKED_FORM(t, l) CopyForm{#t "_" #l "M", int(sizeof(Hux##t)), l, l, nullptr, erased<huxiCopy_##t##_##l##MR>},

std::vector<CopyForm> plainForms() {
  return {
    HUX_STAMP(FORM, (8u, 16s, 32s, 32f),
              ((C1, C1, C1), (C3, C3, C3), (C4, C4, C4), (AC4, AC4, AC4), (AC4C3, AC4, C3), (C3AC4, C3, AC4),
               (C3C, C3C, C3C), (C4C, C4C, C4C), (C3C1, C3C, C1), (C4C1, C4C, C1), (C1C3, C1, C3C), (C1C4, C1, C4C)))
  };
}

std::vector<CopyForm> maskedForms() {
  return { HUX_STAMP(MASKED_FORM, (8u, 16s, 32s, 32f), (C1, C3, C4, AC4)) };
}

template <class Kept>
void moveElements(const CopyForm& f, const std::byte* src, std::ptrdiff_t srcStep, std::byte* dst,
                  std::ptrdiff_t dstStep, HuxiSize roi, Kept kept) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < f.src.touched && kept(x, y); ++c) {
        const std::byte* from = src + y * srcStep + (x * f.src.stride + c) * f.bytes;
        std::memmove(dst + y * dstStep + (x * f.dst.stride + c) * f.bytes, from, std::size_t(f.bytes));
      }
}

bool all(int, int) { return true; }

TEST(Copy, MovesTheElementsOfTheForm) {
  Rng rng(1);
  for (const CopyForm& f : plainForms()) {
    SCOPED_TRACE(f.name);
    forShapes(rng, 300, [&](int width, int height, Place place) {
      const Image src = touchedImage(rng, width, height, f.src, f.bytes, place);
      const Image dst = touchedImage(rng, width, height, f.dst, f.bytes, place);
      const Image srcBefore = src, expected = dst;
      const HuxiSize roi = {width, height};
      // Steps may be 0 or negative.
      const Walk srcWalk = anyWalk(rng, Walk::kStay), dstWalk = anyWalk(rng, Walk::kStay);
      const View from(src, srcWalk), to(dst, dstWalk), wanted(expected, dstWalk);
      moveElements(f, from.first, from.step, wanted.first, wanted.step, roi, all);
      ASSERT_EQ(f.copy(from.first, from.step, to.first, to.step, roi), huxStsOk);
      ASSERT_TRUE(same(dst, expected));
      ASSERT_TRUE(same(src, srcBefore));
    });
  }
}

TEST(Copy, MaskedStoresOnlyWhereTheMaskIsSet) {
  Rng rng(2);
  for (const CopyForm& f : maskedForms()) {
    SCOPED_TRACE(f.name);
    forShapes(rng, 300, [&](int width, int height, Place place) {
      const Image src(rng, width, height, f.src.stride * f.bytes, place),
          dst(rng, width, height, f.dst.stride * f.bytes);
      const Image mask = randomMask(rng, width, height, place);
      const Image expected = dst;
      moveElements(f, src.bytes(), src.step(), expected.bytes(), expected.step(), src.size(),
                   [&](int x, int y) { return mask.get<Hux8u>(x, y) != 0; });
      ASSERT_EQ(f.masked(src.bytes(), src.step(), dst.bytes(), dst.step(), src.size(), mask.bytes(), mask.step()),
                huxStsOk);
      ASSERT_TRUE(same(dst, expected));
    });
  }
}

// A row so long that places in it do not fit 16 bits, with single pixels that are on near its ends only.
TEST(Copy, MasksOfLongRows) {
  constexpr int width = 140000;
  std::vector<Hux8u> src(width, 1), dst(width), mask(width), expected(width);
  for (int x : {0, 65500, 131100, width - 90})
    for (int i = 0; i < 90; i += 3) mask[std::size_t(x + i)] = 255, expected[std::size_t(x + i)] = 1;
  ASSERT_EQ(huxiCopy_8u_C1MR(src.data(), width, dst.data(), width, {width, 1}, mask.data(), width), huxStsOk);
  EXPECT_EQ(dst, expected);
}

// Where the destination starts inside the source, an element already written is read again; no other care is taken.
TEST(Copy, OverlapShowsTheOrderOfElements) {
  Rng rng(3);
  for (const CopyForm& f : plainForms()) {
    SCOPED_TRACE(f.name);
    for (int ahead : {-200, -65, -3, -1, 1, 2, 3, 4, 31, 64, 100}) {
      const int width = between(rng, 60, 150), height = 3;
      const Image buffer(rng, 8 * width * f.bytes, height + 4, 1), expected = buffer;
      const auto run = [&](const Image& image, auto call) {
        std::byte* src = image.bytes(0, 2) + 2 * width;
        call(src, src + ahead * f.bytes, image.step());
      };
      run(expected, [&](std::byte* src, std::byte* dst, int step) {
        moveElements(f, src, step, dst, step, {width, height}, all);
      });
      run(buffer, [&](std::byte* src, std::byte* dst, int step) {
        ASSERT_EQ(f.copy(src, step, dst, step, {width, height}), huxStsOk);
      });
      ASSERT_TRUE(same(buffer, expected)) << "destination " << ahead << " elements ahead, width " << width;
    }
  }
}

// Planes are an array of pointers.
using PlanesFn = HuxStatus(const void*, int, const void*, int, HuxiSize);
struct PlanarForm {
  std::string name;
  int bytes, planes;
  PlanesFn *toPlanes, *fromPlanes;
};
#define PLANAR(t, n)                                                                         \
  PlanarForm{#t "_P" #n, int(sizeof(Hux##t)), n, as<PlanesFn, huxiCopy_##t##_C##n##P##n##R>, \
             as<PlanesFn, huxiCopy_##t##_P##n##C##n##R>},
std::vector<PlanarForm> planarForms() {
  return { HUX_STAMP(PLANAR, (8u, 16s, 32s, 32f), (3, 4)) };
}

// n planes of one step: bands of one tall image.
struct Planes {
  Image image;
  int height;
  std::array<void*, 4> pointers{};
  Planes(Rng& rng, int width, int height, int n, int bytes) : image(rng, width, height * n, bytes), height(height) {
    for (int c = 0; c < n; ++c) pointers[std::size_t(c)] = image.bytes(0, c * height);
  }
};

TEST(Copy, PlanesAndPixelsCorrespond) {
  Rng rng(5);
  for (const PlanarForm& f : planarForms()) {
    SCOPED_TRACE(f.name);
    forShapes(rng, 300, [&](int width, int height, Place place) {
      const Image pixels(rng, width, height, f.planes * f.bytes, place);
      const Planes planes(rng, width, height, f.planes, f.bytes);
      const auto visit = [&](const Image& p, const Image& q, auto move) {
        forElements({width, height}, f.planes, [&](int x, int y, int c) {
          move(p.bytes(x, y) + c * f.bytes, q.bytes(x, c * height + y), std::size_t(f.bytes));
        });
      };
      const Image planesExpected = planes.image, pixelsExpected = pixels;
      visit(pixelsExpected, planes.image, [](std::byte* p, std::byte* q, std::size_t n) { std::memcpy(p, q, n); });
      visit(pixels, planesExpected, [](std::byte* p, std::byte* q, std::size_t n) { std::memcpy(q, p, n); });
      const Image joined = pixels;
      ASSERT_EQ(f.fromPlanes(planes.pointers.data(), planes.image.step(), joined.bytes(), joined.step(), pixels.size()),
                huxStsOk);
      ASSERT_TRUE(same(joined, pixelsExpected));
      ASSERT_EQ(f.toPlanes(pixels.bytes(), pixels.step(), planes.pointers.data(), planes.image.step(), pixels.size()),
                huxStsOk);
      ASSERT_TRUE(same(planes.image, planesExpected));
    });
  }
}

TEST(Copy, ChecksPointersThenSizeAndNoSteps) {
  Rng rng(6);
  const Image image(rng, 16, 4, 16);
  const void *src = image.bytes(), *mask = src;
  void* dst = image.bytes();
  HuxiSize roi = {1, 1};
  for (const CopyForm& f : plainForms()) {
    SCOPED_TRACE(f.name);
    CheckOrder([&] { return f.copy(src, -1, dst, 0, roi); }).nulls(src, dst).sizes(roi).run(image);
  }
  for (const CopyForm& f : maskedForms()) {
    SCOPED_TRACE(f.name);
    CheckOrder([&] { return f.masked(src, -1, dst, 0, roi, mask, 0); }).nulls(src, dst, mask).sizes(roi).run(image);
  }
  for (const PlanarForm& f : planarForms()) {
    SCOPED_TRACE(f.name);
    void* list[] = {dst, dst, dst, dst};
    void* array = list;
    CheckOrder([&] { return f.toPlanes(src, 0, array, 0, roi); })
        .nulls(src, array, list[0], list[f.planes - 1])
        .sizes(roi)
        .run(image);
    CheckOrder([&] { return f.fromPlanes(array, 0, dst, 0, roi); })
        .nulls(array, list[1], list[f.planes - 1], dst)
        .sizes(roi)
        .run(image);
  }
}

}  // namespace
}  // namespace hux::test
