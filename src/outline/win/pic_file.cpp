// Pictures from .BMP and .ICO files. A file bitmap has no mask: it always
// paints opaque.
#include "outline/win/pic_gdi.h"
#include "outline/win/pic_sources.h"

namespace zk::lbx {

bool PicFromFile(PIC &pic, const PicPlan &plan) {
    if (plan.format == PicFormat::Bitmap) {
        pic.type = PIC_TypeBitmap;
        pic.bitmap = static_cast<HBITMAP>(LoadImageW(nullptr, pic.source.c_str(), IMAGE_BITMAP, plan.targetWidth,
                                                     plan.targetHeight, LR_LOADFROMFILE));
        int width = 0, height = 0;
        if (!PicBitmapSize(pic.bitmap, width, height))
            return false;
        pic.width = width;
        pic.height = height;
        return true;
    }
    if (plan.format == PicFormat::Icon) {
        pic.type = PIC_TypeIcon;
        pic.icon = static_cast<HICON>(
            LoadImageW(nullptr, pic.source.c_str(), IMAGE_ICON, plan.targetWidth, plan.targetHeight, LR_LOADFROMFILE));
        ICONINFO info;
        BITMAP maskBits;
        if (!PicIconInfo(pic.icon, info, maskBits))
            return false;
        // An icon's hot spot lies at its centre.
        pic.height = static_cast<int32_t>(2 * info.xHotspot);
        pic.width = static_cast<int32_t>(2 * info.yHotspot);
        return true;
    }
    return true; // another extension: the empty picture
}

} // namespace zk::lbx
