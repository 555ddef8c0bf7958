// The bar and its two children: tiling, placing the children in one
// deferred batch (or through the host), setting them, and finding them in
// the designer's outline or among the siblings.
#include "controls/core/splitter_model.h"
#include "controls/win/splitter_window.h"

#include "frame/win/host.h"

namespace zk::ctl {

namespace {

// A host outline is a tree; a damaged one must not keep the walk going.
constexpr int kMostItems = 100000;

bool PassedOverByName(HWND window) {
    wchar_t name[31] = {};
    GetClassNameW(window, name, 31);
    return lstrcmpW(name, L"Brandle:Handle") == 0 || lstrcmpW(name, L"ProfUIS-NCSB_ScrollContainer") == 0;
}

Rect ScreenRect(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    return FromRECT(r);
}

} // namespace

int32_t CSplitter::TileToParent() {
    if (!GetParent(GetSafeHwnd()))
        return 1;
    const Rect bar = BarInParent();
    const Rect tiled = TileRect(bar, ParentClient(), Vertical());
    // After a drop the bar is tiled already; a move to where it is would
    // only cost a round of position messages.
    if (tiled != bar)
        SetWindowPos(GetSafeHwnd(), nullptr, tiled.left, tiled.top, tiled.Width(), tiled.Height(), SWP_NOZORDER);
    return 1;
}

void CSplitter::ResizeObjects() {
    const bool outer = !resizing_;
    resizing_ = true;
    TileToParent();
    const Rect bar = BarInParent();
    const ChildRects places = ChildRectangles(Vertical() ? bar.left : bar.top, ParentClient(),
                                              Vertical() ? bar.Width() : bar.Height(), Vertical());
    HDWP deferral = BeginDeferWindowPos(2);
    PositionChild(&deferral, childOne, places.one);
    PositionChild(&deferral, childTwo, places.two);
    // A failed DeferWindowPos has ended the batch itself.
    if (deferral)
        EndDeferWindowPos(deferral);
    if (outer)
        resizing_ = false;
}

int CSplitter::PositionChild(HDWP *deferral, HWND child, const Rect &place) {
    if (!child)
        return 0;
    if (place.Empty()) {
        HostWinHide(child);
        return 0;
    }
    if (*deferral && HostWinType(child) != kMovedDirectly) {
        *deferral = DeferWindowPos(*deferral, child, nullptr, place.left, place.top, place.Width(), place.Height(),
                                   SWP_NOZORDER);
    } else if (designMode == 1) {
        SetWindowPos(child, nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER);
    } else {
        HostNumber x{}, y{}, width{}, height{};
        HostPixelsToFormUnits(&x, child, place.left, 0);
        HostPixelsToFormUnits(&y, child, place.top, 1);
        HostPixelsToFormUnits(&width, child, place.Width(), 0);
        HostPixelsToFormUnits(&height, child, place.Height(), 1);
        HostWinSetLocation(child, x, y);
        HostWinSetSize(child, width, height);
    }
    if (designMode == 1)
        ShowWindow(child, SW_SHOW);
    else
        HostWinShow(child);
    return 1;
}

HWND CSplitter::SetChildOne(HWND window) { return SetChild(childOne, childTwo, window); }

HWND CSplitter::SetChildTwo(HWND window) { return SetChild(childTwo, childOne, window); }

HWND CSplitter::SetChild(HWND &slot, HWND &other, HWND window) {
    HWND old = slot;
    // A child that has gone keeps its slot; the old handle is given back as it is.
    (void)IsWindow(old);
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    LONG_PTR changed = style & ~static_cast<LONG_PTR>(WS_BORDER);
    switch (HostWinType(window)) {
    case kHostListBox:
        changed |= LBS_NOINTEGRALHEIGHT;
        break;
    case kHostComboBox:
        changed |= CBS_NOINTEGRALHEIGHT;
        break;
    default:
        break;
    }
    if (changed != style)
        SetWindowLongPtrW(window, GWL_STYLE, changed);
    const LONG_PTR exStyle = GetWindowLongPtrW(window, GWL_EXSTYLE);
    if (exStyle & WS_EX_CLIENTEDGE)
        SetWindowLongPtrW(window, GWL_EXSTYLE, exStyle & ~static_cast<LONG_PTR>(WS_EX_CLIENTEDGE));
    if (other == window)
        other = nullptr;
    slot = window;
    return old;
}

void CSplitter::FindChildren() {
    childOne = childTwo = nullptr;
    if (designMode == 1)
        FindDesignChildren();
    else
        FindRunTimeChildren();
    ResizeObjects();
}

void CSplitter::FindDesignChildren() {
    HWND self = GetSafeHwnd();
    const HostOutline outline = HostDesignGetOutline(self);
    const HostItem parent = HostDesignGetParentItem(outline, HostDesignGetItem(self));
    HostItem item = HostDesignFirstChild(outline, parent);
    for (int seen = 0; item && seen < kMostItems; ++seen, item = HostDesignNextSibling(outline, item)) {
        HWND window = HostDesignGetItemWindow(outline, item);
        if (!window || window == self || !IsWindow(window))
            continue;
        if (!childOne) {
            childOne = window;
        } else {
            childTwo = window;
            return;
        }
    }
}

void CSplitter::FindRunTimeChildren() {
    HWND parent = GetParent(GetSafeHwnd());
    if (!parent)
        return;
    // The first splitter among the siblings is the reference for the panes.
    Rect reference;
    for (HWND w = GetTopWindow(parent); w; w = GetWindow(w, GW_HWNDNEXT)) {
        if (IsSplitter(w)) {
            reference = ScreenRect(w);
            break;
        }
    }
    HWND cursor = GetTopWindow(parent);
    const FoundChildren found = WalkRunTimeChildren(reference.left, [&](Sibling &s) {
        if (!cursor)
            return false;
        HWND w = cursor;
        cursor = GetWindow(w, GW_HWNDNEXT);
        s.id = reinterpret_cast<uintptr_t>(w);
        s.passedOver = IsSplitter(w) || PassedOverByName(w);
        if (!s.passedOver) {
            s.hostClass = HostWinClass(w);
            s.hostType = HostWinType(w);
            s.left = ScreenRect(w).left;
            s.visible = (GetWindowLongPtrW(w, GWL_STYLE) & WS_VISIBLE) != 0;
        }
        return true;
    });
    childOne = reinterpret_cast<HWND>(found.one);
    childTwo = reinterpret_cast<HWND>(found.two);
}

} // namespace zk::ctl
