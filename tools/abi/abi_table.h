// What the i686 compiler knows of each export's declaration, recorded for
// the export-table check: the bytes its arguments take on the stack (each
// rounded up to 4, as stdcall pushes them) and whether its result comes
// back through a hidden pointer, which the function pops as well.
//
// The records land in section ".zkabi" of the object, which the build copies
// out as bin/abi-table.bin; the check compares them with the .def files and
// with the `ret N` of each function in the DLLs.
#pragma once

#include <cstdint>
#include <type_traits>

namespace zkabi {

struct Record {
    char name[56];
    uint32_t argumentBytes;
    uint32_t hiddenResult; // 1: the result is a record returned through a hidden pointer
};
static_assert(sizeof(Record) == 64);

// Records of 1, 2, 4 or 8 bytes come back in registers; larger ones in
// memory that the caller passes.
template <class R>
constexpr uint32_t HiddenResult() {
    if constexpr (std::is_class_v<R>)
        return sizeof(R) == 1 || sizeof(R) == 2 || sizeof(R) == 4 || sizeof(R) == 8 ? 0u : 1u;
    else
        return 0u;
}

template <class F>
struct Traits;

template <class R, class... A>
struct Traits<R(__stdcall *)(A...)> {
    static constexpr uint32_t bytes = (0u + ... + ((static_cast<uint32_t>(sizeof(A)) + 3u) & ~3u));
    static constexpr uint32_t hidden = HiddenResult<R>();
};

template <size_t N>
constexpr Record Make(const char (&name)[N], uint32_t bytes, uint32_t hidden) {
    static_assert(N <= 56, "export name too long for the record");
    Record r{};
    for (size_t i = 0; i < N; ++i)
        r.name[i] = name[i];
    r.argumentBytes = bytes;
    r.hiddenResult = hidden;
    return r;
}

} // namespace zkabi

#define ZK_ABI(name) zkabi::Make(#name, zkabi::Traits<decltype(&name)>::bytes, zkabi::Traits<decltype(&name)>::hidden),
