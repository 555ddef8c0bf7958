// Loading nodes without rows: one child, one sibling, or children from host arrays.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

using namespace zk::lbx;

namespace {

template <class Load>
ZelItemHandle LoadExport(HWND window, ZelItemHandle anchor, ZelPicHandle normal, ZelPicHandle selected, Load &&load) {
    return zk::Quietly(
        [&]() -> ZelItemHandle {
            PIC *n = nullptr, *s = nullptr;
            LbxNode *node = NodeOf(anchor);
            if (!node || !PicturesOf(normal, selected, &n, &s)) {
                return 0;
            }
            return LbxHandleOf(load(node, n, s));
        },
        [] { return ZelItemHandle{0}; });
}

} // namespace

extern "C" {

ZelItemHandle ZKAPI ZelListLoadChild(HWND window, ZelItemHandle parent, ZelPicHandle normal, ZelPicHandle selected,
                                     const wchar_t *text, int32_t value, uint32_t flags) {
    return LoadExport(window, parent, normal, selected, [&](LbxNode *node, PIC *n, PIC *s) {
        return LoadChildWindow(window, node, n, s, text, value, flags);
    });
}

ZelItemHandle ZKAPI ZelListLoadSibling(HWND window, ZelItemHandle sibling, ZelPicHandle normal, ZelPicHandle selected,
                                       const wchar_t *text, int32_t value, uint32_t flags) {
    return LoadExport(window, sibling, normal, selected, [&](LbxNode *node, PIC *n, PIC *s) {
        return LoadSiblingWindow(window, node, n, s, text, value, flags);
    });
}

int32_t ZKAPI ZelListLoadChildren(HWND window, ZelItemHandle parent, ZelPicHandle normal, ZelPicHandle selected,
                                  HostArray texts, HostArray values, HostArray flags) {
    return zk::Quietly([&] { return LoadMany(window, parent, normal, selected, texts, values, flags); },
                       [] { return int32_t{ZEL_NOT_ENOUGH_MEMORY}; });
}

} // extern "C"
