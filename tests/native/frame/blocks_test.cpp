// SPropGeneric and the block helpers: the byte image, versions, short and
// damaged records.
#include "designer_test.h"
#include "frame/core/generic_block.h"

using namespace designertest;
using zk::SPropGeneric;

namespace {

std::vector<int32_t> Styles(const SPropGeneric &b) {
    return {b.style1, b.style2, b.style3, b.style4, b.style5, b.style6};
}

const std::vector<int32_t> kDefaults = {0, 1, 0, 1, 0, 1};

TEST(GenericBlock, AnyVersionButZeroIsReadAndBytesWidenWithoutSign) {
    const Bytes image = {0x07, 0x00, 0x00, 0x80, 0xFF, 0x02, 0x00, 0x00, 0x01, 0x80};
    SPropGeneric block;
    EXPECT_TRUE(zk::LoadBlockBytes(image.data(), image.size(), block));
    EXPECT_EQ(Styles(block), (std::vector<int32_t>{255, 2, 0, 0, 1, 128}));
}

TEST(GenericBlock, VersionZeroKeepsTheFieldsAndReadsNothingMore) {
    // A version-0 record followed by a second block: the second still reads
    // from the byte after the version word.
    const Bytes image = {0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01};
    zk::CMemFile file = FileOf(image);
    SPropGeneric first, second;
    first.style1 = 5;
    ASSERT_TRUE(zk::LoadBlock(file, first));
    EXPECT_EQ(first.style1, 5);
    EXPECT_EQ(file.GetPosition(), 4u);
    ASSERT_TRUE(zk::LoadBlock(file, second));
    EXPECT_EQ(Styles(second), (std::vector<int32_t>{1, 1, 1, 1, 1, 1}));
}

TEST(GenericBlock, AShortRecordKeepsTheDefaultsOfWhatItLacks) {
    const Bytes empty;
    SPropGeneric none;
    EXPECT_FALSE(zk::LoadBlockBytes(empty.data(), 0, none)) << "no version word";
    EXPECT_EQ(Styles(none), kDefaults);

    const Bytes partial = {0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x01};
    SPropGeneric some;
    EXPECT_FALSE(zk::LoadBlockBytes(partial.data(), partial.size(), some));
    EXPECT_EQ(Styles(some), (std::vector<int32_t>{1, 0, 1, 1, 0, 1})) << "three read, three defaults";

    const Bytes versionOnly = {0x01, 0x00};
    SPropGeneric cut;
    EXPECT_FALSE(zk::LoadBlockBytes(versionOnly.data(), versionOnly.size(), cut));
    EXPECT_EQ(Styles(cut), kDefaults);
}

TEST(HeldBlock, TheBlockIsFollowedByAVersionWordThatIsReadAndIgnored) {
    SPropGeneric block;
    zk::CMemFile file;
    {
        zk::CArchive ar(file, zk::CArchive::store);
        zk::SerializeHeldBlock(ar, block);
    }
    const Bytes image(file.Data(), file.Data() + file.GetLength());
    EXPECT_EQ(image, (Bytes{0x01, 0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x01, 0x00, 0x01, 0x01, 0x00, 0x00, 0x00}));
    Bytes other = image;
    other[10] = 0x09; // any value of the trailing word
    zk::CMemFile in = FileOf(other);
    zk::CArchive ar(in, zk::CArchive::load);
    SPropGeneric back;
    zk::SerializeHeldBlock(ar, back);
    EXPECT_EQ(in.Remaining(), 0u);
}

} // namespace
