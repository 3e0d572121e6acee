// Calls functions with whatever a string of bytes says: sizes, steps, enumerations, floats of all kinds, null pointers,
// foreign and spoilt records. Every operand lies against an unreadable page. What is found: accesses outside of
// operands, errors that have written something, records that are taken without their tag.
//
// With libFuzzer it is a target; without (HUX_FUZZ_ALONE) a program that goes through random strings:
//   hux_fuzz SECONDS [FIRST]
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "caller.h"

namespace hux::tool {
namespace {

// Blocks between unreadable pages, one for each operand.
class Pages : public Memory {
 public:
  std::byte* shown(std::size_t bytes, std::size_t, std::size_t offset, Random&) override {
    // At the end of its block or, by the offset that an arena would leave, at the start.
    std::byte* at = take(bytes, offset % 4 != 3);
    if (shownCount_ < kSlots) shown_[shownCount_++] = {at, bytes};
    return at;
  }
  std::byte* aside(std::size_t bytes) override { return take(bytes, true); }
  void clear() override { used_ = shownCount_ = 0; }
  void digest(Digest& digest) const override {
    for (int i = 0; i < shownCount_; ++i) digest.add(shown_[i].at, shown_[i].bytes);
  }

 private:
  static constexpr std::size_t kBytes = std::size_t{16} << 20;
  static constexpr int kSlots = 80;

  std::byte* take(std::size_t bytes, bool atEnd) {
    if (bytes > kBytes || used_ == kSlots) {
      std::fprintf(stderr, "hux_fuzz: an operand of %zu bytes\n", bytes);
      std::abort();
    }
    std::byte*& slot = slots_[used_++];
    if (!slot) {
      const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
      void* all = mmap(nullptr, kBytes + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
      if (all == MAP_FAILED) std::abort();
      slot = static_cast<std::byte*>(all) + page;
      mprotect(slot, kBytes, PROT_READ | PROT_WRITE);
    }
    return atEnd ? slot + kBytes - bytes : slot;
  }

  struct Operand {
    std::byte* at;
    std::size_t bytes;
  };
  std::byte* slots_[kSlots] = {};
  Operand shown_[kSlots] = {};
  int used_ = 0, shownCount_ = 0;
};

// The string of bytes; zeros behind its end.
class Bytes {
 public:
  void start(const unsigned char* at, std::size_t count) { at_ = at, left_ = count; }
  int next() { return left_ ? (--left_, *at_++) : 0; }
  int below(int n) { return (next() << 8 | next()) % n; }
  int word() { return static_cast<int>(static_cast<unsigned>(next()) << 24 | next() << 16 | next() << 8 | next()); }

 private:
  const unsigned char* at_ = nullptr;
  std::size_t left_ = 0;
};

class Fuzzer : public Caller {
 public:
  explicit Fuzzer(Memory& memory) : Caller(memory) {}

  // False where the string names no function.
  bool run(const unsigned char* at, std::size_t count) {
    bytes_.start(at, count);
    const int index = bytes_.next() | bytes_.next() << 8;
    const Function& function = kFunctions[index % kFunctionCount];
    if (!function.covered || function.byHand) return false;
    Plan plan;
    plan.call = bytes_.below(std::max(function.calls, 1));
    for (int k = 0; k < 2; ++k) {
      if (bytes_.next() % 4 || !function.own) continue;
      const int broken = bytes_.below(function.own);
      const Argument& argument = kArguments[function.firstArgument + broken];
      const int ways = breaks(function, argument);
      if (ways && !makesRoom(argument.role)) plan.broken[k] = broken, plan.how[k] = bytes_.below(ways);
    }
    if (plan.broken[0] == plan.broken[1]) plan.broken[1] = -1;
    right_ = plan.broken[0] < 0 && plan.broken[1] < 0;
    Caller::run(function, plan);
    return true;
  }

 private:
  // What tells how large an operand is has been varied before the operand is placed. A wrong value later on may be
  // right beside other values that are varied, and then there would be no room for it.
  static bool makesRoom(Role role) {
    switch (role) {
      case Role::step:
      case Role::size:
      case Role::region:
      case Role::length:
      case Role::dimension:
      case Role::order:
      case Role::border:
      case Role::mask_size:
      case Role::kernel_size:
      case Role::level_count:
        return true;
      default:
        return false;
    }
  }

  double number() {
    const double infinity = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
    const double special[] = {0,    -0.0,  1,     -1,     0.5, nan,           infinity,     -infinity, 1e300, -1e300,
                              1e38, -1e38, 1e-30, 1e-300, 2e9, -2147483648.0, 2147483647.0, 1e9,       3,     1.0 / 3};
    const int which = bytes_.below(40);
    return which < 20 ? special[which] : (bytes_.below(65536) - 32768) / 256.0;
  }

  int whole() {
    const int special[] = {0, 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 31, 32, 64};
    const int which = bytes_.below(16);
    return which < 8 ? special[which] : which < 12 ? bytes_.below(70) - 5 : bytes_.word();
  }

  // One in so many is none.
  int side(int most) { return bytes_.next() % 24 == 0 ? -bytes_.below(3) : 1 + bytes_.below(most); }

  void vary(const Argument& argument, double* n) override {
    if (bytes_.next() % 2) return;
    switch (argument.role) {
      case Role::size:
        n[0] = side(90), n[1] = side(40);
        break;
      case Role::region:
        n[0] = side(20) - 1, n[1] = side(20) - 1, n[2] = side(60), n[3] = side(40);
        break;
      case Role::length:
        n[0] = side(2000);
        break;
      case Role::dimension:
        n[0] = side(argument.ofMaker ? 20 : 200);
        break;
      case Role::order:
        n[0] = bytes_.below(10) - 1;
        break;
      case Role::border:
        n[0] = side(12) - 1;
        break;
      case Role::mask_size:
      case Role::kernel_size:
        n[0] = side(12), n[1] = side(12);
        break;
      case Role::anchor:
        n[0] = bytes_.below(15) - 2, n[1] = bytes_.below(15) - 2;
        break;
      case Role::level_count:
        n[0] = side(60);
        break;
      case Role::iterations:
        n[0] = bytes_.below(4) - 1;
        break;
      case Role::index:
        n[0] = bytes_.next() % 2 ? bytes_.below(20) - 2 : whole() % 18;
        break;
      case Role::fixed_mask: {
        const int masks[] = {13, 15, 31, 33, 51, 55, 0, 53};
        n[0] = masks[bytes_.below(8)];
        break;
      }
      case Role::number:
        n[0] = number(), n[1] = number();
        if (argument.shape == 'P') n[0] = whole(), n[1] = whole();
        break;
      case Role::constant:
        n[0] = number(), n[1] = number();
        break;
      case Role::divisor:
      case Role::enumeration:
      case Role::flag:
      case Role::hint:
      case Role::scale_factor:
        n[0] = whole();
        break;
      default:
        break;
    }
  }

  // Rows may be short, run into each other or go up: the operand holds them all the same.
  int step(const Argument& argument, int rowBytes, int unit) override {
    switch (bytes_.next() % 8) {
      case 0:
        return rowBytes;
      case 1:
        return -(rowBytes + bytes_.below(5) * unit);
      case 2:
        return bytes_.below(rowBytes + 1) / unit * unit;
      default:
        return Caller::step(argument, rowBytes, unit);
    }
  }

  void varyArray(const Argument& argument, std::byte* at, int count) override {
    for (int changes = count ? bytes_.next() % 4 : 0; changes--;) {
      const int place = bytes_.below(count);
      switch (argument.element) {
        case Element::f32: {
          const auto value = static_cast<float>(std::clamp(number(), -3e38, 3e38));
          std::memcpy(at + place * 4, &value, 4);
          break;
        }
        case Element::f64: {
          const double value = number();
          std::memcpy(at + place * 8, &value, 8);
          break;
        }
        default:
          break;  // of integers the rules' own say enough
      }
    }
  }

  HuxStatus invoke(const Function& function, const Value* arguments) override {
    // In a call that is right, one record in eight has a bit of its tag turned, that is of its first word, and must be
    // refused.
    unsigned char* tag = nullptr;
    const int turned = bytes_.below(8 * 32);
    for (int i = 0; i < function.own && right_ && turned < 32; ++i) {
      const Argument& argument = kArguments[function.firstArgument + i];
      if (argument.kind == Kind::record && argument.judged && function.part != Part::init && arguments[i].p)
        tag = static_cast<unsigned char*>(arguments[i].p) + turned / 8;
    }
    if (tag) *tag ^= static_cast<unsigned char>(1 << turned % 8);
    Digest before, after;
    memory().digest(before);
    const HuxStatus status = Caller::invoke(function, arguments);
    memory().digest(after);
    if (tag) *tag ^= static_cast<unsigned char>(1 << turned % 8);
    if (tag && status >= 0) {
      std::fprintf(stderr, "%s takes a record without its tag\n", function.name);
      std::abort();
    }
    if (status < 0 && before.value() != after.value() && !function.errorsWrite) {
      std::fprintf(stderr, "%s returns %d and has written\n", function.name, status);
      std::abort();
    }
    return status;
  }

  Bytes bytes_;
  bool right_ = true;  // none of the arguments has been broken
};

Pages pages;
Fuzzer fuzzer(pages);

void tell() { std::fprintf(stderr, "hux_fuzz: %s\n  %s\n", fuzzer.name(), fuzzer.arguments().c_str()); }

}  // namespace
}  // namespace hux::tool

#ifdef HUX_FUZZ_ALONE

namespace {

// What the program goes on from when a call has ended it.
struct Progress {
  long long next, crashes, succeeded, refused;
};

void crashed(int signal) {
  std::fprintf(stderr, "hux_fuzz: signal %d\n", signal);
  hux::tool::tell();
  _exit(1);
}

}  // namespace

int main(int count, char** arguments) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::seconds(count > 1 ? std::atoi(arguments[1]) : 10);
  void* shared = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) return 2;
  auto* progress = new (shared) Progress{count > 2 ? std::atoll(arguments[2]) : 0, 0, 0, 0};
  const long long first = progress->next;
  while (Clock::now() < end && progress->crashes < 1000) {
    const pid_t child = fork();
    if (child < 0) return 2;
    if (child == 0) {
      huxSetThreadCount(1);
      for (int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGFPE, SIGILL}) std::signal(signal, crashed);
      while (Clock::now() < end) {
        hux::tool::Random random(static_cast<std::uint64_t>(progress->next++));
        unsigned char bytes[192];
        for (std::size_t i = 0; i < sizeof bytes; i += 8) {
          const std::uint64_t word = random.next();
          std::memcpy(bytes + i, &word, 8);
        }
        if (hux::tool::fuzzer.run(bytes, sizeof bytes)) {
          ++(hux::tool::fuzzer.status() < 0 ? progress->refused : progress->succeeded);
        }
      }
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status) {
      ++progress->crashes;
      std::fprintf(stderr, "  again: hux_fuzz 1 %lld\n", progress->next - 1);
    }
  }
  std::printf("hux_fuzz: %lld strings, %lld calls succeeded, %lld were refused, %lld findings\n",
              progress->next - first, progress->succeeded, progress->refused, progress->crashes);
  return progress->crashes != 0;
}

#else

extern "C" void __sanitizer_set_death_callback(void (*)());

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  __sanitizer_set_death_callback(hux::tool::tell);
  huxSetThreadCount(1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t count) {
  hux::tool::fuzzer.run(bytes, count);
  return 0;
}

#endif
