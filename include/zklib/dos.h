/* ZKLIB: drives, directories and paths. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_DOS_H
#define ZKLIB_DOS_H

/* Listings fill their arrays from index 0 and set the bounds to 0 and the
 * last index written; a listing that finds nothing to take empties them.
 * Names are file names without their folder; dates are the creation time
 * as local time to two seconds (null outside 1980 to 2107); attributes the
 * file system's bits. A pattern that matches nothing gives the negated
 * platform error (-2, -3) and leaves the arrays as they were; so do a null
 * pattern (-87) and one of 260 characters or more (-206, the platform's
 * "name too long"). */

/* Drive types of ZelDosGetDriveType, the platform's; 0 for no drive. */
#define ZEL_DRIVE_UNKNOWN 0
#define ZEL_DRIVE_NO_ROOT 1
#define ZEL_DRIVE_REMOVABLE 2
#define ZEL_DRIVE_FIXED 3
#define ZEL_DRIVE_REMOTE 4
#define ZEL_DRIVE_CDROM 5
#define ZEL_DRIVE_RAMDISK 6

/* Roots of the drives of this machine, "A:\" to "Z:\"; their count. */
int32_t ZKAPI ZelDosEnumDrives(HostArray names);
/* Subdirectories matching the pattern, "." and ".." left out. */
int32_t ZKAPI ZelDosEnumDirs(const wchar_t *pattern, HostArray names);
int32_t ZKAPI ZelDosEnumDirInfo(const wchar_t *pattern, HostArray names, HostArray dates, HostArray attributes);
/* Files matching the pattern. Mask 0 leaves hidden and system files out;
 * another mask takes the files that have all of its bits. */
int32_t ZKAPI ZelDosEnumFiles(const wchar_t *pattern, uint16_t mask, HostArray names);
/* Files matching the pattern. Mask 0 takes every file, hidden and system
 * ones too; another mask takes the files that have any of its bits. Sizes
 * are the low 32 bits. */
int32_t ZKAPI ZelDosEnumFileInfo(const wchar_t *pattern, uint16_t mask, HostArray names, HostArray sizes,
                                 HostArray dates, HostArray attributes);
/* The folders of the PATH variable that exist, each with a final
 * backslash; their count. An unset or empty PATH gives 0 and leaves the
 * array as it was. */
int32_t ZKAPI ZelDosEnumPath(HostArray names);

/* 1 when the path names a drive ("C:"), a folder, or a file, or is a
 * pattern with a match; else 0. */
int32_t ZKAPI ZelDosExist(const wchar_t *path);
/* 1 when the folder has a subdirectory, else 0. */
int32_t ZKAPI ZelDosIsParent(const wchar_t *directory);
/* The process's current directory; the argument is not used (there is one
 * current directory, not one per drive). */
HostStr ZKAPI ZelDosGetCurDir(const wchar_t *drive);
/* The platform's drive type of a root, or 0 when the first letter is no
 * drive of this machine. */
int32_t ZKAPI ZelDosGetDriveType(const wchar_t *root);
/* Total and free bytes of a drive, exact beyond 32 bits. 0, -15 for a
 * null root or no drive, or the negated platform error. Both numbers are
 * null after a failure, but for a null root, which leaves them alone. */
int32_t ZKAPI ZelDosGetDriveSize(const wchar_t *root, HostNumber *totalBytes, HostNumber *freeBytes);
/* The value of an environment variable; the empty string when unset. */
HostStr ZKAPI ZelDosGetEnvString(const wchar_t *name);
/* The system version as major + minor / 10 in whole numbers (6.1 gives 6). */
HostNumber ZKAPI ZelDosGetVersion(void);
HostStr ZKAPI ZelDosGetVolumeLabel(const wchar_t *root);
/* 0, -87 for a null root, or the negated platform error. */
int32_t ZKAPI ZelDosSetVolumeLabel(const wchar_t *root, const wchar_t *label);
/* `file` in the folder of a loaded module (null: the program); the empty
 * string when the module is not loaded. */
HostStr ZKAPI ZelDosBuildFullName(const wchar_t *module, const wchar_t *file);
/* Makes a folder and every folder above it that is missing. The result of
 * the last creation (0, or -183 when it existed); -87 for a null or empty
 * path or a root alone; -206 for a path of 260 characters or more, with
 * nothing made. */
int32_t ZKAPI ZelDosMakeAllDir(const wchar_t *path);
/* The four parts joined as they stand, no separator added. */
HostStr ZKAPI ZelDosMakePath(const wchar_t *drive, const wchar_t *directory, const wchar_t *name,
                             const wchar_t *extension);
/* Splits a path into drive ("C:"), folder with its final backslash, name,
 * and extension with its dot, each cut at 255 characters (the drive at 2).
 * Gives the host's answer to setting the last part's length (1); a null
 * path gives empty parts and 0. */
int32_t ZKAPI ZelDosSplitPath(const wchar_t *path, HostStr *drive, HostStr *directory, HostStr *name,
                              HostStr *extension);
/* Kept for old applications: no flags are held. */
int32_t ZKAPI ZelDosGetFlags(void);
int32_t ZKAPI ZelDosSetFlags(int32_t flags, int32_t mask);

#endif /* ZKLIB_DOS_H */
