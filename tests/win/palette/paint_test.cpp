// The paint, read back from a memory context: a cell's colour inside its
// two bevel passes, the focus frame in roles 10 and 9, the disabled look,
// the colours the notify window hands out, and what a focus move marks
// for painting.
#include "palette_support.h"

namespace {

using paltest::FormPalette;

constexpr COLORREF kOuterTopLeft = RGB(1, 100, 1), kOuterBottomRight = RGB(2, 101, 2);
constexpr COLORREF kInnerTopLeft = RGB(3, 102, 3), kInnerBottomRight = RGB(4, 103, 4);
constexpr COLORREF kFocusOuter = RGB(200, 0, 200), kFocusInner = RGB(0, 200, 200);
constexpr COLORREF kGrid = RGB(250, 240, 200), kCell = RGB(17, 34, 51), kDisabled = RGB(255, 0, 0);

// A form palette with every edge in a colour of its own and cell 3 in kCell.
struct Painted : FormPalette {
    Painted() {
        const struct {
            int role;
            COLORREF colour;
        } roles[] = {{PALR_OuterTopLeft, kOuterTopLeft},
                     {PALR_OuterBottomRight, kOuterBottomRight},
                     {PALR_InnerTopLeft, kInnerTopLeft},
                     {PALR_InnerBottomRight, kInnerBottomRight},
                     {PALR_FocusOuter, kFocusOuter},
                     {PALR_FocusInner, kFocusInner},
                     {PALR_GridBack, kGrid},
                     {PALR_DisabledText, kDisabled}};
        for (const auto &r : roles)
            ZelPalColorSet(control(), r.role, r.colour);
        ZelPalColorMainSet(control(), 3, kCell);
    }
    int Inside(const zkt::Bitmap &b, const zk::Rect &c, COLORREF colour) const {
        return b.count(colour, RECT{c.left + 2, c.top + 2, c.right - 1, c.bottom - 1});
    }
    static int Area(const zk::Rect &c) { return (c.right - 1 - c.left - 2) * (c.bottom - 1 - c.top - 2); }
};

TEST(PalettePaint, ACellIsItsColourInsideTwoBevelPasses) {
    Painted p;
    const zk::Rect c = p.Cell(0, 3);
    const zkt::Bitmap b = p.Paint();
    const struct {
        int x, y;
        COLORREF colour;
        const char *where;
    } pixels[] = {
        {c.left, c.top, kOuterTopLeft, "outer top-left corner"},
        {c.right, c.top, kOuterTopLeft, "the top edge reaches the right coordinate"},
        {c.left, c.bottom - 1, kOuterTopLeft, "left edge"},
        {c.left, c.bottom, kOuterBottomRight, "the bottom edge starts at the left"},
        {c.right, c.bottom, kOuterBottomRight, "outer bottom-right corner"},
        {c.right, c.top + 1, kOuterBottomRight, "right edge"},
        {c.left + 1, c.top + 1, kInnerTopLeft, "inner pass"},
        {c.right - 1, c.top + 1, kInnerTopLeft, "inner top edge"},
        {c.left + 1, c.bottom - 1, kInnerBottomRight, "inner bottom edge"},
        {c.right - 1, c.bottom - 1, kInnerBottomRight, "inner bottom-right corner"},
        {c.right + 1, c.top + 3, kGrid, "the gap to the next cell"},
    };
    for (const auto &px : pixels)
        EXPECT_EQ(b.pixel(px.x, px.y), px.colour) << px.where << " at " << px.x << "," << px.y;
    EXPECT_EQ(p.Inside(b, c, kCell), Painted::Area(c));
}

TEST(PalettePaint, TheFocusFrameIsTwoLinesOfRoleTenAndOneOfRoleNine) {
    Painted p;
    ZelPalFocusSet(p.control(), PALZ_Main, 3);
    const zk::Rect c = p.Cell(0, 3);
    EXPECT_EQ(p.Paint().pixel(c.left, c.top), kOuterTopLeft) << "without the focus no frame";
    ZelPalStyleSet(p.control(), PALS_KeepSelection, 1);
    const zkt::Bitmap kept = p.Paint();
    EXPECT_EQ(kept.pixel(c.left - 1, c.top - 1), kFocusOuter);
    EXPECT_EQ(kept.pixel(c.right + 1, c.bottom + 1), kFocusOuter);
    EXPECT_EQ(kept.pixel(c.left, c.bottom), kFocusOuter) << "over the outer bevel";
    EXPECT_EQ(kept.pixel(c.right - 1, c.top + 1), kFocusInner) << "over the inner bevel";
    EXPECT_EQ(p.Inside(kept, c, kCell), Painted::Area(c)) << "no focus rectangle without the focus";
    SetFocus(p.hwnd());
    const zkt::Bitmap focused = p.Paint();
    EXPECT_EQ(focused.pixel(c.left - 1, c.top - 1), kFocusOuter);
    EXPECT_LT(p.Inside(focused, c, kCell), Painted::Area(c)) << "the dotted focus rectangle inside";
    EnableWindow(p.hwnd(), FALSE);
    const zkt::Bitmap disabled = p.Paint();
    EXPECT_EQ(disabled.pixel(c.left, c.top), kOuterTopLeft) << "disabled: no focus frame";
    const zk::Rect line = p.Cell(1, 0);
    EXPECT_GT(disabled.count(kDisabled, paltest::Win(line)), 0) << "the menu text in role 7";
}

TEST(PalettePaint, RolesOneAndEightFollowTheNotifyWindowAtEveryPaint) {
    Painted p;
    p.listBrush = CreateSolidBrush(RGB(200, 220, 240));
    p.listText = RGB(10, 20, 30);
    ZelPalColorSet(p.control(), PALR_Background, RGB(9, 9, 9));
    ZelPalColorSet(p.control(), PALR_GridBack, RGB(200, 220, 240)); // back to following: explicit, same colour
    const zkt::Bitmap b = p.Paint();
    EXPECT_EQ(ZelPalColorGet(p.control(), PALR_Background), static_cast<int32_t>(RGB(200, 220, 240)))
        << "an explicit colour lasts until the next paint";
    EXPECT_EQ(ZelPalColorGet(p.control(), PALR_Text), static_cast<int32_t>(RGB(10, 20, 30)));
    EXPECT_EQ(ZelPalColorGet(p.control(), PALR_MenuBack), static_cast<int32_t>(RGB(200, 220, 240)))
        << "role 2 follows role 1";
    const zk::Rect frame = p.layout().Frame();
    EXPECT_EQ(b.pixel(frame.left + 1, frame.bottom + 3), RGB(200, 220, 240)) << "the control's ground";
    const zk::Rect line = p.Cell(1, 0);
    EXPECT_GT(b.count(RGB(10, 20, 30), paltest::Win(line)), 0) << "the menu text in the list's text colour";
    EXPECT_EQ(b.pixel(line.right - 4, (line.top + line.bottom) / 2), RGB(200, 220, 240)) << "on role 2";
}

TEST(PalettePaint, MovingTheFocusMarksOnlyTheTwoCellsForPainting) {
    FormPalette p;
    zkt::PumpMessages();
    ValidateRect(p.hwnd(), nullptr);
    auto &model = p.object().Model();
    const zk::Rect before = model.FocusArea(0, 0), after = model.FocusArea(0, 4);
    model.SetFocusCell(4, 0, 0);
    HRGN marked = CreateRectRgn(0, 0, 0, 0);
    GetUpdateRgn(p.hwnd(), marked, FALSE);
    HRGN expected = CreateRectRgn(before.left, before.top, before.right, before.bottom);
    HRGN second = CreateRectRgn(after.left, after.top, after.right, after.bottom);
    CombineRgn(expected, expected, second, RGN_OR);
    EXPECT_TRUE(EqualRgn(marked, expected));
    EXPECT_EQ(before,
              (zk::Rect{p.Cell(0, 0).left - 1, p.Cell(0, 0).top - 1, p.Cell(0, 0).right + 2, p.Cell(0, 0).bottom + 2}));
    for (HRGN r : {marked, expected, second})
        DeleteObject(r);
}

} // namespace
