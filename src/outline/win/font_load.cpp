// Fonts by face, points and style bits, and back.
#include <cwchar>

#include "frame/win/guard.h"
#include "outline/win/pic.h"

namespace zk::lbx {

namespace {

// A DC of the active window (the screen's when there is none).
class ActiveDC {
public:
    ActiveDC() : window_(GetActiveWindow()), dc_(GetDC(window_)) {}
    ~ActiveDC() {
        if (dc_)
            ReleaseDC(window_, dc_);
    }
    ActiveDC(const ActiveDC &) = delete;
    ActiveDC &operator=(const ActiveDC &) = delete;
    HDC get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

constexpr size_t kFaceLimit = 32; // LF_FACESIZE, terminator included

} // namespace

HFONT FontLoad(const wchar_t *face, int32_t points, uint32_t style) noexcept {
    if (!face || wcsnlen(face, kFaceLimit) >= kFaceLimit)
        return nullptr;
    LOGFONTW font{};
    {
        ActiveDC dc;
        if (!dc.get())
            return nullptr;
        font.lfHeight = -MulDiv(points, GetDeviceCaps(dc.get(), LOGPIXELSY), 72);
    }
    // Chinese, Japanese and Korean systems take the default character set.
    const WORD language = PRIMARYLANGID(GetSystemDefaultLangID());
    font.lfCharSet = (language == 4 || language == 17 || language == 18) ? DEFAULT_CHARSET : ANSI_CHARSET;
    font.lfWeight = (style & FONT_Bold) ? FW_BOLD : FW_NORMAL;
    font.lfItalic = (style & FONT_Italic) ? 1 : 0;
    font.lfUnderline = (style & FONT_Underline) ? 1 : 0;
    font.lfStrikeOut = (style & FONT_StrikeOut) ? 1 : 0;
    wcsncpy(font.lfFaceName, face, kFaceLimit - 1);
    return CreateFontIndirectW(&font);
}

bool FontDescribe(HFONT font, FontFacts &facts) noexcept {
    LOGFONTW logical{};
    if (!font || GetObjectW(font, sizeof(logical), &logical) != sizeof(logical))
        return false;
    ActiveDC dc;
    if (!dc.get())
        return false;
    HGDIOBJ old = SelectObject(dc.get(), font);
    TEXTMETRICW metrics{};
    const bool measured = old && GetTextMetricsW(dc.get(), &metrics);
    if (old)
        SelectObject(dc.get(), old);
    if (!measured)
        return false;
    try {
        facts.face.assign(logical.lfFaceName, wcsnlen(logical.lfFaceName, LF_FACESIZE));
    } catch (...) {
        return false;
    }
    facts.points = MulDiv(metrics.tmHeight - metrics.tmInternalLeading, 72, GetDeviceCaps(dc.get(), LOGPIXELSY));
    facts.style =
        static_cast<uint16_t>((logical.lfWeight >= FW_BOLD ? FONT_Bold : 0) | (logical.lfItalic ? FONT_Italic : 0) |
                              (logical.lfUnderline ? FONT_Underline : 0) | (logical.lfStrikeOut ? FONT_StrikeOut : 0));
    return true;
}

} // namespace zk::lbx
