// Made by tools/cpp_front from the headers of the C library.
// The functions of the C library by type and layout. members::add<std::uint8_t, 3> is huxiAdd_8u_C3RSfs, and null
// where there is no such function. In the order of template arguments: the element and the layout of the
// destination, then those of the source where they are not the same.
#ifndef HUX_MEMBERS_HPP
#define HUX_MEMBERS_HPP

#include "../huxi.h"
#include "../huxs.h"
#include "view.hpp"

namespace hux::members {

using u8 = std::uint8_t;
using s8 = std::int8_t;
using u16 = std::uint16_t;
using s16 = std::int16_t;
using u32 = std::uint32_t;
using s32 = std::int32_t;
using s64 = std::int64_t;
using f32 = float;
using f64 = double;
using c16 = Hux16sc;
using c32 = Hux32sc;
using cf32 = std::complex<float>;
using cf64 = std::complex<double>;

// clang-format off

template <class, int>
inline constexpr auto add = nullptr;
template <> inline constexpr auto add<u8, 1> = huxiAdd_8u_C1RSfs;
template <> inline constexpr auto add<u8, 3> = huxiAdd_8u_C3RSfs;
template <> inline constexpr auto add<u8, 4> = huxiAdd_8u_C4RSfs;
template <> inline constexpr auto add<u8, ac4> = huxiAdd_8u_AC4RSfs;
template <> inline constexpr auto add<s16, 1> = huxiAdd_16s_C1RSfs;
template <> inline constexpr auto add<s16, 3> = huxiAdd_16s_C3RSfs;
template <> inline constexpr auto add<s16, 4> = huxiAdd_16s_C4RSfs;
template <> inline constexpr auto add<s16, ac4> = huxiAdd_16s_AC4RSfs;
template <> inline constexpr auto add<u16, 1> = huxiAdd_16u_C1RSfs;
template <> inline constexpr auto add<u16, 3> = huxiAdd_16u_C3RSfs;
template <> inline constexpr auto add<u16, 4> = huxiAdd_16u_C4RSfs;
template <> inline constexpr auto add<u16, ac4> = huxiAdd_16u_AC4RSfs;
template <> inline constexpr auto add<f32, 1> = huxiAdd_32f_C1R;
template <> inline constexpr auto add<f32, 3> = huxiAdd_32f_C3R;
template <> inline constexpr auto add<f32, 4> = huxiAdd_32f_C4R;
template <> inline constexpr auto add<f32, ac4> = huxiAdd_32f_AC4R;
template <> inline constexpr auto add<c16, 1> = huxiAdd_16sc_C1RSfs;
template <> inline constexpr auto add<c16, 3> = huxiAdd_16sc_C3RSfs;
template <> inline constexpr auto add<c16, ac4> = huxiAdd_16sc_AC4RSfs;
template <> inline constexpr auto add<c32, 1> = huxiAdd_32sc_C1RSfs;
template <> inline constexpr auto add<c32, 3> = huxiAdd_32sc_C3RSfs;
template <> inline constexpr auto add<c32, ac4> = huxiAdd_32sc_AC4RSfs;
template <> inline constexpr auto add<cf32, 1> = huxiAdd_32fc_C1R;
template <> inline constexpr auto add<cf32, 3> = huxiAdd_32fc_C3R;
template <> inline constexpr auto add<cf32, ac4> = huxiAdd_32fc_AC4R;

template <class, int>
inline constexpr auto add_in_place = nullptr;
template <> inline constexpr auto add_in_place<u8, 1> = huxiAdd_8u_C1IRSfs;
template <> inline constexpr auto add_in_place<u8, 3> = huxiAdd_8u_C3IRSfs;
template <> inline constexpr auto add_in_place<u8, 4> = huxiAdd_8u_C4IRSfs;
template <> inline constexpr auto add_in_place<u8, ac4> = huxiAdd_8u_AC4IRSfs;
template <> inline constexpr auto add_in_place<s16, 1> = huxiAdd_16s_C1IRSfs;
template <> inline constexpr auto add_in_place<s16, 3> = huxiAdd_16s_C3IRSfs;
template <> inline constexpr auto add_in_place<s16, 4> = huxiAdd_16s_C4IRSfs;
template <> inline constexpr auto add_in_place<s16, ac4> = huxiAdd_16s_AC4IRSfs;
template <> inline constexpr auto add_in_place<u16, 1> = huxiAdd_16u_C1IRSfs;
template <> inline constexpr auto add_in_place<u16, 3> = huxiAdd_16u_C3IRSfs;
template <> inline constexpr auto add_in_place<u16, 4> = huxiAdd_16u_C4IRSfs;
template <> inline constexpr auto add_in_place<u16, ac4> = huxiAdd_16u_AC4IRSfs;
template <> inline constexpr auto add_in_place<f32, 1> = huxiAdd_32f_C1IR;
template <> inline constexpr auto add_in_place<f32, 3> = huxiAdd_32f_C3IR;
template <> inline constexpr auto add_in_place<f32, 4> = huxiAdd_32f_C4IR;
template <> inline constexpr auto add_in_place<f32, ac4> = huxiAdd_32f_AC4IR;
template <> inline constexpr auto add_in_place<c16, 1> = huxiAdd_16sc_C1IRSfs;
template <> inline constexpr auto add_in_place<c16, 3> = huxiAdd_16sc_C3IRSfs;
template <> inline constexpr auto add_in_place<c16, ac4> = huxiAdd_16sc_AC4IRSfs;
template <> inline constexpr auto add_in_place<c32, 1> = huxiAdd_32sc_C1IRSfs;
template <> inline constexpr auto add_in_place<c32, 3> = huxiAdd_32sc_C3IRSfs;
template <> inline constexpr auto add_in_place<c32, ac4> = huxiAdd_32sc_AC4IRSfs;
template <> inline constexpr auto add_in_place<cf32, 1> = huxiAdd_32fc_C1IR;
template <> inline constexpr auto add_in_place<cf32, 3> = huxiAdd_32fc_C3IR;
template <> inline constexpr auto add_in_place<cf32, ac4> = huxiAdd_32fc_AC4IR;

template <class, int>
inline constexpr auto sub = nullptr;
template <> inline constexpr auto sub<u8, 1> = huxiSub_8u_C1RSfs;
template <> inline constexpr auto sub<u8, 3> = huxiSub_8u_C3RSfs;
template <> inline constexpr auto sub<u8, 4> = huxiSub_8u_C4RSfs;
template <> inline constexpr auto sub<u8, ac4> = huxiSub_8u_AC4RSfs;
template <> inline constexpr auto sub<s16, 1> = huxiSub_16s_C1RSfs;
template <> inline constexpr auto sub<s16, 3> = huxiSub_16s_C3RSfs;
template <> inline constexpr auto sub<s16, 4> = huxiSub_16s_C4RSfs;
template <> inline constexpr auto sub<s16, ac4> = huxiSub_16s_AC4RSfs;
template <> inline constexpr auto sub<u16, 1> = huxiSub_16u_C1RSfs;
template <> inline constexpr auto sub<u16, 3> = huxiSub_16u_C3RSfs;
template <> inline constexpr auto sub<u16, 4> = huxiSub_16u_C4RSfs;
template <> inline constexpr auto sub<u16, ac4> = huxiSub_16u_AC4RSfs;
template <> inline constexpr auto sub<f32, 1> = huxiSub_32f_C1R;
template <> inline constexpr auto sub<f32, 3> = huxiSub_32f_C3R;
template <> inline constexpr auto sub<f32, 4> = huxiSub_32f_C4R;
template <> inline constexpr auto sub<f32, ac4> = huxiSub_32f_AC4R;
template <> inline constexpr auto sub<c16, 1> = huxiSub_16sc_C1RSfs;
template <> inline constexpr auto sub<c16, 3> = huxiSub_16sc_C3RSfs;
template <> inline constexpr auto sub<c16, ac4> = huxiSub_16sc_AC4RSfs;
template <> inline constexpr auto sub<c32, 1> = huxiSub_32sc_C1RSfs;
template <> inline constexpr auto sub<c32, 3> = huxiSub_32sc_C3RSfs;
template <> inline constexpr auto sub<c32, ac4> = huxiSub_32sc_AC4RSfs;
template <> inline constexpr auto sub<cf32, 1> = huxiSub_32fc_C1R;
template <> inline constexpr auto sub<cf32, 3> = huxiSub_32fc_C3R;
template <> inline constexpr auto sub<cf32, ac4> = huxiSub_32fc_AC4R;

template <class, int>
inline constexpr auto sub_in_place = nullptr;
template <> inline constexpr auto sub_in_place<u8, 1> = huxiSub_8u_C1IRSfs;
template <> inline constexpr auto sub_in_place<u8, 3> = huxiSub_8u_C3IRSfs;
template <> inline constexpr auto sub_in_place<u8, 4> = huxiSub_8u_C4IRSfs;
template <> inline constexpr auto sub_in_place<u8, ac4> = huxiSub_8u_AC4IRSfs;
template <> inline constexpr auto sub_in_place<s16, 1> = huxiSub_16s_C1IRSfs;
template <> inline constexpr auto sub_in_place<s16, 3> = huxiSub_16s_C3IRSfs;
template <> inline constexpr auto sub_in_place<s16, 4> = huxiSub_16s_C4IRSfs;
template <> inline constexpr auto sub_in_place<s16, ac4> = huxiSub_16s_AC4IRSfs;
template <> inline constexpr auto sub_in_place<u16, 1> = huxiSub_16u_C1IRSfs;
template <> inline constexpr auto sub_in_place<u16, 3> = huxiSub_16u_C3IRSfs;
template <> inline constexpr auto sub_in_place<u16, 4> = huxiSub_16u_C4IRSfs;
template <> inline constexpr auto sub_in_place<u16, ac4> = huxiSub_16u_AC4IRSfs;
template <> inline constexpr auto sub_in_place<f32, 1> = huxiSub_32f_C1IR;
template <> inline constexpr auto sub_in_place<f32, 3> = huxiSub_32f_C3IR;
template <> inline constexpr auto sub_in_place<f32, 4> = huxiSub_32f_C4IR;
template <> inline constexpr auto sub_in_place<f32, ac4> = huxiSub_32f_AC4IR;
template <> inline constexpr auto sub_in_place<c16, 1> = huxiSub_16sc_C1IRSfs;
template <> inline constexpr auto sub_in_place<c16, 3> = huxiSub_16sc_C3IRSfs;
template <> inline constexpr auto sub_in_place<c16, ac4> = huxiSub_16sc_AC4IRSfs;
template <> inline constexpr auto sub_in_place<c32, 1> = huxiSub_32sc_C1IRSfs;
template <> inline constexpr auto sub_in_place<c32, 3> = huxiSub_32sc_C3IRSfs;
template <> inline constexpr auto sub_in_place<c32, ac4> = huxiSub_32sc_AC4IRSfs;
template <> inline constexpr auto sub_in_place<cf32, 1> = huxiSub_32fc_C1IR;
template <> inline constexpr auto sub_in_place<cf32, 3> = huxiSub_32fc_C3IR;
template <> inline constexpr auto sub_in_place<cf32, ac4> = huxiSub_32fc_AC4IR;

template <class, int>
inline constexpr auto mul = nullptr;
template <> inline constexpr auto mul<u8, 1> = huxiMul_8u_C1RSfs;
template <> inline constexpr auto mul<u8, 3> = huxiMul_8u_C3RSfs;
template <> inline constexpr auto mul<u8, 4> = huxiMul_8u_C4RSfs;
template <> inline constexpr auto mul<u8, ac4> = huxiMul_8u_AC4RSfs;
template <> inline constexpr auto mul<s16, 1> = huxiMul_16s_C1RSfs;
template <> inline constexpr auto mul<s16, 3> = huxiMul_16s_C3RSfs;
template <> inline constexpr auto mul<s16, 4> = huxiMul_16s_C4RSfs;
template <> inline constexpr auto mul<s16, ac4> = huxiMul_16s_AC4RSfs;
template <> inline constexpr auto mul<u16, 1> = huxiMul_16u_C1RSfs;
template <> inline constexpr auto mul<u16, 3> = huxiMul_16u_C3RSfs;
template <> inline constexpr auto mul<u16, 4> = huxiMul_16u_C4RSfs;
template <> inline constexpr auto mul<u16, ac4> = huxiMul_16u_AC4RSfs;
template <> inline constexpr auto mul<f32, 1> = huxiMul_32f_C1R;
template <> inline constexpr auto mul<f32, 3> = huxiMul_32f_C3R;
template <> inline constexpr auto mul<f32, 4> = huxiMul_32f_C4R;
template <> inline constexpr auto mul<f32, ac4> = huxiMul_32f_AC4R;
template <> inline constexpr auto mul<c16, 1> = huxiMul_16sc_C1RSfs;
template <> inline constexpr auto mul<c16, 3> = huxiMul_16sc_C3RSfs;
template <> inline constexpr auto mul<c16, ac4> = huxiMul_16sc_AC4RSfs;
template <> inline constexpr auto mul<c32, 1> = huxiMul_32sc_C1RSfs;
template <> inline constexpr auto mul<c32, 3> = huxiMul_32sc_C3RSfs;
template <> inline constexpr auto mul<c32, ac4> = huxiMul_32sc_AC4RSfs;
template <> inline constexpr auto mul<cf32, 1> = huxiMul_32fc_C1R;
template <> inline constexpr auto mul<cf32, 3> = huxiMul_32fc_C3R;
template <> inline constexpr auto mul<cf32, ac4> = huxiMul_32fc_AC4R;

template <class, int>
inline constexpr auto mul_in_place = nullptr;
template <> inline constexpr auto mul_in_place<u8, 1> = huxiMul_8u_C1IRSfs;
template <> inline constexpr auto mul_in_place<u8, 3> = huxiMul_8u_C3IRSfs;
template <> inline constexpr auto mul_in_place<u8, 4> = huxiMul_8u_C4IRSfs;
template <> inline constexpr auto mul_in_place<u8, ac4> = huxiMul_8u_AC4IRSfs;
template <> inline constexpr auto mul_in_place<s16, 1> = huxiMul_16s_C1IRSfs;
template <> inline constexpr auto mul_in_place<s16, 3> = huxiMul_16s_C3IRSfs;
template <> inline constexpr auto mul_in_place<s16, 4> = huxiMul_16s_C4IRSfs;
template <> inline constexpr auto mul_in_place<s16, ac4> = huxiMul_16s_AC4IRSfs;
template <> inline constexpr auto mul_in_place<u16, 1> = huxiMul_16u_C1IRSfs;
template <> inline constexpr auto mul_in_place<u16, 3> = huxiMul_16u_C3IRSfs;
template <> inline constexpr auto mul_in_place<u16, 4> = huxiMul_16u_C4IRSfs;
template <> inline constexpr auto mul_in_place<u16, ac4> = huxiMul_16u_AC4IRSfs;
template <> inline constexpr auto mul_in_place<f32, 1> = huxiMul_32f_C1IR;
template <> inline constexpr auto mul_in_place<f32, 3> = huxiMul_32f_C3IR;
template <> inline constexpr auto mul_in_place<f32, 4> = huxiMul_32f_C4IR;
template <> inline constexpr auto mul_in_place<f32, ac4> = huxiMul_32f_AC4IR;
template <> inline constexpr auto mul_in_place<c16, 1> = huxiMul_16sc_C1IRSfs;
template <> inline constexpr auto mul_in_place<c16, 3> = huxiMul_16sc_C3IRSfs;
template <> inline constexpr auto mul_in_place<c16, ac4> = huxiMul_16sc_AC4IRSfs;
template <> inline constexpr auto mul_in_place<c32, 1> = huxiMul_32sc_C1IRSfs;
template <> inline constexpr auto mul_in_place<c32, 3> = huxiMul_32sc_C3IRSfs;
template <> inline constexpr auto mul_in_place<c32, ac4> = huxiMul_32sc_AC4IRSfs;
template <> inline constexpr auto mul_in_place<cf32, 1> = huxiMul_32fc_C1IR;
template <> inline constexpr auto mul_in_place<cf32, 3> = huxiMul_32fc_C3IR;
template <> inline constexpr auto mul_in_place<cf32, ac4> = huxiMul_32fc_AC4IR;

template <class, int>
inline constexpr auto add_c = nullptr;
template <> inline constexpr auto add_c<u8, 1> = huxiAddC_8u_C1RSfs;
template <> inline constexpr auto add_c<u8, 3> = huxiAddC_8u_C3RSfs;
template <> inline constexpr auto add_c<u8, 4> = huxiAddC_8u_C4RSfs;
template <> inline constexpr auto add_c<u8, ac4> = huxiAddC_8u_AC4RSfs;
template <> inline constexpr auto add_c<s16, 1> = huxiAddC_16s_C1RSfs;
template <> inline constexpr auto add_c<s16, 3> = huxiAddC_16s_C3RSfs;
template <> inline constexpr auto add_c<s16, 4> = huxiAddC_16s_C4RSfs;
template <> inline constexpr auto add_c<s16, ac4> = huxiAddC_16s_AC4RSfs;
template <> inline constexpr auto add_c<u16, 1> = huxiAddC_16u_C1RSfs;
template <> inline constexpr auto add_c<u16, 3> = huxiAddC_16u_C3RSfs;
template <> inline constexpr auto add_c<u16, 4> = huxiAddC_16u_C4RSfs;
template <> inline constexpr auto add_c<u16, ac4> = huxiAddC_16u_AC4RSfs;
template <> inline constexpr auto add_c<f32, 1> = huxiAddC_32f_C1R;
template <> inline constexpr auto add_c<f32, 3> = huxiAddC_32f_C3R;
template <> inline constexpr auto add_c<f32, 4> = huxiAddC_32f_C4R;
template <> inline constexpr auto add_c<f32, ac4> = huxiAddC_32f_AC4R;
template <> inline constexpr auto add_c<c16, 1> = huxiAddC_16sc_C1RSfs;
template <> inline constexpr auto add_c<c16, 3> = huxiAddC_16sc_C3RSfs;
template <> inline constexpr auto add_c<c16, ac4> = huxiAddC_16sc_AC4RSfs;
template <> inline constexpr auto add_c<c32, 1> = huxiAddC_32sc_C1RSfs;
template <> inline constexpr auto add_c<c32, 3> = huxiAddC_32sc_C3RSfs;
template <> inline constexpr auto add_c<c32, ac4> = huxiAddC_32sc_AC4RSfs;
template <> inline constexpr auto add_c<cf32, 1> = huxiAddC_32fc_C1R;
template <> inline constexpr auto add_c<cf32, 3> = huxiAddC_32fc_C3R;
template <> inline constexpr auto add_c<cf32, ac4> = huxiAddC_32fc_AC4R;

template <class, int>
inline constexpr auto add_c_in_place = nullptr;
template <> inline constexpr auto add_c_in_place<u8, 1> = huxiAddC_8u_C1IRSfs;
template <> inline constexpr auto add_c_in_place<u8, 3> = huxiAddC_8u_C3IRSfs;
template <> inline constexpr auto add_c_in_place<u8, 4> = huxiAddC_8u_C4IRSfs;
template <> inline constexpr auto add_c_in_place<u8, ac4> = huxiAddC_8u_AC4IRSfs;
template <> inline constexpr auto add_c_in_place<s16, 1> = huxiAddC_16s_C1IRSfs;
template <> inline constexpr auto add_c_in_place<s16, 3> = huxiAddC_16s_C3IRSfs;
template <> inline constexpr auto add_c_in_place<s16, 4> = huxiAddC_16s_C4IRSfs;
template <> inline constexpr auto add_c_in_place<s16, ac4> = huxiAddC_16s_AC4IRSfs;
template <> inline constexpr auto add_c_in_place<u16, 1> = huxiAddC_16u_C1IRSfs;
template <> inline constexpr auto add_c_in_place<u16, 3> = huxiAddC_16u_C3IRSfs;
template <> inline constexpr auto add_c_in_place<u16, 4> = huxiAddC_16u_C4IRSfs;
template <> inline constexpr auto add_c_in_place<u16, ac4> = huxiAddC_16u_AC4IRSfs;
template <> inline constexpr auto add_c_in_place<f32, 1> = huxiAddC_32f_C1IR;
template <> inline constexpr auto add_c_in_place<f32, 3> = huxiAddC_32f_C3IR;
template <> inline constexpr auto add_c_in_place<f32, 4> = huxiAddC_32f_C4IR;
template <> inline constexpr auto add_c_in_place<f32, ac4> = huxiAddC_32f_AC4IR;
template <> inline constexpr auto add_c_in_place<c16, 1> = huxiAddC_16sc_C1IRSfs;
template <> inline constexpr auto add_c_in_place<c16, 3> = huxiAddC_16sc_C3IRSfs;
template <> inline constexpr auto add_c_in_place<c16, ac4> = huxiAddC_16sc_AC4IRSfs;
template <> inline constexpr auto add_c_in_place<c32, 1> = huxiAddC_32sc_C1IRSfs;
template <> inline constexpr auto add_c_in_place<c32, 3> = huxiAddC_32sc_C3IRSfs;
template <> inline constexpr auto add_c_in_place<c32, ac4> = huxiAddC_32sc_AC4IRSfs;
template <> inline constexpr auto add_c_in_place<cf32, 1> = huxiAddC_32fc_C1IR;
template <> inline constexpr auto add_c_in_place<cf32, 3> = huxiAddC_32fc_C3IR;
template <> inline constexpr auto add_c_in_place<cf32, ac4> = huxiAddC_32fc_AC4IR;

template <class, int>
inline constexpr auto sub_c = nullptr;
template <> inline constexpr auto sub_c<u8, 1> = huxiSubC_8u_C1RSfs;
template <> inline constexpr auto sub_c<u8, 3> = huxiSubC_8u_C3RSfs;
template <> inline constexpr auto sub_c<u8, 4> = huxiSubC_8u_C4RSfs;
template <> inline constexpr auto sub_c<u8, ac4> = huxiSubC_8u_AC4RSfs;
template <> inline constexpr auto sub_c<s16, 1> = huxiSubC_16s_C1RSfs;
template <> inline constexpr auto sub_c<s16, 3> = huxiSubC_16s_C3RSfs;
template <> inline constexpr auto sub_c<s16, 4> = huxiSubC_16s_C4RSfs;
template <> inline constexpr auto sub_c<s16, ac4> = huxiSubC_16s_AC4RSfs;
template <> inline constexpr auto sub_c<u16, 1> = huxiSubC_16u_C1RSfs;
template <> inline constexpr auto sub_c<u16, 3> = huxiSubC_16u_C3RSfs;
template <> inline constexpr auto sub_c<u16, 4> = huxiSubC_16u_C4RSfs;
template <> inline constexpr auto sub_c<u16, ac4> = huxiSubC_16u_AC4RSfs;
template <> inline constexpr auto sub_c<f32, 1> = huxiSubC_32f_C1R;
template <> inline constexpr auto sub_c<f32, 3> = huxiSubC_32f_C3R;
template <> inline constexpr auto sub_c<f32, 4> = huxiSubC_32f_C4R;
template <> inline constexpr auto sub_c<f32, ac4> = huxiSubC_32f_AC4R;
template <> inline constexpr auto sub_c<c16, 1> = huxiSubC_16sc_C1RSfs;
template <> inline constexpr auto sub_c<c16, 3> = huxiSubC_16sc_C3RSfs;
template <> inline constexpr auto sub_c<c16, ac4> = huxiSubC_16sc_AC4RSfs;
template <> inline constexpr auto sub_c<c32, 1> = huxiSubC_32sc_C1RSfs;
template <> inline constexpr auto sub_c<c32, 3> = huxiSubC_32sc_C3RSfs;
template <> inline constexpr auto sub_c<c32, ac4> = huxiSubC_32sc_AC4RSfs;
template <> inline constexpr auto sub_c<cf32, 1> = huxiSubC_32fc_C1R;
template <> inline constexpr auto sub_c<cf32, 3> = huxiSubC_32fc_C3R;
template <> inline constexpr auto sub_c<cf32, ac4> = huxiSubC_32fc_AC4R;

template <class, int>
inline constexpr auto sub_c_in_place = nullptr;
template <> inline constexpr auto sub_c_in_place<u8, 1> = huxiSubC_8u_C1IRSfs;
template <> inline constexpr auto sub_c_in_place<u8, 3> = huxiSubC_8u_C3IRSfs;
template <> inline constexpr auto sub_c_in_place<u8, 4> = huxiSubC_8u_C4IRSfs;
template <> inline constexpr auto sub_c_in_place<u8, ac4> = huxiSubC_8u_AC4IRSfs;
template <> inline constexpr auto sub_c_in_place<s16, 1> = huxiSubC_16s_C1IRSfs;
template <> inline constexpr auto sub_c_in_place<s16, 3> = huxiSubC_16s_C3IRSfs;
template <> inline constexpr auto sub_c_in_place<s16, 4> = huxiSubC_16s_C4IRSfs;
template <> inline constexpr auto sub_c_in_place<s16, ac4> = huxiSubC_16s_AC4IRSfs;
template <> inline constexpr auto sub_c_in_place<u16, 1> = huxiSubC_16u_C1IRSfs;
template <> inline constexpr auto sub_c_in_place<u16, 3> = huxiSubC_16u_C3IRSfs;
template <> inline constexpr auto sub_c_in_place<u16, 4> = huxiSubC_16u_C4IRSfs;
template <> inline constexpr auto sub_c_in_place<u16, ac4> = huxiSubC_16u_AC4IRSfs;
template <> inline constexpr auto sub_c_in_place<f32, 1> = huxiSubC_32f_C1IR;
template <> inline constexpr auto sub_c_in_place<f32, 3> = huxiSubC_32f_C3IR;
template <> inline constexpr auto sub_c_in_place<f32, 4> = huxiSubC_32f_C4IR;
template <> inline constexpr auto sub_c_in_place<f32, ac4> = huxiSubC_32f_AC4IR;
template <> inline constexpr auto sub_c_in_place<c16, 1> = huxiSubC_16sc_C1IRSfs;
template <> inline constexpr auto sub_c_in_place<c16, 3> = huxiSubC_16sc_C3IRSfs;
template <> inline constexpr auto sub_c_in_place<c16, ac4> = huxiSubC_16sc_AC4IRSfs;
template <> inline constexpr auto sub_c_in_place<c32, 1> = huxiSubC_32sc_C1IRSfs;
template <> inline constexpr auto sub_c_in_place<c32, 3> = huxiSubC_32sc_C3IRSfs;
template <> inline constexpr auto sub_c_in_place<c32, ac4> = huxiSubC_32sc_AC4IRSfs;
template <> inline constexpr auto sub_c_in_place<cf32, 1> = huxiSubC_32fc_C1IR;
template <> inline constexpr auto sub_c_in_place<cf32, 3> = huxiSubC_32fc_C3IR;
template <> inline constexpr auto sub_c_in_place<cf32, ac4> = huxiSubC_32fc_AC4IR;

template <class, int>
inline constexpr auto mul_c = nullptr;
template <> inline constexpr auto mul_c<u8, 1> = huxiMulC_8u_C1RSfs;
template <> inline constexpr auto mul_c<u8, 3> = huxiMulC_8u_C3RSfs;
template <> inline constexpr auto mul_c<u8, 4> = huxiMulC_8u_C4RSfs;
template <> inline constexpr auto mul_c<u8, ac4> = huxiMulC_8u_AC4RSfs;
template <> inline constexpr auto mul_c<s16, 1> = huxiMulC_16s_C1RSfs;
template <> inline constexpr auto mul_c<s16, 3> = huxiMulC_16s_C3RSfs;
template <> inline constexpr auto mul_c<s16, 4> = huxiMulC_16s_C4RSfs;
template <> inline constexpr auto mul_c<s16, ac4> = huxiMulC_16s_AC4RSfs;
template <> inline constexpr auto mul_c<u16, 1> = huxiMulC_16u_C1RSfs;
template <> inline constexpr auto mul_c<u16, 3> = huxiMulC_16u_C3RSfs;
template <> inline constexpr auto mul_c<u16, 4> = huxiMulC_16u_C4RSfs;
template <> inline constexpr auto mul_c<u16, ac4> = huxiMulC_16u_AC4RSfs;
template <> inline constexpr auto mul_c<f32, 1> = huxiMulC_32f_C1R;
template <> inline constexpr auto mul_c<f32, 3> = huxiMulC_32f_C3R;
template <> inline constexpr auto mul_c<f32, 4> = huxiMulC_32f_C4R;
template <> inline constexpr auto mul_c<f32, ac4> = huxiMulC_32f_AC4R;
template <> inline constexpr auto mul_c<c16, 1> = huxiMulC_16sc_C1RSfs;
template <> inline constexpr auto mul_c<c16, 3> = huxiMulC_16sc_C3RSfs;
template <> inline constexpr auto mul_c<c16, ac4> = huxiMulC_16sc_AC4RSfs;
template <> inline constexpr auto mul_c<c32, 1> = huxiMulC_32sc_C1RSfs;
template <> inline constexpr auto mul_c<c32, 3> = huxiMulC_32sc_C3RSfs;
template <> inline constexpr auto mul_c<c32, ac4> = huxiMulC_32sc_AC4RSfs;
template <> inline constexpr auto mul_c<cf32, 1> = huxiMulC_32fc_C1R;
template <> inline constexpr auto mul_c<cf32, 3> = huxiMulC_32fc_C3R;
template <> inline constexpr auto mul_c<cf32, ac4> = huxiMulC_32fc_AC4R;

template <class, int>
inline constexpr auto mul_c_in_place = nullptr;
template <> inline constexpr auto mul_c_in_place<u8, 1> = huxiMulC_8u_C1IRSfs;
template <> inline constexpr auto mul_c_in_place<u8, 3> = huxiMulC_8u_C3IRSfs;
template <> inline constexpr auto mul_c_in_place<u8, 4> = huxiMulC_8u_C4IRSfs;
template <> inline constexpr auto mul_c_in_place<u8, ac4> = huxiMulC_8u_AC4IRSfs;
template <> inline constexpr auto mul_c_in_place<s16, 1> = huxiMulC_16s_C1IRSfs;
template <> inline constexpr auto mul_c_in_place<s16, 3> = huxiMulC_16s_C3IRSfs;
template <> inline constexpr auto mul_c_in_place<s16, 4> = huxiMulC_16s_C4IRSfs;
template <> inline constexpr auto mul_c_in_place<s16, ac4> = huxiMulC_16s_AC4IRSfs;
template <> inline constexpr auto mul_c_in_place<u16, 1> = huxiMulC_16u_C1IRSfs;
template <> inline constexpr auto mul_c_in_place<u16, 3> = huxiMulC_16u_C3IRSfs;
template <> inline constexpr auto mul_c_in_place<u16, 4> = huxiMulC_16u_C4IRSfs;
template <> inline constexpr auto mul_c_in_place<u16, ac4> = huxiMulC_16u_AC4IRSfs;
template <> inline constexpr auto mul_c_in_place<f32, 1> = huxiMulC_32f_C1IR;
template <> inline constexpr auto mul_c_in_place<f32, 3> = huxiMulC_32f_C3IR;
template <> inline constexpr auto mul_c_in_place<f32, 4> = huxiMulC_32f_C4IR;
template <> inline constexpr auto mul_c_in_place<f32, ac4> = huxiMulC_32f_AC4IR;
template <> inline constexpr auto mul_c_in_place<c16, 1> = huxiMulC_16sc_C1IRSfs;
template <> inline constexpr auto mul_c_in_place<c16, 3> = huxiMulC_16sc_C3IRSfs;
template <> inline constexpr auto mul_c_in_place<c16, ac4> = huxiMulC_16sc_AC4IRSfs;
template <> inline constexpr auto mul_c_in_place<c32, 1> = huxiMulC_32sc_C1IRSfs;
template <> inline constexpr auto mul_c_in_place<c32, 3> = huxiMulC_32sc_C3IRSfs;
template <> inline constexpr auto mul_c_in_place<c32, ac4> = huxiMulC_32sc_AC4IRSfs;
template <> inline constexpr auto mul_c_in_place<cf32, 1> = huxiMulC_32fc_C1IR;
template <> inline constexpr auto mul_c_in_place<cf32, 3> = huxiMulC_32fc_C3IR;
template <> inline constexpr auto mul_c_in_place<cf32, ac4> = huxiMulC_32fc_AC4IR;

template <class, int>
inline constexpr auto div = nullptr;
template <> inline constexpr auto div<u8, 1> = huxiDiv_8u_C1RSfs;
template <> inline constexpr auto div<u8, 3> = huxiDiv_8u_C3RSfs;
template <> inline constexpr auto div<u8, 4> = huxiDiv_8u_C4RSfs;
template <> inline constexpr auto div<u8, ac4> = huxiDiv_8u_AC4RSfs;
template <> inline constexpr auto div<s16, 1> = huxiDiv_16s_C1RSfs;
template <> inline constexpr auto div<s16, 3> = huxiDiv_16s_C3RSfs;
template <> inline constexpr auto div<s16, 4> = huxiDiv_16s_C4RSfs;
template <> inline constexpr auto div<s16, ac4> = huxiDiv_16s_AC4RSfs;
template <> inline constexpr auto div<u16, 1> = huxiDiv_16u_C1RSfs;
template <> inline constexpr auto div<u16, 3> = huxiDiv_16u_C3RSfs;
template <> inline constexpr auto div<u16, 4> = huxiDiv_16u_C4RSfs;
template <> inline constexpr auto div<u16, ac4> = huxiDiv_16u_AC4RSfs;
template <> inline constexpr auto div<f32, 1> = huxiDiv_32f_C1R;
template <> inline constexpr auto div<f32, 3> = huxiDiv_32f_C3R;
template <> inline constexpr auto div<f32, 4> = huxiDiv_32f_C4R;
template <> inline constexpr auto div<f32, ac4> = huxiDiv_32f_AC4R;
template <> inline constexpr auto div<c16, 1> = huxiDiv_16sc_C1RSfs;
template <> inline constexpr auto div<c16, 3> = huxiDiv_16sc_C3RSfs;
template <> inline constexpr auto div<c16, ac4> = huxiDiv_16sc_AC4RSfs;
template <> inline constexpr auto div<c32, 1> = huxiDiv_32sc_C1RSfs;
template <> inline constexpr auto div<c32, 3> = huxiDiv_32sc_C3RSfs;
template <> inline constexpr auto div<c32, ac4> = huxiDiv_32sc_AC4RSfs;
template <> inline constexpr auto div<cf32, 1> = huxiDiv_32fc_C1R;
template <> inline constexpr auto div<cf32, 3> = huxiDiv_32fc_C3R;
template <> inline constexpr auto div<cf32, ac4> = huxiDiv_32fc_AC4R;

template <class, int>
inline constexpr auto div_in_place = nullptr;
template <> inline constexpr auto div_in_place<u8, 1> = huxiDiv_8u_C1IRSfs;
template <> inline constexpr auto div_in_place<u8, 3> = huxiDiv_8u_C3IRSfs;
template <> inline constexpr auto div_in_place<u8, 4> = huxiDiv_8u_C4IRSfs;
template <> inline constexpr auto div_in_place<u8, ac4> = huxiDiv_8u_AC4IRSfs;
template <> inline constexpr auto div_in_place<s16, 1> = huxiDiv_16s_C1IRSfs;
template <> inline constexpr auto div_in_place<s16, 3> = huxiDiv_16s_C3IRSfs;
template <> inline constexpr auto div_in_place<s16, 4> = huxiDiv_16s_C4IRSfs;
template <> inline constexpr auto div_in_place<s16, ac4> = huxiDiv_16s_AC4IRSfs;
template <> inline constexpr auto div_in_place<u16, 1> = huxiDiv_16u_C1IRSfs;
template <> inline constexpr auto div_in_place<u16, 3> = huxiDiv_16u_C3IRSfs;
template <> inline constexpr auto div_in_place<u16, 4> = huxiDiv_16u_C4IRSfs;
template <> inline constexpr auto div_in_place<u16, ac4> = huxiDiv_16u_AC4IRSfs;
template <> inline constexpr auto div_in_place<f32, 1> = huxiDiv_32f_C1IR;
template <> inline constexpr auto div_in_place<f32, 3> = huxiDiv_32f_C3IR;
template <> inline constexpr auto div_in_place<f32, 4> = huxiDiv_32f_C4IR;
template <> inline constexpr auto div_in_place<f32, ac4> = huxiDiv_32f_AC4IR;
template <> inline constexpr auto div_in_place<c16, 1> = huxiDiv_16sc_C1IRSfs;
template <> inline constexpr auto div_in_place<c16, 3> = huxiDiv_16sc_C3IRSfs;
template <> inline constexpr auto div_in_place<c16, ac4> = huxiDiv_16sc_AC4IRSfs;
template <> inline constexpr auto div_in_place<c32, 1> = huxiDiv_32sc_C1IRSfs;
template <> inline constexpr auto div_in_place<c32, 3> = huxiDiv_32sc_C3IRSfs;
template <> inline constexpr auto div_in_place<c32, ac4> = huxiDiv_32sc_AC4IRSfs;
template <> inline constexpr auto div_in_place<cf32, 1> = huxiDiv_32fc_C1IR;
template <> inline constexpr auto div_in_place<cf32, 3> = huxiDiv_32fc_C3IR;
template <> inline constexpr auto div_in_place<cf32, ac4> = huxiDiv_32fc_AC4IR;

template <class, int>
inline constexpr auto div_c = nullptr;
template <> inline constexpr auto div_c<u8, 1> = huxiDivC_8u_C1RSfs;
template <> inline constexpr auto div_c<u8, 3> = huxiDivC_8u_C3RSfs;
template <> inline constexpr auto div_c<u8, 4> = huxiDivC_8u_C4RSfs;
template <> inline constexpr auto div_c<u8, ac4> = huxiDivC_8u_AC4RSfs;
template <> inline constexpr auto div_c<s16, 1> = huxiDivC_16s_C1RSfs;
template <> inline constexpr auto div_c<s16, 3> = huxiDivC_16s_C3RSfs;
template <> inline constexpr auto div_c<s16, 4> = huxiDivC_16s_C4RSfs;
template <> inline constexpr auto div_c<s16, ac4> = huxiDivC_16s_AC4RSfs;
template <> inline constexpr auto div_c<u16, 1> = huxiDivC_16u_C1RSfs;
template <> inline constexpr auto div_c<u16, 3> = huxiDivC_16u_C3RSfs;
template <> inline constexpr auto div_c<u16, 4> = huxiDivC_16u_C4RSfs;
template <> inline constexpr auto div_c<u16, ac4> = huxiDivC_16u_AC4RSfs;
template <> inline constexpr auto div_c<f32, 1> = huxiDivC_32f_C1R;
template <> inline constexpr auto div_c<f32, 3> = huxiDivC_32f_C3R;
template <> inline constexpr auto div_c<f32, 4> = huxiDivC_32f_C4R;
template <> inline constexpr auto div_c<f32, ac4> = huxiDivC_32f_AC4R;
template <> inline constexpr auto div_c<c16, 1> = huxiDivC_16sc_C1RSfs;
template <> inline constexpr auto div_c<c16, 3> = huxiDivC_16sc_C3RSfs;
template <> inline constexpr auto div_c<c16, ac4> = huxiDivC_16sc_AC4RSfs;
template <> inline constexpr auto div_c<c32, 1> = huxiDivC_32sc_C1RSfs;
template <> inline constexpr auto div_c<c32, 3> = huxiDivC_32sc_C3RSfs;
template <> inline constexpr auto div_c<c32, ac4> = huxiDivC_32sc_AC4RSfs;
template <> inline constexpr auto div_c<cf32, 1> = huxiDivC_32fc_C1R;
template <> inline constexpr auto div_c<cf32, 3> = huxiDivC_32fc_C3R;
template <> inline constexpr auto div_c<cf32, ac4> = huxiDivC_32fc_AC4R;

template <class, int>
inline constexpr auto div_c_in_place = nullptr;
template <> inline constexpr auto div_c_in_place<u8, 1> = huxiDivC_8u_C1IRSfs;
template <> inline constexpr auto div_c_in_place<u8, 3> = huxiDivC_8u_C3IRSfs;
template <> inline constexpr auto div_c_in_place<u8, 4> = huxiDivC_8u_C4IRSfs;
template <> inline constexpr auto div_c_in_place<u8, ac4> = huxiDivC_8u_AC4IRSfs;
template <> inline constexpr auto div_c_in_place<s16, 1> = huxiDivC_16s_C1IRSfs;
template <> inline constexpr auto div_c_in_place<s16, 3> = huxiDivC_16s_C3IRSfs;
template <> inline constexpr auto div_c_in_place<s16, 4> = huxiDivC_16s_C4IRSfs;
template <> inline constexpr auto div_c_in_place<s16, ac4> = huxiDivC_16s_AC4IRSfs;
template <> inline constexpr auto div_c_in_place<u16, 1> = huxiDivC_16u_C1IRSfs;
template <> inline constexpr auto div_c_in_place<u16, 3> = huxiDivC_16u_C3IRSfs;
template <> inline constexpr auto div_c_in_place<u16, 4> = huxiDivC_16u_C4IRSfs;
template <> inline constexpr auto div_c_in_place<u16, ac4> = huxiDivC_16u_AC4IRSfs;
template <> inline constexpr auto div_c_in_place<f32, 1> = huxiDivC_32f_C1IR;
template <> inline constexpr auto div_c_in_place<f32, 3> = huxiDivC_32f_C3IR;
template <> inline constexpr auto div_c_in_place<f32, 4> = huxiDivC_32f_C4IR;
template <> inline constexpr auto div_c_in_place<f32, ac4> = huxiDivC_32f_AC4IR;
template <> inline constexpr auto div_c_in_place<c16, 1> = huxiDivC_16sc_C1IRSfs;
template <> inline constexpr auto div_c_in_place<c16, 3> = huxiDivC_16sc_C3IRSfs;
template <> inline constexpr auto div_c_in_place<c16, ac4> = huxiDivC_16sc_AC4IRSfs;
template <> inline constexpr auto div_c_in_place<c32, 1> = huxiDivC_32sc_C1IRSfs;
template <> inline constexpr auto div_c_in_place<c32, 3> = huxiDivC_32sc_C3IRSfs;
template <> inline constexpr auto div_c_in_place<c32, ac4> = huxiDivC_32sc_AC4IRSfs;
template <> inline constexpr auto div_c_in_place<cf32, 1> = huxiDivC_32fc_C1IR;
template <> inline constexpr auto div_c_in_place<cf32, 3> = huxiDivC_32fc_C3IR;
template <> inline constexpr auto div_c_in_place<cf32, ac4> = huxiDivC_32fc_AC4IR;

template <class, int>
inline constexpr auto abs = nullptr;
template <> inline constexpr auto abs<s16, 1> = huxiAbs_16s_C1R;
template <> inline constexpr auto abs<s16, 3> = huxiAbs_16s_C3R;
template <> inline constexpr auto abs<s16, 4> = huxiAbs_16s_C4R;
template <> inline constexpr auto abs<s16, ac4> = huxiAbs_16s_AC4R;
template <> inline constexpr auto abs<f32, 1> = huxiAbs_32f_C1R;
template <> inline constexpr auto abs<f32, 3> = huxiAbs_32f_C3R;
template <> inline constexpr auto abs<f32, 4> = huxiAbs_32f_C4R;
template <> inline constexpr auto abs<f32, ac4> = huxiAbs_32f_AC4R;

template <class, int>
inline constexpr auto abs_in_place = nullptr;
template <> inline constexpr auto abs_in_place<s16, 1> = huxiAbs_16s_C1IR;
template <> inline constexpr auto abs_in_place<s16, 3> = huxiAbs_16s_C3IR;
template <> inline constexpr auto abs_in_place<s16, 4> = huxiAbs_16s_C4IR;
template <> inline constexpr auto abs_in_place<s16, ac4> = huxiAbs_16s_AC4IR;
template <> inline constexpr auto abs_in_place<f32, 1> = huxiAbs_32f_C1IR;
template <> inline constexpr auto abs_in_place<f32, 3> = huxiAbs_32f_C3IR;
template <> inline constexpr auto abs_in_place<f32, 4> = huxiAbs_32f_C4IR;
template <> inline constexpr auto abs_in_place<f32, ac4> = huxiAbs_32f_AC4IR;

template <class, int>
inline constexpr auto sqr = nullptr;
template <> inline constexpr auto sqr<u8, 1> = huxiSqr_8u_C1RSfs;
template <> inline constexpr auto sqr<u8, 3> = huxiSqr_8u_C3RSfs;
template <> inline constexpr auto sqr<u8, 4> = huxiSqr_8u_C4RSfs;
template <> inline constexpr auto sqr<u8, ac4> = huxiSqr_8u_AC4RSfs;
template <> inline constexpr auto sqr<u16, 1> = huxiSqr_16u_C1RSfs;
template <> inline constexpr auto sqr<u16, 3> = huxiSqr_16u_C3RSfs;
template <> inline constexpr auto sqr<u16, 4> = huxiSqr_16u_C4RSfs;
template <> inline constexpr auto sqr<u16, ac4> = huxiSqr_16u_AC4RSfs;
template <> inline constexpr auto sqr<s16, 1> = huxiSqr_16s_C1RSfs;
template <> inline constexpr auto sqr<s16, 3> = huxiSqr_16s_C3RSfs;
template <> inline constexpr auto sqr<s16, 4> = huxiSqr_16s_C4RSfs;
template <> inline constexpr auto sqr<s16, ac4> = huxiSqr_16s_AC4RSfs;
template <> inline constexpr auto sqr<f32, 1> = huxiSqr_32f_C1R;
template <> inline constexpr auto sqr<f32, 3> = huxiSqr_32f_C3R;
template <> inline constexpr auto sqr<f32, 4> = huxiSqr_32f_C4R;
template <> inline constexpr auto sqr<f32, ac4> = huxiSqr_32f_AC4R;

template <class, int>
inline constexpr auto sqr_in_place = nullptr;
template <> inline constexpr auto sqr_in_place<u8, 1> = huxiSqr_8u_C1IRSfs;
template <> inline constexpr auto sqr_in_place<u8, 3> = huxiSqr_8u_C3IRSfs;
template <> inline constexpr auto sqr_in_place<u8, 4> = huxiSqr_8u_C4IRSfs;
template <> inline constexpr auto sqr_in_place<u8, ac4> = huxiSqr_8u_AC4IRSfs;
template <> inline constexpr auto sqr_in_place<u16, 1> = huxiSqr_16u_C1IRSfs;
template <> inline constexpr auto sqr_in_place<u16, 3> = huxiSqr_16u_C3IRSfs;
template <> inline constexpr auto sqr_in_place<u16, 4> = huxiSqr_16u_C4IRSfs;
template <> inline constexpr auto sqr_in_place<u16, ac4> = huxiSqr_16u_AC4IRSfs;
template <> inline constexpr auto sqr_in_place<s16, 1> = huxiSqr_16s_C1IRSfs;
template <> inline constexpr auto sqr_in_place<s16, 3> = huxiSqr_16s_C3IRSfs;
template <> inline constexpr auto sqr_in_place<s16, 4> = huxiSqr_16s_C4IRSfs;
template <> inline constexpr auto sqr_in_place<s16, ac4> = huxiSqr_16s_AC4IRSfs;
template <> inline constexpr auto sqr_in_place<f32, 1> = huxiSqr_32f_C1IR;
template <> inline constexpr auto sqr_in_place<f32, 3> = huxiSqr_32f_C3IR;
template <> inline constexpr auto sqr_in_place<f32, 4> = huxiSqr_32f_C4IR;
template <> inline constexpr auto sqr_in_place<f32, ac4> = huxiSqr_32f_AC4IR;

template <class, int>
inline constexpr auto sqrt = nullptr;
template <> inline constexpr auto sqrt<u8, 1> = huxiSqrt_8u_C1RSfs;
template <> inline constexpr auto sqrt<u8, 3> = huxiSqrt_8u_C3RSfs;
template <> inline constexpr auto sqrt<u8, ac4> = huxiSqrt_8u_AC4RSfs;
template <> inline constexpr auto sqrt<u16, 1> = huxiSqrt_16u_C1RSfs;
template <> inline constexpr auto sqrt<u16, 3> = huxiSqrt_16u_C3RSfs;
template <> inline constexpr auto sqrt<u16, ac4> = huxiSqrt_16u_AC4RSfs;
template <> inline constexpr auto sqrt<s16, 1> = huxiSqrt_16s_C1RSfs;
template <> inline constexpr auto sqrt<s16, 3> = huxiSqrt_16s_C3RSfs;
template <> inline constexpr auto sqrt<s16, ac4> = huxiSqrt_16s_AC4RSfs;
template <> inline constexpr auto sqrt<f32, 1> = huxiSqrt_32f_C1R;
template <> inline constexpr auto sqrt<f32, 3> = huxiSqrt_32f_C3R;
template <> inline constexpr auto sqrt<f32, ac4> = huxiSqrt_32f_AC4R;

template <class, int>
inline constexpr auto sqrt_in_place = nullptr;
template <> inline constexpr auto sqrt_in_place<u8, 1> = huxiSqrt_8u_C1IRSfs;
template <> inline constexpr auto sqrt_in_place<u8, 3> = huxiSqrt_8u_C3IRSfs;
template <> inline constexpr auto sqrt_in_place<u8, ac4> = huxiSqrt_8u_AC4IRSfs;
template <> inline constexpr auto sqrt_in_place<u16, 1> = huxiSqrt_16u_C1IRSfs;
template <> inline constexpr auto sqrt_in_place<u16, 3> = huxiSqrt_16u_C3IRSfs;
template <> inline constexpr auto sqrt_in_place<u16, ac4> = huxiSqrt_16u_AC4IRSfs;
template <> inline constexpr auto sqrt_in_place<s16, 1> = huxiSqrt_16s_C1IRSfs;
template <> inline constexpr auto sqrt_in_place<s16, 3> = huxiSqrt_16s_C3IRSfs;
template <> inline constexpr auto sqrt_in_place<s16, ac4> = huxiSqrt_16s_AC4IRSfs;
template <> inline constexpr auto sqrt_in_place<f32, 1> = huxiSqrt_32f_C1IR;
template <> inline constexpr auto sqrt_in_place<f32, 3> = huxiSqrt_32f_C3IR;
template <> inline constexpr auto sqrt_in_place<f32, ac4> = huxiSqrt_32f_AC4IR;
template <> inline constexpr auto sqrt_in_place<f32, 4> = huxiSqrt_32f_C4IR;

template <class, int>
inline constexpr auto exp = nullptr;
template <> inline constexpr auto exp<u8, 1> = huxiExp_8u_C1RSfs;
template <> inline constexpr auto exp<u8, 3> = huxiExp_8u_C3RSfs;
template <> inline constexpr auto exp<s16, 1> = huxiExp_16s_C1RSfs;
template <> inline constexpr auto exp<s16, 3> = huxiExp_16s_C3RSfs;
template <> inline constexpr auto exp<f32, 1> = huxiExp_32f_C1R;
template <> inline constexpr auto exp<f32, 3> = huxiExp_32f_C3R;

template <class, int>
inline constexpr auto exp_in_place = nullptr;
template <> inline constexpr auto exp_in_place<u8, 1> = huxiExp_8u_C1IRSfs;
template <> inline constexpr auto exp_in_place<u8, 3> = huxiExp_8u_C3IRSfs;
template <> inline constexpr auto exp_in_place<s16, 1> = huxiExp_16s_C1IRSfs;
template <> inline constexpr auto exp_in_place<s16, 3> = huxiExp_16s_C3IRSfs;
template <> inline constexpr auto exp_in_place<f32, 1> = huxiExp_32f_C1IR;
template <> inline constexpr auto exp_in_place<f32, 3> = huxiExp_32f_C3IR;

template <class, int>
inline constexpr auto ln = nullptr;
template <> inline constexpr auto ln<u8, 1> = huxiLn_8u_C1RSfs;
template <> inline constexpr auto ln<u8, 3> = huxiLn_8u_C3RSfs;
template <> inline constexpr auto ln<s16, 1> = huxiLn_16s_C1RSfs;
template <> inline constexpr auto ln<s16, 3> = huxiLn_16s_C3RSfs;
template <> inline constexpr auto ln<f32, 1> = huxiLn_32f_C1R;
template <> inline constexpr auto ln<f32, 3> = huxiLn_32f_C3R;

template <class, int>
inline constexpr auto ln_in_place = nullptr;
template <> inline constexpr auto ln_in_place<u8, 1> = huxiLn_8u_C1IRSfs;
template <> inline constexpr auto ln_in_place<u8, 3> = huxiLn_8u_C3IRSfs;
template <> inline constexpr auto ln_in_place<s16, 1> = huxiLn_16s_C1IRSfs;
template <> inline constexpr auto ln_in_place<s16, 3> = huxiLn_16s_C3IRSfs;
template <> inline constexpr auto ln_in_place<f32, 1> = huxiLn_32f_C1IR;
template <> inline constexpr auto ln_in_place<f32, 3> = huxiLn_32f_C3IR;

template <class, int>
inline constexpr auto and_ = nullptr;
template <> inline constexpr auto and_<u8, 1> = huxiAnd_8u_C1R;
template <> inline constexpr auto and_<u8, 3> = huxiAnd_8u_C3R;
template <> inline constexpr auto and_<u8, 4> = huxiAnd_8u_C4R;
template <> inline constexpr auto and_<u8, ac4> = huxiAnd_8u_AC4R;
template <> inline constexpr auto and_<u16, 1> = huxiAnd_16u_C1R;
template <> inline constexpr auto and_<u16, 3> = huxiAnd_16u_C3R;
template <> inline constexpr auto and_<u16, 4> = huxiAnd_16u_C4R;
template <> inline constexpr auto and_<u16, ac4> = huxiAnd_16u_AC4R;
template <> inline constexpr auto and_<s32, 1> = huxiAnd_32s_C1R;
template <> inline constexpr auto and_<s32, 3> = huxiAnd_32s_C3R;
template <> inline constexpr auto and_<s32, 4> = huxiAnd_32s_C4R;
template <> inline constexpr auto and_<s32, ac4> = huxiAnd_32s_AC4R;

template <class, int>
inline constexpr auto and_in_place = nullptr;
template <> inline constexpr auto and_in_place<u8, 1> = huxiAnd_8u_C1IR;
template <> inline constexpr auto and_in_place<u8, 3> = huxiAnd_8u_C3IR;
template <> inline constexpr auto and_in_place<u8, 4> = huxiAnd_8u_C4IR;
template <> inline constexpr auto and_in_place<u8, ac4> = huxiAnd_8u_AC4IR;
template <> inline constexpr auto and_in_place<u16, 1> = huxiAnd_16u_C1IR;
template <> inline constexpr auto and_in_place<u16, 3> = huxiAnd_16u_C3IR;
template <> inline constexpr auto and_in_place<u16, 4> = huxiAnd_16u_C4IR;
template <> inline constexpr auto and_in_place<u16, ac4> = huxiAnd_16u_AC4IR;
template <> inline constexpr auto and_in_place<s32, 1> = huxiAnd_32s_C1IR;
template <> inline constexpr auto and_in_place<s32, 3> = huxiAnd_32s_C3IR;
template <> inline constexpr auto and_in_place<s32, 4> = huxiAnd_32s_C4IR;
template <> inline constexpr auto and_in_place<s32, ac4> = huxiAnd_32s_AC4IR;

template <class, int>
inline constexpr auto or_ = nullptr;
template <> inline constexpr auto or_<u8, 1> = huxiOr_8u_C1R;
template <> inline constexpr auto or_<u8, 3> = huxiOr_8u_C3R;
template <> inline constexpr auto or_<u8, 4> = huxiOr_8u_C4R;
template <> inline constexpr auto or_<u8, ac4> = huxiOr_8u_AC4R;
template <> inline constexpr auto or_<u16, 1> = huxiOr_16u_C1R;
template <> inline constexpr auto or_<u16, 3> = huxiOr_16u_C3R;
template <> inline constexpr auto or_<u16, 4> = huxiOr_16u_C4R;
template <> inline constexpr auto or_<u16, ac4> = huxiOr_16u_AC4R;
template <> inline constexpr auto or_<s32, 1> = huxiOr_32s_C1R;
template <> inline constexpr auto or_<s32, 3> = huxiOr_32s_C3R;
template <> inline constexpr auto or_<s32, 4> = huxiOr_32s_C4R;
template <> inline constexpr auto or_<s32, ac4> = huxiOr_32s_AC4R;

template <class, int>
inline constexpr auto or_in_place = nullptr;
template <> inline constexpr auto or_in_place<u8, 1> = huxiOr_8u_C1IR;
template <> inline constexpr auto or_in_place<u8, 3> = huxiOr_8u_C3IR;
template <> inline constexpr auto or_in_place<u8, 4> = huxiOr_8u_C4IR;
template <> inline constexpr auto or_in_place<u8, ac4> = huxiOr_8u_AC4IR;
template <> inline constexpr auto or_in_place<u16, 1> = huxiOr_16u_C1IR;
template <> inline constexpr auto or_in_place<u16, 3> = huxiOr_16u_C3IR;
template <> inline constexpr auto or_in_place<u16, 4> = huxiOr_16u_C4IR;
template <> inline constexpr auto or_in_place<u16, ac4> = huxiOr_16u_AC4IR;
template <> inline constexpr auto or_in_place<s32, 1> = huxiOr_32s_C1IR;
template <> inline constexpr auto or_in_place<s32, 3> = huxiOr_32s_C3IR;
template <> inline constexpr auto or_in_place<s32, 4> = huxiOr_32s_C4IR;
template <> inline constexpr auto or_in_place<s32, ac4> = huxiOr_32s_AC4IR;

template <class, int>
inline constexpr auto xor_ = nullptr;
template <> inline constexpr auto xor_<u8, 1> = huxiXor_8u_C1R;
template <> inline constexpr auto xor_<u8, 3> = huxiXor_8u_C3R;
template <> inline constexpr auto xor_<u8, 4> = huxiXor_8u_C4R;
template <> inline constexpr auto xor_<u8, ac4> = huxiXor_8u_AC4R;
template <> inline constexpr auto xor_<u16, 1> = huxiXor_16u_C1R;
template <> inline constexpr auto xor_<u16, 3> = huxiXor_16u_C3R;
template <> inline constexpr auto xor_<u16, 4> = huxiXor_16u_C4R;
template <> inline constexpr auto xor_<u16, ac4> = huxiXor_16u_AC4R;
template <> inline constexpr auto xor_<s32, 1> = huxiXor_32s_C1R;
template <> inline constexpr auto xor_<s32, 3> = huxiXor_32s_C3R;
template <> inline constexpr auto xor_<s32, 4> = huxiXor_32s_C4R;
template <> inline constexpr auto xor_<s32, ac4> = huxiXor_32s_AC4R;

template <class, int>
inline constexpr auto xor_in_place = nullptr;
template <> inline constexpr auto xor_in_place<u8, 1> = huxiXor_8u_C1IR;
template <> inline constexpr auto xor_in_place<u8, 3> = huxiXor_8u_C3IR;
template <> inline constexpr auto xor_in_place<u8, 4> = huxiXor_8u_C4IR;
template <> inline constexpr auto xor_in_place<u8, ac4> = huxiXor_8u_AC4IR;
template <> inline constexpr auto xor_in_place<u16, 1> = huxiXor_16u_C1IR;
template <> inline constexpr auto xor_in_place<u16, 3> = huxiXor_16u_C3IR;
template <> inline constexpr auto xor_in_place<u16, 4> = huxiXor_16u_C4IR;
template <> inline constexpr auto xor_in_place<u16, ac4> = huxiXor_16u_AC4IR;
template <> inline constexpr auto xor_in_place<s32, 1> = huxiXor_32s_C1IR;
template <> inline constexpr auto xor_in_place<s32, 3> = huxiXor_32s_C3IR;
template <> inline constexpr auto xor_in_place<s32, 4> = huxiXor_32s_C4IR;
template <> inline constexpr auto xor_in_place<s32, ac4> = huxiXor_32s_AC4IR;

template <class, int>
inline constexpr auto and_c = nullptr;
template <> inline constexpr auto and_c<u8, 1> = huxiAndC_8u_C1R;
template <> inline constexpr auto and_c<u8, 3> = huxiAndC_8u_C3R;
template <> inline constexpr auto and_c<u8, 4> = huxiAndC_8u_C4R;
template <> inline constexpr auto and_c<u8, ac4> = huxiAndC_8u_AC4R;
template <> inline constexpr auto and_c<u16, 1> = huxiAndC_16u_C1R;
template <> inline constexpr auto and_c<u16, 3> = huxiAndC_16u_C3R;
template <> inline constexpr auto and_c<u16, 4> = huxiAndC_16u_C4R;
template <> inline constexpr auto and_c<u16, ac4> = huxiAndC_16u_AC4R;
template <> inline constexpr auto and_c<s32, 1> = huxiAndC_32s_C1R;
template <> inline constexpr auto and_c<s32, 3> = huxiAndC_32s_C3R;
template <> inline constexpr auto and_c<s32, 4> = huxiAndC_32s_C4R;
template <> inline constexpr auto and_c<s32, ac4> = huxiAndC_32s_AC4R;

template <class, int>
inline constexpr auto and_c_in_place = nullptr;
template <> inline constexpr auto and_c_in_place<u8, 1> = huxiAndC_8u_C1IR;
template <> inline constexpr auto and_c_in_place<u8, 3> = huxiAndC_8u_C3IR;
template <> inline constexpr auto and_c_in_place<u8, 4> = huxiAndC_8u_C4IR;
template <> inline constexpr auto and_c_in_place<u8, ac4> = huxiAndC_8u_AC4IR;
template <> inline constexpr auto and_c_in_place<u16, 1> = huxiAndC_16u_C1IR;
template <> inline constexpr auto and_c_in_place<u16, 3> = huxiAndC_16u_C3IR;
template <> inline constexpr auto and_c_in_place<u16, 4> = huxiAndC_16u_C4IR;
template <> inline constexpr auto and_c_in_place<u16, ac4> = huxiAndC_16u_AC4IR;
template <> inline constexpr auto and_c_in_place<s32, 1> = huxiAndC_32s_C1IR;
template <> inline constexpr auto and_c_in_place<s32, 3> = huxiAndC_32s_C3IR;
template <> inline constexpr auto and_c_in_place<s32, 4> = huxiAndC_32s_C4IR;
template <> inline constexpr auto and_c_in_place<s32, ac4> = huxiAndC_32s_AC4IR;

template <class, int>
inline constexpr auto or_c = nullptr;
template <> inline constexpr auto or_c<u8, 1> = huxiOrC_8u_C1R;
template <> inline constexpr auto or_c<u8, 3> = huxiOrC_8u_C3R;
template <> inline constexpr auto or_c<u8, 4> = huxiOrC_8u_C4R;
template <> inline constexpr auto or_c<u8, ac4> = huxiOrC_8u_AC4R;
template <> inline constexpr auto or_c<u16, 1> = huxiOrC_16u_C1R;
template <> inline constexpr auto or_c<u16, 3> = huxiOrC_16u_C3R;
template <> inline constexpr auto or_c<u16, 4> = huxiOrC_16u_C4R;
template <> inline constexpr auto or_c<u16, ac4> = huxiOrC_16u_AC4R;
template <> inline constexpr auto or_c<s32, 1> = huxiOrC_32s_C1R;
template <> inline constexpr auto or_c<s32, 3> = huxiOrC_32s_C3R;
template <> inline constexpr auto or_c<s32, 4> = huxiOrC_32s_C4R;
template <> inline constexpr auto or_c<s32, ac4> = huxiOrC_32s_AC4R;

template <class, int>
inline constexpr auto or_c_in_place = nullptr;
template <> inline constexpr auto or_c_in_place<u8, 1> = huxiOrC_8u_C1IR;
template <> inline constexpr auto or_c_in_place<u8, 3> = huxiOrC_8u_C3IR;
template <> inline constexpr auto or_c_in_place<u8, 4> = huxiOrC_8u_C4IR;
template <> inline constexpr auto or_c_in_place<u8, ac4> = huxiOrC_8u_AC4IR;
template <> inline constexpr auto or_c_in_place<u16, 1> = huxiOrC_16u_C1IR;
template <> inline constexpr auto or_c_in_place<u16, 3> = huxiOrC_16u_C3IR;
template <> inline constexpr auto or_c_in_place<u16, 4> = huxiOrC_16u_C4IR;
template <> inline constexpr auto or_c_in_place<u16, ac4> = huxiOrC_16u_AC4IR;
template <> inline constexpr auto or_c_in_place<s32, 1> = huxiOrC_32s_C1IR;
template <> inline constexpr auto or_c_in_place<s32, 3> = huxiOrC_32s_C3IR;
template <> inline constexpr auto or_c_in_place<s32, 4> = huxiOrC_32s_C4IR;
template <> inline constexpr auto or_c_in_place<s32, ac4> = huxiOrC_32s_AC4IR;

template <class, int>
inline constexpr auto xor_c = nullptr;
template <> inline constexpr auto xor_c<u8, 1> = huxiXorC_8u_C1R;
template <> inline constexpr auto xor_c<u8, 3> = huxiXorC_8u_C3R;
template <> inline constexpr auto xor_c<u8, 4> = huxiXorC_8u_C4R;
template <> inline constexpr auto xor_c<u8, ac4> = huxiXorC_8u_AC4R;
template <> inline constexpr auto xor_c<u16, 1> = huxiXorC_16u_C1R;
template <> inline constexpr auto xor_c<u16, 3> = huxiXorC_16u_C3R;
template <> inline constexpr auto xor_c<u16, 4> = huxiXorC_16u_C4R;
template <> inline constexpr auto xor_c<u16, ac4> = huxiXorC_16u_AC4R;
template <> inline constexpr auto xor_c<s32, 1> = huxiXorC_32s_C1R;
template <> inline constexpr auto xor_c<s32, 3> = huxiXorC_32s_C3R;
template <> inline constexpr auto xor_c<s32, 4> = huxiXorC_32s_C4R;
template <> inline constexpr auto xor_c<s32, ac4> = huxiXorC_32s_AC4R;

template <class, int>
inline constexpr auto xor_c_in_place = nullptr;
template <> inline constexpr auto xor_c_in_place<u8, 1> = huxiXorC_8u_C1IR;
template <> inline constexpr auto xor_c_in_place<u8, 3> = huxiXorC_8u_C3IR;
template <> inline constexpr auto xor_c_in_place<u8, 4> = huxiXorC_8u_C4IR;
template <> inline constexpr auto xor_c_in_place<u8, ac4> = huxiXorC_8u_AC4IR;
template <> inline constexpr auto xor_c_in_place<u16, 1> = huxiXorC_16u_C1IR;
template <> inline constexpr auto xor_c_in_place<u16, 3> = huxiXorC_16u_C3IR;
template <> inline constexpr auto xor_c_in_place<u16, 4> = huxiXorC_16u_C4IR;
template <> inline constexpr auto xor_c_in_place<u16, ac4> = huxiXorC_16u_AC4IR;
template <> inline constexpr auto xor_c_in_place<s32, 1> = huxiXorC_32s_C1IR;
template <> inline constexpr auto xor_c_in_place<s32, 3> = huxiXorC_32s_C3IR;
template <> inline constexpr auto xor_c_in_place<s32, 4> = huxiXorC_32s_C4IR;
template <> inline constexpr auto xor_c_in_place<s32, ac4> = huxiXorC_32s_AC4IR;

template <class, int>
inline constexpr auto not_ = nullptr;
template <> inline constexpr auto not_<u8, 1> = huxiNot_8u_C1R;
template <> inline constexpr auto not_<u8, 3> = huxiNot_8u_C3R;
template <> inline constexpr auto not_<u8, 4> = huxiNot_8u_C4R;
template <> inline constexpr auto not_<u8, ac4> = huxiNot_8u_AC4R;

template <class, int>
inline constexpr auto not_in_place = nullptr;
template <> inline constexpr auto not_in_place<u8, 1> = huxiNot_8u_C1IR;
template <> inline constexpr auto not_in_place<u8, 3> = huxiNot_8u_C3IR;
template <> inline constexpr auto not_in_place<u8, 4> = huxiNot_8u_C4IR;
template <> inline constexpr auto not_in_place<u8, ac4> = huxiNot_8u_AC4IR;

template <class, int>
inline constexpr auto l_shift_c = nullptr;
template <> inline constexpr auto l_shift_c<u8, 1> = huxiLShiftC_8u_C1R;
template <> inline constexpr auto l_shift_c<u8, 3> = huxiLShiftC_8u_C3R;
template <> inline constexpr auto l_shift_c<u8, 4> = huxiLShiftC_8u_C4R;
template <> inline constexpr auto l_shift_c<u8, ac4> = huxiLShiftC_8u_AC4R;
template <> inline constexpr auto l_shift_c<u16, 1> = huxiLShiftC_16u_C1R;
template <> inline constexpr auto l_shift_c<u16, 3> = huxiLShiftC_16u_C3R;
template <> inline constexpr auto l_shift_c<u16, 4> = huxiLShiftC_16u_C4R;
template <> inline constexpr auto l_shift_c<u16, ac4> = huxiLShiftC_16u_AC4R;
template <> inline constexpr auto l_shift_c<s32, 1> = huxiLShiftC_32s_C1R;
template <> inline constexpr auto l_shift_c<s32, 3> = huxiLShiftC_32s_C3R;
template <> inline constexpr auto l_shift_c<s32, 4> = huxiLShiftC_32s_C4R;
template <> inline constexpr auto l_shift_c<s32, ac4> = huxiLShiftC_32s_AC4R;

template <class, int>
inline constexpr auto l_shift_c_in_place = nullptr;
template <> inline constexpr auto l_shift_c_in_place<u8, 1> = huxiLShiftC_8u_C1IR;
template <> inline constexpr auto l_shift_c_in_place<u8, 3> = huxiLShiftC_8u_C3IR;
template <> inline constexpr auto l_shift_c_in_place<u8, 4> = huxiLShiftC_8u_C4IR;
template <> inline constexpr auto l_shift_c_in_place<u8, ac4> = huxiLShiftC_8u_AC4IR;
template <> inline constexpr auto l_shift_c_in_place<u16, 1> = huxiLShiftC_16u_C1IR;
template <> inline constexpr auto l_shift_c_in_place<u16, 3> = huxiLShiftC_16u_C3IR;
template <> inline constexpr auto l_shift_c_in_place<u16, 4> = huxiLShiftC_16u_C4IR;
template <> inline constexpr auto l_shift_c_in_place<u16, ac4> = huxiLShiftC_16u_AC4IR;
template <> inline constexpr auto l_shift_c_in_place<s32, 1> = huxiLShiftC_32s_C1IR;
template <> inline constexpr auto l_shift_c_in_place<s32, 3> = huxiLShiftC_32s_C3IR;
template <> inline constexpr auto l_shift_c_in_place<s32, 4> = huxiLShiftC_32s_C4IR;
template <> inline constexpr auto l_shift_c_in_place<s32, ac4> = huxiLShiftC_32s_AC4IR;

template <class, int>
inline constexpr auto r_shift_c = nullptr;
template <> inline constexpr auto r_shift_c<u8, 1> = huxiRShiftC_8u_C1R;
template <> inline constexpr auto r_shift_c<u8, 3> = huxiRShiftC_8u_C3R;
template <> inline constexpr auto r_shift_c<u8, 4> = huxiRShiftC_8u_C4R;
template <> inline constexpr auto r_shift_c<u8, ac4> = huxiRShiftC_8u_AC4R;
template <> inline constexpr auto r_shift_c<s8, 1> = huxiRShiftC_8s_C1R;
template <> inline constexpr auto r_shift_c<s8, 3> = huxiRShiftC_8s_C3R;
template <> inline constexpr auto r_shift_c<s8, 4> = huxiRShiftC_8s_C4R;
template <> inline constexpr auto r_shift_c<s8, ac4> = huxiRShiftC_8s_AC4R;
template <> inline constexpr auto r_shift_c<u16, 1> = huxiRShiftC_16u_C1R;
template <> inline constexpr auto r_shift_c<u16, 3> = huxiRShiftC_16u_C3R;
template <> inline constexpr auto r_shift_c<u16, 4> = huxiRShiftC_16u_C4R;
template <> inline constexpr auto r_shift_c<u16, ac4> = huxiRShiftC_16u_AC4R;
template <> inline constexpr auto r_shift_c<s16, 1> = huxiRShiftC_16s_C1R;
template <> inline constexpr auto r_shift_c<s16, 3> = huxiRShiftC_16s_C3R;
template <> inline constexpr auto r_shift_c<s16, 4> = huxiRShiftC_16s_C4R;
template <> inline constexpr auto r_shift_c<s16, ac4> = huxiRShiftC_16s_AC4R;
template <> inline constexpr auto r_shift_c<s32, 1> = huxiRShiftC_32s_C1R;
template <> inline constexpr auto r_shift_c<s32, 3> = huxiRShiftC_32s_C3R;
template <> inline constexpr auto r_shift_c<s32, 4> = huxiRShiftC_32s_C4R;
template <> inline constexpr auto r_shift_c<s32, ac4> = huxiRShiftC_32s_AC4R;

template <class, int>
inline constexpr auto r_shift_c_in_place = nullptr;
template <> inline constexpr auto r_shift_c_in_place<u8, 1> = huxiRShiftC_8u_C1IR;
template <> inline constexpr auto r_shift_c_in_place<u8, 3> = huxiRShiftC_8u_C3IR;
template <> inline constexpr auto r_shift_c_in_place<u8, 4> = huxiRShiftC_8u_C4IR;
template <> inline constexpr auto r_shift_c_in_place<u8, ac4> = huxiRShiftC_8u_AC4IR;
template <> inline constexpr auto r_shift_c_in_place<s8, 1> = huxiRShiftC_8s_C1IR;
template <> inline constexpr auto r_shift_c_in_place<s8, 3> = huxiRShiftC_8s_C3IR;
template <> inline constexpr auto r_shift_c_in_place<s8, 4> = huxiRShiftC_8s_C4IR;
template <> inline constexpr auto r_shift_c_in_place<s8, ac4> = huxiRShiftC_8s_AC4IR;
template <> inline constexpr auto r_shift_c_in_place<u16, 1> = huxiRShiftC_16u_C1IR;
template <> inline constexpr auto r_shift_c_in_place<u16, 3> = huxiRShiftC_16u_C3IR;
template <> inline constexpr auto r_shift_c_in_place<u16, 4> = huxiRShiftC_16u_C4IR;
template <> inline constexpr auto r_shift_c_in_place<u16, ac4> = huxiRShiftC_16u_AC4IR;
template <> inline constexpr auto r_shift_c_in_place<s16, 1> = huxiRShiftC_16s_C1IR;
template <> inline constexpr auto r_shift_c_in_place<s16, 3> = huxiRShiftC_16s_C3IR;
template <> inline constexpr auto r_shift_c_in_place<s16, 4> = huxiRShiftC_16s_C4IR;
template <> inline constexpr auto r_shift_c_in_place<s16, ac4> = huxiRShiftC_16s_AC4IR;
template <> inline constexpr auto r_shift_c_in_place<s32, 1> = huxiRShiftC_32s_C1IR;
template <> inline constexpr auto r_shift_c_in_place<s32, 3> = huxiRShiftC_32s_C3IR;
template <> inline constexpr auto r_shift_c_in_place<s32, 4> = huxiRShiftC_32s_C4IR;
template <> inline constexpr auto r_shift_c_in_place<s32, ac4> = huxiRShiftC_32s_AC4IR;

template <class, int>
inline constexpr auto mul_scale = nullptr;
template <> inline constexpr auto mul_scale<u8, 1> = huxiMulScale_8u_C1R;
template <> inline constexpr auto mul_scale<u8, 3> = huxiMulScale_8u_C3R;
template <> inline constexpr auto mul_scale<u8, 4> = huxiMulScale_8u_C4R;
template <> inline constexpr auto mul_scale<u8, ac4> = huxiMulScale_8u_AC4R;
template <> inline constexpr auto mul_scale<u16, 1> = huxiMulScale_16u_C1R;
template <> inline constexpr auto mul_scale<u16, 3> = huxiMulScale_16u_C3R;
template <> inline constexpr auto mul_scale<u16, 4> = huxiMulScale_16u_C4R;
template <> inline constexpr auto mul_scale<u16, ac4> = huxiMulScale_16u_AC4R;

template <class, int>
inline constexpr auto mul_scale_in_place = nullptr;
template <> inline constexpr auto mul_scale_in_place<u8, 1> = huxiMulScale_8u_C1IR;
template <> inline constexpr auto mul_scale_in_place<u8, 3> = huxiMulScale_8u_C3IR;
template <> inline constexpr auto mul_scale_in_place<u8, 4> = huxiMulScale_8u_C4IR;
template <> inline constexpr auto mul_scale_in_place<u8, ac4> = huxiMulScale_8u_AC4IR;
template <> inline constexpr auto mul_scale_in_place<u16, 1> = huxiMulScale_16u_C1IR;
template <> inline constexpr auto mul_scale_in_place<u16, 3> = huxiMulScale_16u_C3IR;
template <> inline constexpr auto mul_scale_in_place<u16, 4> = huxiMulScale_16u_C4IR;
template <> inline constexpr auto mul_scale_in_place<u16, ac4> = huxiMulScale_16u_AC4IR;

template <class, int>
inline constexpr auto mul_c_scale = nullptr;
template <> inline constexpr auto mul_c_scale<u8, 1> = huxiMulCScale_8u_C1R;
template <> inline constexpr auto mul_c_scale<u8, 3> = huxiMulCScale_8u_C3R;
template <> inline constexpr auto mul_c_scale<u8, 4> = huxiMulCScale_8u_C4R;
template <> inline constexpr auto mul_c_scale<u8, ac4> = huxiMulCScale_8u_AC4R;
template <> inline constexpr auto mul_c_scale<u16, 1> = huxiMulCScale_16u_C1R;
template <> inline constexpr auto mul_c_scale<u16, 3> = huxiMulCScale_16u_C3R;
template <> inline constexpr auto mul_c_scale<u16, 4> = huxiMulCScale_16u_C4R;
template <> inline constexpr auto mul_c_scale<u16, ac4> = huxiMulCScale_16u_AC4R;

template <class, int>
inline constexpr auto mul_c_scale_in_place = nullptr;
template <> inline constexpr auto mul_c_scale_in_place<u8, 1> = huxiMulCScale_8u_C1IR;
template <> inline constexpr auto mul_c_scale_in_place<u8, 3> = huxiMulCScale_8u_C3IR;
template <> inline constexpr auto mul_c_scale_in_place<u8, 4> = huxiMulCScale_8u_C4IR;
template <> inline constexpr auto mul_c_scale_in_place<u8, ac4> = huxiMulCScale_8u_AC4IR;
template <> inline constexpr auto mul_c_scale_in_place<u16, 1> = huxiMulCScale_16u_C1IR;
template <> inline constexpr auto mul_c_scale_in_place<u16, 3> = huxiMulCScale_16u_C3IR;
template <> inline constexpr auto mul_c_scale_in_place<u16, 4> = huxiMulCScale_16u_C4IR;
template <> inline constexpr auto mul_c_scale_in_place<u16, ac4> = huxiMulCScale_16u_AC4IR;

template <class, int>
inline constexpr auto complement_in_place = nullptr;
template <> inline constexpr auto complement_in_place<s32, 1> = huxiComplement_32s_C1IR;

template <class, int>
inline constexpr auto alpha_comp = nullptr;
template <> inline constexpr auto alpha_comp<u8, ac4> = huxiAlphaComp_8u_AC4R;
template <> inline constexpr auto alpha_comp<u8, ac1> = huxiAlphaComp_8u_AC1R;
template <> inline constexpr auto alpha_comp<u16, ac4> = huxiAlphaComp_16u_AC4R;
template <> inline constexpr auto alpha_comp<u16, ac1> = huxiAlphaComp_16u_AC1R;

template <class, int>
inline constexpr auto alpha_comp_planes = nullptr;
template <> inline constexpr auto alpha_comp_planes<u8, 204> = huxiAlphaComp_8u_AP4R;
template <> inline constexpr auto alpha_comp_planes<u16, 204> = huxiAlphaComp_16u_AP4R;

template <class, int>
inline constexpr auto alpha_comp_c = nullptr;
template <> inline constexpr auto alpha_comp_c<u8, 1> = huxiAlphaCompC_8u_C1R;
template <> inline constexpr auto alpha_comp_c<u8, 3> = huxiAlphaCompC_8u_C3R;
template <> inline constexpr auto alpha_comp_c<u8, 4> = huxiAlphaCompC_8u_C4R;
template <> inline constexpr auto alpha_comp_c<u8, ac4> = huxiAlphaCompC_8u_AC4R;
template <> inline constexpr auto alpha_comp_c<u16, 1> = huxiAlphaCompC_16u_C1R;
template <> inline constexpr auto alpha_comp_c<u16, 3> = huxiAlphaCompC_16u_C3R;
template <> inline constexpr auto alpha_comp_c<u16, 4> = huxiAlphaCompC_16u_C4R;
template <> inline constexpr auto alpha_comp_c<u16, ac4> = huxiAlphaCompC_16u_AC4R;

template <class, int>
inline constexpr auto alpha_comp_c_planes = nullptr;
template <> inline constexpr auto alpha_comp_c_planes<u8, 204> = huxiAlphaCompC_8u_AP4R;
template <> inline constexpr auto alpha_comp_c_planes<u16, 204> = huxiAlphaCompC_16u_AP4R;

template <class, int>
inline constexpr auto alpha_premul = nullptr;
template <> inline constexpr auto alpha_premul<u8, ac4> = huxiAlphaPremul_8u_AC4R;
template <> inline constexpr auto alpha_premul<u16, ac4> = huxiAlphaPremul_16u_AC4R;

template <class, int>
inline constexpr auto alpha_premul_in_place = nullptr;
template <> inline constexpr auto alpha_premul_in_place<u8, ac4> = huxiAlphaPremul_8u_AC4IR;
template <> inline constexpr auto alpha_premul_in_place<u16, ac4> = huxiAlphaPremul_16u_AC4IR;

template <class, int>
inline constexpr auto alpha_premul_planes = nullptr;
template <> inline constexpr auto alpha_premul_planes<u8, 204> = huxiAlphaPremul_8u_AP4R;
template <> inline constexpr auto alpha_premul_planes<u16, 204> = huxiAlphaPremul_16u_AP4R;

template <class, int>
inline constexpr auto alpha_premul_planes_in_place = nullptr;
template <> inline constexpr auto alpha_premul_planes_in_place<u8, 204> = huxiAlphaPremul_8u_AP4IR;
template <> inline constexpr auto alpha_premul_planes_in_place<u16, 204> = huxiAlphaPremul_16u_AP4IR;

template <class, int>
inline constexpr auto alpha_premul_c = nullptr;
template <> inline constexpr auto alpha_premul_c<u8, 1> = huxiAlphaPremulC_8u_C1R;
template <> inline constexpr auto alpha_premul_c<u8, 3> = huxiAlphaPremulC_8u_C3R;
template <> inline constexpr auto alpha_premul_c<u8, 4> = huxiAlphaPremulC_8u_C4R;
template <> inline constexpr auto alpha_premul_c<u8, ac4> = huxiAlphaPremulC_8u_AC4R;
template <> inline constexpr auto alpha_premul_c<u16, 1> = huxiAlphaPremulC_16u_C1R;
template <> inline constexpr auto alpha_premul_c<u16, 3> = huxiAlphaPremulC_16u_C3R;
template <> inline constexpr auto alpha_premul_c<u16, 4> = huxiAlphaPremulC_16u_C4R;
template <> inline constexpr auto alpha_premul_c<u16, ac4> = huxiAlphaPremulC_16u_AC4R;

template <class, int>
inline constexpr auto alpha_premul_c_in_place = nullptr;
template <> inline constexpr auto alpha_premul_c_in_place<u8, 1> = huxiAlphaPremulC_8u_C1IR;
template <> inline constexpr auto alpha_premul_c_in_place<u8, 3> = huxiAlphaPremulC_8u_C3IR;
template <> inline constexpr auto alpha_premul_c_in_place<u8, 4> = huxiAlphaPremulC_8u_C4IR;
template <> inline constexpr auto alpha_premul_c_in_place<u8, ac4> = huxiAlphaPremulC_8u_AC4IR;
template <> inline constexpr auto alpha_premul_c_in_place<u16, 1> = huxiAlphaPremulC_16u_C1IR;
template <> inline constexpr auto alpha_premul_c_in_place<u16, 3> = huxiAlphaPremulC_16u_C3IR;
template <> inline constexpr auto alpha_premul_c_in_place<u16, 4> = huxiAlphaPremulC_16u_C4IR;
template <> inline constexpr auto alpha_premul_c_in_place<u16, ac4> = huxiAlphaPremulC_16u_AC4IR;

template <class, int>
inline constexpr auto alpha_premul_c_planes = nullptr;
template <> inline constexpr auto alpha_premul_c_planes<u8, 204> = huxiAlphaPremulC_8u_AP4R;
template <> inline constexpr auto alpha_premul_c_planes<u16, 204> = huxiAlphaPremulC_16u_AP4R;

template <class, int>
inline constexpr auto alpha_premul_c_planes_in_place = nullptr;
template <> inline constexpr auto alpha_premul_c_planes_in_place<u8, 204> = huxiAlphaPremulC_8u_AP4IR;
template <> inline constexpr auto alpha_premul_c_planes_in_place<u16, 204> = huxiAlphaPremulC_16u_AP4IR;

template <class, int>
inline constexpr auto threshold = nullptr;
template <> inline constexpr auto threshold<u8, 1> = huxiThreshold_8u_C1R;
template <> inline constexpr auto threshold<u8, 3> = huxiThreshold_8u_C3R;
template <> inline constexpr auto threshold<u8, ac4> = huxiThreshold_8u_AC4R;
template <> inline constexpr auto threshold<s16, 1> = huxiThreshold_16s_C1R;
template <> inline constexpr auto threshold<s16, 3> = huxiThreshold_16s_C3R;
template <> inline constexpr auto threshold<s16, ac4> = huxiThreshold_16s_AC4R;
template <> inline constexpr auto threshold<f32, 1> = huxiThreshold_32f_C1R;
template <> inline constexpr auto threshold<f32, 3> = huxiThreshold_32f_C3R;
template <> inline constexpr auto threshold<f32, ac4> = huxiThreshold_32f_AC4R;

template <class, int>
inline constexpr auto threshold_in_place = nullptr;
template <> inline constexpr auto threshold_in_place<u8, 1> = huxiThreshold_8u_C1IR;
template <> inline constexpr auto threshold_in_place<u8, 3> = huxiThreshold_8u_C3IR;
template <> inline constexpr auto threshold_in_place<u8, ac4> = huxiThreshold_8u_AC4IR;
template <> inline constexpr auto threshold_in_place<s16, 1> = huxiThreshold_16s_C1IR;
template <> inline constexpr auto threshold_in_place<s16, 3> = huxiThreshold_16s_C3IR;
template <> inline constexpr auto threshold_in_place<s16, ac4> = huxiThreshold_16s_AC4IR;
template <> inline constexpr auto threshold_in_place<f32, 1> = huxiThreshold_32f_C1IR;
template <> inline constexpr auto threshold_in_place<f32, 3> = huxiThreshold_32f_C3IR;
template <> inline constexpr auto threshold_in_place<f32, ac4> = huxiThreshold_32f_AC4IR;

template <class, int>
inline constexpr auto threshold_gt = nullptr;
template <> inline constexpr auto threshold_gt<u8, 1> = huxiThreshold_GT_8u_C1R;
template <> inline constexpr auto threshold_gt<u8, 3> = huxiThreshold_GT_8u_C3R;
template <> inline constexpr auto threshold_gt<u8, ac4> = huxiThreshold_GT_8u_AC4R;
template <> inline constexpr auto threshold_gt<s16, 1> = huxiThreshold_GT_16s_C1R;
template <> inline constexpr auto threshold_gt<s16, 3> = huxiThreshold_GT_16s_C3R;
template <> inline constexpr auto threshold_gt<s16, ac4> = huxiThreshold_GT_16s_AC4R;
template <> inline constexpr auto threshold_gt<f32, 1> = huxiThreshold_GT_32f_C1R;
template <> inline constexpr auto threshold_gt<f32, 3> = huxiThreshold_GT_32f_C3R;
template <> inline constexpr auto threshold_gt<f32, ac4> = huxiThreshold_GT_32f_AC4R;

template <class, int>
inline constexpr auto threshold_gt_in_place = nullptr;
template <> inline constexpr auto threshold_gt_in_place<u8, 1> = huxiThreshold_GT_8u_C1IR;
template <> inline constexpr auto threshold_gt_in_place<u8, 3> = huxiThreshold_GT_8u_C3IR;
template <> inline constexpr auto threshold_gt_in_place<u8, ac4> = huxiThreshold_GT_8u_AC4IR;
template <> inline constexpr auto threshold_gt_in_place<s16, 1> = huxiThreshold_GT_16s_C1IR;
template <> inline constexpr auto threshold_gt_in_place<s16, 3> = huxiThreshold_GT_16s_C3IR;
template <> inline constexpr auto threshold_gt_in_place<s16, ac4> = huxiThreshold_GT_16s_AC4IR;
template <> inline constexpr auto threshold_gt_in_place<f32, 1> = huxiThreshold_GT_32f_C1IR;
template <> inline constexpr auto threshold_gt_in_place<f32, 3> = huxiThreshold_GT_32f_C3IR;
template <> inline constexpr auto threshold_gt_in_place<f32, ac4> = huxiThreshold_GT_32f_AC4IR;

template <class, int>
inline constexpr auto threshold_lt = nullptr;
template <> inline constexpr auto threshold_lt<u8, 1> = huxiThreshold_LT_8u_C1R;
template <> inline constexpr auto threshold_lt<u8, 3> = huxiThreshold_LT_8u_C3R;
template <> inline constexpr auto threshold_lt<u8, ac4> = huxiThreshold_LT_8u_AC4R;
template <> inline constexpr auto threshold_lt<s16, 1> = huxiThreshold_LT_16s_C1R;
template <> inline constexpr auto threshold_lt<s16, 3> = huxiThreshold_LT_16s_C3R;
template <> inline constexpr auto threshold_lt<s16, ac4> = huxiThreshold_LT_16s_AC4R;
template <> inline constexpr auto threshold_lt<f32, 1> = huxiThreshold_LT_32f_C1R;
template <> inline constexpr auto threshold_lt<f32, 3> = huxiThreshold_LT_32f_C3R;
template <> inline constexpr auto threshold_lt<f32, ac4> = huxiThreshold_LT_32f_AC4R;

template <class, int>
inline constexpr auto threshold_lt_in_place = nullptr;
template <> inline constexpr auto threshold_lt_in_place<u8, 1> = huxiThreshold_LT_8u_C1IR;
template <> inline constexpr auto threshold_lt_in_place<u8, 3> = huxiThreshold_LT_8u_C3IR;
template <> inline constexpr auto threshold_lt_in_place<u8, ac4> = huxiThreshold_LT_8u_AC4IR;
template <> inline constexpr auto threshold_lt_in_place<s16, 1> = huxiThreshold_LT_16s_C1IR;
template <> inline constexpr auto threshold_lt_in_place<s16, 3> = huxiThreshold_LT_16s_C3IR;
template <> inline constexpr auto threshold_lt_in_place<s16, ac4> = huxiThreshold_LT_16s_AC4IR;
template <> inline constexpr auto threshold_lt_in_place<f32, 1> = huxiThreshold_LT_32f_C1IR;
template <> inline constexpr auto threshold_lt_in_place<f32, 3> = huxiThreshold_LT_32f_C3IR;
template <> inline constexpr auto threshold_lt_in_place<f32, ac4> = huxiThreshold_LT_32f_AC4IR;

template <class, int>
inline constexpr auto threshold_val = nullptr;
template <> inline constexpr auto threshold_val<u8, 1> = huxiThreshold_Val_8u_C1R;
template <> inline constexpr auto threshold_val<u8, 3> = huxiThreshold_Val_8u_C3R;
template <> inline constexpr auto threshold_val<u8, ac4> = huxiThreshold_Val_8u_AC4R;
template <> inline constexpr auto threshold_val<s16, 1> = huxiThreshold_Val_16s_C1R;
template <> inline constexpr auto threshold_val<s16, 3> = huxiThreshold_Val_16s_C3R;
template <> inline constexpr auto threshold_val<s16, ac4> = huxiThreshold_Val_16s_AC4R;
template <> inline constexpr auto threshold_val<f32, 1> = huxiThreshold_Val_32f_C1R;
template <> inline constexpr auto threshold_val<f32, 3> = huxiThreshold_Val_32f_C3R;
template <> inline constexpr auto threshold_val<f32, ac4> = huxiThreshold_Val_32f_AC4R;

template <class, int>
inline constexpr auto threshold_val_in_place = nullptr;
template <> inline constexpr auto threshold_val_in_place<u8, 1> = huxiThreshold_Val_8u_C1IR;
template <> inline constexpr auto threshold_val_in_place<u8, 3> = huxiThreshold_Val_8u_C3IR;
template <> inline constexpr auto threshold_val_in_place<u8, ac4> = huxiThreshold_Val_8u_AC4IR;
template <> inline constexpr auto threshold_val_in_place<s16, 1> = huxiThreshold_Val_16s_C1IR;
template <> inline constexpr auto threshold_val_in_place<s16, 3> = huxiThreshold_Val_16s_C3IR;
template <> inline constexpr auto threshold_val_in_place<s16, ac4> = huxiThreshold_Val_16s_AC4IR;
template <> inline constexpr auto threshold_val_in_place<f32, 1> = huxiThreshold_Val_32f_C1IR;
template <> inline constexpr auto threshold_val_in_place<f32, 3> = huxiThreshold_Val_32f_C3IR;
template <> inline constexpr auto threshold_val_in_place<f32, ac4> = huxiThreshold_Val_32f_AC4IR;

template <class, int>
inline constexpr auto threshold_gt_val = nullptr;
template <> inline constexpr auto threshold_gt_val<u8, 1> = huxiThreshold_GTVal_8u_C1R;
template <> inline constexpr auto threshold_gt_val<u8, 3> = huxiThreshold_GTVal_8u_C3R;
template <> inline constexpr auto threshold_gt_val<u8, 4> = huxiThreshold_GTVal_8u_C4R;
template <> inline constexpr auto threshold_gt_val<u8, ac4> = huxiThreshold_GTVal_8u_AC4R;
template <> inline constexpr auto threshold_gt_val<s16, 1> = huxiThreshold_GTVal_16s_C1R;
template <> inline constexpr auto threshold_gt_val<s16, 3> = huxiThreshold_GTVal_16s_C3R;
template <> inline constexpr auto threshold_gt_val<s16, 4> = huxiThreshold_GTVal_16s_C4R;
template <> inline constexpr auto threshold_gt_val<s16, ac4> = huxiThreshold_GTVal_16s_AC4R;
template <> inline constexpr auto threshold_gt_val<f32, 1> = huxiThreshold_GTVal_32f_C1R;
template <> inline constexpr auto threshold_gt_val<f32, 3> = huxiThreshold_GTVal_32f_C3R;
template <> inline constexpr auto threshold_gt_val<f32, 4> = huxiThreshold_GTVal_32f_C4R;
template <> inline constexpr auto threshold_gt_val<f32, ac4> = huxiThreshold_GTVal_32f_AC4R;

template <class, int>
inline constexpr auto threshold_gt_val_in_place = nullptr;
template <> inline constexpr auto threshold_gt_val_in_place<u8, 1> = huxiThreshold_GTVal_8u_C1IR;
template <> inline constexpr auto threshold_gt_val_in_place<u8, 3> = huxiThreshold_GTVal_8u_C3IR;
template <> inline constexpr auto threshold_gt_val_in_place<u8, 4> = huxiThreshold_GTVal_8u_C4IR;
template <> inline constexpr auto threshold_gt_val_in_place<u8, ac4> = huxiThreshold_GTVal_8u_AC4IR;
template <> inline constexpr auto threshold_gt_val_in_place<s16, 1> = huxiThreshold_GTVal_16s_C1IR;
template <> inline constexpr auto threshold_gt_val_in_place<s16, 3> = huxiThreshold_GTVal_16s_C3IR;
template <> inline constexpr auto threshold_gt_val_in_place<s16, 4> = huxiThreshold_GTVal_16s_C4IR;
template <> inline constexpr auto threshold_gt_val_in_place<s16, ac4> = huxiThreshold_GTVal_16s_AC4IR;
template <> inline constexpr auto threshold_gt_val_in_place<f32, 1> = huxiThreshold_GTVal_32f_C1IR;
template <> inline constexpr auto threshold_gt_val_in_place<f32, 3> = huxiThreshold_GTVal_32f_C3IR;
template <> inline constexpr auto threshold_gt_val_in_place<f32, 4> = huxiThreshold_GTVal_32f_C4IR;
template <> inline constexpr auto threshold_gt_val_in_place<f32, ac4> = huxiThreshold_GTVal_32f_AC4IR;

template <class, int>
inline constexpr auto threshold_lt_val = nullptr;
template <> inline constexpr auto threshold_lt_val<u8, 1> = huxiThreshold_LTVal_8u_C1R;
template <> inline constexpr auto threshold_lt_val<u8, 3> = huxiThreshold_LTVal_8u_C3R;
template <> inline constexpr auto threshold_lt_val<u8, 4> = huxiThreshold_LTVal_8u_C4R;
template <> inline constexpr auto threshold_lt_val<u8, ac4> = huxiThreshold_LTVal_8u_AC4R;
template <> inline constexpr auto threshold_lt_val<s16, 1> = huxiThreshold_LTVal_16s_C1R;
template <> inline constexpr auto threshold_lt_val<s16, 3> = huxiThreshold_LTVal_16s_C3R;
template <> inline constexpr auto threshold_lt_val<s16, 4> = huxiThreshold_LTVal_16s_C4R;
template <> inline constexpr auto threshold_lt_val<s16, ac4> = huxiThreshold_LTVal_16s_AC4R;
template <> inline constexpr auto threshold_lt_val<f32, 1> = huxiThreshold_LTVal_32f_C1R;
template <> inline constexpr auto threshold_lt_val<f32, 3> = huxiThreshold_LTVal_32f_C3R;
template <> inline constexpr auto threshold_lt_val<f32, 4> = huxiThreshold_LTVal_32f_C4R;
template <> inline constexpr auto threshold_lt_val<f32, ac4> = huxiThreshold_LTVal_32f_AC4R;

template <class, int>
inline constexpr auto threshold_lt_val_in_place = nullptr;
template <> inline constexpr auto threshold_lt_val_in_place<u8, 1> = huxiThreshold_LTVal_8u_C1IR;
template <> inline constexpr auto threshold_lt_val_in_place<u8, 3> = huxiThreshold_LTVal_8u_C3IR;
template <> inline constexpr auto threshold_lt_val_in_place<u8, 4> = huxiThreshold_LTVal_8u_C4IR;
template <> inline constexpr auto threshold_lt_val_in_place<u8, ac4> = huxiThreshold_LTVal_8u_AC4IR;
template <> inline constexpr auto threshold_lt_val_in_place<s16, 1> = huxiThreshold_LTVal_16s_C1IR;
template <> inline constexpr auto threshold_lt_val_in_place<s16, 3> = huxiThreshold_LTVal_16s_C3IR;
template <> inline constexpr auto threshold_lt_val_in_place<s16, 4> = huxiThreshold_LTVal_16s_C4IR;
template <> inline constexpr auto threshold_lt_val_in_place<s16, ac4> = huxiThreshold_LTVal_16s_AC4IR;
template <> inline constexpr auto threshold_lt_val_in_place<f32, 1> = huxiThreshold_LTVal_32f_C1IR;
template <> inline constexpr auto threshold_lt_val_in_place<f32, 3> = huxiThreshold_LTVal_32f_C3IR;
template <> inline constexpr auto threshold_lt_val_in_place<f32, 4> = huxiThreshold_LTVal_32f_C4IR;
template <> inline constexpr auto threshold_lt_val_in_place<f32, ac4> = huxiThreshold_LTVal_32f_AC4IR;

template <class, int>
inline constexpr auto threshold_lt_val_gt_val = nullptr;
template <> inline constexpr auto threshold_lt_val_gt_val<u8, 1> = huxiThreshold_LTValGTVal_8u_C1R;
template <> inline constexpr auto threshold_lt_val_gt_val<u8, 3> = huxiThreshold_LTValGTVal_8u_C3R;
template <> inline constexpr auto threshold_lt_val_gt_val<u8, ac4> = huxiThreshold_LTValGTVal_8u_AC4R;
template <> inline constexpr auto threshold_lt_val_gt_val<s16, 1> = huxiThreshold_LTValGTVal_16s_C1R;
template <> inline constexpr auto threshold_lt_val_gt_val<s16, 3> = huxiThreshold_LTValGTVal_16s_C3R;
template <> inline constexpr auto threshold_lt_val_gt_val<s16, ac4> = huxiThreshold_LTValGTVal_16s_AC4R;
template <> inline constexpr auto threshold_lt_val_gt_val<f32, 1> = huxiThreshold_LTValGTVal_32f_C1R;
template <> inline constexpr auto threshold_lt_val_gt_val<f32, 3> = huxiThreshold_LTValGTVal_32f_C3R;
template <> inline constexpr auto threshold_lt_val_gt_val<f32, ac4> = huxiThreshold_LTValGTVal_32f_AC4R;

template <class, int>
inline constexpr auto threshold_lt_val_gt_val_in_place = nullptr;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<u8, 1> = huxiThreshold_LTValGTVal_8u_C1IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<u8, 3> = huxiThreshold_LTValGTVal_8u_C3IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<u8, ac4> = huxiThreshold_LTValGTVal_8u_AC4IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<s16, 1> = huxiThreshold_LTValGTVal_16s_C1IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<s16, 3> = huxiThreshold_LTValGTVal_16s_C3IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<s16, ac4> = huxiThreshold_LTValGTVal_16s_AC4IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<f32, 1> = huxiThreshold_LTValGTVal_32f_C1IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<f32, 3> = huxiThreshold_LTValGTVal_32f_C3IR;
template <> inline constexpr auto threshold_lt_val_gt_val_in_place<f32, ac4> = huxiThreshold_LTValGTVal_32f_AC4IR;

template <class, int>
inline constexpr auto compare = nullptr;
template <> inline constexpr auto compare<u8, 1> = huxiCompare_8u_C1R;
template <> inline constexpr auto compare<u8, 3> = huxiCompare_8u_C3R;
template <> inline constexpr auto compare<u8, 4> = huxiCompare_8u_C4R;
template <> inline constexpr auto compare<u8, ac4> = huxiCompare_8u_AC4R;
template <> inline constexpr auto compare<s16, 1> = huxiCompare_16s_C1R;
template <> inline constexpr auto compare<s16, 3> = huxiCompare_16s_C3R;
template <> inline constexpr auto compare<s16, 4> = huxiCompare_16s_C4R;
template <> inline constexpr auto compare<s16, ac4> = huxiCompare_16s_AC4R;
template <> inline constexpr auto compare<f32, 1> = huxiCompare_32f_C1R;
template <> inline constexpr auto compare<f32, 3> = huxiCompare_32f_C3R;
template <> inline constexpr auto compare<f32, 4> = huxiCompare_32f_C4R;
template <> inline constexpr auto compare<f32, ac4> = huxiCompare_32f_AC4R;

template <class, int>
inline constexpr auto compare_c = nullptr;
template <> inline constexpr auto compare_c<u8, 1> = huxiCompareC_8u_C1R;
template <> inline constexpr auto compare_c<u8, 3> = huxiCompareC_8u_C3R;
template <> inline constexpr auto compare_c<u8, 4> = huxiCompareC_8u_C4R;
template <> inline constexpr auto compare_c<u8, ac4> = huxiCompareC_8u_AC4R;
template <> inline constexpr auto compare_c<s16, 1> = huxiCompareC_16s_C1R;
template <> inline constexpr auto compare_c<s16, 3> = huxiCompareC_16s_C3R;
template <> inline constexpr auto compare_c<s16, 4> = huxiCompareC_16s_C4R;
template <> inline constexpr auto compare_c<s16, ac4> = huxiCompareC_16s_AC4R;
template <> inline constexpr auto compare_c<f32, 1> = huxiCompareC_32f_C1R;
template <> inline constexpr auto compare_c<f32, 3> = huxiCompareC_32f_C3R;
template <> inline constexpr auto compare_c<f32, 4> = huxiCompareC_32f_C4R;
template <> inline constexpr auto compare_c<f32, ac4> = huxiCompareC_32f_AC4R;

template <class, int>
inline constexpr auto compare_equal_eps = nullptr;
template <> inline constexpr auto compare_equal_eps<u8, 1> = huxiCompareEqualEps_32f_C1R;
template <> inline constexpr auto compare_equal_eps<u8, 3> = huxiCompareEqualEps_32f_C3R;
template <> inline constexpr auto compare_equal_eps<u8, 4> = huxiCompareEqualEps_32f_C4R;
template <> inline constexpr auto compare_equal_eps<u8, ac4> = huxiCompareEqualEps_32f_AC4R;

template <class, int>
inline constexpr auto compare_equal_eps_c = nullptr;
template <> inline constexpr auto compare_equal_eps_c<u8, 1> = huxiCompareEqualEpsC_32f_C1R;
template <> inline constexpr auto compare_equal_eps_c<u8, 3> = huxiCompareEqualEpsC_32f_C3R;
template <> inline constexpr auto compare_equal_eps_c<u8, 4> = huxiCompareEqualEpsC_32f_C4R;
template <> inline constexpr auto compare_equal_eps_c<u8, ac4> = huxiCompareEqualEpsC_32f_AC4R;

template <class, int>
inline constexpr auto filter_box = nullptr;
template <> inline constexpr auto filter_box<u8, 1> = huxiFilterBox_8u_C1R;
template <> inline constexpr auto filter_box<u8, 3> = huxiFilterBox_8u_C3R;
template <> inline constexpr auto filter_box<u8, ac4> = huxiFilterBox_8u_AC4R;
template <> inline constexpr auto filter_box<u8, 4> = huxiFilterBox_8u_C4R;
template <> inline constexpr auto filter_box<s16, 1> = huxiFilterBox_16s_C1R;
template <> inline constexpr auto filter_box<s16, 3> = huxiFilterBox_16s_C3R;
template <> inline constexpr auto filter_box<s16, ac4> = huxiFilterBox_16s_AC4R;
template <> inline constexpr auto filter_box<s16, 4> = huxiFilterBox_16s_C4R;
template <> inline constexpr auto filter_box<f32, 1> = huxiFilterBox_32f_C1R;
template <> inline constexpr auto filter_box<f32, 3> = huxiFilterBox_32f_C3R;
template <> inline constexpr auto filter_box<f32, ac4> = huxiFilterBox_32f_AC4R;
template <> inline constexpr auto filter_box<f32, 4> = huxiFilterBox_32f_C4R;

template <class, int>
inline constexpr auto filter_box_in_place = nullptr;
template <> inline constexpr auto filter_box_in_place<u8, 1> = huxiFilterBox_8u_C1IR;
template <> inline constexpr auto filter_box_in_place<u8, 3> = huxiFilterBox_8u_C3IR;
template <> inline constexpr auto filter_box_in_place<u8, ac4> = huxiFilterBox_8u_AC4IR;
template <> inline constexpr auto filter_box_in_place<u8, 4> = huxiFilterBox_8u_C4IR;
template <> inline constexpr auto filter_box_in_place<s16, 1> = huxiFilterBox_16s_C1IR;
template <> inline constexpr auto filter_box_in_place<s16, 3> = huxiFilterBox_16s_C3IR;
template <> inline constexpr auto filter_box_in_place<s16, ac4> = huxiFilterBox_16s_AC4IR;
template <> inline constexpr auto filter_box_in_place<s16, 4> = huxiFilterBox_16s_C4IR;
template <> inline constexpr auto filter_box_in_place<f32, 1> = huxiFilterBox_32f_C1IR;
template <> inline constexpr auto filter_box_in_place<f32, 3> = huxiFilterBox_32f_C3IR;
template <> inline constexpr auto filter_box_in_place<f32, ac4> = huxiFilterBox_32f_AC4IR;
template <> inline constexpr auto filter_box_in_place<f32, 4> = huxiFilterBox_32f_C4IR;

template <int, class>
inline constexpr auto sum_window_row = nullptr;
template <> inline constexpr auto sum_window_row<1, u8> = huxiSumWindowRow_8u32f_C1R;
template <> inline constexpr auto sum_window_row<3, u8> = huxiSumWindowRow_8u32f_C3R;
template <> inline constexpr auto sum_window_row<4, u8> = huxiSumWindowRow_8u32f_C4R;
template <> inline constexpr auto sum_window_row<1, s16> = huxiSumWindowRow_16s32f_C1R;
template <> inline constexpr auto sum_window_row<3, s16> = huxiSumWindowRow_16s32f_C3R;
template <> inline constexpr auto sum_window_row<4, s16> = huxiSumWindowRow_16s32f_C4R;

template <int, class>
inline constexpr auto sum_window_column = nullptr;
template <> inline constexpr auto sum_window_column<1, u8> = huxiSumWindowColumn_8u32f_C1R;
template <> inline constexpr auto sum_window_column<3, u8> = huxiSumWindowColumn_8u32f_C3R;
template <> inline constexpr auto sum_window_column<4, u8> = huxiSumWindowColumn_8u32f_C4R;
template <> inline constexpr auto sum_window_column<1, s16> = huxiSumWindowColumn_16s32f_C1R;
template <> inline constexpr auto sum_window_column<3, s16> = huxiSumWindowColumn_16s32f_C3R;
template <> inline constexpr auto sum_window_column<4, s16> = huxiSumWindowColumn_16s32f_C4R;

template <class, int>
inline constexpr auto filter = nullptr;
template <> inline constexpr auto filter<u8, 1> = huxiFilter_8u_C1R;
template <> inline constexpr auto filter<u8, 3> = huxiFilter_8u_C3R;
template <> inline constexpr auto filter<u8, 4> = huxiFilter_8u_C4R;
template <> inline constexpr auto filter<u8, ac4> = huxiFilter_8u_AC4R;
template <> inline constexpr auto filter<s16, 1> = huxiFilter_16s_C1R;
template <> inline constexpr auto filter<s16, 3> = huxiFilter_16s_C3R;
template <> inline constexpr auto filter<s16, 4> = huxiFilter_16s_C4R;
template <> inline constexpr auto filter<s16, ac4> = huxiFilter_16s_AC4R;

template <class, int>
inline constexpr auto filter_with_kernel = nullptr;
template <> inline constexpr auto filter_with_kernel<f32, 1> = huxiFilter_32f_C1R;
template <> inline constexpr auto filter_with_kernel<f32, 3> = huxiFilter_32f_C3R;
template <> inline constexpr auto filter_with_kernel<f32, 4> = huxiFilter_32f_C4R;
template <> inline constexpr auto filter_with_kernel<f32, ac4> = huxiFilter_32f_AC4R;
template <> inline constexpr auto filter_with_kernel<u8, 1> = huxiFilter32f_8u_C1R;
template <> inline constexpr auto filter_with_kernel<u8, 3> = huxiFilter32f_8u_C3R;
template <> inline constexpr auto filter_with_kernel<u8, 4> = huxiFilter32f_8u_C4R;
template <> inline constexpr auto filter_with_kernel<u8, ac4> = huxiFilter32f_8u_AC4R;
template <> inline constexpr auto filter_with_kernel<s16, 1> = huxiFilter32f_16s_C1R;
template <> inline constexpr auto filter_with_kernel<s16, 3> = huxiFilter32f_16s_C3R;
template <> inline constexpr auto filter_with_kernel<s16, 4> = huxiFilter32f_16s_C4R;
template <> inline constexpr auto filter_with_kernel<s16, ac4> = huxiFilter32f_16s_AC4R;

template <class, int>
inline constexpr auto filter_row = nullptr;
template <> inline constexpr auto filter_row<u8, 1> = huxiFilterRow_8u_C1R;
template <> inline constexpr auto filter_row<u8, 3> = huxiFilterRow_8u_C3R;
template <> inline constexpr auto filter_row<u8, 4> = huxiFilterRow_8u_C4R;
template <> inline constexpr auto filter_row<u8, ac4> = huxiFilterRow_8u_AC4R;
template <> inline constexpr auto filter_row<s16, 1> = huxiFilterRow_16s_C1R;
template <> inline constexpr auto filter_row<s16, 3> = huxiFilterRow_16s_C3R;
template <> inline constexpr auto filter_row<s16, 4> = huxiFilterRow_16s_C4R;
template <> inline constexpr auto filter_row<s16, ac4> = huxiFilterRow_16s_AC4R;

template <class, int>
inline constexpr auto filter_row_with_kernel = nullptr;
template <> inline constexpr auto filter_row_with_kernel<f32, 1> = huxiFilterRow_32f_C1R;
template <> inline constexpr auto filter_row_with_kernel<f32, 3> = huxiFilterRow_32f_C3R;
template <> inline constexpr auto filter_row_with_kernel<f32, 4> = huxiFilterRow_32f_C4R;
template <> inline constexpr auto filter_row_with_kernel<f32, ac4> = huxiFilterRow_32f_AC4R;
template <> inline constexpr auto filter_row_with_kernel<u8, 1> = huxiFilterRow32f_8u_C1R;
template <> inline constexpr auto filter_row_with_kernel<u8, 3> = huxiFilterRow32f_8u_C3R;
template <> inline constexpr auto filter_row_with_kernel<u8, 4> = huxiFilterRow32f_8u_C4R;
template <> inline constexpr auto filter_row_with_kernel<u8, ac4> = huxiFilterRow32f_8u_AC4R;
template <> inline constexpr auto filter_row_with_kernel<s16, 1> = huxiFilterRow32f_16s_C1R;
template <> inline constexpr auto filter_row_with_kernel<s16, 3> = huxiFilterRow32f_16s_C3R;
template <> inline constexpr auto filter_row_with_kernel<s16, 4> = huxiFilterRow32f_16s_C4R;
template <> inline constexpr auto filter_row_with_kernel<s16, ac4> = huxiFilterRow32f_16s_AC4R;

template <class, int>
inline constexpr auto filter_column = nullptr;
template <> inline constexpr auto filter_column<u8, 1> = huxiFilterColumn_8u_C1R;
template <> inline constexpr auto filter_column<u8, 3> = huxiFilterColumn_8u_C3R;
template <> inline constexpr auto filter_column<u8, 4> = huxiFilterColumn_8u_C4R;
template <> inline constexpr auto filter_column<u8, ac4> = huxiFilterColumn_8u_AC4R;
template <> inline constexpr auto filter_column<s16, 1> = huxiFilterColumn_16s_C1R;
template <> inline constexpr auto filter_column<s16, 3> = huxiFilterColumn_16s_C3R;
template <> inline constexpr auto filter_column<s16, 4> = huxiFilterColumn_16s_C4R;
template <> inline constexpr auto filter_column<s16, ac4> = huxiFilterColumn_16s_AC4R;

template <class, int>
inline constexpr auto filter_column_with_kernel = nullptr;
template <> inline constexpr auto filter_column_with_kernel<f32, 1> = huxiFilterColumn_32f_C1R;
template <> inline constexpr auto filter_column_with_kernel<f32, 3> = huxiFilterColumn_32f_C3R;
template <> inline constexpr auto filter_column_with_kernel<f32, 4> = huxiFilterColumn_32f_C4R;
template <> inline constexpr auto filter_column_with_kernel<f32, ac4> = huxiFilterColumn_32f_AC4R;
template <> inline constexpr auto filter_column_with_kernel<u8, 1> = huxiFilterColumn32f_8u_C1R;
template <> inline constexpr auto filter_column_with_kernel<u8, 3> = huxiFilterColumn32f_8u_C3R;
template <> inline constexpr auto filter_column_with_kernel<u8, 4> = huxiFilterColumn32f_8u_C4R;
template <> inline constexpr auto filter_column_with_kernel<u8, ac4> = huxiFilterColumn32f_8u_AC4R;
template <> inline constexpr auto filter_column_with_kernel<s16, 1> = huxiFilterColumn32f_16s_C1R;
template <> inline constexpr auto filter_column_with_kernel<s16, 3> = huxiFilterColumn32f_16s_C3R;
template <> inline constexpr auto filter_column_with_kernel<s16, 4> = huxiFilterColumn32f_16s_C4R;
template <> inline constexpr auto filter_column_with_kernel<s16, ac4> = huxiFilterColumn32f_16s_AC4R;

template <class, int>
inline constexpr auto filter_prewitt_vert = nullptr;
template <> inline constexpr auto filter_prewitt_vert<u8, 1> = huxiFilterPrewittVert_8u_C1R;
template <> inline constexpr auto filter_prewitt_vert<u8, 3> = huxiFilterPrewittVert_8u_C3R;
template <> inline constexpr auto filter_prewitt_vert<u8, 4> = huxiFilterPrewittVert_8u_C4R;
template <> inline constexpr auto filter_prewitt_vert<u8, ac4> = huxiFilterPrewittVert_8u_AC4R;
template <> inline constexpr auto filter_prewitt_vert<s16, 1> = huxiFilterPrewittVert_16s_C1R;
template <> inline constexpr auto filter_prewitt_vert<s16, 3> = huxiFilterPrewittVert_16s_C3R;
template <> inline constexpr auto filter_prewitt_vert<s16, 4> = huxiFilterPrewittVert_16s_C4R;
template <> inline constexpr auto filter_prewitt_vert<s16, ac4> = huxiFilterPrewittVert_16s_AC4R;
template <> inline constexpr auto filter_prewitt_vert<f32, 1> = huxiFilterPrewittVert_32f_C1R;
template <> inline constexpr auto filter_prewitt_vert<f32, 3> = huxiFilterPrewittVert_32f_C3R;
template <> inline constexpr auto filter_prewitt_vert<f32, 4> = huxiFilterPrewittVert_32f_C4R;
template <> inline constexpr auto filter_prewitt_vert<f32, ac4> = huxiFilterPrewittVert_32f_AC4R;

template <class, int>
inline constexpr auto filter_prewitt_horiz = nullptr;
template <> inline constexpr auto filter_prewitt_horiz<u8, 1> = huxiFilterPrewittHoriz_8u_C1R;
template <> inline constexpr auto filter_prewitt_horiz<u8, 3> = huxiFilterPrewittHoriz_8u_C3R;
template <> inline constexpr auto filter_prewitt_horiz<u8, 4> = huxiFilterPrewittHoriz_8u_C4R;
template <> inline constexpr auto filter_prewitt_horiz<u8, ac4> = huxiFilterPrewittHoriz_8u_AC4R;
template <> inline constexpr auto filter_prewitt_horiz<s16, 1> = huxiFilterPrewittHoriz_16s_C1R;
template <> inline constexpr auto filter_prewitt_horiz<s16, 3> = huxiFilterPrewittHoriz_16s_C3R;
template <> inline constexpr auto filter_prewitt_horiz<s16, 4> = huxiFilterPrewittHoriz_16s_C4R;
template <> inline constexpr auto filter_prewitt_horiz<s16, ac4> = huxiFilterPrewittHoriz_16s_AC4R;
template <> inline constexpr auto filter_prewitt_horiz<f32, 1> = huxiFilterPrewittHoriz_32f_C1R;
template <> inline constexpr auto filter_prewitt_horiz<f32, 3> = huxiFilterPrewittHoriz_32f_C3R;
template <> inline constexpr auto filter_prewitt_horiz<f32, 4> = huxiFilterPrewittHoriz_32f_C4R;
template <> inline constexpr auto filter_prewitt_horiz<f32, ac4> = huxiFilterPrewittHoriz_32f_AC4R;

template <class, int>
inline constexpr auto filter_sobel_vert = nullptr;
template <> inline constexpr auto filter_sobel_vert<u8, 1> = huxiFilterSobelVert_8u_C1R;
template <> inline constexpr auto filter_sobel_vert<u8, 3> = huxiFilterSobelVert_8u_C3R;
template <> inline constexpr auto filter_sobel_vert<u8, 4> = huxiFilterSobelVert_8u_C4R;
template <> inline constexpr auto filter_sobel_vert<u8, ac4> = huxiFilterSobelVert_8u_AC4R;
template <> inline constexpr auto filter_sobel_vert<s16, 1> = huxiFilterSobelVert_16s_C1R;
template <> inline constexpr auto filter_sobel_vert<s16, 3> = huxiFilterSobelVert_16s_C3R;
template <> inline constexpr auto filter_sobel_vert<s16, 4> = huxiFilterSobelVert_16s_C4R;
template <> inline constexpr auto filter_sobel_vert<s16, ac4> = huxiFilterSobelVert_16s_AC4R;
template <> inline constexpr auto filter_sobel_vert<f32, 1> = huxiFilterSobelVert_32f_C1R;
template <> inline constexpr auto filter_sobel_vert<f32, 3> = huxiFilterSobelVert_32f_C3R;
template <> inline constexpr auto filter_sobel_vert<f32, 4> = huxiFilterSobelVert_32f_C4R;
template <> inline constexpr auto filter_sobel_vert<f32, ac4> = huxiFilterSobelVert_32f_AC4R;

template <int, class>
inline constexpr auto filter_sobel_vert_with_mask = nullptr;
template <> inline constexpr auto filter_sobel_vert_with_mask<1, u8> = huxiFilterSobelVert_8u16s_C1R;
template <> inline constexpr auto filter_sobel_vert_with_mask<1, s8> = huxiFilterSobelVert_8s16s_C1R;

template <class, int>
inline constexpr auto filter_sobel_horiz = nullptr;
template <> inline constexpr auto filter_sobel_horiz<u8, 1> = huxiFilterSobelHoriz_8u_C1R;
template <> inline constexpr auto filter_sobel_horiz<u8, 3> = huxiFilterSobelHoriz_8u_C3R;
template <> inline constexpr auto filter_sobel_horiz<u8, 4> = huxiFilterSobelHoriz_8u_C4R;
template <> inline constexpr auto filter_sobel_horiz<u8, ac4> = huxiFilterSobelHoriz_8u_AC4R;
template <> inline constexpr auto filter_sobel_horiz<s16, 1> = huxiFilterSobelHoriz_16s_C1R;
template <> inline constexpr auto filter_sobel_horiz<s16, 3> = huxiFilterSobelHoriz_16s_C3R;
template <> inline constexpr auto filter_sobel_horiz<s16, 4> = huxiFilterSobelHoriz_16s_C4R;
template <> inline constexpr auto filter_sobel_horiz<s16, ac4> = huxiFilterSobelHoriz_16s_AC4R;
template <> inline constexpr auto filter_sobel_horiz<f32, 1> = huxiFilterSobelHoriz_32f_C1R;
template <> inline constexpr auto filter_sobel_horiz<f32, 3> = huxiFilterSobelHoriz_32f_C3R;
template <> inline constexpr auto filter_sobel_horiz<f32, 4> = huxiFilterSobelHoriz_32f_C4R;
template <> inline constexpr auto filter_sobel_horiz<f32, ac4> = huxiFilterSobelHoriz_32f_AC4R;

template <int, class>
inline constexpr auto filter_sobel_horiz_with_mask = nullptr;
template <> inline constexpr auto filter_sobel_horiz_with_mask<1, u8> = huxiFilterSobelHoriz_8u16s_C1R;
template <> inline constexpr auto filter_sobel_horiz_with_mask<1, s8> = huxiFilterSobelHoriz_8s16s_C1R;

template <class, int>
inline constexpr auto filter_sobel_vert_mask = nullptr;
template <> inline constexpr auto filter_sobel_vert_mask<f32, 1> = huxiFilterSobelVertMask_32f_C1R;

template <class, int>
inline constexpr auto filter_sobel_horiz_mask = nullptr;
template <> inline constexpr auto filter_sobel_horiz_mask<f32, 1> = huxiFilterSobelHorizMask_32f_C1R;

template <class, int, class>
inline constexpr auto filter_sobel_vert_second = nullptr;
template <> inline constexpr auto filter_sobel_vert_second<s16, 1, u8> = huxiFilterSobelVertSecond_8u16s_C1R;
template <> inline constexpr auto filter_sobel_vert_second<s16, 1, s8> = huxiFilterSobelVertSecond_8s16s_C1R;
template <> inline constexpr auto filter_sobel_vert_second<f32, 1, f32> = huxiFilterSobelVertSecond_32f_C1R;

template <class, int, class>
inline constexpr auto filter_sobel_horiz_second = nullptr;
template <> inline constexpr auto filter_sobel_horiz_second<s16, 1, u8> = huxiFilterSobelHorizSecond_8u16s_C1R;
template <> inline constexpr auto filter_sobel_horiz_second<s16, 1, s8> = huxiFilterSobelHorizSecond_8s16s_C1R;
template <> inline constexpr auto filter_sobel_horiz_second<f32, 1, f32> = huxiFilterSobelHorizSecond_32f_C1R;

template <class, int, class>
inline constexpr auto filter_sobel_cross = nullptr;
template <> inline constexpr auto filter_sobel_cross<s16, 1, u8> = huxiFilterSobelCross_8u16s_C1R;
template <> inline constexpr auto filter_sobel_cross<s16, 1, s8> = huxiFilterSobelCross_8s16s_C1R;
template <> inline constexpr auto filter_sobel_cross<f32, 1, f32> = huxiFilterSobelCross_32f_C1R;

template <class, int, class>
inline constexpr auto filter_scharr_vert = nullptr;
template <> inline constexpr auto filter_scharr_vert<s16, 1, u8> = huxiFilterScharrVert_8u16s_C1R;
template <> inline constexpr auto filter_scharr_vert<s16, 1, s8> = huxiFilterScharrVert_8s16s_C1R;
template <> inline constexpr auto filter_scharr_vert<f32, 1, f32> = huxiFilterScharrVert_32f_C1R;

template <class, int, class>
inline constexpr auto filter_scharr_horiz = nullptr;
template <> inline constexpr auto filter_scharr_horiz<s16, 1, u8> = huxiFilterScharrHoriz_8u16s_C1R;
template <> inline constexpr auto filter_scharr_horiz<s16, 1, s8> = huxiFilterScharrHoriz_8s16s_C1R;
template <> inline constexpr auto filter_scharr_horiz<f32, 1, f32> = huxiFilterScharrHoriz_32f_C1R;

template <class, int>
inline constexpr auto filter_roberts_down = nullptr;
template <> inline constexpr auto filter_roberts_down<u8, 1> = huxiFilterRobertsDown_8u_C1R;
template <> inline constexpr auto filter_roberts_down<u8, 3> = huxiFilterRobertsDown_8u_C3R;
template <> inline constexpr auto filter_roberts_down<u8, ac4> = huxiFilterRobertsDown_8u_AC4R;
template <> inline constexpr auto filter_roberts_down<s16, 1> = huxiFilterRobertsDown_16s_C1R;
template <> inline constexpr auto filter_roberts_down<s16, 3> = huxiFilterRobertsDown_16s_C3R;
template <> inline constexpr auto filter_roberts_down<s16, ac4> = huxiFilterRobertsDown_16s_AC4R;
template <> inline constexpr auto filter_roberts_down<f32, 1> = huxiFilterRobertsDown_32f_C1R;
template <> inline constexpr auto filter_roberts_down<f32, 3> = huxiFilterRobertsDown_32f_C3R;
template <> inline constexpr auto filter_roberts_down<f32, ac4> = huxiFilterRobertsDown_32f_AC4R;

template <class, int>
inline constexpr auto filter_roberts_up = nullptr;
template <> inline constexpr auto filter_roberts_up<u8, 1> = huxiFilterRobertsUp_8u_C1R;
template <> inline constexpr auto filter_roberts_up<u8, 3> = huxiFilterRobertsUp_8u_C3R;
template <> inline constexpr auto filter_roberts_up<u8, ac4> = huxiFilterRobertsUp_8u_AC4R;
template <> inline constexpr auto filter_roberts_up<s16, 1> = huxiFilterRobertsUp_16s_C1R;
template <> inline constexpr auto filter_roberts_up<s16, 3> = huxiFilterRobertsUp_16s_C3R;
template <> inline constexpr auto filter_roberts_up<s16, ac4> = huxiFilterRobertsUp_16s_AC4R;
template <> inline constexpr auto filter_roberts_up<f32, 1> = huxiFilterRobertsUp_32f_C1R;
template <> inline constexpr auto filter_roberts_up<f32, 3> = huxiFilterRobertsUp_32f_C3R;
template <> inline constexpr auto filter_roberts_up<f32, ac4> = huxiFilterRobertsUp_32f_AC4R;

template <class, int, class>
inline constexpr auto filter_laplace = nullptr;
template <> inline constexpr auto filter_laplace<u8, 1, u8> = huxiFilterLaplace_8u_C1R;
template <> inline constexpr auto filter_laplace<u8, 3, u8> = huxiFilterLaplace_8u_C3R;
template <> inline constexpr auto filter_laplace<u8, 4, u8> = huxiFilterLaplace_8u_C4R;
template <> inline constexpr auto filter_laplace<u8, ac4, u8> = huxiFilterLaplace_8u_AC4R;
template <> inline constexpr auto filter_laplace<s16, 1, s16> = huxiFilterLaplace_16s_C1R;
template <> inline constexpr auto filter_laplace<s16, 3, s16> = huxiFilterLaplace_16s_C3R;
template <> inline constexpr auto filter_laplace<s16, 4, s16> = huxiFilterLaplace_16s_C4R;
template <> inline constexpr auto filter_laplace<s16, ac4, s16> = huxiFilterLaplace_16s_AC4R;
template <> inline constexpr auto filter_laplace<f32, 1, f32> = huxiFilterLaplace_32f_C1R;
template <> inline constexpr auto filter_laplace<f32, 3, f32> = huxiFilterLaplace_32f_C3R;
template <> inline constexpr auto filter_laplace<f32, 4, f32> = huxiFilterLaplace_32f_C4R;
template <> inline constexpr auto filter_laplace<f32, ac4, f32> = huxiFilterLaplace_32f_AC4R;
template <> inline constexpr auto filter_laplace<s16, 1, u8> = huxiFilterLaplace_8u16s_C1R;
template <> inline constexpr auto filter_laplace<s16, 1, s8> = huxiFilterLaplace_8s16s_C1R;

template <class, int>
inline constexpr auto filter_gauss = nullptr;
template <> inline constexpr auto filter_gauss<u8, 1> = huxiFilterGauss_8u_C1R;
template <> inline constexpr auto filter_gauss<u8, 3> = huxiFilterGauss_8u_C3R;
template <> inline constexpr auto filter_gauss<u8, 4> = huxiFilterGauss_8u_C4R;
template <> inline constexpr auto filter_gauss<u8, ac4> = huxiFilterGauss_8u_AC4R;
template <> inline constexpr auto filter_gauss<s16, 1> = huxiFilterGauss_16s_C1R;
template <> inline constexpr auto filter_gauss<s16, 3> = huxiFilterGauss_16s_C3R;
template <> inline constexpr auto filter_gauss<s16, 4> = huxiFilterGauss_16s_C4R;
template <> inline constexpr auto filter_gauss<s16, ac4> = huxiFilterGauss_16s_AC4R;
template <> inline constexpr auto filter_gauss<f32, 1> = huxiFilterGauss_32f_C1R;
template <> inline constexpr auto filter_gauss<f32, 3> = huxiFilterGauss_32f_C3R;
template <> inline constexpr auto filter_gauss<f32, 4> = huxiFilterGauss_32f_C4R;
template <> inline constexpr auto filter_gauss<f32, ac4> = huxiFilterGauss_32f_AC4R;

template <class, int>
inline constexpr auto filter_lowpass = nullptr;
template <> inline constexpr auto filter_lowpass<u8, 1> = huxiFilterLowpass_8u_C1R;
template <> inline constexpr auto filter_lowpass<u8, 3> = huxiFilterLowpass_8u_C3R;
template <> inline constexpr auto filter_lowpass<u8, ac4> = huxiFilterLowpass_8u_AC4R;
template <> inline constexpr auto filter_lowpass<s16, 1> = huxiFilterLowpass_16s_C1R;
template <> inline constexpr auto filter_lowpass<s16, 3> = huxiFilterLowpass_16s_C3R;
template <> inline constexpr auto filter_lowpass<s16, ac4> = huxiFilterLowpass_16s_AC4R;
template <> inline constexpr auto filter_lowpass<f32, 1> = huxiFilterLowpass_32f_C1R;
template <> inline constexpr auto filter_lowpass<f32, 3> = huxiFilterLowpass_32f_C3R;
template <> inline constexpr auto filter_lowpass<f32, ac4> = huxiFilterLowpass_32f_AC4R;

template <class, int>
inline constexpr auto filter_hipass = nullptr;
template <> inline constexpr auto filter_hipass<u8, 1> = huxiFilterHipass_8u_C1R;
template <> inline constexpr auto filter_hipass<u8, 3> = huxiFilterHipass_8u_C3R;
template <> inline constexpr auto filter_hipass<u8, 4> = huxiFilterHipass_8u_C4R;
template <> inline constexpr auto filter_hipass<u8, ac4> = huxiFilterHipass_8u_AC4R;
template <> inline constexpr auto filter_hipass<s16, 1> = huxiFilterHipass_16s_C1R;
template <> inline constexpr auto filter_hipass<s16, 3> = huxiFilterHipass_16s_C3R;
template <> inline constexpr auto filter_hipass<s16, 4> = huxiFilterHipass_16s_C4R;
template <> inline constexpr auto filter_hipass<s16, ac4> = huxiFilterHipass_16s_AC4R;
template <> inline constexpr auto filter_hipass<f32, 1> = huxiFilterHipass_32f_C1R;
template <> inline constexpr auto filter_hipass<f32, 3> = huxiFilterHipass_32f_C3R;
template <> inline constexpr auto filter_hipass<f32, 4> = huxiFilterHipass_32f_C4R;
template <> inline constexpr auto filter_hipass<f32, ac4> = huxiFilterHipass_32f_AC4R;

template <class, int>
inline constexpr auto filter_sharpen = nullptr;
template <> inline constexpr auto filter_sharpen<u8, 1> = huxiFilterSharpen_8u_C1R;
template <> inline constexpr auto filter_sharpen<u8, 3> = huxiFilterSharpen_8u_C3R;
template <> inline constexpr auto filter_sharpen<u8, 4> = huxiFilterSharpen_8u_C4R;
template <> inline constexpr auto filter_sharpen<u8, ac4> = huxiFilterSharpen_8u_AC4R;
template <> inline constexpr auto filter_sharpen<s16, 1> = huxiFilterSharpen_16s_C1R;
template <> inline constexpr auto filter_sharpen<s16, 3> = huxiFilterSharpen_16s_C3R;
template <> inline constexpr auto filter_sharpen<s16, 4> = huxiFilterSharpen_16s_C4R;
template <> inline constexpr auto filter_sharpen<s16, ac4> = huxiFilterSharpen_16s_AC4R;
template <> inline constexpr auto filter_sharpen<f32, 1> = huxiFilterSharpen_32f_C1R;
template <> inline constexpr auto filter_sharpen<f32, 3> = huxiFilterSharpen_32f_C3R;
template <> inline constexpr auto filter_sharpen<f32, 4> = huxiFilterSharpen_32f_C4R;
template <> inline constexpr auto filter_sharpen<f32, ac4> = huxiFilterSharpen_32f_AC4R;

template <class, int>
inline constexpr auto filter_median = nullptr;
template <> inline constexpr auto filter_median<u8, 1> = huxiFilterMedian_8u_C1R;
template <> inline constexpr auto filter_median<u8, 3> = huxiFilterMedian_8u_C3R;
template <> inline constexpr auto filter_median<u8, 4> = huxiFilterMedian_8u_C4R;
template <> inline constexpr auto filter_median<u8, ac4> = huxiFilterMedian_8u_AC4R;
template <> inline constexpr auto filter_median<s16, 1> = huxiFilterMedian_16s_C1R;
template <> inline constexpr auto filter_median<s16, 3> = huxiFilterMedian_16s_C3R;
template <> inline constexpr auto filter_median<s16, 4> = huxiFilterMedian_16s_C4R;
template <> inline constexpr auto filter_median<s16, ac4> = huxiFilterMedian_16s_AC4R;

template <class, int>
inline constexpr auto filter_median_horiz = nullptr;
template <> inline constexpr auto filter_median_horiz<u8, 1> = huxiFilterMedianHoriz_8u_C1R;
template <> inline constexpr auto filter_median_horiz<u8, 3> = huxiFilterMedianHoriz_8u_C3R;
template <> inline constexpr auto filter_median_horiz<u8, 4> = huxiFilterMedianHoriz_8u_C4R;
template <> inline constexpr auto filter_median_horiz<u8, ac4> = huxiFilterMedianHoriz_8u_AC4R;
template <> inline constexpr auto filter_median_horiz<s16, 1> = huxiFilterMedianHoriz_16s_C1R;
template <> inline constexpr auto filter_median_horiz<s16, 3> = huxiFilterMedianHoriz_16s_C3R;
template <> inline constexpr auto filter_median_horiz<s16, 4> = huxiFilterMedianHoriz_16s_C4R;
template <> inline constexpr auto filter_median_horiz<s16, ac4> = huxiFilterMedianHoriz_16s_AC4R;

template <class, int>
inline constexpr auto filter_median_vert = nullptr;
template <> inline constexpr auto filter_median_vert<u8, 1> = huxiFilterMedianVert_8u_C1R;
template <> inline constexpr auto filter_median_vert<u8, 3> = huxiFilterMedianVert_8u_C3R;
template <> inline constexpr auto filter_median_vert<u8, 4> = huxiFilterMedianVert_8u_C4R;
template <> inline constexpr auto filter_median_vert<u8, ac4> = huxiFilterMedianVert_8u_AC4R;
template <> inline constexpr auto filter_median_vert<s16, 1> = huxiFilterMedianVert_16s_C1R;
template <> inline constexpr auto filter_median_vert<s16, 3> = huxiFilterMedianVert_16s_C3R;
template <> inline constexpr auto filter_median_vert<s16, 4> = huxiFilterMedianVert_16s_C4R;
template <> inline constexpr auto filter_median_vert<s16, ac4> = huxiFilterMedianVert_16s_AC4R;

template <class, int>
inline constexpr auto filter_median_cross = nullptr;
template <> inline constexpr auto filter_median_cross<u8, 1> = huxiFilterMedianCross_8u_C1R;
template <> inline constexpr auto filter_median_cross<u8, 3> = huxiFilterMedianCross_8u_C3R;
template <> inline constexpr auto filter_median_cross<u8, ac4> = huxiFilterMedianCross_8u_AC4R;
template <> inline constexpr auto filter_median_cross<s16, 1> = huxiFilterMedianCross_16s_C1R;
template <> inline constexpr auto filter_median_cross<s16, 3> = huxiFilterMedianCross_16s_C3R;
template <> inline constexpr auto filter_median_cross<s16, ac4> = huxiFilterMedianCross_16s_AC4R;

template <class, int>
inline constexpr auto filter_median_color = nullptr;
template <> inline constexpr auto filter_median_color<u8, 3> = huxiFilterMedianColor_8u_C3R;
template <> inline constexpr auto filter_median_color<u8, ac4> = huxiFilterMedianColor_8u_AC4R;
template <> inline constexpr auto filter_median_color<s16, 3> = huxiFilterMedianColor_16s_C3R;
template <> inline constexpr auto filter_median_color<s16, ac4> = huxiFilterMedianColor_16s_AC4R;
template <> inline constexpr auto filter_median_color<f32, 3> = huxiFilterMedianColor_32f_C3R;
template <> inline constexpr auto filter_median_color<f32, ac4> = huxiFilterMedianColor_32f_AC4R;

template <class, int>
inline constexpr auto filter_min = nullptr;
template <> inline constexpr auto filter_min<u8, 1> = huxiFilterMin_8u_C1R;
template <> inline constexpr auto filter_min<u8, 3> = huxiFilterMin_8u_C3R;
template <> inline constexpr auto filter_min<u8, 4> = huxiFilterMin_8u_C4R;
template <> inline constexpr auto filter_min<u8, ac4> = huxiFilterMin_8u_AC4R;
template <> inline constexpr auto filter_min<s16, 1> = huxiFilterMin_16s_C1R;
template <> inline constexpr auto filter_min<s16, 3> = huxiFilterMin_16s_C3R;
template <> inline constexpr auto filter_min<s16, 4> = huxiFilterMin_16s_C4R;
template <> inline constexpr auto filter_min<s16, ac4> = huxiFilterMin_16s_AC4R;
template <> inline constexpr auto filter_min<f32, 1> = huxiFilterMin_32f_C1R;
template <> inline constexpr auto filter_min<f32, 3> = huxiFilterMin_32f_C3R;
template <> inline constexpr auto filter_min<f32, 4> = huxiFilterMin_32f_C4R;
template <> inline constexpr auto filter_min<f32, ac4> = huxiFilterMin_32f_AC4R;

template <class, int>
inline constexpr auto filter_max = nullptr;
template <> inline constexpr auto filter_max<u8, 1> = huxiFilterMax_8u_C1R;
template <> inline constexpr auto filter_max<u8, 3> = huxiFilterMax_8u_C3R;
template <> inline constexpr auto filter_max<u8, 4> = huxiFilterMax_8u_C4R;
template <> inline constexpr auto filter_max<u8, ac4> = huxiFilterMax_8u_AC4R;
template <> inline constexpr auto filter_max<s16, 1> = huxiFilterMax_16s_C1R;
template <> inline constexpr auto filter_max<s16, 3> = huxiFilterMax_16s_C3R;
template <> inline constexpr auto filter_max<s16, 4> = huxiFilterMax_16s_C4R;
template <> inline constexpr auto filter_max<s16, ac4> = huxiFilterMax_16s_AC4R;
template <> inline constexpr auto filter_max<f32, 1> = huxiFilterMax_32f_C1R;
template <> inline constexpr auto filter_max<f32, 3> = huxiFilterMax_32f_C3R;
template <> inline constexpr auto filter_max<f32, 4> = huxiFilterMax_32f_C4R;
template <> inline constexpr auto filter_max<f32, ac4> = huxiFilterMax_32f_AC4R;

template <class, int>
inline constexpr auto erode3x3 = nullptr;
template <> inline constexpr auto erode3x3<u8, 1> = huxiErode3x3_8u_C1R;
template <> inline constexpr auto erode3x3<u8, 3> = huxiErode3x3_8u_C3R;
template <> inline constexpr auto erode3x3<u8, 4> = huxiErode3x3_8u_C4R;
template <> inline constexpr auto erode3x3<u8, ac4> = huxiErode3x3_8u_AC4R;
template <> inline constexpr auto erode3x3<f32, 1> = huxiErode3x3_32f_C1R;
template <> inline constexpr auto erode3x3<f32, 3> = huxiErode3x3_32f_C3R;
template <> inline constexpr auto erode3x3<f32, 4> = huxiErode3x3_32f_C4R;
template <> inline constexpr auto erode3x3<f32, ac4> = huxiErode3x3_32f_AC4R;

template <class, int>
inline constexpr auto erode3x3_in_place = nullptr;
template <> inline constexpr auto erode3x3_in_place<u8, 1> = huxiErode3x3_8u_C1IR;
template <> inline constexpr auto erode3x3_in_place<u8, 3> = huxiErode3x3_8u_C3IR;
template <> inline constexpr auto erode3x3_in_place<u8, 4> = huxiErode3x3_8u_C4IR;
template <> inline constexpr auto erode3x3_in_place<u8, ac4> = huxiErode3x3_8u_AC4IR;
template <> inline constexpr auto erode3x3_in_place<f32, 1> = huxiErode3x3_32f_C1IR;
template <> inline constexpr auto erode3x3_in_place<f32, 3> = huxiErode3x3_32f_C3IR;
template <> inline constexpr auto erode3x3_in_place<f32, 4> = huxiErode3x3_32f_C4IR;
template <> inline constexpr auto erode3x3_in_place<f32, ac4> = huxiErode3x3_32f_AC4IR;

template <class, int>
inline constexpr auto dilate3x3 = nullptr;
template <> inline constexpr auto dilate3x3<u8, 1> = huxiDilate3x3_8u_C1R;
template <> inline constexpr auto dilate3x3<u8, 3> = huxiDilate3x3_8u_C3R;
template <> inline constexpr auto dilate3x3<u8, 4> = huxiDilate3x3_8u_C4R;
template <> inline constexpr auto dilate3x3<u8, ac4> = huxiDilate3x3_8u_AC4R;
template <> inline constexpr auto dilate3x3<f32, 1> = huxiDilate3x3_32f_C1R;
template <> inline constexpr auto dilate3x3<f32, 3> = huxiDilate3x3_32f_C3R;
template <> inline constexpr auto dilate3x3<f32, 4> = huxiDilate3x3_32f_C4R;
template <> inline constexpr auto dilate3x3<f32, ac4> = huxiDilate3x3_32f_AC4R;

template <class, int>
inline constexpr auto dilate3x3_in_place = nullptr;
template <> inline constexpr auto dilate3x3_in_place<u8, 1> = huxiDilate3x3_8u_C1IR;
template <> inline constexpr auto dilate3x3_in_place<u8, 3> = huxiDilate3x3_8u_C3IR;
template <> inline constexpr auto dilate3x3_in_place<u8, 4> = huxiDilate3x3_8u_C4IR;
template <> inline constexpr auto dilate3x3_in_place<u8, ac4> = huxiDilate3x3_8u_AC4IR;
template <> inline constexpr auto dilate3x3_in_place<f32, 1> = huxiDilate3x3_32f_C1IR;
template <> inline constexpr auto dilate3x3_in_place<f32, 3> = huxiDilate3x3_32f_C3IR;
template <> inline constexpr auto dilate3x3_in_place<f32, 4> = huxiDilate3x3_32f_C4IR;
template <> inline constexpr auto dilate3x3_in_place<f32, ac4> = huxiDilate3x3_32f_AC4IR;

template <class, int>
inline constexpr auto erode = nullptr;
template <> inline constexpr auto erode<u8, 1> = huxiErode_8u_C1R;
template <> inline constexpr auto erode<u8, 3> = huxiErode_8u_C3R;
template <> inline constexpr auto erode<u8, 4> = huxiErode_8u_C4R;
template <> inline constexpr auto erode<u8, ac4> = huxiErode_8u_AC4R;
template <> inline constexpr auto erode<f32, 1> = huxiErode_32f_C1R;
template <> inline constexpr auto erode<f32, 3> = huxiErode_32f_C3R;
template <> inline constexpr auto erode<f32, 4> = huxiErode_32f_C4R;
template <> inline constexpr auto erode<f32, ac4> = huxiErode_32f_AC4R;

template <class, int>
inline constexpr auto erode_in_place = nullptr;
template <> inline constexpr auto erode_in_place<u8, 1> = huxiErode_8u_C1IR;
template <> inline constexpr auto erode_in_place<u8, 3> = huxiErode_8u_C3IR;
template <> inline constexpr auto erode_in_place<u8, ac4> = huxiErode_8u_AC4IR;
template <> inline constexpr auto erode_in_place<f32, 1> = huxiErode_32f_C1IR;
template <> inline constexpr auto erode_in_place<f32, 3> = huxiErode_32f_C3IR;
template <> inline constexpr auto erode_in_place<f32, ac4> = huxiErode_32f_AC4IR;

template <class, int>
inline constexpr auto dilate = nullptr;
template <> inline constexpr auto dilate<u8, 1> = huxiDilate_8u_C1R;
template <> inline constexpr auto dilate<u8, 3> = huxiDilate_8u_C3R;
template <> inline constexpr auto dilate<u8, 4> = huxiDilate_8u_C4R;
template <> inline constexpr auto dilate<u8, ac4> = huxiDilate_8u_AC4R;
template <> inline constexpr auto dilate<f32, 1> = huxiDilate_32f_C1R;
template <> inline constexpr auto dilate<f32, 3> = huxiDilate_32f_C3R;
template <> inline constexpr auto dilate<f32, 4> = huxiDilate_32f_C4R;
template <> inline constexpr auto dilate<f32, ac4> = huxiDilate_32f_AC4R;

template <class, int>
inline constexpr auto dilate_in_place = nullptr;
template <> inline constexpr auto dilate_in_place<u8, 1> = huxiDilate_8u_C1IR;
template <> inline constexpr auto dilate_in_place<u8, 3> = huxiDilate_8u_C3IR;
template <> inline constexpr auto dilate_in_place<u8, ac4> = huxiDilate_8u_AC4IR;
template <> inline constexpr auto dilate_in_place<f32, 1> = huxiDilate_32f_C1IR;
template <> inline constexpr auto dilate_in_place<f32, 3> = huxiDilate_32f_C3IR;
template <> inline constexpr auto dilate_in_place<f32, ac4> = huxiDilate_32f_AC4IR;

template <class, int>
inline constexpr auto filter_wiener = nullptr;
template <> inline constexpr auto filter_wiener<u8, 1> = huxiFilterWiener_8u_C1R;
template <> inline constexpr auto filter_wiener<u8, 3> = huxiFilterWiener_8u_C3R;
template <> inline constexpr auto filter_wiener<u8, 4> = huxiFilterWiener_8u_C4R;
template <> inline constexpr auto filter_wiener<u8, ac4> = huxiFilterWiener_8u_AC4R;
template <> inline constexpr auto filter_wiener<s16, 1> = huxiFilterWiener_16s_C1R;
template <> inline constexpr auto filter_wiener<s16, 3> = huxiFilterWiener_16s_C3R;
template <> inline constexpr auto filter_wiener<s16, 4> = huxiFilterWiener_16s_C4R;
template <> inline constexpr auto filter_wiener<s16, ac4> = huxiFilterWiener_16s_AC4R;
template <> inline constexpr auto filter_wiener<f32, 1> = huxiFilterWiener_32f_C1R;
template <> inline constexpr auto filter_wiener<f32, 3> = huxiFilterWiener_32f_C3R;
template <> inline constexpr auto filter_wiener<f32, 4> = huxiFilterWiener_32f_C4R;
template <> inline constexpr auto filter_wiener<f32, ac4> = huxiFilterWiener_32f_AC4R;

template <class, int>
inline constexpr auto conv_full = nullptr;
template <> inline constexpr auto conv_full<u8, 1> = huxiConvFull_8u_C1R;
template <> inline constexpr auto conv_full<u8, 3> = huxiConvFull_8u_C3R;
template <> inline constexpr auto conv_full<u8, ac4> = huxiConvFull_8u_AC4R;
template <> inline constexpr auto conv_full<s16, 1> = huxiConvFull_16s_C1R;
template <> inline constexpr auto conv_full<s16, 3> = huxiConvFull_16s_C3R;
template <> inline constexpr auto conv_full<s16, ac4> = huxiConvFull_16s_AC4R;
template <> inline constexpr auto conv_full<f32, 1> = huxiConvFull_32f_C1R;
template <> inline constexpr auto conv_full<f32, 3> = huxiConvFull_32f_C3R;
template <> inline constexpr auto conv_full<f32, ac4> = huxiConvFull_32f_AC4R;

template <class, int>
inline constexpr auto conv_valid = nullptr;
template <> inline constexpr auto conv_valid<u8, 1> = huxiConvValid_8u_C1R;
template <> inline constexpr auto conv_valid<u8, 3> = huxiConvValid_8u_C3R;
template <> inline constexpr auto conv_valid<u8, ac4> = huxiConvValid_8u_AC4R;
template <> inline constexpr auto conv_valid<s16, 1> = huxiConvValid_16s_C1R;
template <> inline constexpr auto conv_valid<s16, 3> = huxiConvValid_16s_C3R;
template <> inline constexpr auto conv_valid<s16, ac4> = huxiConvValid_16s_AC4R;
template <> inline constexpr auto conv_valid<f32, 1> = huxiConvValid_32f_C1R;
template <> inline constexpr auto conv_valid<f32, 3> = huxiConvValid_32f_C3R;
template <> inline constexpr auto conv_valid<f32, ac4> = huxiConvValid_32f_AC4R;

template <class, int>
inline constexpr auto win_bartlett = nullptr;
template <> inline constexpr auto win_bartlett<u8, 1> = huxiWinBartlett_8u_C1R;
template <> inline constexpr auto win_bartlett<f32, 1> = huxiWinBartlett_32f_C1R;

template <class, int>
inline constexpr auto win_bartlett_in_place = nullptr;
template <> inline constexpr auto win_bartlett_in_place<u8, 1> = huxiWinBartlett_8u_C1IR;
template <> inline constexpr auto win_bartlett_in_place<f32, 1> = huxiWinBartlett_32f_C1IR;

template <class, int>
inline constexpr auto win_bartlett_sep = nullptr;
template <> inline constexpr auto win_bartlett_sep<u8, 1> = huxiWinBartlettSep_8u_C1R;
template <> inline constexpr auto win_bartlett_sep<f32, 1> = huxiWinBartlettSep_32f_C1R;

template <class, int>
inline constexpr auto win_bartlett_sep_in_place = nullptr;
template <> inline constexpr auto win_bartlett_sep_in_place<u8, 1> = huxiWinBartlettSep_8u_C1IR;
template <> inline constexpr auto win_bartlett_sep_in_place<f32, 1> = huxiWinBartlettSep_32f_C1IR;

template <class, int>
inline constexpr auto win_hamming = nullptr;
template <> inline constexpr auto win_hamming<u8, 1> = huxiWinHamming_8u_C1R;
template <> inline constexpr auto win_hamming<f32, 1> = huxiWinHamming_32f_C1R;

template <class, int>
inline constexpr auto win_hamming_in_place = nullptr;
template <> inline constexpr auto win_hamming_in_place<u8, 1> = huxiWinHamming_8u_C1IR;
template <> inline constexpr auto win_hamming_in_place<f32, 1> = huxiWinHamming_32f_C1IR;

template <class, int>
inline constexpr auto win_hamming_sep = nullptr;
template <> inline constexpr auto win_hamming_sep<u8, 1> = huxiWinHammingSep_8u_C1R;
template <> inline constexpr auto win_hamming_sep<f32, 1> = huxiWinHammingSep_32f_C1R;

template <class, int>
inline constexpr auto win_hamming_sep_in_place = nullptr;
template <> inline constexpr auto win_hamming_sep_in_place<u8, 1> = huxiWinHammingSep_8u_C1IR;
template <> inline constexpr auto win_hamming_sep_in_place<f32, 1> = huxiWinHammingSep_32f_C1IR;

template <class, int>
inline constexpr auto resize = nullptr;
template <> inline constexpr auto resize<u8, 1> = huxiResize_8u_C1R;
template <> inline constexpr auto resize<u8, 3> = huxiResize_8u_C3R;
template <> inline constexpr auto resize<u8, ac4> = huxiResize_8u_AC4R;
template <> inline constexpr auto resize<u8, 4> = huxiResize_8u_C4R;
template <> inline constexpr auto resize<u16, 1> = huxiResize_16u_C1R;
template <> inline constexpr auto resize<u16, 3> = huxiResize_16u_C3R;
template <> inline constexpr auto resize<u16, ac4> = huxiResize_16u_AC4R;
template <> inline constexpr auto resize<u16, 4> = huxiResize_16u_C4R;
template <> inline constexpr auto resize<f32, 1> = huxiResize_32f_C1R;
template <> inline constexpr auto resize<f32, 3> = huxiResize_32f_C3R;
template <> inline constexpr auto resize<f32, ac4> = huxiResize_32f_AC4R;
template <> inline constexpr auto resize<f32, 4> = huxiResize_32f_C4R;

template <class, int>
inline constexpr auto resize_planes = nullptr;
template <> inline constexpr auto resize_planes<u8, 203> = huxiResize_8u_P3R;
template <> inline constexpr auto resize_planes<u8, 204> = huxiResize_8u_P4R;
template <> inline constexpr auto resize_planes<u16, 203> = huxiResize_16u_P3R;
template <> inline constexpr auto resize_planes<u16, 204> = huxiResize_16u_P4R;
template <> inline constexpr auto resize_planes<f32, 203> = huxiResize_32f_P3R;
template <> inline constexpr auto resize_planes<f32, 204> = huxiResize_32f_P4R;

template <class, int>
inline constexpr auto resize_center = nullptr;
template <> inline constexpr auto resize_center<u8, 1> = huxiResizeCenter_8u_C1R;
template <> inline constexpr auto resize_center<u8, 3> = huxiResizeCenter_8u_C3R;
template <> inline constexpr auto resize_center<u8, ac4> = huxiResizeCenter_8u_AC4R;
template <> inline constexpr auto resize_center<u8, 4> = huxiResizeCenter_8u_C4R;
template <> inline constexpr auto resize_center<u16, 1> = huxiResizeCenter_16u_C1R;
template <> inline constexpr auto resize_center<u16, 3> = huxiResizeCenter_16u_C3R;
template <> inline constexpr auto resize_center<u16, ac4> = huxiResizeCenter_16u_AC4R;
template <> inline constexpr auto resize_center<u16, 4> = huxiResizeCenter_16u_C4R;
template <> inline constexpr auto resize_center<f32, 1> = huxiResizeCenter_32f_C1R;
template <> inline constexpr auto resize_center<f32, 3> = huxiResizeCenter_32f_C3R;
template <> inline constexpr auto resize_center<f32, ac4> = huxiResizeCenter_32f_AC4R;
template <> inline constexpr auto resize_center<f32, 4> = huxiResizeCenter_32f_C4R;

template <class, int>
inline constexpr auto resize_center_planes = nullptr;
template <> inline constexpr auto resize_center_planes<u8, 203> = huxiResizeCenter_8u_P3R;
template <> inline constexpr auto resize_center_planes<u8, 204> = huxiResizeCenter_8u_P4R;
template <> inline constexpr auto resize_center_planes<u16, 203> = huxiResizeCenter_16u_P3R;
template <> inline constexpr auto resize_center_planes<u16, 204> = huxiResizeCenter_16u_P4R;
template <> inline constexpr auto resize_center_planes<f32, 203> = huxiResizeCenter_32f_P3R;
template <> inline constexpr auto resize_center_planes<f32, 204> = huxiResizeCenter_32f_P4R;

template <class, int>
inline constexpr auto resize_shift = nullptr;
template <> inline constexpr auto resize_shift<u8, 1> = huxiResizeShift_8u_C1R;
template <> inline constexpr auto resize_shift<u8, 3> = huxiResizeShift_8u_C3R;
template <> inline constexpr auto resize_shift<u8, ac4> = huxiResizeShift_8u_AC4R;
template <> inline constexpr auto resize_shift<u8, 4> = huxiResizeShift_8u_C4R;
template <> inline constexpr auto resize_shift<u16, 1> = huxiResizeShift_16u_C1R;
template <> inline constexpr auto resize_shift<u16, 3> = huxiResizeShift_16u_C3R;
template <> inline constexpr auto resize_shift<u16, ac4> = huxiResizeShift_16u_AC4R;
template <> inline constexpr auto resize_shift<u16, 4> = huxiResizeShift_16u_C4R;
template <> inline constexpr auto resize_shift<f32, 1> = huxiResizeShift_32f_C1R;
template <> inline constexpr auto resize_shift<f32, 3> = huxiResizeShift_32f_C3R;
template <> inline constexpr auto resize_shift<f32, ac4> = huxiResizeShift_32f_AC4R;
template <> inline constexpr auto resize_shift<f32, 4> = huxiResizeShift_32f_C4R;

template <class, int>
inline constexpr auto resize_shift_planes = nullptr;
template <> inline constexpr auto resize_shift_planes<u8, 203> = huxiResizeShift_8u_P3R;
template <> inline constexpr auto resize_shift_planes<u8, 204> = huxiResizeShift_8u_P4R;
template <> inline constexpr auto resize_shift_planes<u16, 203> = huxiResizeShift_16u_P3R;
template <> inline constexpr auto resize_shift_planes<u16, 204> = huxiResizeShift_16u_P4R;
template <> inline constexpr auto resize_shift_planes<f32, 203> = huxiResizeShift_32f_P3R;
template <> inline constexpr auto resize_shift_planes<f32, 204> = huxiResizeShift_32f_P4R;

template <class, int>
inline constexpr auto resize_sqr_pixel = nullptr;
template <> inline constexpr auto resize_sqr_pixel<u8, 1> = huxiResizeSqrPixel_8u_C1R;
template <> inline constexpr auto resize_sqr_pixel<u8, 3> = huxiResizeSqrPixel_8u_C3R;
template <> inline constexpr auto resize_sqr_pixel<u8, ac4> = huxiResizeSqrPixel_8u_AC4R;
template <> inline constexpr auto resize_sqr_pixel<u8, 4> = huxiResizeSqrPixel_8u_C4R;
template <> inline constexpr auto resize_sqr_pixel<u16, 1> = huxiResizeSqrPixel_16u_C1R;
template <> inline constexpr auto resize_sqr_pixel<u16, 3> = huxiResizeSqrPixel_16u_C3R;
template <> inline constexpr auto resize_sqr_pixel<u16, ac4> = huxiResizeSqrPixel_16u_AC4R;
template <> inline constexpr auto resize_sqr_pixel<u16, 4> = huxiResizeSqrPixel_16u_C4R;
template <> inline constexpr auto resize_sqr_pixel<f32, 1> = huxiResizeSqrPixel_32f_C1R;
template <> inline constexpr auto resize_sqr_pixel<f32, 3> = huxiResizeSqrPixel_32f_C3R;
template <> inline constexpr auto resize_sqr_pixel<f32, ac4> = huxiResizeSqrPixel_32f_AC4R;
template <> inline constexpr auto resize_sqr_pixel<f32, 4> = huxiResizeSqrPixel_32f_C4R;

template <class, int>
inline constexpr auto resize_sqr_pixel_planes = nullptr;
template <> inline constexpr auto resize_sqr_pixel_planes<u8, 203> = huxiResizeSqrPixel_8u_P3R;
template <> inline constexpr auto resize_sqr_pixel_planes<u8, 204> = huxiResizeSqrPixel_8u_P4R;
template <> inline constexpr auto resize_sqr_pixel_planes<u16, 203> = huxiResizeSqrPixel_16u_P3R;
template <> inline constexpr auto resize_sqr_pixel_planes<u16, 204> = huxiResizeSqrPixel_16u_P4R;
template <> inline constexpr auto resize_sqr_pixel_planes<f32, 203> = huxiResizeSqrPixel_32f_P3R;
template <> inline constexpr auto resize_sqr_pixel_planes<f32, 204> = huxiResizeSqrPixel_32f_P4R;

template <class, int>
inline constexpr auto resize_yuv422 = nullptr;
template <> inline constexpr auto resize_yuv422<u8, 2> = huxiResizeYUV422_8u_C2R;

template <class, int>
inline constexpr auto warp_affine = nullptr;
template <> inline constexpr auto warp_affine<u8, 1> = huxiWarpAffine_8u_C1R;
template <> inline constexpr auto warp_affine<u8, 3> = huxiWarpAffine_8u_C3R;
template <> inline constexpr auto warp_affine<u8, ac4> = huxiWarpAffine_8u_AC4R;
template <> inline constexpr auto warp_affine<u8, 4> = huxiWarpAffine_8u_C4R;
template <> inline constexpr auto warp_affine<u16, 1> = huxiWarpAffine_16u_C1R;
template <> inline constexpr auto warp_affine<u16, 3> = huxiWarpAffine_16u_C3R;
template <> inline constexpr auto warp_affine<u16, ac4> = huxiWarpAffine_16u_AC4R;
template <> inline constexpr auto warp_affine<u16, 4> = huxiWarpAffine_16u_C4R;
template <> inline constexpr auto warp_affine<f32, 1> = huxiWarpAffine_32f_C1R;
template <> inline constexpr auto warp_affine<f32, 3> = huxiWarpAffine_32f_C3R;
template <> inline constexpr auto warp_affine<f32, ac4> = huxiWarpAffine_32f_AC4R;
template <> inline constexpr auto warp_affine<f32, 4> = huxiWarpAffine_32f_C4R;

template <class, int>
inline constexpr auto warp_affine_planes = nullptr;
template <> inline constexpr auto warp_affine_planes<u8, 203> = huxiWarpAffine_8u_P3R;
template <> inline constexpr auto warp_affine_planes<u8, 204> = huxiWarpAffine_8u_P4R;
template <> inline constexpr auto warp_affine_planes<u16, 203> = huxiWarpAffine_16u_P3R;
template <> inline constexpr auto warp_affine_planes<u16, 204> = huxiWarpAffine_16u_P4R;
template <> inline constexpr auto warp_affine_planes<f32, 203> = huxiWarpAffine_32f_P3R;
template <> inline constexpr auto warp_affine_planes<f32, 204> = huxiWarpAffine_32f_P4R;

template <class, int>
inline constexpr auto warp_affine_back = nullptr;
template <> inline constexpr auto warp_affine_back<u8, 1> = huxiWarpAffineBack_8u_C1R;
template <> inline constexpr auto warp_affine_back<u8, 3> = huxiWarpAffineBack_8u_C3R;
template <> inline constexpr auto warp_affine_back<u8, ac4> = huxiWarpAffineBack_8u_AC4R;
template <> inline constexpr auto warp_affine_back<u8, 4> = huxiWarpAffineBack_8u_C4R;
template <> inline constexpr auto warp_affine_back<u16, 1> = huxiWarpAffineBack_16u_C1R;
template <> inline constexpr auto warp_affine_back<u16, 3> = huxiWarpAffineBack_16u_C3R;
template <> inline constexpr auto warp_affine_back<u16, ac4> = huxiWarpAffineBack_16u_AC4R;
template <> inline constexpr auto warp_affine_back<u16, 4> = huxiWarpAffineBack_16u_C4R;
template <> inline constexpr auto warp_affine_back<f32, 1> = huxiWarpAffineBack_32f_C1R;
template <> inline constexpr auto warp_affine_back<f32, 3> = huxiWarpAffineBack_32f_C3R;
template <> inline constexpr auto warp_affine_back<f32, ac4> = huxiWarpAffineBack_32f_AC4R;
template <> inline constexpr auto warp_affine_back<f32, 4> = huxiWarpAffineBack_32f_C4R;

template <class, int>
inline constexpr auto warp_affine_back_planes = nullptr;
template <> inline constexpr auto warp_affine_back_planes<u8, 203> = huxiWarpAffineBack_8u_P3R;
template <> inline constexpr auto warp_affine_back_planes<u8, 204> = huxiWarpAffineBack_8u_P4R;
template <> inline constexpr auto warp_affine_back_planes<u16, 203> = huxiWarpAffineBack_16u_P3R;
template <> inline constexpr auto warp_affine_back_planes<u16, 204> = huxiWarpAffineBack_16u_P4R;
template <> inline constexpr auto warp_affine_back_planes<f32, 203> = huxiWarpAffineBack_32f_P3R;
template <> inline constexpr auto warp_affine_back_planes<f32, 204> = huxiWarpAffineBack_32f_P4R;

template <class, int>
inline constexpr auto warp_affine_quad = nullptr;
template <> inline constexpr auto warp_affine_quad<u8, 1> = huxiWarpAffineQuad_8u_C1R;
template <> inline constexpr auto warp_affine_quad<u8, 3> = huxiWarpAffineQuad_8u_C3R;
template <> inline constexpr auto warp_affine_quad<u8, ac4> = huxiWarpAffineQuad_8u_AC4R;
template <> inline constexpr auto warp_affine_quad<u8, 4> = huxiWarpAffineQuad_8u_C4R;
template <> inline constexpr auto warp_affine_quad<u16, 1> = huxiWarpAffineQuad_16u_C1R;
template <> inline constexpr auto warp_affine_quad<u16, 3> = huxiWarpAffineQuad_16u_C3R;
template <> inline constexpr auto warp_affine_quad<u16, ac4> = huxiWarpAffineQuad_16u_AC4R;
template <> inline constexpr auto warp_affine_quad<u16, 4> = huxiWarpAffineQuad_16u_C4R;
template <> inline constexpr auto warp_affine_quad<f32, 1> = huxiWarpAffineQuad_32f_C1R;
template <> inline constexpr auto warp_affine_quad<f32, 3> = huxiWarpAffineQuad_32f_C3R;
template <> inline constexpr auto warp_affine_quad<f32, ac4> = huxiWarpAffineQuad_32f_AC4R;
template <> inline constexpr auto warp_affine_quad<f32, 4> = huxiWarpAffineQuad_32f_C4R;

template <class, int>
inline constexpr auto warp_affine_quad_planes = nullptr;
template <> inline constexpr auto warp_affine_quad_planes<u8, 203> = huxiWarpAffineQuad_8u_P3R;
template <> inline constexpr auto warp_affine_quad_planes<u8, 204> = huxiWarpAffineQuad_8u_P4R;
template <> inline constexpr auto warp_affine_quad_planes<u16, 203> = huxiWarpAffineQuad_16u_P3R;
template <> inline constexpr auto warp_affine_quad_planes<u16, 204> = huxiWarpAffineQuad_16u_P4R;
template <> inline constexpr auto warp_affine_quad_planes<f32, 203> = huxiWarpAffineQuad_32f_P3R;
template <> inline constexpr auto warp_affine_quad_planes<f32, 204> = huxiWarpAffineQuad_32f_P4R;

template <class, int>
inline constexpr auto rotate = nullptr;
template <> inline constexpr auto rotate<u8, 1> = huxiRotate_8u_C1R;
template <> inline constexpr auto rotate<u8, 3> = huxiRotate_8u_C3R;
template <> inline constexpr auto rotate<u8, ac4> = huxiRotate_8u_AC4R;
template <> inline constexpr auto rotate<u8, 4> = huxiRotate_8u_C4R;
template <> inline constexpr auto rotate<u16, 1> = huxiRotate_16u_C1R;
template <> inline constexpr auto rotate<u16, 3> = huxiRotate_16u_C3R;
template <> inline constexpr auto rotate<u16, ac4> = huxiRotate_16u_AC4R;
template <> inline constexpr auto rotate<u16, 4> = huxiRotate_16u_C4R;
template <> inline constexpr auto rotate<f32, 1> = huxiRotate_32f_C1R;
template <> inline constexpr auto rotate<f32, 3> = huxiRotate_32f_C3R;
template <> inline constexpr auto rotate<f32, ac4> = huxiRotate_32f_AC4R;
template <> inline constexpr auto rotate<f32, 4> = huxiRotate_32f_C4R;

template <class, int>
inline constexpr auto rotate_planes = nullptr;
template <> inline constexpr auto rotate_planes<u8, 203> = huxiRotate_8u_P3R;
template <> inline constexpr auto rotate_planes<u8, 204> = huxiRotate_8u_P4R;
template <> inline constexpr auto rotate_planes<u16, 203> = huxiRotate_16u_P3R;
template <> inline constexpr auto rotate_planes<u16, 204> = huxiRotate_16u_P4R;
template <> inline constexpr auto rotate_planes<f32, 203> = huxiRotate_32f_P3R;
template <> inline constexpr auto rotate_planes<f32, 204> = huxiRotate_32f_P4R;

template <class, int>
inline constexpr auto rotate_center = nullptr;
template <> inline constexpr auto rotate_center<u8, 1> = huxiRotateCenter_8u_C1R;
template <> inline constexpr auto rotate_center<u8, 3> = huxiRotateCenter_8u_C3R;
template <> inline constexpr auto rotate_center<u8, ac4> = huxiRotateCenter_8u_AC4R;
template <> inline constexpr auto rotate_center<u8, 4> = huxiRotateCenter_8u_C4R;
template <> inline constexpr auto rotate_center<u16, 1> = huxiRotateCenter_16u_C1R;
template <> inline constexpr auto rotate_center<u16, 3> = huxiRotateCenter_16u_C3R;
template <> inline constexpr auto rotate_center<u16, ac4> = huxiRotateCenter_16u_AC4R;
template <> inline constexpr auto rotate_center<u16, 4> = huxiRotateCenter_16u_C4R;
template <> inline constexpr auto rotate_center<f32, 1> = huxiRotateCenter_32f_C1R;
template <> inline constexpr auto rotate_center<f32, 3> = huxiRotateCenter_32f_C3R;
template <> inline constexpr auto rotate_center<f32, ac4> = huxiRotateCenter_32f_AC4R;
template <> inline constexpr auto rotate_center<f32, 4> = huxiRotateCenter_32f_C4R;

template <class, int>
inline constexpr auto rotate_center_planes = nullptr;
template <> inline constexpr auto rotate_center_planes<u8, 203> = huxiRotateCenter_8u_P3R;
template <> inline constexpr auto rotate_center_planes<u8, 204> = huxiRotateCenter_8u_P4R;
template <> inline constexpr auto rotate_center_planes<u16, 203> = huxiRotateCenter_16u_P3R;
template <> inline constexpr auto rotate_center_planes<u16, 204> = huxiRotateCenter_16u_P4R;
template <> inline constexpr auto rotate_center_planes<f32, 203> = huxiRotateCenter_32f_P3R;
template <> inline constexpr auto rotate_center_planes<f32, 204> = huxiRotateCenter_32f_P4R;

template <class, int>
inline constexpr auto shear = nullptr;
template <> inline constexpr auto shear<u8, 1> = huxiShear_8u_C1R;
template <> inline constexpr auto shear<u8, 3> = huxiShear_8u_C3R;
template <> inline constexpr auto shear<u8, ac4> = huxiShear_8u_AC4R;
template <> inline constexpr auto shear<u8, 4> = huxiShear_8u_C4R;
template <> inline constexpr auto shear<u16, 1> = huxiShear_16u_C1R;
template <> inline constexpr auto shear<u16, 3> = huxiShear_16u_C3R;
template <> inline constexpr auto shear<u16, ac4> = huxiShear_16u_AC4R;
template <> inline constexpr auto shear<u16, 4> = huxiShear_16u_C4R;
template <> inline constexpr auto shear<f32, 1> = huxiShear_32f_C1R;
template <> inline constexpr auto shear<f32, 3> = huxiShear_32f_C3R;
template <> inline constexpr auto shear<f32, ac4> = huxiShear_32f_AC4R;
template <> inline constexpr auto shear<f32, 4> = huxiShear_32f_C4R;

template <class, int>
inline constexpr auto shear_planes = nullptr;
template <> inline constexpr auto shear_planes<u8, 203> = huxiShear_8u_P3R;
template <> inline constexpr auto shear_planes<u8, 204> = huxiShear_8u_P4R;
template <> inline constexpr auto shear_planes<u16, 203> = huxiShear_16u_P3R;
template <> inline constexpr auto shear_planes<u16, 204> = huxiShear_16u_P4R;
template <> inline constexpr auto shear_planes<f32, 203> = huxiShear_32f_P3R;
template <> inline constexpr auto shear_planes<f32, 204> = huxiShear_32f_P4R;

template <class, int>
inline constexpr auto warp_bilinear = nullptr;
template <> inline constexpr auto warp_bilinear<u8, 1> = huxiWarpBilinear_8u_C1R;
template <> inline constexpr auto warp_bilinear<u8, 3> = huxiWarpBilinear_8u_C3R;
template <> inline constexpr auto warp_bilinear<u8, ac4> = huxiWarpBilinear_8u_AC4R;
template <> inline constexpr auto warp_bilinear<u8, 4> = huxiWarpBilinear_8u_C4R;
template <> inline constexpr auto warp_bilinear<u16, 1> = huxiWarpBilinear_16u_C1R;
template <> inline constexpr auto warp_bilinear<u16, 3> = huxiWarpBilinear_16u_C3R;
template <> inline constexpr auto warp_bilinear<u16, ac4> = huxiWarpBilinear_16u_AC4R;
template <> inline constexpr auto warp_bilinear<u16, 4> = huxiWarpBilinear_16u_C4R;
template <> inline constexpr auto warp_bilinear<f32, 1> = huxiWarpBilinear_32f_C1R;
template <> inline constexpr auto warp_bilinear<f32, 3> = huxiWarpBilinear_32f_C3R;
template <> inline constexpr auto warp_bilinear<f32, ac4> = huxiWarpBilinear_32f_AC4R;
template <> inline constexpr auto warp_bilinear<f32, 4> = huxiWarpBilinear_32f_C4R;

template <class, int>
inline constexpr auto warp_bilinear_planes = nullptr;
template <> inline constexpr auto warp_bilinear_planes<u8, 203> = huxiWarpBilinear_8u_P3R;
template <> inline constexpr auto warp_bilinear_planes<u8, 204> = huxiWarpBilinear_8u_P4R;
template <> inline constexpr auto warp_bilinear_planes<u16, 203> = huxiWarpBilinear_16u_P3R;
template <> inline constexpr auto warp_bilinear_planes<u16, 204> = huxiWarpBilinear_16u_P4R;
template <> inline constexpr auto warp_bilinear_planes<f32, 203> = huxiWarpBilinear_32f_P3R;
template <> inline constexpr auto warp_bilinear_planes<f32, 204> = huxiWarpBilinear_32f_P4R;

template <class, int>
inline constexpr auto warp_bilinear_back = nullptr;
template <> inline constexpr auto warp_bilinear_back<u8, 1> = huxiWarpBilinearBack_8u_C1R;
template <> inline constexpr auto warp_bilinear_back<u8, 3> = huxiWarpBilinearBack_8u_C3R;
template <> inline constexpr auto warp_bilinear_back<u8, ac4> = huxiWarpBilinearBack_8u_AC4R;
template <> inline constexpr auto warp_bilinear_back<u8, 4> = huxiWarpBilinearBack_8u_C4R;
template <> inline constexpr auto warp_bilinear_back<u16, 1> = huxiWarpBilinearBack_16u_C1R;
template <> inline constexpr auto warp_bilinear_back<u16, 3> = huxiWarpBilinearBack_16u_C3R;
template <> inline constexpr auto warp_bilinear_back<u16, ac4> = huxiWarpBilinearBack_16u_AC4R;
template <> inline constexpr auto warp_bilinear_back<u16, 4> = huxiWarpBilinearBack_16u_C4R;
template <> inline constexpr auto warp_bilinear_back<f32, 1> = huxiWarpBilinearBack_32f_C1R;
template <> inline constexpr auto warp_bilinear_back<f32, 3> = huxiWarpBilinearBack_32f_C3R;
template <> inline constexpr auto warp_bilinear_back<f32, ac4> = huxiWarpBilinearBack_32f_AC4R;
template <> inline constexpr auto warp_bilinear_back<f32, 4> = huxiWarpBilinearBack_32f_C4R;

template <class, int>
inline constexpr auto warp_bilinear_back_planes = nullptr;
template <> inline constexpr auto warp_bilinear_back_planes<u8, 203> = huxiWarpBilinearBack_8u_P3R;
template <> inline constexpr auto warp_bilinear_back_planes<u8, 204> = huxiWarpBilinearBack_8u_P4R;
template <> inline constexpr auto warp_bilinear_back_planes<u16, 203> = huxiWarpBilinearBack_16u_P3R;
template <> inline constexpr auto warp_bilinear_back_planes<u16, 204> = huxiWarpBilinearBack_16u_P4R;
template <> inline constexpr auto warp_bilinear_back_planes<f32, 203> = huxiWarpBilinearBack_32f_P3R;
template <> inline constexpr auto warp_bilinear_back_planes<f32, 204> = huxiWarpBilinearBack_32f_P4R;

template <class, int>
inline constexpr auto warp_bilinear_quad = nullptr;
template <> inline constexpr auto warp_bilinear_quad<u8, 1> = huxiWarpBilinearQuad_8u_C1R;
template <> inline constexpr auto warp_bilinear_quad<u8, 3> = huxiWarpBilinearQuad_8u_C3R;
template <> inline constexpr auto warp_bilinear_quad<u8, ac4> = huxiWarpBilinearQuad_8u_AC4R;
template <> inline constexpr auto warp_bilinear_quad<u8, 4> = huxiWarpBilinearQuad_8u_C4R;
template <> inline constexpr auto warp_bilinear_quad<u16, 1> = huxiWarpBilinearQuad_16u_C1R;
template <> inline constexpr auto warp_bilinear_quad<u16, 3> = huxiWarpBilinearQuad_16u_C3R;
template <> inline constexpr auto warp_bilinear_quad<u16, ac4> = huxiWarpBilinearQuad_16u_AC4R;
template <> inline constexpr auto warp_bilinear_quad<u16, 4> = huxiWarpBilinearQuad_16u_C4R;
template <> inline constexpr auto warp_bilinear_quad<f32, 1> = huxiWarpBilinearQuad_32f_C1R;
template <> inline constexpr auto warp_bilinear_quad<f32, 3> = huxiWarpBilinearQuad_32f_C3R;
template <> inline constexpr auto warp_bilinear_quad<f32, ac4> = huxiWarpBilinearQuad_32f_AC4R;
template <> inline constexpr auto warp_bilinear_quad<f32, 4> = huxiWarpBilinearQuad_32f_C4R;

template <class, int>
inline constexpr auto warp_bilinear_quad_planes = nullptr;
template <> inline constexpr auto warp_bilinear_quad_planes<u8, 203> = huxiWarpBilinearQuad_8u_P3R;
template <> inline constexpr auto warp_bilinear_quad_planes<u8, 204> = huxiWarpBilinearQuad_8u_P4R;
template <> inline constexpr auto warp_bilinear_quad_planes<u16, 203> = huxiWarpBilinearQuad_16u_P3R;
template <> inline constexpr auto warp_bilinear_quad_planes<u16, 204> = huxiWarpBilinearQuad_16u_P4R;
template <> inline constexpr auto warp_bilinear_quad_planes<f32, 203> = huxiWarpBilinearQuad_32f_P3R;
template <> inline constexpr auto warp_bilinear_quad_planes<f32, 204> = huxiWarpBilinearQuad_32f_P4R;

template <class, int>
inline constexpr auto warp_perspective = nullptr;
template <> inline constexpr auto warp_perspective<u8, 1> = huxiWarpPerspective_8u_C1R;
template <> inline constexpr auto warp_perspective<u8, 3> = huxiWarpPerspective_8u_C3R;
template <> inline constexpr auto warp_perspective<u8, ac4> = huxiWarpPerspective_8u_AC4R;
template <> inline constexpr auto warp_perspective<u8, 4> = huxiWarpPerspective_8u_C4R;
template <> inline constexpr auto warp_perspective<u16, 1> = huxiWarpPerspective_16u_C1R;
template <> inline constexpr auto warp_perspective<u16, 3> = huxiWarpPerspective_16u_C3R;
template <> inline constexpr auto warp_perspective<u16, ac4> = huxiWarpPerspective_16u_AC4R;
template <> inline constexpr auto warp_perspective<u16, 4> = huxiWarpPerspective_16u_C4R;
template <> inline constexpr auto warp_perspective<f32, 1> = huxiWarpPerspective_32f_C1R;
template <> inline constexpr auto warp_perspective<f32, 3> = huxiWarpPerspective_32f_C3R;
template <> inline constexpr auto warp_perspective<f32, ac4> = huxiWarpPerspective_32f_AC4R;
template <> inline constexpr auto warp_perspective<f32, 4> = huxiWarpPerspective_32f_C4R;

template <class, int>
inline constexpr auto warp_perspective_planes = nullptr;
template <> inline constexpr auto warp_perspective_planes<u8, 203> = huxiWarpPerspective_8u_P3R;
template <> inline constexpr auto warp_perspective_planes<u8, 204> = huxiWarpPerspective_8u_P4R;
template <> inline constexpr auto warp_perspective_planes<u16, 203> = huxiWarpPerspective_16u_P3R;
template <> inline constexpr auto warp_perspective_planes<u16, 204> = huxiWarpPerspective_16u_P4R;
template <> inline constexpr auto warp_perspective_planes<f32, 203> = huxiWarpPerspective_32f_P3R;
template <> inline constexpr auto warp_perspective_planes<f32, 204> = huxiWarpPerspective_32f_P4R;

template <class, int>
inline constexpr auto warp_perspective_back = nullptr;
template <> inline constexpr auto warp_perspective_back<u8, 1> = huxiWarpPerspectiveBack_8u_C1R;
template <> inline constexpr auto warp_perspective_back<u8, 3> = huxiWarpPerspectiveBack_8u_C3R;
template <> inline constexpr auto warp_perspective_back<u8, ac4> = huxiWarpPerspectiveBack_8u_AC4R;
template <> inline constexpr auto warp_perspective_back<u8, 4> = huxiWarpPerspectiveBack_8u_C4R;
template <> inline constexpr auto warp_perspective_back<u16, 1> = huxiWarpPerspectiveBack_16u_C1R;
template <> inline constexpr auto warp_perspective_back<u16, 3> = huxiWarpPerspectiveBack_16u_C3R;
template <> inline constexpr auto warp_perspective_back<u16, ac4> = huxiWarpPerspectiveBack_16u_AC4R;
template <> inline constexpr auto warp_perspective_back<u16, 4> = huxiWarpPerspectiveBack_16u_C4R;
template <> inline constexpr auto warp_perspective_back<f32, 1> = huxiWarpPerspectiveBack_32f_C1R;
template <> inline constexpr auto warp_perspective_back<f32, 3> = huxiWarpPerspectiveBack_32f_C3R;
template <> inline constexpr auto warp_perspective_back<f32, ac4> = huxiWarpPerspectiveBack_32f_AC4R;
template <> inline constexpr auto warp_perspective_back<f32, 4> = huxiWarpPerspectiveBack_32f_C4R;

template <class, int>
inline constexpr auto warp_perspective_back_planes = nullptr;
template <> inline constexpr auto warp_perspective_back_planes<u8, 203> = huxiWarpPerspectiveBack_8u_P3R;
template <> inline constexpr auto warp_perspective_back_planes<u8, 204> = huxiWarpPerspectiveBack_8u_P4R;
template <> inline constexpr auto warp_perspective_back_planes<u16, 203> = huxiWarpPerspectiveBack_16u_P3R;
template <> inline constexpr auto warp_perspective_back_planes<u16, 204> = huxiWarpPerspectiveBack_16u_P4R;
template <> inline constexpr auto warp_perspective_back_planes<f32, 203> = huxiWarpPerspectiveBack_32f_P3R;
template <> inline constexpr auto warp_perspective_back_planes<f32, 204> = huxiWarpPerspectiveBack_32f_P4R;

template <class, int>
inline constexpr auto warp_perspective_quad = nullptr;
template <> inline constexpr auto warp_perspective_quad<u8, 1> = huxiWarpPerspectiveQuad_8u_C1R;
template <> inline constexpr auto warp_perspective_quad<u8, 3> = huxiWarpPerspectiveQuad_8u_C3R;
template <> inline constexpr auto warp_perspective_quad<u8, ac4> = huxiWarpPerspectiveQuad_8u_AC4R;
template <> inline constexpr auto warp_perspective_quad<u8, 4> = huxiWarpPerspectiveQuad_8u_C4R;
template <> inline constexpr auto warp_perspective_quad<u16, 1> = huxiWarpPerspectiveQuad_16u_C1R;
template <> inline constexpr auto warp_perspective_quad<u16, 3> = huxiWarpPerspectiveQuad_16u_C3R;
template <> inline constexpr auto warp_perspective_quad<u16, ac4> = huxiWarpPerspectiveQuad_16u_AC4R;
template <> inline constexpr auto warp_perspective_quad<u16, 4> = huxiWarpPerspectiveQuad_16u_C4R;
template <> inline constexpr auto warp_perspective_quad<f32, 1> = huxiWarpPerspectiveQuad_32f_C1R;
template <> inline constexpr auto warp_perspective_quad<f32, 3> = huxiWarpPerspectiveQuad_32f_C3R;
template <> inline constexpr auto warp_perspective_quad<f32, ac4> = huxiWarpPerspectiveQuad_32f_AC4R;
template <> inline constexpr auto warp_perspective_quad<f32, 4> = huxiWarpPerspectiveQuad_32f_C4R;

template <class, int>
inline constexpr auto warp_perspective_quad_planes = nullptr;
template <> inline constexpr auto warp_perspective_quad_planes<u8, 203> = huxiWarpPerspectiveQuad_8u_P3R;
template <> inline constexpr auto warp_perspective_quad_planes<u8, 204> = huxiWarpPerspectiveQuad_8u_P4R;
template <> inline constexpr auto warp_perspective_quad_planes<u16, 203> = huxiWarpPerspectiveQuad_16u_P3R;
template <> inline constexpr auto warp_perspective_quad_planes<u16, 204> = huxiWarpPerspectiveQuad_16u_P4R;
template <> inline constexpr auto warp_perspective_quad_planes<f32, 203> = huxiWarpPerspectiveQuad_32f_P3R;
template <> inline constexpr auto warp_perspective_quad_planes<f32, 204> = huxiWarpPerspectiveQuad_32f_P4R;

template <class, int>
inline constexpr auto remap = nullptr;
template <> inline constexpr auto remap<u8, 1> = huxiRemap_8u_C1R;
template <> inline constexpr auto remap<u8, 3> = huxiRemap_8u_C3R;
template <> inline constexpr auto remap<u8, ac4> = huxiRemap_8u_AC4R;
template <> inline constexpr auto remap<u8, 4> = huxiRemap_8u_C4R;
template <> inline constexpr auto remap<u16, 1> = huxiRemap_16u_C1R;
template <> inline constexpr auto remap<u16, 3> = huxiRemap_16u_C3R;
template <> inline constexpr auto remap<u16, ac4> = huxiRemap_16u_AC4R;
template <> inline constexpr auto remap<u16, 4> = huxiRemap_16u_C4R;
template <> inline constexpr auto remap<f32, 1> = huxiRemap_32f_C1R;
template <> inline constexpr auto remap<f32, 3> = huxiRemap_32f_C3R;
template <> inline constexpr auto remap<f32, ac4> = huxiRemap_32f_AC4R;
template <> inline constexpr auto remap<f32, 4> = huxiRemap_32f_C4R;

template <class, int>
inline constexpr auto remap_planes = nullptr;
template <> inline constexpr auto remap_planes<u8, 203> = huxiRemap_8u_P3R;
template <> inline constexpr auto remap_planes<u8, 204> = huxiRemap_8u_P4R;
template <> inline constexpr auto remap_planes<u16, 203> = huxiRemap_16u_P3R;
template <> inline constexpr auto remap_planes<u16, 204> = huxiRemap_16u_P4R;
template <> inline constexpr auto remap_planes<f32, 203> = huxiRemap_32f_P3R;
template <> inline constexpr auto remap_planes<f32, 204> = huxiRemap_32f_P4R;

template <class, int, int>
inline constexpr auto copy = nullptr;
template <> inline constexpr auto copy<u8, 1, 1> = huxiCopy_8u_C1R;
template <> inline constexpr auto copy<s16, 1, 1> = huxiCopy_16s_C1R;
template <> inline constexpr auto copy<s32, 1, 1> = huxiCopy_32s_C1R;
template <> inline constexpr auto copy<f32, 1, 1> = huxiCopy_32f_C1R;
template <> inline constexpr auto copy<u8, 3, 3> = huxiCopy_8u_C3R;
template <> inline constexpr auto copy<s16, 3, 3> = huxiCopy_16s_C3R;
template <> inline constexpr auto copy<s32, 3, 3> = huxiCopy_32s_C3R;
template <> inline constexpr auto copy<f32, 3, 3> = huxiCopy_32f_C3R;
template <> inline constexpr auto copy<u8, 4, 4> = huxiCopy_8u_C4R;
template <> inline constexpr auto copy<s16, 4, 4> = huxiCopy_16s_C4R;
template <> inline constexpr auto copy<s32, 4, 4> = huxiCopy_32s_C4R;
template <> inline constexpr auto copy<f32, 4, 4> = huxiCopy_32f_C4R;
template <> inline constexpr auto copy<u8, ac4, ac4> = huxiCopy_8u_AC4R;
template <> inline constexpr auto copy<s16, ac4, ac4> = huxiCopy_16s_AC4R;
template <> inline constexpr auto copy<s32, ac4, ac4> = huxiCopy_32s_AC4R;
template <> inline constexpr auto copy<f32, ac4, ac4> = huxiCopy_32f_AC4R;
template <> inline constexpr auto copy<u8, 3, ac4> = huxiCopy_8u_AC4C3R;
template <> inline constexpr auto copy<s16, 3, ac4> = huxiCopy_16s_AC4C3R;
template <> inline constexpr auto copy<s32, 3, ac4> = huxiCopy_32s_AC4C3R;
template <> inline constexpr auto copy<f32, 3, ac4> = huxiCopy_32f_AC4C3R;
template <> inline constexpr auto copy<u8, ac4, 3> = huxiCopy_8u_C3AC4R;
template <> inline constexpr auto copy<s16, ac4, 3> = huxiCopy_16s_C3AC4R;
template <> inline constexpr auto copy<s32, ac4, 3> = huxiCopy_32s_C3AC4R;
template <> inline constexpr auto copy<f32, ac4, 3> = huxiCopy_32f_C3AC4R;
template <> inline constexpr auto copy<u8, one_of<3>, one_of<3>> = huxiCopy_8u_C3CR;
template <> inline constexpr auto copy<s16, one_of<3>, one_of<3>> = huxiCopy_16s_C3CR;
template <> inline constexpr auto copy<s32, one_of<3>, one_of<3>> = huxiCopy_32s_C3CR;
template <> inline constexpr auto copy<f32, one_of<3>, one_of<3>> = huxiCopy_32f_C3CR;
template <> inline constexpr auto copy<u8, one_of<4>, one_of<4>> = huxiCopy_8u_C4CR;
template <> inline constexpr auto copy<s16, one_of<4>, one_of<4>> = huxiCopy_16s_C4CR;
template <> inline constexpr auto copy<s32, one_of<4>, one_of<4>> = huxiCopy_32s_C4CR;
template <> inline constexpr auto copy<f32, one_of<4>, one_of<4>> = huxiCopy_32f_C4CR;
template <> inline constexpr auto copy<u8, 1, one_of<3>> = huxiCopy_8u_C3C1R;
template <> inline constexpr auto copy<s16, 1, one_of<3>> = huxiCopy_16s_C3C1R;
template <> inline constexpr auto copy<s32, 1, one_of<3>> = huxiCopy_32s_C3C1R;
template <> inline constexpr auto copy<f32, 1, one_of<3>> = huxiCopy_32f_C3C1R;
template <> inline constexpr auto copy<u8, 1, one_of<4>> = huxiCopy_8u_C4C1R;
template <> inline constexpr auto copy<s16, 1, one_of<4>> = huxiCopy_16s_C4C1R;
template <> inline constexpr auto copy<s32, 1, one_of<4>> = huxiCopy_32s_C4C1R;
template <> inline constexpr auto copy<f32, 1, one_of<4>> = huxiCopy_32f_C4C1R;
template <> inline constexpr auto copy<u8, one_of<3>, 1> = huxiCopy_8u_C1C3R;
template <> inline constexpr auto copy<s16, one_of<3>, 1> = huxiCopy_16s_C1C3R;
template <> inline constexpr auto copy<s32, one_of<3>, 1> = huxiCopy_32s_C1C3R;
template <> inline constexpr auto copy<f32, one_of<3>, 1> = huxiCopy_32f_C1C3R;
template <> inline constexpr auto copy<u8, one_of<4>, 1> = huxiCopy_8u_C1C4R;
template <> inline constexpr auto copy<s16, one_of<4>, 1> = huxiCopy_16s_C1C4R;
template <> inline constexpr auto copy<s32, one_of<4>, 1> = huxiCopy_32s_C1C4R;
template <> inline constexpr auto copy<f32, one_of<4>, 1> = huxiCopy_32f_C1C4R;

template <class, int, int>
inline constexpr auto copy_masked = nullptr;
template <> inline constexpr auto copy_masked<u8, 1, 1> = huxiCopy_8u_C1MR;
template <> inline constexpr auto copy_masked<s16, 1, 1> = huxiCopy_16s_C1MR;
template <> inline constexpr auto copy_masked<s32, 1, 1> = huxiCopy_32s_C1MR;
template <> inline constexpr auto copy_masked<f32, 1, 1> = huxiCopy_32f_C1MR;
template <> inline constexpr auto copy_masked<u8, 3, 3> = huxiCopy_8u_C3MR;
template <> inline constexpr auto copy_masked<s16, 3, 3> = huxiCopy_16s_C3MR;
template <> inline constexpr auto copy_masked<s32, 3, 3> = huxiCopy_32s_C3MR;
template <> inline constexpr auto copy_masked<f32, 3, 3> = huxiCopy_32f_C3MR;
template <> inline constexpr auto copy_masked<u8, 4, 4> = huxiCopy_8u_C4MR;
template <> inline constexpr auto copy_masked<s16, 4, 4> = huxiCopy_16s_C4MR;
template <> inline constexpr auto copy_masked<s32, 4, 4> = huxiCopy_32s_C4MR;
template <> inline constexpr auto copy_masked<f32, 4, 4> = huxiCopy_32f_C4MR;
template <> inline constexpr auto copy_masked<u8, ac4, ac4> = huxiCopy_8u_AC4MR;
template <> inline constexpr auto copy_masked<s16, ac4, ac4> = huxiCopy_16s_AC4MR;
template <> inline constexpr auto copy_masked<s32, ac4, ac4> = huxiCopy_32s_AC4MR;
template <> inline constexpr auto copy_masked<f32, ac4, ac4> = huxiCopy_32f_AC4MR;

template <class, int, int>
inline constexpr auto copy_to_planes = nullptr;
template <> inline constexpr auto copy_to_planes<u8, 203, 3> = huxiCopy_8u_C3P3R;
template <> inline constexpr auto copy_to_planes<s16, 203, 3> = huxiCopy_16s_C3P3R;
template <> inline constexpr auto copy_to_planes<s32, 203, 3> = huxiCopy_32s_C3P3R;
template <> inline constexpr auto copy_to_planes<f32, 203, 3> = huxiCopy_32f_C3P3R;
template <> inline constexpr auto copy_to_planes<u8, 204, 4> = huxiCopy_8u_C4P4R;
template <> inline constexpr auto copy_to_planes<s16, 204, 4> = huxiCopy_16s_C4P4R;
template <> inline constexpr auto copy_to_planes<s32, 204, 4> = huxiCopy_32s_C4P4R;
template <> inline constexpr auto copy_to_planes<f32, 204, 4> = huxiCopy_32f_C4P4R;

template <class, int, int>
inline constexpr auto copy_from_planes = nullptr;
template <> inline constexpr auto copy_from_planes<u8, 3, 203> = huxiCopy_8u_P3C3R;
template <> inline constexpr auto copy_from_planes<s16, 3, 203> = huxiCopy_16s_P3C3R;
template <> inline constexpr auto copy_from_planes<s32, 3, 203> = huxiCopy_32s_P3C3R;
template <> inline constexpr auto copy_from_planes<f32, 3, 203> = huxiCopy_32f_P3C3R;
template <> inline constexpr auto copy_from_planes<u8, 4, 204> = huxiCopy_8u_P4C4R;
template <> inline constexpr auto copy_from_planes<s16, 4, 204> = huxiCopy_16s_P4C4R;
template <> inline constexpr auto copy_from_planes<s32, 4, 204> = huxiCopy_32s_P4C4R;
template <> inline constexpr auto copy_from_planes<f32, 4, 204> = huxiCopy_32f_P4C4R;

template <class, int>
inline constexpr auto set = nullptr;
template <> inline constexpr auto set<u8, 1> = huxiSet_8u_C1R;
template <> inline constexpr auto set<s16, 1> = huxiSet_16s_C1R;
template <> inline constexpr auto set<s32, 1> = huxiSet_32s_C1R;
template <> inline constexpr auto set<f32, 1> = huxiSet_32f_C1R;
template <> inline constexpr auto set<u8, one_of<3>> = huxiSet_8u_C3CR;
template <> inline constexpr auto set<s16, one_of<3>> = huxiSet_16s_C3CR;
template <> inline constexpr auto set<s32, one_of<3>> = huxiSet_32s_C3CR;
template <> inline constexpr auto set<f32, one_of<3>> = huxiSet_32f_C3CR;
template <> inline constexpr auto set<u8, one_of<4>> = huxiSet_8u_C4CR;
template <> inline constexpr auto set<s16, one_of<4>> = huxiSet_16s_C4CR;
template <> inline constexpr auto set<s32, one_of<4>> = huxiSet_32s_C4CR;
template <> inline constexpr auto set<f32, one_of<4>> = huxiSet_32f_C4CR;
template <> inline constexpr auto set<u8, 3> = huxiSet_8u_C3R;
template <> inline constexpr auto set<s16, 3> = huxiSet_16s_C3R;
template <> inline constexpr auto set<s32, 3> = huxiSet_32s_C3R;
template <> inline constexpr auto set<f32, 3> = huxiSet_32f_C3R;
template <> inline constexpr auto set<u8, 4> = huxiSet_8u_C4R;
template <> inline constexpr auto set<s16, 4> = huxiSet_16s_C4R;
template <> inline constexpr auto set<s32, 4> = huxiSet_32s_C4R;
template <> inline constexpr auto set<f32, 4> = huxiSet_32f_C4R;
template <> inline constexpr auto set<u8, ac4> = huxiSet_8u_AC4R;
template <> inline constexpr auto set<s16, ac4> = huxiSet_16s_AC4R;
template <> inline constexpr auto set<s32, ac4> = huxiSet_32s_AC4R;
template <> inline constexpr auto set<f32, ac4> = huxiSet_32f_AC4R;

template <class, int>
inline constexpr auto set_masked = nullptr;
template <> inline constexpr auto set_masked<u8, 1> = huxiSet_8u_C1MR;
template <> inline constexpr auto set_masked<s16, 1> = huxiSet_16s_C1MR;
template <> inline constexpr auto set_masked<s32, 1> = huxiSet_32s_C1MR;
template <> inline constexpr auto set_masked<f32, 1> = huxiSet_32f_C1MR;
template <> inline constexpr auto set_masked<u8, 3> = huxiSet_8u_C3MR;
template <> inline constexpr auto set_masked<s16, 3> = huxiSet_16s_C3MR;
template <> inline constexpr auto set_masked<s32, 3> = huxiSet_32s_C3MR;
template <> inline constexpr auto set_masked<f32, 3> = huxiSet_32f_C3MR;
template <> inline constexpr auto set_masked<u8, 4> = huxiSet_8u_C4MR;
template <> inline constexpr auto set_masked<s16, 4> = huxiSet_16s_C4MR;
template <> inline constexpr auto set_masked<s32, 4> = huxiSet_32s_C4MR;
template <> inline constexpr auto set_masked<f32, 4> = huxiSet_32f_C4MR;
template <> inline constexpr auto set_masked<u8, ac4> = huxiSet_8u_AC4MR;
template <> inline constexpr auto set_masked<s16, ac4> = huxiSet_16s_AC4MR;
template <> inline constexpr auto set_masked<s32, ac4> = huxiSet_32s_AC4MR;
template <> inline constexpr auto set_masked<f32, ac4> = huxiSet_32f_AC4MR;

template <class, int, class>
inline constexpr auto convert = nullptr;
template <> inline constexpr auto convert<u16, 1, u8> = huxiConvert_8u16u_C1R;
template <> inline constexpr auto convert<u16, 3, u8> = huxiConvert_8u16u_C3R;
template <> inline constexpr auto convert<u16, 4, u8> = huxiConvert_8u16u_C4R;
template <> inline constexpr auto convert<u16, ac4, u8> = huxiConvert_8u16u_AC4R;
template <> inline constexpr auto convert<s16, 1, u8> = huxiConvert_8u16s_C1R;
template <> inline constexpr auto convert<s16, 3, u8> = huxiConvert_8u16s_C3R;
template <> inline constexpr auto convert<s16, 4, u8> = huxiConvert_8u16s_C4R;
template <> inline constexpr auto convert<s16, ac4, u8> = huxiConvert_8u16s_AC4R;
template <> inline constexpr auto convert<s32, 1, u8> = huxiConvert_8u32s_C1R;
template <> inline constexpr auto convert<s32, 3, u8> = huxiConvert_8u32s_C3R;
template <> inline constexpr auto convert<s32, 4, u8> = huxiConvert_8u32s_C4R;
template <> inline constexpr auto convert<s32, ac4, u8> = huxiConvert_8u32s_AC4R;
template <> inline constexpr auto convert<f32, 1, u8> = huxiConvert_8u32f_C1R;
template <> inline constexpr auto convert<f32, 3, u8> = huxiConvert_8u32f_C3R;
template <> inline constexpr auto convert<f32, 4, u8> = huxiConvert_8u32f_C4R;
template <> inline constexpr auto convert<f32, ac4, u8> = huxiConvert_8u32f_AC4R;
template <> inline constexpr auto convert<s32, 1, s8> = huxiConvert_8s32s_C1R;
template <> inline constexpr auto convert<s32, 3, s8> = huxiConvert_8s32s_C3R;
template <> inline constexpr auto convert<s32, 4, s8> = huxiConvert_8s32s_C4R;
template <> inline constexpr auto convert<s32, ac4, s8> = huxiConvert_8s32s_AC4R;
template <> inline constexpr auto convert<f32, 1, s8> = huxiConvert_8s32f_C1R;
template <> inline constexpr auto convert<f32, 3, s8> = huxiConvert_8s32f_C3R;
template <> inline constexpr auto convert<f32, 4, s8> = huxiConvert_8s32f_C4R;
template <> inline constexpr auto convert<f32, ac4, s8> = huxiConvert_8s32f_AC4R;
template <> inline constexpr auto convert<u8, 1, u16> = huxiConvert_16u8u_C1R;
template <> inline constexpr auto convert<u8, 3, u16> = huxiConvert_16u8u_C3R;
template <> inline constexpr auto convert<u8, 4, u16> = huxiConvert_16u8u_C4R;
template <> inline constexpr auto convert<u8, ac4, u16> = huxiConvert_16u8u_AC4R;
template <> inline constexpr auto convert<s32, 1, u16> = huxiConvert_16u32s_C1R;
template <> inline constexpr auto convert<s32, 3, u16> = huxiConvert_16u32s_C3R;
template <> inline constexpr auto convert<s32, 4, u16> = huxiConvert_16u32s_C4R;
template <> inline constexpr auto convert<s32, ac4, u16> = huxiConvert_16u32s_AC4R;
template <> inline constexpr auto convert<f32, 1, u16> = huxiConvert_16u32f_C1R;
template <> inline constexpr auto convert<f32, 3, u16> = huxiConvert_16u32f_C3R;
template <> inline constexpr auto convert<f32, 4, u16> = huxiConvert_16u32f_C4R;
template <> inline constexpr auto convert<f32, ac4, u16> = huxiConvert_16u32f_AC4R;
template <> inline constexpr auto convert<u8, 1, s16> = huxiConvert_16s8u_C1R;
template <> inline constexpr auto convert<u8, 3, s16> = huxiConvert_16s8u_C3R;
template <> inline constexpr auto convert<u8, 4, s16> = huxiConvert_16s8u_C4R;
template <> inline constexpr auto convert<u8, ac4, s16> = huxiConvert_16s8u_AC4R;
template <> inline constexpr auto convert<f32, 1, s16> = huxiConvert_16s32f_C1R;
template <> inline constexpr auto convert<f32, 3, s16> = huxiConvert_16s32f_C3R;
template <> inline constexpr auto convert<f32, 4, s16> = huxiConvert_16s32f_C4R;
template <> inline constexpr auto convert<f32, ac4, s16> = huxiConvert_16s32f_AC4R;
template <> inline constexpr auto convert<u8, 1, s32> = huxiConvert_32s8u_C1R;
template <> inline constexpr auto convert<u8, 3, s32> = huxiConvert_32s8u_C3R;
template <> inline constexpr auto convert<u8, 4, s32> = huxiConvert_32s8u_C4R;
template <> inline constexpr auto convert<u8, ac4, s32> = huxiConvert_32s8u_AC4R;
template <> inline constexpr auto convert<s8, 1, s32> = huxiConvert_32s8s_C1R;
template <> inline constexpr auto convert<s8, 3, s32> = huxiConvert_32s8s_C3R;
template <> inline constexpr auto convert<s8, 4, s32> = huxiConvert_32s8s_C4R;
template <> inline constexpr auto convert<s8, ac4, s32> = huxiConvert_32s8s_AC4R;
template <> inline constexpr auto convert<u8, 1, f32> = huxiConvert_32f8u_C1R;
template <> inline constexpr auto convert<u8, 3, f32> = huxiConvert_32f8u_C3R;
template <> inline constexpr auto convert<u8, 4, f32> = huxiConvert_32f8u_C4R;
template <> inline constexpr auto convert<u8, ac4, f32> = huxiConvert_32f8u_AC4R;
template <> inline constexpr auto convert<s8, 1, f32> = huxiConvert_32f8s_C1R;
template <> inline constexpr auto convert<s8, 3, f32> = huxiConvert_32f8s_C3R;
template <> inline constexpr auto convert<s8, 4, f32> = huxiConvert_32f8s_C4R;
template <> inline constexpr auto convert<s8, ac4, f32> = huxiConvert_32f8s_AC4R;
template <> inline constexpr auto convert<u16, 1, f32> = huxiConvert_32f16u_C1R;
template <> inline constexpr auto convert<u16, 3, f32> = huxiConvert_32f16u_C3R;
template <> inline constexpr auto convert<u16, 4, f32> = huxiConvert_32f16u_C4R;
template <> inline constexpr auto convert<u16, ac4, f32> = huxiConvert_32f16u_AC4R;
template <> inline constexpr auto convert<s16, 1, f32> = huxiConvert_32f16s_C1R;
template <> inline constexpr auto convert<s16, 3, f32> = huxiConvert_32f16s_C3R;
template <> inline constexpr auto convert<s16, 4, f32> = huxiConvert_32f16s_C4R;
template <> inline constexpr auto convert<s16, ac4, f32> = huxiConvert_32f16s_AC4R;

template <class, int, class>
inline constexpr auto scale = nullptr;
template <> inline constexpr auto scale<u16, 1, u8> = huxiScale_8u16u_C1R;
template <> inline constexpr auto scale<u16, 3, u8> = huxiScale_8u16u_C3R;
template <> inline constexpr auto scale<u16, 4, u8> = huxiScale_8u16u_C4R;
template <> inline constexpr auto scale<u16, ac4, u8> = huxiScale_8u16u_AC4R;
template <> inline constexpr auto scale<s16, 1, u8> = huxiScale_8u16s_C1R;
template <> inline constexpr auto scale<s16, 3, u8> = huxiScale_8u16s_C3R;
template <> inline constexpr auto scale<s16, 4, u8> = huxiScale_8u16s_C4R;
template <> inline constexpr auto scale<s16, ac4, u8> = huxiScale_8u16s_AC4R;
template <> inline constexpr auto scale<s32, 1, u8> = huxiScale_8u32s_C1R;
template <> inline constexpr auto scale<s32, 3, u8> = huxiScale_8u32s_C3R;
template <> inline constexpr auto scale<s32, 4, u8> = huxiScale_8u32s_C4R;
template <> inline constexpr auto scale<s32, ac4, u8> = huxiScale_8u32s_AC4R;
template <> inline constexpr auto scale<u8, 1, u16> = huxiScale_16u8u_C1R;
template <> inline constexpr auto scale<u8, 3, u16> = huxiScale_16u8u_C3R;
template <> inline constexpr auto scale<u8, 4, u16> = huxiScale_16u8u_C4R;
template <> inline constexpr auto scale<u8, ac4, u16> = huxiScale_16u8u_AC4R;
template <> inline constexpr auto scale<u8, 1, s16> = huxiScale_16s8u_C1R;
template <> inline constexpr auto scale<u8, 3, s16> = huxiScale_16s8u_C3R;
template <> inline constexpr auto scale<u8, 4, s16> = huxiScale_16s8u_C4R;
template <> inline constexpr auto scale<u8, ac4, s16> = huxiScale_16s8u_AC4R;
template <> inline constexpr auto scale<u8, 1, s32> = huxiScale_32s8u_C1R;
template <> inline constexpr auto scale<u8, 3, s32> = huxiScale_32s8u_C3R;
template <> inline constexpr auto scale<u8, 4, s32> = huxiScale_32s8u_C4R;
template <> inline constexpr auto scale<u8, ac4, s32> = huxiScale_32s8u_AC4R;

template <class, int, class>
inline constexpr auto scale_with_v_min_v_max = nullptr;
template <> inline constexpr auto scale_with_v_min_v_max<f32, 1, u8> = huxiScale_8u32f_C1R;
template <> inline constexpr auto scale_with_v_min_v_max<f32, 3, u8> = huxiScale_8u32f_C3R;
template <> inline constexpr auto scale_with_v_min_v_max<f32, 4, u8> = huxiScale_8u32f_C4R;
template <> inline constexpr auto scale_with_v_min_v_max<f32, ac4, u8> = huxiScale_8u32f_AC4R;
template <> inline constexpr auto scale_with_v_min_v_max<u8, 1, f32> = huxiScale_32f8u_C1R;
template <> inline constexpr auto scale_with_v_min_v_max<u8, 3, f32> = huxiScale_32f8u_C3R;
template <> inline constexpr auto scale_with_v_min_v_max<u8, 4, f32> = huxiScale_32f8u_C4R;
template <> inline constexpr auto scale_with_v_min_v_max<u8, ac4, f32> = huxiScale_32f8u_AC4R;

template <class, int>
inline constexpr auto copy_const_border = nullptr;
template <> inline constexpr auto copy_const_border<u8, 1> = huxiCopyConstBorder_8u_C1R;
template <> inline constexpr auto copy_const_border<s16, 1> = huxiCopyConstBorder_16s_C1R;
template <> inline constexpr auto copy_const_border<s32, 1> = huxiCopyConstBorder_32s_C1R;
template <> inline constexpr auto copy_const_border<u8, 3> = huxiCopyConstBorder_8u_C3R;
template <> inline constexpr auto copy_const_border<s16, 3> = huxiCopyConstBorder_16s_C3R;
template <> inline constexpr auto copy_const_border<s32, 3> = huxiCopyConstBorder_32s_C3R;
template <> inline constexpr auto copy_const_border<u8, 4> = huxiCopyConstBorder_8u_C4R;
template <> inline constexpr auto copy_const_border<s16, 4> = huxiCopyConstBorder_16s_C4R;
template <> inline constexpr auto copy_const_border<s32, 4> = huxiCopyConstBorder_32s_C4R;
template <> inline constexpr auto copy_const_border<u8, ac4> = huxiCopyConstBorder_8u_AC4R;
template <> inline constexpr auto copy_const_border<s16, ac4> = huxiCopyConstBorder_16s_AC4R;
template <> inline constexpr auto copy_const_border<s32, ac4> = huxiCopyConstBorder_32s_AC4R;

template <class, int>
inline constexpr auto copy_replicate_border = nullptr;
template <> inline constexpr auto copy_replicate_border<u8, 1> = huxiCopyReplicateBorder_8u_C1R;
template <> inline constexpr auto copy_replicate_border<s16, 1> = huxiCopyReplicateBorder_16s_C1R;
template <> inline constexpr auto copy_replicate_border<s32, 1> = huxiCopyReplicateBorder_32s_C1R;
template <> inline constexpr auto copy_replicate_border<u8, 3> = huxiCopyReplicateBorder_8u_C3R;
template <> inline constexpr auto copy_replicate_border<s16, 3> = huxiCopyReplicateBorder_16s_C3R;
template <> inline constexpr auto copy_replicate_border<s32, 3> = huxiCopyReplicateBorder_32s_C3R;
template <> inline constexpr auto copy_replicate_border<u8, 4> = huxiCopyReplicateBorder_8u_C4R;
template <> inline constexpr auto copy_replicate_border<s16, 4> = huxiCopyReplicateBorder_16s_C4R;
template <> inline constexpr auto copy_replicate_border<s32, 4> = huxiCopyReplicateBorder_32s_C4R;
template <> inline constexpr auto copy_replicate_border<u8, ac4> = huxiCopyReplicateBorder_8u_AC4R;
template <> inline constexpr auto copy_replicate_border<s16, ac4> = huxiCopyReplicateBorder_16s_AC4R;
template <> inline constexpr auto copy_replicate_border<s32, ac4> = huxiCopyReplicateBorder_32s_AC4R;

template <class, int>
inline constexpr auto copy_replicate_border_in_place = nullptr;
template <> inline constexpr auto copy_replicate_border_in_place<u8, 1> = huxiCopyReplicateBorder_8u_C1IR;
template <> inline constexpr auto copy_replicate_border_in_place<s16, 1> = huxiCopyReplicateBorder_16s_C1IR;
template <> inline constexpr auto copy_replicate_border_in_place<s32, 1> = huxiCopyReplicateBorder_32s_C1IR;
template <> inline constexpr auto copy_replicate_border_in_place<u8, 3> = huxiCopyReplicateBorder_8u_C3IR;
template <> inline constexpr auto copy_replicate_border_in_place<s16, 3> = huxiCopyReplicateBorder_16s_C3IR;
template <> inline constexpr auto copy_replicate_border_in_place<s32, 3> = huxiCopyReplicateBorder_32s_C3IR;
template <> inline constexpr auto copy_replicate_border_in_place<u8, 4> = huxiCopyReplicateBorder_8u_C4IR;
template <> inline constexpr auto copy_replicate_border_in_place<s16, 4> = huxiCopyReplicateBorder_16s_C4IR;
template <> inline constexpr auto copy_replicate_border_in_place<s32, 4> = huxiCopyReplicateBorder_32s_C4IR;
template <> inline constexpr auto copy_replicate_border_in_place<u8, ac4> = huxiCopyReplicateBorder_8u_AC4IR;
template <> inline constexpr auto copy_replicate_border_in_place<s16, ac4> = huxiCopyReplicateBorder_16s_AC4IR;
template <> inline constexpr auto copy_replicate_border_in_place<s32, ac4> = huxiCopyReplicateBorder_32s_AC4IR;

template <class, int>
inline constexpr auto copy_wrap_border = nullptr;
template <> inline constexpr auto copy_wrap_border<s32, 1> = huxiCopyWrapBorder_32s_C1R;

template <class, int>
inline constexpr auto copy_wrap_border_in_place = nullptr;
template <> inline constexpr auto copy_wrap_border_in_place<s32, 1> = huxiCopyWrapBorder_32s_C1IR;

template <class, int>
inline constexpr auto dup = nullptr;
template <> inline constexpr auto dup<u8, 3> = huxiDup_8u_C1C3R;

template <class, int>
inline constexpr auto swap_channels = nullptr;
template <> inline constexpr auto swap_channels<u8, 3> = huxiSwapChannels_8u_C3R;
template <> inline constexpr auto swap_channels<u16, 3> = huxiSwapChannels_16u_C3R;
template <> inline constexpr auto swap_channels<s32, 3> = huxiSwapChannels_32s_C3R;
template <> inline constexpr auto swap_channels<f32, 3> = huxiSwapChannels_32f_C3R;
template <> inline constexpr auto swap_channels<u8, ac4> = huxiSwapChannels_8u_AC4R;
template <> inline constexpr auto swap_channels<u16, ac4> = huxiSwapChannels_16u_AC4R;
template <> inline constexpr auto swap_channels<s32, ac4> = huxiSwapChannels_32s_AC4R;
template <> inline constexpr auto swap_channels<f32, ac4> = huxiSwapChannels_32f_AC4R;

template <class, int>
inline constexpr auto swap_channels_in_place = nullptr;
template <> inline constexpr auto swap_channels_in_place<u8, 3> = huxiSwapChannels_8u_C3IR;

template <class, int>
inline constexpr auto transpose = nullptr;
template <> inline constexpr auto transpose<u8, 1> = huxiTranspose_8u_C1R;
template <> inline constexpr auto transpose<u16, 1> = huxiTranspose_16u_C1R;
template <> inline constexpr auto transpose<s32, 1> = huxiTranspose_32s_C1R;
template <> inline constexpr auto transpose<u8, 3> = huxiTranspose_8u_C3R;
template <> inline constexpr auto transpose<u16, 3> = huxiTranspose_16u_C3R;
template <> inline constexpr auto transpose<s32, 3> = huxiTranspose_32s_C3R;
template <> inline constexpr auto transpose<u8, 4> = huxiTranspose_8u_C4R;
template <> inline constexpr auto transpose<u16, 4> = huxiTranspose_16u_C4R;
template <> inline constexpr auto transpose<s32, 4> = huxiTranspose_32s_C4R;

template <class, int>
inline constexpr auto transpose_in_place = nullptr;
template <> inline constexpr auto transpose_in_place<u8, 1> = huxiTranspose_8u_C1IR;
template <> inline constexpr auto transpose_in_place<u16, 1> = huxiTranspose_16u_C1IR;
template <> inline constexpr auto transpose_in_place<s32, 1> = huxiTranspose_32s_C1IR;
template <> inline constexpr auto transpose_in_place<u8, 3> = huxiTranspose_8u_C3IR;
template <> inline constexpr auto transpose_in_place<u16, 3> = huxiTranspose_16u_C3IR;
template <> inline constexpr auto transpose_in_place<s32, 3> = huxiTranspose_32s_C3IR;
template <> inline constexpr auto transpose_in_place<u8, 4> = huxiTranspose_8u_C4IR;
template <> inline constexpr auto transpose_in_place<u16, 4> = huxiTranspose_16u_C4IR;
template <> inline constexpr auto transpose_in_place<s32, 4> = huxiTranspose_32s_C4IR;

template <class, int>
inline constexpr auto mirror = nullptr;
template <> inline constexpr auto mirror<u8, 1> = huxiMirror_8u_C1R;
template <> inline constexpr auto mirror<u16, 1> = huxiMirror_16u_C1R;
template <> inline constexpr auto mirror<s32, 1> = huxiMirror_32s_C1R;
template <> inline constexpr auto mirror<u8, 3> = huxiMirror_8u_C3R;
template <> inline constexpr auto mirror<u16, 3> = huxiMirror_16u_C3R;
template <> inline constexpr auto mirror<s32, 3> = huxiMirror_32s_C3R;
template <> inline constexpr auto mirror<u8, 4> = huxiMirror_8u_C4R;
template <> inline constexpr auto mirror<u16, 4> = huxiMirror_16u_C4R;
template <> inline constexpr auto mirror<s32, 4> = huxiMirror_32s_C4R;
template <> inline constexpr auto mirror<u8, ac4> = huxiMirror_8u_AC4R;
template <> inline constexpr auto mirror<u16, ac4> = huxiMirror_16u_AC4R;
template <> inline constexpr auto mirror<s32, ac4> = huxiMirror_32s_AC4R;

template <class, int>
inline constexpr auto mirror_in_place = nullptr;
template <> inline constexpr auto mirror_in_place<u8, 1> = huxiMirror_8u_C1IR;
template <> inline constexpr auto mirror_in_place<u16, 1> = huxiMirror_16u_C1IR;
template <> inline constexpr auto mirror_in_place<s32, 1> = huxiMirror_32s_C1IR;
template <> inline constexpr auto mirror_in_place<u8, 3> = huxiMirror_8u_C3IR;
template <> inline constexpr auto mirror_in_place<u16, 3> = huxiMirror_16u_C3IR;
template <> inline constexpr auto mirror_in_place<s32, 3> = huxiMirror_32s_C3IR;
template <> inline constexpr auto mirror_in_place<u8, 4> = huxiMirror_8u_C4IR;
template <> inline constexpr auto mirror_in_place<u16, 4> = huxiMirror_16u_C4IR;
template <> inline constexpr auto mirror_in_place<s32, 4> = huxiMirror_32s_C4IR;
template <> inline constexpr auto mirror_in_place<u8, ac4> = huxiMirror_8u_AC4IR;
template <> inline constexpr auto mirror_in_place<u16, ac4> = huxiMirror_16u_AC4IR;
template <> inline constexpr auto mirror_in_place<s32, ac4> = huxiMirror_32s_AC4IR;

template <class, int>
inline constexpr auto image_ramp = nullptr;
template <> inline constexpr auto image_ramp<u8, 1> = huxiImageRamp_8u_C1R;
template <> inline constexpr auto image_ramp<u8, 3> = huxiImageRamp_8u_C3R;
template <> inline constexpr auto image_ramp<u8, 4> = huxiImageRamp_8u_C4R;
template <> inline constexpr auto image_ramp<u8, ac4> = huxiImageRamp_8u_AC4R;
template <> inline constexpr auto image_ramp<s8, 1> = huxiImageRamp_8s_C1R;
template <> inline constexpr auto image_ramp<s8, 3> = huxiImageRamp_8s_C3R;
template <> inline constexpr auto image_ramp<s8, 4> = huxiImageRamp_8s_C4R;
template <> inline constexpr auto image_ramp<s8, ac4> = huxiImageRamp_8s_AC4R;
template <> inline constexpr auto image_ramp<u16, 1> = huxiImageRamp_16u_C1R;
template <> inline constexpr auto image_ramp<u16, 3> = huxiImageRamp_16u_C3R;
template <> inline constexpr auto image_ramp<u16, 4> = huxiImageRamp_16u_C4R;
template <> inline constexpr auto image_ramp<u16, ac4> = huxiImageRamp_16u_AC4R;
template <> inline constexpr auto image_ramp<s16, 1> = huxiImageRamp_16s_C1R;
template <> inline constexpr auto image_ramp<s16, 3> = huxiImageRamp_16s_C3R;
template <> inline constexpr auto image_ramp<s16, 4> = huxiImageRamp_16s_C4R;
template <> inline constexpr auto image_ramp<s16, ac4> = huxiImageRamp_16s_AC4R;
template <> inline constexpr auto image_ramp<s32, 1> = huxiImageRamp_32s_C1R;
template <> inline constexpr auto image_ramp<s32, 3> = huxiImageRamp_32s_C3R;
template <> inline constexpr auto image_ramp<s32, 4> = huxiImageRamp_32s_C4R;
template <> inline constexpr auto image_ramp<s32, ac4> = huxiImageRamp_32s_AC4R;
template <> inline constexpr auto image_ramp<f32, 1> = huxiImageRamp_32f_C1R;
template <> inline constexpr auto image_ramp<f32, 3> = huxiImageRamp_32f_C3R;
template <> inline constexpr auto image_ramp<f32, 4> = huxiImageRamp_32f_C4R;
template <> inline constexpr auto image_ramp<f32, ac4> = huxiImageRamp_32f_AC4R;

template <class, int>
inline constexpr auto image_jaehne = nullptr;
template <> inline constexpr auto image_jaehne<u8, 1> = huxiImageJaehne_8u_C1R;
template <> inline constexpr auto image_jaehne<u8, 3> = huxiImageJaehne_8u_C3R;
template <> inline constexpr auto image_jaehne<u8, 4> = huxiImageJaehne_8u_C4R;
template <> inline constexpr auto image_jaehne<u8, ac4> = huxiImageJaehne_8u_AC4R;
template <> inline constexpr auto image_jaehne<s8, 1> = huxiImageJaehne_8s_C1R;
template <> inline constexpr auto image_jaehne<s8, 3> = huxiImageJaehne_8s_C3R;
template <> inline constexpr auto image_jaehne<s8, 4> = huxiImageJaehne_8s_C4R;
template <> inline constexpr auto image_jaehne<s8, ac4> = huxiImageJaehne_8s_AC4R;
template <> inline constexpr auto image_jaehne<u16, 1> = huxiImageJaehne_16u_C1R;
template <> inline constexpr auto image_jaehne<u16, 3> = huxiImageJaehne_16u_C3R;
template <> inline constexpr auto image_jaehne<u16, 4> = huxiImageJaehne_16u_C4R;
template <> inline constexpr auto image_jaehne<u16, ac4> = huxiImageJaehne_16u_AC4R;
template <> inline constexpr auto image_jaehne<s16, 1> = huxiImageJaehne_16s_C1R;
template <> inline constexpr auto image_jaehne<s16, 3> = huxiImageJaehne_16s_C3R;
template <> inline constexpr auto image_jaehne<s16, 4> = huxiImageJaehne_16s_C4R;
template <> inline constexpr auto image_jaehne<s16, ac4> = huxiImageJaehne_16s_AC4R;
template <> inline constexpr auto image_jaehne<s32, 1> = huxiImageJaehne_32s_C1R;
template <> inline constexpr auto image_jaehne<s32, 3> = huxiImageJaehne_32s_C3R;
template <> inline constexpr auto image_jaehne<s32, 4> = huxiImageJaehne_32s_C4R;
template <> inline constexpr auto image_jaehne<s32, ac4> = huxiImageJaehne_32s_AC4R;
template <> inline constexpr auto image_jaehne<f32, 1> = huxiImageJaehne_32f_C1R;
template <> inline constexpr auto image_jaehne<f32, 3> = huxiImageJaehne_32f_C3R;
template <> inline constexpr auto image_jaehne<f32, 4> = huxiImageJaehne_32f_C4R;
template <> inline constexpr auto image_jaehne<f32, ac4> = huxiImageJaehne_32f_AC4R;

template <class, int>
inline constexpr auto add_rand_uniform_direct_in_place = nullptr;
template <> inline constexpr auto add_rand_uniform_direct_in_place<u8, 1> = huxiAddRandUniform_Direct_8u_C1IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<u8, 3> = huxiAddRandUniform_Direct_8u_C3IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<u8, 4> = huxiAddRandUniform_Direct_8u_C4IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<u8, ac4> = huxiAddRandUniform_Direct_8u_AC4IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<s16, 1> = huxiAddRandUniform_Direct_16s_C1IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<s16, 3> = huxiAddRandUniform_Direct_16s_C3IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<s16, 4> = huxiAddRandUniform_Direct_16s_C4IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<s16, ac4> = huxiAddRandUniform_Direct_16s_AC4IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<f32, 1> = huxiAddRandUniform_Direct_32f_C1IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<f32, 3> = huxiAddRandUniform_Direct_32f_C3IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<f32, 4> = huxiAddRandUniform_Direct_32f_C4IR;
template <> inline constexpr auto add_rand_uniform_direct_in_place<f32, ac4> = huxiAddRandUniform_Direct_32f_AC4IR;

template <class, int>
inline constexpr auto add_rand_gauss_direct_in_place = nullptr;
template <> inline constexpr auto add_rand_gauss_direct_in_place<u8, 1> = huxiAddRandGauss_Direct_8u_C1IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<u8, 3> = huxiAddRandGauss_Direct_8u_C3IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<u8, 4> = huxiAddRandGauss_Direct_8u_C4IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<u8, ac4> = huxiAddRandGauss_Direct_8u_AC4IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<s16, 1> = huxiAddRandGauss_Direct_16s_C1IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<s16, 3> = huxiAddRandGauss_Direct_16s_C3IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<s16, 4> = huxiAddRandGauss_Direct_16s_C4IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<s16, ac4> = huxiAddRandGauss_Direct_16s_AC4IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<f32, 1> = huxiAddRandGauss_Direct_32f_C1IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<f32, 3> = huxiAddRandGauss_Direct_32f_C3IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<f32, 4> = huxiAddRandGauss_Direct_32f_C4IR;
template <> inline constexpr auto add_rand_gauss_direct_in_place<f32, ac4> = huxiAddRandGauss_Direct_32f_AC4IR;

template <class, int>
inline constexpr auto sum = nullptr;
template <> inline constexpr auto sum<u8, 1> = huxiSum_8u_C1R;
template <> inline constexpr auto sum<u8, 3> = huxiSum_8u_C3R;
template <> inline constexpr auto sum<u8, ac4> = huxiSum_8u_AC4R;
template <> inline constexpr auto sum<u8, 4> = huxiSum_8u_C4R;
template <> inline constexpr auto sum<s16, 1> = huxiSum_16s_C1R;
template <> inline constexpr auto sum<s16, 3> = huxiSum_16s_C3R;
template <> inline constexpr auto sum<s16, ac4> = huxiSum_16s_AC4R;
template <> inline constexpr auto sum<s16, 4> = huxiSum_16s_C4R;
template <> inline constexpr auto sum<u16, 1> = huxiSum_16u_C1R;
template <> inline constexpr auto sum<u16, 3> = huxiSum_16u_C3R;
template <> inline constexpr auto sum<u16, ac4> = huxiSum_16u_AC4R;
template <> inline constexpr auto sum<u16, 4> = huxiSum_16u_C4R;
template <> inline constexpr auto sum<f32, 1> = huxiSum_32f_C1R;
template <> inline constexpr auto sum<f32, 3> = huxiSum_32f_C3R;
template <> inline constexpr auto sum<f32, ac4> = huxiSum_32f_AC4R;
template <> inline constexpr auto sum<f32, 4> = huxiSum_32f_C4R;

template <class, int>
inline constexpr auto mean = nullptr;
template <> inline constexpr auto mean<u8, 1> = huxiMean_8u_C1R;
template <> inline constexpr auto mean<u8, 3> = huxiMean_8u_C3R;
template <> inline constexpr auto mean<u8, ac4> = huxiMean_8u_AC4R;
template <> inline constexpr auto mean<u8, 4> = huxiMean_8u_C4R;
template <> inline constexpr auto mean<s16, 1> = huxiMean_16s_C1R;
template <> inline constexpr auto mean<s16, 3> = huxiMean_16s_C3R;
template <> inline constexpr auto mean<s16, ac4> = huxiMean_16s_AC4R;
template <> inline constexpr auto mean<s16, 4> = huxiMean_16s_C4R;
template <> inline constexpr auto mean<u16, 1> = huxiMean_16u_C1R;
template <> inline constexpr auto mean<u16, 3> = huxiMean_16u_C3R;
template <> inline constexpr auto mean<u16, ac4> = huxiMean_16u_AC4R;
template <> inline constexpr auto mean<u16, 4> = huxiMean_16u_C4R;
template <> inline constexpr auto mean<f32, 1> = huxiMean_32f_C1R;
template <> inline constexpr auto mean<f32, 3> = huxiMean_32f_C3R;
template <> inline constexpr auto mean<f32, ac4> = huxiMean_32f_AC4R;
template <> inline constexpr auto mean<f32, 4> = huxiMean_32f_C4R;

template <class, int>
inline constexpr auto min = nullptr;
template <> inline constexpr auto min<u8, 1> = huxiMin_8u_C1R;
template <> inline constexpr auto min<u8, 3> = huxiMin_8u_C3R;
template <> inline constexpr auto min<u8, ac4> = huxiMin_8u_AC4R;
template <> inline constexpr auto min<u8, 4> = huxiMin_8u_C4R;
template <> inline constexpr auto min<s16, 1> = huxiMin_16s_C1R;
template <> inline constexpr auto min<s16, 3> = huxiMin_16s_C3R;
template <> inline constexpr auto min<s16, ac4> = huxiMin_16s_AC4R;
template <> inline constexpr auto min<s16, 4> = huxiMin_16s_C4R;
template <> inline constexpr auto min<f32, 1> = huxiMin_32f_C1R;
template <> inline constexpr auto min<f32, 3> = huxiMin_32f_C3R;
template <> inline constexpr auto min<f32, ac4> = huxiMin_32f_AC4R;
template <> inline constexpr auto min<f32, 4> = huxiMin_32f_C4R;

template <class, int>
inline constexpr auto max = nullptr;
template <> inline constexpr auto max<u8, 1> = huxiMax_8u_C1R;
template <> inline constexpr auto max<u8, 3> = huxiMax_8u_C3R;
template <> inline constexpr auto max<u8, ac4> = huxiMax_8u_AC4R;
template <> inline constexpr auto max<u8, 4> = huxiMax_8u_C4R;
template <> inline constexpr auto max<s16, 1> = huxiMax_16s_C1R;
template <> inline constexpr auto max<s16, 3> = huxiMax_16s_C3R;
template <> inline constexpr auto max<s16, ac4> = huxiMax_16s_AC4R;
template <> inline constexpr auto max<s16, 4> = huxiMax_16s_C4R;
template <> inline constexpr auto max<f32, 1> = huxiMax_32f_C1R;
template <> inline constexpr auto max<f32, 3> = huxiMax_32f_C3R;
template <> inline constexpr auto max<f32, ac4> = huxiMax_32f_AC4R;
template <> inline constexpr auto max<f32, 4> = huxiMax_32f_C4R;

template <class, int>
inline constexpr auto min_max = nullptr;
template <> inline constexpr auto min_max<u8, 1> = huxiMinMax_8u_C1R;
template <> inline constexpr auto min_max<u8, 3> = huxiMinMax_8u_C3R;
template <> inline constexpr auto min_max<u8, ac4> = huxiMinMax_8u_AC4R;
template <> inline constexpr auto min_max<u8, 4> = huxiMinMax_8u_C4R;
template <> inline constexpr auto min_max<s16, 1> = huxiMinMax_16s_C1R;
template <> inline constexpr auto min_max<s16, 3> = huxiMinMax_16s_C3R;
template <> inline constexpr auto min_max<s16, ac4> = huxiMinMax_16s_AC4R;
template <> inline constexpr auto min_max<s16, 4> = huxiMinMax_16s_C4R;
template <> inline constexpr auto min_max<f32, 1> = huxiMinMax_32f_C1R;
template <> inline constexpr auto min_max<f32, 3> = huxiMinMax_32f_C3R;
template <> inline constexpr auto min_max<f32, ac4> = huxiMinMax_32f_AC4R;
template <> inline constexpr auto min_max<f32, 4> = huxiMinMax_32f_C4R;

template <class, int>
inline constexpr auto min_indx = nullptr;
template <> inline constexpr auto min_indx<u8, 1> = huxiMinIndx_8u_C1R;
template <> inline constexpr auto min_indx<u8, 3> = huxiMinIndx_8u_C3R;
template <> inline constexpr auto min_indx<u8, ac4> = huxiMinIndx_8u_AC4R;
template <> inline constexpr auto min_indx<u8, 4> = huxiMinIndx_8u_C4R;
template <> inline constexpr auto min_indx<s16, 1> = huxiMinIndx_16s_C1R;
template <> inline constexpr auto min_indx<s16, 3> = huxiMinIndx_16s_C3R;
template <> inline constexpr auto min_indx<s16, ac4> = huxiMinIndx_16s_AC4R;
template <> inline constexpr auto min_indx<s16, 4> = huxiMinIndx_16s_C4R;
template <> inline constexpr auto min_indx<f32, 1> = huxiMinIndx_32f_C1R;
template <> inline constexpr auto min_indx<f32, 3> = huxiMinIndx_32f_C3R;
template <> inline constexpr auto min_indx<f32, ac4> = huxiMinIndx_32f_AC4R;
template <> inline constexpr auto min_indx<f32, 4> = huxiMinIndx_32f_C4R;

template <class, int>
inline constexpr auto max_indx = nullptr;
template <> inline constexpr auto max_indx<u8, 1> = huxiMaxIndx_8u_C1R;
template <> inline constexpr auto max_indx<u8, 3> = huxiMaxIndx_8u_C3R;
template <> inline constexpr auto max_indx<u8, ac4> = huxiMaxIndx_8u_AC4R;
template <> inline constexpr auto max_indx<u8, 4> = huxiMaxIndx_8u_C4R;
template <> inline constexpr auto max_indx<s16, 1> = huxiMaxIndx_16s_C1R;
template <> inline constexpr auto max_indx<s16, 3> = huxiMaxIndx_16s_C3R;
template <> inline constexpr auto max_indx<s16, ac4> = huxiMaxIndx_16s_AC4R;
template <> inline constexpr auto max_indx<s16, 4> = huxiMaxIndx_16s_C4R;
template <> inline constexpr auto max_indx<f32, 1> = huxiMaxIndx_32f_C1R;
template <> inline constexpr auto max_indx<f32, 3> = huxiMaxIndx_32f_C3R;
template <> inline constexpr auto max_indx<f32, ac4> = huxiMaxIndx_32f_AC4R;
template <> inline constexpr auto max_indx<f32, 4> = huxiMaxIndx_32f_C4R;

template <class, int>
inline constexpr auto count_in_range = nullptr;
template <> inline constexpr auto count_in_range<u8, 1> = huxiCountInRange_8u_C1R;
template <> inline constexpr auto count_in_range<u8, 3> = huxiCountInRange_8u_C3R;
template <> inline constexpr auto count_in_range<u8, ac4> = huxiCountInRange_8u_AC4R;
template <> inline constexpr auto count_in_range<f32, 1> = huxiCountInRange_32f_C1R;
template <> inline constexpr auto count_in_range<f32, 3> = huxiCountInRange_32f_C3R;
template <> inline constexpr auto count_in_range<f32, ac4> = huxiCountInRange_32f_AC4R;

template <class, int>
inline constexpr auto norm_inf = nullptr;
template <> inline constexpr auto norm_inf<u8, 1> = huxiNorm_Inf_8u_C1R;
template <> inline constexpr auto norm_inf<u8, 3> = huxiNorm_Inf_8u_C3R;
template <> inline constexpr auto norm_inf<u8, ac4> = huxiNorm_Inf_8u_AC4R;
template <> inline constexpr auto norm_inf<u8, 4> = huxiNorm_Inf_8u_C4R;
template <> inline constexpr auto norm_inf<s16, 1> = huxiNorm_Inf_16s_C1R;
template <> inline constexpr auto norm_inf<s16, 3> = huxiNorm_Inf_16s_C3R;
template <> inline constexpr auto norm_inf<s16, ac4> = huxiNorm_Inf_16s_AC4R;
template <> inline constexpr auto norm_inf<s16, 4> = huxiNorm_Inf_16s_C4R;
template <> inline constexpr auto norm_inf<u16, 1> = huxiNorm_Inf_16u_C1R;
template <> inline constexpr auto norm_inf<u16, 3> = huxiNorm_Inf_16u_C3R;
template <> inline constexpr auto norm_inf<u16, ac4> = huxiNorm_Inf_16u_AC4R;
template <> inline constexpr auto norm_inf<u16, 4> = huxiNorm_Inf_16u_C4R;
template <> inline constexpr auto norm_inf<f32, 1> = huxiNorm_Inf_32f_C1R;
template <> inline constexpr auto norm_inf<f32, 3> = huxiNorm_Inf_32f_C3R;
template <> inline constexpr auto norm_inf<f32, ac4> = huxiNorm_Inf_32f_AC4R;
template <> inline constexpr auto norm_inf<f32, 4> = huxiNorm_Inf_32f_C4R;
template <> inline constexpr auto norm_inf<s32, 1> = huxiNorm_Inf_32s_C1R;

template <class, int>
inline constexpr auto norm_l1 = nullptr;
template <> inline constexpr auto norm_l1<u8, 1> = huxiNorm_L1_8u_C1R;
template <> inline constexpr auto norm_l1<u8, 3> = huxiNorm_L1_8u_C3R;
template <> inline constexpr auto norm_l1<u8, ac4> = huxiNorm_L1_8u_AC4R;
template <> inline constexpr auto norm_l1<u8, 4> = huxiNorm_L1_8u_C4R;
template <> inline constexpr auto norm_l1<s16, 1> = huxiNorm_L1_16s_C1R;
template <> inline constexpr auto norm_l1<s16, 3> = huxiNorm_L1_16s_C3R;
template <> inline constexpr auto norm_l1<s16, ac4> = huxiNorm_L1_16s_AC4R;
template <> inline constexpr auto norm_l1<s16, 4> = huxiNorm_L1_16s_C4R;
template <> inline constexpr auto norm_l1<u16, 1> = huxiNorm_L1_16u_C1R;
template <> inline constexpr auto norm_l1<u16, 3> = huxiNorm_L1_16u_C3R;
template <> inline constexpr auto norm_l1<u16, ac4> = huxiNorm_L1_16u_AC4R;
template <> inline constexpr auto norm_l1<u16, 4> = huxiNorm_L1_16u_C4R;
template <> inline constexpr auto norm_l1<f32, 1> = huxiNorm_L1_32f_C1R;
template <> inline constexpr auto norm_l1<f32, 3> = huxiNorm_L1_32f_C3R;
template <> inline constexpr auto norm_l1<f32, ac4> = huxiNorm_L1_32f_AC4R;
template <> inline constexpr auto norm_l1<f32, 4> = huxiNorm_L1_32f_C4R;

template <class, int>
inline constexpr auto norm_l2 = nullptr;
template <> inline constexpr auto norm_l2<u8, 1> = huxiNorm_L2_8u_C1R;
template <> inline constexpr auto norm_l2<u8, 3> = huxiNorm_L2_8u_C3R;
template <> inline constexpr auto norm_l2<u8, ac4> = huxiNorm_L2_8u_AC4R;
template <> inline constexpr auto norm_l2<u8, 4> = huxiNorm_L2_8u_C4R;
template <> inline constexpr auto norm_l2<s16, 1> = huxiNorm_L2_16s_C1R;
template <> inline constexpr auto norm_l2<s16, 3> = huxiNorm_L2_16s_C3R;
template <> inline constexpr auto norm_l2<s16, ac4> = huxiNorm_L2_16s_AC4R;
template <> inline constexpr auto norm_l2<s16, 4> = huxiNorm_L2_16s_C4R;
template <> inline constexpr auto norm_l2<u16, 1> = huxiNorm_L2_16u_C1R;
template <> inline constexpr auto norm_l2<u16, 3> = huxiNorm_L2_16u_C3R;
template <> inline constexpr auto norm_l2<u16, ac4> = huxiNorm_L2_16u_AC4R;
template <> inline constexpr auto norm_l2<u16, 4> = huxiNorm_L2_16u_C4R;
template <> inline constexpr auto norm_l2<f32, 1> = huxiNorm_L2_32f_C1R;
template <> inline constexpr auto norm_l2<f32, 3> = huxiNorm_L2_32f_C3R;
template <> inline constexpr auto norm_l2<f32, ac4> = huxiNorm_L2_32f_AC4R;
template <> inline constexpr auto norm_l2<f32, 4> = huxiNorm_L2_32f_C4R;

template <class, int>
inline constexpr auto norm_diff_inf = nullptr;
template <> inline constexpr auto norm_diff_inf<u8, 1> = huxiNormDiff_Inf_8u_C1R;
template <> inline constexpr auto norm_diff_inf<u8, 3> = huxiNormDiff_Inf_8u_C3R;
template <> inline constexpr auto norm_diff_inf<u8, ac4> = huxiNormDiff_Inf_8u_AC4R;
template <> inline constexpr auto norm_diff_inf<u8, 4> = huxiNormDiff_Inf_8u_C4R;
template <> inline constexpr auto norm_diff_inf<s16, 1> = huxiNormDiff_Inf_16s_C1R;
template <> inline constexpr auto norm_diff_inf<s16, 3> = huxiNormDiff_Inf_16s_C3R;
template <> inline constexpr auto norm_diff_inf<s16, ac4> = huxiNormDiff_Inf_16s_AC4R;
template <> inline constexpr auto norm_diff_inf<s16, 4> = huxiNormDiff_Inf_16s_C4R;
template <> inline constexpr auto norm_diff_inf<u16, 1> = huxiNormDiff_Inf_16u_C1R;
template <> inline constexpr auto norm_diff_inf<u16, 3> = huxiNormDiff_Inf_16u_C3R;
template <> inline constexpr auto norm_diff_inf<u16, ac4> = huxiNormDiff_Inf_16u_AC4R;
template <> inline constexpr auto norm_diff_inf<u16, 4> = huxiNormDiff_Inf_16u_C4R;
template <> inline constexpr auto norm_diff_inf<f32, 1> = huxiNormDiff_Inf_32f_C1R;
template <> inline constexpr auto norm_diff_inf<f32, 3> = huxiNormDiff_Inf_32f_C3R;
template <> inline constexpr auto norm_diff_inf<f32, ac4> = huxiNormDiff_Inf_32f_AC4R;
template <> inline constexpr auto norm_diff_inf<f32, 4> = huxiNormDiff_Inf_32f_C4R;

template <class, int>
inline constexpr auto norm_diff_l1 = nullptr;
template <> inline constexpr auto norm_diff_l1<u8, 1> = huxiNormDiff_L1_8u_C1R;
template <> inline constexpr auto norm_diff_l1<u8, 3> = huxiNormDiff_L1_8u_C3R;
template <> inline constexpr auto norm_diff_l1<u8, ac4> = huxiNormDiff_L1_8u_AC4R;
template <> inline constexpr auto norm_diff_l1<u8, 4> = huxiNormDiff_L1_8u_C4R;
template <> inline constexpr auto norm_diff_l1<s16, 1> = huxiNormDiff_L1_16s_C1R;
template <> inline constexpr auto norm_diff_l1<s16, 3> = huxiNormDiff_L1_16s_C3R;
template <> inline constexpr auto norm_diff_l1<s16, ac4> = huxiNormDiff_L1_16s_AC4R;
template <> inline constexpr auto norm_diff_l1<s16, 4> = huxiNormDiff_L1_16s_C4R;
template <> inline constexpr auto norm_diff_l1<u16, 1> = huxiNormDiff_L1_16u_C1R;
template <> inline constexpr auto norm_diff_l1<u16, 3> = huxiNormDiff_L1_16u_C3R;
template <> inline constexpr auto norm_diff_l1<u16, ac4> = huxiNormDiff_L1_16u_AC4R;
template <> inline constexpr auto norm_diff_l1<u16, 4> = huxiNormDiff_L1_16u_C4R;
template <> inline constexpr auto norm_diff_l1<f32, 1> = huxiNormDiff_L1_32f_C1R;
template <> inline constexpr auto norm_diff_l1<f32, 3> = huxiNormDiff_L1_32f_C3R;
template <> inline constexpr auto norm_diff_l1<f32, ac4> = huxiNormDiff_L1_32f_AC4R;
template <> inline constexpr auto norm_diff_l1<f32, 4> = huxiNormDiff_L1_32f_C4R;

template <class, int>
inline constexpr auto norm_diff_l2 = nullptr;
template <> inline constexpr auto norm_diff_l2<u8, 1> = huxiNormDiff_L2_8u_C1R;
template <> inline constexpr auto norm_diff_l2<u8, 3> = huxiNormDiff_L2_8u_C3R;
template <> inline constexpr auto norm_diff_l2<u8, ac4> = huxiNormDiff_L2_8u_AC4R;
template <> inline constexpr auto norm_diff_l2<u8, 4> = huxiNormDiff_L2_8u_C4R;
template <> inline constexpr auto norm_diff_l2<s16, 1> = huxiNormDiff_L2_16s_C1R;
template <> inline constexpr auto norm_diff_l2<s16, 3> = huxiNormDiff_L2_16s_C3R;
template <> inline constexpr auto norm_diff_l2<s16, ac4> = huxiNormDiff_L2_16s_AC4R;
template <> inline constexpr auto norm_diff_l2<s16, 4> = huxiNormDiff_L2_16s_C4R;
template <> inline constexpr auto norm_diff_l2<u16, 1> = huxiNormDiff_L2_16u_C1R;
template <> inline constexpr auto norm_diff_l2<u16, 3> = huxiNormDiff_L2_16u_C3R;
template <> inline constexpr auto norm_diff_l2<u16, ac4> = huxiNormDiff_L2_16u_AC4R;
template <> inline constexpr auto norm_diff_l2<u16, 4> = huxiNormDiff_L2_16u_C4R;
template <> inline constexpr auto norm_diff_l2<f32, 1> = huxiNormDiff_L2_32f_C1R;
template <> inline constexpr auto norm_diff_l2<f32, 3> = huxiNormDiff_L2_32f_C3R;
template <> inline constexpr auto norm_diff_l2<f32, ac4> = huxiNormDiff_L2_32f_AC4R;
template <> inline constexpr auto norm_diff_l2<f32, 4> = huxiNormDiff_L2_32f_C4R;

template <class, int>
inline constexpr auto norm_rel_inf = nullptr;
template <> inline constexpr auto norm_rel_inf<u8, 1> = huxiNormRel_Inf_8u_C1R;
template <> inline constexpr auto norm_rel_inf<u8, 3> = huxiNormRel_Inf_8u_C3R;
template <> inline constexpr auto norm_rel_inf<u8, ac4> = huxiNormRel_Inf_8u_AC4R;
template <> inline constexpr auto norm_rel_inf<u8, 4> = huxiNormRel_Inf_8u_C4R;
template <> inline constexpr auto norm_rel_inf<s16, 1> = huxiNormRel_Inf_16s_C1R;
template <> inline constexpr auto norm_rel_inf<s16, 3> = huxiNormRel_Inf_16s_C3R;
template <> inline constexpr auto norm_rel_inf<s16, ac4> = huxiNormRel_Inf_16s_AC4R;
template <> inline constexpr auto norm_rel_inf<s16, 4> = huxiNormRel_Inf_16s_C4R;
template <> inline constexpr auto norm_rel_inf<u16, 1> = huxiNormRel_Inf_16u_C1R;
template <> inline constexpr auto norm_rel_inf<u16, 3> = huxiNormRel_Inf_16u_C3R;
template <> inline constexpr auto norm_rel_inf<u16, ac4> = huxiNormRel_Inf_16u_AC4R;
template <> inline constexpr auto norm_rel_inf<u16, 4> = huxiNormRel_Inf_16u_C4R;
template <> inline constexpr auto norm_rel_inf<f32, 1> = huxiNormRel_Inf_32f_C1R;
template <> inline constexpr auto norm_rel_inf<f32, 3> = huxiNormRel_Inf_32f_C3R;
template <> inline constexpr auto norm_rel_inf<f32, ac4> = huxiNormRel_Inf_32f_AC4R;
template <> inline constexpr auto norm_rel_inf<f32, 4> = huxiNormRel_Inf_32f_C4R;

template <class, int>
inline constexpr auto norm_rel_l1 = nullptr;
template <> inline constexpr auto norm_rel_l1<u8, 1> = huxiNormRel_L1_8u_C1R;
template <> inline constexpr auto norm_rel_l1<u8, 3> = huxiNormRel_L1_8u_C3R;
template <> inline constexpr auto norm_rel_l1<u8, ac4> = huxiNormRel_L1_8u_AC4R;
template <> inline constexpr auto norm_rel_l1<u8, 4> = huxiNormRel_L1_8u_C4R;
template <> inline constexpr auto norm_rel_l1<s16, 1> = huxiNormRel_L1_16s_C1R;
template <> inline constexpr auto norm_rel_l1<s16, 3> = huxiNormRel_L1_16s_C3R;
template <> inline constexpr auto norm_rel_l1<s16, ac4> = huxiNormRel_L1_16s_AC4R;
template <> inline constexpr auto norm_rel_l1<s16, 4> = huxiNormRel_L1_16s_C4R;
template <> inline constexpr auto norm_rel_l1<u16, 1> = huxiNormRel_L1_16u_C1R;
template <> inline constexpr auto norm_rel_l1<u16, 3> = huxiNormRel_L1_16u_C3R;
template <> inline constexpr auto norm_rel_l1<u16, ac4> = huxiNormRel_L1_16u_AC4R;
template <> inline constexpr auto norm_rel_l1<u16, 4> = huxiNormRel_L1_16u_C4R;
template <> inline constexpr auto norm_rel_l1<f32, 1> = huxiNormRel_L1_32f_C1R;
template <> inline constexpr auto norm_rel_l1<f32, 3> = huxiNormRel_L1_32f_C3R;
template <> inline constexpr auto norm_rel_l1<f32, ac4> = huxiNormRel_L1_32f_AC4R;
template <> inline constexpr auto norm_rel_l1<f32, 4> = huxiNormRel_L1_32f_C4R;

template <class, int>
inline constexpr auto norm_rel_l2 = nullptr;
template <> inline constexpr auto norm_rel_l2<u8, 1> = huxiNormRel_L2_8u_C1R;
template <> inline constexpr auto norm_rel_l2<u8, 3> = huxiNormRel_L2_8u_C3R;
template <> inline constexpr auto norm_rel_l2<u8, ac4> = huxiNormRel_L2_8u_AC4R;
template <> inline constexpr auto norm_rel_l2<u8, 4> = huxiNormRel_L2_8u_C4R;
template <> inline constexpr auto norm_rel_l2<s16, 1> = huxiNormRel_L2_16s_C1R;
template <> inline constexpr auto norm_rel_l2<s16, 3> = huxiNormRel_L2_16s_C3R;
template <> inline constexpr auto norm_rel_l2<s16, ac4> = huxiNormRel_L2_16s_AC4R;
template <> inline constexpr auto norm_rel_l2<s16, 4> = huxiNormRel_L2_16s_C4R;
template <> inline constexpr auto norm_rel_l2<u16, 1> = huxiNormRel_L2_16u_C1R;
template <> inline constexpr auto norm_rel_l2<u16, 3> = huxiNormRel_L2_16u_C3R;
template <> inline constexpr auto norm_rel_l2<u16, ac4> = huxiNormRel_L2_16u_AC4R;
template <> inline constexpr auto norm_rel_l2<u16, 4> = huxiNormRel_L2_16u_C4R;
template <> inline constexpr auto norm_rel_l2<f32, 1> = huxiNormRel_L2_32f_C1R;
template <> inline constexpr auto norm_rel_l2<f32, 3> = huxiNormRel_L2_32f_C3R;
template <> inline constexpr auto norm_rel_l2<f32, ac4> = huxiNormRel_L2_32f_AC4R;
template <> inline constexpr auto norm_rel_l2<f32, 4> = huxiNormRel_L2_32f_C4R;

template <class, int>
inline constexpr auto lut = nullptr;
template <> inline constexpr auto lut<u8, 1> = huxiLUT_8u_C1R;
template <> inline constexpr auto lut<u8, 3> = huxiLUT_8u_C3R;
template <> inline constexpr auto lut<u8, 4> = huxiLUT_8u_C4R;
template <> inline constexpr auto lut<u8, ac4> = huxiLUT_8u_AC4R;
template <> inline constexpr auto lut<s16, 1> = huxiLUT_16s_C1R;
template <> inline constexpr auto lut<s16, 3> = huxiLUT_16s_C3R;
template <> inline constexpr auto lut<s16, 4> = huxiLUT_16s_C4R;
template <> inline constexpr auto lut<s16, ac4> = huxiLUT_16s_AC4R;
template <> inline constexpr auto lut<u16, 1> = huxiLUT_16u_C1R;
template <> inline constexpr auto lut<u16, 3> = huxiLUT_16u_C3R;
template <> inline constexpr auto lut<u16, 4> = huxiLUT_16u_C4R;
template <> inline constexpr auto lut<u16, ac4> = huxiLUT_16u_AC4R;
template <> inline constexpr auto lut<f32, 1> = huxiLUT_32f_C1R;
template <> inline constexpr auto lut<f32, 3> = huxiLUT_32f_C3R;
template <> inline constexpr auto lut<f32, 4> = huxiLUT_32f_C4R;
template <> inline constexpr auto lut<f32, ac4> = huxiLUT_32f_AC4R;

template <class, int>
inline constexpr auto lut_in_place = nullptr;
template <> inline constexpr auto lut_in_place<u8, 1> = huxiLUT_8u_C1IR;
template <> inline constexpr auto lut_in_place<u8, 3> = huxiLUT_8u_C3IR;
template <> inline constexpr auto lut_in_place<u8, 4> = huxiLUT_8u_C4IR;
template <> inline constexpr auto lut_in_place<u8, ac4> = huxiLUT_8u_AC4IR;
template <> inline constexpr auto lut_in_place<s16, 1> = huxiLUT_16s_C1IR;
template <> inline constexpr auto lut_in_place<s16, 3> = huxiLUT_16s_C3IR;
template <> inline constexpr auto lut_in_place<s16, 4> = huxiLUT_16s_C4IR;
template <> inline constexpr auto lut_in_place<s16, ac4> = huxiLUT_16s_AC4IR;
template <> inline constexpr auto lut_in_place<u16, 1> = huxiLUT_16u_C1IR;
template <> inline constexpr auto lut_in_place<u16, 3> = huxiLUT_16u_C3IR;
template <> inline constexpr auto lut_in_place<u16, 4> = huxiLUT_16u_C4IR;
template <> inline constexpr auto lut_in_place<u16, ac4> = huxiLUT_16u_AC4IR;
template <> inline constexpr auto lut_in_place<f32, 1> = huxiLUT_32f_C1IR;
template <> inline constexpr auto lut_in_place<f32, 3> = huxiLUT_32f_C3IR;
template <> inline constexpr auto lut_in_place<f32, 4> = huxiLUT_32f_C4IR;
template <> inline constexpr auto lut_in_place<f32, ac4> = huxiLUT_32f_AC4IR;

template <class, int>
inline constexpr auto lut_linear = nullptr;
template <> inline constexpr auto lut_linear<u8, 1> = huxiLUT_Linear_8u_C1R;
template <> inline constexpr auto lut_linear<u8, 3> = huxiLUT_Linear_8u_C3R;
template <> inline constexpr auto lut_linear<u8, 4> = huxiLUT_Linear_8u_C4R;
template <> inline constexpr auto lut_linear<u8, ac4> = huxiLUT_Linear_8u_AC4R;
template <> inline constexpr auto lut_linear<s16, 1> = huxiLUT_Linear_16s_C1R;
template <> inline constexpr auto lut_linear<s16, 3> = huxiLUT_Linear_16s_C3R;
template <> inline constexpr auto lut_linear<s16, 4> = huxiLUT_Linear_16s_C4R;
template <> inline constexpr auto lut_linear<s16, ac4> = huxiLUT_Linear_16s_AC4R;
template <> inline constexpr auto lut_linear<u16, 1> = huxiLUT_Linear_16u_C1R;
template <> inline constexpr auto lut_linear<u16, 3> = huxiLUT_Linear_16u_C3R;
template <> inline constexpr auto lut_linear<u16, 4> = huxiLUT_Linear_16u_C4R;
template <> inline constexpr auto lut_linear<u16, ac4> = huxiLUT_Linear_16u_AC4R;
template <> inline constexpr auto lut_linear<f32, 1> = huxiLUT_Linear_32f_C1R;
template <> inline constexpr auto lut_linear<f32, 3> = huxiLUT_Linear_32f_C3R;
template <> inline constexpr auto lut_linear<f32, 4> = huxiLUT_Linear_32f_C4R;
template <> inline constexpr auto lut_linear<f32, ac4> = huxiLUT_Linear_32f_AC4R;

template <class, int>
inline constexpr auto lut_linear_in_place = nullptr;
template <> inline constexpr auto lut_linear_in_place<u8, 1> = huxiLUT_Linear_8u_C1IR;
template <> inline constexpr auto lut_linear_in_place<u8, 3> = huxiLUT_Linear_8u_C3IR;
template <> inline constexpr auto lut_linear_in_place<u8, 4> = huxiLUT_Linear_8u_C4IR;
template <> inline constexpr auto lut_linear_in_place<u8, ac4> = huxiLUT_Linear_8u_AC4IR;
template <> inline constexpr auto lut_linear_in_place<s16, 1> = huxiLUT_Linear_16s_C1IR;
template <> inline constexpr auto lut_linear_in_place<s16, 3> = huxiLUT_Linear_16s_C3IR;
template <> inline constexpr auto lut_linear_in_place<s16, 4> = huxiLUT_Linear_16s_C4IR;
template <> inline constexpr auto lut_linear_in_place<s16, ac4> = huxiLUT_Linear_16s_AC4IR;
template <> inline constexpr auto lut_linear_in_place<u16, 1> = huxiLUT_Linear_16u_C1IR;
template <> inline constexpr auto lut_linear_in_place<u16, 3> = huxiLUT_Linear_16u_C3IR;
template <> inline constexpr auto lut_linear_in_place<u16, 4> = huxiLUT_Linear_16u_C4IR;
template <> inline constexpr auto lut_linear_in_place<u16, ac4> = huxiLUT_Linear_16u_AC4IR;
template <> inline constexpr auto lut_linear_in_place<f32, 1> = huxiLUT_Linear_32f_C1IR;
template <> inline constexpr auto lut_linear_in_place<f32, 3> = huxiLUT_Linear_32f_C3IR;
template <> inline constexpr auto lut_linear_in_place<f32, 4> = huxiLUT_Linear_32f_C4IR;
template <> inline constexpr auto lut_linear_in_place<f32, ac4> = huxiLUT_Linear_32f_AC4IR;

template <class, int>
inline constexpr auto lut_cubic = nullptr;
template <> inline constexpr auto lut_cubic<u8, 1> = huxiLUT_Cubic_8u_C1R;
template <> inline constexpr auto lut_cubic<u8, 3> = huxiLUT_Cubic_8u_C3R;
template <> inline constexpr auto lut_cubic<u8, 4> = huxiLUT_Cubic_8u_C4R;
template <> inline constexpr auto lut_cubic<u8, ac4> = huxiLUT_Cubic_8u_AC4R;
template <> inline constexpr auto lut_cubic<s16, 1> = huxiLUT_Cubic_16s_C1R;
template <> inline constexpr auto lut_cubic<s16, 3> = huxiLUT_Cubic_16s_C3R;
template <> inline constexpr auto lut_cubic<s16, 4> = huxiLUT_Cubic_16s_C4R;
template <> inline constexpr auto lut_cubic<s16, ac4> = huxiLUT_Cubic_16s_AC4R;
template <> inline constexpr auto lut_cubic<u16, 1> = huxiLUT_Cubic_16u_C1R;
template <> inline constexpr auto lut_cubic<u16, 3> = huxiLUT_Cubic_16u_C3R;
template <> inline constexpr auto lut_cubic<u16, 4> = huxiLUT_Cubic_16u_C4R;
template <> inline constexpr auto lut_cubic<u16, ac4> = huxiLUT_Cubic_16u_AC4R;
template <> inline constexpr auto lut_cubic<f32, 1> = huxiLUT_Cubic_32f_C1R;
template <> inline constexpr auto lut_cubic<f32, 3> = huxiLUT_Cubic_32f_C3R;
template <> inline constexpr auto lut_cubic<f32, 4> = huxiLUT_Cubic_32f_C4R;
template <> inline constexpr auto lut_cubic<f32, ac4> = huxiLUT_Cubic_32f_AC4R;

template <class, int>
inline constexpr auto lut_cubic_in_place = nullptr;
template <> inline constexpr auto lut_cubic_in_place<u8, 1> = huxiLUT_Cubic_8u_C1IR;
template <> inline constexpr auto lut_cubic_in_place<u8, 3> = huxiLUT_Cubic_8u_C3IR;
template <> inline constexpr auto lut_cubic_in_place<u8, 4> = huxiLUT_Cubic_8u_C4IR;
template <> inline constexpr auto lut_cubic_in_place<u8, ac4> = huxiLUT_Cubic_8u_AC4IR;
template <> inline constexpr auto lut_cubic_in_place<s16, 1> = huxiLUT_Cubic_16s_C1IR;
template <> inline constexpr auto lut_cubic_in_place<s16, 3> = huxiLUT_Cubic_16s_C3IR;
template <> inline constexpr auto lut_cubic_in_place<s16, 4> = huxiLUT_Cubic_16s_C4IR;
template <> inline constexpr auto lut_cubic_in_place<s16, ac4> = huxiLUT_Cubic_16s_AC4IR;
template <> inline constexpr auto lut_cubic_in_place<u16, 1> = huxiLUT_Cubic_16u_C1IR;
template <> inline constexpr auto lut_cubic_in_place<u16, 3> = huxiLUT_Cubic_16u_C3IR;
template <> inline constexpr auto lut_cubic_in_place<u16, 4> = huxiLUT_Cubic_16u_C4IR;
template <> inline constexpr auto lut_cubic_in_place<u16, ac4> = huxiLUT_Cubic_16u_AC4IR;
template <> inline constexpr auto lut_cubic_in_place<f32, 1> = huxiLUT_Cubic_32f_C1IR;
template <> inline constexpr auto lut_cubic_in_place<f32, 3> = huxiLUT_Cubic_32f_C3IR;
template <> inline constexpr auto lut_cubic_in_place<f32, 4> = huxiLUT_Cubic_32f_C4IR;
template <> inline constexpr auto lut_cubic_in_place<f32, ac4> = huxiLUT_Cubic_32f_AC4IR;

template <class, int, class>
inline constexpr auto lut_palette = nullptr;
template <> inline constexpr auto lut_palette<u8, 3, u8> = huxiLUTPalette_8u24u_C1R;
template <> inline constexpr auto lut_palette<u32, 1, u8> = huxiLUTPalette_8u32u_C1R;
template <> inline constexpr auto lut_palette<u8, 1, u16> = huxiLUTPalette_16u8u_C1R;
template <> inline constexpr auto lut_palette<u8, 3, u16> = huxiLUTPalette_16u24u_C1R;
template <> inline constexpr auto lut_palette<u32, 1, u16> = huxiLUTPalette_16u32u_C1R;

template <class, int, class>
inline constexpr auto cross_corr_full_norm = nullptr;
template <> inline constexpr auto cross_corr_full_norm<f32, 1, f32> = huxiCrossCorrFull_Norm_32f_C1R;
template <> inline constexpr auto cross_corr_full_norm<f32, 3, f32> = huxiCrossCorrFull_Norm_32f_C3R;
template <> inline constexpr auto cross_corr_full_norm<f32, 4, f32> = huxiCrossCorrFull_Norm_32f_C4R;
template <> inline constexpr auto cross_corr_full_norm<f32, ac4, f32> = huxiCrossCorrFull_Norm_32f_AC4R;
template <> inline constexpr auto cross_corr_full_norm<f32, 1, u8> = huxiCrossCorrFull_Norm_8u32f_C1R;
template <> inline constexpr auto cross_corr_full_norm<f32, 3, u8> = huxiCrossCorrFull_Norm_8u32f_C3R;
template <> inline constexpr auto cross_corr_full_norm<f32, 4, u8> = huxiCrossCorrFull_Norm_8u32f_C4R;
template <> inline constexpr auto cross_corr_full_norm<f32, ac4, u8> = huxiCrossCorrFull_Norm_8u32f_AC4R;
template <> inline constexpr auto cross_corr_full_norm<f32, 1, s8> = huxiCrossCorrFull_Norm_8s32f_C1R;
template <> inline constexpr auto cross_corr_full_norm<f32, 3, s8> = huxiCrossCorrFull_Norm_8s32f_C3R;
template <> inline constexpr auto cross_corr_full_norm<f32, 4, s8> = huxiCrossCorrFull_Norm_8s32f_C4R;
template <> inline constexpr auto cross_corr_full_norm<f32, ac4, s8> = huxiCrossCorrFull_Norm_8s32f_AC4R;
template <> inline constexpr auto cross_corr_full_norm<u8, 1, u8> = huxiCrossCorrFull_Norm_8u_C1RSfs;
template <> inline constexpr auto cross_corr_full_norm<u8, 3, u8> = huxiCrossCorrFull_Norm_8u_C3RSfs;
template <> inline constexpr auto cross_corr_full_norm<u8, 4, u8> = huxiCrossCorrFull_Norm_8u_C4RSfs;
template <> inline constexpr auto cross_corr_full_norm<u8, ac4, u8> = huxiCrossCorrFull_Norm_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto cross_corr_same_norm = nullptr;
template <> inline constexpr auto cross_corr_same_norm<f32, 1, f32> = huxiCrossCorrSame_Norm_32f_C1R;
template <> inline constexpr auto cross_corr_same_norm<f32, 3, f32> = huxiCrossCorrSame_Norm_32f_C3R;
template <> inline constexpr auto cross_corr_same_norm<f32, 4, f32> = huxiCrossCorrSame_Norm_32f_C4R;
template <> inline constexpr auto cross_corr_same_norm<f32, ac4, f32> = huxiCrossCorrSame_Norm_32f_AC4R;
template <> inline constexpr auto cross_corr_same_norm<f32, 1, u8> = huxiCrossCorrSame_Norm_8u32f_C1R;
template <> inline constexpr auto cross_corr_same_norm<f32, 3, u8> = huxiCrossCorrSame_Norm_8u32f_C3R;
template <> inline constexpr auto cross_corr_same_norm<f32, 4, u8> = huxiCrossCorrSame_Norm_8u32f_C4R;
template <> inline constexpr auto cross_corr_same_norm<f32, ac4, u8> = huxiCrossCorrSame_Norm_8u32f_AC4R;
template <> inline constexpr auto cross_corr_same_norm<f32, 1, s8> = huxiCrossCorrSame_Norm_8s32f_C1R;
template <> inline constexpr auto cross_corr_same_norm<f32, 3, s8> = huxiCrossCorrSame_Norm_8s32f_C3R;
template <> inline constexpr auto cross_corr_same_norm<f32, 4, s8> = huxiCrossCorrSame_Norm_8s32f_C4R;
template <> inline constexpr auto cross_corr_same_norm<f32, ac4, s8> = huxiCrossCorrSame_Norm_8s32f_AC4R;
template <> inline constexpr auto cross_corr_same_norm<u8, 1, u8> = huxiCrossCorrSame_Norm_8u_C1RSfs;
template <> inline constexpr auto cross_corr_same_norm<u8, 3, u8> = huxiCrossCorrSame_Norm_8u_C3RSfs;
template <> inline constexpr auto cross_corr_same_norm<u8, 4, u8> = huxiCrossCorrSame_Norm_8u_C4RSfs;
template <> inline constexpr auto cross_corr_same_norm<u8, ac4, u8> = huxiCrossCorrSame_Norm_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto cross_corr_valid_norm = nullptr;
template <> inline constexpr auto cross_corr_valid_norm<f32, 1, f32> = huxiCrossCorrValid_Norm_32f_C1R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 3, f32> = huxiCrossCorrValid_Norm_32f_C3R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 4, f32> = huxiCrossCorrValid_Norm_32f_C4R;
template <> inline constexpr auto cross_corr_valid_norm<f32, ac4, f32> = huxiCrossCorrValid_Norm_32f_AC4R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 1, u8> = huxiCrossCorrValid_Norm_8u32f_C1R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 3, u8> = huxiCrossCorrValid_Norm_8u32f_C3R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 4, u8> = huxiCrossCorrValid_Norm_8u32f_C4R;
template <> inline constexpr auto cross_corr_valid_norm<f32, ac4, u8> = huxiCrossCorrValid_Norm_8u32f_AC4R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 1, s8> = huxiCrossCorrValid_Norm_8s32f_C1R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 3, s8> = huxiCrossCorrValid_Norm_8s32f_C3R;
template <> inline constexpr auto cross_corr_valid_norm<f32, 4, s8> = huxiCrossCorrValid_Norm_8s32f_C4R;
template <> inline constexpr auto cross_corr_valid_norm<f32, ac4, s8> = huxiCrossCorrValid_Norm_8s32f_AC4R;
template <> inline constexpr auto cross_corr_valid_norm<u8, 1, u8> = huxiCrossCorrValid_Norm_8u_C1RSfs;
template <> inline constexpr auto cross_corr_valid_norm<u8, 3, u8> = huxiCrossCorrValid_Norm_8u_C3RSfs;
template <> inline constexpr auto cross_corr_valid_norm<u8, 4, u8> = huxiCrossCorrValid_Norm_8u_C4RSfs;
template <> inline constexpr auto cross_corr_valid_norm<u8, ac4, u8> = huxiCrossCorrValid_Norm_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto cross_corr_full_norm_level = nullptr;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 1, f32> = huxiCrossCorrFull_NormLevel_32f_C1R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 3, f32> = huxiCrossCorrFull_NormLevel_32f_C3R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 4, f32> = huxiCrossCorrFull_NormLevel_32f_C4R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, ac4, f32> = huxiCrossCorrFull_NormLevel_32f_AC4R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 1, u8> = huxiCrossCorrFull_NormLevel_8u32f_C1R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 3, u8> = huxiCrossCorrFull_NormLevel_8u32f_C3R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 4, u8> = huxiCrossCorrFull_NormLevel_8u32f_C4R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, ac4, u8> = huxiCrossCorrFull_NormLevel_8u32f_AC4R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 1, s8> = huxiCrossCorrFull_NormLevel_8s32f_C1R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 3, s8> = huxiCrossCorrFull_NormLevel_8s32f_C3R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, 4, s8> = huxiCrossCorrFull_NormLevel_8s32f_C4R;
template <> inline constexpr auto cross_corr_full_norm_level<f32, ac4, s8> = huxiCrossCorrFull_NormLevel_8s32f_AC4R;
template <> inline constexpr auto cross_corr_full_norm_level<u8, 1, u8> = huxiCrossCorrFull_NormLevel_8u_C1RSfs;
template <> inline constexpr auto cross_corr_full_norm_level<u8, 3, u8> = huxiCrossCorrFull_NormLevel_8u_C3RSfs;
template <> inline constexpr auto cross_corr_full_norm_level<u8, 4, u8> = huxiCrossCorrFull_NormLevel_8u_C4RSfs;
template <> inline constexpr auto cross_corr_full_norm_level<u8, ac4, u8> = huxiCrossCorrFull_NormLevel_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto cross_corr_same_norm_level = nullptr;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 1, f32> = huxiCrossCorrSame_NormLevel_32f_C1R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 3, f32> = huxiCrossCorrSame_NormLevel_32f_C3R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 4, f32> = huxiCrossCorrSame_NormLevel_32f_C4R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, ac4, f32> = huxiCrossCorrSame_NormLevel_32f_AC4R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 1, u8> = huxiCrossCorrSame_NormLevel_8u32f_C1R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 3, u8> = huxiCrossCorrSame_NormLevel_8u32f_C3R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 4, u8> = huxiCrossCorrSame_NormLevel_8u32f_C4R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, ac4, u8> = huxiCrossCorrSame_NormLevel_8u32f_AC4R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 1, s8> = huxiCrossCorrSame_NormLevel_8s32f_C1R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 3, s8> = huxiCrossCorrSame_NormLevel_8s32f_C3R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, 4, s8> = huxiCrossCorrSame_NormLevel_8s32f_C4R;
template <> inline constexpr auto cross_corr_same_norm_level<f32, ac4, s8> = huxiCrossCorrSame_NormLevel_8s32f_AC4R;
template <> inline constexpr auto cross_corr_same_norm_level<u8, 1, u8> = huxiCrossCorrSame_NormLevel_8u_C1RSfs;
template <> inline constexpr auto cross_corr_same_norm_level<u8, 3, u8> = huxiCrossCorrSame_NormLevel_8u_C3RSfs;
template <> inline constexpr auto cross_corr_same_norm_level<u8, 4, u8> = huxiCrossCorrSame_NormLevel_8u_C4RSfs;
template <> inline constexpr auto cross_corr_same_norm_level<u8, ac4, u8> = huxiCrossCorrSame_NormLevel_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto cross_corr_valid_norm_level = nullptr;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 1, f32> = huxiCrossCorrValid_NormLevel_32f_C1R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 3, f32> = huxiCrossCorrValid_NormLevel_32f_C3R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 4, f32> = huxiCrossCorrValid_NormLevel_32f_C4R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, ac4, f32> = huxiCrossCorrValid_NormLevel_32f_AC4R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 1, u8> = huxiCrossCorrValid_NormLevel_8u32f_C1R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 3, u8> = huxiCrossCorrValid_NormLevel_8u32f_C3R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 4, u8> = huxiCrossCorrValid_NormLevel_8u32f_C4R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, ac4, u8> = huxiCrossCorrValid_NormLevel_8u32f_AC4R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 1, s8> = huxiCrossCorrValid_NormLevel_8s32f_C1R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 3, s8> = huxiCrossCorrValid_NormLevel_8s32f_C3R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, 4, s8> = huxiCrossCorrValid_NormLevel_8s32f_C4R;
template <> inline constexpr auto cross_corr_valid_norm_level<f32, ac4, s8> = huxiCrossCorrValid_NormLevel_8s32f_AC4R;
template <> inline constexpr auto cross_corr_valid_norm_level<u8, 1, u8> = huxiCrossCorrValid_NormLevel_8u_C1RSfs;
template <> inline constexpr auto cross_corr_valid_norm_level<u8, 3, u8> = huxiCrossCorrValid_NormLevel_8u_C3RSfs;
template <> inline constexpr auto cross_corr_valid_norm_level<u8, 4, u8> = huxiCrossCorrValid_NormLevel_8u_C4RSfs;
template <> inline constexpr auto cross_corr_valid_norm_level<u8, ac4, u8> = huxiCrossCorrValid_NormLevel_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto sqr_distance_full_norm = nullptr;
template <> inline constexpr auto sqr_distance_full_norm<f32, 1, f32> = huxiSqrDistanceFull_Norm_32f_C1R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 3, f32> = huxiSqrDistanceFull_Norm_32f_C3R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 4, f32> = huxiSqrDistanceFull_Norm_32f_C4R;
template <> inline constexpr auto sqr_distance_full_norm<f32, ac4, f32> = huxiSqrDistanceFull_Norm_32f_AC4R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 1, u8> = huxiSqrDistanceFull_Norm_8u32f_C1R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 3, u8> = huxiSqrDistanceFull_Norm_8u32f_C3R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 4, u8> = huxiSqrDistanceFull_Norm_8u32f_C4R;
template <> inline constexpr auto sqr_distance_full_norm<f32, ac4, u8> = huxiSqrDistanceFull_Norm_8u32f_AC4R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 1, s8> = huxiSqrDistanceFull_Norm_8s32f_C1R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 3, s8> = huxiSqrDistanceFull_Norm_8s32f_C3R;
template <> inline constexpr auto sqr_distance_full_norm<f32, 4, s8> = huxiSqrDistanceFull_Norm_8s32f_C4R;
template <> inline constexpr auto sqr_distance_full_norm<f32, ac4, s8> = huxiSqrDistanceFull_Norm_8s32f_AC4R;
template <> inline constexpr auto sqr_distance_full_norm<u8, 1, u8> = huxiSqrDistanceFull_Norm_8u_C1RSfs;
template <> inline constexpr auto sqr_distance_full_norm<u8, 3, u8> = huxiSqrDistanceFull_Norm_8u_C3RSfs;
template <> inline constexpr auto sqr_distance_full_norm<u8, 4, u8> = huxiSqrDistanceFull_Norm_8u_C4RSfs;
template <> inline constexpr auto sqr_distance_full_norm<u8, ac4, u8> = huxiSqrDistanceFull_Norm_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto sqr_distance_same_norm = nullptr;
template <> inline constexpr auto sqr_distance_same_norm<f32, 1, f32> = huxiSqrDistanceSame_Norm_32f_C1R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 3, f32> = huxiSqrDistanceSame_Norm_32f_C3R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 4, f32> = huxiSqrDistanceSame_Norm_32f_C4R;
template <> inline constexpr auto sqr_distance_same_norm<f32, ac4, f32> = huxiSqrDistanceSame_Norm_32f_AC4R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 1, u8> = huxiSqrDistanceSame_Norm_8u32f_C1R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 3, u8> = huxiSqrDistanceSame_Norm_8u32f_C3R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 4, u8> = huxiSqrDistanceSame_Norm_8u32f_C4R;
template <> inline constexpr auto sqr_distance_same_norm<f32, ac4, u8> = huxiSqrDistanceSame_Norm_8u32f_AC4R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 1, s8> = huxiSqrDistanceSame_Norm_8s32f_C1R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 3, s8> = huxiSqrDistanceSame_Norm_8s32f_C3R;
template <> inline constexpr auto sqr_distance_same_norm<f32, 4, s8> = huxiSqrDistanceSame_Norm_8s32f_C4R;
template <> inline constexpr auto sqr_distance_same_norm<f32, ac4, s8> = huxiSqrDistanceSame_Norm_8s32f_AC4R;
template <> inline constexpr auto sqr_distance_same_norm<u8, 1, u8> = huxiSqrDistanceSame_Norm_8u_C1RSfs;
template <> inline constexpr auto sqr_distance_same_norm<u8, 3, u8> = huxiSqrDistanceSame_Norm_8u_C3RSfs;
template <> inline constexpr auto sqr_distance_same_norm<u8, 4, u8> = huxiSqrDistanceSame_Norm_8u_C4RSfs;
template <> inline constexpr auto sqr_distance_same_norm<u8, ac4, u8> = huxiSqrDistanceSame_Norm_8u_AC4RSfs;

template <class, int, class>
inline constexpr auto sqr_distance_valid_norm = nullptr;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 1, f32> = huxiSqrDistanceValid_Norm_32f_C1R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 3, f32> = huxiSqrDistanceValid_Norm_32f_C3R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 4, f32> = huxiSqrDistanceValid_Norm_32f_C4R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, ac4, f32> = huxiSqrDistanceValid_Norm_32f_AC4R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 1, u8> = huxiSqrDistanceValid_Norm_8u32f_C1R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 3, u8> = huxiSqrDistanceValid_Norm_8u32f_C3R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 4, u8> = huxiSqrDistanceValid_Norm_8u32f_C4R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, ac4, u8> = huxiSqrDistanceValid_Norm_8u32f_AC4R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 1, s8> = huxiSqrDistanceValid_Norm_8s32f_C1R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 3, s8> = huxiSqrDistanceValid_Norm_8s32f_C3R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, 4, s8> = huxiSqrDistanceValid_Norm_8s32f_C4R;
template <> inline constexpr auto sqr_distance_valid_norm<f32, ac4, s8> = huxiSqrDistanceValid_Norm_8s32f_AC4R;
template <> inline constexpr auto sqr_distance_valid_norm<u8, 1, u8> = huxiSqrDistanceValid_Norm_8u_C1RSfs;
template <> inline constexpr auto sqr_distance_valid_norm<u8, 3, u8> = huxiSqrDistanceValid_Norm_8u_C3RSfs;
template <> inline constexpr auto sqr_distance_valid_norm<u8, 4, u8> = huxiSqrDistanceValid_Norm_8u_C4RSfs;
template <> inline constexpr auto sqr_distance_valid_norm<u8, ac4, u8> = huxiSqrDistanceValid_Norm_8u_AC4RSfs;

template <class, int>
inline constexpr auto quality_index = nullptr;
template <> inline constexpr auto quality_index<u8, 1> = huxiQualityIndex_8u32f_C1R;
template <> inline constexpr auto quality_index<u8, 3> = huxiQualityIndex_8u32f_C3R;
template <> inline constexpr auto quality_index<u8, ac4> = huxiQualityIndex_8u32f_AC4R;
template <> inline constexpr auto quality_index<f32, 1> = huxiQualityIndex_32f_C1R;
template <> inline constexpr auto quality_index<f32, 3> = huxiQualityIndex_32f_C3R;
template <> inline constexpr auto quality_index<f32, ac4> = huxiQualityIndex_32f_AC4R;

template <class>
inline constexpr auto dct8x8_fwd_block = nullptr;
template <> inline constexpr auto dct8x8_fwd_block<f32> = huxiDCT8x8Fwd_32f_C1;
template <> inline constexpr auto dct8x8_fwd_block<s16> = huxiDCT8x8Fwd_16s_C1;

template <class>
inline constexpr auto dct8x8_fwd_block_in_place = nullptr;
template <> inline constexpr auto dct8x8_fwd_block_in_place<f32> = huxiDCT8x8Fwd_32f_C1I;
template <> inline constexpr auto dct8x8_fwd_block_in_place<s16> = huxiDCT8x8Fwd_16s_C1I;

template <class>
inline constexpr auto dct8x8_inv_block = nullptr;
template <> inline constexpr auto dct8x8_inv_block<f32> = huxiDCT8x8Inv_32f_C1;
template <> inline constexpr auto dct8x8_inv_block<s16> = huxiDCT8x8Inv_16s_C1;

template <class>
inline constexpr auto dct8x8_inv_block_in_place = nullptr;
template <> inline constexpr auto dct8x8_inv_block_in_place<f32> = huxiDCT8x8Inv_32f_C1I;
template <> inline constexpr auto dct8x8_inv_block_in_place<s16> = huxiDCT8x8Inv_16s_C1I;

template <class>
inline constexpr auto dct8x8_fwd_to_block = nullptr;
template <> inline constexpr auto dct8x8_fwd_to_block<s16> = huxiDCT8x8Fwd_16s_C1R;
template <> inline constexpr auto dct8x8_fwd_to_block<u8> = huxiDCT8x8Fwd_8u16s_C1R;

template <class>
inline constexpr auto dct8x8_inv_from_block = nullptr;
template <> inline constexpr auto dct8x8_inv_from_block<s16> = huxiDCT8x8Inv_16s_C1R;
template <> inline constexpr auto dct8x8_inv_from_block<u8> = huxiDCT8x8Inv_16s8u_C1R;

template <class>
inline constexpr auto dct8x8_fwd_ls_to_block = nullptr;
template <> inline constexpr auto dct8x8_fwd_ls_to_block<s16> = huxiDCT8x8FwdLS_8u16s_C1R;

template <class>
inline constexpr auto dct8x8_inv_ls_clip_from_block = nullptr;
template <> inline constexpr auto dct8x8_inv_ls_clip_from_block<u8> = huxiDCT8x8InvLSClip_16s8u_C1R;

template <class>
inline constexpr auto dct8x8_inv_2x2_block = nullptr;
template <> inline constexpr auto dct8x8_inv_2x2_block<s16> = huxiDCT8x8Inv_2x2_16s_C1;

template <class>
inline constexpr auto dct8x8_inv_2x2_block_in_place = nullptr;
template <> inline constexpr auto dct8x8_inv_2x2_block_in_place<s16> = huxiDCT8x8Inv_2x2_16s_C1I;

template <class>
inline constexpr auto dct8x8_inv_4x4_block = nullptr;
template <> inline constexpr auto dct8x8_inv_4x4_block<s16> = huxiDCT8x8Inv_4x4_16s_C1;

template <class>
inline constexpr auto dct8x8_inv_4x4_block_in_place = nullptr;
template <> inline constexpr auto dct8x8_inv_4x4_block_in_place<s16> = huxiDCT8x8Inv_4x4_16s_C1I;

template <class>
inline constexpr auto zigzag_fwd8x8_block = nullptr;
template <> inline constexpr auto zigzag_fwd8x8_block<s16> = huxiZigzagFwd8x8_16s_C1;

template <class>
inline constexpr auto zigzag_inv8x8_block = nullptr;
template <> inline constexpr auto zigzag_inv8x8_block<s16> = huxiZigzagInv8x8_16s_C1;

template <class, int>
inline constexpr auto mul_pack = nullptr;
template <> inline constexpr auto mul_pack<f32, 1> = huxiMulPack_32f_C1R;
template <> inline constexpr auto mul_pack<f32, 3> = huxiMulPack_32f_C3R;
template <> inline constexpr auto mul_pack<f32, 4> = huxiMulPack_32f_C4R;
template <> inline constexpr auto mul_pack<f32, ac4> = huxiMulPack_32f_AC4R;
template <> inline constexpr auto mul_pack<s16, 1> = huxiMulPack_16s_C1RSfs;
template <> inline constexpr auto mul_pack<s16, 3> = huxiMulPack_16s_C3RSfs;
template <> inline constexpr auto mul_pack<s16, 4> = huxiMulPack_16s_C4RSfs;
template <> inline constexpr auto mul_pack<s16, ac4> = huxiMulPack_16s_AC4RSfs;
template <> inline constexpr auto mul_pack<s32, 1> = huxiMulPack_32s_C1RSfs;
template <> inline constexpr auto mul_pack<s32, 3> = huxiMulPack_32s_C3RSfs;
template <> inline constexpr auto mul_pack<s32, 4> = huxiMulPack_32s_C4RSfs;
template <> inline constexpr auto mul_pack<s32, ac4> = huxiMulPack_32s_AC4RSfs;

template <class, int>
inline constexpr auto mul_pack_in_place = nullptr;
template <> inline constexpr auto mul_pack_in_place<f32, 1> = huxiMulPack_32f_C1IR;
template <> inline constexpr auto mul_pack_in_place<f32, 3> = huxiMulPack_32f_C3IR;
template <> inline constexpr auto mul_pack_in_place<f32, 4> = huxiMulPack_32f_C4IR;
template <> inline constexpr auto mul_pack_in_place<f32, ac4> = huxiMulPack_32f_AC4IR;
template <> inline constexpr auto mul_pack_in_place<s16, 1> = huxiMulPack_16s_C1IRSfs;
template <> inline constexpr auto mul_pack_in_place<s16, 3> = huxiMulPack_16s_C3IRSfs;
template <> inline constexpr auto mul_pack_in_place<s16, 4> = huxiMulPack_16s_C4IRSfs;
template <> inline constexpr auto mul_pack_in_place<s16, ac4> = huxiMulPack_16s_AC4IRSfs;
template <> inline constexpr auto mul_pack_in_place<s32, 1> = huxiMulPack_32s_C1IRSfs;
template <> inline constexpr auto mul_pack_in_place<s32, 3> = huxiMulPack_32s_C3IRSfs;
template <> inline constexpr auto mul_pack_in_place<s32, 4> = huxiMulPack_32s_C4IRSfs;
template <> inline constexpr auto mul_pack_in_place<s32, ac4> = huxiMulPack_32s_AC4IRSfs;

template <class, int>
inline constexpr auto mul_pack_conj = nullptr;
template <> inline constexpr auto mul_pack_conj<f32, 1> = huxiMulPackConj_32f_C1R;
template <> inline constexpr auto mul_pack_conj<f32, 3> = huxiMulPackConj_32f_C3R;
template <> inline constexpr auto mul_pack_conj<f32, 4> = huxiMulPackConj_32f_C4R;
template <> inline constexpr auto mul_pack_conj<f32, ac4> = huxiMulPackConj_32f_AC4R;

template <class, int>
inline constexpr auto mul_pack_conj_in_place = nullptr;
template <> inline constexpr auto mul_pack_conj_in_place<f32, 1> = huxiMulPackConj_32f_C1IR;
template <> inline constexpr auto mul_pack_conj_in_place<f32, 3> = huxiMulPackConj_32f_C3IR;
template <> inline constexpr auto mul_pack_conj_in_place<f32, 4> = huxiMulPackConj_32f_C4IR;
template <> inline constexpr auto mul_pack_conj_in_place<f32, ac4> = huxiMulPackConj_32f_AC4IR;

template <class, int>
inline constexpr auto magnitude_pack = nullptr;
template <> inline constexpr auto magnitude_pack<f32, 1> = huxiMagnitudePack_32f_C1R;
template <> inline constexpr auto magnitude_pack<f32, 3> = huxiMagnitudePack_32f_C3R;
template <> inline constexpr auto magnitude_pack<s16, 1> = huxiMagnitudePack_16s_C1RSfs;
template <> inline constexpr auto magnitude_pack<s16, 3> = huxiMagnitudePack_16s_C3RSfs;
template <> inline constexpr auto magnitude_pack<s32, 1> = huxiMagnitudePack_32s_C1RSfs;
template <> inline constexpr auto magnitude_pack<s32, 3> = huxiMagnitudePack_32s_C3RSfs;

template <class, int>
inline constexpr auto phase_pack = nullptr;
template <> inline constexpr auto phase_pack<f32, 1> = huxiPhasePack_32f_C1R;
template <> inline constexpr auto phase_pack<f32, 3> = huxiPhasePack_32f_C3R;
template <> inline constexpr auto phase_pack<s16, 1> = huxiPhasePack_16s_C1RSfs;
template <> inline constexpr auto phase_pack<s16, 3> = huxiPhasePack_16s_C3RSfs;
template <> inline constexpr auto phase_pack<s32, 1> = huxiPhasePack_32s_C1RSfs;
template <> inline constexpr auto phase_pack<s32, 3> = huxiPhasePack_32s_C3RSfs;

template <class, int, class>
inline constexpr auto magnitude = nullptr;
template <> inline constexpr auto magnitude<f32, 1, cf32> = huxiMagnitude_32fc32f_C1R;
template <> inline constexpr auto magnitude<f32, 3, cf32> = huxiMagnitude_32fc32f_C3R;
template <> inline constexpr auto magnitude<s16, 1, c16> = huxiMagnitude_16sc16s_C1RSfs;
template <> inline constexpr auto magnitude<s16, 3, c16> = huxiMagnitude_16sc16s_C3RSfs;
template <> inline constexpr auto magnitude<s32, 1, c32> = huxiMagnitude_32sc32s_C1RSfs;
template <> inline constexpr auto magnitude<s32, 3, c32> = huxiMagnitude_32sc32s_C3RSfs;

template <class, int, class>
inline constexpr auto phase = nullptr;
template <> inline constexpr auto phase<f32, 1, cf32> = huxiPhase_32fc32f_C1R;
template <> inline constexpr auto phase<f32, 3, cf32> = huxiPhase_32fc32f_C3R;
template <> inline constexpr auto phase<s16, 1, c16> = huxiPhase_16sc16s_C1RSfs;
template <> inline constexpr auto phase<s16, 3, c16> = huxiPhase_16sc16s_C3RSfs;
template <> inline constexpr auto phase<s32, 1, c32> = huxiPhase_32sc32s_C1RSfs;
template <> inline constexpr auto phase<s32, 3, c32> = huxiPhase_32sc32s_C3RSfs;

template <class, int>
inline constexpr auto polar_to_cart = nullptr;
template <> inline constexpr auto polar_to_cart<cf32, 1> = huxiPolarToCart_32fc_C1R;
template <> inline constexpr auto polar_to_cart<cf32, 3> = huxiPolarToCart_32fc_C3R;

template <class, int, class>
inline constexpr auto polar_to_cart_with_phase_fixed_point = nullptr;
template <> inline constexpr auto polar_to_cart_with_phase_fixed_point<c16, 1, s16> = huxiPolarToCart_16sc_C1R;
template <> inline constexpr auto polar_to_cart_with_phase_fixed_point<c16, 3, s16> = huxiPolarToCart_16sc_C3R;
template <> inline constexpr auto polar_to_cart_with_phase_fixed_point<c32, 1, s32> = huxiPolarToCart_32sc_C1R;
template <> inline constexpr auto polar_to_cart_with_phase_fixed_point<c32, 3, s32> = huxiPolarToCart_32sc_C3R;

template <class, int, class>
inline constexpr auto cplx_extend_to_pack = nullptr;
template <> inline constexpr auto cplx_extend_to_pack<f32, 1, cf32> = huxiCplxExtendToPack_32fc32f_C1R;
template <> inline constexpr auto cplx_extend_to_pack<f32, 3, cf32> = huxiCplxExtendToPack_32fc32f_C3R;
template <> inline constexpr auto cplx_extend_to_pack<s32, 1, c32> = huxiCplxExtendToPack_32sc32s_C1R;
template <> inline constexpr auto cplx_extend_to_pack<s32, 3, c32> = huxiCplxExtendToPack_32sc32s_C3R;
template <> inline constexpr auto cplx_extend_to_pack<s16, 1, c16> = huxiCplxExtendToPack_16sc16s_C1R;
template <> inline constexpr auto cplx_extend_to_pack<s16, 3, c16> = huxiCplxExtendToPack_16sc16s_C3R;

template <class, int, class>
inline constexpr auto pack_to_cplx_extend = nullptr;
template <> inline constexpr auto pack_to_cplx_extend<cf32, 1, f32> = huxiPackToCplxExtend_32f32fc_C1R;
template <> inline constexpr auto pack_to_cplx_extend<c32, 1, s32> = huxiPackToCplxExtend_32s32sc_C1R;

template <class>
inline constexpr auto add_line = nullptr;
template <> inline constexpr auto add_line<f32> = huxsAdd_32f;
template <> inline constexpr auto add_line<cf32> = huxsAdd_32fc;
template <> inline constexpr auto add_line<s16> = huxsAdd_16s_Sfs;
template <> inline constexpr auto add_line<c16> = huxsAdd_16sc_Sfs;
template <> inline constexpr auto add_line<s32> = huxsAdd_32s_Sfs;
template <> inline constexpr auto add_line<c32> = huxsAdd_32sc_Sfs;

template <class>
inline constexpr auto add_line_in_place = nullptr;
template <> inline constexpr auto add_line_in_place<f32> = huxsAdd_32f_I;
template <> inline constexpr auto add_line_in_place<cf32> = huxsAdd_32fc_I;
template <> inline constexpr auto add_line_in_place<s16> = huxsAdd_16s_ISfs;
template <> inline constexpr auto add_line_in_place<c16> = huxsAdd_16sc_ISfs;
template <> inline constexpr auto add_line_in_place<s32> = huxsAdd_32s_ISfs;
template <> inline constexpr auto add_line_in_place<c32> = huxsAdd_32sc_ISfs;

template <class>
inline constexpr auto sub_line = nullptr;
template <> inline constexpr auto sub_line<f32> = huxsSub_32f;
template <> inline constexpr auto sub_line<cf32> = huxsSub_32fc;
template <> inline constexpr auto sub_line<s16> = huxsSub_16s_Sfs;
template <> inline constexpr auto sub_line<c16> = huxsSub_16sc_Sfs;
template <> inline constexpr auto sub_line<s32> = huxsSub_32s_Sfs;
template <> inline constexpr auto sub_line<c32> = huxsSub_32sc_Sfs;

template <class>
inline constexpr auto sub_line_in_place = nullptr;
template <> inline constexpr auto sub_line_in_place<f32> = huxsSub_32f_I;
template <> inline constexpr auto sub_line_in_place<cf32> = huxsSub_32fc_I;
template <> inline constexpr auto sub_line_in_place<s16> = huxsSub_16s_ISfs;
template <> inline constexpr auto sub_line_in_place<c16> = huxsSub_16sc_ISfs;
template <> inline constexpr auto sub_line_in_place<s32> = huxsSub_32s_ISfs;
template <> inline constexpr auto sub_line_in_place<c32> = huxsSub_32sc_ISfs;

template <class>
inline constexpr auto add_c_line = nullptr;
template <> inline constexpr auto add_c_line<cf32> = huxsAddC_32fc;
template <> inline constexpr auto add_c_line<c16> = huxsAddC_16sc_Sfs;
template <> inline constexpr auto add_c_line<c32> = huxsAddC_32sc_Sfs;

template <class>
inline constexpr auto add_c_line_in_place = nullptr;
template <> inline constexpr auto add_c_line_in_place<cf32> = huxsAddC_32fc_I;
template <> inline constexpr auto add_c_line_in_place<c16> = huxsAddC_16sc_ISfs;
template <> inline constexpr auto add_c_line_in_place<c32> = huxsAddC_32sc_ISfs;

template <class>
inline constexpr auto sub_c_line = nullptr;
template <> inline constexpr auto sub_c_line<f32> = huxsSubC_32f;
template <> inline constexpr auto sub_c_line<cf32> = huxsSubC_32fc;
template <> inline constexpr auto sub_c_line<c16> = huxsSubC_16sc_Sfs;
template <> inline constexpr auto sub_c_line<c32> = huxsSubC_32sc_Sfs;

template <class>
inline constexpr auto sub_c_line_in_place = nullptr;
template <> inline constexpr auto sub_c_line_in_place<f32> = huxsSubC_32f_I;
template <> inline constexpr auto sub_c_line_in_place<cf32> = huxsSubC_32fc_I;
template <> inline constexpr auto sub_c_line_in_place<c16> = huxsSubC_16sc_ISfs;
template <> inline constexpr auto sub_c_line_in_place<c32> = huxsSubC_32sc_ISfs;

template <class>
inline constexpr auto mul_line = nullptr;
template <> inline constexpr auto mul_line<cf32> = huxsMul_32fc;
template <> inline constexpr auto mul_line<c16> = huxsMul_16sc_Sfs;
template <> inline constexpr auto mul_line<c32> = huxsMul_32sc_Sfs;

template <class>
inline constexpr auto mul_line_in_place = nullptr;
template <> inline constexpr auto mul_line_in_place<cf32> = huxsMul_32fc_I;
template <> inline constexpr auto mul_line_in_place<cf64> = huxsMul_64fc_I;
template <> inline constexpr auto mul_line_in_place<c16> = huxsMul_16sc_ISfs;
template <> inline constexpr auto mul_line_in_place<c32> = huxsMul_32sc_ISfs;

template <class>
inline constexpr auto mul_c_line = nullptr;
template <> inline constexpr auto mul_c_line<cf32> = huxsMulC_32fc;
template <> inline constexpr auto mul_c_line<c16> = huxsMulC_16sc_Sfs;
template <> inline constexpr auto mul_c_line<c32> = huxsMulC_32sc_Sfs;

template <class>
inline constexpr auto mul_c_line_in_place = nullptr;
template <> inline constexpr auto mul_c_line_in_place<f32> = huxsMulC_32f_I;
template <> inline constexpr auto mul_c_line_in_place<cf32> = huxsMulC_32fc_I;
template <> inline constexpr auto mul_c_line_in_place<cf64> = huxsMulC_64fc_I;
template <> inline constexpr auto mul_c_line_in_place<c16> = huxsMulC_16sc_ISfs;
template <> inline constexpr auto mul_c_line_in_place<c32> = huxsMulC_32sc_ISfs;

template <class>
inline constexpr auto div_line = nullptr;
template <> inline constexpr auto div_line<f32> = huxsDiv_32f;
template <> inline constexpr auto div_line<cf32> = huxsDiv_32fc;
template <> inline constexpr auto div_line<cf64> = huxsDiv_64fc;
template <> inline constexpr auto div_line<u8> = huxsDiv_8u_Sfs;
template <> inline constexpr auto div_line<s16> = huxsDiv_16s_Sfs;
template <> inline constexpr auto div_line<c16> = huxsDiv_16sc_Sfs;

template <class>
inline constexpr auto div_line_in_place = nullptr;
template <> inline constexpr auto div_line_in_place<cf32> = huxsDiv_32fc_I;
template <> inline constexpr auto div_line_in_place<cf64> = huxsDiv_64fc_I;
template <> inline constexpr auto div_line_in_place<c16> = huxsDiv_16sc_ISfs;

template <class>
inline constexpr auto div_c_line = nullptr;
template <> inline constexpr auto div_c_line<cf32> = huxsDivC_32fc;
template <> inline constexpr auto div_c_line<u8> = huxsDivC_8u_Sfs;
template <> inline constexpr auto div_c_line<s16> = huxsDivC_16s_Sfs;
template <> inline constexpr auto div_c_line<c16> = huxsDivC_16sc_Sfs;

template <class>
inline constexpr auto div_c_line_in_place = nullptr;
template <> inline constexpr auto div_c_line_in_place<cf32> = huxsDivC_32fc_I;
template <> inline constexpr auto div_c_line_in_place<c16> = huxsDivC_16sc_ISfs;

template <class>
inline constexpr auto abs_line = nullptr;
template <> inline constexpr auto abs_line<s16> = huxsAbs_16s;
template <> inline constexpr auto abs_line<f32> = huxsAbs_32f;

template <class>
inline constexpr auto abs_line_in_place = nullptr;
template <> inline constexpr auto abs_line_in_place<s16> = huxsAbs_16s_I;
template <> inline constexpr auto abs_line_in_place<f32> = huxsAbs_32f_I;

template <class>
inline constexpr auto sqr_line = nullptr;
template <> inline constexpr auto sqr_line<u8> = huxsSqr_8u_Sfs;
template <> inline constexpr auto sqr_line<u16> = huxsSqr_16u_Sfs;
template <> inline constexpr auto sqr_line<s16> = huxsSqr_16s_Sfs;
template <> inline constexpr auto sqr_line<f32> = huxsSqr_32f;

template <class>
inline constexpr auto sqr_line_in_place = nullptr;
template <> inline constexpr auto sqr_line_in_place<u8> = huxsSqr_8u_ISfs;
template <> inline constexpr auto sqr_line_in_place<u16> = huxsSqr_16u_ISfs;
template <> inline constexpr auto sqr_line_in_place<s16> = huxsSqr_16s_ISfs;
template <> inline constexpr auto sqr_line_in_place<f32> = huxsSqr_32f_I;

template <class>
inline constexpr auto sqrt_line = nullptr;
template <> inline constexpr auto sqrt_line<u8> = huxsSqrt_8u_Sfs;
template <> inline constexpr auto sqrt_line<u16> = huxsSqrt_16u_Sfs;
template <> inline constexpr auto sqrt_line<s16> = huxsSqrt_16s_Sfs;
template <> inline constexpr auto sqrt_line<f32> = huxsSqrt_32f;

template <class>
inline constexpr auto sqrt_line_in_place = nullptr;
template <> inline constexpr auto sqrt_line_in_place<u8> = huxsSqrt_8u_ISfs;
template <> inline constexpr auto sqrt_line_in_place<u16> = huxsSqrt_16u_ISfs;
template <> inline constexpr auto sqrt_line_in_place<s16> = huxsSqrt_16s_ISfs;
template <> inline constexpr auto sqrt_line_in_place<f32> = huxsSqrt_32f_I;

template <class>
inline constexpr auto exp_line = nullptr;
template <> inline constexpr auto exp_line<s16> = huxsExp_16s_Sfs;
template <> inline constexpr auto exp_line<f32> = huxsExp_32f;

template <class>
inline constexpr auto exp_line_in_place = nullptr;
template <> inline constexpr auto exp_line_in_place<s16> = huxsExp_16s_ISfs;
template <> inline constexpr auto exp_line_in_place<f32> = huxsExp_32f_I;

template <class>
inline constexpr auto ln_line = nullptr;
template <> inline constexpr auto ln_line<s16> = huxsLn_16s_Sfs;

template <class>
inline constexpr auto ln_line_in_place = nullptr;
template <> inline constexpr auto ln_line_in_place<s16> = huxsLn_16s_ISfs;

template <class, class>
inline constexpr auto magnitude_line = nullptr;
template <> inline constexpr auto magnitude_line<f32, cf32> = huxsMagnitude_32fc;
template <> inline constexpr auto magnitude_line<s16, c16> = huxsMagnitude_16sc_Sfs;
template <> inline constexpr auto magnitude_line<s32, c32> = huxsMagnitude_32sc_Sfs;

template <class, class>
inline constexpr auto phase_line = nullptr;
template <> inline constexpr auto phase_line<f32, cf32> = huxsPhase_32fc;
template <> inline constexpr auto phase_line<s16, c16> = huxsPhase_16sc_Sfs;
template <> inline constexpr auto phase_line<s32, c32> = huxsPhase_32sc_Sfs;

template <class>
inline constexpr auto polar_to_cart_line = nullptr;
template <> inline constexpr auto polar_to_cart_line<cf32> = huxsPolarToCart_32fc;

template <class, class>
inline constexpr auto polar_to_cart_line_with_phase_fixed_point = nullptr;
template <> inline constexpr auto polar_to_cart_line_with_phase_fixed_point<c16, s16> = huxsPolarToCart_16sc;
template <> inline constexpr auto polar_to_cart_line_with_phase_fixed_point<c32, s32> = huxsPolarToCart_32sc;

template <class, class>
inline constexpr auto convert_line = nullptr;
template <> inline constexpr auto convert_line<f32, u8> = huxsConvert_8u32f;
template <> inline constexpr auto convert_line<f32, s32> = huxsConvert_32s32f;
template <> inline constexpr auto convert_line<f64, s32> = huxsConvert_32s64f;

template <class, class>
inline constexpr auto convert_line_with_round_mode = nullptr;
template <> inline constexpr auto convert_line_with_round_mode<u8, f32> = huxsConvert_32f8u_Sfs;
template <> inline constexpr auto convert_line_with_round_mode<s16, f32> = huxsConvert_32f16s_Sfs;
template <> inline constexpr auto convert_line_with_round_mode<s32, f32> = huxsConvert_32f32s_Sfs;
template <> inline constexpr auto convert_line_with_round_mode<s32, f64> = huxsConvert_64f32s_Sfs;

template <class>
inline constexpr auto set_line = nullptr;
template <> inline constexpr auto set_line<u8> = huxsSet_8u;
template <> inline constexpr auto set_line<s16> = huxsSet_16s;
template <> inline constexpr auto set_line<s32> = huxsSet_32s;
template <> inline constexpr auto set_line<f32> = huxsSet_32f;
template <> inline constexpr auto set_line<c16> = huxsSet_16sc;
template <> inline constexpr auto set_line<cf32> = huxsSet_32fc;

template <class>
inline constexpr auto zero_line = nullptr;
template <> inline constexpr auto zero_line<u8> = huxsZero_8u;
template <> inline constexpr auto zero_line<s16> = huxsZero_16s;
template <> inline constexpr auto zero_line<c16> = huxsZero_16sc;
template <> inline constexpr auto zero_line<f32> = huxsZero_32f;

template <class>
inline constexpr auto copy_line = nullptr;
template <> inline constexpr auto copy_line<u8> = huxsCopy_8u;
template <> inline constexpr auto copy_line<f32> = huxsCopy_32f;

template <class>
inline constexpr auto move_line = nullptr;
template <> inline constexpr auto move_line<s16> = huxsMove_16s;
template <> inline constexpr auto move_line<f32> = huxsMove_32f;

template <class>
inline constexpr auto win_bartlett_line_in_place = nullptr;
template <> inline constexpr auto win_bartlett_line_in_place<f32> = huxsWinBartlett_32f_I;

template <class>
inline constexpr auto win_hamming_line_in_place = nullptr;
template <> inline constexpr auto win_hamming_line_in_place<f32> = huxsWinHamming_32f_I;

template <class>
inline constexpr auto mean_line = nullptr;
template <> inline constexpr auto mean_line<f32> = huxsMean_32f;

template <class>
inline constexpr auto norm_l2_line = nullptr;
template <> inline constexpr auto norm_l2_line<f32> = huxsNorm_L2_32f;

template <class>
inline constexpr auto dot_prod_line = nullptr;
template <> inline constexpr auto dot_prod_line<f32> = huxsDotProd_32f;

template <class, int>
inline constexpr auto deconv_fft_init_alloc = nullptr;
template <> inline constexpr auto deconv_fft_init_alloc<f32, 1> = huxiDeconvFFTInitAlloc_32f_C1R;
template <> inline constexpr auto deconv_fft_init_alloc<f32, 3> = huxiDeconvFFTInitAlloc_32f_C3R;

template <class, int>
inline constexpr auto deconv_lr_init_alloc = nullptr;
template <> inline constexpr auto deconv_lr_init_alloc<f32, 1> = huxiDeconvLRInitAlloc_32f_C1R;
template <> inline constexpr auto deconv_lr_init_alloc<f32, 3> = huxiDeconvLRInitAlloc_32f_C3R;

template <class, int>
inline constexpr auto deconv_fft = nullptr;
template <> inline constexpr auto deconv_fft<f32, 1> = huxiDeconvFFT_32f_C1R;
template <> inline constexpr auto deconv_fft<f32, 3> = huxiDeconvFFT_32f_C3R;

template <class, int>
inline constexpr auto deconv_lr = nullptr;
template <> inline constexpr auto deconv_lr<f32, 1> = huxiDeconvLR_32f_C1R;
template <> inline constexpr auto deconv_lr<f32, 3> = huxiDeconvLR_32f_C3R;

template <class, int>
inline constexpr auto deconv_fft_free = nullptr;
template <> inline constexpr auto deconv_fft_free<f32, 1> = huxiDeconvFFTFree_32f_C1R;
template <> inline constexpr auto deconv_fft_free<f32, 3> = huxiDeconvFFTFree_32f_C3R;

template <class, int>
inline constexpr auto deconv_lr_free = nullptr;
template <> inline constexpr auto deconv_lr_free<f32, 1> = huxiDeconvLRFree_32f_C1R;
template <> inline constexpr auto deconv_lr_free<f32, 3> = huxiDeconvLRFree_32f_C3R;

template <class, int>
inline constexpr auto malloc = nullptr;
template <> inline constexpr auto malloc<u8, 1> = huxiMalloc_8u_C1;
template <> inline constexpr auto malloc<u8, 2> = huxiMalloc_8u_C2;
template <> inline constexpr auto malloc<u8, 3> = huxiMalloc_8u_C3;
template <> inline constexpr auto malloc<u8, 4> = huxiMalloc_8u_C4;
template <> inline constexpr auto malloc<u8, ac4> = huxiMalloc_8u_AC4;
template <> inline constexpr auto malloc<u16, 1> = huxiMalloc_16u_C1;
template <> inline constexpr auto malloc<u16, 2> = huxiMalloc_16u_C2;
template <> inline constexpr auto malloc<u16, 3> = huxiMalloc_16u_C3;
template <> inline constexpr auto malloc<u16, 4> = huxiMalloc_16u_C4;
template <> inline constexpr auto malloc<u16, ac4> = huxiMalloc_16u_AC4;
template <> inline constexpr auto malloc<s16, 1> = huxiMalloc_16s_C1;
template <> inline constexpr auto malloc<s16, 2> = huxiMalloc_16s_C2;
template <> inline constexpr auto malloc<s16, 3> = huxiMalloc_16s_C3;
template <> inline constexpr auto malloc<s16, 4> = huxiMalloc_16s_C4;
template <> inline constexpr auto malloc<s16, ac4> = huxiMalloc_16s_AC4;
template <> inline constexpr auto malloc<s32, 1> = huxiMalloc_32s_C1;
template <> inline constexpr auto malloc<s32, 2> = huxiMalloc_32s_C2;
template <> inline constexpr auto malloc<s32, 3> = huxiMalloc_32s_C3;
template <> inline constexpr auto malloc<s32, 4> = huxiMalloc_32s_C4;
template <> inline constexpr auto malloc<s32, ac4> = huxiMalloc_32s_AC4;
template <> inline constexpr auto malloc<f32, 1> = huxiMalloc_32f_C1;
template <> inline constexpr auto malloc<f32, 2> = huxiMalloc_32f_C2;
template <> inline constexpr auto malloc<f32, 3> = huxiMalloc_32f_C3;
template <> inline constexpr auto malloc<f32, 4> = huxiMalloc_32f_C4;
template <> inline constexpr auto malloc<f32, ac4> = huxiMalloc_32f_AC4;
template <> inline constexpr auto malloc<c32, 1> = huxiMalloc_32sc_C1;
template <> inline constexpr auto malloc<c32, 2> = huxiMalloc_32sc_C2;
template <> inline constexpr auto malloc<c32, 3> = huxiMalloc_32sc_C3;
template <> inline constexpr auto malloc<c32, 4> = huxiMalloc_32sc_C4;
template <> inline constexpr auto malloc<c32, ac4> = huxiMalloc_32sc_AC4;
template <> inline constexpr auto malloc<cf32, 1> = huxiMalloc_32fc_C1;
template <> inline constexpr auto malloc<cf32, 2> = huxiMalloc_32fc_C2;
template <> inline constexpr auto malloc<cf32, 3> = huxiMalloc_32fc_C3;
template <> inline constexpr auto malloc<cf32, 4> = huxiMalloc_32fc_C4;
template <> inline constexpr auto malloc<cf32, ac4> = huxiMalloc_32fc_AC4;

template <class>
inline constexpr auto moment_init_alloc = nullptr;
template <> inline constexpr auto moment_init_alloc<f64> = huxiMomentInitAlloc_64f;
template <> inline constexpr auto moment_init_alloc<s64> = huxiMomentInitAlloc_64s;

template <class>
inline constexpr auto moment_free = nullptr;
template <> inline constexpr auto moment_free<f64> = huxiMomentFree_64f;
template <> inline constexpr auto moment_free<s64> = huxiMomentFree_64s;

template <class>
inline constexpr auto moment_get_state_size = nullptr;
template <> inline constexpr auto moment_get_state_size<s64> = huxiMomentGetStateSize_64s;

template <class>
inline constexpr auto moment_init = nullptr;
template <> inline constexpr auto moment_init<s64> = huxiMomentInit_64s;

template <class, int>
inline constexpr auto moments64f = nullptr;
template <> inline constexpr auto moments64f<u8, 1> = huxiMoments64f_8u_C1R;
template <> inline constexpr auto moments64f<u8, 3> = huxiMoments64f_8u_C3R;
template <> inline constexpr auto moments64f<u8, ac4> = huxiMoments64f_8u_AC4R;
template <> inline constexpr auto moments64f<f32, 1> = huxiMoments64f_32f_C1R;
template <> inline constexpr auto moments64f<f32, 3> = huxiMoments64f_32f_C3R;
template <> inline constexpr auto moments64f<f32, ac4> = huxiMoments64f_32f_AC4R;

template <class, int>
inline constexpr auto moments64s = nullptr;
template <> inline constexpr auto moments64s<u8, 1> = huxiMoments64s_8u_C1R;
template <> inline constexpr auto moments64s<u8, 3> = huxiMoments64s_8u_C3R;
template <> inline constexpr auto moments64s<u8, ac4> = huxiMoments64s_8u_AC4R;

template <class>
inline constexpr auto get_spatial_moment = nullptr;
template <> inline constexpr auto get_spatial_moment<f64> = huxiGetSpatialMoment_64f;
template <> inline constexpr auto get_spatial_moment<s64> = huxiGetSpatialMoment_64s;

template <class>
inline constexpr auto get_normalized_spatial_moment = nullptr;
template <> inline constexpr auto get_normalized_spatial_moment<f64> = huxiGetNormalizedSpatialMoment_64f;
template <> inline constexpr auto get_normalized_spatial_moment<s64> = huxiGetNormalizedSpatialMoment_64s;

template <class>
inline constexpr auto get_central_moment = nullptr;
template <> inline constexpr auto get_central_moment<f64> = huxiGetCentralMoment_64f;
template <> inline constexpr auto get_central_moment<s64> = huxiGetCentralMoment_64s;

template <class>
inline constexpr auto get_normalized_central_moment = nullptr;
template <> inline constexpr auto get_normalized_central_moment<f64> = huxiGetNormalizedCentralMoment_64f;
template <> inline constexpr auto get_normalized_central_moment<s64> = huxiGetNormalizedCentralMoment_64s;

template <class>
inline constexpr auto get_hu_moments = nullptr;
template <> inline constexpr auto get_hu_moments<f64> = huxiGetHuMoments_64f;
template <> inline constexpr auto get_hu_moments<s64> = huxiGetHuMoments_64s;

template <class, int>
inline constexpr auto histogram_range = nullptr;
template <> inline constexpr auto histogram_range<u8, 1> = huxiHistogramRange_8u_C1R;
template <> inline constexpr auto histogram_range<u8, 3> = huxiHistogramRange_8u_C3R;
template <> inline constexpr auto histogram_range<u8, ac4> = huxiHistogramRange_8u_AC4R;
template <> inline constexpr auto histogram_range<u8, 4> = huxiHistogramRange_8u_C4R;
template <> inline constexpr auto histogram_range<s16, 1> = huxiHistogramRange_16s_C1R;
template <> inline constexpr auto histogram_range<s16, 3> = huxiHistogramRange_16s_C3R;
template <> inline constexpr auto histogram_range<s16, ac4> = huxiHistogramRange_16s_AC4R;
template <> inline constexpr auto histogram_range<s16, 4> = huxiHistogramRange_16s_C4R;
template <> inline constexpr auto histogram_range<u16, 1> = huxiHistogramRange_16u_C1R;
template <> inline constexpr auto histogram_range<u16, 3> = huxiHistogramRange_16u_C3R;
template <> inline constexpr auto histogram_range<u16, ac4> = huxiHistogramRange_16u_AC4R;
template <> inline constexpr auto histogram_range<u16, 4> = huxiHistogramRange_16u_C4R;
template <> inline constexpr auto histogram_range<f32, 1> = huxiHistogramRange_32f_C1R;
template <> inline constexpr auto histogram_range<f32, 3> = huxiHistogramRange_32f_C3R;
template <> inline constexpr auto histogram_range<f32, ac4> = huxiHistogramRange_32f_AC4R;
template <> inline constexpr auto histogram_range<f32, 4> = huxiHistogramRange_32f_C4R;

template <class, int>
inline constexpr auto histogram_even = nullptr;
template <> inline constexpr auto histogram_even<u8, 1> = huxiHistogramEven_8u_C1R;
template <> inline constexpr auto histogram_even<u8, 3> = huxiHistogramEven_8u_C3R;
template <> inline constexpr auto histogram_even<u8, ac4> = huxiHistogramEven_8u_AC4R;
template <> inline constexpr auto histogram_even<u8, 4> = huxiHistogramEven_8u_C4R;
template <> inline constexpr auto histogram_even<s16, 1> = huxiHistogramEven_16s_C1R;
template <> inline constexpr auto histogram_even<s16, 3> = huxiHistogramEven_16s_C3R;
template <> inline constexpr auto histogram_even<s16, ac4> = huxiHistogramEven_16s_AC4R;
template <> inline constexpr auto histogram_even<s16, 4> = huxiHistogramEven_16s_C4R;
template <> inline constexpr auto histogram_even<u16, 1> = huxiHistogramEven_16u_C1R;
template <> inline constexpr auto histogram_even<u16, 3> = huxiHistogramEven_16u_C3R;
template <> inline constexpr auto histogram_even<u16, ac4> = huxiHistogramEven_16u_AC4R;
template <> inline constexpr auto histogram_even<u16, 4> = huxiHistogramEven_16u_C4R;

template <class>
inline constexpr auto fft_init_alloc_c = nullptr;
template <> inline constexpr auto fft_init_alloc_c<cf32> = huxiFFTInitAlloc_C_32fc;

template <class>
inline constexpr auto fft_init_alloc_r = nullptr;
template <> inline constexpr auto fft_init_alloc_r<f32> = huxiFFTInitAlloc_R_32f;
template <> inline constexpr auto fft_init_alloc_r<s32> = huxiFFTInitAlloc_R_32s;

template <class>
inline constexpr auto dft_init_alloc_c = nullptr;
template <> inline constexpr auto dft_init_alloc_c<cf32> = huxiDFTInitAlloc_C_32fc;

template <class>
inline constexpr auto dft_init_alloc_r = nullptr;
template <> inline constexpr auto dft_init_alloc_r<f32> = huxiDFTInitAlloc_R_32f;
template <> inline constexpr auto dft_init_alloc_r<s32> = huxiDFTInitAlloc_R_32s;

template <class>
inline constexpr auto fft_free_c = nullptr;
template <> inline constexpr auto fft_free_c<cf32> = huxiFFTFree_C_32fc;

template <class>
inline constexpr auto fft_free_r = nullptr;
template <> inline constexpr auto fft_free_r<f32> = huxiFFTFree_R_32f;
template <> inline constexpr auto fft_free_r<s32> = huxiFFTFree_R_32s;

template <class>
inline constexpr auto fft_get_buf_size_c = nullptr;
template <> inline constexpr auto fft_get_buf_size_c<cf32> = huxiFFTGetBufSize_C_32fc;

template <class>
inline constexpr auto fft_get_buf_size_r = nullptr;
template <> inline constexpr auto fft_get_buf_size_r<f32> = huxiFFTGetBufSize_R_32f;
template <> inline constexpr auto fft_get_buf_size_r<s32> = huxiFFTGetBufSize_R_32s;

template <class>
inline constexpr auto dft_free_c = nullptr;
template <> inline constexpr auto dft_free_c<cf32> = huxiDFTFree_C_32fc;

template <class>
inline constexpr auto dft_free_r = nullptr;
template <> inline constexpr auto dft_free_r<f32> = huxiDFTFree_R_32f;
template <> inline constexpr auto dft_free_r<s32> = huxiDFTFree_R_32s;

template <class>
inline constexpr auto dft_get_buf_size_c = nullptr;
template <> inline constexpr auto dft_get_buf_size_c<cf32> = huxiDFTGetBufSize_C_32fc;

template <class>
inline constexpr auto dft_get_buf_size_r = nullptr;
template <> inline constexpr auto dft_get_buf_size_r<f32> = huxiDFTGetBufSize_R_32f;
template <> inline constexpr auto dft_get_buf_size_r<s32> = huxiDFTGetBufSize_R_32s;

template <class, int>
inline constexpr auto fft_fwd_c_to_c = nullptr;
template <> inline constexpr auto fft_fwd_c_to_c<cf32, 1> = huxiFFTFwd_CToC_32fc_C1R;

template <class, int>
inline constexpr auto fft_fwd_c_to_c_in_place = nullptr;
template <> inline constexpr auto fft_fwd_c_to_c_in_place<cf32, 1> = huxiFFTFwd_CToC_32fc_C1IR;

template <class, int>
inline constexpr auto fft_inv_c_to_c = nullptr;
template <> inline constexpr auto fft_inv_c_to_c<cf32, 1> = huxiFFTInv_CToC_32fc_C1R;

template <class, int>
inline constexpr auto fft_inv_c_to_c_in_place = nullptr;
template <> inline constexpr auto fft_inv_c_to_c_in_place<cf32, 1> = huxiFFTInv_CToC_32fc_C1IR;

template <class, int>
inline constexpr auto dft_fwd_c_to_c = nullptr;
template <> inline constexpr auto dft_fwd_c_to_c<cf32, 1> = huxiDFTFwd_CToC_32fc_C1R;

template <class, int>
inline constexpr auto dft_fwd_c_to_c_in_place = nullptr;
template <> inline constexpr auto dft_fwd_c_to_c_in_place<cf32, 1> = huxiDFTFwd_CToC_32fc_C1IR;

template <class, int>
inline constexpr auto dft_inv_c_to_c = nullptr;
template <> inline constexpr auto dft_inv_c_to_c<cf32, 1> = huxiDFTInv_CToC_32fc_C1R;

template <class, int>
inline constexpr auto dft_inv_c_to_c_in_place = nullptr;
template <> inline constexpr auto dft_inv_c_to_c_in_place<cf32, 1> = huxiDFTInv_CToC_32fc_C1IR;

template <class, int, class>
inline constexpr auto fft_fwd_r_to_pack = nullptr;
template <> inline constexpr auto fft_fwd_r_to_pack<f32, 1, f32> = huxiFFTFwd_RToPack_32f_C1R;
template <> inline constexpr auto fft_fwd_r_to_pack<f32, 3, f32> = huxiFFTFwd_RToPack_32f_C3R;
template <> inline constexpr auto fft_fwd_r_to_pack<f32, 4, f32> = huxiFFTFwd_RToPack_32f_C4R;
template <> inline constexpr auto fft_fwd_r_to_pack<f32, ac4, f32> = huxiFFTFwd_RToPack_32f_AC4R;
template <> inline constexpr auto fft_fwd_r_to_pack<s32, 1, u8> = huxiFFTFwd_RToPack_8u32s_C1RSfs;
template <> inline constexpr auto fft_fwd_r_to_pack<s32, 3, u8> = huxiFFTFwd_RToPack_8u32s_C3RSfs;
template <> inline constexpr auto fft_fwd_r_to_pack<s32, 4, u8> = huxiFFTFwd_RToPack_8u32s_C4RSfs;
template <> inline constexpr auto fft_fwd_r_to_pack<s32, ac4, u8> = huxiFFTFwd_RToPack_8u32s_AC4RSfs;

template <class, int, class>
inline constexpr auto fft_fwd_r_to_pack_in_place = nullptr;
template <> inline constexpr auto fft_fwd_r_to_pack_in_place<f32, 1, f32> = huxiFFTFwd_RToPack_32f_C1IR;
template <> inline constexpr auto fft_fwd_r_to_pack_in_place<f32, 3, f32> = huxiFFTFwd_RToPack_32f_C3IR;
template <> inline constexpr auto fft_fwd_r_to_pack_in_place<f32, 4, f32> = huxiFFTFwd_RToPack_32f_C4IR;
template <> inline constexpr auto fft_fwd_r_to_pack_in_place<f32, ac4, f32> = huxiFFTFwd_RToPack_32f_AC4IR;

template <class, int, class>
inline constexpr auto fft_inv_pack_to_r = nullptr;
template <> inline constexpr auto fft_inv_pack_to_r<f32, 1, f32> = huxiFFTInv_PackToR_32f_C1R;
template <> inline constexpr auto fft_inv_pack_to_r<f32, 3, f32> = huxiFFTInv_PackToR_32f_C3R;
template <> inline constexpr auto fft_inv_pack_to_r<f32, 4, f32> = huxiFFTInv_PackToR_32f_C4R;
template <> inline constexpr auto fft_inv_pack_to_r<f32, ac4, f32> = huxiFFTInv_PackToR_32f_AC4R;
template <> inline constexpr auto fft_inv_pack_to_r<u8, 1, s32> = huxiFFTInv_PackToR_32s8u_C1RSfs;
template <> inline constexpr auto fft_inv_pack_to_r<u8, 3, s32> = huxiFFTInv_PackToR_32s8u_C3RSfs;
template <> inline constexpr auto fft_inv_pack_to_r<u8, 4, s32> = huxiFFTInv_PackToR_32s8u_C4RSfs;
template <> inline constexpr auto fft_inv_pack_to_r<u8, ac4, s32> = huxiFFTInv_PackToR_32s8u_AC4RSfs;

template <class, int, class>
inline constexpr auto fft_inv_pack_to_r_in_place = nullptr;
template <> inline constexpr auto fft_inv_pack_to_r_in_place<f32, 1, f32> = huxiFFTInv_PackToR_32f_C1IR;
template <> inline constexpr auto fft_inv_pack_to_r_in_place<f32, 3, f32> = huxiFFTInv_PackToR_32f_C3IR;
template <> inline constexpr auto fft_inv_pack_to_r_in_place<f32, 4, f32> = huxiFFTInv_PackToR_32f_C4IR;
template <> inline constexpr auto fft_inv_pack_to_r_in_place<f32, ac4, f32> = huxiFFTInv_PackToR_32f_AC4IR;

template <class, int, class>
inline constexpr auto dft_fwd_r_to_pack = nullptr;
template <> inline constexpr auto dft_fwd_r_to_pack<f32, 1, f32> = huxiDFTFwd_RToPack_32f_C1R;
template <> inline constexpr auto dft_fwd_r_to_pack<f32, 3, f32> = huxiDFTFwd_RToPack_32f_C3R;
template <> inline constexpr auto dft_fwd_r_to_pack<f32, 4, f32> = huxiDFTFwd_RToPack_32f_C4R;
template <> inline constexpr auto dft_fwd_r_to_pack<f32, ac4, f32> = huxiDFTFwd_RToPack_32f_AC4R;
template <> inline constexpr auto dft_fwd_r_to_pack<s32, 1, u8> = huxiDFTFwd_RToPack_8u32s_C1RSfs;
template <> inline constexpr auto dft_fwd_r_to_pack<s32, 3, u8> = huxiDFTFwd_RToPack_8u32s_C3RSfs;
template <> inline constexpr auto dft_fwd_r_to_pack<s32, 4, u8> = huxiDFTFwd_RToPack_8u32s_C4RSfs;
template <> inline constexpr auto dft_fwd_r_to_pack<s32, ac4, u8> = huxiDFTFwd_RToPack_8u32s_AC4RSfs;

template <class, int, class>
inline constexpr auto dft_fwd_r_to_pack_in_place = nullptr;
template <> inline constexpr auto dft_fwd_r_to_pack_in_place<f32, 1, f32> = huxiDFTFwd_RToPack_32f_C1IR;
template <> inline constexpr auto dft_fwd_r_to_pack_in_place<f32, 3, f32> = huxiDFTFwd_RToPack_32f_C3IR;
template <> inline constexpr auto dft_fwd_r_to_pack_in_place<f32, 4, f32> = huxiDFTFwd_RToPack_32f_C4IR;
template <> inline constexpr auto dft_fwd_r_to_pack_in_place<f32, ac4, f32> = huxiDFTFwd_RToPack_32f_AC4IR;

template <class, int, class>
inline constexpr auto dft_inv_pack_to_r = nullptr;
template <> inline constexpr auto dft_inv_pack_to_r<f32, 1, f32> = huxiDFTInv_PackToR_32f_C1R;
template <> inline constexpr auto dft_inv_pack_to_r<f32, 3, f32> = huxiDFTInv_PackToR_32f_C3R;
template <> inline constexpr auto dft_inv_pack_to_r<f32, 4, f32> = huxiDFTInv_PackToR_32f_C4R;
template <> inline constexpr auto dft_inv_pack_to_r<f32, ac4, f32> = huxiDFTInv_PackToR_32f_AC4R;
template <> inline constexpr auto dft_inv_pack_to_r<u8, 1, s32> = huxiDFTInv_PackToR_32s8u_C1RSfs;
template <> inline constexpr auto dft_inv_pack_to_r<u8, 3, s32> = huxiDFTInv_PackToR_32s8u_C3RSfs;
template <> inline constexpr auto dft_inv_pack_to_r<u8, 4, s32> = huxiDFTInv_PackToR_32s8u_C4RSfs;
template <> inline constexpr auto dft_inv_pack_to_r<u8, ac4, s32> = huxiDFTInv_PackToR_32s8u_AC4RSfs;

template <class, int, class>
inline constexpr auto dft_inv_pack_to_r_in_place = nullptr;
template <> inline constexpr auto dft_inv_pack_to_r_in_place<f32, 1, f32> = huxiDFTInv_PackToR_32f_C1IR;
template <> inline constexpr auto dft_inv_pack_to_r_in_place<f32, 3, f32> = huxiDFTInv_PackToR_32f_C3IR;
template <> inline constexpr auto dft_inv_pack_to_r_in_place<f32, 4, f32> = huxiDFTInv_PackToR_32f_C4IR;
template <> inline constexpr auto dft_inv_pack_to_r_in_place<f32, ac4, f32> = huxiDFTInv_PackToR_32f_AC4IR;

template <class>
inline constexpr auto dct_fwd_init_alloc = nullptr;
template <> inline constexpr auto dct_fwd_init_alloc<f32> = huxiDCTFwdInitAlloc_32f;

template <class>
inline constexpr auto dct_inv_init_alloc = nullptr;
template <> inline constexpr auto dct_inv_init_alloc<f32> = huxiDCTInvInitAlloc_32f;

template <class>
inline constexpr auto dct_fwd_free = nullptr;
template <> inline constexpr auto dct_fwd_free<f32> = huxiDCTFwdFree_32f;

template <class>
inline constexpr auto dct_inv_free = nullptr;
template <> inline constexpr auto dct_inv_free<f32> = huxiDCTInvFree_32f;

template <class>
inline constexpr auto dct_fwd_get_buf_size = nullptr;
template <> inline constexpr auto dct_fwd_get_buf_size<f32> = huxiDCTFwdGetBufSize_32f;

template <class>
inline constexpr auto dct_inv_get_buf_size = nullptr;
template <> inline constexpr auto dct_inv_get_buf_size<f32> = huxiDCTInvGetBufSize_32f;

template <class, int>
inline constexpr auto dct_fwd = nullptr;
template <> inline constexpr auto dct_fwd<f32, 1> = huxiDCTFwd_32f_C1R;
template <> inline constexpr auto dct_fwd<f32, 3> = huxiDCTFwd_32f_C3R;
template <> inline constexpr auto dct_fwd<f32, 4> = huxiDCTFwd_32f_C4R;
template <> inline constexpr auto dct_fwd<f32, ac4> = huxiDCTFwd_32f_AC4R;

template <class, int>
inline constexpr auto dct_inv = nullptr;
template <> inline constexpr auto dct_inv<f32, 1> = huxiDCTInv_32f_C1R;
template <> inline constexpr auto dct_inv<f32, 3> = huxiDCTInv_32f_C3R;
template <> inline constexpr auto dct_inv<f32, 4> = huxiDCTInv_32f_C4R;
template <> inline constexpr auto dct_inv<f32, ac4> = huxiDCTInv_32f_AC4R;

template <class, int>
inline constexpr auto wt_fwd_init_alloc = nullptr;
template <> inline constexpr auto wt_fwd_init_alloc<f32, 1> = huxiWTFwdInitAlloc_32f_C1R;
template <> inline constexpr auto wt_fwd_init_alloc<f32, 3> = huxiWTFwdInitAlloc_32f_C3R;

template <class, int>
inline constexpr auto wt_inv_init_alloc = nullptr;
template <> inline constexpr auto wt_inv_init_alloc<f32, 1> = huxiWTInvInitAlloc_32f_C1R;
template <> inline constexpr auto wt_inv_init_alloc<f32, 3> = huxiWTInvInitAlloc_32f_C3R;

template <class, int>
inline constexpr auto wt_fwd_free = nullptr;
template <> inline constexpr auto wt_fwd_free<f32, 1> = huxiWTFwdFree_32f_C1R;
template <> inline constexpr auto wt_fwd_free<f32, 3> = huxiWTFwdFree_32f_C3R;

template <class, int>
inline constexpr auto wt_inv_free = nullptr;
template <> inline constexpr auto wt_inv_free<f32, 1> = huxiWTInvFree_32f_C1R;
template <> inline constexpr auto wt_inv_free<f32, 3> = huxiWTInvFree_32f_C3R;

template <int>
inline constexpr auto wt_fwd_get_buf_size = nullptr;
template <> inline constexpr auto wt_fwd_get_buf_size<1> = huxiWTFwdGetBufSize_C1R;
template <> inline constexpr auto wt_fwd_get_buf_size<3> = huxiWTFwdGetBufSize_C3R;

template <int>
inline constexpr auto wt_inv_get_buf_size = nullptr;
template <> inline constexpr auto wt_inv_get_buf_size<1> = huxiWTInvGetBufSize_C1R;
template <> inline constexpr auto wt_inv_get_buf_size<3> = huxiWTInvGetBufSize_C3R;

template <class, int>
inline constexpr auto wt_fwd = nullptr;
template <> inline constexpr auto wt_fwd<f32, 1> = huxiWTFwd_32f_C1R;
template <> inline constexpr auto wt_fwd<f32, 3> = huxiWTFwd_32f_C3R;

template <class, int>
inline constexpr auto wt_inv = nullptr;
template <> inline constexpr auto wt_inv<f32, 1> = huxiWTInv_32f_C1R;
template <> inline constexpr auto wt_inv<f32, 3> = huxiWTInv_32f_C3R;

template <class>
inline constexpr auto fft_init_alloc_c_line = nullptr;
template <> inline constexpr auto fft_init_alloc_c_line<cf32> = huxsFFTInitAlloc_C_32fc;

template <class>
inline constexpr auto fft_init_alloc_r_line = nullptr;
template <> inline constexpr auto fft_init_alloc_r_line<f32> = huxsFFTInitAlloc_R_32f;

template <class>
inline constexpr auto fft_get_size_c_line = nullptr;
template <> inline constexpr auto fft_get_size_c_line<cf32> = huxsFFTGetSize_C_32fc;

template <class>
inline constexpr auto fft_get_size_r_line = nullptr;
template <> inline constexpr auto fft_get_size_r_line<f32> = huxsFFTGetSize_R_32f;

template <class>
inline constexpr auto fft_init_c_line = nullptr;
template <> inline constexpr auto fft_init_c_line<cf32> = huxsFFTInit_C_32fc;

template <class>
inline constexpr auto fft_init_r_line = nullptr;
template <> inline constexpr auto fft_init_r_line<f32> = huxsFFTInit_R_32f;

template <class>
inline constexpr auto fft_free_c_line = nullptr;
template <> inline constexpr auto fft_free_c_line<cf32> = huxsFFTFree_C_32fc;

template <class>
inline constexpr auto fft_free_r_line = nullptr;
template <> inline constexpr auto fft_free_r_line<f32> = huxsFFTFree_R_32f;

template <class>
inline constexpr auto fft_get_buf_size_c_line = nullptr;
template <> inline constexpr auto fft_get_buf_size_c_line<cf32> = huxsFFTGetBufSize_C_32fc;

template <class>
inline constexpr auto fft_get_buf_size_r_line = nullptr;
template <> inline constexpr auto fft_get_buf_size_r_line<f32> = huxsFFTGetBufSize_R_32f;

template <class>
inline constexpr auto fft_fwd_c_to_c_line = nullptr;
template <> inline constexpr auto fft_fwd_c_to_c_line<cf32> = huxsFFTFwd_CToC_32fc;

template <class>
inline constexpr auto fft_inv_c_to_c_line = nullptr;
template <> inline constexpr auto fft_inv_c_to_c_line<cf32> = huxsFFTInv_CToC_32fc;

template <class>
inline constexpr auto fft_fwd_r_to_pack_line = nullptr;
template <> inline constexpr auto fft_fwd_r_to_pack_line<f32> = huxsFFTFwd_RToPack_32f;

template <class>
inline constexpr auto fft_fwd_r_to_perm_line = nullptr;
template <> inline constexpr auto fft_fwd_r_to_perm_line<f32> = huxsFFTFwd_RToPerm_32f;

template <class>
inline constexpr auto fft_inv_pack_to_r_line = nullptr;
template <> inline constexpr auto fft_inv_pack_to_r_line<f32> = huxsFFTInv_PackToR_32f;

template <class>
inline constexpr auto fft_inv_perm_to_r_line = nullptr;
template <> inline constexpr auto fft_inv_perm_to_r_line<f32> = huxsFFTInv_PermToR_32f;

template <class>
inline constexpr auto dft_init_alloc_c_line = nullptr;
template <> inline constexpr auto dft_init_alloc_c_line<cf32> = huxsDFTInitAlloc_C_32fc;

template <class>
inline constexpr auto dft_init_alloc_r_line = nullptr;
template <> inline constexpr auto dft_init_alloc_r_line<f32> = huxsDFTInitAlloc_R_32f;

template <class>
inline constexpr auto dft_free_c_line = nullptr;
template <> inline constexpr auto dft_free_c_line<cf32> = huxsDFTFree_C_32fc;

template <class>
inline constexpr auto dft_free_r_line = nullptr;
template <> inline constexpr auto dft_free_r_line<f32> = huxsDFTFree_R_32f;

template <class>
inline constexpr auto dft_get_buf_size_c_line = nullptr;
template <> inline constexpr auto dft_get_buf_size_c_line<cf32> = huxsDFTGetBufSize_C_32fc;

template <class>
inline constexpr auto dft_get_buf_size_r_line = nullptr;
template <> inline constexpr auto dft_get_buf_size_r_line<f32> = huxsDFTGetBufSize_R_32f;

template <class>
inline constexpr auto dft_fwd_c_to_c_line = nullptr;
template <> inline constexpr auto dft_fwd_c_to_c_line<cf32> = huxsDFTFwd_CToC_32fc;

template <class>
inline constexpr auto dft_inv_c_to_c_line = nullptr;
template <> inline constexpr auto dft_inv_c_to_c_line<cf32> = huxsDFTInv_CToC_32fc;

template <class>
inline constexpr auto dft_fwd_r_to_pack_line = nullptr;
template <> inline constexpr auto dft_fwd_r_to_pack_line<f32> = huxsDFTFwd_RToPack_32f;

template <class>
inline constexpr auto dft_inv_pack_to_r_line = nullptr;
template <> inline constexpr auto dft_inv_pack_to_r_line<f32> = huxsDFTInv_PackToR_32f;

template <class>
inline constexpr auto dct_fwd_init_alloc_line = nullptr;
template <> inline constexpr auto dct_fwd_init_alloc_line<f32> = huxsDCTFwdInitAlloc_32f;

template <class>
inline constexpr auto dct_inv_init_alloc_line = nullptr;
template <> inline constexpr auto dct_inv_init_alloc_line<f32> = huxsDCTInvInitAlloc_32f;

template <class>
inline constexpr auto dct_fwd_get_size_line = nullptr;
template <> inline constexpr auto dct_fwd_get_size_line<f32> = huxsDCTFwdGetSize_32f;

template <class>
inline constexpr auto dct_inv_get_size_line = nullptr;
template <> inline constexpr auto dct_inv_get_size_line<f32> = huxsDCTInvGetSize_32f;

template <class>
inline constexpr auto dct_fwd_init_line = nullptr;
template <> inline constexpr auto dct_fwd_init_line<f32> = huxsDCTFwdInit_32f;

template <class>
inline constexpr auto dct_inv_init_line = nullptr;
template <> inline constexpr auto dct_inv_init_line<f32> = huxsDCTInvInit_32f;

template <class>
inline constexpr auto dct_fwd_free_line = nullptr;
template <> inline constexpr auto dct_fwd_free_line<f32> = huxsDCTFwdFree_32f;

template <class>
inline constexpr auto dct_inv_free_line = nullptr;
template <> inline constexpr auto dct_inv_free_line<f32> = huxsDCTInvFree_32f;

template <class>
inline constexpr auto dct_fwd_get_buf_size_line = nullptr;
template <> inline constexpr auto dct_fwd_get_buf_size_line<f32> = huxsDCTFwdGetBufSize_32f;

template <class>
inline constexpr auto dct_inv_get_buf_size_line = nullptr;
template <> inline constexpr auto dct_inv_get_buf_size_line<f32> = huxsDCTInvGetBufSize_32f;

template <class>
inline constexpr auto dct_fwd_line = nullptr;
template <> inline constexpr auto dct_fwd_line<f32> = huxsDCTFwd_32f;

template <class>
inline constexpr auto dct_inv_line = nullptr;
template <> inline constexpr auto dct_inv_line<f32> = huxsDCTInv_32f;

template <class>
inline constexpr auto malloc_line = nullptr;
template <> inline constexpr auto malloc_line<u8> = huxsMalloc_8u;
template <> inline constexpr auto malloc_line<s8> = huxsMalloc_8s;
template <> inline constexpr auto malloc_line<u16> = huxsMalloc_16u;
template <> inline constexpr auto malloc_line<s16> = huxsMalloc_16s;
template <> inline constexpr auto malloc_line<u32> = huxsMalloc_32u;
template <> inline constexpr auto malloc_line<s32> = huxsMalloc_32s;
template <> inline constexpr auto malloc_line<f32> = huxsMalloc_32f;
template <> inline constexpr auto malloc_line<c16> = huxsMalloc_16sc;
template <> inline constexpr auto malloc_line<c32> = huxsMalloc_32sc;
template <> inline constexpr auto malloc_line<cf32> = huxsMalloc_32fc;
template <> inline constexpr auto malloc_line<cf64> = huxsMalloc_64fc;
// clang-format on

}  // namespace hux::members

namespace hux::detail {
// Windows whose sums of floats run on from the first row of a call or of a thread.
template <auto>
inline constexpr bool begins_anew = false;
template <>
inline constexpr bool begins_anew<huxiFilterBox_16s_C4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_C1R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_C3R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_AC4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_C4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterLowpass_32f_C1R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterLowpass_32f_C3R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterLowpass_32f_AC4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_C1R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_C3R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_C4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_AC4R> = true;
}  // namespace hux::detail

#endif
