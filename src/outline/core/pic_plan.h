// The decisions of a picture load that need no platform: the extension
// rule, which source is read, in which format, and the size to scale to.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zk::lbx {

// Load flag values (the contract of zklib/picture.h, kept here for the core).
inline constexpr uint16_t kPicFormatBitmap = 0x0001;
inline constexpr uint16_t kPicFormatIcon = 0x0002;
inline constexpr uint16_t kPicLoadMemory = 0x0100;
inline constexpr uint16_t kPicLoadModule = 0x0200;
inline constexpr uint16_t kPicLoadFile = 0x0400;
inline constexpr uint16_t kPicLoadResource = 0x0800;
inline constexpr uint16_t kPicSizeSmall = 0x1000;
inline constexpr uint16_t kPicSizeLarge = 0x2000;
inline constexpr uint16_t kPicListOwned = 0x8000;

enum class PicSource { None, Module, File, Resource, Memory };
enum class PicFormat { None, Bitmap, Icon };
// What the part of the source from its first dot reads as.
enum class PicExtension { Other, Module, Icon, Bitmap };

struct PicPlan {
    uint16_t flags = 0; // the caller's, with the bits of the extension added
    PicExtension extension = PicExtension::Other;
    PicSource source = PicSource::None;
    PicFormat format = PicFormat::None;
    int32_t targetWidth = 0; // 0: keep the natural size
    int32_t targetHeight = 0;
};

// The extension runs from the *first* dot of the source to its end, so
// "a.b.BMP" has ".b.BMP" and reads as nothing. Compared without case.
PicExtension PicExtensionOf(std::u16string_view source);

// largeWidth, largeHeight: the system icon size, for PIC_SizeLarge.
PicPlan PicPlanLoad(uint16_t flags, std::u16string_view source, int32_t largeWidth, int32_t largeHeight);

// An icon of a module named "" or "#n" is extracted by index (0 for ""):
// the index, or nothing for a name that is loaded as a resource.
std::optional<uint32_t> PicIconIndex(std::u16string_view name);

// Whether a picture of the natural size must be copied to the target size.
inline bool PicNeedsScaling(const PicPlan &plan, int32_t width, int32_t height) {
    return plan.targetWidth != 0 && (plan.targetWidth != width || plan.targetHeight != height);
}

} // namespace zk::lbx
