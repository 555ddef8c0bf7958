// ZelFileRename and ZelFileDelete.
#include "files_support.h"

using namespace filestest;

namespace {

class FileRename : public FolderTest {};
class FileDelete : public FolderTest {};

TEST_F(FileRename, MaskInTheSameFolderRenamesEachFileOnce) {
    for (const wchar_t *name : {L"a", L"b", L"c", L"d", L"e"})
        Make(name + std::wstring(L".txt"), std::string(1, static_cast<char>(name[0])));
    Folder(L"dir.txt");
    // A name that sorts after its source may come up again in the same search.
    EXPECT_EQ(5, ZelFileRename(At(L"*.txt").c_str(), At(L"z*.txt").c_str()));
    for (const wchar_t *name : {L"a", L"b", L"c", L"d", L"e"}) {
        EXPECT_EQ(std::string(1, static_cast<char>(name[0])), Read(At(L"z" + std::wstring(name) + L".txt")));
        EXPECT_FALSE(Exists(At(L"zz" + std::wstring(name) + L".txt"))) << "renamed twice";
    }
    EXPECT_TRUE(IsFolder(At(L"dir.txt")));
    Folder(L"out");
    EXPECT_EQ(5, ZelFileRename(At(L"*.txt").c_str(), At(L"out").c_str()));
    EXPECT_EQ(5, ZelFileRename(At(L"out\\*.txt").c_str(), At(L"out\\*.bak").c_str()));
    EXPECT_EQ("b", Read(At(L"out\\zb.bak")));
    EXPECT_FALSE(Exists(At(L"out\\zb.txt")));
}

TEST_F(FileRename, BareDestinationMovesIntoTheCurrentDirectory) {
    Folder(L"src");
    Make(L"src\\f.txt", "f");
    EnterFolder();
    // A bare name splits into no folder and no mask: the file keeps its name.
    EXPECT_EQ(1, ZelFileRename(At(L"src\\f.txt").c_str(), L"g.txt"));
    EXPECT_EQ("f", Read(At(L"f.txt")));
    EXPECT_FALSE(Exists(At(L"g.txt")));
    EXPECT_EQ(1, ZelFileRename(L"f.txt", L".\\g.txt")); // with a folder part the name is the mask
    EXPECT_EQ("f", Read(At(L"g.txt")));
}

TEST_F(FileRename, StopsAtATargetInTheWay) {
    Make(L"1.txt", "one");
    Make(L"2.txt", "two");
    Make(L"2.bak", "old");
    EXPECT_EQ(Err(ERROR_ALREADY_EXISTS), ZelFileRename(At(L"*.txt").c_str(), At(L"*.bak").c_str()));
    EXPECT_EQ("one", Read(At(L"1.bak")));
    EXPECT_EQ("two", Read(At(L"2.txt")));
    EXPECT_EQ("old", Read(At(L"2.bak")));
}

TEST_F(FileDelete, DeletesFilesPassesFoldersOverAndStopsAtAReadOnlyFile) {
    Make(L"a.tmp", "a");
    Make(L"c.keep", "c");
    Folder(L"d.tmp");
    EXPECT_EQ(1, ZelFileDelete(At(L"*.tmp").c_str()));
    EXPECT_FALSE(Exists(At(L"a.tmp")));
    EXPECT_TRUE(Exists(At(L"c.keep")));
    EXPECT_TRUE(IsFolder(At(L"d.tmp")));
    EXPECT_EQ(0, ZelFileDelete(At(L"d.*").c_str()));

    Make(L"1.tmp", "1");
    ASSERT_TRUE(SetFileAttributesW(Make(L"2.tmp", "2").c_str(), FILE_ATTRIBUTE_READONLY));
    Make(L"3.tmp", "3");
    EXPECT_EQ(Err(ERROR_ACCESS_DENIED), ZelFileDelete(At(L"*.tmp").c_str()));
    EXPECT_FALSE(Exists(At(L"1.tmp")));
    EXPECT_EQ("2", Read(At(L"2.tmp")));
    EXPECT_EQ("3", Read(At(L"3.tmp")));

    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileDelete(nullptr));
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileDelete(At(L"*.none").c_str()));
    EXPECT_EQ(Err(ERROR_PATH_NOT_FOUND), ZelFileDelete(At(L"nodir\\*").c_str()));
}

} // namespace
