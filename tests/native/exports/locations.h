// Where the sources and the cross-built DLLs are; empty when the build did
// not say, which the tests report as a failure.
#pragma once

#include <string>

#if __has_include("exports_config.h")
#include "exports_config.h"
#define ZK_EXPORTS_CONFIGURED 1
#else
#define ZK_EXPORTS_CONFIGURED 0
#define ZK_EXPORTS_WIN64_BIN ""
#define ZK_EXPORTS_WIN32_BIN ""
#define ZK_EXPORTS_I686_OBJDUMP ""
#endif

namespace locations {

// The source tree; without the generated header it is found from where
// this header lies (tests/native/exports).
inline std::string SourceDir() {
#if ZK_EXPORTS_CONFIGURED
    return ZK_EXPORTS_SOURCE_DIR;
#else
    const std::string here = __FILE__;
    const std::string tail = "tests/native/exports/locations.h";
    if (here.size() > tail.size() && here.compare(here.size() - tail.size(), tail.size(), tail) == 0) {
        return here.substr(0, here.size() - tail.size() - 1);
    }
    return ".";
#endif
}

inline std::string Win64Bin() { return ZK_EXPORTS_WIN64_BIN; }
inline std::string Win32Bin() { return ZK_EXPORTS_WIN32_BIN; }
// The i686 disassembler of the cross tools.
inline std::string I686Objdump() { return ZK_EXPORTS_I686_OBJDUMP; }

inline const char *HowToConfigure() {
    return ZK_EXPORTS_CONFIGURED ? "set the CMake cache variables ZK_WIN64_BIN and ZK_WIN32_BIN of the native "
                                   "build to the bin folders of the x86_64 and i686 cross builds"
                                 : "exports_config.h was not generated: the native build must configure "
                                   "tests/native/exports/exports_config.h.in for native_exports";
}

} // namespace locations
