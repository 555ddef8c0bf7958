// ZelFontEnum: printer fonts first, then screen fonts, one row per face.
#include <string>
#include <unordered_map>

#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/pic.h"

namespace zk::lbx {

namespace {

struct Enumeration {
    HostArray names;
    HostArray types;
    int32_t count = 0;
    // Face to its index: the faces written so far, so that a face reported
    // again (by the other pass) only takes the new type code.
    std::unordered_map<std::wstring, int32_t> seen;
    bool failed = false;
};

int32_t TypeCode(DWORD fontType) {
    if (fontType & TRUETYPE_FONTTYPE)
        return FONT_TypeTrueType;
    if (fontType & DEVICE_FONTTYPE)
        return FONT_TypeDevice;
    if (fontType & RASTER_FONTTYPE)
        return FONT_TypeRaster;
    return FONT_TypeOther;
}

bool SetType(Enumeration &e, int32_t index, int32_t code) {
    HostNumber number{};
    HostNumberFromLong(code, &number);
    return HostArraySetNumber(e.types, &number, index) != 0;
}

int CALLBACK FontFamily(const LOGFONTW *font, const TEXTMETRICW *, DWORD fontType, LPARAM lParam) {
    auto &e = *reinterpret_cast<Enumeration *>(lParam);
    try {
        const std::wstring face(font->lfFaceName);
        const int32_t code = TypeCode(fontType);
        if (auto it = e.seen.find(face); it != e.seen.end()) {
            e.failed = !SetType(e, it->second, code);
            return e.failed ? 0 : 1;
        }
        e.seen.emplace(face, e.count);
        const HostStr name = zk::StrFromView(face);
        if (!HostArraySetString(e.names, name, e.count) || !SetType(e, e.count, code)) {
            e.failed = true;
            return 0;
        }
        ++e.count;
        return 1;
    } catch (...) {
        e.failed = true;
        return 0;
    }
}

// The printer of the "device" entry: "device,driver,port".
void EnumPrinterFonts(Enumeration &e) {
    wchar_t entry[256] = {};
    GetProfileStringW(L"windows", L"device", L"", entry, 256);
    std::wstring parts[3];
    int part = 0;
    for (const wchar_t *c = entry; *c && part < 3; ++c) {
        if (*c == L',')
            ++part;
        else
            parts[part] += *c;
    }
    if (parts[0].empty() || parts[1].empty())
        return;
    HDC printer = CreateDCW(parts[1].c_str(), parts[0].c_str(), parts[2].c_str(), nullptr);
    if (!printer)
        return;
    EnumFontFamiliesW(printer, nullptr, FontFamily, reinterpret_cast<LPARAM>(&e));
    DeleteDC(printer);
}

void EnumScreenFonts(Enumeration &e) {
    HWND window = GetActiveWindow();
    HDC dc = GetDC(window);
    if (!dc)
        return;
    EnumFontFamiliesW(dc, nullptr, FontFamily, reinterpret_cast<LPARAM>(&e));
    ReleaseDC(window, dc);
}

} // namespace

int32_t FontEnum(uint32_t selection, HostArray names, HostArray types) {
    Enumeration e;
    e.names = names;
    e.types = types;
    if (selection & FONT_EnumPrinter)
        EnumPrinterFonts(e);
    if (!e.failed && (selection & FONT_EnumScreen))
        EnumScreenFonts(e);
    if (e.failed)
        return ZEL_NOT_ENOUGH_MEMORY;
    HostArraySetBounds(names, 0, e.count - 1);
    HostArraySetBounds(types, 0, e.count - 1);
    return e.count;
}

} // namespace zk::lbx
