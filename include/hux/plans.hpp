// Transforms and restorations that work by a plan: contexts of the C library, which move and are not copied. A plan
// serves any number of calls, and of threads at once where its functions are const: each call has work memory of its
// own, the caller's where options name it.
//
//   hux::fft<float> plan({512, 256});
//   plan.forward(image, spectrum);
//   plan.inverse(spectrum, image);
#ifndef HUX_PLANS_HPP
#define HUX_PLANS_HPP

#include <algorithm>
#include <optional>

#include "call.hpp"
#include "members.hpp"

namespace hux {

// Which of a pair of transforms divides by the number of elements.
enum class norm : int {
  backward = huxFftScaleInv,
  forward = huxFftScaleFwd,
  ortho = huxFftScaleRoot,  // both, by its square root
  none = huxFftScaleNone
};

struct planning {
  hux::norm norm = hux::norm::backward;
  HuxAccuracyHint hint = huxHintNone;
};

// Work memory of buffer_size() bytes; where it is left out, a call allocates its own.
struct working {
  std::span<std::byte> buffer = {};
};
struct scaled_working {
  int shift = 0;  // results times 2^-shift
  std::span<std::byte> buffer = {};
};

namespace detail {

template <auto Free>
struct ender {
  void operator()(auto* record) const { Free(record); }
};

// Makes a record, or throws.
template <auto Make, class Record, class... Args>
Record* made(const char* name, const Args&... args) {
  Record* record = nullptr;
  checked(call<Make>(&record, args...), name);
  return record;
}

template <auto Size>
int bytes_for(const auto* record) {
  int bytes = 0;
  checked(call<Size>(record, &bytes), "buffer_size");
  return bytes;
}

// The tables of each kind of Fourier transform, of real images and of complex ones.
#define HUX_FOURIER_TABLES(kind, record)                                                      \
  template <class T>                                                                          \
  struct kind##_tables {                                                                      \
    using Record = record;                                                                    \
    static constexpr auto make = members::kind##_init_alloc_r<T>;                             \
    static constexpr auto free = members::kind##_free_r<T>;                                   \
    static constexpr auto buffer_size = members::kind##_get_buf_size_r<T>;                    \
    template <class D, int C, class S>                                                        \
    static constexpr auto forward = members::kind##_fwd_r_to_pack<D, C, S>;                   \
    template <class D, int C, class S>                                                        \
    static constexpr auto forward_in_place = members::kind##_fwd_r_to_pack_in_place<D, C, S>; \
    template <class D, int C, class S>                                                        \
    static constexpr auto inverse = members::kind##_inv_pack_to_r<D, C, S>;                   \
    template <class D, int C, class S>                                                        \
    static constexpr auto inverse_in_place = members::kind##_inv_pack_to_r_in_place<D, C, S>; \
  };                                                                                          \
  template <>                                                                                 \
  struct kind##_tables<std::complex<float>> {                                                 \
    using Record = record;                                                                    \
    using T = std::complex<float>;                                                            \
    static constexpr auto make = members::kind##_init_alloc_c<T>;                             \
    static constexpr auto free = members::kind##_free_c<T>;                                   \
    static constexpr auto buffer_size = members::kind##_get_buf_size_c<T>;                    \
    template <class D, int C, class S>                                                        \
    static constexpr auto forward = members::kind##_fwd_c_to_c<D, C>;                         \
    template <class D, int C, class S>                                                        \
    static constexpr auto forward_in_place = members::kind##_fwd_c_to_c_in_place<D, C>;       \
    template <class D, int C, class S>                                                        \
    static constexpr auto inverse = members::kind##_inv_c_to_c<D, C>;                         \
    template <class D, int C, class S>                                                        \
    static constexpr auto inverse_in_place = members::kind##_inv_c_to_c_in_place<D, C>;       \
  };
HUX_FOURIER_TABLES(fft, HuxiFFTRecord)
HUX_FOURIER_TABLES(dft, HuxiDFTRecord)
#undef HUX_FOURIER_TABLES

// The binary logarithm of a power of two, or what the callee refuses.
inline int order_of(int length) {
  return length > 0 && std::has_single_bit(static_cast<unsigned>(length))
             ? std::countr_zero(static_cast<unsigned>(length))
             : -1;
}

// A Fourier transform of images of one size.
template <class Tables, bool PowersOfTwo>
class fourier {
  using Record = typename Tables::Record;
  template <class S, class D>
  using Options = std::type_identity_t<std::conditional_t<std::is_same_v<S, D>, working, scaled_working>>;

 public:
  explicit fourier(extent size, const planning& options = {}) : size_(size) {
    const int width = PowersOfTwo ? order_of(size.width) : size.width;
    const int height = PowersOfTwo ? order_of(size.height) : size.height;
    record_.reset(made<Tables::make, Record>("fourier", width, height, static_cast<int>(options.norm), options.hint));
  }
  extent size() const { return size_; }
  [[nodiscard]] int buffer_size() const { return bytes_for<Tables::buffer_size>(record_.get()); }

  // A real image to its packed spectrum, or a complex one to its spectrum; and back.
  template <readable V, class D, int C, class S = value_type_of<V>>
  requires exists<Tables::template forward<D, C, S>>
  [[nodiscard]] status try_forward(const V& src, view<D, C> dst, const Options<S, D>& options = {}) const {
    return run<Tables::template forward<D, C, S>, Tables::template forward_in_place<D, C, S>>(view<const S, C>(src),
                                                                                              dst, options);
  }
  template <readable V, class D, int C, class S = value_type_of<V>>
  requires exists<Tables::template inverse<D, C, S>>
  [[nodiscard]] status try_inverse(const V& src, view<D, C> dst, const Options<S, D>& options = {}) const {
    return run<Tables::template inverse<D, C, S>, Tables::template inverse_in_place<D, C, S>>(view<const S, C>(src),
                                                                                              dst, options);
  }
  template <readable V, class D, int C, class S = value_type_of<V>>
  requires exists<Tables::template forward<D, C, S>>
  void forward(const V& src, view<D, C> dst, const Options<S, D>& options = {}) const {
    checked(try_forward(src, dst, options), "fourier::forward");
  }
  template <readable V, class D, int C, class S = value_type_of<V>>
  requires exists<Tables::template inverse<D, C, S>>
  void inverse(const V& src, view<D, C> dst, const Options<S, D>& options = {}) const {
    checked(try_inverse(src, dst, options), "fourier::inverse");
  }

 private:
  template <auto Function, auto InPlace, class S, class D, int C>
  status run(view<const S, C> src, view<D, C> dst, const auto& options) const {
    if (!equal(src.size(), size_) || !equal(dst.size(), size_)) return status::bad_size;
    if (options.buffer.data() && static_cast<std::int64_t>(options.buffer.size()) < buffer_size())
      return status::bad_size;
    const address buffer{options.buffer.data()};
    if constexpr (exists<InPlace>)
      if (same(src, dst)) return call<InPlace>(at(dst), dst.step(), record_.get(), buffer);
    if constexpr (std::is_same_v<S, D>)
      return call<Function>(at(src), src.step(), at(dst), dst.step(), record_.get(), buffer);
    else
      return call<Function>(at(src), src.step(), at(dst), dst.step(), record_.get(), options.shift, buffer);
  }

  extent size_ = {};
  std::unique_ptr<Record, ender<Tables::free>> record_;
};

}  // namespace detail

// Images of float (packed spectra of float), of std::int32_t (images of bytes, packed spectra of std::int32_t), or of
// std::complex<float>. The sides of an FFT are powers of two.
template <class T>
using fft = detail::fourier<detail::fft_tables<T>, true>;
template <class T>
using dft = detail::fourier<detail::dft_tables<T>, false>;

// The cosine transform of images of one size.
class dct {
 public:
  explicit dct(extent size, HuxAccuracyHint hint = huxHintNone)
      : size_(size),
        forward_(detail::made<huxiDCTFwdInitAlloc_32f, HuxiDCTRecord>("dct", size, hint)),
        inverse_(detail::made<huxiDCTInvInitAlloc_32f, HuxiDCTRecord>("dct", size, hint)) {}
  extent size() const { return size_; }
  // Of the larger of the two.
  [[nodiscard]] int buffer_size() const {
    return std::max(detail::bytes_for<huxiDCTFwdGetBufSize_32f>(forward_.get()),
                    detail::bytes_for<huxiDCTInvGetBufSize_32f>(inverse_.get()));
  }

  template <int C>
  requires exists<members::dct_fwd<float, C>>
  [[nodiscard]] status try_forward(source<float, C> src, view<float, C> dst, const working& options = {}) const {
    return run<members::dct_fwd<float, C>>(src, dst, forward_.get(), options);
  }
  template <int C>
  requires exists<members::dct_inv<float, C>>
  [[nodiscard]] status try_inverse(source<float, C> src, view<float, C> dst, const working& options = {}) const {
    return run<members::dct_inv<float, C>>(src, dst, inverse_.get(), options);
  }
  template <int C>
  requires exists<members::dct_fwd<float, C>>
  void forward(source<float, C> src, view<float, C> dst, const working& options = {}) const {
    detail::checked(try_forward(src, dst, options), "dct::forward");
  }
  template <int C>
  requires exists<members::dct_inv<float, C>>
  void inverse(source<float, C> src, view<float, C> dst, const working& options = {}) const {
    detail::checked(try_inverse(src, dst, options), "dct::inverse");
  }

 private:
  template <auto Function, int C>
  status run(view<const float, C> src, view<float, C> dst, const HuxiDCTRecord* record, const working& options) const {
    if (!detail::equal(src.size(), size_) || !detail::equal(dst.size(), size_)) return status::bad_size;
    if (options.buffer.data() && static_cast<std::int64_t>(options.buffer.size()) < buffer_size())
      return status::bad_size;
    return detail::call<Function>(detail::at(src), src.step(), detail::at(dst), dst.step(), record,
                                  detail::address{options.buffer.data()});
  }

  extent size_ = {};
  std::unique_ptr<HuxiDCTRecord, detail::ender<huxiDCTFwdFree_32f>> forward_;
  std::unique_ptr<HuxiDCTRecord, detail::ender<huxiDCTInvFree_32f>> inverse_;
};

// The taps of one of the two filters of a wavelet.
struct wavelet_taps {
  std::span<const float> taps;
  int anchor = 0;
};
// Four sub-bands of one size.
template <class T, int C>
struct subbands {
  view<T, C> approx, detail_x, detail_y, detail_xy;
};
struct wavelet_options {
  hux::border border = hux::border::wrap;
  std::span<std::byte> buffer = {};
};

// The wavelet transform of images of C channels, 1 or 3, of any size.
template <int C>
requires exists<members::wt_fwd<float, C>>
class wavelet_forward {
 public:
  wavelet_forward(const wavelet_taps& low, const wavelet_taps& high)
      : before_(std::max(reach(low), reach(high))),
        after_(std::max(low.anchor, high.anchor)),
        record_(detail::made<members::wt_fwd_init_alloc<float, C>, HuxiWTRecord>(
            "wavelet_forward", low.taps.data(), static_cast<int>(low.taps.size()), low.anchor, high.taps.data(),
            static_cast<int>(high.taps.size()), high.anchor)) {}
  [[nodiscard]] int buffer_size() const { return detail::bytes_for<members::wt_fwd_get_buf_size<C>>(record_.get()); }

  // The source has twice as many columns and rows as each sub-band.
  [[nodiscard]] status try_forward(source<float, C> src, const subbands<float, C>& dst,
                                   const wavelet_options& options = {}) const {
    if (!detail::agree(dst.approx, dst.detail_x, dst.detail_y, dst.detail_xy) ||
        !detail::of_size(src.size(), 2 * detail::wide(dst.approx.width()), 2 * detail::wide(dst.approx.height())))
      return status::bad_size;
    const float zero[4] = {};
    detail::frame frame(src, {before_, before_, after_, after_}, options.border, zero);
    if (status s = frame.replace(src); s != status::ok) return s;
    const std::size_t bytes = static_cast<std::size_t>(buffer_size());
    if (options.buffer.data() && options.buffer.size() < bytes) return status::bad_size;
    const detail::memory own(options.buffer.data() ? 0 : bytes);
    const detail::address buffer{options.buffer.data() ? options.buffer.data() : own.data()};
    if (!buffer.at) return status::no_mem;
    return detail::call<members::wt_fwd<float, C>>(
        detail::at(src), src.step(), detail::at(dst.approx), dst.approx.step(), detail::at(dst.detail_x),
        dst.detail_x.step(), detail::at(dst.detail_y), dst.detail_y.step(), detail::at(dst.detail_xy),
        dst.detail_xy.step(), dst.approx.size(), record_.get(), buffer);
  }
  void forward(source<float, C> src, const subbands<float, C>& dst, const wavelet_options& options = {}) const {
    detail::checked(try_forward(src, dst, options), "wavelet_forward::forward");
  }

 private:
  static int reach(const wavelet_taps& filter) { return static_cast<int>(filter.taps.size()) - filter.anchor; }

  int before_, after_;
  std::unique_ptr<HuxiWTRecord, detail::ender<members::wt_fwd_free<float, C>>> record_;
};

// Its inverse.
template <int C>
requires exists<members::wt_inv<float, C>>
class wavelet_inverse {
 public:
  wavelet_inverse(const wavelet_taps& low, const wavelet_taps& high)
      : before_(static_cast<int>(std::max(low.taps.size(), high.taps.size()))),
        after_(std::max(low.anchor, high.anchor) + 1),
        record_(detail::made<members::wt_inv_init_alloc<float, C>, HuxiWTRecord>(
            "wavelet_inverse", low.taps.data(), static_cast<int>(low.taps.size()), low.anchor, high.taps.data(),
            static_cast<int>(high.taps.size()), high.anchor)) {}
  [[nodiscard]] int buffer_size() const { return detail::bytes_for<members::wt_inv_get_buf_size<C>>(record_.get()); }

  [[nodiscard]] status try_inverse(subbands<const float, C> src, view<float, C> dst,
                                   const wavelet_options& options = {}) const {
    if (!detail::agree(src.approx, src.detail_x, src.detail_y, src.detail_xy) ||
        !detail::of_size(dst.size(), 2 * detail::wide(src.approx.width()), 2 * detail::wide(src.approx.height())))
      return status::bad_size;
    const float zero[4] = {};
    const auto framed = [&](const view<const float, C>& band) {
      return detail::frame(band, {before_, before_, after_, after_}, options.border, zero);
    };
    detail::frame frames[4] = {framed(src.approx), framed(src.detail_x), framed(src.detail_y), framed(src.detail_xy)};
    view<const float, C>* bands[4] = {&src.approx, &src.detail_x, &src.detail_y, &src.detail_xy};
    for (int i = 0; i < 4; ++i)
      if (status s = frames[i].replace(*bands[i]); s != status::ok) return s;
    const std::size_t bytes = static_cast<std::size_t>(buffer_size());
    if (options.buffer.data() && options.buffer.size() < bytes) return status::bad_size;
    const detail::memory own(options.buffer.data() ? 0 : bytes);
    const detail::address buffer{options.buffer.data() ? options.buffer.data() : own.data()};
    if (!buffer.at) return status::no_mem;
    return detail::call<members::wt_inv<float, C>>(detail::at(src.approx), src.approx.step(), detail::at(src.detail_x),
                                                   src.detail_x.step(), detail::at(src.detail_y), src.detail_y.step(),
                                                   detail::at(src.detail_xy), src.detail_xy.step(), src.approx.size(),
                                                   detail::at(dst), dst.step(), record_.get(), buffer);
  }
  void inverse(const subbands<const float, C>& src, view<float, C> dst, const wavelet_options& options = {}) const {
    detail::checked(try_inverse(src, dst, options), "wavelet_inverse::inverse");
  }

 private:
  int before_, after_;
  std::unique_ptr<HuxiWTRecord, detail::ender<members::wt_inv_free<float, C>>> record_;
};

// Restores images of C channels, 1 or 3, that a known kernel has blurred: kernel_size by kernel_size taps, for each of
// them C values. Calls write to the state: threads must not share one.
namespace detail {
inline std::span<const float> taps_of(std::span<const float> kernel, int kernel_size, int channels) {
  if (kernel_size < 1 || static_cast<std::int64_t>(kernel.size()) != std::int64_t{kernel_size} * kernel_size * channels)
    throw error(status::bad_size, "deconvolution");
  return kernel;
}
}  // namespace detail

// By inverse filtering, on a square of 2^fft_order pixels.
template <int C>
requires exists<members::deconv_fft<float, C>>
class deconv_fft {
 public:
  deconv_fft(std::span<const float> kernel, int kernel_size, int fft_order, float threshold)
      : record_(detail::made<members::deconv_fft_init_alloc<float, C>, HuxiDeconvFFTState>(
            "deconv_fft", detail::taps_of(kernel, kernel_size, C).data(), kernel_size, fft_order, threshold)) {}
  [[nodiscard]] status try_restore(source<float, C> src, view<float, C> dst) {
    if (!detail::agree(dst, src)) return status::bad_size;
    return detail::call<members::deconv_fft<float, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                       dst.size(), record_.get());
  }
  void restore(source<float, C> src, view<float, C> dst) {
    detail::checked(try_restore(src, dst), "deconv_fft::restore");
  }

 private:
  std::unique_ptr<HuxiDeconvFFTState, detail::ender<members::deconv_fft_free<float, C>>> record_;
};

// By iterations; max_size is the largest region with its margin: its size + kernel_size - 1.
template <int C>
requires exists<members::deconv_lr<float, C>>
class deconv_lr {
 public:
  deconv_lr(std::span<const float> kernel, int kernel_size, extent max_size, float threshold)
      : record_(detail::made<members::deconv_lr_init_alloc<float, C>, HuxiDeconvLRState>(
            "deconv_lr", detail::taps_of(kernel, kernel_size, C).data(), kernel_size, max_size, threshold)) {}
  [[nodiscard]] status try_restore(source<float, C> src, view<float, C> dst, int iterations) {
    if (!detail::agree(dst, src)) return status::bad_size;
    return detail::call<members::deconv_lr<float, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                      dst.size(), iterations, record_.get());
  }
  void restore(source<float, C> src, view<float, C> dst, int iterations) {
    detail::checked(try_restore(src, dst, iterations), "deconv_lr::restore");
  }

 private:
  std::unique_ptr<HuxiDeconvLRState, detail::ender<members::deconv_lr_free<float, C>>> record_;
};

namespace nothrow {

// A plan, or the status with which there is none: make<hux::fft<float>>(hux::extent{512, 256}).
template <class Plan, class... Args>
result<std::optional<Plan>> make(Args&&... args) try {
  return {status::ok, std::optional<Plan>(std::in_place, std::forward<Args>(args)...)};
} catch (const error& refused) {
  return {refused.code(), {}};
} catch (const std::bad_alloc&) {
  return {status::no_mem, {}};
}

}  // namespace nothrow

// ---- Lines ----

namespace detail {

template <class Record, auto Make, auto Free, auto Size, auto Forward, auto Inverse, class T>
class line_plan {
 public:
  explicit line_plan(int length, auto... rest) : length_(length), record_(made<Make, Record>("line plan", rest...)) {}
  int size() const { return length_; }
  [[nodiscard]] int buffer_size() const { return bytes_for<Size>(record_.get()); }
  [[nodiscard]] status try_forward(line<const T> src, line<T> dst, const working& options = {}) const {
    return run<Forward>(src, dst, options);
  }
  [[nodiscard]] status try_inverse(line<const T> src, line<T> dst, const working& options = {}) const {
    return run<Inverse>(src, dst, options);
  }
  void forward(line<const T> src, line<T> dst, const working& options = {}) const {
    checked(try_forward(src, dst, options), "forward");
  }
  void inverse(line<const T> src, line<T> dst, const working& options = {}) const {
    checked(try_inverse(src, dst, options), "inverse");
  }

 protected:
  template <auto Function>
  status run(line<const T> src, line<T> dst, const working& options) const {
    if (src.size() != length_ || dst.size() != length_) return status::bad_size;
    if (options.buffer.data() && static_cast<std::int64_t>(options.buffer.size()) < buffer_size())
      return status::bad_size;
    return call<Function>(at(src), at(dst), record_.get(), address{options.buffer.data()});
  }

 private:
  int length_;
  std::unique_ptr<Record, ender<Free>> record_;
};

template <class T>
inline constexpr bool is_complex = std::is_same_v<T, std::complex<float>>;

// Of two functions, that for complex or that for real elements.
template <class T, auto Complex, auto Real>
struct chosen {
  static constexpr auto value = Real;
};
template <auto Complex, auto Real>
struct chosen<std::complex<float>, Complex, Real> {
  static constexpr auto value = Complex;
};

template <class T>
using fft_line_plan = line_plan<HuxsFFTRecord, chosen<T, huxsFFTInitAlloc_C_32fc, huxsFFTInitAlloc_R_32f>::value,
                                chosen<T, huxsFFTFree_C_32fc, huxsFFTFree_R_32f>::value,
                                chosen<T, huxsFFTGetBufSize_C_32fc, huxsFFTGetBufSize_R_32f>::value,
                                chosen<T, huxsFFTFwd_CToC_32fc, huxsFFTFwd_RToPack_32f>::value,
                                chosen<T, huxsFFTInv_CToC_32fc, huxsFFTInv_PackToR_32f>::value, T>;
template <class T>
using dft_line_plan = line_plan<HuxsDFTRecord, chosen<T, huxsDFTInitAlloc_C_32fc, huxsDFTInitAlloc_R_32f>::value,
                                chosen<T, huxsDFTFree_C_32fc, huxsDFTFree_R_32f>::value,
                                chosen<T, huxsDFTGetBufSize_C_32fc, huxsDFTGetBufSize_R_32f>::value,
                                chosen<T, huxsDFTFwd_CToC_32fc, huxsDFTFwd_RToPack_32f>::value,
                                chosen<T, huxsDFTInv_CToC_32fc, huxsDFTInv_PackToR_32f>::value, T>;

}  // namespace detail

// Fourier transforms of lines of float, whose spectra are packed, or of std::complex<float>.
template <class T>
class fft_line : public detail::fft_line_plan<T> {
 public:
  explicit fft_line(int length, const planning& options = {})
      : detail::fft_line_plan<T>(length, detail::order_of(length), static_cast<int>(options.norm), options.hint) {}

  // With spectra in the order Perm.
  [[nodiscard]] status try_forward_perm(line<const T> src, line<T> dst, const working& options = {}) const
      requires(!detail::is_complex<T>) {
    return this->template run<huxsFFTFwd_RToPerm_32f>(src, dst, options);
  }
  [[nodiscard]] status try_inverse_perm(line<const T> src, line<T> dst, const working& options = {}) const
      requires(!detail::is_complex<T>) {
    return this->template run<huxsFFTInv_PermToR_32f>(src, dst, options);
  }
};
template <class T>
class dft_line : public detail::dft_line_plan<T> {
 public:
  explicit dft_line(int length, const planning& options = {})
      : detail::dft_line_plan<T>(length, length, static_cast<int>(options.norm), options.hint) {}
};

// The cosine transform of lines of one length.
class dct_line {
 public:
  explicit dct_line(int length, HuxAccuracyHint hint = huxHintNone)
      : length_(length),
        forward_(detail::made<huxsDCTFwdInitAlloc_32f, HuxsDCTRecord>("dct_line", length, hint)),
        inverse_(detail::made<huxsDCTInvInitAlloc_32f, HuxsDCTRecord>("dct_line", length, hint)) {}
  int size() const { return length_; }
  [[nodiscard]] int buffer_size() const {
    return std::max(detail::bytes_for<huxsDCTFwdGetBufSize_32f>(forward_.get()),
                    detail::bytes_for<huxsDCTInvGetBufSize_32f>(inverse_.get()));
  }
  [[nodiscard]] status try_forward(line<const float> src, line<float> dst, const working& options = {}) const {
    return run<huxsDCTFwd_32f>(src, dst, forward_.get(), options);
  }
  [[nodiscard]] status try_inverse(line<const float> src, line<float> dst, const working& options = {}) const {
    return run<huxsDCTInv_32f>(src, dst, inverse_.get(), options);
  }
  void forward(line<const float> src, line<float> dst, const working& options = {}) const {
    detail::checked(try_forward(src, dst, options), "dct_line::forward");
  }
  void inverse(line<const float> src, line<float> dst, const working& options = {}) const {
    detail::checked(try_inverse(src, dst, options), "dct_line::inverse");
  }

 private:
  template <auto Function>
  status run(line<const float> src, line<float> dst, const HuxsDCTRecord* record, const working& options) const {
    if (src.size() != length_ || dst.size() != length_) return status::bad_size;
    if (options.buffer.data() && static_cast<std::int64_t>(options.buffer.size()) < buffer_size())
      return status::bad_size;
    return detail::call<Function>(detail::at(src), detail::at(dst), record, detail::address{options.buffer.data()});
  }

  int length_;
  std::unique_ptr<HuxsDCTRecord, detail::ender<huxsDCTFwdFree_32f>> forward_;
  std::unique_ptr<HuxsDCTRecord, detail::ender<huxsDCTInvFree_32f>> inverse_;
};

}  // namespace hux

#endif
