// Calls functions of the table with arguments made by the rules: right ones, and ones of which one or two are wrong.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "table.h"

namespace hux::tool {

// Numbers that are the same everywhere.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  std::uint64_t next();
  int below(int n) { return static_cast<int>((next() >> 33) % static_cast<std::uint64_t>(n)); }

 private:
  std::uint64_t state_;
};

// A hash of bytes, of all that was added.
class Digest {
 public:
  void add(const void* bytes, std::size_t count);
  void add(std::uint64_t word);
  std::uint64_t value() const;

 private:
  std::uint64_t state_ = 0x9e3779b97f4a7c15u;
};

// What is to be called: which of the legal calls and, of these arguments, what to do wrong.
struct Plan {
  int call = 0;
  int broken[2] = {-1, -1};  // arguments, or -1
  int how[2] = {0, 0};       // below breaks(argument)
};

// Where arguments live. What shown() has given out is part of the digest, with all bytes between; what aside() has is
// not. Both start afresh with each call.
class Memory {
 public:
  virtual ~Memory() = default;
  virtual std::byte* shown(std::size_t bytes, std::size_t alignment, std::size_t offset, Random& random) = 0;
  virtual std::byte* aside(std::size_t bytes) = 0;
  virtual void clear() = 0;
  virtual void digest(Digest& digest) const = 0;
};

// One block for the images of a call and one for the rest.
class Arena : public Memory {
 public:
  std::byte* shown(std::size_t bytes, std::size_t alignment, std::size_t offset, Random& random) override;
  std::byte* aside(std::size_t bytes) override;
  void clear() override;
  void digest(Digest& digest) const override { digest.add(shown_.data(), used_); }

 private:
  void pad(std::size_t bytes, Random& random);

  std::vector<std::byte> shown_ = std::vector<std::byte>(std::size_t{8} << 20);
  std::vector<std::byte> aside_ = std::vector<std::byte>(std::size_t{16} << 20);
  std::size_t used_ = 0, usedAside_ = 0;
};

class Caller {
 public:
  explicit Caller(Memory& memory) : memory_(memory) {}
  virtual ~Caller() = default;

  // In how many ways an argument can be wrong.
  static int breaks(const Function& function, const Argument& argument);

  // One call. The digest is that of its status and of all bytes that it could reach.
  std::uint64_t run(const Function& function, const Plan& plan);

  HuxStatus status() const { return status_; }
  const char* name() const { return function_ ? function_->name : "no call"; }
  std::string arguments() const;  // of the last call, as text, and behind a bar those of its context's maker

 protected:
  // The call itself, its arguments made.
  virtual HuxStatus invoke(const Function& function, const Value* arguments) {
    return call(function.shape, function.address, arguments).i;
  }
  // For callers with arguments of their own: the numbers of a value that has been chosen; the step of an image whose
  // rows have so many bytes (below 0, or short of a row, as it may be); what is in an array.
  virtual void vary(const Argument&, double*) {}
  virtual int step(const Argument&, int rowBytes, int unit) {
    return rowBytes + random_.below(plan_.call % 2 && !function_->aligned ? 13 : 5) * unit;
  }
  virtual void varyArray(const Argument&, std::byte*, int) {}

  Memory& memory() { return memory_; }
  const Function& function() const { return *function_; }

 private:
  static constexpr int kMost = 32;  // arguments

  struct Image {
    std::byte* first = nullptr;  // the first row that there is, at its first byte
    int rows = 0, step = 0, rowBytes = 0;
  };

  double number(const List& list, int row, int part);
  long long evaluate(Formula formula) const;
  void choose();
  void fillPixels(Element element, std::byte* at, std::size_t count);
  void fillArray(const Argument& argument, std::byte* at, int count, const List& list, int row, double first);
  void placeArgument(int index);
  void placeImage(int index);
  void placeArray(int index);
  void breakArgument(int index, int how);
  void* make(int maker);
  static void release(void* context, int freer);
  std::size_t tell(const Teller& teller);
  void unifyNans();
  void digestContext(Digest& digest);
  static Element elementOf(const Argument& argument);
  static Value valueOf(const Argument& argument, const double* numbers);

  Memory& memory_;
  Random random_{0};
  Plan plan_;
  const Function* function_ = nullptr;
  const Argument* own_ = nullptr;  // its arguments
  double numbers_[kMost][4] = {};  // what the arguments are, as far as formulas may ask
  int rows_[kMost] = {};           // which of their values
  bool stepped_[kMost] = {};       // steps that an image has set
  Value values_[kMost] = {};
  Image images_[kMost][4] = {};  // images and, as one row, arrays
  int channel_ = 0, row_ = 0;    // what else a formula sees
  void* context_ = nullptr;
  void* foreign_ = nullptr;
  HuxStatus status_ = 0;
};

}  // namespace hux::tool
