// CSplitter: a thin bar between two sibling windows of a form. The user
// drags it; while dragging a gray band is inverted straight onto the
// screen, the neighbours staying as they are; on release the bar moves and
// the two children are resized to fill the parent's client area on either
// side of it, in one deferred batch (or through the host for the windows it
// moves itself). CDlgSplitter is the form's wrapper that the host creates
// through "ZK:cSplitter:10"; it loads its block when it is created.
//
// The pointer that ZKM_ControlCreate announces is the window object; the
// ZelSplit exports work on it directly.
#pragma once

#include <windows.h>

#include <cstdint>

#include "controls/core/splitter_block.h"
#include "controls/core/splitter_layout.h"
#include "frame/win/control_window.h"
#include "frame/win/gdi.h"

namespace zk::ctl {

inline constexpr const wchar_t *kSplitterClass = L"ZK:Splitter:10";
inline constexpr const wchar_t *kDlgSplitterClass = L"ZK:cSplitter:10";
// Set on the parent when a splitter is made; read by the host only.
inline constexpr const wchar_t *kSkipAccFrameProperty = L"TRSKIPACCTFRAME";

class CSplitter : public ControlWindow {
public:
    CSplitter();

    // A splitter of the inner class "ZK:Splitter:10", registered with the
    // first one made. Without the run-time bit in param it is in design mode.
    bool Create(DWORD style, const RECT &rect, HWND parent, UINT id, void *param = nullptr);

    // Whether a window is a splitter of this library (of either class).
    static bool IsSplitter(HWND window);

    const SPropSplitter &Props() const { return props; }
    int32_t GetOrientation() const { return props.orientation; }
    HWND ChildOne() const { return childOne; }
    HWND ChildTwo() const { return childTwo; }
    bool DesignMode() const { return designMode == 1; }
    uint16_t State() const { return state; }
    int32_t HandleSize() const { return handleSize; }

    // The bar spans its parent across its axis and is kBarThickness thick. 1.
    int32_t TileToParent();
    // While dragging, moves the bar to the drag position; otherwise where
    // it is. The position on the axis in parent coordinates.
    int32_t MoveToDragPos();
    // Tiles the bar and places both children beside it.
    void ResizeObjects();
    // The children as the application sets them: the child held before.
    // The new one loses its border and client edge; a window that was the
    // other child leaves that slot.
    HWND SetChildOne(HWND window);
    HWND SetChildTwo(HWND window);
    // ZKM_Refresh: the children found anew, from the designer's outline in
    // design mode and from the siblings at run time, then placed.
    void FindChildren();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint(HDC dc, const Rect &clip) override;

    SPropSplitter props;

private:
    // The cursors and the band's pattern brush, loaded once per process by
    // the first splitter made.
    static void LoadArt();

    LRESULT OnCreate();
    LRESULT OnSetCursor();
    void OnLButtonDown(Point at);
    void OnMouseMove(Point at);
    void OnLButtonUp(Point at);
    LRESULT OnCancelMode();
    // The band off the screen, idle, the capture let go.
    void EndDrag();

    bool Vertical() const { return props.orientation == kVerticalBar; }
    int32_t Axis(Point p) const { return Vertical() ? p.x : p.y; }
    Rect BarInParent() const;
    Rect ParentClient() const;

    // The band on the screen: made and inverted, moved by inverting only
    // what changed, inverted away and deleted.
    Rect TrackerNow() const;
    void StartTracker();
    void MoveTracker();
    void StopTracker();

    HWND SetChild(HWND &slot, HWND &other, HWND window);
    int PositionChild(HDWP *deferral, HWND child, const Rect &place);
    void FindDesignChildren();
    void FindRunTimeChildren();

    HWND childOne = nullptr; // left or upper child
    HWND childTwo = nullptr; // right or lower child
    int32_t designMode = 0;  // 1 when created without the run-time bit
    Region tracker;          // the band on the screen while dragging
    SplitterDrag drag;
    int32_t handleSize = 0;
    uint16_t state = 0; // kSplitterHidden, kSplitterDragging
    bool resizing_ = false;
};

class CDlgSplitter : public CSplitter {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace zk::ctl
