// The file tests work in a fresh folder under the temporary folder, made
// for each test and removed with everything in it afterwards (read-only
// and hidden marks cleared first). Files are written and read whole.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace filestest {

using Bytes = std::string;

// Writes a file whole; true on success.
bool Write(const std::wstring &path, const Bytes &bytes);
// The whole file, or "<missing>" when it cannot be opened.
Bytes Read(const std::wstring &path);
bool Exists(const std::wstring &path);
bool IsFolder(const std::wstring &path);
DWORD Attributes(const std::wstring &path);
// A file of `size` bytes that takes no room on the disk: its end is set,
// nothing is written.
bool MakeSparse(const std::wstring &path, uint64_t size);
// Text of `size` bytes with patterns that repeat (for compression) and a
// little noise, the same for the same seed.
Bytes SampleBytes(size_t size, uint32_t seed);

// The file's last write time as local time.
SYSTEMTIME WriteTimeLocal(const std::wstring &path);
FILETIME WriteTime(const std::wstring &path);

// A drive letter this machine does not have ("Q:"), or "" if all exist.
std::wstring MissingDrive();

// Holds a file open with no sharing, as another program might, until it
// goes out of scope.
class Held {
public:
    explicit Held(const std::wstring &path)
        : handle_(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~Held() {
        if (handle_ != INVALID_HANDLE_VALUE)
            CloseHandle(handle_);
    }
    Held(const Held &) = delete;
    Held &operator=(const Held &) = delete;
    bool Holds() const { return handle_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle_;
};

// The text of a host string, which the test then releases.
std::wstring Take(HostStr handle);

// Removes a folder with everything in it.
void RemoveTree(const std::wstring &path);

// A fresh folder for each test, its path with a final backslash; checks
// that no host string outlives the test.
class FolderTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    // A path in the test's folder.
    std::wstring At(const std::wstring &name) const { return dir_ + name; }
    std::wstring Make(const std::wstring &name, const Bytes &bytes) {
        const std::wstring path = At(name);
        EXPECT_TRUE(Write(path, bytes)) << "could not write the test file";
        return path;
    }
    std::wstring Folder(const std::wstring &name) {
        const std::wstring path = At(name);
        EXPECT_TRUE(CreateDirectoryW(path.c_str(), nullptr));
        return path;
    }
    // Runs the test's current directory in the folder until the end of the test.
    void EnterFolder();

    std::wstring dir_;

private:
    std::wstring savedCurrent_;
    int32_t strings_ = 0;
};

} // namespace filestest
