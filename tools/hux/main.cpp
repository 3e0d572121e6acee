// hux: what the library is, what it has, and whether it computes what it should.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "about.h"
#include "check.h"
#include "table.h"

namespace hux::tool {
namespace {

constexpr char kUsage[] =
    "usage: hux check [--only TEXT] [--verbose] [--list FILE] [--threads N]   compare results with the published ones\n"
    "       hux check --write [--list FILE]                                   make the list\n"
    "       hux check --uncovered                                             functions that are not checked\n"
    "       hux which WORD...                                                 functions by operation, type, channels\n"
    "       hux info                                                          version, library, processor, threads\n";

// AddC: add_c, so that it can be looked for by either name.
std::string snake(const char* name) {
  std::string text;
  for (const char* c = name; *c; ++c) {
    if (std::isupper(static_cast<unsigned char>(*c)) && c != name && c[-1] != '_' &&
        (std::islower(static_cast<unsigned char>(c[-1])) || std::islower(static_cast<unsigned char>(c[1]))))
      text += '_';
    text += static_cast<char>(std::tolower(static_cast<unsigned char>(*c)));
  }
  return text;
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

// Whether one of the words of a text is this one.
bool hasWord(const std::string& text, const std::string& word) {
  return (" " + text + " ").find(" " + word + " ") != std::string::npos;
}

// A word is a type (uint8, 8u), a number of channels (3, c3, ac4, p3), or an operation (add, AddC, threshold_gt); one
// that is no operation as a whole is the beginning of several.
bool matches(const Function& function, const std::string& word, bool whole) {
  static const struct {
    const char *name, *token;
  } types[] = {{"uint8", "8u"},  {"int8", "8s"},    {"uint16", "16u"},     {"int16", "16s"},      {"uint32", "32u"},
               {"int32", "32s"}, {"int64", "64s"},  {"float32", "32f"},    {"float64", "64f"},    {"bit", "1u"},
               {"float", "32f"}, {"double", "64f"}, {"complex64", "32fc"}, {"complex128", "64fc"}};
  for (const auto& type : types)
    if (word == type.name) return hasWord(function.types, type.token);
  if (std::isdigit(static_cast<unsigned char>(word[0])) && word.size() > 1) return hasWord(function.types, word);
  const std::string layout = lower(function.layout);
  if (word.size() == 1 && std::isdigit(static_cast<unsigned char>(word[0])))
    return layout == "c" + word || (word == "1" && layout.empty());
  if (word.size() <= 3 && std::isdigit(static_cast<unsigned char>(word.back())) && layout.find(word) == 0) return true;
  const std::string plain = lower(function.operation), spelt = snake(function.operation);
  if (plain == word || spelt == word || lower(function.name) == word) return true;
  return !whole && (plain.find(word) == 0 || spelt.find(word) == 0);
}

int which(const std::vector<std::string>& words) {
  if (words.empty()) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  for (const bool whole : {true, false}) {
    int found = 0;
    for (int i = 0; i < kFunctionCount; ++i) {
      const Function& function = kFunctions[i];
      if (!std::all_of(words.begin(), words.end(), [&](const auto& word) { return matches(function, word, whole); }))
        continue;
      std::printf("%s;\n", function.signature);
      ++found;
    }
    if (found) return 0;
  }
  std::fputs("hux: no such function\n", stderr);
  return 1;
}

int run(int count, char** arguments) {
  const std::vector<std::string> words(arguments + std::min(count, 2), arguments + count);
  const std::string command = count > 1 ? arguments[1] : "";
  if (command == "info" && words.empty()) {
    std::fputs(about().c_str(), stdout);
    return 0;
  }
  if (command == "which") {
    std::vector<std::string> lowered;
    std::transform(words.begin(), words.end(), std::back_inserter(lowered), lower);
    return which(lowered);
  }
  if (command != "check") {
    std::fputs(kUsage, stderr);
    return 2;
  }
  CheckOptions options;
  options.list = listOfDigests(arguments[0]);
  for (std::size_t i = 0; i < words.size(); ++i) {
    const bool more = i + 1 < words.size();
    if (words[i] == "--only" && more) {
      options.only = words[++i];
    } else if (words[i] == "--list" && more) {
      options.list = words[++i];
    } else if (words[i] == "--threads" && more) {
      options.threads = std::atoi(words[++i].c_str());
    } else if (words[i] == "--verbose") {
      options.verbose = true;
    } else if (words[i] == "--write") {
      options.write = true;
    } else if (words[i] == "--uncovered") {
      return uncovered();
    } else {
      std::fputs(kUsage, stderr);
      return 2;
    }
  }
  return check(options);
}

}  // namespace
}  // namespace hux::tool

int main(int count, char** arguments) { return hux::tool::run(count, arguments); }
