#include "outline/core/ofile_stream.h"

#include <utility>

namespace zk::lbx::ofile {
namespace {

using picstream::Reader;
using picstream::Writer;

// The fewest bytes a record can take, each string at its shortest (one
// length byte, no tag): a count that could not fit in what is left is
// refused before anything of its size is reserved.
constexpr size_t kMinPic = 2 + 1 + 1;
constexpr size_t kMinFont = 2 + 2 + 1;
constexpr size_t kMinItem = 7 * 4 + 1;

// A record count, which must not be negative.
bool ReadCount(Reader &in, size_t &count) {
    const auto n = static_cast<int32_t>(in.U32());
    if (!in.Ok() || n < 0)
        return false;
    count = static_cast<size_t>(n);
    return true;
}

// No more records than the bytes left could hold.
bool Plausible(const Reader &in, size_t count, size_t minRecord) { return count <= in.Remaining() / minRecord; }

bool ReadPics(Reader &in, size_t count, std::vector<OBPIC> &pics) {
    if (!Plausible(in, count, kMinPic))
        return false;
    pics.resize(count);
    for (OBPIC &pic : pics) {
        pic.flags = in.U16();
        pic.source = in.String();
        pic.name = in.String();
        if (!in.Ok())
            return false;
    }
    return true;
}

bool ReadFonts(Reader &in, size_t count, std::vector<OBFONT> &fonts) {
    if (!Plausible(in, count, kMinFont))
        return false;
    fonts.resize(count);
    for (OBFONT &font : fonts) {
        font.points = in.U16();
        font.styleBits = in.U16();
        font.faceName = in.String();
        if (!in.Ok())
            return false;
    }
    return true;
}

bool ReadItems(Reader &in, size_t count, std::vector<OBITEM> &items) {
    if (!Plausible(in, count, kMinItem))
        return false;
    items.resize(count);
    for (OBITEM &item : items) {
        item.level = static_cast<int32_t>(in.U32());
        item.picNormal = static_cast<int32_t>(in.U32());
        item.picSelected = static_cast<int32_t>(in.U32());
        item.font = static_cast<int32_t>(in.U32());
        item.color = in.U32();
        item.flags = in.U32();
        item.value = static_cast<int32_t>(in.U32());
        item.text = in.String();
        if (!in.Ok())
            return false;
    }
    return true;
}

} // namespace

std::vector<uint8_t> OutlineWrite(const OBLOB &blob) {
    Writer out;
    out.U16(blob.magic);
    out.U32(blob.style);
    out.U32(blob.indent);
    out.U32(static_cast<uint32_t>(blob.topIndex));
    out.U32(static_cast<uint32_t>(blob.pics.size()));
    out.U32(static_cast<uint32_t>(blob.fonts.size()));
    out.U32(static_cast<uint32_t>(blob.items.size()));
    for (const OBPIC &pic : blob.pics) {
        out.U16(pic.flags);
        out.String(pic.source);
        out.String(pic.name);
    }
    for (const OBFONT &font : blob.fonts) {
        out.U16(font.points);
        out.U16(font.styleBits);
        out.String(font.faceName);
    }
    for (const OBITEM &item : blob.items) {
        out.U32(static_cast<uint32_t>(item.level));
        out.U32(static_cast<uint32_t>(item.picNormal));
        out.U32(static_cast<uint32_t>(item.picSelected));
        out.U32(static_cast<uint32_t>(item.font));
        out.U32(item.color);
        out.U32(item.flags);
        out.U32(static_cast<uint32_t>(item.value));
        out.String(item.text);
    }
    return out.Take();
}

bool OutlineParents(const std::vector<OBITEM> &items, std::vector<int32_t> &parents) {
    constexpr int32_t kUnset = -3;
    std::vector<int32_t> result(items.size(), kUnderRoot);
    // The loader's table of parents by level: an entry is set when a record
    // goes deeper than the one before it, to that record's predecessor, and
    // stays until a later record goes deeper to that level again. So a record
    // more than one level deeper than the last loads under the last one, and
    // one that comes back up loads under whatever its level last held.
    std::vector<int32_t> parentOf(kMaxLevel + 1, kUnset);
    parentOf[0] = kUnderRoot;
    size_t first = 0;
    if (!items.empty() && items[0].level == -1) {
        result[0] = kIsRoot;
        first = 1;
    }
    int32_t current = 0;
    int32_t last = kUnderRoot;
    for (size_t i = first; i < items.size(); ++i) {
        const int32_t level = items[i].level;
        if (level < 0 || level > kMaxLevel)
            return false;
        if (level > current)
            parentOf[static_cast<size_t>(level)] = last;
        current = level;
        // A level never reached on the way down has no parent to give.
        if (parentOf[static_cast<size_t>(level)] == kUnset)
            return false;
        result[i] = parentOf[static_cast<size_t>(level)];
        last = static_cast<int32_t>(i);
    }
    parents = std::move(result);
    return true;
}

namespace {

ReadStatus ReadWhole(const uint8_t *data, size_t size, OBLOB &blob, std::vector<int32_t> &parents,
                     picstream::Widen widen) {
    Reader in(data, size, widen);
    OBLOB read;
    read.magic = in.U16();
    if (!in.Ok())
        return ReadStatus::corrupt;
    if (read.magic != kOutlineMagic)
        return ReadStatus::badMagic;
    read.style = in.U32();
    read.indent = in.U32();
    read.topIndex = static_cast<int32_t>(in.U32());
    size_t pics = 0;
    size_t fonts = 0;
    size_t items = 0;
    if (!ReadCount(in, pics) || !ReadCount(in, fonts) || !ReadCount(in, items))
        return ReadStatus::corrupt;
    if (!ReadPics(in, pics, read.pics) || !ReadFonts(in, fonts, read.fonts) || !ReadItems(in, items, read.items))
        return ReadStatus::corrupt;
    std::vector<int32_t> shape;
    if (!OutlineParents(read.items, shape))
        return ReadStatus::badLevels;
    blob = std::move(read);
    parents = std::move(shape);
    return ReadStatus::ok;
}

} // namespace

ReadStatus OutlineRead(const uint8_t *data, size_t size, OBLOB &blob, std::vector<int32_t> &parents,
                       picstream::Widen widen) noexcept {
    try {
        return ReadWhole(data, size, blob, parents, widen);
    } catch (...) {
        return ReadStatus::noMemory;
    }
}

} // namespace zk::lbx::ofile
