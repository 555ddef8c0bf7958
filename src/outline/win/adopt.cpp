// ZelListSetStyle: a host list box or combo box becomes an adopted list.
// The parent is subclassed once for the owner-draw messages, the control
// once for the list messages; later calls only add style bits.
#include "frame/win/guard.h"
#include "frame/win/propcache.h"
#include "outline/win/lbx_adopted.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/lbx_procs.h"

namespace zk::lbx {

namespace {

// The parent record and its subclass, once per parent. False only when a
// new record could not be made or stored; nothing of this call is left then.
bool AdoptParent(HWND parent) {
    if (LbxParentHandle(parent)) {
        return true;
    }
    HLOCAL record = zk::LocalBlockNew(sizeof(LbxParent));
    if (!record) {
        return false;
    }
    if (!zk::PropSet(parent, kLbxParentProp, record)) {
        LocalFree(record);
        return false;
    }
    const WNDPROC former = SitOn<AdoptedParent>(parent);
    if (!former) {
        zk::PropRemove(parent, kLbxParentProp);
        LocalFree(record);
        return false;
    }
    zk::LocalWith<LbxParent>(record, [&](LbxParent &p) { p.parentProc = reinterpret_cast<std::uintptr_t>(former); });
    return true;
}

// The control record and its subclass, once per control.
bool AdoptControl(HWND window, LbxKind kind) {
    if (ChildHandle(window)) {
        return true;
    }
    HLOCAL record = zk::LocalBlockNew(sizeof(LbxChild));
    if (!record) {
        return false;
    }
    zk::LocalWith<LbxChild>(record, [&](LbxChild &c) { c.indent = 5; });
    if (!zk::PropSet(window, kLbxChildProp, record)) {
        LocalFree(record);
        return false;
    }
    // The host's own window objects of the list classes (CMtkListBox,
    // CMtkComboBox) exist only inside a framework host; this runtime keeps
    // none, so there is nothing to detach before subclassing.
    const WNDPROC former = SitOn<AdoptedControl>(window, kind);
    if (!former) {
        zk::PropRemove(window, kLbxChildProp);
        LocalFree(record);
        return false;
    }
    zk::LocalWith<LbxChild>(record, [&](LbxChild &c) { c.childProc = reinterpret_cast<std::uintptr_t>(former); });
    return true;
}

LONG ListWindowStyle(LONG ws, uint32_t style) {
    if (style & LBX_StyleMultiSelect) {
        ws |= LBS_MULTIPLESEL;
    } else if (style & LBX_StyleExtendedSelect) {
        ws |= LBS_EXTENDEDSEL;
    }
    if (style & LBX_StyleExactHeight) {
        ws |= LBS_NOINTEGRALHEIGHT;
    }
    if (style & LBX_StyleKeepScrollBar) {
        ws |= LBS_DISABLENOSCROLL;
    }
    if (style & LBX_StyleAdoptMask) {
        ws = (ws & ~LBS_HASSTRINGS) | LBS_OWNERDRAWVARIABLE;
    }
    if (style & (LBX_StyleAutoExtent | LBX_StyleWideExtent)) {
        ws |= WS_HSCROLL;
    }
    return ws;
}

LONG ComboWindowStyle(LONG ws, uint32_t style) {
    if (style & LBX_StyleExactHeight) {
        ws |= CBS_NOINTEGRALHEIGHT;
    }
    if (style & LBX_StyleKeepScrollBar) {
        ws |= CBS_DISABLENOSCROLL;
    }
    if (style & LBX_StyleAdoptMask) {
        ws = (ws & ~CBS_HASSTRINGS) | CBS_OWNERDRAWVARIABLE;
    }
    return ws;
}

} // namespace

int32_t SetStyle(HWND window, uint32_t style, CREATESTRUCTW *create) {
    HWND parent = IsWindow(window) ? GetParent(window) : nullptr;
    if (!parent) {
        return 0;
    }
    const LbxKind kind = ControlKind(window);
    if (kind == LbxKind::None) {
        return 0;
    }
    if (style & LBX_StyleAdoptMask) {
        const bool parentWasPlain = LbxParentHandle(parent) == nullptr;
        if (!AdoptParent(parent)) {
            return 0;
        }
        if (!AdoptControl(window, kind)) {
            if (parentWasPlain) {
                // Undo this call's parent record; the parent saw no message meanwhile.
                HLOCAL record = LbxParentHandle(parent);
                StandDown<AdoptedParent>(parent);
                zk::PropRemove(parent, kLbxParentProp);
                LocalFree(record);
            }
            return 0;
        }
        style |= LBX_StyleOwnerDraw;
        if (GetWindowLongW(window, GWL_STYLE) & WS_HSCROLL) {
            style |= LBX_StyleAutoExtent;
        }
        if (style & LBX_StyleOutline) {
            style |= LBX_StyleTextSelect;
        }
        ChildEdit(window, [&](LbxChild &c) {
            if (style & LBX_StyleOutline) {
                c.indent = 8;
            }
            c.style |= style;
        });
    }
    if (kind == LbxKind::List) {
        SetWindowLongW(window, GWL_STYLE, ListWindowStyle(GetWindowLongW(window, GWL_STYLE), style));
        return 1;
    }
    if (style & (LBX_StyleExtendedUI | LBX_StyleOwnerDraw)) {
        PostMessageW(window, CB_SETEXTENDEDUI, 1, 0);
    }
    if (create) {
        create->style = ComboWindowStyle(create->style, style);
        SetWindowLongW(window, GWL_STYLE, create->style);
    }
    return 1;
}

} // namespace zk::lbx
