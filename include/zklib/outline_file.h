/* ZKLIB: outline files. Included by zklib.h, inside its extern "C" block.
 *
 * The binary outline stream travels in a host string of one byte more than
 * the stream (a NUL), which begins with the 16-bit magic 34649; the
 * indented text form is a file below 65534 bytes. */
#ifndef ZKLIB_OUTLINE_FILE_H
#define ZKLIB_OUTLINE_FILE_H

/* The outline with its pictures and fonts into a new host string in *out.
 * 0 done; -87 the window is not adopted; -8 any other failure. */
int32_t ZKAPI ZelListSaveOutline(HWND window, HostStr *out);
/* Replaces the list's outline, style bits, indent and registries by a saved
 * one and shows it. The root handle; 0 on failure, and a stream that does
 * not read whole leaves the list as it was. */
ZelItemHandle ZKAPI ZelListLoadOutline(HWND window, HostStr outline);
/* Replaces the list's tree by the lines of an indented text file (a tab
 * counts 8 columns). A picture given as 0 takes the library's own plus and
 * minus bitmaps. No rows are made. The root handle; 0 on failure. */
ZelItemHandle ZKAPI ZelListLoadOutlineFile(HWND window, const wchar_t *fileName, ZelPicHandle parentNormal,
                                           ZelPicHandle parentSelected, ZelPicHandle leafNormal,
                                           ZelPicHandle leafSelected);

#endif /* ZKLIB_OUTLINE_FILE_H */
