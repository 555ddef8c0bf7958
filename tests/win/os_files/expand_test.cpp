// ZelFileExpand through the platform's LZ functions, on files compressed
// here in the classic format and on plain files.
#include "files_support.h"
#include "szdd.h"

using namespace filestest;

namespace {

class FileExpand : public FolderTest {};

TEST(Szdd, CompressorAndReaderAgree) {
    for (size_t size : {size_t{0}, size_t{1}, size_t{17}, size_t{5000}, size_t{100000}}) {
        const Bytes data = SampleBytes(size, static_cast<uint32_t>(size) + 7);
        const Bytes packed = SzddCompress(data);
        Bytes back;
        ASSERT_TRUE(SzddExpand(packed, back)) << size;
        EXPECT_EQ(data, back) << size;
        if (size >= 5000) {
            EXPECT_LT(packed.size(), data.size() / 2) << "the sample must really be compressed";
        }
    }
    // A file that starts with spaces refers to the ring's first contents.
    const Bytes spaces = std::string(40, ' ') + "x" + std::string(20, ' ');
    Bytes back;
    ASSERT_TRUE(SzddExpand(SzddCompress(spaces), back));
    EXPECT_EQ(spaces, back);
    EXPECT_LT(SzddCompress(spaces).size(), 14 + spaces.size() / 2);
}

TEST_F(FileExpand, ExpandsCompressedFilesUnderTheMask) {
    const Bytes data = SampleBytes(150000, 11);
    const Bytes packed = SzddCompress(data);
    ASSERT_LT(packed.size(), data.size() / 2);
    Make(L"data.tx_", packed);
    Folder(L"out");
    EXPECT_EQ(1, ZelFileExpand(At(L"data.tx_").c_str(), At(L"out\\*.txt").c_str()));
    EXPECT_EQ(data, Read(At(L"out\\data.txt"))) << "the platform's expansion differs from the original";
}

TEST_F(FileExpand, StartingSpacesAndShortFilesExpandExactly) {
    Folder(L"out");
    const Bytes cases[] = {std::string(40, ' ') + "x" + std::string(20, ' '), "", "a", "abcabcabcabcabcabcabcabc"};
    int n = 0;
    for (const Bytes &data : cases) {
        const std::wstring name = L"s" + std::to_wstring(n++) + L".tx_";
        Make(name, SzddCompress(data));
        EXPECT_EQ(1, ZelFileExpand(At(name).c_str(), At(L"out\\*.txt").c_str()));
        EXPECT_EQ(data, Read(At(L"out\\" + name.substr(0, name.size() - 4) + L".txt"))) << n;
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

TEST_F(FileExpand, OntoItselfFailsAndLosesNothing) {
    const Bytes packed = SzddCompress(SampleBytes(3000, 14));
    const std::wstring a = Make(L"a.tx_", packed);
    EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileExpand(a.c_str(), dir_.c_str()));
    EXPECT_EQ(packed, Read(a));
    const std::wstring plain = Make(L"p.txt", "plain");
    EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileExpand(plain.c_str(), plain.c_str()));
    EXPECT_EQ("plain", Read(plain));
    EXPECT_FALSE(Exists(At(L"p.tx_")));
}

TEST_F(FileExpand, SourceInUseIsNotSwappedForItsCompressedName) {
    const std::wstring busy = Make(L"b.txt", "plain b");
    Make(L"b.tx_", SzddCompress("the other file"));
    Folder(L"out");
    {
        const Held held(busy);
        ASSERT_TRUE(held.Holds());
        EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION),
                  ZelFileExpand(busy.c_str(), At(L"out\\*.*").c_str()));
    }
    EXPECT_FALSE(Exists(At(L"out\\b.txt")));
}

TEST_F(FileExpand, TruncatedCompressedFileDoesNotCrash) {
    const Bytes data = SampleBytes(30000, 13);
    const Bytes packed = SzddCompress(data);
    Make(L"cut.tx_", packed.substr(0, packed.size() / 2));
    Folder(L"out");
    const int32_t result = ZelFileExpand(At(L"cut.tx_").c_str(), At(L"out\\*.txt").c_str());
    EXPECT_TRUE(result == 1 || result < 0) << result;
    const Bytes out = Read(At(L"out\\cut.txt"));
    // What came out is the start of the original, never more than it.
    ASSERT_LE(out.size(), data.size());
    EXPECT_EQ(data.substr(0, out.size() / 2), out.substr(0, out.size() / 2));
}

TEST_F(FileExpand, Failures) {
    const std::wstring a = Make(L"a.tx_", SzddCompress("a"));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileExpand(nullptr, dir_.c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileExpand(a.c_str(), nullptr));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_FILE_NOT_FOUND), ZelFileExpand(At(L"*.none").c_str(), dir_.c_str()));
    EXPECT_EQ(ZEL_PATH_NOT_FOUND, ZelFileExpand(a.c_str(), At(L"missing\\a.txt").c_str()));
    const std::wstring drive = MissingDrive();
    ASSERT_FALSE(drive.empty());
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelFileExpand(a.c_str(), (drive + L"\\a.txt").c_str()));
    // A target that cannot be made, a folder standing in its place, fails;
    // the file of its compressed name is neither made nor emptied.
    Folder(L"out");
    Folder(L"out\\a.txt");
    EXPECT_EQ(-static_cast<int32_t>(ERROR_ACCESS_DENIED), ZelFileExpand(a.c_str(), At(L"out\\*.txt").c_str()));
    EXPECT_TRUE(IsFolder(At(L"out\\a.txt")));
    EXPECT_FALSE(Exists(At(L"out\\a.tx_")));
    Folder(L"out2");
    Folder(L"out2\\a.txt");
    Make(L"out2\\a.tx_", "keep me");
    EXPECT_LT(ZelFileExpand(a.c_str(), At(L"out2\\*.txt").c_str()), 0);
    EXPECT_EQ("keep me", Read(At(L"out2\\a.tx_")));
}

} // namespace
