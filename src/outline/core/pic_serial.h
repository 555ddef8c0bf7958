// The serialising operation of a picture record (schema 1, versionable):
// type (u8), height, width, bitmap, mask and icon as u32, the load flags
// (u16), source and name. The handles are written as numbers for the
// record's own sake; nothing rebuilds a picture from them.
#pragma once

#include <cstdint>
#include <string>

#include "outline/core/pic_archive.h"

namespace zk::lbx {

struct PicFields {
    uint8_t type = 0;
    uint32_t height = 0;
    uint32_t width = 0;
    uint32_t bitmap = 0;
    uint32_t mask = 0;
    uint32_t icon = 0;
    uint16_t flags = 0;
    std::u16string source;
    std::u16string name;

    bool operator==(const PicFields &) const = default;
};

inline constexpr uint16_t kPicSchema = 1;

void PicFieldsWrite(picstream::Writer &out, const PicFields &pic);
// An archive whose object schema is 0 holds nothing of the record: the
// fields stay as they are and nothing is read. False on a short stream.
bool PicFieldsRead(picstream::Reader &in, uint16_t schema, PicFields &pic);

} // namespace zk::lbx
