// Which source and format a picture load takes, and at what size.
#include <gtest/gtest.h>

#include "outline/core/pic_plan.h"

using namespace zk::lbx;

using namespace zk;

namespace {

TEST(PicPlan, ExtensionFromTheFirstDot) {
    EXPECT_EQ(PicExtensionOf(u"ZKLIB.dll"), PicExtension::Module);
    EXPECT_EQ(PicExtensionOf(u"app.EXE"), PicExtension::Module);
    EXPECT_EQ(PicExtensionOf(u"c:\\art\\x.Bmp"), PicExtension::Bitmap);
    EXPECT_EQ(PicExtensionOf(u"x.ico"), PicExtension::Icon);
    EXPECT_EQ(PicExtensionOf(u"a.b.BMP"), PicExtension::Other); // ".b.BMP"
    EXPECT_EQ(PicExtensionOf(u"c:\\dir.v2\\x.bmp"), PicExtension::Other);
    EXPECT_EQ(PicExtensionOf(u"x.bmpx"), PicExtension::Other);
    EXPECT_EQ(PicExtensionOf(u"noext"), PicExtension::Other);
    EXPECT_EQ(PicExtensionOf(u""), PicExtension::Other);
}

TEST(PicPlan, ExtensionAddsSourceAndFormat) {
    PicPlan p = PicPlanLoad(kPicListOwned | kPicFormatBitmap, u"ZKLIB.dll", 32, 32);
    EXPECT_EQ(p.flags, kPicListOwned | kPicFormatBitmap | kPicLoadModule);
    EXPECT_EQ(p.source, PicSource::Module);
    EXPECT_EQ(p.format, PicFormat::Bitmap);
    p = PicPlanLoad(0, u"pic.ico", 32, 32);
    EXPECT_EQ(p.flags, kPicLoadFile | kPicFormatIcon);
    EXPECT_EQ(p.source, PicSource::File);
    EXPECT_EQ(p.format, PicFormat::Icon);
    // A file with another extension is the empty picture, whatever the bits.
    p = PicPlanLoad(kPicLoadFile | kPicFormatBitmap, u"a.b.BMP", 32, 32);
    EXPECT_EQ(p.source, PicSource::File);
    EXPECT_EQ(p.format, PicFormat::None);
    // A load from memory whose bytes read as a name takes the name's route.
    p = PicPlanLoad(kPicLoadMemory | kPicFormatBitmap, u"x.dll", 32, 32);
    EXPECT_EQ(p.source, PicSource::Module);
}

TEST(PicPlan, FirstSourceBitDecides) {
    const uint16_t all = kPicLoadMemory | kPicLoadModule | kPicLoadFile | kPicLoadResource;
    EXPECT_EQ(PicPlanLoad(all, u"r", 0, 0).source, PicSource::Module);
    EXPECT_EQ(PicPlanLoad(all & ~kPicLoadModule, u"r", 0, 0).source, PicSource::File);
    EXPECT_EQ(PicPlanLoad(kPicLoadResource | kPicLoadMemory, u"r", 0, 0).source, PicSource::Resource);
    EXPECT_EQ(PicPlanLoad(kPicLoadMemory, u"r", 0, 0).source, PicSource::Memory);
    EXPECT_EQ(PicPlanLoad(kPicFormatBitmap, u"r", 0, 0).source, PicSource::None);
    EXPECT_EQ(PicPlanLoad(kPicLoadModule | kPicFormatIcon | kPicFormatBitmap, u"m", 0, 0).format, PicFormat::Bitmap);
    EXPECT_EQ(PicPlanLoad(kPicLoadMemory, u"m", 0, 0).format, PicFormat::None);
}

TEST(PicPlan, SmallWinsOverLarge) {
    PicPlan p = PicPlanLoad(kPicSizeSmall | kPicSizeLarge, u"", 48, 40);
    EXPECT_EQ(p.targetWidth, 16);
    EXPECT_EQ(p.targetHeight, 16);
    p = PicPlanLoad(kPicSizeLarge, u"", 48, 40);
    EXPECT_EQ(p.targetWidth, 48);
    EXPECT_EQ(p.targetHeight, 40);
    p = PicPlanLoad(0, u"", 48, 40);
    EXPECT_EQ(p.targetWidth, 0);
    EXPECT_FALSE(PicNeedsScaling(p, 7, 9));
    p = PicPlanLoad(kPicSizeSmall, u"", 48, 40);
    EXPECT_FALSE(PicNeedsScaling(p, 16, 16));
    EXPECT_TRUE(PicNeedsScaling(p, 16, 15));
    EXPECT_TRUE(PicNeedsScaling(p, 32, 16));
}

TEST(PicPlan, IconIndexOfAName) {
    EXPECT_EQ(PicIconIndex(u""), 0u);
    EXPECT_EQ(PicIconIndex(u"#3"), 3u);
    EXPECT_EQ(PicIconIndex(u"#12x"), 12u);
    EXPECT_EQ(PicIconIndex(u"#"), 0u);
    EXPECT_EQ(PicIconIndex(u"#99999999999"), 0x10000u);
    EXPECT_FALSE(PicIconIndex(u"ZK").has_value());
    EXPECT_FALSE(PicIconIndex(u"3").has_value());
}

} // namespace
