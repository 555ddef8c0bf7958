/* String resources of the calendar area. Plain defines: the resource
 * script includes this file as well as the code. */
#ifndef ZK_CALENDAR_IDS_H
#define ZK_CALENDAR_IDS_H

/* Month names, January to December: table indices 1 to 12. */
#define IDS_CAL_JANUARY 16
#define IDS_CAL_FEBRUARY 17
#define IDS_CAL_MARCH 18
#define IDS_CAL_APRIL 19
#define IDS_CAL_MAY 20
#define IDS_CAL_JUNE 21
#define IDS_CAL_JULY 22
#define IDS_CAL_AUGUST 23
#define IDS_CAL_SEPTEMBER 24
#define IDS_CAL_OCTOBER 25
#define IDS_CAL_NOVEMBER 26
#define IDS_CAL_DECEMBER 27

/* Weekday names, Sunday to Saturday: table indices 1 to 7. */
#define IDS_CAL_SUNDAY 32
#define IDS_CAL_MONDAY 33
#define IDS_CAL_TUESDAY 34
#define IDS_CAL_WEDNESDAY 35
#define IDS_CAL_THURSDAY 36
#define IDS_CAL_FRIDAY 37
#define IDS_CAL_SATURDAY 38

/* Words of the two checks of date-time texts in the property dialogs. */
#define IDS_CAL_BAD_PICTURE 64
#define IDS_CAL_BAD_DATETIME 65

/* The week-start exports reuse the spin field's range text on purpose. */
#define IDS_CAL_WEEK_START_RANGE 69

#endif
