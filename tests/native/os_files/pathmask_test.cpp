// Target names through masks and the splitting of destinations, against a
// file system that is a set of folders.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "os/pathmask.h"

using zk::os::ApplyMask;
using zk::os::PathDir;
using zk::os::SplitTarget;

namespace {

TEST(ApplyMask, ShellCopyCases) {
    EXPECT_EQ(u"abc.bak", ApplyMask(u"abc.txt", u"*.bak"));
    EXPECT_EQ(u"abc.txt", ApplyMask(u"abc.txt", u"*.*"));
    // A literal does not consume the name: x*.* keeps all of abc.
    EXPECT_EQ(u"xabc.txt", ApplyMask(u"abc.txt", u"x*.*"));
    // ... so the ? after a literal takes the name's first character.
    EXPECT_EQ(u"axc.txt", ApplyMask(u"xyz.txt", u"a?c.*"));
    EXPECT_EQ(u"new.txt", ApplyMask(u"old.txt", u"new.txt"));
    EXPECT_EQ(u"ab.t", ApplyMask(u"abc.txt", u"??.?"));
}

TEST(ApplyMask, QuestionMarksStopAtTheDot) {
    EXPECT_EQ(u"ab.txt", ApplyMask(u"ab.txt", u"????.???"));
    EXPECT_EQ(u"abc.t", ApplyMask(u"abc.t", u"????????.???"));
    EXPECT_EQ(u"a_.txt", ApplyMask(u"a.txt", u"?_.*"));
}

TEST(ApplyMask, NamesWithoutDot) {
    EXPECT_EQ(u"abc", ApplyMask(u"abc", u"*.*"));
    EXPECT_EQ(u"abc", ApplyMask(u"abc", u"*.bak"));
    // The extension of a dotless name is empty: what the mask asks of it is nothing.
    EXPECT_EQ(u"a.", ApplyMask(u"abc", u"?.*"));
    EXPECT_EQ(u"a.x", ApplyMask(u"abc", u"?.x"));
}

TEST(ApplyMask, StarWithoutDotLeftInTheMaskTakesTheRestAndEnds) {
    EXPECT_EQ(u"abc.txt", ApplyMask(u"abc.txt", u"*"));
    EXPECT_EQ(u"a.b.c", ApplyMask(u"a.b.c", u"*.*"));
    EXPECT_EQ(u"xabc.txt", ApplyMask(u"abc.txt", u"x*"));
    EXPECT_EQ(u"a.b.bak", ApplyMask(u"a.b.c", u"*.*.bak")); // the second dot of the mask consumes "b."
    EXPECT_EQ(u".profile", ApplyMask(u".profile", u"*.*"));
}

TEST(ApplyMask, EmptyMaskOrName) {
    EXPECT_EQ(u"", ApplyMask(u"abc.txt", u""));
    EXPECT_EQ(u"", ApplyMask(u"", u"*.*"));
    EXPECT_EQ(u"x.y", ApplyMask(u"", u"x.y"));
}

TEST(PathDir, CutAfterTheLastBackslash) {
    EXPECT_EQ(u"C:\\a\\b\\", PathDir(u"C:\\a\\b\\*.txt"));
    EXPECT_EQ(u"\\", PathDir(u"\\x"));
    EXPECT_EQ(u"C:", PathDir(u"C:*.txt"));
    EXPECT_EQ(u"", PathDir(u"x.txt"));
    EXPECT_EQ(u"", PathDir(u"a/b/x.txt")); // forward slashes do not count
    EXPECT_EQ(u"a/b\\", PathDir(u"a/b\\x"));
    EXPECT_EQ(u"", PathDir(u""));
}

// Folders are written with a final backslash; drives are letters.
class FakeDisk final : public zk::os::PathProbe {
public:
    FakeDisk(std::set<std::u16string> folders, std::u16string drives)
        : folders_(std::move(folders)), drives_(std::move(drives)) {}
    bool IsDir(std::u16string_view path) const override {
        ++isDirCalls;
        std::u16string p(path);
        if (p.empty())
            return false;
        if (p.back() != u'\\')
            p += u'\\';
        return folders_.count(p) != 0;
    }
    int DriveNumber(std::u16string_view path) const override {
        return !path.empty() && drives_.find(path[0]) != std::u16string::npos ? path[0] - u'A' + 1 : 0;
    }
    mutable int isDirCalls = 0;

private:
    std::set<std::u16string> folders_;
    std::u16string drives_;
};

const FakeDisk &Disk() {
    static const FakeDisk disk({u"C:\\", u"C:\\out\\", u"C:\\out\\sub\\", u"rel\\"}, u"CZ");
    return disk;
}

void ExpectSplit(std::u16string_view target, int32_t code, std::u16string_view dir, std::u16string_view name) {
    const zk::os::SplitResult r = SplitTarget(target, Disk());
    EXPECT_EQ(code, r.code) << "target " << std::string(target.begin(), target.end());
    EXPECT_EQ(dir, r.dir);
    EXPECT_EQ(name, r.name);
}

TEST(SplitTarget, FolderAndMask) {
    ExpectSplit(u"C:\\out\\*.bak", 0, u"C:\\out\\", u"*.bak");
    ExpectSplit(u"C:\\out\\new.txt", 0, u"C:\\out\\", u"new.txt");
    ExpectSplit(u"C:\\out\\", 0, u"C:\\out\\", u"");
    ExpectSplit(u"C:\\x.txt", 0, u"C:\\", u"x.txt");
    ExpectSplit(u"rel\\x.txt", 0, u"rel\\", u"x.txt");
}

TEST(SplitTarget, ExistingFolderWithoutBackslashKeepsTheNames) {
    ExpectSplit(u"C:\\out", 0, u"C:\\out\\", u"*.*");
    ExpectSplit(u"C:\\out\\sub", 0, u"C:\\out\\sub\\", u"*.*");
    ExpectSplit(u"rel", 0, u"rel\\", u"*.*");
}

TEST(SplitTarget, BareNamesGiveNothing) {
    ExpectSplit(u"x.txt", 0, u"", u"");
    ExpectSplit(u"", 0, u"", u"");
    ExpectSplit(u"C:x.txt", 0, u"", u"x.txt"); // drive-relative: the name only
}

TEST(SplitTarget, UnknownDriveThenUnknownFolder) {
    ExpectSplit(u"Q:\\out\\x.txt", -15, u"", u"");
    ExpectSplit(u"Q:x.txt", -15, u"", u"");
    ExpectSplit(u"C:\\missing\\x.txt", -3, u"", u"");
    ExpectSplit(u"C:\\out\\missing\\", -3, u"", u"");
    ExpectSplit(u"nowhere\\x.txt", -3, u"", u"");
}

} // namespace
