// Life of a picture record and the handle checks of the picture exports.
#include "outline/win/pic.h"

#include "frame/core/livehandles.h"
#include "frame/win/guard.h"

namespace zk::lbx {

PIC::PIC() { zk::LiveAdd(zk::LiveKind::Picture, this); }

PIC::~PIC() {
    zk::LiveRemove(zk::LiveKind::Picture, this);
    if (type == PIC_TypeBitmap) {
        if (bitmap)
            DeleteObject(bitmap);
        if (mask)
            DeleteObject(mask);
    } else if (type == PIC_TypeMemoryIcon && icon) {
        DestroyIcon(icon);
    }
}

bool PicIsLive(const void *pointer) noexcept { return IsLive(LiveKind::Picture, pointer); }

PIC *PicFromHandle(INT_PTR handle) noexcept {
    void *pointer = reinterpret_cast<void *>(handle);
    return PicIsLive(pointer) ? static_cast<PIC *>(pointer) : nullptr;
}

int32_t PicFree(const void *pointer) noexcept {
    // The table of live pictures stands in for asking a possibly freed
    // object for its class: a pointer it does not know is not followed.
    if (!PicIsLive(pointer))
        return ZEL_INVALID_PARAMETER;
    PIC *pic = const_cast<PIC *>(static_cast<const PIC *>(pointer));
    if (pic->mask)
        DeleteObject(pic->mask);
    if (pic->bitmap)
        DeleteObject(pic->bitmap);
    if (pic->icon)
        DestroyIcon(pic->icon);
    pic->mask = nullptr;
    pic->bitmap = nullptr;
    pic->icon = nullptr;
    delete pic;
    return 0;
}

} // namespace zk::lbx
