// Plain values, counts and texts of the archive format, against byte
// vectors written out by hand.
#include "designer_test.h"

using namespace designertest;
using zk::ArchiveException;
using zk::CArchive;

namespace {

TEST(Archive, FlagsAreOneByteWidenedWithoutSign) {
    EXPECT_EQ(Stored([](CArchive &ar) {
                  ar.WriteFlag(1);
                  ar.WriteFlag(0x1FF);
                  ar.WriteFlag(-1);
              }),
              (Bytes{0x01, 0xFF, 0xFF}));
    zk::CMemFile file = FileOf({0xFF, 0x80});
    CArchive ar(file, CArchive::load);
    EXPECT_EQ(ar.ReadFlag(), 255);
    EXPECT_EQ(ar.ReadFlag(), 128);
}

TEST(Archive, ReadingPastTheEndRaisesEndOfFile) {
    EXPECT_EQ(FailureOf({0x01}, [](CArchive &ar) { ar.ReadU16(); }), ArchiveException::endOfFile);
    EXPECT_EQ(FailureOf({0x01, 0x02, 0x03}, [](CArchive &ar) { ar.ReadU32(); }), ArchiveException::endOfFile);
    EXPECT_EQ(FailureOf({}, [](CArchive &ar) { ar.ReadU8(); }), ArchiveException::endOfFile);
}

TEST(Archive, DirectionAndCloseAreEnforced) {
    zk::CMemFile file;
    CArchive storing(file, CArchive::store);
    EXPECT_THROW(storing.ReadU8(), ArchiveException);
    storing.WriteU8(1);
    storing.Close();
    EXPECT_THROW(storing.WriteU8(2), ArchiveException) << "nothing after Close";
    EXPECT_EQ(file.GetLength(), 1u);
    EXPECT_EQ(FailureOf({1, 2}, [](CArchive &ar) { ar.WriteU8(1); }), ArchiveException::wrongMode);
}

TEST(Archive, CountsTakeTwoBytesUpTo0xFFFEAndSixBeyond) {
    EXPECT_EQ(Stored([](CArchive &ar) { ar.WriteCount(0); }), (Bytes{0x00, 0x00}));
    EXPECT_EQ(Stored([](CArchive &ar) { ar.WriteCount(0xFFFE); }), (Bytes{0xFE, 0xFF}));
    EXPECT_EQ(Stored([](CArchive &ar) { ar.WriteCount(0xFFFF); }), (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00}));
    EXPECT_EQ(Stored([](CArchive &ar) { ar.WriteCount(0x12345); }), (Bytes{0xFF, 0xFF, 0x45, 0x23, 0x01, 0x00}));
    zk::CMemFile file = FileOf({0x03, 0x00, 0xFF, 0xFF, 0x45, 0x23, 0x01, 0x00});
    CArchive ar(file, CArchive::load);
    EXPECT_EQ(ar.ReadCount(), 3u);
    EXPECT_EQ(ar.ReadCount(), 0x12345u);
}

TEST(ArchiveText, ShortTextsHaveTheWideTagAndAOneByteLength) {
    EXPECT_EQ(Stored([](CArchive &ar) { ar.WriteString(u"Ab\u00e9"); }),
              (Bytes{0xFF, 0xFE, 0xFF, 0x03, 'A', 0x00, 'b', 0x00, 0xE9, 0x00}));
    EXPECT_EQ(Stored([](CArchive &ar) { ar.WriteString(u""); }), (Bytes{0xFF, 0xFE, 0xFF, 0x00}));
    zk::CMemFile file = FileOf({0xFF, 0xFE, 0xFF, 0x02, 0x3A, 0x26, 'z', 0x00});
    CArchive ar(file, CArchive::load);
    EXPECT_EQ(ar.ReadString(), u"\u263Az");
}

TEST(ArchiveText, LengthsFrom255TakeTheLongerForms) {
    const std::u16string text255(255, u'x');
    const Bytes got255 = Stored([&](CArchive &ar) { ar.WriteString(text255); });
    EXPECT_EQ(Bytes(got255.begin(), got255.begin() + 6), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0x00}));
    EXPECT_EQ(got255.size(), 6u + 2 * 255);

    // 0xFFFE itself would read as the tag: it takes the four-byte form.
    const std::u16string text65534(0xFFFE, u'y');
    const Bytes gotLong = Stored([&](CArchive &ar) { ar.WriteString(text65534); });
    EXPECT_EQ(Bytes(gotLong.begin(), gotLong.begin() + 10),
              (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}));
    EXPECT_EQ(gotLong.size(), 10u + 2 * 0xFFFE);

    for (const std::u16string *text : {&text255, &text65534}) {
        zk::CMemFile file;
        CArchive out(file, CArchive::store);
        out.WriteString(*text);
        file.SeekToBegin();
        CArchive in(file, CArchive::load);
        EXPECT_EQ(in.ReadString(), *text) << "length " << text->size();
        EXPECT_EQ(in.Remaining(), 0u);
    }
}

TEST(ArchiveText, TextsWithoutTheTagHaveOneBytePerCharacter) {
    zk::CMemFile file = FileOf(Cat({{0x03}, Ascii("abc"), {0x01, 0xE9}}));
    CArchive ar(file, CArchive::load);
    EXPECT_EQ(ar.ReadString(), u"abc");
    EXPECT_EQ(ar.ReadString(), u"\u00e9") << "bytes widen without sign";
    Bytes longForm = {0xFF, 0x00, 0x01};
    longForm.resize(3 + 256, 'q');
    zk::CMemFile longFile = FileOf(longForm);
    CArchive longAr(longFile, CArchive::load);
    EXPECT_EQ(longAr.ReadString(), std::u16string(256, u'q'));
}

TEST(ArchiveText, ALengthBeyondTheFileIsRefusedBeforeAllocating) {
    EXPECT_EQ(FailureOf({0xFF, 0xFE, 0xFF, 0x05, 'a', 0}, [](CArchive &ar) { ar.ReadString(); }),
              ArchiveException::endOfFile);
    EXPECT_EQ(
        FailureOf({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, [](CArchive &ar) { ar.ReadString(); }),
        ArchiveException::endOfFile);
    EXPECT_EQ(FailureOf({0xFF, 0xFE}, [](CArchive &ar) { ar.ReadString(); }), ArchiveException::endOfFile);
}

} // namespace
