// ZelFileExpand through the platform's LZ functions, on files compressed
// here in the classic format and on plain files.
#include "files_support.h"

using namespace filestest;

namespace {

class FileExpand : public FolderTest {};

TEST_F(FileExpand, ExpandsCompressedFilesExactly) {
    Folder(L"out");
    const Bytes large = SampleBytes(150000, 11);
    ASSERT_LT(SzddCompress(large).size(), large.size() / 2) << "the sample must really be compressed";
    // Leading spaces refer to the ring's first contents.
    const Bytes cases[] = {large, std::string(40, ' ') + "x" + std::string(20, ' '), "", "a",
                           "abcabcabcabcabcabcabcabc"};
    int n = 0;
    for (const Bytes &data : cases) {
        const std::wstring name = L"s" + std::to_wstring(n++);
        SCOPED_TRACE(n);
        Make(name + L".tx_", SzddCompress(data));
        EXPECT_EQ(1, ZelFileExpand(At(name + L".tx_").c_str(), At(L"out\\*.txt").c_str()));
        EXPECT_EQ(data, Read(At(L"out\\" + name + L".txt")));
    }
}

TEST_F(FileExpand, PlainFilesAreCopiedAsTheyStand) {
    const Bytes plain = SampleBytes(20000, 12);
    Make(L"a.dat", plain);
    Make(L"b.dat", SzddCompress(plain));
    Make(L"c.dat", "SZDD but not really"); // a header that is not whole is plain data
    Folder(L"d.dat");
    Folder(L"out");
    EXPECT_EQ(3, ZelFileExpand(At(L"*.dat").c_str(), At(L"out").c_str()));
    EXPECT_EQ(plain, Read(At(L"out\\a.dat")));
    EXPECT_EQ(plain, Read(At(L"out\\b.dat")));
    EXPECT_EQ("SZDD but not really", Read(At(L"out\\c.dat")));
    EXPECT_FALSE(Exists(At(L"out\\d.dat")));
}

TEST_F(FileExpand, BareDestinationLandsInTheCurrentDirectory) {
    Folder(L"in");
    Make(L"in\\r.tx_", SzddCompress("expanded here"));
    EnterFolder();
    EXPECT_EQ(1, ZelFileExpand(L"in\\r.tx_", L"r.txt"));
    EXPECT_EQ("expanded here", Read(At(L"r.txt")));
}

TEST_F(FileExpand, TruncatedCompressedFileDoesNotCrash) {
    const Bytes data = SampleBytes(30000, 13), packed = SzddCompress(data);
    Make(L"cut.tx_", packed.substr(0, packed.size() / 2));
    Folder(L"out");
    const int32_t result = ZelFileExpand(At(L"cut.tx_").c_str(), At(L"out\\*.txt").c_str());
    EXPECT_TRUE(result == 1 || result < 0) << result;
    const Bytes out = Read(At(L"out\\cut.txt"));
    ASSERT_LE(out.size(), data.size()); // the start of the original, never more
    EXPECT_EQ(data.substr(0, out.size() / 2), out.substr(0, out.size() / 2));
}

TEST_F(FileExpand, OntoItselfAndSourceInUseLoseNothing) {
    const Bytes packed = SzddCompress(SampleBytes(3000, 14));
    const std::wstring a = Make(L"a.tx_", packed);
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileExpand(a.c_str(), dir_.c_str()));
    EXPECT_EQ(packed, Read(a));
    EXPECT_FALSE(Exists(At(L"a.txt")));
    // A source in use is not swapped for its compressed name.
    const std::wstring busy = Make(L"b.txt", "plain b");
    Make(L"b.tx_", SzddCompress("the other file"));
    Folder(L"out");
    {
        const Held held(busy);
        ASSERT_TRUE(held.Holds());
        EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileExpand(busy.c_str(), At(L"out\\*.*").c_str()));
    }
    EXPECT_FALSE(Exists(At(L"out\\b.txt")));
}

TEST_F(FileExpand, FolderInTheTargetsPlace) {
    const std::wstring a = Make(L"a.tx_", SzddCompress("a"));
    // A folder standing in the target's place: the file of its compressed
    // name is neither made nor emptied.
    Folder(L"out");
    Folder(L"out\\a.txt");
    EXPECT_EQ(Err(ERROR_ACCESS_DENIED), ZelFileExpand(a.c_str(), At(L"out\\*.txt").c_str()));
    EXPECT_FALSE(Exists(At(L"out\\a.tx_")));
    Make(L"out\\a.tx_", "keep me");
    EXPECT_LT(ZelFileExpand(a.c_str(), At(L"out\\*.txt").c_str()), 0);
    EXPECT_EQ("keep me", Read(At(L"out\\a.tx_")));
}

} // namespace
