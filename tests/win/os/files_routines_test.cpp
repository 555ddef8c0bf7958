// The routines the file exports share with other areas, compiled into this
// program from the library's sources (they are not exported).
#include "files_support.h"
#include "os/core/filesums.h"
#include "os/win/files.h"

using namespace filestest;

namespace {

class FileRoutines : public FolderTest {};

TEST_F(FileRoutines, OpenExFlags) {
    const std::wstring a = Make(L"a.txt", "abc");
    EXPECT_EQ(nullptr, ZelFileOpenEx(At(L"none").c_str(), nullptr, 0, OF_PARSE));
    EXPECT_EQ(nullptr, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_EXIST));
    wchar_t found[MAX_PATH] = {}, tiny[4] = {};
    EnterFolder();
    EXPECT_EQ(nullptr, ZelFileOpenEx(L"a.txt", found, MAX_PATH, OF_EXIST));
    EXPECT_EQ(a, found);
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(L"none.txt", found, MAX_PATH, OF_EXIST));
    EXPECT_EQ(DWORD{ERROR_FILE_NOT_FOUND}, GetLastError());
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
    wchar_t copy[MAX_PATH] = {}, small[5] = {};
    // Creating drops every other flag, the search included: the name is copied as it is.
    HANDLE h = ZelFileOpenEx(a.c_str(), copy, MAX_PATH, OF_CREATE | OF_READWRITE | OF_SHARE_EXCLUSIVE);
    ASSERT_NE(INVALID_HANDLE_VALUE, h);
    EXPECT_EQ(a, copy);
    DWORD count = 0;
    char byte = 0;
    EXPECT_TRUE(WriteFile(h, "new", 3, &count, nullptr));
    EXPECT_FALSE(ReadFile(h, &byte, 1, &count, nullptr)) << "write access only";
    HANDLE other = ZelFileOpenEx(a.c_str(), nullptr, 0, 0);
    EXPECT_NE(INVALID_HANDLE_VALUE, other) << "shared, as a plain open";
    CloseHandle(other);
    CloseHandle(h);
    EXPECT_EQ("new", Read(a));
    h = ZelFileOpenEx(At(L"b.txt").c_str(), small, 5, OF_CREATE);
    ASSERT_NE(INVALID_HANDLE_VALUE, h);
    CloseHandle(h);
    EXPECT_EQ(At(L"b.txt").substr(0, 4), small) << "cut to the buffer";
    EXPECT_TRUE(Exists(At(L"b.txt"))) << "the file made is the one named";

    EXPECT_EQ(nullptr, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_DELETE));
    EXPECT_FALSE(Exists(a));
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(a.c_str(), nullptr, 0, OF_DELETE));
    EXPECT_EQ(INVALID_HANDLE_VALUE, ZelFileOpenEx(nullptr, nullptr, 0, 0));
}

TEST_F(FileRoutines, PathTestsAndSplitTarget) {
    Folder(L"sub");
    EXPECT_TRUE(ZelPathIsDir(At(L"sub\\")));
    EXPECT_TRUE(ZelPathIsDir(L"  " + At(L"sub") + L"  "));
    EXPECT_FALSE(ZelPathIsDir(Make(L"f.txt", "f")));
    EXPECT_FALSE(ZelPathIsDir(At(L"none")));
    EXPECT_FALSE(ZelPathIsDir(L"   "));
    EXPECT_EQ(3, ZelPathDriveNumber(L"c:"));
    EXPECT_EQ(0, ZelPathDriveNumber(MissingDrive()));
    EXPECT_EQ(0, ZelPathDriveNumber(L"1:\\"));
    EXPECT_EQ(0, ZelPathDriveNumber(L""));

    std::wstring dir = L"x", name = L"y";
    EXPECT_EQ(0, ZelPathSplitTarget(At(L"sub"), dir, name));
    EXPECT_EQ(At(L"sub\\") + L"|*.*", dir + L"|" + name);
    EXPECT_EQ(0, ZelPathSplitTarget(At(L"sub\\n*.txt"), dir, name));
    EXPECT_EQ(At(L"sub\\") + L"|n*.txt", dir + L"|" + name);
    EXPECT_EQ(-3, ZelPathSplitTarget(At(L"none\\n.txt"), dir, name));
    EXPECT_EQ(L"|", dir + L"|" + name);
    EXPECT_EQ(-15, ZelPathSplitTarget(MissingDrive() + L"\\n.txt", dir, name));
    EXPECT_EQ(0, ZelPathSplitTarget(L"bare.txt", dir, name));
    EXPECT_EQ(L"|", dir + L"|" + name);
}

TEST_F(FileRoutines, BufferGrowsWithTheLargestFileAndNeverShrinks) {
    HGLOBAL block = nullptr;
    uint32_t size = 0;
    ASSERT_EQ(0, ZelFileBufferEnsure(99, block, size));
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(100u, size);
    EXPECT_NE(static_cast<void *>(block), GlobalLock(block)) << "a moveable block";
    GlobalUnlock(block);
    ASSERT_EQ(0, ZelFileBufferEnsure(100, block, size));
    EXPECT_EQ(101u, size);
    EXPECT_GE(GlobalSize(block), 101u);
    ASSERT_EQ(0, ZelFileBufferEnsure(10, block, size));
    EXPECT_EQ(11u, size);
    EXPECT_GE(GlobalSize(block), 101u);
    ASSERT_EQ(0, ZelFileBufferEnsure(5ull << 30, block, size));
    EXPECT_EQ(zk::os::kTransferLimit, size);
    EXPECT_GE(GlobalSize(block), zk::os::kTransferLimit);
    GlobalFree(block);
}

TEST_F(FileRoutines, CopyDataMovesTheRestOfAFile) {
    const Bytes data = SampleBytes(100000, 21);
    const std::wstring from = Make(L"from.bin", data), to = At(L"to.bin");
    std::string buffer(1000, '\0');
    auto open = [](const std::wstring &path, DWORD access, DWORD how) {
        return CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, how, 0, nullptr);
    };
    HANDLE in = open(from, GENERIC_READ, OPEN_EXISTING), out = open(to, GENERIC_WRITE, CREATE_ALWAYS);
    ASSERT_NE(INVALID_HANDLE_VALUE, in);
    ASSERT_NE(INVALID_HANDLE_VALUE, out);
    SetFilePointer(in, 10, nullptr, FILE_BEGIN);
    EXPECT_EQ(0, ZelFileCopyData(in, out, buffer.data(), 1000));
    CloseHandle(out);
    EXPECT_EQ(data.substr(10), Read(to));
    // A failed write is an error; a failed read ends the copy quietly.
    out = open(to, GENERIC_READ, OPEN_EXISTING);
    SetFilePointer(in, 0, nullptr, FILE_BEGIN);
    EXPECT_EQ(Err(ERROR_ACCESS_DENIED), ZelFileCopyData(in, out, buffer.data(), 1000));
    CloseHandle(out);
    CloseHandle(in);
    in = open(from, GENERIC_WRITE, OPEN_EXISTING);
    out = open(At(L"short.bin"), GENERIC_WRITE, CREATE_ALWAYS);
    EXPECT_EQ(0, ZelFileCopyData(in, out, buffer.data(), 1000));
    CloseHandle(in);
    CloseHandle(out);
    EXPECT_EQ("", Read(At(L"short.bin")));
}

} // namespace
