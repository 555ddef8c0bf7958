// Tagged objects and object arrays: new-class tags, class indices shared
// through one archive, null elements, and the reader's refusals.
#include "designer_test.h"
#include "frame/core/obarray.h"

using namespace designertest;
using zk::ArchiveException;
using zk::CArchive;

namespace {

std::unique_ptr<SColorItem> Colour(int32_t value) {
    auto item = std::make_unique<SColorItem>();
    item->colour = value;
    return item;
}

// u16 0xFFFF, u16 schema 1, u16 name length, the name.
Bytes NewClass(const char *name) {
    const auto length = static_cast<uint8_t>(std::char_traits<char>::length(name));
    return Cat({{0xFF, 0xFF, 0x01, 0x00, length, 0x00}, Ascii(name)});
}

Bytes ColourBody(uint32_t value) {
    return {0x01,
            0x00,
            0x00,
            0x00,
            static_cast<uint8_t>(value),
            static_cast<uint8_t>(value >> 8),
            static_cast<uint8_t>(value >> 16),
            static_cast<uint8_t>(value >> 24)};
}

TEST(ArchiveObjects, IndicesCountClassesAndObjectsThroughTheWholeArchive) {
    SColorItem c1, c2;
    SMenuItem m1, m2;
    c1.colour = 1;
    c2.colour = 2;
    m1.text = u"A";
    m2.text = u"B";
    const Bytes got = Stored([&](CArchive &ar) {
        ar.WriteObject(&c1); // class 1, object 2
        ar.WriteObject(&m1); // class 3, object 4
        ar.WriteObject(&m2); // object 5, of class 3
        ar.WriteObject(&c2); // object 6, of class 1
    });
    const Bytes textA = {0xFF, 0xFE, 0xFF, 0x01, 'A', 0x00};
    const Bytes textB = {0xFF, 0xFE, 0xFF, 0x01, 'B', 0x00};
    EXPECT_EQ(got, Cat({NewClass("SColorItem"),
                        ColourBody(1),
                        NewClass("SMenuItem"),
                        textA,
                        {0x03, 0x80},
                        textB,
                        {0x01, 0x80},
                        ColourBody(2)}));

    zk::CMemFile file = FileOf(got);
    CArchive ar(file, CArchive::load);
    EXPECT_EQ(ar.ReadObjectAs<SColorItem>()->colour, 1);
    EXPECT_EQ(ar.ReadObjectAs<SMenuItem>()->text, u"A");
    EXPECT_EQ(ar.ReadObjectAs<SMenuItem>()->text, u"B");
    EXPECT_EQ(ar.ReadObjectAs<SColorItem>()->colour, 2);
    EXPECT_EQ(ar.Remaining(), 0u);
}

TEST(ArchiveObjects, IndicesFrom0x7FFFTakeTheBigTag) {
    // Class SColorItem is index 1; objects 2 to 0x7FFF; SMenuItem becomes 0x8000.
    std::vector<SColorItem> colours(0x7FFE);
    SMenuItem first, second;
    const Bytes got = Stored([&](CArchive &ar) {
        for (const SColorItem &c : colours)
            ar.WriteObject(&c);
        ar.WriteObject(&first);
        ar.WriteObject(&second);
    });
    const Bytes tail = Cat({NewClass("SMenuItem"),
                            {0xFF, 0xFE, 0xFF, 0x00},
                            {0xFF, 0x7F, 0x00, 0x80, 0x00, 0x80},
                            {0xFF, 0xFE, 0xFF, 0x00}});
    ASSERT_GE(got.size(), tail.size());
    EXPECT_EQ(Bytes(got.end() - static_cast<long>(tail.size()), got.end()), tail);

    zk::CMemFile file = FileOf(got);
    CArchive ar(file, CArchive::load);
    for (size_t i = 0; i < colours.size(); ++i)
        ASSERT_TRUE(ar.ReadObjectAs<SColorItem>());
    EXPECT_TRUE(ar.ReadObjectAs<SMenuItem>());
    EXPECT_TRUE(ar.ReadObjectAs<SMenuItem>()) << "the big class tag is read back";
}

TEST(ArchiveObjects, ArraysHoldACountAndTaggedElementsNullsIncluded) {
    zk::ObArray<SColorItem> array;
    array.Add(Colour(7));
    array.Add(nullptr);
    array.Add(Colour(8));
    const Bytes got = Stored([&](CArchive &ar) { array.Serialize(ar); });
    EXPECT_EQ(got,
              Cat({{0x03, 0x00}, NewClass("SColorItem"), ColourBody(7), {0x00, 0x00}, {0x01, 0x80}, ColourBody(8)}));

    zk::ObArray<SColorItem> back;
    zk::CMemFile file = FileOf(got);
    CArchive ar(file, CArchive::load);
    back.Serialize(ar);
    ASSERT_EQ(back.size(), 3u);
    EXPECT_EQ(back.at(0)->colour, 7);
    EXPECT_EQ(back.at(1), nullptr);
    EXPECT_EQ(back.at(2)->colour, 8);
}

TEST(ArchiveObjects, TheReaderRefusesWhatThisFormatCannotHold) {
    auto readColour = [](CArchive &ar) { ar.ReadObjectAs<SColorItem>(); };
    EXPECT_EQ(FailureOf(Cat({NewClass("SMenuItem"), {0xFF, 0xFE, 0xFF, 0x00}}), readColour), ArchiveException::badClass)
        << "another class than the one expected";
    EXPECT_EQ(FailureOf({0x05, 0x80}, readColour), ArchiveException::badIndex) << "a class never read";
    EXPECT_EQ(FailureOf(Cat({NewClass("SColorItem"), ColourBody(1), {0x02, 0x00}}),
                        [](CArchive &ar) {
                            ar.ReadObjectAs<SColorItem>();
                            ar.ReadObjectAs<SColorItem>();
                        }),
              ArchiveException::badIndex)
        << "a reference to an object read before";
    EXPECT_EQ(FailureOf(Cat({NewClass("SColorItem"), ColourBody(1), {0x01, 0x80}}),
                        [](CArchive &ar) {
                            ar.ReadObjectAs<SColorItem>();
                            ar.ReadObjectAs<SMenuItem>();
                        }),
              ArchiveException::badClass)
        << "a known class where another is expected";
    Bytes longName = {0xFF, 0xFF, 0x01, 0x00, 0x40, 0x00};
    longName.resize(longName.size() + 0x40, 'N');
    EXPECT_EQ(FailureOf(longName, readColour), ArchiveException::badClass) << "a name of 64 characters";
    EXPECT_EQ(FailureOf({0xFF, 0xFF, 0x01, 0x00, 0x0A, 0x00, 'S', 'C'}, readColour), ArchiveException::endOfFile);
    EXPECT_EQ(FailureOf({0xFF, 0x7F, 0x01, 0x00, 0x00, 0x00}, readColour), ArchiveException::badIndex)
        << "a big tag without the class bit";
}

TEST(ArchiveObjects, AnArrayThatFailsPartWayKeepsWhatItHad) {
    zk::ObArray<SColorItem> array;
    array.Add(Colour(42));
    const Bytes truncated = Cat({{0x02, 0x00}, NewClass("SColorItem"), ColourBody(1), {0x01, 0x80}, {0x01}});
    zk::CMemFile file = FileOf(truncated);
    CArchive ar(file, CArchive::load);
    EXPECT_THROW(array.Serialize(ar), ArchiveException);
    ASSERT_EQ(array.size(), 1u);
    EXPECT_EQ(array.at(0)->colour, 42);
}

TEST(ArchiveObjects, AHugeCountRunsOutOfBytesNotOfMemory) {
    zk::ObArray<SColorItem> array;
    zk::CMemFile file = FileOf({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 0x00, 0x00, 0x00, 0x00});
    CArchive ar(file, CArchive::load);
    EXPECT_THROW(array.Serialize(ar), ArchiveException) << "two null elements, then the end";
    EXPECT_EQ(array.size(), 0u);
}

} // namespace
