// The cells: each in the colours of its role (marked, extra, special or
// plain), its day centred, and the focus mark on the focus cell. The days
// are walked as plain numbers: a paint asks the host for one date only, to
// check that the mark store's keys are the texts built here.
#include <string>

#include "calendar/core/calendar_nav.h"
#include "calendar/win/calendar_paint.h"
#include "frame/win/draw.h"

namespace zk::cal {

namespace {

bool On(int32_t flag) { return flag > 0; }

struct CellColours {
    COLORREF back = 0, text = 0;
    int backRole = -1; // -1: a special cell's own colour, through a brush of its own
};

// Whether a day is marked: by the key built here when it is the host's
// text, otherwise by the host's date.
class MarkLookup {
public:
    MarkLookup(const CalendarModel &model, GridDay first, int32_t firstCell) : model_(model) {
        if (model.Marks().empty())
            return;
        const CDateTime hostDate = model.CellToDate(firstCell);
        fast_ = first.year >= 0 && first.year <= 9999 && hostDate.KeyText() == MidnightKey(first);
    }
    bool Marked(const GridDay &d) const {
        if (model_.Marks().empty())
            return false;
        if (fast_)
            return model_.Marks().count(MidnightKey(d)) != 0;
        return model_.IsMarked(CDateTime(d.year, d.month, d.day)) == 1;
    }

private:
    const CalendarModel &model_;
    bool fast_ = false;
};

CellColours ColoursOf(const RoleTools &kit, const CalendarModel &model, const GridDay &d, int32_t weekday, bool marked,
                      bool extra, const Look &look) {
    const bool showExtra = On(model.Flags().showExtra);
    CellColours c;
    uint32_t ruleText = 0, ruleBack = 0;
    int textRole;
    if (marked && !(extra && !showExtra)) {
        c.backRole = CALR_MarkBack;
        textRole = CALR_MarkText;
    } else if (!marked && extra && showExtra) {
        c.backRole = CALR_ExtraBack;
        textRole = CALR_ExtraText;
    } else if (model.GetDaySpecial(d.year, d.month, d.day, weekday, &ruleText, &ruleBack) == 1) {
        // The rule's colours stand, disabled or not.
        c.back = ruleBack;
        c.text = ruleText;
        return c;
    } else {
        c.backRole = CALR_CellBack;
        textRole = CALR_CellText;
    }
    if (look.disabled)
        textRole = CALR_DisabledText;
    c.back = kit.Colour(c.backRole);
    c.text = kit.Colour(textRole);
    return c;
}

void FocusMark(HDC dc, const RoleTools &kit, const CalendarModel &model, RECT r) {
    if (On(model.Flags().etchedLook)) {
        DrawBevel(dc, r, kit.Pen(CALR_ButtonShadow), kit.Pen(CALR_ButtonLight), kit.Pen(CALR_Frame),
                  kit.Pen(CALR_CellBack));
        return;
    }
    if (On(model.Flags().showGridlines))
        InflateRect(&r, -1, -1);
    // The dotted frame inverts: the colours of the context do not matter.
    SetTextColor(dc, RGB(0, 0, 0));
    SetBkColor(dc, RGB(255, 255, 255));
    DrawFocusRect(dc, &r);
}

std::u16string DayText(int32_t day) {
    const std::string digits = std::to_string(day);
    return std::u16string(digits.begin(), digits.end());
}

} // namespace

void PaintCells(HDC dc, const RoleTools &kit, const MonthLayout &layout, const CalendarModel &model, const Look &look,
                CellSpan span) {
    if (span.Empty() || model.DisplayMonth() == 0)
        return;
    const bool showExtra = On(model.Flags().showExtra);
    GridDay day = DayOfCell(model, span.first);
    const MarkLookup marks(model, day, span.first);
    for (int32_t cell = span.first; cell <= span.last; ++cell, day = NextGridDay(day)) {
        const bool extra = model.IsExtraCell(cell, -1, -1) == 1;
        const RECT r = ToRECT(layout.CellRect(cell));
        const CellColours colours =
            ColoursOf(kit, model, day, model.ColumnWeekday(cell % 7), marks.Marked(day), extra, look);
        if (colours.backRole >= 0) {
            FillRect(dc, &r, kit.Brush(colours.backRole));
        } else if (const Brush own = SolidBrush(colours.back)) {
            FillRect(dc, &r, own);
        }
        // "%i" of the day; an extra cell has no text unless extra cells show.
        if (!extra || showExtra)
            CentredText(dc, DayText(day.day), r, colours.text, colours.back);
        if (cell == model.FocusCell() && look.focusMark)
            FocusMark(dc, kit, model, r);
    }
}

} // namespace zk::cal
