// Property blocks to and from memory files. A block is the byte image of an
// archive into which the block's Serialize wrote directly: the top level
// carries no class tag.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/core/archive.h"

namespace zk {

// Serialises block into file at its position. Throws what the archive throws.
template <class Block>
void StoreBlock(CMemFile &file, Block &block) {
    CArchive ar(file, CArchive::store);
    block.Serialize(ar);
    ar.Close();
}

// Deserialises block from file at its position. Nothing escapes: a record
// that is short, of an unknown version or damaged ends the read where it
// fails, the fields read so far keep their new values and the rest their
// defaults. True when the block was read to its end without a fault.
template <class Block>
bool LoadBlock(CMemFile &file, Block &block) noexcept {
    try {
        CArchive ar(file, CArchive::load);
        block.Serialize(ar);
        ar.Close();
        return true;
    } catch (...) {
        return false;
    }
}

// The same over bytes, as a design item hands them out.
template <class Block>
bool LoadBlockBytes(const uint8_t *bytes, size_t count, Block &block) noexcept {
    try {
        CMemFile file;
        if (count)
            file.Write(bytes, count);
        file.SeekToBegin();
        return LoadBlock(file, block);
    } catch (...) {
        return false;
    }
}

// The Serialize of a window class that holds its block by value: the
// block, then a u32 version 1 that a reader reads and ignores.
template <class Block>
void SerializeHeldBlock(CArchive &ar, Block &block) {
    block.Serialize(ar);
    if (ar.IsStoring())
        ar.WriteU32(1);
    else
        ar.ReadU32();
}

} // namespace zk
