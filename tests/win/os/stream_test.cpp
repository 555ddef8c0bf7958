// Stream files through the exports on the reference host's C streams. The
// test program, the library and zkhost.dll are all MinGW builds over the
// one msvcrt.dll of the process, so a FILE * that the host opened is a
// stream to this program's ftell and fread as well: the tests use that to
// see what the library did to the stream.
#include <cstdio>

#include "files_support.h"

namespace {

// A file in the test's fresh folder, its stream closed at the end.
class Stream : public filestest::FolderTest {
protected:
    void SetUp() override {
        FolderTest::SetUp();
        path_ = At(L"stream.dat");
    }
    void TearDown() override {
        if (file_)
            ZelFileClose(file_);
        FolderTest::TearDown();
    }
    void Put(const std::string &bytes) { ASSERT_TRUE(filestest::Write(path_, bytes)); }
    std::string Get() const { return filestest::Read(path_); }
    void Close() {
        EXPECT_EQ(0, ZelFileClose(file_));
        file_ = nullptr;
    }
    std::string ReadN(int32_t n) {
        std::string out(size_t(n), '\0');
        const int32_t got = ZelFileRead(file_, out.data(), n);
        out.resize(got > 0 ? size_t(got) : 0);
        return out;
    }
    // The text of a string slot, the slot then emptied.
    static std::wstring Take(HostStr &slot) {
        const std::wstring out = filestest::Take(slot);
        slot = 0;
        return out;
    }

    std::wstring path_;
    HostFile file_ = nullptr;
};

TEST_F(Stream, NullHandleIsRefusedBeforeTheHost) {
    // -87 with the last error untouched: the host, which would answer a
    // null stream itself, was never asked.
    char buffer[4] = {};
    HostStr slot = 0;
    SetLastError(ERROR_HANDLE_EOF);
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileClose(nullptr));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileRead(nullptr, buffer, 4));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileReadBinary(nullptr, buffer, 4));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileWrite(nullptr, "ab", 2));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileWriteBinary(nullptr, "ab", 2));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileReadString(nullptr, &slot));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileWriteString(nullptr, L"x"));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileSeek(nullptr, 0, SEEK_SET));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileTell(nullptr));
    EXPECT_EQ(DWORD(ERROR_HANDLE_EOF), GetLastError());
    EXPECT_EQ(0u, slot);
}

TEST_F(Stream, OpenResultsAndFlags) {
    // A missing file: the platform's reason, and no stream.
    EXPECT_EQ(-int32_t(ERROR_FILE_NOT_FOUND), ZelFileOpen(&file_, path_.c_str(), 0));
    EXPECT_EQ(nullptr, file_);
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileOpen(nullptr, path_.c_str(), 0));

    // OF_CREATE without OF_EXIST gains the write bit: with read-write asked
    // besides, the host gets both access bits and refuses the pair.
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileOpen(&file_, path_.c_str(), OF_CREATE | OF_READWRITE));
    EXPECT_EQ("<missing>", Get());

    // OF_CREATE alone: a new empty file, open for writing.
    Put("old contents");
    ASSERT_EQ(0, ZelFileOpen(&file_, path_.c_str(), OF_CREATE));
    ASSERT_NE(nullptr, file_);
    EXPECT_EQ(3, ZelFileWrite(file_, "new", 3));
    Close();
    EXPECT_EQ("new", Get());

    // With OF_EXIST nothing is added (read-write stays one access bit, which
    // the host takes), and no stream is made.
    EXPECT_EQ(0, ZelFileOpen(&file_, path_.c_str(), OF_EXIST));
    EXPECT_EQ(nullptr, file_);
    EXPECT_EQ("new", Get());
    EXPECT_EQ(0, ZelFileOpen(&file_, path_.c_str(), OF_CREATE | OF_EXIST | OF_READWRITE));
    EXPECT_EQ(nullptr, file_);
}

TEST_F(Stream, ReadsAndWritesThroughTheHost) {
    ASSERT_EQ(0, ZelFileOpen(&file_, path_.c_str(), OF_CREATE));
    EXPECT_EQ(5, ZelFileWriteBinary(file_, "ab\0cd", 5));
    EXPECT_EQ(0, ZelFileWriteString(file_, L"line one"));
    EXPECT_EQ(0, ZelFileWriteString(file_, L""));
    EXPECT_EQ(0, ZelFileWriteString(file_, L"last"));
    // Nothing to write is a failure with the platform's reason, not a count.
    SetLastError(ERROR_WRITE_FAULT);
    EXPECT_EQ(-int32_t(ERROR_WRITE_FAULT), ZelFileWrite(file_, "x", 0));
    SetLastError(ERROR_WRITE_FAULT);
    EXPECT_EQ(-int32_t(ERROR_WRITE_FAULT), ZelFileWriteBinary(file_, nullptr, 4));
    Close();
    EXPECT_EQ(std::string("ab\0cdline one\r\n\r\nlast\r\n", 23), Get());

    ASSERT_EQ(0, ZelFileOpen(&file_, path_.c_str(), 0));
    EXPECT_EQ(std::string("ab\0cd", 5), ReadN(5));
    HostStr slot = 0;
    for (const wchar_t *line : {L"line one", L"", L"last"}) {
        EXPECT_EQ(0, ZelFileReadString(file_, &slot));
        EXPECT_EQ(line, Take(slot));
    }
    // At the end: -18, and the slot holds what it held, here a string the
    // application still owns.
    slot = ZkHostStrMake(L"kept");
    EXPECT_EQ(ZEL_NO_MORE_FILES, ZelFileReadString(file_, &slot));
    EXPECT_EQ(ZEL_NO_MORE_FILES, ZelFileReadString(file_, &slot));
    EXPECT_EQ(L"kept", Take(slot));
    // A read past the end is what the host counts.
    char buffer[8];
    EXPECT_EQ(0, ZelFileRead(file_, buffer, 8));
    EXPECT_EQ(0, ZelFileReadBinary(file_, buffer, 8));
}

TEST_F(Stream, SeekMovesTheDescriptorPastTheBuffer) {
    std::string bytes;
    for (int i = 0; i < 100; ++i)
        bytes += char('A' + i % 26);
    Put(bytes);
    ASSERT_EQ(0, ZelFileOpen(&file_, path_.c_str(), 0));
    // The first read fills the stream's buffer with the whole file.
    EXPECT_EQ(bytes.substr(0, 10), ReadN(10));
    EXPECT_EQ(10, ZelFileTell(file_));

    EXPECT_EQ(50, ZelFileSeek(file_, 50, SEEK_SET));
    // The buffer was not touched: the next bytes still come from it, and the
    // position is ftell's of the moved descriptor less a whole buffer.
    EXPECT_EQ(std::ftell(file_), ZelFileTell(file_));
    EXPECT_NE(50, ZelFileTell(file_));
    EXPECT_EQ(bytes.substr(10, 10), ReadN(10));
    EXPECT_EQ(std::ftell(file_), ZelFileTell(file_));

    // Relative and end origins work on the descriptor too.
    EXPECT_EQ(60, ZelFileSeek(file_, 10, SEEK_CUR));
    EXPECT_EQ(95, ZelFileSeek(file_, -5, SEEK_END));
    // The 80 bytes still buffered come first; then the stream reads on
    // from where the descriptor was put.
    EXPECT_EQ(bytes.substr(20), ReadN(80));
    EXPECT_EQ(bytes.substr(95), ReadN(10));
    // Before the start: the platform's error, not the runtime's errno.
    SetLastError(0);
    EXPECT_EQ(-int32_t(ERROR_NEGATIVE_SEEK), ZelFileSeek(file_, -10, SEEK_SET));
}

} // namespace
