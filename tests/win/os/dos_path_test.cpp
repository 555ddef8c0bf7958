// Nested folder creation, and paths split into the caller's slots and
// joined again.
#include "dos_support.h"
#include "zkharness.h"

using namespace dostest;

namespace {

constexpr int kRetry = 203;

class Paths : public DosTest {};

TEST_F(Paths, MakeAllDirCreatesEveryMissingLevel) {
    EXPECT_EQ(0, ZelDosMakeAllDir(At(L"a\\b\\c").c_str()));
    EXPECT_TRUE(IsFolder(At(L"a\\b\\c")));
    // The last step decides: an existing folder is -183, one more level is 0.
    EXPECT_EQ(-static_cast<int32_t>(ERROR_ALREADY_EXISTS), ZelDosMakeAllDir(At(L"a\\b\\c\\").c_str()));
    EXPECT_EQ(0, ZelDosMakeAllDir(At(L"a\\b\\d\\").c_str()));
    EXPECT_TRUE(IsFolder(At(L"a\\b\\d")));
    EXPECT_LT(ZelDosMakeAllDir(Make(L"a\\file", "").c_str()), 0) << "a file in the way";

    for (const wchar_t *root : {L"C:\\", L"C:", L"\\", L""})
        EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosMakeAllDir(root)) << root;
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosMakeAllDir(nullptr));
    const std::wstring longPath = At(L"long\\") + std::wstring(260, L'n');
    EXPECT_EQ(-206, ZelDosMakeAllDir(longPath.c_str()));
    EXPECT_FALSE(IsFolder(At(L"long"))) << "nothing is made of a path too long";
    EXPECT_LT(ZelDosMakeAllDir((MissingDrive() + L"\\x").c_str()), 0);
}

struct Split {
    int32_t result = -1;
    std::wstring drive, dir, name, ext;
};

Split SplitOf(const wchar_t *path) {
    HostStr slots[4] = {ZkHostStrMake(L"old"), 0, ZkHostStrMake(L"old"), 0};
    Split s;
    s.result = ZelDosSplitPath(path, &slots[0], &slots[1], &slots[2], &slots[3]);
    s.drive = Take(slots[0]);
    s.dir = Take(slots[1]);
    s.name = Take(slots[2]);
    s.ext = Take(slots[3]);
    return s;
}

std::wstring Joined(const Split &s) {
    return Take(ZelDosMakePath(s.drive.c_str(), s.dir.c_str(), s.name.c_str(), s.ext.c_str()));
}

TEST_F(Paths, SplitAndJoinAgain) {
    for (const wchar_t *path : {L"d:rel\\x.tar.gz", L"\\\\server\\share\\f.", L".profile"}) {
        SCOPED_TRACE(std::string(path, path + wcslen(path)));
        const Split s = SplitOf(path);
        EXPECT_EQ(1, s.result);
        EXPECT_EQ(path, Joined(s));
    }
    const Split full = SplitOf(L"C:\\dir\\name.ext");
    EXPECT_EQ((Texts{L"C:", L"\\dir\\", L"name", L".ext"}), (Texts{full.drive, full.dir, full.name, full.ext}));

    const Split none = SplitOf(nullptr); // the slots are emptied
    EXPECT_EQ(0, none.result);
    EXPECT_EQ((Texts{L"", L"", L"", L""}), (Texts{none.drive, none.dir, none.name, none.ext}));

    // Over 260 characters: each part is cut to its buffer, nothing overruns.
    const std::wstring longPath = L"C:\\" + std::wstring(300, L'd') + L"\\" + std::wstring(300, L'n') + L".e";
    const Split cut = SplitOf(longPath.c_str());
    EXPECT_EQ(1, cut.result);
    EXPECT_EQ(255u, cut.dir.size());
    EXPECT_EQ(255u, cut.name.size());
    EXPECT_EQ(L".e", cut.ext);
    // Null slots are passed over.
    EXPECT_EQ(0, ZelDosSplitPath(L"C:\\a.b", nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Paths, MakePathJoinsWithoutSeparators) {
    EXPECT_EQ(L"C:dirnameext", Take(ZelDosMakePath(L"C:", L"dir", L"name", L"ext")));
    EXPECT_EQ(2 * 12 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"name", Take(ZelDosMakePath(nullptr, nullptr, L"name", nullptr)));
    EXPECT_EQ(L"", Take(ZelDosMakePath(nullptr, L"", nullptr, L"")));
}

TEST_F(Paths, BuildersAskOnceWhenTheHostHasNoMemory) {
    {
        zkt::DialogAnswerer answerer(kRetry, zkt::DialogMatch{L"Zelkova Kit"});
        ZkHostFailAllocations(1);
        const int32_t before = ZkHostAllocCalls();
        const HostStr joined = ZelDosMakePath(L"C:", L"\\d\\", L"n", L".e");
        EXPECT_EQ(1, answerer.answered());
        // Not tried again: the empty string comes back in its place.
        EXPECT_EQ(before + 2, ZkHostAllocCalls());
        EXPECT_EQ(L"", Take(joined));
    }
    {
        zkt::DialogAnswerer answerer(kRetry, zkt::DialogMatch{L"Zelkova Kit"});
        HostStr slots[4] = {};
        ZkHostFailAllocations(1);
        // The drive slot goes without; the others are filled.
        EXPECT_EQ(1, ZelDosSplitPath(L"C:\\d\\n.e", &slots[0], &slots[1], &slots[2], &slots[3]));
        EXPECT_EQ(1, answerer.answered());
        EXPECT_EQ(0u, slots[0]);
        EXPECT_EQ(L"\\d\\", Take(slots[1]));
        EXPECT_EQ(L"n", Take(slots[2]));
        EXPECT_EQ(L".e", Take(slots[3]));
    }
}

} // namespace
