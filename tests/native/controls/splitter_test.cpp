// The splitter's sums: its block, tiling, the children beside the bar, the
// drag's limits and band, and the run-time choice of children.
#include <gtest/gtest.h>

#include <vector>

#include "block_bytes.h"
#include "controls/core/splitter_block.h"
#include "controls/core/splitter_layout.h"
#include "controls/core/splitter_model.h"

namespace {

using zk::Rect;
using namespace zk::ctl;
using Bytes = std::vector<uint8_t>;

TEST(SplitterBlock, BytesAndRoundTrip) {
    SPropSplitter block;
    block.frameColor = 0x00010203;
    block.faceColor = 0xC0C0C0;
    block.lightColor = 0xFFFFFF;
    block.shadowColor = 0x808080;
    block.metricB = -2;
    block.orientation = kHorizontalBar;
    block.displayHandle = 1;
    block.invertWhenDragging = 0;
    const Bytes expected = {1,    0, 0,    0,    3,    2, 1, 0, 0xC0, 0xC0, 0xC0, 0,    0xFF, 0xFF,
                            0xFF, 0, 0x80, 0x80, 0x80, 0, 2, 0, 0,    0,    0xFE, 0xFF, 0xFF, 0xFF,
                            1,    0, 0,    0,    1,    0, 0, 0, 0,    0,    0,    0,    1,    0};
    const Bytes bytes = zkt::StoredBytes(block);
    EXPECT_EQ(bytes, expected);
    SPropSplitter back;
    ASSERT_TRUE(zk::LoadBlockBytes(bytes.data(), bytes.size(), back));
    EXPECT_EQ(zkt::StoredBytes(back), expected);
    EXPECT_EQ(back.metricB, -2);

    SPropSplitter none;
    const Bytes versionZero = {0, 0, 0, 0, 9, 9, 9, 9};
    EXPECT_TRUE(zk::LoadBlockBytes(versionZero.data(), versionZero.size(), none)) << "version 0 reads no more";
    EXPECT_EQ(none.orientation, kVerticalBar);
    EXPECT_EQ(none.metricA, 2);
    EXPECT_EQ(none.invertWhenDragging, 1);
    SPropSplitter cut;
    EXPECT_FALSE(zk::LoadBlockBytes(bytes.data(), 28, cut)) << "a short block keeps what it had read";
    EXPECT_EQ(cut.metricA, 2);
    EXPECT_EQ(cut.metricB, -2);
    EXPECT_EQ(cut.orientation, kVerticalBar);
}

TEST(SplitterSums, TheWorkedExampleAndTiling) {
    const Rect parent{0, 0, 400, 300};
    const Rect bar = TileRect(Rect{100, 40, 103, 90}, parent, true);
    EXPECT_EQ(bar, (Rect{100, 0, 106, 300})) << "a vertical bar keeps its left and is 6 wide";
    const ChildRects v = ChildRectangles(bar.left, parent, bar.Width(), true);
    EXPECT_EQ(v.one, (Rect{0, 0, 100, 300}));
    EXPECT_EQ(v.two, (Rect{106, 0, 400, 300}));
    EXPECT_EQ(TileRect(Rect{10, 120, 50, 140}, parent, false), (Rect{0, 120, 400, 126}));
    const ChildRects h = ChildRectangles(120, parent, 6, false);
    EXPECT_EQ(h.one, (Rect{0, 0, 400, 120}));
    EXPECT_EQ(h.two, (Rect{0, 126, 400, 300}));
    EXPECT_TRUE(ChildRectangles(-1, parent, 6, true).one.Empty()) << "dragged fully left: no width";
}

TEST(SplitterSums, DragLimitsClampAndBand) {
    // The bar of the example, pressed 3 pixels in: the parent runs from
    // -100 to 300 in the bar's own coordinates.
    SplitterDrag d;
    d.Start(3, 0, -100, 300, 6);
    EXPECT_EQ(d.dragOffset, 3);
    EXPECT_EQ(d.dragMin, -98);
    EXPECT_EQ(d.dragMax, 298);
    EXPECT_EQ(d.Clamp(500), 298);
    EXPECT_EQ(d.Clamp(-500), -98);
    EXPECT_EQ(d.Clamp(40), 40);
    d.dragPos = -98;
    EXPECT_EQ(d.NearEdge(), -101) << "one pixel past the parent's edge";

    const Rect barScreen{110, 20, 116, 320}, parentScreen{10, 20, 410, 320};
    EXPECT_EQ(TrackerRect(barScreen, 50, true, false, 17, parentScreen), (Rect{160, 20, 166, 320}));
    EXPECT_EQ(TrackerRect(barScreen, 50, true, true, 17, parentScreen), (Rect{160, 20, 166, 303}))
        << "shortened by the handle at the far end";
    EXPECT_EQ(TrackerRect(barScreen, 298, true, false, 17, parentScreen), (Rect{408, 20, 410, 320}))
        << "cut by the parent";
    EXPECT_EQ(TrackerRect(Rect{10, 100, 410, 106}, -20, false, true, 17, parentScreen), (Rect{10, 80, 393, 86}));
    EXPECT_EQ(HandleRect(Rect{0, 0, 6, 300}, true, 17), (Rect{0, 283, 6, 300}));
    EXPECT_EQ(HandleRect(Rect{0, 0, 400, 6}, false, 17), (Rect{383, 0, 400, 6}));
}

// Siblings by letter: 'S' a splitter or other window passed over, 'P' a
// sided pane, 'h' a hidden window the host moves directly, anything else a
// plain window. The bar's left is 100; a pane's left is its second letter
// ('<' at 50, '>' at 150).
FoundChildren Walk(const std::vector<const char *> &siblings) {
    size_t at = 0;
    return WalkRunTimeChildren(100, [&](Sibling &s) {
        if (at == siblings.size())
            return false;
        const char *code = siblings[at];
        s = Sibling{};
        s.id = ++at;
        s.passedOver = code[0] == 'S';
        s.hostClass = code[0] == 'P' ? (code[2] == 'b' ? kSidedClassB : kSidedClassA) : 0;
        s.left = code[0] == 'P' && code[1] == '<' ? 50 : 150;
        s.hostType = code[0] == 'h' ? kMovedDirectly : 0;
        s.visible = code[0] != 'h';
        return true;
    });
}

TEST(SplitterChildren, TheRunTimeWalk) {
    struct Case {
        std::vector<const char *> siblings;
        uintptr_t one, two;
    };
    const Case cases[] = {
        {{"a", "b", "c"}, 1, 2},
        {{"S", "a", "S", "b"}, 2, 4}, // splitters and handles are passed over
        {{"a"}, 1, 0},
        {{"P>", "a"}, 2, 1},        // a pane right of the bar: child two, and the count restarts
        {{"P>", "a", "b"}, 2, 3},   // so a later plain window takes child two from it
        {{"P>b", "P<", "a"}, 2, 3}, // a pane left of the bar: child one, counting on from it
        {{"P<", "P>", "a"}, 1, 2},
        {{"h", "x", "a"}, 1, 3}, // after a hidden directly moved window, one more is unseen
        {{"a", "h", "x", "b"}, 1, 2},
    };
    for (const Case &c : cases) {
        const FoundChildren found = Walk(c.siblings);
        EXPECT_EQ(found.one, c.one) << c.siblings.size() << " siblings, first " << c.siblings[0];
        EXPECT_EQ(found.two, c.two) << c.siblings.size() << " siblings, first " << c.siblings[0];
    }
}

} // namespace
