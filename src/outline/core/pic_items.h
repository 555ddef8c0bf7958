// The design-time picture list "ZK:PicItems": a CPicItemArray in the
// framework's object stream. Count, then the first PICITEM behind a
// new-class tag (schema 1, "PICITEM"), every further one behind class tag
// 0x8001; each object's fields are value (u32), flags (u16), title,
// file name and resource name.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "outline/core/pic_archive.h"

namespace zk::lbx {

struct PICITEM {
    int32_t value = 0;
    uint16_t flags = 0;
    std::u16string title;
    std::u16string fileName;
    std::u16string resourceName;

    bool operator==(const PICITEM &) const = default;
};

inline constexpr uint16_t kPicItemSchema = 1;
inline constexpr char kPicItemClass[] = "PICITEM";

std::vector<uint8_t> PicItemsWrite(const std::vector<PICITEM> &items);

// False, and `items` empty, when the stream is short, names another class
// or schema, or refers back to an object (which an array of its own
// elements never does).
bool PicItemsRead(const uint8_t *data, size_t size, std::vector<PICITEM> &items,
                  picstream::Widen widen = picstream::WidenLatin1);

} // namespace zk::lbx
