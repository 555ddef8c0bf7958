// Pictures from an executable module: a bitmap resource (with its mask),
// or an icon by resource name or extracted by index ("" and "#n").
#include <windows.h>
#include <shellapi.h>

#include "frame/win/host.h"
#include "outline/win/pic_gdi.h"
#include "outline/win/pic_sources.h"

namespace zk::lbx {

namespace {

bool BitmapFromModule(PIC &pic, const PicPlan &plan, HMODULE module) {
    pic.type = PIC_TypeBitmap;
    pic.bitmap = static_cast<HBITMAP>(
        LoadImageW(module, pic.name.c_str(), IMAGE_BITMAP, plan.targetWidth, plan.targetHeight, 0));
    int width = 0, height = 0;
    if (!PicBitmapSize(pic.bitmap, width, height))
        return false;
    if (PicNeedsScaling(plan, width, height)) {
        HBITMAP scaled = PicScaleBitmap(pic.bitmap, plan.targetWidth, plan.targetHeight);
        if (!scaled)
            return false;
        pic.bitmap = scaled;
        width = plan.targetWidth;
        height = plan.targetHeight;
    }
    pic.width = width;
    pic.height = height;
    pic.mask = PicMakeMask(pic.bitmap, width, height);
    return pic.mask != nullptr;
}

bool IconFromModule(PIC &pic, const PicPlan &plan, HMODULE module) {
    pic.type = PIC_TypeIcon;
    const auto index = PicIconIndex({reinterpret_cast<const char16_t *>(pic.name.data()), pic.name.size()});
    if (index) {
        HICON icon = ExtractIconW(ModuleInstance, pic.source.c_str(), *index);
        // 1 is the answer for a file that is no module at all.
        if (reinterpret_cast<UINT_PTR>(icon) <= 1)
            return false;
        pic.icon = icon;
    } else {
        pic.icon = static_cast<HICON>(
            LoadImageW(module, pic.name.c_str(), IMAGE_ICON, plan.targetWidth, plan.targetHeight, 0));
    }
    ICONINFO info;
    BITMAP maskBits;
    if (!PicIconInfo(pic.icon, info, maskBits))
        return false;
    pic.height = maskBits.bmHeight;
    pic.width = maskBits.bmWidth;
    if (PicNeedsScaling(plan, pic.width, pic.height)) {
        HICON scaled = PicScaleIcon(pic.icon, plan.targetWidth, plan.targetHeight);
        if (!scaled)
            return false;
        pic.icon = scaled;
        pic.width = plan.targetWidth;
        pic.height = plan.targetHeight;
    }
    return true;
}

} // namespace

bool PicFromModule(PIC &pic, const PicPlan &plan) {
    if (plan.format == PicFormat::None) {
        PicReportNoFormat(pic.source);
        return false;
    }
    HMODULE module = LoadLibraryW(pic.source.c_str());
    if (!module)
        return false;
    bool ok = false;
    try {
        ok = plan.format == PicFormat::Bitmap ? BitmapFromModule(pic, plan, module) : IconFromModule(pic, plan, module);
    } catch (...) {
        FreeLibrary(module);
        throw;
    }
    FreeLibrary(module);
    return ok;
}

} // namespace zk::lbx
