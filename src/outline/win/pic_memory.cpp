// Pictures from image bytes: a host resource, or memory the caller points
// at. The core checks the headers against the bytes before GDI sees them.
#include "frame/win/host.h"
#include "frame/win/registry.h"
#include "outline/core/image_reader.h"
#include "outline/win/pic_gdi.h"
#include "outline/win/pic_sources.h"

namespace zk::lbx {

namespace {

bool BitmapFromBytes(PIC &pic, const PicPlan &plan, const uint8_t *bytes, size_t size) {
    const auto bmp = image::ReadBmp(bytes, size);
    if (!bmp)
        return false;
    pic.type = PIC_TypeBitmap;
    const auto *info = reinterpret_cast<const BITMAPINFO *>(bytes + bmp->infoOffset);
    HDC screen = GetDC(nullptr);
    if (!screen)
        return false;
    pic.bitmap = CreateDIBitmap(screen, &info->bmiHeader, CBM_INIT, bytes + bmp->bitsOffset, info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (!pic.bitmap)
        return false;
    pic.width = bmp->width;
    pic.height = bmp->height;
    if (PicNeedsScaling(plan, pic.width, pic.height)) {
        HBITMAP scaled = PicScaleBitmap(pic.bitmap, plan.targetWidth, plan.targetHeight);
        if (!scaled)
            return false;
        pic.bitmap = scaled;
        pic.width = plan.targetWidth;
        pic.height = plan.targetHeight;
    }
    pic.mask = PicMakeMask(pic.bitmap, pic.width, pic.height);
    return pic.mask != nullptr;
}

bool IconFromBytes(PIC &pic, const PicPlan &plan, const uint8_t *bytes, size_t size) {
    const auto image = image::ReadIcoFirstImage(bytes, size);
    if (!image)
        return false;
    pic.type = PIC_TypeMemoryIcon;
    auto *bits = const_cast<PBYTE>(bytes + image->offset);
    const auto count = static_cast<DWORD>(image->bytes);
    pic.icon = CreateIconFromResourceEx(bits, count, TRUE, 0x30000, image->width, image->height, 0);
    if (!pic.icon && image->bitCount != 16)
        pic.icon = CreateIconFromResource(bits, count, TRUE, 0x30000);
    if (!pic.icon)
        return false;
    pic.width = image->width;
    pic.height = image->height;
    // An icon from memory always takes a size: the one asked for, else the system's.
    const int targetWidth = plan.targetWidth ? plan.targetWidth : IconWidth;
    const int targetHeight = plan.targetWidth ? plan.targetHeight : IconHeight;
    if (targetWidth != pic.width || targetHeight != pic.height) {
        HICON scaled = PicScaleIcon(pic.icon, targetWidth, targetHeight);
        if (!scaled)
            return false;
        pic.icon = scaled;
        pic.width = targetWidth;
        pic.height = targetHeight;
    }
    return true;
}

} // namespace

bool PicFromMemory(PIC &pic, const PicPlan &plan, const uint8_t *bytes, size_t size) {
    if (plan.format == PicFormat::Bitmap)
        return BitmapFromBytes(pic, plan, bytes, size);
    if (plan.format == PicFormat::Icon)
        return IconFromBytes(pic, plan, bytes, size);
    PicReportNoFormat(pic.source);
    return false;
}

bool PicFromPointer(PIC &pic, const PicPlan &plan, const void *pointer) {
    const auto *bytes = static_cast<const uint8_t *>(pointer);
    if (plan.format == PicFormat::None)
        return PicFromMemory(pic, plan, bytes, 0);
    // Headers first, then as much as they claim, but never beyond readable memory.
    constexpr size_t kHeaders = 64;
    const size_t head = PicReadableBytes(bytes, kHeaders);
    const size_t claimed =
        plan.format == PicFormat::Bitmap ? image::BmpClaimedSize(bytes, head) : image::IcoClaimedSize(bytes, head);
    if (claimed == 0)
        return false;
    return PicFromMemory(pic, plan, bytes, PicReadableBytes(bytes, claimed));
}

bool PicFromResource(PIC &pic, const PicPlan &plan) {
    const HostResource resource = HostResourceFind(pic.source.c_str());
    if (!resource)
        return false;
    HostStr bytes = 0;
    if (!HostResourceLoad(resource, &bytes)) {
        if (bytes)
            HostStrFreeResource(bytes);
        return false;
    }
    bool ok = false;
    try {
        int32_t size = 0;
        const auto *data = reinterpret_cast<const uint8_t *>(HostStrLock(bytes, &size));
        ok = data && size > 0 && PicFromMemory(pic, plan, data, static_cast<size_t>(size));
    } catch (...) {
        HostStrFreeResource(bytes);
        throw;
    }
    HostStrFreeResource(bytes);
    return ok;
}

} // namespace zk::lbx
