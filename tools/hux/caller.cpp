#include "caller.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>

namespace hux::tool {
namespace {

int sizeOf(Element element) {
  switch (element) {
    case Element::u8:
    case Element::s8:
      return 1;
    case Element::u16:
    case Element::s16:
      return 2;
    case Element::u32:
    case Element::s32:
    case Element::f32:
      return 4;
    case Element::s64:
    case Element::f64:
      return 8;
    case Element::none:
      break;
  }
  return 1;
}

// In single precision. Conversions of some machines take a NaN's sign away.
Hux32f single(double number) {
  if (!std::isnan(number)) return static_cast<Hux32f>(number);
  return std::copysign(std::numeric_limits<Hux32f>::quiet_NaN(), std::signbit(number) ? -1.0f : 1.0f);
}

bool isFloat(Element element) { return element == Element::f32 || element == Element::f64; }

// The least and the greatest of an integer type; of floats a range that is everyday.
struct Range {
  double low, high;
};
Range rangeOf(Element element) {
  switch (element) {
    case Element::u8:
      return {0, 255};
    case Element::s8:
      return {-128, 127};
    case Element::u16:
      return {0, 65535};
    case Element::s16:
      return {-32768, 32767};
    case Element::u32:
      return {0, 4294967295.0};
    case Element::s32:
      return {-2147483648.0, 2147483647.0};
    default:
      return {-300, 300};
  }
}

// Stores a number that the type can hold.
void store(Element element, std::byte* at, double number) {
  const auto put = [at](auto value) { std::memcpy(at, &value, sizeof value); };
  switch (element) {
    case Element::u8:
      return put(static_cast<Hux8u>(number));
    case Element::s8:
      return put(static_cast<Hux8s>(number));
    case Element::u16:
      return put(static_cast<Hux16u>(number));
    case Element::s16:
      return put(static_cast<Hux16s>(number));
    case Element::u32:
      return put(static_cast<Hux32u>(number));
    case Element::s32:
      return put(static_cast<Hux32s>(number));
    case Element::s64:
      return put(static_cast<Hux64s>(number));
    case Element::f32:
      return put(single(number));
    case Element::f64:
      return put(number);
    case Element::none:
      break;
  }
}

double limit(Element element, double number) {
  if (isFloat(element)) return number;
  const Range range = rangeOf(element);
  return std::isnan(number) ? 0 : std::clamp(std::trunc(number), range.low, range.high);
}

// An element of the type as a call sees it: calls take turns in what images are made of.
double pixel(Element element, int call, Random& random) {
  const Range range = rangeOf(element);
  if (!isFloat(element)) {
    const auto any = [&] {
      return range.low + std::floor((range.high - range.low + 1) * (random.next() >> 32) * 0x1p-32);
    };
    switch (call % 4) {
      case 1:
        return limit(element, 40 + random.below(64));
      case 2: {
        const double extremes[] = {range.low, range.high, 0, 1, range.high - 1, range.low + 1, range.low / 2, any()};
        return limit(element, extremes[random.below(8)]);
      }
      default:
        return any();
    }
  }
  switch (call % 4) {
    case 1:
      return random.below(17) - 8;
    case 2: {
      const double infinity = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
      const double extremes[] = {0, -0.0, infinity, -infinity, nan, -nan, 1e-40f, -3e38f, 65535.5, 1e-20f};
      const int which = random.below(80);
      return which < 10 ? extremes[which] : (random.below(4096) - 2048) / 8.0;
    }
    case 3:
      return random.below(1 << 24) * 0x1p-24;
    default:
      return (random.below(1 << 24) - (1 << 23)) * (300 * 0x1p-23);
  }
}

std::uint64_t hashName(const char* name) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (; *name; ++name) hash = (hash ^ static_cast<unsigned char>(*name)) * 0x100000001b3u;
  return hash;
}

bool isImage(const Argument& argument) {
  switch (argument.role) {
    case Role::source:
    case Role::destination:
    case Role::source_destination:
    case Role::mask:
    case Role::map:
      return true;
    default:
      return false;
  }
}

bool fillsMoments(const Function& function) { return !std::strncmp(function.operation, "Moments", 7); }

bool contains(const char* text, const char* part) { return std::strstr(text, part) != nullptr; }

}  // namespace

std::uint64_t Random::next() {
  std::uint64_t z = state_ += 0x9e3779b97f4a7c15u;
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
  return z ^ (z >> 31);
}

void Digest::add(std::uint64_t word) {
  state_ = (state_ ^ word) * 0xd6e8feb86659fd93u;
  state_ ^= state_ >> 32;
}

void Digest::add(const void* bytes, std::size_t count) {
  const auto* at = static_cast<const std::byte*>(bytes);
  for (; count >= 8; count -= 8, at += 8) {
    std::uint64_t word;
    std::memcpy(&word, at, 8);
    add(word);
  }
  std::uint64_t rest = count;
  std::memcpy(&rest, at, count);
  add(rest + count);
}

std::uint64_t Digest::value() const {
  Random last(state_);
  return last.next();
}

// ---- Memory ----

void Arena::pad(std::size_t bytes, Random& random) {
  for (; bytes--; ++used_) shown_[used_] = static_cast<std::byte>(random.next() >> 40);
}

std::byte* Arena::shown(std::size_t bytes, std::size_t alignment, std::size_t offset, Random& random) {
  // At least 16 known bytes lie between any two operands.
  const std::size_t start = (used_ + 16 + alignment - 1) / alignment * alignment + offset;
  if (start + bytes + 16 > shown_.size()) {
    std::fprintf(stderr, "hux: an argument of %zu bytes is too large\n", bytes);
    std::abort();
  }
  pad(start - used_, random);
  used_ += bytes;
  std::byte* at = shown_.data() + start;
  pad(16, random);
  return at;
}

std::byte* Arena::aside(std::size_t bytes) {
  std::byte* at = aside_.data() + usedAside_;
  usedAside_ += (bytes + 63) / 64 * 64 + 64;
  if (usedAside_ > aside_.size()) {
    std::fprintf(stderr, "hux: work memory of %zu bytes is too large\n", bytes);
    std::abort();
  }
  return at;
}

void Arena::clear() { used_ = usedAside_ = 0; }

// ---- Numbers ----

double Caller::number(const List& list, int row, int part) {
  const double entry = kNumbers[list.first + row * list.width + part];
  return entry >= kFormula ? static_cast<double>(evaluate(static_cast<int>(entry - kFormula))) : entry;
}

long long Caller::evaluate(Formula formula) const {
  long long stack[16] = {};
  int top = 0;
  for (const int* code = kCode + formula; *code != kEnd;) {
    switch (*code++) {
      case kNumber:
        stack[top++] = *code++;
        break;
      case kRow:
        stack[top++] = row_;
        break;
      case kArgument: {
        const int place = *code++, part = *code++;
        const Argument& argument = own_[place];
        // Of an array each channel sees its own element.
        const int more = argument.kind != Kind::value && argument.fill == Fill::climbing ? 3 * channel_ : 0;
        stack[top++] = static_cast<long long>(numbers_[place][part]) + more;
        break;
      }
      default: {
        const long long b = stack[--top], a = stack[--top];
        switch (code[-1]) {
          case kAdd:
            stack[top++] = a + b;
            break;
          case kSubtract:
            stack[top++] = a - b;
            break;
          case kMultiply:
            stack[top++] = a * b;
            break;
          case kShift:
            stack[top++] = a << std::clamp(b, 0LL, 40LL);
            break;
          case kMax:
            stack[top++] = std::max(a, b);
            break;
          case kMin:
            stack[top++] = std::min(a, b);
            break;
          default:
            break;
        }
      }
    }
  }
  return top ? stack[0] : 0;
}

// Picks the numbers of all arguments. Sizes, and what belongs together, go by the number of the call; others are
// shifted against them, so that all meet.
void Caller::choose() {
  for (int i = 0; i < function_->all; ++i) {
    const Argument& argument = own_[i];
    if (argument.source == Source::pixels && argument.kind == Kind::value) {
      for (int part = 0; part < 2; ++part) numbers_[i][part] = pixel(elementOf(argument), plan_.call, random_);
      vary(argument, numbers_[i]);
    } else if (argument.source == Source::list) {
      bool first = argument.together;
      switch (argument.role) {
        case Role::size:
        case Role::length:
        case Role::order:
        case Role::dimension:
        case Role::region:
          first = true;
          break;
        default:
          break;
      }
      rows_[i] = (plan_.call + (first ? 0 : i)) % argument.values.rows;
      for (int part = 0; part < std::min(argument.values.width, 4); ++part)
        numbers_[i][part] = number(argument.values, rows_[i], part);
      vary(argument, numbers_[i]);
    }
  }
  for (int i = 0; i < function_->all; ++i) {
    const Argument& argument = own_[i];
    if (argument.source != Source::formula) continue;
    for (int part = 0; part < argument.values.width; ++part) numbers_[i][part] = number(argument.values, 0, part);
    vary(argument, numbers_[i]);
  }
}

// What kind of number a value is.
Element Caller::elementOf(const Argument& argument) {
  switch (argument.shape) {
    case 'b':
      return Element::u8;
    case 'k':
      return Element::s8;
    case 'c':
      return Element::u16;
    case 'h':
    case 'C':
      return Element::s16;
    case 'u':
      return Element::u32;
    case 'f':
    case 'E':
      return Element::f32;
    case 'd':
    case 'F':
      return Element::f64;
    default:
      return Element::s32;
  }
}

Value Caller::valueOf(const Argument& argument, const double* n) {
  Value value = {};
  const double first = limit(elementOf(argument), n[0]);
  const auto whole = [n](int part) { return static_cast<int>(limit(Element::s32, n[part])); };
  switch (argument.shape) {
    case 'S':
      value.size = {whole(0), whole(1)};
      break;
    case 'P':
      value.point = {whole(0), whole(1)};
      break;
    case 'R':
      value.rect = {whole(0), whole(1), whole(2), whole(3)};
      break;
    case 'C':
      value.c16 = {static_cast<Hux16s>(first), static_cast<Hux16s>(limit(Element::s16, n[1]))};
      break;
    case 'D':
      value.c32 = {whole(0), whole(1)};
      break;
    case 'E':
      value.c32f = {single(n[0]), single(n[1])};
      break;
    case 'F':
      value.c64f = {n[0], n[1]};
      break;
    case 'f':
      value.f = single(n[0]);
      break;
    case 'd':
      value.d = n[0];
      break;
    case 'u':
      value.u = static_cast<unsigned>(first);
      break;
    case 'l':
      value.l = static_cast<long long>(n[0]);
      break;
    default:
      value.i = static_cast<int>(first);
      break;
  }
  return value;
}

// ---- Memory of arguments ----

void Caller::fillPixels(Element element, std::byte* at, std::size_t count) {
  const int bytes = sizeOf(element);
  if (!isFloat(element) && bytes <= 4 && (plan_.call % 4 == 0 || plan_.call % 4 == 3)) {
    // Any bits will do.
    for (std::size_t left = count * bytes; left;) {
      const std::uint64_t word = random_.next();
      const std::size_t part = std::min(left, sizeof word);
      std::memcpy(at, &word, part);
      at += part;
      left -= part;
    }
    return;
  }
  for (; count--; at += bytes) store(element, at, pixel(element, plan_.call, random_));
}

void Caller::placeImage(int index) {
  const Argument& argument = own_[index];
  const int element = sizeOf(argument.element), perPixel = argument.perPixel * argument.parts;
  int reach[4];
  for (int side = 0; side < 4; ++side) reach[side] = static_cast<int>(std::max(evaluate(argument.reach[side]), 0LL));
  const int width = std::max(static_cast<int>(evaluate(argument.extent[0])), 0) + reach[0] + reach[2];
  const int rows = std::max(static_cast<int>(evaluate(argument.extent[1])) + reach[1] + reach[3], 1);
  const int rowBytes = width * perPixel * element;
  // Every other call has rows at odd addresses, every other one at those of elements.
  const bool odd = plan_.call % 2 == 1 && !function_->aligned;
  const int unit = odd ? 1 : element;
  int step = rowBytes;
  if (argument.step >= 0) {
    // Steps of floats are whole elements. Some families would cut them to that, and find NaNs in the bits between rows
    // that nobody could count as one value.
    const int whole = isFloat(argument.element) ? element : unit;
    if (!stepped_[argument.step]) values_[argument.step].i = step = this->step(argument, rowBytes, whole);
    stepped_[argument.step] = true;
    step = values_[argument.step].i;
  }
  void* pointers[4] = {};
  for (int plane = 0; plane < argument.pointers; ++plane) {
    const std::size_t above = static_cast<std::size_t>(rows - 1) * static_cast<std::size_t>(std::max(-step, 0));
    const std::size_t bytes = static_cast<std::size_t>(rows - 1) * static_cast<std::size_t>(std::abs(step)) + rowBytes;
    const std::size_t offset = static_cast<std::size_t>(random_.below(64 / unit)) * unit;
    std::byte* first = memory_.shown(bytes, 64, offset, random_) + above;
    images_[index][plane] = {first, rows, step, rowBytes};
    pointers[plane] = first + static_cast<std::ptrdiff_t>(reach[1]) * step + reach[0] * perPixel * element;
    for (int row = 0; row < rows; ++row) {
      std::byte* at = first + static_cast<std::ptrdiff_t>(row) * step;
      if (row + 1 < rows && step > rowBytes)
        fillPixels(Element::u8, at + rowBytes, static_cast<std::size_t>(step - rowBytes));
      switch (argument.fill) {
        case Fill::mask:
          for (int x = 0; x < rowBytes; ++x)
            at[x] = static_cast<std::byte>(random_.below(2) ? 1 + random_.below(255) : 0);
          break;
        case Fill::coordinates: {
          const double span = static_cast<double>(evaluate(argument.span));
          for (int x = 0; x < width; ++x) {
            double place = random_.below(1 << 20) * 0x1p-20 * (span + 3) - 2;
            if (x % 5 == 0) place = std::floor(place);
            if (plan_.call % 4 == 2 && x % 11 == 3) place = std::numeric_limits<double>::quiet_NaN();
            store(argument.element, at + x * element, place);
          }
          break;
        }
        default:
          fillPixels(argument.element, at, static_cast<std::size_t>(width) * perPixel);
          break;
      }
    }
  }
  values_[index].p = pointers[0];
  if (argument.kind == Kind::planes) {
    std::byte* array = memory_.aside(sizeof pointers);
    std::memcpy(array, pointers, sizeof pointers);
    values_[index].p = array;
  }
}

// The row of a list, or the first number of one, is for the fills that take them.
void Caller::fillArray(const Argument& argument, std::byte* at, int count, const List& list, int row, double first) {
  const int bytes = sizeOf(argument.element);
  const auto put = [&](int i, double n) { store(argument.element, at + i * bytes, limit(argument.element, n)); };
  const auto given = [&](int part) { return list.rows ? number(list, row, part) : 0; };
  switch (argument.fill) {
    case Fill::pixels:
      fillPixels(argument.element, at, static_cast<std::size_t>(count));
      break;
    case Fill::taps:
      for (int i = 0; i < count; ++i)
        put(i, isFloat(argument.element) ? (random_.below(33) - 12) / 16.0 : random_.below(14) - 4);
      break;
    case Fill::element:
      for (int i = 0; i < count; ++i) put(i, plan_.call % 3 == 1 || random_.below(2) ? 1 + random_.below(255) : 0);
      if (count) put(count / 2, 1);
      break;
    case Fill::levels: {
      // From end to end of what pixels may be; the last is beyond it.
      const Range range = rangeOf(own_[0].element);
      const double span = range.high - range.low + (isFloat(own_[0].element) ? 0 : 1);
      for (int i = 0; i < count; ++i) put(i, range.low + std::floor(span * i / std::max(count - 1, 1)));
      break;
    }
    case Fill::values:
      for (int i = 0; i < count; ++i)
        put(i, isFloat(argument.element) ? pixel(argument.element, 0, random_) : random_.below(300) - 20);
      break;
    case Fill::rows:
      for (int i = 0; i < count; ++i) put(i, given(i));
      break;
    case Fill::constant:
      for (int i = 0; i < count; ++i) put(i, first);
      break;
    case Fill::climbing:
      for (int i = 0; i < count; ++i) put(i, first + 3 * i);
      break;
    case Fill::random:
      for (int i = 0; i < count * bytes; ++i) at[i] = static_cast<std::byte>(random_.next() >> 40);
      break;
    default:
      std::memset(at, 0, static_cast<std::size_t>(count) * bytes);
      break;
  }
}

void Caller::placeArray(int index) {
  const Argument& argument = own_[index];
  void* pointers[4] = {};
  const std::size_t bytes = static_cast<std::size_t>(sizeOf(argument.element));
  for (channel_ = 0; channel_ < argument.pointers; ++channel_) {
    const int count = static_cast<int>(std::max(evaluate(argument.count), 0LL)) * argument.parts;
    std::byte* at = memory_.shown(count * bytes, 16, 0, random_);
    fillArray(argument, at, count, argument.values, rows_[index], numbers_[index][0]);
    varyArray(argument, at, count);
    images_[index][channel_] = {at, 1, 0, static_cast<int>(count * bytes)};
    pointers[channel_] = at;
  }
  channel_ = 0;
  values_[index].p = pointers[0];
  if (argument.kind == Kind::planes) {
    std::byte* array = memory_.aside(sizeof pointers);
    std::memcpy(array, pointers, sizeof pointers);
    values_[index].p = array;
  }
}

// ---- Contexts ----

// Makes a context of what the arguments say of its maker's.
void* Caller::make(int maker) {
  const Function& make = kFunctions[maker];
  Value arguments[24] = {};
  void* made = nullptr;
  for (int i = 0; i < make.own; ++i) {
    const Argument& argument = kArguments[make.firstArgument + i];
    if (argument.kind == Kind::record_out) {
      arguments[i].p = &made;
      continue;
    }
    for (int j = function_->own; j < function_->all; ++j)
      if (!std::strcmp(own_[j].name, argument.name)) arguments[i] = values_[j];
  }
  call(make.shape, make.address, arguments);
  // Moments are read from a record that an image has filled.
  if (made && contains(make.name, "Moment") && !fillsMoments(*function_)) {
    Hux8u image[7 * 9 * 3];
    for (Hux8u& element : image) element = static_cast<Hux8u>(random_.next() >> 50);
    if (contains(function_->name, "64f"))
      huxiMoments64f_8u_C3R(image, 27, {9, 7}, static_cast<HuxiMomentRecord_64f*>(made));
    else
      huxiMoments64s_8u_C3R(image, 27, {9, 7}, static_cast<HuxiMomentRecord_64s*>(made));
  }
  return made;
}

void Caller::release(void* context, int freer) {
  if (!context || freer < 0) return;
  Value argument = {};
  argument.p = context;
  call(kFunctions[freer].shape, kFunctions[freer].address, &argument);
}

// Asks a function how much memory an argument needs.
std::size_t Caller::tell(const Teller& teller) {
  const Function& function = kFunctions[teller.function];
  Value arguments[24] = {};
  int results[4] = {}, result = 0, term = teller.firstTerm;
  for (int i = 0; i < function.own; ++i) {
    const Argument& argument = kArguments[function.firstArgument + i];
    if (argument.kind == Kind::record) {
      arguments[i].p = context_;
    } else if (argument.kind == Kind::pointer) {
      arguments[i].p = &results[result++ & 3];
    } else {
      double numbers[4] = {};
      const int width = argument.shape == 'R' ? 4 : argument.shape == 'S' || argument.shape == 'P' ? 2 : 1;
      for (int part = 0; part < width; ++part) numbers[part] = static_cast<double>(evaluate(kTerms[term++]));
      arguments[i] = valueOf(argument, numbers);
    }
  }
  call(function.shape, function.address, arguments);
  return static_cast<std::size_t>(std::max(results[teller.result], 0));
}

// ---- A call ----

void Caller::placeArgument(int i) {
  const Argument& argument = own_[i];
  if (argument.teller >= 0) {
    const std::size_t bytes = tell(kTellers[argument.teller]);
    const bool without = argument.null == Null::allowed && argument.role == Role::buffer && plan_.call % 3 == 1;
    values_[i].p = without ? nullptr : memory_.aside(bytes + 16) + random_.below(16);
  } else if (argument.kind == Kind::record) {
    values_[i].p = context_;
  } else if (argument.kind == Kind::record_out) {
    std::byte* at = memory_.aside(sizeof(void*));
    std::memset(at, 0, sizeof(void*));
    values_[i].p = at;
  } else if (isImage(argument)) {
    placeImage(i);
  } else if (argument.kind != Kind::value) {
    placeArray(i);
  } else if (argument.source != Source::row) {
    values_[i] = valueOf(argument, numbers_[i]);
  }
}

int Caller::breaks(const Function& function, const Argument& argument) {
  int count = argument.illegal.rows;
  if (argument.kind == Kind::value) return count;
  if (argument.null == Null::refused) count += argument.kind == Kind::planes ? 2 : 1;
  if (argument.kind == Kind::record && argument.judged && function.part != Part::init)
    count += function.other >= 0 ? 2 : 1;
  return count;
}

void Caller::breakArgument(int index, int how) {
  const Argument& argument = own_[index];
  Value& value = values_[index];
  if (argument.kind == Kind::value) {
    double numbers[4] = {};
    if (argument.role == Role::step) {
      for (int image = 0; image < function_->own; ++image)
        if (own_[image].step == index) row_ = images_[image][0].rowBytes;
    }
    for (int part = 0; part < argument.illegal.width; ++part) numbers[part] = number(argument.illegal, how, part);
    value = valueOf(argument, numbers);
    return;
  }
  if (how < argument.illegal.rows) {
    for (int pointer = 0; pointer < argument.pointers; ++pointer) {
      const Image& array = images_[index][pointer];
      Argument filled = argument;
      if (filled.fill == Fill::element) filled.fill = Fill::constant;
      fillArray(filled, array.first, array.rowBytes / sizeOf(argument.element), argument.illegal, how,
                number(argument.illegal, how, 0));
    }
    return;
  }
  how -= argument.illegal.rows;
  if (argument.null == Null::refused && how-- == 0) {
    value.p = nullptr;
  } else if (argument.kind == Kind::planes) {
    void* none = nullptr;
    std::memcpy(static_cast<std::byte*>(value.p) + sizeof none * (argument.pointers - 1), &none, sizeof none);
  } else if (how == 0) {
    value.p = memory_.aside(4096);
    std::memset(value.p, 0, 4096);
  } else {
    value.p = foreign_ = make(function_->other);
  }
}

// NaNs that arithmetic makes differ from machine to machine in sign and payload: they count as one value.
void Caller::unifyNans() {
  for (int i = 0; i < function_->own; ++i) {
    const Argument& argument = own_[i];
    if (argument.kind == Kind::value || !argument.written || !isFloat(argument.element)) continue;
    for (int pointer = 0; pointer < argument.pointers; ++pointer) {
      const Image& image = images_[i][pointer];
      for (int row = 0; row < image.rows; ++row) {
        std::byte* at = image.first + static_cast<std::ptrdiff_t>(row) * image.step;
        if (argument.element == Element::f32) {
          for (int x = 0; x + 4 <= image.rowBytes; x += 4) {
            std::uint32_t bits;
            std::memcpy(&bits, at + x, 4);
            if ((bits & 0x7fffffffu) > 0x7f800000u) std::memcpy(at + x, &(bits = 0x7fc00000u), 4);
          }
        } else {
          for (int x = 0; x + 8 <= image.rowBytes; x += 8) {
            std::uint64_t bits;
            std::memcpy(&bits, at + x, 8);
            if ((bits << 1) > 0xffe0000000000000u) std::memcpy(at + x, &(bits = 0x7ff8000000000000u), 8);
          }
        }
      }
    }
  }
}

// What a context has become, as far as its users may know.
void Caller::digestContext(Digest& digest) {
  if (function_->part == Part::make || function_->part == Part::init) {
    for (int i = 0; i < function_->own; ++i) {
      if (own_[i].kind != Kind::record_out || !values_[i].p) continue;
      void* made;
      std::memcpy(&made, values_[i].p, sizeof made);
      digest.add(made != nullptr);
      release(made, function_->free);
    }
  }
  if (context_ && fillsMoments(*function_)) {
    for (int channel = 0; channel < 4; ++channel) {
      for (int order = 0; order < 10; ++order) {
        static constexpr int kX[] = {0, 1, 0, 2, 1, 0, 3, 2, 1, 0}, kY[] = {0, 0, 1, 0, 1, 2, 0, 1, 2, 3};
        std::uint64_t bits = 0;
        if (contains(function_->operation, "64f")) {
          double moment = 0;
          huxiGetSpatialMoment_64f(static_cast<HuxiMomentRecord_64f*>(context_), kX[order], kY[order], channel, {0, 0},
                                   &moment);
          if (std::isnan(moment)) moment = std::numeric_limits<double>::quiet_NaN();
          std::memcpy(&bits, &moment, sizeof bits);
        } else {
          Hux64s moment = 0;
          huxiGetSpatialMoment_64s(static_cast<HuxiMomentRecord_64s*>(context_), kX[order], kY[order], channel, {0, 0},
                                   &moment, 0);
          bits = static_cast<std::uint64_t>(moment);
        }
        digest.add(bits);
      }
    }
  }
}

std::uint64_t Caller::run(const Function& function, const Plan& plan) {
  function_ = &function;
  own_ = kArguments + function.firstArgument;
  plan_ = plan;
  random_ = Random(hashName(function.name) + static_cast<std::uint64_t>(plan.call));
  memory_.clear();
  context_ = foreign_ = nullptr;
  for (int i = 0; i < function.all; ++i) {
    std::fill(numbers_[i], numbers_[i] + 4, 0);
    std::fill(images_[i], images_[i] + 4, Image());
    rows_[i] = 0;
    stepped_[i] = false;
    values_[i] = {};
  }
  choose();
  for (int i = function.own; i < function.all; ++i) placeArgument(i);
  const bool takes = function.part == Part::use || function.part == Part::free || function.part == Part::buffer_size;
  if (takes) context_ = make(function.make);
  for (int i = 0; i < function.own; ++i) placeArgument(i);
  for (int k = 0; k < 2; ++k)
    if (plan.broken[k] >= 0) breakArgument(plan.broken[k], plan.how[k]);

  status_ = invoke(function, values_);

  Digest digest;
  digest.add(static_cast<std::uint64_t>(static_cast<std::int64_t>(status_)));
  digestContext(digest);
  if (!function.moves) unifyNans();
  memory_.digest(digest);
  if (takes && !(function.part == Part::free && status_ == huxStsOk)) release(context_, function.free);
  release(foreign_, foreign_ ? kFunctions[function.other].free : -1);
  return digest.value();
}

std::string Caller::arguments() const {
  std::string text;
  const auto say = [&text](const char* format, auto... what) {
    char line[96];
    std::snprintf(line, sizeof line, format, what...);
    text += line;
  };
  for (int i = 0; i < function_->all; ++i) {
    const Argument& argument = own_[i];
    const Value& value = values_[i];
    say("%s%s=", !i ? "" : i == function_->own ? " | " : " ", argument.name);
    if (argument.kind != Kind::value) {
      if (!value.p)
        say("%s", "null");
      else if (isImage(argument))
        say("(%d bytes by %d)", images_[i][0].rowBytes, images_[i][0].rows);
      else
        say("%s", "(...)");
      continue;
    }
    switch (argument.shape) {
      case 'S':
        say("%dx%d", value.size.width, value.size.height);
        break;
      case 'P':
        say("(%d,%d)", value.point.x, value.point.y);
        break;
      case 'R':
        say("(%d,%d %dx%d)", value.rect.x, value.rect.y, value.rect.width, value.rect.height);
        break;
      case 'C':
        say("%d%+di", value.c16.re, value.c16.im);
        break;
      case 'D':
        say("%d%+di", value.c32.re, value.c32.im);
        break;
      case 'E':
        say("%g%+gi", double(value.c32f.re), double(value.c32f.im));
        break;
      case 'F':
        say("%g%+gi", value.c64f.re, value.c64f.im);
        break;
      case 'f':
        say("%g", double(value.f));
        break;
      case 'd':
        say("%g", value.d);
        break;
      case 'u':
        say("%u", value.u);
        break;
      default:
        say("%d", value.i);
        break;
    }
  }
  return text;
}

}  // namespace hux::tool
