// Each file test works in a fresh folder under the temporary folder,
// removed with everything in it afterwards (marks cleared first).
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace filestest {

using Bytes = std::string;

bool Write(const std::wstring &path, const Bytes &bytes);
// The whole file, or "<missing>".
Bytes Read(const std::wstring &path);
inline DWORD Attributes(const std::wstring &path) { return GetFileAttributesW(path.c_str()); }
inline bool Exists(const std::wstring &path) { return Attributes(path) != INVALID_FILE_ATTRIBUTES; }
bool IsFolder(const std::wstring &path);
// A file of `size` bytes that takes no room: only its end is set.
bool MakeSparse(const std::wstring &path, uint64_t size);
// Repeating words with a little noise (compressible), the same per seed.
Bytes SampleBytes(size_t size, uint32_t seed);
FILETIME WriteTime(const std::wstring &path);
// A drive letter this machine lacks ("Q:"), or "".
std::wstring MissingDrive();
// The text of a string result, which is then released.
std::wstring Take(HostStr handle);
void RemoveTree(const std::wstring &path);
// A file in the classic compressed format (COMPRESS.EXE) standing for a
// name whose last character is `missing`.
std::string SzddCompress(const std::string &data, char missing = 't');
inline int32_t Err(DWORD code) { return -static_cast<int32_t>(code); }

// Holds a file open with no sharing, as another program might.
class Held {
public:
    explicit Held(const std::wstring &path)
        : handle_(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~Held() { CloseHandle(handle_); }
    Held(const Held &) = delete;
    Held &operator=(const Held &) = delete;
    bool Holds() const { return handle_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle_;
};

// The test's folder (path with a final backslash); no host string may
// outlive the test.
class FolderTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    std::wstring At(const std::wstring &name) const { return dir_ + name; }
    std::wstring Make(const std::wstring &name, const Bytes &bytes) {
        EXPECT_TRUE(Write(At(name), bytes)) << "could not write the test file";
        return At(name);
    }
    std::wstring Folder(const std::wstring &name) {
        EXPECT_TRUE(CreateDirectoryW(At(name).c_str(), nullptr));
        return At(name);
    }
    // The current directory is the test's folder until the end of the test.
    void EnterFolder();

    std::wstring dir_;

private:
    std::wstring savedCurrent_;
    int32_t strings_ = 0;
};

} // namespace filestest
