// The failures the four pattern transfers share: bad arguments, nothing
// matching, a destination folder or drive that is not there, the file
// onto itself. Nothing is lost by any of them.
#include "files_support.h"

using namespace filestest;

namespace {

class FileTransferFailures : public FolderTest {};

TEST_F(FileTransferFailures, SharedByCopyRenameExpandAndAppend) {
    const struct {
        const char *name;
        int32_t(ZKAPI *call)(const wchar_t *, const wchar_t *);
        int32_t missingDrive; // append cannot learn the free space there: nothing, no error
        int32_t ontoItself;   // a rename onto itself is a rename that changes nothing
    } transfers[] = {
        {"copy", ZelFileCopy, ZEL_INVALID_DRIVE, Err(ERROR_SHARING_VIOLATION)},
        {"rename", ZelFileRename, ZEL_INVALID_DRIVE, 0},
        {"expand", ZelFileExpand, ZEL_INVALID_DRIVE, Err(ERROR_SHARING_VIOLATION)},
        {"append", ZelFileAppend, 0, Err(ERROR_SHARING_VIOLATION)},
    };
    const Bytes data = SampleBytes(5000, 3);
    const std::wstring a = Make(L"a.txt", data), drive = MissingDrive();
    ASSERT_FALSE(drive.empty());
    for (const auto &t : transfers) {
        SCOPED_TRACE(t.name);
        EXPECT_EQ(ZEL_INVALID_PARAMETER, t.call(nullptr, a.c_str()));
        EXPECT_EQ(ZEL_INVALID_PARAMETER, t.call(a.c_str(), nullptr));
        EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), t.call(At(L"*.none").c_str(), At(L"x").c_str()));
        EXPECT_EQ(ZEL_PATH_NOT_FOUND, t.call(a.c_str(), At(L"missing\\b.txt").c_str()));
        EXPECT_EQ(t.missingDrive, t.call(a.c_str(), (drive + L"\\b.txt").c_str()));
        if (t.ontoItself != 0) {
            EXPECT_EQ(t.ontoItself, t.call(a.c_str(), a.c_str()));
        }
        EXPECT_EQ(data, Read(a));
    }
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelFileCopy(a.c_str(), (drive + L"b.txt").c_str())) << "drive-relative";
    EXPECT_EQ(Err(ERROR_PATH_NOT_FOUND), ZelFileCopy(At(L"nodir\\*.txt").c_str(), dir_.c_str()));
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), dir_.c_str())) << "into its own folder";
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileExpand(a.c_str(), dir_.c_str()));
}

TEST_F(FileTransferFailures, TargetInUseStopsTheTransfer) {
    const std::wstring a = Make(L"a.txt", "new");
    Folder(L"out");
    const Held held(Make(L"out\\a.txt", "in use"));
    ASSERT_TRUE(held.Holds());
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), At(L"out").c_str()));
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileAppend(a.c_str(), At(L"out\\a.txt").c_str()));
    EXPECT_EQ("new", Read(a));
}

} // namespace
