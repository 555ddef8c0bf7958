// The routines the file exports share with other areas, compiled into this
// program from the library's sources (they are not exported).
#include "files_support.h"
#include "os/files.h"

using namespace filestest;

namespace {

class FileRoutines : public FolderTest {};

TEST_F(FileRoutines, OpenExFlags) {
    const std::wstring a = Make(L"a.txt", "abc");
    EXPECT_EQ(nullptr, ZelFileOpenEx(At(L"none").c_str(), nullptr, 0, OF_PARSE));
    EXPECT_EQ(nullptr, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_EXIST));

    wchar_t found[MAX_PATH] = {};
    EnterFolder();
    EXPECT_EQ(nullptr, ZelFileOpenEx(L"a.txt", found, MAX_PATH, OF_EXIST));
    EXPECT_EQ(a, found);
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(L"none.txt", found, MAX_PATH, OF_EXIST));
    EXPECT_EQ(DWORD{ERROR_FILE_NOT_FOUND}, GetLastError());
    wchar_t tiny[4] = {};
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(L"a.txt", tiny, 4, OF_EXIST)) << "the path does not fit";

    // A plain open reads and lets others read and write.
    HANDLE h = ZelFileOpenEx(a.c_str(), nullptr, 0, 0);
    ASSERT_NE(INVALID_HANDLE_VALUE, h);
    char bytes[8] = {};
    DWORD count = 0;
    EXPECT_TRUE(ReadFile(h, bytes, 8, &count, nullptr));
    EXPECT_EQ(3u, count);
    EXPECT_FALSE(WriteFile(h, "x", 1, &count, nullptr));
    HANDLE other = ZelFileOpenEx(a.c_str(), nullptr, 0, OF_READWRITE);
    EXPECT_NE(INVALID_HANDLE_VALUE, other);
    CloseHandle(other);
    CloseHandle(h);

    h = ZelFileOpenEx(a.c_str(), nullptr, 0, OF_SHARE_DENY_WRITE);
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_WRITE));
    EXPECT_EQ(DWORD{ERROR_SHARING_VIOLATION}, GetLastError());
    other = ZelFileOpenEx(a.c_str(), nullptr, 0, 0);
    EXPECT_NE(INVALID_HANDLE_VALUE, other) << "reading is still shared";
    CloseHandle(other);
    CloseHandle(h);

    h = ZelFileOpenEx(a.c_str(), nullptr, 0, OF_SHARE_EXCLUSIVE);
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(a.c_str(), nullptr, 0, 0));
    CloseHandle(h);
}

TEST_F(FileRoutines, OpenExCreatesAndDeletes) {
    const std::wstring a = Make(L"a.txt", "old contents");
    wchar_t copy[MAX_PATH] = {};
    // Creating drops every other flag, the search included: the name is copied as it is.
    HANDLE h = ZelFileOpenEx(a.c_str(), copy, MAX_PATH, OF_CREATE | OF_READWRITE | OF_SHARE_EXCLUSIVE);
    ASSERT_NE(INVALID_HANDLE_VALUE, h);
    EXPECT_EQ(a, copy);
    DWORD count = 0;
    EXPECT_TRUE(WriteFile(h, "new", 3, &count, nullptr));
    char byte = 0;
    EXPECT_FALSE(ReadFile(h, &byte, 1, &count, nullptr)) << "write access only";
    HANDLE other = ZelFileOpenEx(a.c_str(), nullptr, 0, 0);
    EXPECT_NE(INVALID_HANDLE_VALUE, other) << "shared, as a plain open";
    CloseHandle(other);
    CloseHandle(h);
    EXPECT_EQ("new", Read(a));
    wchar_t small[5] = {};
    h = ZelFileOpenEx(At(L"b.txt").c_str(), small, 5, OF_CREATE);
    ASSERT_NE(INVALID_HANDLE_VALUE, h);
    CloseHandle(h);
    EXPECT_EQ(std::wstring(At(L"b.txt").substr(0, 4)), small) << "cut to the buffer";
    EXPECT_TRUE(Exists(At(L"b.txt"))) << "the file made is the one named";

    EXPECT_EQ(nullptr, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_DELETE));
    EXPECT_FALSE(Exists(a));
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_DELETE));
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(nullptr, nullptr, 0, 0));
}

TEST_F(FileRoutines, PathTests) {
    Folder(L"sub");
    const std::wstring file = Make(L"f.txt", "f");
    EXPECT_TRUE(ZelPathIsDir(At(L"sub")));
    EXPECT_TRUE(ZelPathIsDir(At(L"sub\\")));
    EXPECT_TRUE(ZelPathIsDir(L"  " + At(L"sub") + L"  "));
    EXPECT_FALSE(ZelPathIsDir(file));
    EXPECT_FALSE(ZelPathIsDir(At(L"none")));
    EXPECT_FALSE(ZelPathIsDir(L""));
    EXPECT_FALSE(ZelPathIsDir(L"   "));

    EXPECT_EQ(3, ZelPathDriveNumber(L"C:\\"));
    EXPECT_EQ(3, ZelPathDriveNumber(L"c:"));
    EXPECT_EQ(0, ZelPathDriveNumber(MissingDrive()));
    EXPECT_EQ(0, ZelPathDriveNumber(L"1:\\"));
    EXPECT_EQ(0, ZelPathDriveNumber(L""));
}

TEST_F(FileRoutines, SplitTargetOnTheFileSystem) {
    Folder(L"out");
    std::wstring dir = L"x", name = L"y";
    EXPECT_EQ(0, ZelPathSplitTarget(At(L"out"), dir, name));
    EXPECT_EQ(At(L"out\\"), dir);
    EXPECT_EQ(L"*.*", name);
    EXPECT_EQ(0, ZelPathSplitTarget(At(L"out\\n*.txt"), dir, name));
    EXPECT_EQ(At(L"out\\"), dir);
    EXPECT_EQ(L"n*.txt", name);
    EXPECT_EQ(-3, ZelPathSplitTarget(At(L"none\\n.txt"), dir, name));
    EXPECT_EQ(L"", dir);
    EXPECT_EQ(L"", name);
    EXPECT_EQ(-15, ZelPathSplitTarget(MissingDrive() + L"\\n.txt", dir, name));
    EXPECT_EQ(0, ZelPathSplitTarget(L"bare.txt", dir, name));
    EXPECT_EQ(L"", dir);
    EXPECT_EQ(L"", name);
}

TEST_F(FileRoutines, BufferGrowsWithTheLargestFile) {
    HGLOBAL block = nullptr;
    uint32_t size = 0;
    ASSERT_EQ(0, ZelFileBufferEnsure(99, block, size));
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(100u, size);
    EXPECT_GE(GlobalSize(block), 100u);
    void *bytes = GlobalLock(block);
    EXPECT_NE(static_cast<void *>(block), bytes) << "a moveable block is reached through its lock";
    GlobalUnlock(block);
    ASSERT_EQ(0, ZelFileBufferEnsure(100, block, size));
    EXPECT_EQ(101u, size);
    EXPECT_GE(GlobalSize(block), 101u) << "the block holds every transfer it is asked for";
    ASSERT_EQ(0, ZelFileBufferEnsure(10, block, size));
    EXPECT_EQ(11u, size);
    EXPECT_GE(GlobalSize(block), 101u) << "never shrinks";
    ASSERT_EQ(0, ZelFileBufferEnsure(5ull << 30, block, size));
    EXPECT_EQ(65533u, size);
    EXPECT_GE(GlobalSize(block), 65533u);
    GlobalFree(block);
}

TEST_F(FileRoutines, CopyDataMovesTheRestOfAFile) {
    const Bytes data = SampleBytes(100000, 21);
    const std::wstring from = Make(L"from.bin", data), to = At(L"to.bin");
    std::string buffer(1000, '\0');
    HANDLE in = CreateFileW(from.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    HANDLE out = CreateFileW(to.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, in);
    ASSERT_NE(INVALID_HANDLE_VALUE, out);
    SetFilePointer(in, 10, nullptr, FILE_BEGIN);
    EXPECT_EQ(0, ZelFileCopyData(in, out, buffer.data(), 1000));
    CloseHandle(in);
    CloseHandle(out);
    EXPECT_EQ(data.substr(10), Read(to));

    // A failed write is an error; a failed read ends the copy quietly.
    in = CreateFileW(from.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    out = CreateFileW(to.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(-static_cast<int32_t>(ERROR_ACCESS_DENIED), ZelFileCopyData(in, out, buffer.data(), 1000));
    CloseHandle(out);
    out = CreateFileW(At(L"short.bin").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    HANDLE writeOnly = CreateFileW(from.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    CloseHandle(in);
    EXPECT_EQ(0, ZelFileCopyData(writeOnly, out, buffer.data(), 1000));
    CloseHandle(writeOnly);
    CloseHandle(out);
    EXPECT_EQ("", Read(At(L"short.bin")));
}

} // namespace
