// Target names through masks and the splitting of destinations, against a
// file system that is a set of folders.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "os/core/pathmask.h"

using namespace zk::os;

namespace {

struct Case {
    std::u16string_view a, b, expected;
};

std::string Narrow(std::u16string_view s) { return std::string(s.begin(), s.end()); }

TEST(ApplyMask, AsTheShellsCopy) {
    const Case cases[] = {
        {u"abc.txt", u"*.bak", u"abc.bak"},
        // A literal does not consume the name, so a ? after it takes the first character.
        {u"abc.txt", u"x*.*", u"xabc.txt"},
        {u"xyz.txt", u"a?c.*", u"axc.txt"},
        {u"old.txt", u"new.txt", u"new.txt"},
        {u"abc.txt", u"??.?", u"ab.t"},
        // Question marks stop at the dot.
        {u"abc.t", u"????????.???", u"abc.t"},
        {u"a.txt", u"?_.*", u"a_.txt"},
        // The extension of a dotless name is empty.
        {u"abc", u"*.bak", u"abc"},
        {u"abc", u"?.*", u"a."},
        {u"abc", u"?.x", u"a.x"},
        // A star with no dot left in the mask takes the rest and ends.
        {u"abc.txt", u"*", u"abc.txt"},
        {u"a.b.c", u"*.*", u"a.b.c"},
        {u"abc.txt", u"x*", u"xabc.txt"},
        {u"a.b.c", u"*.*.bak", u"a.b.bak"}, // the mask's second dot consumes "b."
        {u".profile", u"*.*", u".profile"},
        {u"abc.txt", u"", u""},
        {u"", u"*.*", u""},
        {u"", u"x.y", u"x.y"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(c.expected, ApplyMask(c.a, c.b)) << Narrow(c.a) << " through " << Narrow(c.b);
}

TEST(PathDir, CutAfterTheLastBackslash) {
    EXPECT_EQ(u"C:\\a\\b\\", PathDir(u"C:\\a\\b\\*.txt"));
    EXPECT_EQ(u"\\", PathDir(u"\\x"));
    EXPECT_EQ(u"C:", PathDir(u"C:*.txt"));
    EXPECT_EQ(u"", PathDir(u"a/b/x.txt")); // forward slashes do not count
    EXPECT_EQ(u"a/b\\", PathDir(u"a/b\\x"));
    EXPECT_EQ(u"", PathDir(u""));
}

// Folders are written with a final backslash; drives are letters.
class FakeDisk final : public PathProbe {
public:
    bool IsDir(std::u16string_view path) const override {
        std::u16string p(path);
        if (!p.empty() && p.back() != u'\\')
            p += u'\\';
        return folders_.count(p) != 0;
    }
    int DriveNumber(std::u16string_view path) const override {
        return !path.empty() && (path[0] == u'C' || path[0] == u'Z') ? path[0] - u'A' + 1 : 0;
    }

private:
    std::set<std::u16string> folders_{u"C:\\", u"C:\\out\\", u"C:\\out\\sub\\", u"rel\\"};
};

TEST(SplitTarget, FolderAndMaskOrTheFailure) {
    const struct {
        std::u16string_view target;
        int32_t code;
        std::u16string_view dir, name;
    } cases[] = {
        {u"C:\\out\\*.bak", 0, u"C:\\out\\", u"*.bak"},
        {u"C:\\out\\", 0, u"C:\\out\\", u""},
        {u"rel\\x.txt", 0, u"rel\\", u"x.txt"},
        // An existing folder without its backslash keeps the names.
        {u"C:\\out\\sub", 0, u"C:\\out\\sub\\", u"*.*"},
        {u"rel", 0, u"rel\\", u"*.*"},
        // Bare names give nothing; drive-relative ones the name only.
        {u"x.txt", 0, u"", u""},
        {u"", 0, u"", u""},
        {u"C:x.txt", 0, u"", u"x.txt"},
        // An unknown drive is found before an unknown folder.
        {u"Q:\\out\\x.txt", -15, u"", u""},
        {u"Q:x.txt", -15, u"", u""},
        {u"C:\\out\\missing\\", -3, u"", u""},
        {u"nowhere\\x.txt", -3, u"", u""},
    };
    const FakeDisk disk;
    for (const auto &c : cases) {
        SCOPED_TRACE(Narrow(c.target));
        const SplitResult r = SplitTarget(c.target, disk);
        EXPECT_EQ(c.code, r.code);
        EXPECT_EQ(c.dir, r.dir);
        EXPECT_EQ(c.name, r.name);
    }
}

} // namespace
