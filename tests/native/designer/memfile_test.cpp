// The memory file under the archive: one position for reads and writes.
#include "designer_test.h"

using namespace designertest;
using zk::CMemFile;

namespace {

TEST(MemFile, WritesReadsAndSeeksAtOnePosition) {
    CMemFile file(4);
    file.Write("abcdef", 6);
    EXPECT_EQ(file.GetLength(), 6u);
    EXPECT_EQ(file.GetPosition(), 6u);
    char got[8] = {};
    EXPECT_EQ(file.Read(got, 8), 0u) << "nothing after the end";
    EXPECT_EQ(file.Seek(2, CMemFile::begin), 2u);
    EXPECT_EQ(file.Read(got, 8), 4u) << "a read stops at the end";
    EXPECT_STREQ(got, "cdef");
    EXPECT_EQ(file.Seek(-3, CMemFile::end), 3u);
    file.Write("XY", 2);
    EXPECT_EQ(file.Seek(-1, CMemFile::current), 4u);
    file.SeekToBegin();
    char all[7] = {};
    EXPECT_EQ(file.Read(all, 6), 6u);
    EXPECT_STREQ(all, "abcXYf") << "writing inside overwrites, the length stays";
}

TEST(MemFile, WritingPastTheEndFillsTheGapWithZeros) {
    CMemFile file;
    file.Write("a", 1);
    file.Seek(4, CMemFile::begin);
    file.Write("b", 1);
    ASSERT_EQ(file.GetLength(), 5u);
    EXPECT_EQ(Bytes(file.Data(), file.Data() + 5), (Bytes{'a', 0, 0, 0, 'b'}));
}

TEST(MemFile, SeekBeforeTheStartIsAnError) {
    CMemFile file;
    file.Write("abc", 3);
    try {
        file.Seek(-4, CMemFile::end);
        FAIL() << "no exception";
    } catch (const zk::FileException &e) {
        EXPECT_EQ(e.cause, zk::FileException::badSeek);
    }
    EXPECT_EQ(file.GetPosition(), 3u) << "a failed seek leaves the position";
}

TEST(MemFile, SetLengthCutsAndPullsThePositionBack) {
    CMemFile file;
    file.Write("abcdef", 6);
    file.SetLength(2);
    EXPECT_EQ(file.GetLength(), 2u);
    EXPECT_EQ(file.GetPosition(), 2u);
    file.SetLength(4);
    EXPECT_EQ(Bytes(file.Data(), file.Data() + 4), (Bytes{'a', 'b', 0, 0}));
}

} // namespace
