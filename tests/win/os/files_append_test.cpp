// ZelFileAppend: one destination grows by every match.
#include "files_support.h"

using namespace filestest;

namespace {

class FileAppend : public FolderTest {};

TEST_F(FileAppend, AddsEveryMatchAndANewTargetTakesTheFirstSourcesMarks) {
    const Bytes a = SampleBytes(70000, 4), b = SampleBytes(10, 5);
    ASSERT_TRUE(SetFileAttributesW(Make(L"p1.txt", a).c_str(), FILE_ATTRIBUTE_HIDDEN));
    Make(L"p2.txt", b);
    Folder(L"p3.txt");
    const std::wstring all = Make(L"all.dat", "head:");
    EXPECT_EQ(2, ZelFileAppend(At(L"p*.txt").c_str(), all.c_str()));
    EXPECT_EQ("head:" + a + b, Read(all));
    EXPECT_EQ(1, ZelFileAppend(At(L"p2.txt").c_str(), all.c_str()));
    EXPECT_EQ("head:" + a + b + b, Read(all));
    EXPECT_EQ(a, Read(At(L"p1.txt")));
    EXPECT_EQ(2, ZelFileAppend(At(L"p*.txt").c_str(), At(L"new.dat").c_str()));
    EXPECT_EQ(a + b, Read(At(L"new.dat")));
    if (Attributes(At(L"p1.txt")) & FILE_ATTRIBUTE_HIDDEN) {
        EXPECT_TRUE(Attributes(At(L"new.dat")) & FILE_ATTRIBUTE_HIDDEN);
    }
}

TEST_F(FileAppend, FileBeyondTheFreeSpaceGivesDiskFull) {
    DWORD sectors = 0, bytes = 0, freeClusters = 0, clusters = 0;
    ASSERT_TRUE(GetDiskFreeSpaceW(dir_.substr(0, 3).c_str(), &sectors, &bytes, &freeClusters, &clusters));
    if (sectors * bytes * freeClusters == 0xFFFFFFFFu)
        GTEST_SKIP() << "free space counts 4 GB - 1 in 32 bits: no file exceeds it";
    ASSERT_TRUE(MakeSparse(At(L"huge.bin"), 0xFFFFFFFFull));
    const std::wstring all = Make(L"all.dat", "kept");
    EXPECT_EQ(ZEL_DISK_FULL, ZelFileAppend(At(L"huge.bin").c_str(), all.c_str()));
    EXPECT_EQ("kept", Read(all));
}

} // namespace
