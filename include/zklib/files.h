/* ZKLIB: file operations and the path routines they share. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_FILES_H
#define ZKLIB_FILES_H

/* The pattern functions work like the commands of a command shell: the
 * source may hold wildcards, the destination may be a folder or a name mask
 * ("*.bak"), folders that match are passed over. Each gives the count of
 * files dealt with, or a negative code: -87 a null argument, -2 (or another
 * negated platform error) no match, -15 a destination drive this machine
 * lacks, -3 a destination folder that does not exist, -39 a file that does
 * not fit in the free space, -8 no memory for the transfer buffer. Copying
 * stops at the first failure; what was copied stays. */

/* Codes of ZelFileGetType. */
#define ZEL_FILETYPE_PROGRAM 1    /* its extension stands in the "Programs" profile entry */
#define ZEL_FILETYPE_ASSOCIATED 2 /* an application is associated with it */
#define ZEL_FILETYPE_HIDDEN 3     /* hidden or system file */
#define ZEL_FILETYPE_OTHER 4

int32_t ZKAPI ZelFileCopy(const wchar_t *source, const wchar_t *destination);
int32_t ZKAPI ZelFileAppend(const wchar_t *source, const wchar_t *destination);
/* Files compressed by the classic compress program are expanded, others
 * copied as they stand. A failed expansion gives -100 times the platform's
 * error number. The platform's LZ open takes paths of at most 127 bytes in
 * the system code page; a longer path fails with its error. */
int32_t ZKAPI ZelFileExpand(const wchar_t *source, const wchar_t *destination);
int32_t ZKAPI ZelFileRename(const wchar_t *source, const wchar_t *destination);
int32_t ZKAPI ZelFileDelete(const wchar_t *pattern);

/* A new empty file in the temporary folder; its name, or the empty string. */
HostStr ZKAPI ZelFileCreateTemp(const wchar_t *prefix);
/* The full path of a file found on the search path, or the empty string. */
HostStr ZKAPI ZelFileFind(const wchar_t *name);

int32_t ZKAPI ZelFileGetAttribute(const wchar_t *name);
/* Sets (set nonzero) or clears the mask's attribute bits of every match,
 * folders included. */
int32_t ZKAPI ZelFileSetAttribute(const wchar_t *pattern, uint16_t mask, int32_t set);
/* Size of a file named without wildcards: its low 32 bits (a file over 4 GB
 * may look negative), or a negated platform error; -87 for * or ? or null. */
int32_t ZKAPI ZelFileGetSize(const wchar_t *name);
int32_t ZKAPI ZelFileGetType(const wchar_t *name);
/* The date-time, to two seconds, as creation, access and write time of
 * every file that matches. Years before 1980 cannot be represented. */
int32_t ZKAPI ZelFileSetDateTime(const wchar_t *pattern, HostDateTime date);

#endif
