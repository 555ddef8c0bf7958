#include "dos_support.h"

#include <algorithm>
#include <cstring>
#include <ostream>

namespace dostest {

std::wstring Text(HostStr handle) {
    int32_t size = 0;
    const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
    return text ? std::wstring(text) : std::wstring(L"<null>");
}

std::wstring Take(HostStr handle) {
    EXPECT_NE(0u, handle) << "string results are never 0";
    std::wstring out = Text(handle);
    if (handle)
        ZkHostStrRelease(handle);
    return out;
}

void PrintTo(const Bounds &b, std::ostream *os) { *os << "count " << b.count << " [" << b.low << ", " << b.high << "]"; }

Bounds BoundsOf(HostArray array) {
    Bounds b{};
    b.count = HostArrayGetBounds(array, &b.low, &b.high);
    return b;
}

HostArray StringArray(std::initializer_list<const wchar_t *> texts, int32_t low) {
    const HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(texts.size()) - 1);
    int32_t index = low;
    for (const wchar_t *text : texts)
        HostArraySetString(array, ZkHostStrMake(text), index++);
    return array;
}

Texts TextsOf(HostArray array) {
    Texts out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; b.count > 0 && i <= b.high; ++i) {
        HostStr s = 0;
        HostArrayGetString(array, &s, i);
        out.push_back(Text(s));
    }
    return out;
}

Texts Sorted(Texts texts) {
    std::sort(texts.begin(), texts.end());
    return texts;
}

std::vector<HostNumber> RecordsOf(HostArray array, int32_t type) {
    std::vector<HostNumber> out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; b.count > 0 && i <= b.high; ++i) {
        HostNumber n{};
        if (type == HOST_TYPE_DATETIME)
            HostArrayGetDateTime(array, &n, i);
        else
            HostArrayGetNumber(array, &n, i);
        out.push_back(n);
    }
    return out;
}

int32_t LongOf(const HostNumber &number) {
    int32_t value = INT32_MIN;
    HostNumberToLong(&number, &value);
    return value;
}

HostNumber NumberOf(const std::wstring &text) {
    HostNumber n{};
    EXPECT_EQ(1, HostNumberFromText(&n, text.c_str()));
    return n;
}

bool SameRecord(const HostNumber &a, const HostNumber &b) { return std::memcmp(&a, &b, sizeof a) == 0; }

std::wstring MissingDrive() {
    const DWORD drives = GetLogicalDrives();
    for (int letter = 'Q'; letter != 'P'; letter = letter == 'Z' ? 'A' : letter + 1) {
        if (!(drives & (1u << (letter - 'A'))))
            return std::wstring(1, static_cast<wchar_t>(letter)) + L":";
    }
    return L"";
}

bool MakeFile(const std::wstring &path, DWORD size, DWORD attributes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    if (size) {
        LARGE_INTEGER end;
        end.QuadPart = size;
        SetFilePointerEx(file, end, nullptr, FILE_BEGIN);
        SetEndOfFile(file);
    }
    CloseHandle(file);
    SetFileAttributesW(path.c_str(), attributes);
    const DWORD kept = GetFileAttributesW(path.c_str());
    return kept != INVALID_FILE_ATTRIBUTES && (kept & attributes) == (attributes & ~FILE_ATTRIBUTE_NORMAL);
}

void RemoveTree(const std::wstring &path) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = entry.cFileName;
            if (name == L"." || name == L"..")
                continue;
            const std::wstring child = path + L"\\" + name;
            SetFileAttributesW(child.c_str(), FILE_ATTRIBUTE_NORMAL);
            if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                RemoveTree(child);
            else
                DeleteFileW(child.c_str());
        } while (FindNextFileW(search, &entry));
        FindClose(search);
    }
    RemoveDirectoryW(path.c_str());
}

Variable::Variable(const wchar_t *name, const wchar_t *value) : name_(name) {
    const DWORD size = GetEnvironmentVariableW(name, nullptr, 0);
    had_ = size > 0;
    if (had_) {
        saved_.assign(size, L'\0');
        saved_.resize(GetEnvironmentVariableW(name, saved_.data(), size));
    }
    SetEnvironmentVariableW(name, value);
}

Variable::~Variable() { SetEnvironmentVariableW(name_.c_str(), had_ ? saved_.c_str() : nullptr); }

HostArray DosTest::Array(int32_t type) { return Keep(HostArrayCreate(type)); }

void DosTest::SetUp() {
    ZkHostFailAllocations(0);
    liveStrings_ = ZkHostLiveStrings();
    liveArrays_ = ZkHostLiveArrays();
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const ::testing::TestInfo *info = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string("zkd_") + info->test_suite_name() + "_" + info->name();
    dir_ = temp + std::wstring(name.begin(), name.end());
    RemoveTree(dir_);
    ASSERT_TRUE(CreateDirectoryW(dir_.c_str(), nullptr)) << "no test folder";
    dir_ += L'\\';
}

void DosTest::TearDown() {
    for (HostArray array : arrays_)
        HostArrayDestroy(array);
    if (!dir_.empty())
        RemoveTree(dir_.substr(0, dir_.size() - 1));
    EXPECT_EQ(liveStrings_, ZkHostLiveStrings()) << "host strings left behind";
    EXPECT_EQ(liveArrays_, ZkHostLiveArrays()) << "host arrays left behind";
}

} // namespace dostest
