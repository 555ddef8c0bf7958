/* ZKLIB: host array functions. Included by zklib.h, inside its extern "C" block.
 *
 * The caller passes the element type (HOST_TYPE_* of zkrecord.h), which an
 * array handle does not tell. Only arrays of one dimension are accepted;
 * indices are the host's and may start anywhere. A string read from an
 * array is borrowed; a string written to a second slot gets a reference
 * of its own. Results: counts and indices, or -1 (more than one dimension,
 * empty array, not found) and -87 (index out of range, bad type, null text). */
#ifndef ZKLIB_ARRAY_H
#define ZKLIB_ARRAY_H

/* Directions of ZelArraySort; any other value sorts nothing. */
#define ZEL_SORT_ASCENDING 0
#define ZEL_SORT_DESCENDING 1

/* The source's elements after the destination's last; the new count of the
 * destination, 0 for an empty source, or -1. */
int32_t ZKAPI ZelArrayAppend(HostArray source, HostArray destination, int32_t type);
/* The source's elements at the same indices, and its bounds; the source count, or -1. */
int32_t ZKAPI ZelArrayCopy(HostArray source, HostArray destination, int32_t type);
/* Removes the element at index: count - 1, -1, or -87. */
int32_t ZKAPI ZelArrayDeleteItem(HostArray array, int32_t index, int32_t type);
/* An empty element before the one at index: count + 1, -1, or -87. */
int32_t ZKAPI ZelArrayInsertItem(HostArray array, int32_t index, int32_t type);
/* The value in indices 0 to count - 1, and the array cut to them: what the
 * host's bound setting answers (nonzero on success); 0 if multi-dimensional. */
int32_t ZKAPI ZelArrayFillString(HostArray array, const wchar_t *text, int32_t count);
int32_t ZKAPI ZelArrayFillNumber(HostArray array, HostNumber value, int32_t count);
int32_t ZKAPI ZelArrayFillDateTime(HostArray array, HostDateTime value, int32_t count);
/* The index of the first match from low upward, or -1. Strings match without
 * regard to case; date-times to the second. */
int32_t ZKAPI ZelArrayFindString(HostArray array, const wchar_t *text);
int32_t ZKAPI ZelArrayFindNumber(HostArray array, HostNumber value);
int32_t ZKAPI ZelArrayFindDateTime(HostArray array, HostDateTime value);
/* Stable sort of date-times, numbers or strings; the count, or -1. */
int32_t ZKAPI ZelArraySort(HostArray array, int32_t direction, int32_t type);

#endif
