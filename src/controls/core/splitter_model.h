// How a splitter at run time picks its two children from its siblings: a
// walk in Z order that passes over other splitters and the host's own
// handle and scroll-container windows, places the host's container panes
// by the side of the bar they lie on and takes the others in order.
#pragma once

#include <cstdint>

namespace zk::ctl {

// Host types and classes the walk and the placing of children know.
inline constexpr uint32_t kMovedDirectly = 0x8000000; // never placed through a deferred batch
inline constexpr uint32_t kHostListBox = 0x2000;
inline constexpr uint32_t kHostComboBox = 0x4000;
inline constexpr uint32_t kSidedClassA = 629; // placed by the side of the bar they lie on
inline constexpr uint32_t kSidedClassB = 0x40000;

// What the walk needs to know of one sibling.
struct Sibling {
    uintptr_t id = 0;        // the window, as the platform names it
    bool passedOver = false; // a splitter, "Brandle:Handle" or "ProfUIS-NCSB_ScrollContainer"
    uint32_t hostClass = 0;  // HostWinClass
    uint32_t hostType = 0;   // HostWinType
    int32_t left = 0;        // left edge, in the same coordinates as the bar's
    bool visible = true;     // WS_VISIBLE
};

struct FoundChildren {
    uintptr_t one = 0, two = 0;
};

// Walks the siblings that next(sibling) gives (false at the end) until two
// are counted; barLeft is the left edge of the first splitter among them.
// A sided pane at or right of the bar becomes child two and, when nothing
// was counted yet, sets the count back so that the next sibling is child
// one again; left of it, it becomes child one and the count restarts.
// Other siblings take the first free place in order. After a hidden window
// of the directly moved type the next sibling is passed over unseen.
template <class Next>
FoundChildren WalkRunTimeChildren(int32_t barLeft, Next &&next) {
    FoundChildren found;
    Sibling s;
    for (int n = 0; n < 2 && next(s);) {
        if (s.passedOver)
            continue;
        if (s.hostClass == kSidedClassA || s.hostClass == kSidedClassB) {
            if (s.left >= barLeft) {
                found.two = s.id;
                if (n == 0)
                    n = -1;
            } else {
                n = 0;
                found.one = s.id;
            }
        } else if (n == 0) {
            found.one = s.id;
        } else if (n == 1) {
            found.two = s.id;
        }
        if (s.hostType == kMovedDirectly && !s.visible) {
            Sibling unseen;
            next(unseen);
        }
        ++n;
    }
    return found;
}

} // namespace zk::ctl
