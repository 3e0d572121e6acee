// Fourier transforms of vectors and images, beside FFTW by both kinds of its plans and OpenCV.
#include "huxs.h"
#include "support.h"

#ifdef HUX_BENCH_FFTW
#include <fftw3.h>
#endif

namespace {

using bench::Case, bench::Job, bench::Shape;

// Numbers and a place for their transform.
struct Data {
  std::vector<float> src, dst;
  std::vector<Hux8u> buffer;

  Data(std::size_t in, std::size_t out) : src(in), dst(out) {
    for (std::size_t i = 0; i < in; ++i) src[i] = float(i * 2654435761u % 1000) / 500 - 1;
  }
  template <class T>
  const T* from() const {
    return reinterpret_cast<const T*>(src.data());
  }
  template <class T>
  T* to() {
    return reinterpret_cast<T*>(dst.data());
  }
  Hux8u* work(int bytes) {
    buffer.resize(std::size_t(bytes));
    return bytes ? buffer.data() : nullptr;
  }
};

using Work = std::function<void()>;
using Make = std::function<Work(std::shared_ptr<Data>)>;

// Transforms of one size: ours, and a case for each peer. Results are not compared: the tests do that.
void add(std::string name, HuxiSize size, std::size_t in, std::size_t out, Make ours,
         std::vector<std::pair<const char*, Make>> peers) {
  if (peers.empty()) peers.push_back({"", [](std::shared_ptr<Data>) { return [] {}; }});
  for (const auto& [peer, make] : peers)
    bench::add(Case{name + (*peer ? std::string(" beside ") + peer : ""), peer, Shape::InPlace, 8,
                    [=](HuxiSize) {
                      const auto data = std::make_shared<Data>(in, out);
                      return Job{ours(data), make(data), [] {}, {}, std::int64_t(4 * (in + out))};
                    },
                    size});
}

#ifdef HUX_BENCH_FFTW
// A plan may write to its arrays, so it is made before they matter.
template <class Plan>
std::vector<std::pair<const char*, Make>> plans(Plan plan) {
  const auto make = [=](unsigned flag) {
    return [=](std::shared_ptr<Data> d) -> Work {
      const std::vector<float> kept = d->src;
      const fftwf_plan p = plan(*d, flag | FFTW_PRESERVE_INPUT);
      d->src = kept;
      return [=] { fftwf_execute(p); };
    };
  };
  return {{"FFTW estimate", make(FFTW_ESTIMATE)}, {"FFTW measure", make(FFTW_MEASURE)}};
}
#define PLANS(...) plans([=](Data& d, unsigned flag) { return __VA_ARGS__; })
#define COMPLEX_IN const_cast<fftwf_complex*>(d.from<fftwf_complex>())
#define REAL_IN const_cast<float*>(d.from<float>())
#define COMPLEX_OUT d.to<fftwf_complex>()
#else
#define PLANS(...) std::vector<std::pair<const char*, Make>>()
#endif

// A context of ours that lives as long as the program.
template <class Record, class Init, class... Sizes>
Record* context(Init init, Sizes... sizes) {
  Record* record = nullptr;
  init(&record, sizes..., huxFftScaleNone, huxHintNone);
  return record;
}

template <class T, class Record, class Init, class GetBufSize, class Call>
Make vector(Init init, GetBufSize getBufSize, Call call, int size) {
  return [=](std::shared_ptr<Data> d) -> Work {
    const Record* record = context<Record>(init, size);
    int bytes = 0;
    getBufSize(record, &bytes);
    Hux8u* work = d->work(bytes);
    return [=] { call(d->from<T>(), d->to<T>(), record, work); };
  };
}
template <class Record, class Init, class GetBufSize, class Call>
Make image(Init init, GetBufSize getBufSize, Call call, int x, int y, int width) {
  return [=](std::shared_ptr<Data> d) -> Work {
    const Record* record = context<Record>(init, x, y);
    int bytes = 0;
    getBufSize(record, &bytes);
    Hux8u* work = d->work(bytes);
    return [=] { call(d->from<float>(), width * 4, d->to<float>(), width * 4, record, work); };
  };
}

}  // namespace

void addCases() {
  for (int order = 6; order <= 20; order += order < 12 ? 1 : 2) {
    const int n = 1 << order;
    const HuxiSize size{n, 1};
    const std::size_t floats = std::size_t(n);
    add("FFTFwd_CToC_32fc", size, 2 * floats, 2 * floats,
        vector<Hux32fc, HuxsFFTRecord>(huxsFFTInitAlloc_C_32fc, huxsFFTGetBufSize_C_32fc, huxsFFTFwd_CToC_32fc, order),
        PLANS(fftwf_plan_dft_1d(n, COMPLEX_IN, COMPLEX_OUT, FFTW_FORWARD, flag)));
    add("FFTFwd_RToPack_32f", size, floats, floats + 2,
        vector<Hux32f, HuxsFFTRecord>(huxsFFTInitAlloc_R_32f, huxsFFTGetBufSize_R_32f, huxsFFTFwd_RToPack_32f, order),
        PLANS(fftwf_plan_dft_r2c_1d(n, REAL_IN, COMPLEX_OUT, flag)));
    add("FFTInv_PackToR_32f", size, floats + 2, floats,
        vector<Hux32f, HuxsFFTRecord>(huxsFFTInitAlloc_R_32f, huxsFFTGetBufSize_R_32f, huxsFFTInv_PackToR_32f, order),
        PLANS(fftwf_plan_dft_c2r_1d(n, COMPLEX_IN, d.to<float>(), flag)));
  }
  for (int n : {149, 240, 1000, 1009, 1080, 1920, 10000}) {
    const HuxiSize size{n, 1};
    const std::size_t floats = std::size_t(n);
    add("DFTFwd_CToC_32fc", size, 2 * floats, 2 * floats,
        vector<Hux32fc, HuxsDFTRecord>(huxsDFTInitAlloc_C_32fc, huxsDFTGetBufSize_C_32fc, huxsDFTFwd_CToC_32fc, n),
        PLANS(fftwf_plan_dft_1d(n, COMPLEX_IN, COMPLEX_OUT, FFTW_FORWARD, flag)));
    add("DFTFwd_RToPack_32f", size, floats, floats + 2,
        vector<Hux32f, HuxsDFTRecord>(huxsDFTInitAlloc_R_32f, huxsDFTGetBufSize_R_32f, huxsDFTFwd_RToPack_32f, n),
        PLANS(fftwf_plan_dft_r2c_1d(n, REAL_IN, COMPLEX_OUT, flag)));
  }
  for (int order : {8, 9, 10, 11}) {
    const int n = 1 << order;
    const std::size_t floats = std::size_t(n) * std::size_t(n), halves = std::size_t(n) * std::size_t(n + 2);
    auto peers = PLANS(fftwf_plan_dft_r2c_2d(n, n, REAL_IN, COMPLEX_OUT, flag));
    auto inverse = PLANS(fftwf_plan_dft_c2r_2d(n, n, COMPLEX_IN, d.to<float>(), flag & ~unsigned(FFTW_PRESERVE_INPUT)));
#ifdef HUX_BENCH_OPENCV
    const auto dft = [=](int flags) -> Make {
      return [=](std::shared_ptr<Data> d) -> Work {
        const cv::Mat src(n, n, CV_32F, d->src.data()), dst(n, n, CV_32F, d->dst.data());
        return [=] { cv::dft(src, dst, flags); };
      };
    };
    peers.push_back({"OpenCV dft", dft(0)});
    inverse.push_back({"OpenCV dft", dft(cv::DFT_INVERSE | cv::DFT_REAL_OUTPUT)});
#endif
    add("FFTFwd_RToPack_32f_C1R", {n, n}, floats, halves,
        image<HuxiFFTRecord>(huxiFFTInitAlloc_R_32f, huxiFFTGetBufSize_R_32f, huxiFFTFwd_RToPack_32f_C1R, order, order,
                             n),
        peers);
    add("FFTInv_PackToR_32f_C1R", {n, n}, halves, floats,
        image<HuxiFFTRecord>(huxiFFTInitAlloc_R_32f, huxiFFTGetBufSize_R_32f, huxiFFTInv_PackToR_32f_C1R, order, order,
                             n),
        inverse);
  }
}
