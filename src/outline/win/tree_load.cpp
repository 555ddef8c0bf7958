// Loading nodes without rows: one child, one sibling, or children from
// host arrays; shell folder values take the shell's own names.
#include <string>

#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx {

namespace {

struct ShellFolder {
    int32_t value;
    const wchar_t *classId;
    UINT resource;
};

constexpr ShellFolder kShellFolders[] = {
    {-2, L"{20D04FE0-3AEA-1069-A2D8-08002B30309D}", 9216}, {-3, L"{208D2C60-3AEA-1069-A2D7-08002B30309D}", 9217},
    {-4, L"{450D8FBA-AD25-11D0-98A8-0800361B1103}", 9227}, {-5, L"{645FF040-5081-101B-9F08-00AA002F954E}", 8964},
    {-6, L"{871C5380-42A0-1069-A2EA-08002B30309D}", 9222},
};

std::wstring FromRegistry(const wchar_t *classId) {
    std::wstring key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CLSID\\";
    key += classId;
    HKEY handle = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) {
        return {};
    }
    wchar_t buffer[257] = {}; // 512 bytes and a terminator of our own
    DWORD bytes = 512;
    DWORD type = 0;
    const LONG status = RegQueryValueExW(handle, nullptr, nullptr, &type, reinterpret_cast<BYTE *>(buffer), &bytes);
    RegCloseKey(handle);
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) {
        return {};
    }
    return buffer;
}

std::wstring FromShell(UINT resource) {
    HMODULE shell = GetModuleHandleW(L"Shell32.dll");
    bool loaded = false;
    if (!shell) {
        shell = LoadLibraryExW(L"Shell32.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
        loaded = shell != nullptr;
    }
    if (!shell) {
        return {};
    }
    wchar_t buffer[256] = {};
    const int count = LoadStringW(shell, resource, buffer, 256);
    if (loaded) {
        FreeLibrary(shell);
    }
    return count > 0 ? std::wstring(buffer, static_cast<std::size_t>(count)) : std::wstring();
}

// The text a load stores: the given one unless it is empty or the stock
// name of the first two folders, in which case a shell folder value takes
// the shell's name where one is found.
std::wstring ChooseText(const wchar_t *text, int32_t value) {
    const std::wstring given = text ? text : L"";
    const bool replace =
        given.empty() || (value == -2 && given == L"My Computer") || (value == -3 && given == L"Network Neighborhood");
    if (replace && value >= -6 && value <= -2) {
        const std::wstring name = ShellFolderName(value);
        if (!name.empty()) {
            return name;
        }
    }
    return given;
}

} // namespace

bool PicturesOf(ZelPicHandle normal, ZelPicHandle selected, PIC **normalPic, PIC **selectedPic) {
    *normalPic = PicFromHandle(normal);
    *selectedPic = PicFromHandle(selected);
    return (!normal || *normalPic) && (!selected || *selectedPic);
}

int32_t LoadMany(HWND window, ZelItemHandle parentHandle, ZelPicHandle normal, ZelPicHandle selected, HostArray texts,
                 HostArray values, HostArray flags) {
    // The host gives each array's element count; 0 is an empty array, not a
    // failure, so three empty arrays load nothing and answer 0.
    int32_t lows[3] = {}, highs[3] = {}, counts[3] = {};
    const HostArray arrays[3] = {texts, values, flags};
    for (int i = 0; i < 3; ++i) {
        counts[i] = HostArrayGetBounds(arrays[i], &lows[i], &highs[i]);
    }
    if (counts[1] != counts[0] || counts[2] != counts[0]) {
        return ZEL_INVALID_PARAMETER;
    }
    const int32_t count = counts[0];
    // A parent or picture handle that is not live fails the first load.
    LbxNode *parent = NodeOf(parentHandle);
    PIC *n = nullptr, *s = nullptr;
    if (count > 0 && (!parent || !PicturesOf(normal, selected, &n, &s))) {
        return ZEL_NOT_ENOUGH_MEMORY;
    }
    int32_t loaded = 0;
    for (int32_t i = 0; i < count; ++i) {
        HostStr textHandle = 0;
        HostNumber valueNumber{}, flagNumber{};
        int32_t value = 0;
        uint32_t flagBits = 0;
        HostArrayGetString(texts, &textHandle, lows[0] + i);
        HostArrayGetNumber(values, &valueNumber, lows[1] + i);
        HostArrayGetNumber(flags, &flagNumber, lows[2] + i);
        HostNumberToLong(&valueNumber, &value);
        HostNumberToULong(&flagNumber, &flagBits);
        int32_t size = 0;
        const wchar_t *text = textHandle ? HostStrLock(textHandle, &size) : nullptr;
        if (!LoadChildWindow(window, parent, n, s, text, value, flagBits)) {
            return ZEL_NOT_ENOUGH_MEMORY;
        }
        ++loaded;
        parent->item->flags |= LBX_ItemExpanded;
    }
    return loaded;
}

std::wstring ShellFolderName(int32_t value) {
    for (const ShellFolder &folder : kShellFolders) {
        if (folder.value == value) {
            std::wstring name = FromRegistry(folder.classId);
            return name.empty() ? FromShell(folder.resource) : name;
        }
    }
    return {};
}

LbxNode *LoadChildWindow(HWND window, LbxNode *parent, PIC *normal, PIC *selected, const wchar_t *text, int32_t value,
                         uint32_t flags) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child) || !parent || !parent->item) {
        return nullptr;
    }
    const std::wstring chosen = ChooseText(text, value);
    const LoadFields fields{normal, selected, value, flags};
    return LbxLoadChild(parent, window, {LbxU16(chosen.c_str()), chosen.size()}, fields, child.style,
                        LbxPlatformCase());
}

LbxNode *LoadSiblingWindow(HWND window, LbxNode *sibling, PIC *normal, PIC *selected, const wchar_t *text,
                           int32_t value, uint32_t flags) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child) || !sibling) {
        return nullptr;
    }
    const std::wstring given = text ? text : L"";
    const LoadFields fields{normal, selected, value, flags};
    return LbxLoadSibling(sibling, window, {LbxU16(given.c_str()), given.size()}, fields, child.style,
                          LbxPlatformCase());
}

} // namespace zk::lbx
