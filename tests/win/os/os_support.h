// The drive, directory, network and profile tests run in the file tests'
// fresh folder, with host arrays made and read back by the array tests'
// helpers; every test gives back the strings and arrays it made.
#pragma once

#include <algorithm>
#include <vector>

#include "array_support.h"
#include "files_support.h"

namespace ostest {

using namespace arraytest;
using filestest::IsFolder;
using filestest::MissingDrive;
using filestest::Take;
using Texts = std::vector<std::wstring>;

inline Texts Sorted(Texts texts) {
    std::sort(texts.begin(), texts.end());
    return texts;
}
inline std::vector<HostNumber> RecordsOf(HostArray array, int32_t type) {
    std::vector<HostNumber> out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; b.count > 0 && i <= b.high; ++i) {
        HostNumber n{};
        type == HOST_TYPE_DATETIME ? HostArrayGetDateTime(array, &n, i) : HostArrayGetNumber(array, &n, i);
        out.push_back(n);
    }
    return out;
}
inline HostDateTime Date(int year, int month, int day, int hour, int minute, int second) {
    HostDateTime d{};
    HostDateConstruct(&d, year, month, day, hour, minute, second);
    return d;
}
// The Retry button of the dialog a refused host allocation brings up.
constexpr int kRetry = 203;
inline int32_t LongOf(const HostNumber &number) {
    int32_t value = INT32_MIN;
    HostNumberToLong(&number, &value);
    return value;
}

// An empty file with the given marks; true when the marks stuck (the file
// system may not keep hidden or system).
inline bool MakeFile(const std::wstring &path, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
    if (!filestest::Write(path, ""))
        return false;
    SetFileAttributesW(path.c_str(), attributes);
    const DWORD kept = GetFileAttributesW(path.c_str());
    return kept != INVALID_FILE_ATTRIBUTES && (kept & attributes) == (attributes & ~FILE_ATTRIBUTE_NORMAL);
}

// Sets an environment variable for the length of a test (null unsets it).
class Variable {
public:
    Variable(const wchar_t *name, const wchar_t *value) : name_(name) {
        const DWORD size = GetEnvironmentVariableW(name, nullptr, 0);
        if ((had_ = size > 0)) {
            saved_.assign(size, L'\0');
            saved_.resize(GetEnvironmentVariableW(name, saved_.data(), size));
        }
        SetEnvironmentVariableW(name, value);
    }
    ~Variable() { SetEnvironmentVariableW(name_.c_str(), had_ ? saved_.c_str() : nullptr); }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    std::wstring name_, saved_;
    bool had_ = false;
};

class OsTest : public filestest::FolderTest {
protected:
    void SetUp() override {
        ZkHostFailAllocations(0);
        liveArrays_ = ZkHostLiveArrays();
        FolderTest::SetUp();
    }
    void TearDown() override {
        for (HostArray array : arrays_)
            HostArrayDestroy(array);
        EXPECT_EQ(liveArrays_, ZkHostLiveArrays()) << "host arrays left behind";
        FolderTest::TearDown();
    }
    // An array destroyed at the end of the test.
    HostArray Keep(HostArray array) {
        arrays_.push_back(array);
        return array;
    }
    HostArray Array(int32_t type) { return Keep(HostArrayCreate(type)); }
    // A string array from index 0.
    HostArray Array(std::initializer_list<const wchar_t *> texts) { return Keep(Strings(texts)); }
    std::string Contents(const std::wstring &name) const { return filestest::Read(At(name)); }

private:
    std::vector<HostArray> arrays_;
    int32_t liveArrays_ = 0;
};

} // namespace ostest
