// ZelStrLoadTable: a string table file, found on the search path and read
// whole in the system code page, as one moveable global block.
#include <cstdint>
#include <utility>

#include "frame/win/guard.h"
#include "os/win/files.h"
#include "text/core/strtable.h"

static_assert(zk::text::kTableFileLimit == ZEL_STRTABLE_MAX_BYTES);
static_assert(zk::text::kTableEndMark == ZEL_STRTABLE_END_MARK);

namespace {

// A global block freed when the holder lets it go.
class GlobalBlock {
public:
    GlobalBlock(UINT flags, SIZE_T bytes) : handle_(GlobalAlloc(flags, bytes)) {}
    ~GlobalBlock() {
        if (handle_)
            GlobalFree(handle_);
    }
    GlobalBlock(const GlobalBlock &) = delete;
    GlobalBlock &operator=(const GlobalBlock &) = delete;
    HGLOBAL Get() const { return handle_; }
    HGLOBAL Release() { return std::exchange(handle_, nullptr); }

private:
    HGLOBAL handle_;
};

// Up to `size` bytes of the file into `bytes`; the count read, or -1.
int64_t ReadWhole(const wchar_t *path, char *bytes, DWORD size) {
    const HANDLE file = ZelFileOpenEx(path, nullptr, 0, 0); // read access, shared
    if (file == INVALID_HANDLE_VALUE || !file)
        return -1;
    DWORD total = 0;
    bool ok = true;
    while (total < size) {
        DWORD got = 0;
        if (!ReadFile(file, bytes + total, size - total, &got, nullptr)) {
            ok = false;
            break;
        }
        if (got == 0)
            break; // the file is shorter than its entry said
        total += got;
    }
    CloseHandle(file);
    return ok ? int64_t(total) : -1;
}

intptr_t Load(const wchar_t *name) {
    if (!name)
        return ZEL_INVALID_PARAMETER;
    wchar_t path[MAX_PATH];
    if (ZelFileOpenEx(name, path, MAX_PATH, OF_EXIST) == INVALID_HANDLE_VALUE)
        return ZEL_FILE_NOT_FOUND;
    const int32_t size = ZelFileGetSize(path);
    if (const int32_t code = zk::text::TableSizeCode(size))
        return code;

    // Room for one character per byte, a last terminator and the end mark:
    // no system code page makes more characters than bytes.
    const SIZE_T blockBytes = SIZE_T(size) * 2 + 4;
    GlobalBlock table(GHND, blockBytes);
    if (!table.Get())
        return ZEL_NOT_ENOUGH_MEMORY;
    GlobalBlock read(GMEM_FIXED, blockBytes);
    if (!read.Get())
        return ZEL_NOT_ENOUGH_MEMORY;
    char *bytes = static_cast<char *>(read.Get());
    const int64_t got = ReadWhole(path, bytes, static_cast<DWORD>(size));
    if (got < 0)
        return ZEL_NOT_ENOUGH_MEMORY;

    auto *chars = static_cast<char16_t *>(GlobalLock(table.Get()));
    if (!chars)
        return ZEL_NOT_ENOUGH_MEMORY;
    // Bytes that are no text in the code page become its default character;
    // nothing is refused.
    int length = 0;
    if (got > 0)
        length = MultiByteToWideChar(CP_ACP, 0, bytes, static_cast<int>(got), reinterpret_cast<wchar_t *>(chars), size);
    if (got > 0 && length <= 0) {
        GlobalUnlock(table.Get());
        return ZEL_NOT_ENOUGH_MEMORY;
    }
    zk::text::MakeTableBlock(chars, static_cast<std::size_t>(length));
    GlobalUnlock(table.Get());
    return reinterpret_cast<intptr_t>(table.Release());
}

} // namespace

intptr_t ZKAPI ZelStrLoadTable(const wchar_t *name) {
    return zk::Quietly([&] { return Load(name); }, [] { return intptr_t{ZEL_NOT_ENOUGH_MEMORY}; });
}
