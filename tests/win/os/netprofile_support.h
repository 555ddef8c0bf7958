// The network and profile tests run in the file tests' fresh folder, with
// string arrays made and read back; no host array may outlive the test.
#pragma once

#include <vector>

#include "files_support.h"

namespace netprofiletest {

using Texts = std::vector<std::wstring>;

// The array's elements from low to high bound; "<none>" for no string.
inline Texts Elements(HostArray array) {
    Texts out;
    int32_t low = 0, high = -1, size = 0;
    if (!HostArrayGetBounds(array, &low, &high))
        return out;
    for (int32_t i = low; i <= high; ++i) {
        HostStr handle = 0;
        HostArrayGetString(array, &handle, i);
        const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
        out.push_back(text ? text : L"<none>");
    }
    return out;
}

class FolderTest : public filestest::FolderTest {
protected:
    void SetUp() override {
        liveArrays_ = ZkHostLiveArrays();
        filestest::FolderTest::SetUp();
    }
    void TearDown() override {
        for (const HostArray array : arrays_)
            HostArrayDestroy(array);
        EXPECT_EQ(liveArrays_, ZkHostLiveArrays()) << "host arrays left behind";
        filestest::FolderTest::TearDown();
    }
    // A string array from index 0 that the test's end destroys.
    HostArray Array(const Texts &texts = {}) {
        const HostArray array = HostArrayCreate(HOST_TYPE_STRING);
        for (size_t i = 0; i < texts.size(); ++i)
            HostArraySetString(array, ZkHostStrMake(texts[i].c_str()), static_cast<int32_t>(i));
        arrays_.push_back(array);
        return array;
    }
    std::string Contents(const std::wstring &name) const { return filestest::Read(At(name)); }

private:
    std::vector<HostArray> arrays_;
    int32_t liveArrays_ = 0;
};

} // namespace netprofiletest
