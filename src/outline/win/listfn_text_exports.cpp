// Reading and changing the text of a row, of any length.
#include "outline/win/lbx_exports.h"

using namespace zk::lbx;

extern "C" {

HostStr ZKAPI ZelListGetText(HWND window, int32_t row) {
    return zk::StringResult([&] { return GetText(window, row); });
}

int32_t ZKAPI ZelListSetText(HWND window, int32_t row, const wchar_t *text) {
    return WithTarget(window, -1, [&](const LbxTarget &t) {
        const wchar_t *readable = text ? text : L"";
        LbxChild child{};
        if (LbxGetChildCopy(window, &child)) {
            return SetAdoptedText(child, t, row, LbxU16(readable));
        }
        return SetPlainText(t, row, readable);
    });
}

} // extern "C"
