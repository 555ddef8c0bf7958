#include "outline/core/pic_plan.h"

namespace zk::lbx {

namespace {

bool SameNoCase(std::u16string_view a, std::u16string_view b) {
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i) {
        char16_t x = a[i], y = b[i];
        if (x >= u'a' && x <= u'z')
            x = static_cast<char16_t>(x - u'a' + u'A');
        if (y >= u'a' && y <= u'z')
            y = static_cast<char16_t>(y - u'a' + u'A');
        if (x != y)
            return false;
    }
    return true;
}

} // namespace

PicExtension PicExtensionOf(std::u16string_view source) {
    const size_t dot = source.find(u'.');
    if (dot == std::u16string_view::npos)
        return PicExtension::Other;
    const std::u16string_view ext = source.substr(dot);
    if (SameNoCase(ext, u".EXE") || SameNoCase(ext, u".DLL"))
        return PicExtension::Module;
    if (SameNoCase(ext, u".ICO"))
        return PicExtension::Icon;
    if (SameNoCase(ext, u".BMP"))
        return PicExtension::Bitmap;
    return PicExtension::Other;
}

PicPlan PicPlanLoad(uint16_t flags, std::u16string_view source, int32_t largeWidth, int32_t largeHeight) {
    PicPlan plan;
    if (flags & kPicSizeSmall) {
        plan.targetWidth = 16;
        plan.targetHeight = 16;
    } else if (flags & kPicSizeLarge) {
        plan.targetWidth = largeWidth;
        plan.targetHeight = largeHeight;
    }
    plan.extension = PicExtensionOf(source);
    switch (plan.extension) {
    case PicExtension::Module:
        flags |= kPicLoadModule;
        break;
    case PicExtension::Icon:
        flags |= kPicLoadFile | kPicFormatIcon;
        break;
    case PicExtension::Bitmap:
        flags |= kPicLoadFile | kPicFormatBitmap;
        break;
    case PicExtension::Other:
        break;
    }
    plan.flags = flags;
    if (flags & kPicLoadModule)
        plan.source = PicSource::Module;
    else if (flags & kPicLoadFile)
        plan.source = PicSource::File;
    else if (flags & kPicLoadResource)
        plan.source = PicSource::Resource;
    else if (flags & kPicLoadMemory)
        plan.source = PicSource::Memory;
    if (plan.source == PicSource::File) {
        // A file is read by what its name says, whatever the format bits.
        plan.format = plan.extension == PicExtension::Bitmap ? PicFormat::Bitmap
                      : plan.extension == PicExtension::Icon ? PicFormat::Icon
                                                             : PicFormat::None;
    } else if (flags & kPicFormatBitmap) {
        plan.format = PicFormat::Bitmap;
    } else if (flags & kPicFormatIcon) {
        plan.format = PicFormat::Icon;
    }
    return plan;
}

std::optional<uint32_t> PicIconIndex(std::u16string_view name) {
    if (name.empty())
        return 0u;
    if (name[0] != u'#')
        return std::nullopt;
    // The number after "#" as far as it goes; no digits read as 0.
    uint32_t index = 0;
    for (size_t i = 1; i < name.size() && name[i] >= u'0' && name[i] <= u'9'; ++i) {
        index = index * 10 + static_cast<uint32_t>(name[i] - u'0');
        if (index > 0xFFFFu)
            return 0xFFFFu + 1; // no module holds that many; the extraction fails
    }
    return index;
}

} // namespace zk::lbx
