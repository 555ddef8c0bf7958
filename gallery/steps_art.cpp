// The art inside ZKLIB.dll: the nine palette bitmaps that the designer asks
// for by index, and the group icon "ZK" with its two images.
#include "artpanel.h"
#include "form.h"
#include "report.h"
#include "steps.h"

#include <string>

namespace gallery {
namespace {

const wchar_t *const kPaletteBitmaps[] = {L"ZK_LOGO",           L"ZK_CAL",    L"ZK_CALDROPDOWN",    L"ZK_CLRPAL",
                                          L"ZK_CLRPALDROPDOWN", L"ZK_LISTVW", L"ZK_LISTVWDROPDOWN", L"ZK_METER",
                                          L"ZK_SPINFLD"};

#pragma pack(push, 2)
struct GroupIconEntry {
    BYTE width, height, colours, reserved;
    WORD planes, bitCount;
    DWORD bytes;
    WORD id;
};
struct GroupIconHeader {
    WORD reserved, type, count;
};
#pragma pack(pop)

// The sizes listed by a group icon resource, as "32x32 16x16".
std::wstring GroupIconSizes(HMODULE module, const wchar_t *name) {
    HRSRC found = FindResourceW(module, name, MAKEINTRESOURCEW(14)); // RT_GROUP_ICON
    HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    const auto *bytes = static_cast<const BYTE *>(loaded ? LockResource(loaded) : nullptr);
    const DWORD size = found ? SizeofResource(module, found) : 0;
    if (!bytes || size < sizeof(GroupIconHeader))
        return L"missing";
    const auto *header = reinterpret_cast<const GroupIconHeader *>(bytes);
    if (size < sizeof(GroupIconHeader) + header->count * sizeof(GroupIconEntry))
        return L"truncated";
    const auto *entries = reinterpret_cast<const GroupIconEntry *>(bytes + sizeof(GroupIconHeader));
    std::wstring sizes;
    for (WORD i = 0; i < header->count; ++i) {
        const int w = entries[i].width ? entries[i].width : 256;
        const int h = entries[i].height ? entries[i].height : 256;
        if (!sizes.empty())
            sizes += L" ";
        sizes += std::to_wstring(w) + L"x" + std::to_wstring(h);
    }
    return sizes;
}

} // namespace

void RunArtSteps(Report &report, Form &form, ArtPanel &panel) {
    report.Section(L"Art in ZKLIB.dll (bitmaps twice their size)");
    constexpr int kItems = 9 + 2;
    if (!panel.Create(form.Window(), form.Reserve(ArtPanel::HeightFor(kItems, Form::ColumnWidth())), form.Font()))
        report.LogCheck(L"art panel", L"not created", false);
    HMODULE library = GetModuleHandleW(L"ZKLIB.dll");
    int found = 0;
    for (const wchar_t *name : kPaletteBitmaps) {
        HBITMAP bitmap = library ? LoadBitmapW(library, name) : nullptr;
        BITMAP info{};
        const bool ok = bitmap && GetObjectW(bitmap, sizeof(info), &info) && info.bmWidth == 24 && info.bmHeight == 24;
        found += ok ? 1 : 0;
        report.LogCheck(std::wstring(L"LoadBitmapW(ZKLIB, \"") + name + L"\")",
                        bitmap ? std::to_wstring(info.bmWidth) + L"x" + std::to_wstring(info.bmHeight) : L"missing", ok,
                        L"24x24");
        panel.AddBitmap(std::wstring(name).substr(3), bitmap);
    }
    report.Number(L"palette bitmaps of 24x24", found, 9);

    const std::wstring sizes = library ? GroupIconSizes(library, L"ZK") : L"missing";
    report.Check(L"group icon \"ZK\"", sizes, sizes == L"32x32 16x16", L"32x32 16x16");
    for (int size : {32, 16}) {
        HICON icon = library ? static_cast<HICON>(LoadImageW(library, L"ZK", IMAGE_ICON, size, size, 0)) : nullptr;
        panel.AddIcon(L"ZK " + std::to_wstring(size), icon, size);
    }
}

} // namespace gallery
