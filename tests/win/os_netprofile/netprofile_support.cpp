#include "netprofile_support.h"

namespace netprofiletest {

HostArray StringArray(const Texts &texts) {
    const HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    for (size_t i = 0; i < texts.size(); ++i)
        HostArraySetString(array, ZkHostStrMake(texts[i].c_str()), static_cast<int32_t>(i));
    return array;
}

Texts Elements(HostArray array) {
    Texts out;
    int32_t low = 0, high = -1;
    if (!HostArrayGetBounds(array, &low, &high))
        return out;
    for (int32_t i = low; i <= high; ++i) {
        HostStr handle = 0;
        HostArrayGetString(array, &handle, i);
        int32_t size = 0;
        const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
        out.push_back(text ? text : L"<none>");
    }
    return out;
}

void FolderTest::SetUp() {
    strings_ = ZkHostLiveStrings();
    liveArrays_ = ZkHostLiveArrays();
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const ::testing::TestInfo *info = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string("zkn_") + info->name();
    dir_ = temp + std::wstring(name.begin(), name.end());
    CreateDirectoryW(dir_.c_str(), nullptr);
    dir_ += L'\\';
}

void FolderTest::TearDown() {
    if (!savedCurrent_.empty())
        SetCurrentDirectoryW(savedCurrent_.c_str());
    for (const HostArray array : arrays_)
        HostArrayDestroy(array);
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((dir_ + L"*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            SetFileAttributesW(At(entry.cFileName).c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(At(entry.cFileName).c_str());
        } while (FindNextFileW(search, &entry));
        FindClose(search);
    }
    RemoveDirectoryW(dir_.c_str());
    EXPECT_EQ(strings_, ZkHostLiveStrings()) << "host strings left behind";
    EXPECT_EQ(liveArrays_, ZkHostLiveArrays()) << "host arrays left behind";
}

std::wstring FolderTest::Make(const std::wstring &name, const std::string &text) {
    const std::wstring path = At(name);
    const HANDLE h = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    EXPECT_NE(INVALID_HANDLE_VALUE, h);
    DWORD written = 0;
    if (!text.empty())
        WriteFile(h, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(h);
    return path;
}

std::string FolderTest::Contents(const std::wstring &name) const {
    const HANDLE h = CreateFileW(At(name).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                 OPEN_EXISTING, 0, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return "<missing>";
    std::string out(65536, '\0');
    DWORD read = 0;
    ReadFile(h, out.data(), static_cast<DWORD>(out.size()), &read, nullptr);
    CloseHandle(h);
    out.resize(read);
    return out;
}

HostArray FolderTest::Array(const Texts &texts) {
    arrays_.push_back(StringArray(texts));
    return arrays_.back();
}

void FolderTest::EnterFolder() {
    wchar_t current[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, current);
    savedCurrent_ = current;
    ASSERT_TRUE(SetCurrentDirectoryW(dir_.c_str()));
}

} // namespace netprofiletest
