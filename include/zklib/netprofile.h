/* ZKLIB: network connections and INI profiles. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_NETPROFILE_H
#define ZKLIB_NETPROFILE_H

/* The connected network drives (A: to Z:, those of drive type DRIVE_REMOTE)
 * and, when there is at least one, the connected printer ports LPT0 to LPT2:
 * their local names ("X:", "LPT1") and remote names, into the two string
 * arrays from index 0, bounds 0 to the last. The count, or a negative code:
 * -8 no memory (for a block or a host string), or the negated platform
 * error of the last network drive asked about, the arrays' bounds then
 * being left alone. A machine with no network drive gives 0. */
int32_t ZKAPI ZelDosEnumNetConnections(HostArray localNames, HostArray remoteNames);
/* The remote name of a local name, backslashes removed first ("X:\" asks
 * for "X:"); the empty string when it is not connected or on any failure. */
HostStr ZKAPI ZelDosGetNetName(const wchar_t *localName);
/* Connects the remote name to the local name (null: no local device); the
 * password may be null. 0, or the negated platform error; -87 for a null
 * remote name. */
int32_t ZKAPI ZelDosNetConnect(const wchar_t *localName, const wchar_t *remoteName, const wchar_t *password);
/* Cancels a connection, open files or not when force is nonzero. 0, or the
 * negated platform error; -87 for a null name. */
int32_t ZKAPI ZelDosNetDisconnect(const wchar_t *localName, int32_t force);

/* The INI file is looked up on the search path (current folder, system
 * folders, PATH), so a bare name need not lie in the Windows folder. */

/* The key names of a section into a string array from index 0, bounds 0 to
 * the last: the count of keys. A section with no keys gives 0 and leaves
 * the array as it was. -2 when the file is not found, -87 for a null
 * section, -8 when there is no memory for the list. A name that the host
 * cannot make into a string shows the retry dialog once and stands as no
 * string (0) in the array. */
int32_t ZKAPI ZelProfileEnumStrings(const wchar_t *file, const wchar_t *section, HostArray keys);
/* Deletes a key, or the whole section when the key is empty or null.
 * Nonzero on success, 0 when the file could not be written, -2 when it is
 * not found, -87 for a null section. */
int32_t ZKAPI ZelProfileDelete(const wchar_t *file, const wchar_t *section, const wchar_t *key);

#endif /* ZKLIB_NETPROFILE_H */
