// The binary outline stream: a header, the pictures by how to load them, the
// fonts by face, size and style, and one record per node, the root first and
// then depth-first, a parent before its children. No class tags, schemas or
// object references: each record's fields follow one another. Numbers are
// little-endian; strings carry the archive's length prefix with the wide tag,
// and a reader takes the older single-byte strings too.
//
// Reading never throws and never changes anything but its own result: a list
// is cleared only once a stream has been read and checked whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "outline/core/pic_archive.h"

namespace zk::lbx::ofile {

inline constexpr uint16_t kOutlineMagic = 34649; // 0x8759

// Deepest node level a stream may hold: the loader's table of parents by
// level has 256 entries.
inline constexpr int32_t kMaxLevel = 255;

struct OBPIC {
    uint16_t flags = 0;    // the picture's load flags as loaded
    std::u16string source; // first load argument
    std::u16string name;   // second load argument
    bool operator==(const OBPIC &) const = default;
};

struct OBFONT {
    uint16_t points = 0;    // size in points, low 16 bits
    uint16_t styleBits = 0; // 2 italic, 4 underline, 8 bold, 16 strike-out
    std::u16string faceName;
    bool operator==(const OBFONT &) const = default;
};

struct OBITEM {
    int32_t level = 0;      // -1 for the root
    int32_t picNormal = -1; // index into the pictures, -1 none
    int32_t picSelected = -1;
    int32_t font = -1; // index into the fonts, -1 none
    uint32_t color = 0;
    uint32_t flags = 0; // all item bits
    int32_t value = 0;
    std::u16string text;
    bool operator==(const OBITEM &) const = default;
};

struct OBLOB {
    uint16_t magic = kOutlineMagic;
    uint32_t style = 0;
    uint32_t indent = 0;
    int32_t topIndex = 0;
    std::vector<OBPIC> pics;
    std::vector<OBFONT> fonts;
    std::vector<OBITEM> items;
    bool operator==(const OBLOB &) const = default;
};

// The whole stream of an outline.
std::vector<uint8_t> OutlineWrite(const OBLOB &blob);

enum class ReadStatus {
    ok,
    badMagic,  // not an outline stream
    corrupt,   // ends early, a negative count, a malformed string
    badLevels, // a node outside the table of parents: see OutlineParents
    noMemory,  // the records did not fit in memory
};

// Reads a stream into `blob` and works out the parent of each record into
// `parents` (see OutlineParents). On any status but ok both are left as
// they were. Strings without the wide tag are widened by `widen`.
ReadStatus OutlineRead(const uint8_t *data, size_t size, OBLOB &blob, std::vector<int32_t> &parents,
                       picstream::Widen widen = picstream::WidenLatin1) noexcept;

// Marks in `parents` of a root record (level -1, first record only).
inline constexpr int32_t kIsRoot = -2;
// Marks in `parents` of a record loaded under the root.
inline constexpr int32_t kUnderRoot = -1;

// The parent of each record by its level, as the loader's table of parents
// works it out: kIsRoot for a first record of level -1, kUnderRoot for a node
// under the root, else the index of the parent's record. A record deeper
// than the one before takes that one as its parent, however many levels it
// skips. False when a level lies outside the table (below 0, but for the
// first record's -1, or above kMaxLevel) or comes back up to a level that
// no record went down to, since the table then holds no parent for it.
bool OutlineParents(const std::vector<OBITEM> &items, std::vector<int32_t> &parents);

} // namespace zk::lbx::ofile
