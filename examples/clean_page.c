/* A scanned page made black and white by the library's plain calls, one after the other: the light divided out, a
 * threshold, specks removed. clean_page.cpp makes the same page clean by a chain of the same calls, to the bit. */
#include <stdint.h>
#include <stdio.h>

#include "huxi.h"

/* An image in a frame that is wide enough for the widest window. */
enum { kFrame = 20 };
typedef struct {
  Hux8u* memory;
  Hux8u* pixels;
  int step;
} Image;

static Image made(HuxiSize size) {
  Image image = {NULL, NULL, 0};
  image.memory = huxiMalloc_8u_C1(size.width + 2 * kFrame, size.height + 2 * kFrame, &image.step);
  if (image.memory) image.pixels = image.memory + kFrame * image.step + kFrame;
  return image;
}

/* Continues an image by its outermost pixels, so that windows may read around it. */
static HuxStatus framed(Image image, HuxiSize size) {
  const HuxiSize whole = {size.width + 2 * kFrame, size.height + 2 * kFrame};
  return huxiCopyReplicateBorder_8u_C1IR(image.pixels, image.step, size, whole, kFrame, kFrame);
}

static HuxStatus cleaned(Image scan, Image light, Image clean, HuxiSize size) {
  const HuxiSize small = {15, 15}, large = {41, 41};
  const HuxiPoint mid_small = {7, 7}, mid_large = {20, 20};
  HuxStatus s = framed(scan, size);
  if (!s) s = huxiFilterMax_8u_C1R(scan.pixels, scan.step, clean.pixels, clean.step, size, small, mid_small);
  if (!s) s = framed(clean, size);
  if (!s) s = huxiFilterBox_8u_C1R(clean.pixels, clean.step, light.pixels, light.step, size, large, mid_large);
  if (!s) s = huxiDiv_8u_C1IRSfs(light.pixels, light.step, scan.pixels, scan.step, size, -8); /* paper is 255 */
  if (!s) s = huxiCompareC_8u_C1R(scan.pixels, scan.step, 130, clean.pixels, clean.step, size, huxCmpGreater);
  if (!s) s = framed(clean, size);
  if (!s) s = huxiDilate3x3_8u_C1R(clean.pixels, clean.step, light.pixels, light.step, size);
  if (!s) s = framed(light, size);
  return s ? s : huxiErode3x3_8u_C1R(light.pixels, light.step, clean.pixels, clean.step, size);
}

/* Numbers as std::minstd_rand has them. */
static uint32_t next(uint32_t* state) { return *state = (uint32_t)(*state * (uint64_t)48271 % 2147483647); }

/* Lines of letters, black on white: strokes in cells of 8 by 12. */
static HuxStatus drawn(Image page, HuxiSize size) {
  static const HuxiRect strokes[5] = {{0, 0, 3, 12}, {0, 0, 8, 3}, {5, 3, 3, 9}, {0, 5, 7, 3}, {0, 9, 8, 3}};
  uint32_t random = 7;
  HuxStatus s = huxiSet_8u_C1R(255, page.pixels, page.step, size);
  for (int y = 24; y + 32 < size.height; y += 22)
    for (int x = 24; x + 32 < size.width; x += 10) {
      if (next(&random) % 6 == 0) continue; /* between words */
      for (int k = 0; k < 5; ++k) {
        const HuxiRect r = strokes[k];
        const HuxiSize stroke = {r.width, r.height};
        if (next(&random) % 3 == 0 || s) continue;
        s = huxiSet_8u_C1R(0, page.pixels + (y + r.y) * page.step + x + r.x, page.step, stroke);
      }
    }
  return s;
}

/* The same under a lamp at the left, with grain and with specks. */
static HuxStatus scanned(Image page, Image light, Image scan, HuxiSize size) {
  Hux32u seed = 3;
  uint32_t random = 11;
  HuxStatus s =
      huxiImageRamp_8u_C1R(light.pixels, light.step, size, 235, -150.0f / (float)size.width, huxAxsHorizontal);
  if (!s) s = huxiAddC_8u_C1RSfs(page.pixels, page.step, 40, scan.pixels, scan.step, size, 0); /* ink is not black */
  if (!s) s = huxiMul_8u_C1IRSfs(light.pixels, light.step, scan.pixels, scan.step, size, 8);
  if (!s) s = huxiAddRandGauss_Direct_8u_C1IR(scan.pixels, scan.step, size, 0, 4, &seed);
  for (int i = 0; i < size.width * size.height / 400; ++i) {
    const int x = (int)(next(&random) % (uint32_t)size.width);
    scan.pixels[(int)(next(&random) % (uint32_t)size.height) * scan.step + x] = 10;
  }
  return s;
}

int main(void) {
  const HuxiSize size = {1240, 1754}; /* A4 at 150 dots per inch */
  const Image page = made(size), scan = made(size), light = made(size), clean = made(size);
  int ink = 0, left = 0;
  HuxStatus s = page.memory && scan.memory && light.memory && clean.memory ? huxStsOk : huxStsNoMem;
  if (!s) s = drawn(page, size);
  if (!s) s = scanned(page, light, scan, size);
  if (!s) s = cleaned(scan, light, clean, size);
  if (!s) s = huxiCountInRange_8u_C1R(page.pixels, page.step, size, &ink, 0, 0);
  if (!s) s = huxiCountInRange_8u_C1R(clean.pixels, clean.step, size, &left, 0, 0);
  if (!s) printf("drawn: %d of ink, clean: %d\n", ink, left);
  huxiFree(page.memory);
  huxiFree(scan.memory);
  huxiFree(light.memory);
  huxiFree(clean.memory);
  return s != huxStsOk;
}
