#include "frame/win/registry.h"

#include <array>
#include <set>
#include <string>

namespace zk {

int IconWidth = 0, IconHeight = 0;
const int SmallIconWidth = 16, SmallIconHeight = 16;

namespace {

constexpr std::array<const wchar_t *, 9> paletteNames = {
    L"ZK_LOGO",           L"ZK_CAL",   L"ZK_CALDROPDOWN", L"ZK_CLRPAL", L"ZK_CLRPALDROPDOWN", L"ZK_LISTVW",
    L"ZK_LISTVWDROPDOWN", L"ZK_METER", L"ZK_SPINFLD",
};
std::array<HBITMAP, 9> paletteBitmaps{};

const std::set<std::wstring> classNameMap = {
    L"cColorComboBox", L"cColorListBox",    L"cDirTreeListBox", L"cDriveComboBox", L"cDriveListBox",
    L"cFontComboBox",  L"cOutlineComboBox", L"cOutlineListBox", L"cRadioListBox",  L"cFontListBox",
};
bool classNameMapFilled = false;

} // namespace

HBITMAP PaletteBitmap(int index) {
    if (index < 0 || index >= static_cast<int>(paletteBitmaps.size()))
        index = 0;
    return paletteBitmaps[static_cast<size_t>(index)];
}

bool IsHostListClassName(const wchar_t *name) { return name && classNameMapFilled && classNameMap.count(name) != 0; }

void LoadProcessState(HINSTANCE instance) {
    IconHeight = GetSystemMetrics(SM_CYICON);
    IconWidth = GetSystemMetrics(SM_CXICON);
    for (size_t i = 0; i < paletteNames.size(); ++i)
        if (FindResourceW(instance, paletteNames[i], reinterpret_cast<LPCWSTR>(RT_BITMAP)))
            paletteBitmaps[i] = LoadBitmapW(instance, paletteNames[i]);
    classNameMapFilled = true;
}

void FreeProcessState() {
    for (HBITMAP &bitmap : paletteBitmaps) {
        if (bitmap)
            DeleteObject(bitmap);
        bitmap = nullptr;
    }
    classNameMapFilled = false;
}

} // namespace zk
