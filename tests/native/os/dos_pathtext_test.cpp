// Search-path pieces, the steps of a nested creation, the four parts of a
// path, a file beside a module.
#include <gtest/gtest.h>

#include "os/core/dos_pathtext.h"

using namespace zk::os;

namespace {

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
