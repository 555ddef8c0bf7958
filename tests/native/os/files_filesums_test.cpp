// Transfer sizes, DOS date and time words, target attributes, the 32-bit
// free space, temporary names and the program-extension test.
#include <gtest/gtest.h>

#include "os/core/filesums.h"

using namespace zk::os;

namespace {

TEST(FileSums, TransferSizeIsOneMoreThanTheFileUpToTheLimit) {
    EXPECT_EQ(1u, TransferSize(0));
    EXPECT_EQ(65533u, TransferSize(65532));
    EXPECT_EQ(kTransferLimit, TransferSize(kTransferLimit - 1));
    EXPECT_EQ(kTransferLimit, TransferSize(kTransferLimit));
    EXPECT_EQ(kTransferLimit, TransferSize(~0ull));
}

TEST(FileSums, DosWords) {
    EXPECT_EQ((44 << 9) | (2 << 5) | 29, PackDosDate(2024, 2, 29));
    EXPECT_EQ((13 << 11) | (45 << 5) | 29, PackDosTime(13, 45, 59)); // the odd second rounds down
    EXPECT_EQ(0xFF9F, PackDosDate(2107, 12, 31));
    EXPECT_EQ(0xBF7D, PackDosTime(23, 59, 58));
    // Years before 1980 wrap unchecked: 1970 is -10, kept as 118 (2098).
    EXPECT_EQ((118 << 9) | (6 << 5) | 15, PackDosDate(1970, 6, 15));
}

TEST(FileSums, TargetAttributesAndFreeSpace) {
    EXPECT_EQ(0u, CopyTargetAttributes(0x20 | 0x80)); // archive, normal
    EXPECT_EQ(1u, CopyTargetAttributes(0x1 | 0x2 | 0x4));
    EXPECT_EQ(2u, CopyTargetAttributes(0x2 | 0x4 | 0x20));
    EXPECT_EQ(3u, CopyTargetAttributes(0x4)); // system becomes read-only and hidden
    EXPECT_EQ(8u * 512u * 1000u, FreeBytes32(8, 512, 1000));
    EXPECT_EQ(1u << 30, FreeBytes32(8, 512, (5u << 30) / 4096)); // 5 GB wraps to 1 GB
    EXPECT_EQ(0u, FreeBytes32(8, 512, 1u << 20));
}

TEST(FileSums, TildeBeforeTheFileNameOrNothing) {
    EXPECT_EQ(u"C:\\tmp\\~zk1A2B.tmp", TildeName(u"C:\\tmp\\zk1A2B.tmp"));
    EXPECT_EQ(u"C:~a.tmp", TildeName(u"C:a.tmp"));
    EXPECT_EQ(u"x/~a.tmp", TildeName(u"x/a.tmp"));
    EXPECT_EQ(u"", TildeName(u"C:\\tmp\\~zk1.tmp"));
    EXPECT_EQ(u"", TildeName(u""));
    EXPECT_EQ(u"", TildeName(std::u16string(260, u'a')));
    // The file name without its extension must stay below 256 characters.
    EXPECT_EQ(u"", TildeName(u"\\" + std::u16string(256, u'b')));
    EXPECT_EQ(u"\\~" + std::u16string(255, u'b') + u".t", TildeName(u"\\" + std::u16string(255, u'b') + u".t"));
}

TEST(FileSums, ProgramExtensionAfterTheFirstDotAnywhereInTheList) {
    const std::u16string_view list = u"COM EXE BAT PIF";
    EXPECT_TRUE(ProgramExtensionListed(u"C:\\RUN.BAT", list));
    EXPECT_TRUE(ProgramExtensionListed(u"X.E", list));      // a short one matches inside a word
    EXPECT_FALSE(ProgramExtensionListed(u"A.B.EXE", list)); // the first dot: "B.EXE"
    EXPECT_FALSE(ProgramExtensionListed(u"NOTES.TXT", list));
    EXPECT_FALSE(ProgramExtensionListed(u"README", list));
    EXPECT_FALSE(ProgramExtensionListed(u"ODD.", list));
    EXPECT_FALSE(ProgramExtensionListed(u"APP.EXE", u""));
}

} // namespace
