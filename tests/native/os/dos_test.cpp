// The listings' filters and the two-second DOS form of their dates;
// search-path pieces, the steps of a nested creation, the four parts of a
// path, a file beside a module.
#include <gtest/gtest.h>

#include "os/core/dos_listing.h"
#include "os/core/dos_pathtext.h"

using namespace zk::os;

namespace {

constexpr uint32_t kReadOnly = 0x1, kHidden = 0x2, kSystem = 0x4, kDir = 0x10, kArchive = 0x20;

TEST(ListingFilters, FoldersWithoutTheirLinks) {
    EXPECT_TRUE(TakesDirectory(u"...", kDir | kHidden));
    EXPECT_TRUE(TakesDirectory(u".git", kDir));
    EXPECT_FALSE(TakesDirectory(u".", kDir));
    EXPECT_FALSE(TakesDirectory(u"..", kDir));
    EXPECT_FALSE(TakesDirectory(u"file.txt", kArchive));
}

TEST(ListingFilters, PlainListingWantsEveryMaskBitDetailedAny) {
    const struct {
        uint32_t mask, attributes;
        bool plain, detailed;
    } cases[] = {
        {0, kArchive, true, true},
        {0, kReadOnly, true, true},
        {0, kHidden, false, true},
        {0, kSystem | kArchive, false, true},
        {0, kDir, false, false},
        {kHidden | kSystem, kHidden | kSystem | kArchive, true, true},
        {kHidden | kSystem, kHidden, false, true},
        {kHidden | kSystem, kArchive | kReadOnly, false, false},
        {kHidden | kSystem, kDir | kHidden, false, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "mask " << c.mask << " attributes " << c.attributes);
        EXPECT_EQ(c.plain, TakesFile(c.mask, c.attributes));
        EXPECT_EQ(c.detailed, TakesFileInfo(c.mask, c.attributes));
    }
}

TEST(ListingTime, OddSecondsGoDownAndYearsOutsideTheFormGo) {
    EXPECT_EQ((CivilTime{2024, 2, 29, 13, 45, 58}), ListingTime({2024, 2, 29, 13, 45, 59}));
    EXPECT_EQ((CivilTime{1980, 1, 1, 0, 0, 0}), ListingTime({1980, 1, 1, 0, 0, 1}));
    EXPECT_EQ((CivilTime{2107, 12, 31, 23, 59, 58}), ListingTime({2107, 12, 31, 23, 59, 59}));
    EXPECT_FALSE(ListingTime({1979, 12, 31, 23, 59, 59}).has_value());
    EXPECT_FALSE(ListingTime({2108, 1, 1, 0, 0, 0}).has_value());
    EXPECT_FALSE(ToDosWords({1601, 1, 1, 0, 0, 0}).has_value());
}

TEST(ListingTime, WordsAsThePlatformPacksThem) {
    const DosWords words = *ToDosWords({2024, 2, 29, 13, 45, 59});
    EXPECT_EQ((44 << 9) | (2 << 5) | 29, words.date);
    EXPECT_EQ((13 << 11) | (45 << 5) | 29, words.time);
    EXPECT_EQ((CivilTime{2107, 12, 31, 23, 59, 58}), FromDosWords({0xFF9F, 0xBF7D}));
    EXPECT_EQ((CivilTime{1980, 0, 0, 0, 0, 0}), FromDosWords({0, 0}));
}

using Texts = std::vector<std::u16string>;

TEST(SearchPath, PiecesEndInABackslashAndEmptyOnesGo) {
    EXPECT_EQ((Texts{u"C:\\bin\\", u"D:\\tools\\", u"E:\\x\\"}), SearchPathPieces(u"C:\\bin;D:\\tools\\;;E:\\x;"));
    EXPECT_EQ((Texts{u" \\"}), SearchPathPieces(u" "));
    EXPECT_TRUE(SearchPathPieces(u";;;").empty());
}

TEST(MakeAllDir, StepsFromTheOutsideInPassingTheRootAndNoneForARoot) {
    EXPECT_EQ((Texts{u"C:\\a", u"C:\\a\\b", u"C:\\a\\b\\c"}), MakeAllDirSteps(u"C:\\a\\b\\c"));
    EXPECT_EQ((Texts{u"C:\\a", u"C:\\a\\b"}), MakeAllDirSteps(u"C:\\a\\b\\"));
    EXPECT_EQ((Texts{u"\\top"}), MakeAllDirSteps(u"\\top"));
    EXPECT_EQ((Texts{u"C:a"}), MakeAllDirSteps(u"C:a")); // relative to a drive's current folder
    for (const char16_t *root : {u"", u"C:\\", u"C:", u"\\"})
        EXPECT_TRUE(MakeAllDirSteps(root).empty());
}

void ExpectParts(std::u16string_view path, std::u16string_view drive, std::u16string_view dir, std::u16string_view name,
                 std::u16string_view ext) {
    const PathParts p = SplitPathParts(path);
    EXPECT_EQ(drive, p.drive);
    EXPECT_EQ(dir, p.dir);
    EXPECT_EQ(name, p.name);
    EXPECT_EQ(ext, p.ext);
}

TEST(SplitPath, FourPartsAsTheClassicRuntime) {
    ExpectParts(u"C:\\dir\\sub\\name.ext", u"C:", u"\\dir\\sub\\", u"name", u".ext");
    ExpectParts(u"name.tar.gz", u"", u"", u"name.tar", u".gz");
    ExpectParts(u"d:rel/x", u"d:", u"rel/", u"x", u"");
    ExpectParts(u"\\\\server\\share\\f.", u"", u"\\\\server\\share\\", u"f", u".");
    ExpectParts(u".profile", u"", u"", u"", u".profile");
    ExpectParts(u"C:", u"C:", u"", u"", u"");
}

TEST(SplitPath, PartsAreCutToTheirBuffers) {
    const std::u16string longDir(300, u'd'), longName(300, u'n'), longExt(300, u'e');
    const PathParts p = SplitPathParts(u"C:\\" + longDir + u"\\" + longName + u"." + longExt);
    EXPECT_EQ(kPartChars, p.dir.size());
    EXPECT_EQ(u'\\', p.dir.front());
    EXPECT_EQ(kPartChars, p.name.size());
    EXPECT_EQ(kPartChars, p.ext.size());
    EXPECT_EQ(u'.', p.ext.front());
}

TEST(BesideModule, NamePartReplaced) {
    EXPECT_EQ(u"C:\\app\\data.ini", BesideModule(u"C:\\app\\prog.exe", u"data.ini"));
    EXPECT_EQ(u"C:\\app\\", BesideModule(u"C:\\app\\prog.exe", u""));
}

} // namespace
