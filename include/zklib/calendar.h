/* ZKLIB: the calendar control: rule kinds, style bits, colour roles,
 * notification codes and the ZelCal exports. Included by zklib.h, inside its
 * extern "C" block.
 *
 * The constants are plain macros with no platform type, so the portable core
 * includes this file too; the export declarations are read only when it comes
 * in through zklib.h. */
#ifndef ZKLIB_CALENDAR_CONSTANTS_H
#define ZKLIB_CALENDAR_CONSTANTS_H

/* ---- kinds of special rule (ZelCalSpecialDate, ZelCalGetSpecials) ---------- */
#define SPECIAL_Date 1         /* one calendar date: year, month, day */
#define SPECIAL_Weekly 2       /* that weekday in every week */
#define SPECIAL_MonthDay 3     /* that day of every month */
#define SPECIAL_MonthWeekday 4 /* that weekday of that week of every month */
#define SPECIAL_YearDay 5      /* that month and day of every year */
#define SPECIAL_YearWeekday 6  /* that weekday of that week of that month of every year */

/* ---- style bits (ZelCalGetStyle, ZelCalSetStyle) --------------------------- */
#define CALS_AutoSize 0x0001
#define CALS_PopUp 0x0002
#define CALS_EnableButtons 0x0004
#define CALS_EnableKeyboard 0x0008
#define CALS_EtchedLook 0x0010
#define CALS_MultipleSelection 0x0020
#define CALS_SelectExtra 0x0040
#define CALS_SelectSpecial 0x0080
#define CALS_ShowExtra 0x0100
#define CALS_ShowFocus 0x0200
#define CALS_ShowGridlines 0x0400
#define CALS_ShowSpecial 0x0800
#define CALS_AlternateButtons 0x1000

/* ---- colour roles (ZelCalGetColor, ZelCalSetColor) ------------------------- */
#define CALR_Background 0    /* window background */
#define CALR_CellBack 1      /* cell background */
#define CALR_ExtraBack 2     /* extra cell background */
#define CALR_HeaderBack 3    /* caption and weekday header background */
#define CALR_MarkBack 4      /* marked cell background */
#define CALR_ButtonFace 5    /* button face */
#define CALR_ButtonLight 6   /* button and frame highlight */
#define CALR_ButtonShadow 7  /* button and frame shadow */
#define CALR_ButtonArrow 8   /* button arrow */
#define CALR_CellText 9      /* cell text */
#define CALR_WeekdayText 10  /* weekday header text */
#define CALR_ExtraText 11    /* extra cell text */
#define CALR_DisabledText 12 /* all text and arrows when disabled */
#define CALR_CaptionText 13  /* caption text */
#define CALR_MarkText 14     /* marked cell text */
#define CALR_Frame 15        /* frame lines, special-cell slot */
#define CALR_Count 16

/* ---- notification codes (high word of WM_COMMAND's wParam) ----------------- */
#define CALN_FocusChange 1      /* the focus date changed */
#define CALN_KillFocus 2        /* the control lost the focus */
#define CALN_MonthChange 3      /* the month on display changed */
#define CALN_CloseUp 8          /* the pop-up wants to close */
#define CALN_OutOfMemory 0xFFFF /* no memory to add a mark or a rule */

#endif /* ZKLIB_CALENDAR_CONSTANTS_H */

#if defined(ZKLIB_H) && !defined(ZKLIB_CALENDAR_H)
#define ZKLIB_CALENDAR_H

/* A calendar control: the pointer that ZKM_ControlCreate handed over. */
typedef INT_PTR ZelCalControl;

/* Marks: the focus date and the dates of a selection. */
int32_t ZKAPI ZelCalClearMarked(ZelCalControl control);
int32_t ZKAPI ZelCalGetMarked(ZelCalControl control, HostArray dates);
int32_t ZKAPI ZelCalIsDateMarked(ZelCalControl control, HostDateTime date);
int32_t ZKAPI ZelCalMarkDate(ZelCalControl control, HostDateTime date, int32_t add);
int32_t ZKAPI ZelCalMarkDates(ZelCalControl control, HostArray dates, int32_t add);

/* Special rules: dates in colours of their own. */
int32_t ZKAPI ZelCalClearSpecials(ZelCalControl control);
int32_t ZKAPI ZelCalGetSpecials(ZelCalControl control, HostArray types, HostArray dates, HostArray weekdays,
                                HostArray weeks);
int32_t ZKAPI ZelCalIsDateSpecial(ZelCalControl control, int32_t type, HostDateTime date, int32_t weekday,
                                  int32_t week);
int32_t ZKAPI ZelCalSpecialDate(ZelCalControl control, int32_t type, HostDateTime date, int32_t weekday, int32_t week,
                                COLORREF textColor, COLORREF backColor, int32_t add);

/* Focus, colours, styles, week start and names. */
int32_t ZKAPI ZelCalGetFocusDate(ZelCalControl control, HostDateTime *date);
int32_t ZKAPI ZelCalSetFocusDate(ZelCalControl control, HostDateTime date);
int32_t ZKAPI ZelCalGetColor(ZelCalControl control, int32_t role);
int32_t ZKAPI ZelCalSetColor(ZelCalControl control, int32_t role, COLORREF color);
int32_t ZKAPI ZelCalGetStyle(ZelCalControl control);
int32_t ZKAPI ZelCalSetStyle(ZelCalControl control, int32_t mask, int32_t value);
int32_t ZKAPI ZelCalWeekStartGet(ZelCalControl control);
int32_t ZKAPI ZelCalWeekStartSet(ZelCalControl control, int32_t weekday);
int32_t ZKAPI ZelCalSetMonths(ZelCalControl control, HostArray names);
int32_t ZKAPI ZelCalSetWeekDays(ZelCalControl control, HostArray names);

#endif /* ZKLIB_CALENDAR_H */
