// ZelFileCreateTemp and ZelFileFind: names as host strings.
#include "files_support.h"

using namespace filestest;

namespace {

class FileNames : public FolderTest {};

TEST_F(FileNames, TemporaryFileIsMadeWithATildeName) {
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const std::wstring first = Take(ZelFileCreateTemp(L"zkt"));
    const std::wstring second = Take(ZelFileCreateTemp(L"zkt"));
    for (const std::wstring &name : {first, second}) {
        EXPECT_EQ(0u, name.find(temp)) << "in the temporary folder";
        EXPECT_EQ(std::wstring(temp).size(), name.find(L"~zkt"));
        EXPECT_TRUE(Exists(name)) << "the file is made";
        EXPECT_EQ(0, ZelFileGetSize(name.c_str()));
        EXPECT_FALSE(Exists(name.substr(0, name.find(L'~')) + name.substr(name.find(L'~') + 1)))
            << "only the renamed file remains";
    }
    EXPECT_NE(first, second);
    DeleteFileW(first.c_str());
    DeleteFileW(second.c_str());
    EXPECT_EQ(L"", Take(ZelFileCreateTemp(nullptr)));
}

TEST_F(FileNames, FindSearchesTheSearchPath) {
    Make(L"here.txt", "x");
    EnterFolder();
    EXPECT_EQ(At(L"here.txt"), Take(ZelFileFind(L"here.txt")));
    wchar_t system[MAX_PATH] = {};
    GetSystemDirectoryW(system, MAX_PATH);
    const std::wstring kernel = Take(ZelFileFind(L"kernel32.dll"));
    EXPECT_EQ(0, lstrcmpiW((std::wstring(system) + L"\\kernel32.dll").c_str(), kernel.c_str())) << kernel;
    EXPECT_EQ(L"", Take(ZelFileFind(L"no-such-file.zzq")));
    EXPECT_EQ(L"", Take(ZelFileFind(L"")));
    EXPECT_EQ(L"", Take(ZelFileFind(nullptr)));
}

} // namespace
