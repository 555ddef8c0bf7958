/* ZKLIB: calendar functions. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_CALENDAR_H
#define ZKLIB_CALENDAR_H

#endif
