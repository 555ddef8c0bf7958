// The indented text outline: one entry per line, its depth given by the
// blanks and tabs before it (a tab counts 8 columns, a blank 1). Lines end at
// CR LF; empty lines and lines of blanks alone are skipped.
//
// The text is read into a plan first: which line is loaded where. Building
// the tree from the plan is the loader's, so a file that cannot be read
// whole changes nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "outline/core/pic_archive.h"

namespace zk::lbx::ofile {

// The file must be smaller than this.
inline constexpr size_t kTextLimit = 65534;

// Entries of the table of nodes by depth: the root and levels 0 to 255.
inline constexpr size_t kTextDepths = 257;

struct TextLine {
    // Where the line goes: loaded as the last child of `anchor`, which then
    // takes the parent pictures, or as a sibling right after it. The anchor
    // is the index of an earlier line, or kTextRoot.
    int32_t anchor = -1;
    bool sibling = false;
    int32_t level = 0; // the new node's level
    std::u16string text;
    bool operator==(const TextLine &) const = default;
};

inline constexpr int32_t kTextRoot = -1;

enum class TextStatus {
    ok,
    tooLarge, // kTextLimit bytes or more
    tooDeep,  // a line would lie deeper than level 255
    noMemory,
};

// The plan of a whole file's bytes, in the system code page (`widen` turns
// them into wide characters after each CR LF has become two NULs). On any
// status but ok `lines` is left as it was.
TextStatus OutlineTextParse(std::string_view bytes, std::vector<TextLine> &lines,
                            picstream::Widen widen = picstream::WidenLatin1) noexcept;

} // namespace zk::lbx::ofile
