/* ZKLIB: string tables. Included by zklib.h, inside its extern "C" block.
 *
 * A string table file is text in the system code page, lines ended by CR LF,
 * smaller than ZEL_STRTABLE_MAX_BYTES bytes; a line holds "{key}value".
 * The table is a global memory handle that the caller keeps as a number. */
#ifndef ZKLIB_STRTABLE_H
#define ZKLIB_STRTABLE_H

/* Files of this many bytes or more are refused with -30. */
#define ZEL_STRTABLE_MAX_BYTES 65534
/* The character that ends a loaded table. */
#define ZEL_STRTABLE_END_MARK 0x1A

/* The file on the search path, loaded: the table handle, or -2 (not found),
 * -30 (too large), -8 (no memory, or the file could not be read), -87 (null),
 * or the negative code of the size query. */
intptr_t ZKAPI ZelStrLoadTable(const wchar_t *name);
/* The value after "{key}" in the first line that holds it, with case; the
 * empty string when there is none or the table cannot be locked. */
HostStr ZKAPI ZelStrFind(intptr_t table, const wchar_t *key);
/* Frees the table: 1 if freed, else 0. */
int32_t ZKAPI ZelStrFreeTable(intptr_t table);

#endif
