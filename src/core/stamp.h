// Export stamping: one macro body, stamped for every type and layout of a family. The bodies hold no logic, one call
// each.
//
//   HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, AC4))    EXPORT(8u, C1) EXPORT(8u, C3) ... EXPORT(32f, AC4)
//   HUX_STAMP_LAYOUTS(EXPORT, 8u, (C1, C3))             EXPORT(8u, C1) EXPORT(8u, C3)
#pragma once

#define HUX_SCAN(...) HUX_SCAN_3(HUX_SCAN_3(HUX_SCAN_3(HUX_SCAN_3(__VA_ARGS__))))
#define HUX_SCAN_3(...) HUX_SCAN_2(HUX_SCAN_2(HUX_SCAN_2(HUX_SCAN_2(__VA_ARGS__))))
#define HUX_SCAN_2(...) HUX_SCAN_1(HUX_SCAN_1(HUX_SCAN_1(HUX_SCAN_1(__VA_ARGS__))))
#define HUX_SCAN_1(...) __VA_ARGS__
#define HUX_LATER ()
#define HUX_LIST(...) __VA_ARGS__

#define HUX_STAMP(M, types, layouts) HUX_SCAN(HUX_EACH_TYPE(M, layouts, HUX_LIST types))
#define HUX_STAMP_LAYOUTS(M, type, layouts) HUX_SCAN(HUX_EACH_LAYOUT(M, type, HUX_LIST layouts))

#define HUX_EACH_TYPE(M, layouts, ...) HUX_TYPE_STEP(M, layouts, __VA_ARGS__)
#define HUX_TYPE_STEP(M, layouts, type, ...) \
  HUX_EACH_LAYOUT(M, type, HUX_LIST layouts) __VA_OPT__(HUX_TYPE_AGAIN HUX_LATER(M, layouts, __VA_ARGS__))
#define HUX_TYPE_AGAIN() HUX_TYPE_STEP

#define HUX_EACH_LAYOUT(M, type, ...) HUX_LAYOUT_STEP(M, type, __VA_ARGS__)
#define HUX_LAYOUT_STEP(M, type, layout, ...) \
  M(type, layout) __VA_OPT__(HUX_LAYOUT_AGAIN HUX_LATER(M, type, __VA_ARGS__))
#define HUX_LAYOUT_AGAIN() HUX_LAYOUT_STEP
