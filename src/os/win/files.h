// The file routines that the file exports share with string tables,
// drives and directories, stream files, outline files and the window
// utilities: opening with the classic open flags, the path tests, the
// splitting of a destination and the one transfer buffer of a call.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

// Opens, creates, finds or deletes a file by the classic OpenFile flags
// (OF_WRITE, OF_READWRITE, OF_SHARE_EXCLUSIVE, OF_SHARE_DENY_WRITE, OF_PARSE,
// OF_DELETE, OF_CREATE, OF_EXIST). Gives an open handle; nullptr where no
// handle is made (OF_PARSE, OF_EXIST, a deletion that worked); and
// INVALID_HANDLE_VALUE on failure, with the reason in GetLastError().
// With `foundPath` the name is looked up on the search path first and the
// full path found is written there (at most foundPathSize characters with
// the terminator); a created file's name is copied there as given.
HANDLE ZelFileOpenEx(const wchar_t *name, wchar_t *foundPath, uint32_t foundPathSize, uint32_t flags);

// The path up to and with its last backslash, "X:" of a bare drive prefix,
// or empty.
std::wstring ZelPathGetDir(std::wstring_view path);

// Splits a destination into the folder to write into (with its final
// backslash) and the name mask. 0, -15 for a drive this machine lacks, -3
// for a folder that does not exist. A bare name gives two empty outputs.
int32_t ZelPathSplitTarget(std::wstring_view target, std::wstring &outDir, std::wstring &outName);

// The target name that a name mask makes of a source name, as the shell's
// copy does ("*.bak" on abc.txt gives abc.bak). An empty mask gives an
// empty name.
std::wstring ZelPathApplyMask(std::wstring_view name, std::wstring_view mask);

// Whether the path, trimmed of spaces, names an existing directory.
bool ZelPathIsDir(std::wstring_view path);

// 1 for drive A up to 26 for Z when the path's first letter is a drive of
// this machine, else 0.
int ZelPathDriveNumber(std::wstring_view path);

// The path as it fits in the width of `rectangle` in the font selected into
// `dc`: folders of the middle give way to "..." first, then the name
// (zk::os::ShortenPath).
std::wstring ZelPathShorten(HDC dc, const RECT &rectangle, std::wstring_view path);

// Makes or grows the call's transfer buffer for a file of `size` bytes: a
// moveable global block in `block` (null the first time), and in `usefulSize`
// how many bytes to move at a time: min(size + 1, kTransferLimit). 0, or -8 when
// the memory cannot be had (the block held so far stays in `block`).
int32_t ZelFileBufferEnsure(uint64_t size, HGLOBAL &block, uint32_t &usefulSize);

// Copies the rest of `source` to `destination` through `buffer`, `size`
// bytes at a time, until a transfer moves fewer. 0, or -GetLastError() of a
// failed write. A failed read ends the copy as if the file had ended there.
int32_t ZelFileCopyData(HANDLE source, HANDLE destination, void *buffer, uint32_t size);
