// Rows by value: adding, reading, changing and finding.
#include "outline/win/lbx_exports.h"
#include "outline/win/win_rows.h"

using namespace zk::lbx;

extern "C" {

int32_t ZKAPI ZelListAddValue(HWND window, const wchar_t *text, int32_t value) {
    return WithTarget(window, -1, [&](const LbxTarget &t) { return LbxAddValue(t, -2, text, value); });
}

int32_t ZKAPI ZelListInsertValue(HWND window, int32_t row, const wchar_t *text, int32_t value) {
    return WithTarget(window, -1, [&](const LbxTarget &t) { return LbxAddValue(t, row, text, value); });
}

int32_t ZKAPI ZelListGetValue(HWND window, int32_t row) {
    return WithTarget(window, -1, [&](const LbxTarget &t) {
        return static_cast<int32_t>(t.Send(LB_GETITEMDATA, CB_GETITEMDATA, static_cast<WPARAM>(row)));
    });
}

int32_t ZKAPI ZelListSetValue(HWND window, int32_t row, int32_t value) {
    return WithTarget(window, -1, [&](const LbxTarget &t) {
        return static_cast<int32_t>(
            t.Send(LB_SETITEMDATA, CB_SETITEMDATA, static_cast<WPARAM>(row), static_cast<LPARAM>(value)));
    });
}

int32_t ZKAPI ZelListFindValue(HWND window, int32_t start, int32_t value) {
    return WithTarget(window, -1, [&](const LbxTarget &t) { return FindValue(t, start, value); });
}

int32_t ZKAPI ZelListFindString(HWND window, int32_t start, const wchar_t *text) {
    return WithTarget(window, -1, [&](const LbxTarget &t) -> int32_t {
        if (!text) {
            return -1;
        }
        LbxChild child{};
        if (LbxGetChildCopy(t.window, &child)) {
            // The search starts after `start`: nothing lies after the last possible row.
            return start == INT32_MAX ? -1 : LbxFindString(child, t.window, t.combo, start, text);
        }
        const LRESULT found =
            t.Send(LB_FINDSTRINGEXACT, CB_FINDSTRINGEXACT, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(text));
        return found < 0 ? -1 : static_cast<int32_t>(found);
    });
}

} // extern "C"
