// The drag: the cursor over the bar, the limits taken at the press, the
// band inverted on the screen while the pointer moves, the drop that moves
// the bar and its children, and the cancel.
#include "controls/win/splitter_window.h"

#include "frame/win/host.h"

namespace zk::ctl {

namespace {

struct SplitterArt {
    bool loaded = false;
    HCURSOR vertical = nullptr;   // "IDC_VSplit", over a vertical bar
    HCURSOR horizontal = nullptr; // "IDC_HSplit", over a horizontal bar
    HBRUSH pattern = nullptr;     // of "IDB_PatternGray"
};

SplitterArt art;

// Inverts a region of the screen with the gray pattern: twice gives the
// screen back as it was.
void XorRegion(HRGN region) {
    HDC screen = GetDC(nullptr);
    if (!screen)
        return;
    SelectClipRgn(screen, region);
    RECT box{};
    GetClipBox(screen, &box);
    const HGDIOBJ previous = SelectObject(screen, art.pattern ? art.pattern : GetStockObject(WHITE_BRUSH));
    PatBlt(screen, box.left, box.top, box.right - box.left, box.bottom - box.top, PATINVERT);
    SelectObject(screen, previous);
    SelectClipRgn(screen, nullptr);
    ReleaseDC(nullptr, screen);
}

} // namespace

void CSplitter::LoadArt() {
    if (art.loaded)
        return;
    art.loaded = true;
    art.vertical = LoadCursorW(ModuleInstance, L"IDC_VSplit");
    art.horizontal = LoadCursorW(ModuleInstance, L"IDC_HSplit");
    if (HBITMAP gray = LoadBitmapW(ModuleInstance, L"IDB_PatternGray")) {
        art.pattern = CreatePatternBrush(gray); // the brush keeps its own copy
        DeleteObject(gray);
    }
}

LRESULT CSplitter::OnSetCursor() {
    if (const LRESULT answer = Default())
        return answer;
    switch (props.orientation) {
    case kHorizontalBar:
        SetCursor(art.horizontal);
        return 1;
    case kVerticalBar:
        SetCursor(art.vertical);
        return 1;
    default:
        return 0;
    }
}

void CSplitter::OnLButtonDown(Point at) {
    // A press that no release ended leaves no band behind.
    StopTracker();
    RECT bar{};
    GetWindowRect(GetSafeHwnd(), &bar);
    MapWindowPoints(nullptr, GetSafeHwnd(), reinterpret_cast<POINT *>(&bar), 2);
    RECT parent{};
    GetClientRect(GetParent(GetSafeHwnd()), &parent);
    MapWindowPoints(GetParent(GetSafeHwnd()), GetSafeHwnd(), reinterpret_cast<POINT *>(&parent), 2);
    if (Vertical())
        drag.Start(at.x, bar.left, parent.left, parent.right, bar.right - bar.left);
    else
        drag.Start(at.y, bar.top, parent.top, parent.bottom, bar.bottom - bar.top);
    state |= kSplitterDragging;
    TakeCapture();
    StartTracker();
}

void CSplitter::OnMouseMove(Point at) {
    drag.dragPos = drag.Clamp(Axis(at));
    MoveTracker();
}

void CSplitter::OnLButtonUp(Point at) {
    drag.dragPos = drag.Clamp(Axis(at));
    DropCapture();
    StopTracker();
    if (drag.dragPos != drag.dragStart) {
        ShowWindow(GetSafeHwnd(), SW_HIDE);
        MoveToDragPos();
        ResizeObjects();
        ShowWindow(GetSafeHwnd(), SW_SHOW);
    }
    state &= static_cast<uint16_t>(~kSplitterDragging);
}

LRESULT CSplitter::OnCancelMode() {
    const LRESULT result = Default();
    if (state & kSplitterDragging)
        EndDrag();
    return result;
}

void CSplitter::EndDrag() {
    StopTracker();
    state &= static_cast<uint16_t>(~kSplitterDragging);
    DropCapture();
}

int32_t CSplitter::MoveToDragPos() {
    const Rect bar = BarInParent();
    int32_t position = Vertical() ? bar.left : bar.top;
    if (state & kSplitterDragging) {
        POINT at = Vertical() ? POINT{drag.NearEdge(), 0} : POINT{0, drag.NearEdge()};
        MapWindowPoints(GetSafeHwnd(), GetParent(GetSafeHwnd()), &at, 1);
        position = Vertical() ? at.x : at.y;
    }
    SetWindowPos(GetSafeHwnd(), nullptr, Vertical() ? position : bar.left, Vertical() ? bar.top : position, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER);
    return position;
}

// ---- the band ------------------------------------------------------------------

Rect CSplitter::TrackerNow() const {
    RECT bar{}, parent{};
    GetWindowRect(GetSafeHwnd(), &bar);
    HWND parentWindow = GetParent(GetSafeHwnd());
    GetClientRect(parentWindow, &parent);
    MapWindowPoints(parentWindow, nullptr, reinterpret_cast<POINT *>(&parent), 2);
    const bool shortened = props.displayHandle == 1 && props.invertWhenDragging != 1;
    return TrackerRect(FromRECT(bar), drag.dragPos - drag.dragStart, Vertical(), shortened, handleSize,
                       FromRECT(parent));
}

void CSplitter::StartTracker() {
    const RECT band = ToRECT(TrackerNow());
    tracker.Reset(CreateRectRgnIndirect(&band));
    if (tracker)
        XorRegion(tracker);
}

void CSplitter::MoveTracker() {
    if (!tracker)
        return;
    Region old(CreateRectRgn(0, 0, 0, 0));
    const RECT band = ToRECT(TrackerNow());
    Region now(CreateRectRgnIndirect(&band));
    Region change(CreateRectRgn(0, 0, 0, 0));
    if (!old || !now || !change || CombineRgn(old, tracker, nullptr, RGN_COPY) == ERROR)
        return;
    tracker = std::move(now);
    // Only the strips that left the band and that entered it.
    if (CombineRgn(change, old, tracker, RGN_XOR) > NULLREGION)
        XorRegion(change);
}

void CSplitter::StopTracker() {
    if (tracker)
        XorRegion(tracker);
    tracker.Reset();
}

} // namespace zk::ctl
