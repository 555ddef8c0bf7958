// ZelFileRename and ZelFileDelete.
#include "files_support.h"

using namespace filestest;

namespace {

class FileRename : public FolderTest {};
class FileDelete : public FolderTest {};

TEST_F(FileRename, MaskInTheSameFolderRenamesEachFileOnce) {
    for (const wchar_t *name : {L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt"})
        Make(name, std::string(name, name + 1));
    Folder(L"dir.txt");
    // A name that sorts after its source may come up again in the same search.
    EXPECT_EQ(5, ZelFileRename(At(L"*.txt").c_str(), At(L"z*.txt").c_str()));
    for (const wchar_t *name : {L"a", L"b", L"c", L"d", L"e"}) {
        EXPECT_EQ(std::string(1, static_cast<char>(name[0])), Read(At(L"z" + std::wstring(name) + L".txt")));
        EXPECT_FALSE(Exists(At(std::wstring(name) + L".txt")));
        EXPECT_FALSE(Exists(At(L"zz" + std::wstring(name) + L".txt"))) << "renamed twice";
    }
    EXPECT_TRUE(IsFolder(At(L"dir.txt")));
}

TEST_F(FileRename, IntoAnotherFolderAndByExtension) {
    Make(L"one.txt", "1");
    Make(L"two.txt", "2");
    Folder(L"out");
    EXPECT_EQ(2, ZelFileRename(At(L"*.txt").c_str(), At(L"out").c_str()));
    EXPECT_EQ("1", Read(At(L"out\\one.txt")));
    EXPECT_EQ(2, ZelFileRename(At(L"out\\*.txt").c_str(), At(L"out\\*.bak").c_str()));
    EXPECT_EQ("2", Read(At(L"out\\two.bak")));
    EXPECT_FALSE(Exists(At(L"out\\two.txt")));
}

TEST_F(FileRename, BareDestinationMovesIntoTheCurrentDirectory) {
    Folder(L"src");
    Make(L"src\\f.txt", "f");
    EnterFolder();
    // A bare name splits into no folder and no mask: the file keeps its name
    // and lands in the current directory.
    EXPECT_EQ(1, ZelFileRename(At(L"src\\f.txt").c_str(), L"g.txt"));
    EXPECT_EQ("f", Read(At(L"f.txt")));
    EXPECT_FALSE(Exists(At(L"src\\f.txt")));
    EXPECT_FALSE(Exists(At(L"g.txt")));
    // With a folder part the name is the mask.
    EXPECT_EQ(1, ZelFileRename(L"f.txt", L".\\g.txt"));
    EXPECT_EQ("f", Read(At(L"g.txt")));
}

TEST_F(FileRename, StopsAtATargetInTheWay) {
    Make(L"1.txt", "one");
    Make(L"2.txt", "two");
    Make(L"2.bak", "old");
    const int32_t result = ZelFileRename(At(L"*.txt").c_str(), At(L"*.bak").c_str());
    EXPECT_EQ(-static_cast<int32_t>(ERROR_ALREADY_EXISTS), result);
    EXPECT_EQ("one", Read(At(L"1.bak")));
    EXPECT_EQ("two", Read(At(L"2.txt")));
    EXPECT_EQ("old", Read(At(L"2.bak")));
}

TEST_F(FileRename, Failures) {
    const std::wstring a = Make(L"a.txt", "a");
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileRename(nullptr, a.c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileRename(a.c_str(), nullptr));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_FILE_NOT_FOUND), ZelFileRename(At(L"*.none").c_str(), a.c_str()));
    EXPECT_EQ(ZEL_PATH_NOT_FOUND, ZelFileRename(a.c_str(), At(L"missing\\b.txt").c_str()));
    const std::wstring drive = MissingDrive();
    ASSERT_FALSE(drive.empty());
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelFileRename(a.c_str(), (drive + L"\\b.txt").c_str()));
    EXPECT_EQ("a", Read(a));
}

TEST_F(FileDelete, DeletesFilesAndPassesFoldersOver) {
    Make(L"a.tmp", "a");
    Make(L"b.tmp", "b");
    Make(L"c.keep", "c");
    Folder(L"d.tmp");
    EXPECT_EQ(2, ZelFileDelete(At(L"*.tmp").c_str()));
    EXPECT_FALSE(Exists(At(L"a.tmp")));
    EXPECT_FALSE(Exists(At(L"b.tmp")));
    EXPECT_TRUE(Exists(At(L"c.keep")));
    EXPECT_TRUE(IsFolder(At(L"d.tmp")));
    EXPECT_EQ(0, ZelFileDelete(At(L"d.*").c_str()));
}

TEST_F(FileDelete, StopsAtAFileItCannotDelete) {
    Make(L"1.tmp", "1");
    const std::wstring locked = Make(L"2.tmp", "2");
    Make(L"3.tmp", "3");
    ASSERT_TRUE(SetFileAttributesW(locked.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_ACCESS_DENIED), ZelFileDelete(At(L"*.tmp").c_str()));
    EXPECT_FALSE(Exists(At(L"1.tmp")));
    EXPECT_EQ("2", Read(locked));
    EXPECT_EQ("3", Read(At(L"3.tmp")));
}

TEST_F(FileDelete, Failures) {
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileDelete(nullptr));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_FILE_NOT_FOUND), ZelFileDelete(At(L"*.none").c_str()));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_PATH_NOT_FOUND), ZelFileDelete(At(L"nodir\\*").c_str()));
}

} // namespace
