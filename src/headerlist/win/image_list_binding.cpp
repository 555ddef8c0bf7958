// The blocks' image lists on the platform: stream forms through an
// HGLOBAL stream, copies through icons, the default icon of the system.
#include <windows.h>
#include <objidl.h>

#include <commctrl.h>

#include <cstring>

#include "headerlist/core/image_list.h"
#include "headerlist/win/headerlist_bootstrap.h"

namespace zk::hdr {

namespace {

constexpr int32_t kSmallSide = 16;
constexpr int kGrowth = 10;

HIMAGELIST List(void *list) { return static_cast<HIMAGELIST>(list); }

void Side(bool large, int &cx, int &cy) {
    cx = large ? GetSystemMetrics(SM_CXICON) : kSmallSide;
    cy = large ? GetSystemMetrics(SM_CYICON) : kSmallSide;
}

void Destroy(void *list) { ImageList_Destroy(List(list)); }

bool Write(void *list, std::vector<uint8_t> &bytes) {
    IStream *stream = nullptr;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream)))
        return false;
    bool written = false;
    if (ImageList_Write(List(list), stream)) {
        HGLOBAL memory = nullptr;
        ULARGE_INTEGER end{};
        const LARGE_INTEGER zero{};
        if (SUCCEEDED(stream->Seek(zero, STREAM_SEEK_CUR, &end)) && SUCCEEDED(GetHGlobalFromStream(stream, &memory))) {
            if (const void *data = GlobalLock(memory)) {
                const auto *first = static_cast<const uint8_t *>(data);
                bytes.insert(bytes.end(), first, first + end.QuadPart);
                GlobalUnlock(memory);
                written = true;
            }
        }
    }
    stream->Release();
    return written;
}

void *Read(const uint8_t *bytes, size_t count) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, count ? count : 1);
    if (!memory)
        return nullptr;
    if (void *data = GlobalLock(memory)) {
        std::memcpy(data, bytes, count);
        GlobalUnlock(memory);
    }
    IStream *stream = nullptr;
    if (FAILED(CreateStreamOnHGlobal(memory, TRUE, &stream))) {
        GlobalFree(memory);
        return nullptr;
    }
    HIMAGELIST list = ImageList_Read(stream);
    stream->Release();
    return list;
}

void *Copy(void *source, bool large) {
    int cx = 0, cy = 0;
    Side(large, cx, cy);
    const int count = ImageList_GetImageCount(List(source));
    HIMAGELIST copy = ImageList_Create(cx, cy, ILC_MASK, count > 0 ? count : 1, kGrowth);
    if (!copy)
        return nullptr;
    for (int i = 0; i < count; ++i) {
        HICON icon = ImageList_GetIcon(List(source), i, ILD_NORMAL);
        ImageList_ReplaceIcon(copy, -1, icon);
        if (icon)
            DestroyIcon(icon);
    }
    return copy;
}

// The Windows logo, or the application icon on a system of platform id 0.
HICON DefaultIcon() {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExW(&version);
    return LoadIconW(nullptr, MAKEINTRESOURCEW(version.dwPlatformId == 0 ? 32512 : 32517));
}

void *MakeDefault(bool large) {
    int cx = 0, cy = 0;
    Side(large, cx, cy);
    HIMAGELIST list = ImageList_Create(cx, cy, ILC_MASK, 1, kGrowth);
    if (list)
        ImageList_ReplaceIcon(list, -1, DefaultIcon());
    return list;
}

int32_t Count(void *list) { return ImageList_GetImageCount(List(list)); }

} // namespace

void BindImageListsToPlatform() { BindImageOps({&Destroy, &Write, &Read, &Copy, &MakeDefault, &Count}); }

} // namespace zk::hdr
