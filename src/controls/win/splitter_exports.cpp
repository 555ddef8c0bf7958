// The ZelSplit exports, on the pointer that ZKM_ControlCreate announced.
// They report only by their failure value: a null pointer shows string 48,
// and nothing is traced.
#include "controls/win/splitter_window.h"
#include "frame/core/errors.h"
#include "frame/win/guard.h"

using zk::ctl::CSplitter;

namespace {

template <class R, class Body>
R SplitterCall(const wchar_t *functionName, ZelSplitControl control, R failure, Body &&body) noexcept {
    return zk::Quietly(zk::NullChecked<R>(functionName, reinterpret_cast<CSplitter *>(control), body),
                       [failure] { return failure; });
}

} // namespace

extern "C" {

int32_t ZKAPI ZelSplitGetOrientation(ZelSplitControl control) {
    return SplitterCall(L"ZelSplitGetOrientation()", control, -1,
                        [](CSplitter &s) { return static_cast<int32_t>(s.GetOrientation()); });
}

int32_t ZKAPI ZelSplitMoveToDragPos(ZelSplitControl control) {
    return SplitterCall(L"ZelSplitMoveToDragPos()", control, -1, [](CSplitter &s) { return s.MoveToDragPos(); });
}

void ZKAPI ZelSplitResizeObjects(ZelSplitControl control) {
    SplitterCall(L"ZelSplitResizeObjects()", control, 0, [](CSplitter &s) {
        s.ResizeObjects();
        return 0;
    });
}

HWND ZKAPI ZelSplitSetChild(ZelSplitControl control, int32_t which, HWND window) {
    return SplitterCall(L"ZelSplitSetChild()", control, static_cast<HWND>(nullptr), [&](CSplitter &s) {
        if (!window)
            throw zk::UserException();
        HWND old = which == 1 ? s.SetChildOne(window) : s.SetChildTwo(window);
        s.ResizeObjects();
        if (!s.DesignMode()) {
            // The host's frame keeps its active look.
            HWND root = GetAncestor(window, GA_ROOT);
            if (root && HostFrameKind(root) == HOST_FRAME_Frame)
                SendMessageW(root, WM_NCACTIVATE, 1, 0);
        }
        return old;
    });
}

int32_t ZKAPI ZelSplitTileToParent(ZelSplitControl control) {
    return SplitterCall(L"ZelSplitTileToParent()", control, 0, [](CSplitter &s) { return s.TileToParent(); });
}

} // extern "C"
