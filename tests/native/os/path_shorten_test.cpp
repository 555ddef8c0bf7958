// Paths shortened to a width, measured as ten pixels a character.
#include <gtest/gtest.h>

#include <string>

#include "os/core/path_shorten.h"

using namespace zk::os;

namespace {

class TenPerCharacter final : public TextWidth {
public:
    int Of(std::u16string_view text) const override {
        ++calls;
        return static_cast<int>(text.size()) * 10;
    }
    mutable int calls = 0;
};

std::string Narrow(std::u16string_view s) { return std::string(s.begin(), s.end()); }

struct Case {
    std::u16string_view path;
    int characters; // the width, in characters
    std::u16string_view expected;
};

TEST(ShortenPath, FoldersGiveWayBeforeTheName) {
    const Case cases[] = {
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
    for (const Case &c : cases) {
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
