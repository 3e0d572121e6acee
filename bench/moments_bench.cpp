// Moments: the scan of an image into a record.
#include "measures.h"

namespace {

using bench::add, bench::Measures, bench::Numbers, bench::Shape;

// A record for each kind of number, used over and over.
HuxiMomentRecord_64f* record64f() {
  static HuxiMomentRecord_64f* record = [] {
    HuxiMomentRecord_64f* r = nullptr;
    huxiMomentInitAlloc_64f(&r, huxHintNone);
    return r;
  }();
  return record;
}
HuxiMomentRecord_64s* record64s() {
  static HuxiMomentRecord_64s* record = [] {
    HuxiMomentRecord_64s* r = nullptr;
    huxiMomentInitAlloc_64s(&r, huxHintNone);
    return r;
  }();
  return record;
}

double momentOf(const HuxiMomentRecord_64f* record, int m, int n) {
  double value = 0;
  huxiGetSpatialMoment_64f(record, m, n, 0, {0, 0}, &value);
  return value;
}
void fetch(const HuxiMomentRecord_64f* r, const Measures<10>& to) {
  to.set(momentOf(r, 0, 0), momentOf(r, 1, 0), momentOf(r, 0, 1), momentOf(r, 2, 0), momentOf(r, 1, 1),
         momentOf(r, 0, 2), momentOf(r, 3, 0), momentOf(r, 2, 1), momentOf(r, 1, 2), momentOf(r, 0, 3));
}
#ifdef HUX_BENCH_OPENCV
void fetch(const cv::Moments& m, const Measures<10>& to) {
  to.set(m.m00, m.m10, m.m01, m.m20, m.m11, m.m02, m.m30, m.m21, m.m12, m.m03);
}
#endif

#define CASE(r, t, l, c, work, ...) \
  add<Numbers<Hux##t, c>, Measures<10>>("Moments" #r "_" #t "_" #l, Shape::Same, RUN(work), __VA_ARGS__)
#define SCAN(r, t, l) huxiMoments##r##_##t##_##l(SRC, ROI, record##r())

}  // namespace

void addCases() {
  CASE(64f, 8u, C1R, 1, SCAN(64f, 8u, C1R);
       fetch(record64f(), o.dst), PEER("moments", fetch(cv::moments(o.src.mat), o.dst)));
  CASE(64f, 32f, C1R, 1, SCAN(64f, 32f, C1R);
       fetch(record64f(), o.dst), PEER("moments", fetch(cv::moments(o.src.mat), o.dst)));
  CASE(64f, 8u, C3R, 3, SCAN(64f, 8u, C3R), bench::noPeer());
  CASE(64f, 8u, AC4R, 4, SCAN(64f, 8u, AC4R), bench::noPeer());
  CASE(64f, 32f, C3R, 3, SCAN(64f, 32f, C3R), bench::noPeer());
  CASE(64s, 8u, C1R, 1, SCAN(64s, 8u, C1R), bench::noPeer());
  CASE(64s, 8u, C3R, 3, SCAN(64s, 8u, C3R), bench::noPeer());
}
