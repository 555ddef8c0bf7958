// Loading, freeing and describing fonts.
#include "frame/win/guard.h"
#include "outline/win/pic.h"

using namespace zk::lbx;

extern "C" {

HFONT ZKAPI ZelFontLoad(const wchar_t *face, int32_t points, uint32_t style) { return FontLoad(face, points, style); }

int32_t ZKAPI ZelFontFree(HFONT font) {
    if (font)
        DeleteObject(font);
    return 1;
}

int32_t ZKAPI ZelFontGet(HFONT font, HostStr *face, int32_t *points, uint16_t *style) {
    return zk::Quietly(
        [&]() -> int32_t {
            FontFacts facts;
            if (!face || !points || !style || !FontDescribe(font, facts))
                return 0;
            zk::StrAllocRetry(face, static_cast<int32_t>(2 * facts.face.size() + 2));
            zk::StrWrite(*face, facts.face.data(), facts.face.size());
            *points = facts.points;
            *style = facts.style;
            return 1;
        },
        [] { return 0; });
}

} // extern "C"
