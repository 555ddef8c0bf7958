#include "outline/core/pic_serial.h"

namespace zk::lbx {

void PicFieldsWrite(picstream::Writer &out, const PicFields &pic) {
    out.U8(pic.type);
    out.U32(pic.height);
    out.U32(pic.width);
    out.U32(pic.bitmap);
    out.U32(pic.mask);
    out.U32(pic.icon);
    out.U16(pic.flags);
    out.String(pic.source);
    out.String(pic.name);
}

bool PicFieldsRead(picstream::Reader &in, uint16_t schema, PicFields &pic) {
    if (schema == 0)
        return in.Ok();
    PicFields read;
    read.type = in.U8();
    read.height = in.U32();
    read.width = in.U32();
    read.bitmap = in.U32();
    read.mask = in.U32();
    read.icon = in.U32();
    read.flags = in.U16();
    read.source = in.String();
    read.name = in.String();
    if (!in.Ok())
        return false;
    pic = std::move(read);
    return true;
}

} // namespace zk::lbx
