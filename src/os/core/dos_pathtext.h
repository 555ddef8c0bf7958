// Path texts taken apart and put together without the file system: the
// pieces of a search path, the steps of a nested folder creation, the four
// parts of a path, a file named beside a module. Platform-free.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zk::os {

// The text with a backslash after it unless its last character is one. An
// empty text stays empty.
std::u16string WithBackslash(std::u16string_view text);

// The folders of a search path: the pieces between semicolons, empty ones
// left out as the runtime's tokenizer leaves them, each ending in a
// backslash. Whether a piece is a folder is for the caller to find out.
std::vector<std::u16string> SearchPathPieces(std::u16string_view path);

// The folders that a nested creation makes, outermost first: every prefix
// of the path that ends before a backslash (one is added at the end when
// missing), passing over a drive's root ("C:\") and the empty prefix of a
// path that starts with a backslash. No step at all means there is nothing
// to create: an empty path or a root alone.
std::vector<std::u16string> MakeAllDirSteps(std::u16string_view path);

// The four parts of a path as the classic runtime splits them: "X:" when
// the second character is a colon; the folder up to and with the last
// slash or backslash; the name; the extension from the last dot after the
// folder on, dot and all. Each part is cut to its buffer of the classic
// sizes: 2 characters of drive, 255 of each other part.
struct PathParts {
    std::u16string drive, dir, name, ext;
};
inline constexpr size_t kDriveChars = 2;
inline constexpr size_t kPartChars = 255;
PathParts SplitPathParts(std::u16string_view path);

// A module's file name with its name part (everything after the last
// backslash, or all of it when there is none) replaced by `file`.
std::u16string BesideModule(std::u16string_view moduleFile, std::u16string_view file);

} // namespace zk::os
