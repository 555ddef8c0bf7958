// A stored block as bytes, the way the designer keeps it on an item (what
// the block tests of every control compare with golden bytes or hand to a
// window's design item), and a block read back from such bytes.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/core/block_io.h"
#include "frame/core/memfile.h"

namespace zkt {

template <class Block>
std::vector<uint8_t> StoredBytes(Block &block) {
    zk::CMemFile file;
    zk::StoreBlock(file, block);
    return std::vector<uint8_t>(file.Data(), file.Data() + file.GetLength());
}

// A block read from bytes; `complete` tells whether it read to its end
// (a block cut short keeps what it had read).
template <class Block>
Block ReadBlock(const std::vector<uint8_t> &bytes, bool *complete = nullptr) {
    Block block;
    const bool whole = zk::LoadBlockBytes(bytes.data(), bytes.size(), block);
    if (complete)
        *complete = whole;
    return block;
}

} // namespace zkt
