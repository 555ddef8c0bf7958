// Transfer sizes, DOS date and time words, target attributes, the 32-bit
// free space, temporary names and the program-extension test; target names
// through masks and the splitting of destinations, against a file system
// that is a set of folders; paths shortened to a width, measured as ten
// pixels a character.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "os/core/filesums.h"
#include "os/core/path_shorten.h"
#include "os/core/pathmask.h"

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

class TenPerCharacter final : public TextWidth {
public:
    int Of(std::u16string_view text) const override {
        ++calls;
        return static_cast<int>(text.size()) * 10;
    }
    mutable int calls = 0;
};

struct ShortenCase {
    std::u16string_view path;
    int characters; // the width, in characters
    std::u16string_view expected;
};

TEST(ShortenPath, FoldersGiveWayBeforeTheName) {
    const ShortenCase cases[] = {
        {u"C:\\dir\\file.txt", 15, u"C:\\dir\\file.txt"},
        // Folders go from the right of the middle, a whole one at a time.
        {u"C:\\aaa\\bbb\\ccc\\file.txt", 19, u"C:\\aaa\\...\\file.txt"},
        {u"C:\\aaa\\bbb\\ccc\\file.txt", 18, u"C:\\...\\file.txt"},
        {u"C:\\aaa\\bbb\\ccc\\file.txt", 15, u"C:\\...\\file.txt"},
        // A middle of "\..." shrinks to "..." and stops; then the name is cut.
        {u"C:\\aaa\\bbb\\ccc\\file.txt", 14, u"C:...\\file.txt"},
        {u"C:\\aaa\\bbb\\ccc\\file.txt", 12, u"C:...\\fil..."},
        // Server and share stay whole.
        {u"\\\\server\\share\\dir\\sub\\file.txt", 27, u"\\\\server\\share\\...\\file.txt"},
        // A middle under four characters stays; the name is cut to its slash and "...".
        {u"//server/share/dir/file.txt", 20, u"//server/share/dir/..."},
        // Forward slashes when there is no backslash.
        {u"C:/aaa/bbb/file.txt", 17, u"C:/.../file.txt"},
        // A path ending in a folder is all middle.
        {u"C:\\aaa\\bbb\\ccc\\", 12, u"C:\\aaa\\..."},
        // No root, no folder: only the name, down to five characters.
        {u"abcdefghij.txt", 5, u"ab..."},
        {u"abcdefghij.txt", 2, u"a..."},
        // What cannot fit comes back as short as it gets.
        {u"C:\\verylongfilename.txt", 12, u"C:\\verylo..."},
        {u"C:\\x", 1, u"C:\\x"},
    };
    for (const ShortenCase &c : cases) {
        TenPerCharacter measure;
        EXPECT_EQ(Narrow(ShortenPath(c.path, c.characters * 10, measure)), Narrow(c.expected))
            << Narrow(c.path) << " in " << c.characters;
    }
}

TEST(ShortenPath, MeasuresEachCandidateOnce) {
    // A long path takes a number of measures that grows with its folders,
    // not with the square of its length.
    std::u16string path = u"C:";
    for (int i = 0; i < 200; ++i)
        path += u"\\folder";
    path += u"\\name.txt";
    TenPerCharacter measure;
    const std::u16string shortened = ShortenPath(path, 200, measure);
    EXPECT_EQ(Narrow(shortened), "C:\\...\\name.txt");
    EXPECT_LE(measure.calls, 2 + 200 + 2);
}

} // namespace
