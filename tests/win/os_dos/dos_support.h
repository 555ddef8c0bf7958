// The drive and directory tests work in a fresh folder under the temporary
// folder, removed with everything in it afterwards; host arrays are made
// and read back as the host would, and every test gives back the strings
// and arrays it made.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace dostest {

using Texts = std::vector<std::wstring>;

// The text of a string result, which the test then releases.
std::wstring Take(HostStr handle);
// The text behind a borrowed handle.
std::wstring Text(HostStr handle);

struct Bounds {
    int32_t count, low, high;
    bool operator==(const Bounds &) const = default;
};
void PrintTo(const Bounds &b, std::ostream *os);
Bounds BoundsOf(HostArray array);

// A string array holding the texts from index `low` on.
HostArray StringArray(std::initializer_list<const wchar_t *> texts, int32_t low = 0);
// Contents in index order; names sorted when the platform's order does not matter.
Texts TextsOf(HostArray array);
Texts Sorted(Texts texts);
std::vector<HostNumber> RecordsOf(HostArray array, int32_t type);
int32_t LongOf(const HostNumber &number);
// A number as the host reads its decimal text.
HostNumber NumberOf(const std::wstring &text);
bool SameRecord(const HostNumber &a, const HostNumber &b);

// A drive letter this machine lacks ("Q:"), or "" when all exist.
std::wstring MissingDrive();

// Makes a file of `bytes` bytes (0: empty) with the given attributes; true
// when the attributes stuck (the file system may not keep hidden or system).
bool MakeFile(const std::wstring &path, DWORD size = 0, DWORD attributes = FILE_ATTRIBUTE_NORMAL);
void RemoveTree(const std::wstring &path);

// Sets an environment variable for the length of a test (null unsets it).
class Variable {
public:
    Variable(const wchar_t *name, const wchar_t *value);
    ~Variable();
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    std::wstring name_, saved_;
    bool had_ = false;
};

class DosTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    std::wstring At(const std::wstring &name) const { return dir_ + name; }
    std::wstring Folder(const std::wstring &name) {
        const std::wstring path = At(name);
        EXPECT_TRUE(CreateDirectoryW(path.c_str(), nullptr));
        return path;
    }
    // An array of the type, destroyed at the end of the test.
    HostArray Array(int32_t type);
    HostArray Keep(HostArray array) {
        arrays_.push_back(array);
        return array;
    }

    std::wstring dir_; // with a final backslash

private:
    std::vector<HostArray> arrays_;
    int32_t liveStrings_ = 0, liveArrays_ = 0;
};

} // namespace dostest
