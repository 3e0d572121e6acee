#include "about.h"

#if defined(_WIN32)
#include <windows.h>
#elif defined(__unix__) || defined(__APPLE__)
#include <dlfcn.h>
#endif

#include <filesystem>

#include "huxcore.h"
#include "huxi.h"

namespace hux::tool {
namespace {

std::string processor() {
#if defined(__x86_64__)
  const auto all = [](auto... supported) { return (supported && ...); };
  const bool v2 = all(__builtin_cpu_supports("sse4.2"), __builtin_cpu_supports("popcnt"));
  const bool v3 =
      v2 && all(__builtin_cpu_supports("avx2"), __builtin_cpu_supports("fma"), __builtin_cpu_supports("bmi2"));
  const bool v4 = v3 && all(__builtin_cpu_supports("avx512bw"), __builtin_cpu_supports("avx512dq"),
                            __builtin_cpu_supports("avx512vl"));
  return v4 ? "x86-64-v4" : v3 ? "x86-64-v3" : v2 ? "x86-64-v2" : "x86-64";
#elif defined(__aarch64__)
  return "aarch64";
#elif defined(__riscv)
  return "riscv64";
#else
  return "unknown";
#endif
}

#if defined(_WIN32)
std::string fileOf(HMODULE module) {
  char name[MAX_PATH];
  return GetModuleFileNameA(module, name, sizeof name) ? name : "unknown";
}
#endif

std::string loaded() {
#if defined(_WIN32)
  HMODULE module;
  // The start of its version's record lies in the library; a function's address may be that of a way there.
  if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<const char*>(huxiGetLibVersion()), &module))
    return fileOf(module);
#elif defined(__unix__) || defined(__APPLE__)
  Dl_info info;
  if (dladdr(reinterpret_cast<void*>(&huxiGetLibVersion), &info) && info.dli_fname)
    return std::filesystem::weakly_canonical(info.dli_fname).string();
#endif
  return "unknown";
}

}  // namespace

std::string about() {
  const HuxLibraryVersion* version = huxiGetLibVersion();
  return std::string("  version    ") + version->versionText + "\n  library    " + loaded() + "\n  processor  " +
         processor() + "\n  threads    " + std::to_string(huxGetThreadCount()) + "\n";
}

std::string listOfDigests([[maybe_unused]] const char* program) {
  std::error_code error;
#if defined(_WIN32)
  const std::filesystem::path place = fileOf(nullptr);
#else
  const std::filesystem::path linked = std::filesystem::read_symlink("/proc/self/exe", error);
  const std::filesystem::path place = error ? std::filesystem::absolute(program, error) : linked;
#endif
  const std::filesystem::path list = place.parent_path().parent_path() / "share" / "hux" / "digests.txt";
  if (std::filesystem::exists(list, error)) return list.string();
  return HUX_DIGESTS;
}

}  // namespace hux::tool
