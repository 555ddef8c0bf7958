// The pieces of the calendar's off-screen paint. Every piece draws into a
// memory context with the pens and brushes of the sixteen colour roles,
// made once per paint.
#pragma once

#include <windows.h>

#include <string>

#include "calendar/core/calendar_layout.h"
#include "calendar/core/calendar_model.h"

namespace zk::calpaint {

// A solid one-pixel pen and a solid brush per role, all deleted with the
// kit. Each is made when a piece first asks for it: most roles of a paint
// only colour text.
class Kit {
public:
    explicit Kit(const cal::CCalendar &model);
    ~Kit();
    Kit(const Kit &) = delete;
    Kit &operator=(const Kit &) = delete;

    COLORREF Colour(int role) const { return colours_[role]; }
    // Null only when the platform has no pen or brush to give.
    HPEN Pen(int role) const;
    HBRUSH Brush(int role) const;

private:
    COLORREF colours_[cal::kRoleCount] = {};
    mutable HPEN pens_[cal::kRoleCount] = {};
    mutable HBRUSH brushes_[cal::kRoleCount] = {};
};

// What the pieces need to know of the control besides model and layout.
struct Look {
    bool disabled = false;
    bool focusMark = false; // the focus cell shows its mark
};

inline RECT ToRect(const cal::CalRect &r) { return RECT{r.left, r.top, r.right, r.bottom}; }
inline const wchar_t *Wide(const std::u16string &text) { return reinterpret_cast<const wchar_t *>(text.c_str()); }

// A line from (x1, y1) to (x2, y2), the end point left out.
void Line(HDC dc, HPEN pen, int x1, int y1, int x2, int y2);
// Text centred in a box on its own background colour.
void CentredText(HDC dc, const std::u16string &text, const RECT &box, COLORREF textColour, COLORREF backColour);

void Background(HDC dc, const Kit &kit, const cal::CalLayout &layout);
void Caption(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model, const Look &look);
void WeekdayBand(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model,
                 const Look &look);
// One month button; down when its press flag is set and the pointer is on it.
void Button(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model, const Look &look,
            bool left, bool down);
// The cells from span.first to span.last.
void Cells(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model, const Look &look,
           cal::CellSpan span);
void Gridlines(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model);

} // namespace zk::calpaint
