#include "files_support.h"

namespace filestest {

bool Write(const std::wstring &path, const Bytes &bytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool ok =
        bytes.empty() ||
        (WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written == bytes.size());
    CloseHandle(file);
    return ok;
}

Bytes Read(const std::wstring &path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return "<missing>";
    Bytes bytes;
    char chunk[65536];
    DWORD read = 0;
    while (ReadFile(file, chunk, sizeof chunk, &read, nullptr) && read > 0)
        bytes.append(chunk, read);
    CloseHandle(file);
    return bytes;
}

bool IsFolder(const std::wstring &path) {
    const DWORD a = Attributes(path);
    return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_DIRECTORY);
}

bool MakeSparse(const std::wstring &path, uint64_t size) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER end;
    end.QuadPart = static_cast<LONGLONG>(size);
    const bool ok = SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file);
    CloseHandle(file);
    return ok;
}

Bytes SampleBytes(size_t size, uint32_t seed) {
    static const char *const words[] = {"alder ", "birch ", "cedar ", "zelkova ", "\r\n", "maple ", "    "};
    Bytes out;
    uint32_t state = seed * 2654435761u + 1;
    while (out.size() < size) {
        state = state * 1664525u + 1013904223u;
        if ((state >> 28) == 0)
            out += static_cast<char>(state >> 8);
        else
            out += words[(state >> 16) % 7];
    }
    out.resize(size);
    return out;
}

FILETIME WriteTime(const std::wstring &path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
    return data.ftLastWriteTime;
}

std::wstring MissingDrive() {
    const DWORD drives = GetLogicalDrives();
    for (int letter = 'Q'; letter != 'P'; letter = letter == 'Z' ? 'A' : letter + 1) {
        if (!(drives & (1u << (letter - 'A'))))
            return std::wstring(1, static_cast<wchar_t>(letter)) + L":";
    }
    return L"";
}

std::wstring Take(HostStr handle) {
    EXPECT_NE(0u, handle) << "string results are never 0";
    int32_t size = 0;
    const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
    std::wstring out = text ? text : L"";
    if (handle)
        ZkHostStrRelease(handle);
    return out;
}

void RemoveTree(const std::wstring &path) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = entry.cFileName, child = path + L"\\" + name;
            if (name == L"." || name == L"..")
                continue;
            SetFileAttributesW(child.c_str(), FILE_ATTRIBUTE_NORMAL);
            if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                RemoveTree(child);
            else
                DeleteFileW(child.c_str());
        } while (FindNextFileW(search, &entry));
        FindClose(search);
    }
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    RemoveDirectoryW(path.c_str());
}

void FolderTest::SetUp() {
    strings_ = ZkHostLiveStrings();
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const ::testing::TestInfo *info = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string("zkf_") + info->test_suite_name() + "_" + info->name();
    dir_ = temp + std::wstring(name.begin(), name.end());
    RemoveTree(dir_);
    ASSERT_TRUE(CreateDirectoryW(dir_.c_str(), nullptr)) << "no test folder";
    dir_ += L'\\';
}

void FolderTest::EnterFolder() {
    wchar_t current[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, current);
    savedCurrent_ = current;
    ASSERT_TRUE(SetCurrentDirectoryW(dir_.c_str()));
}

void FolderTest::TearDown() {
    if (!savedCurrent_.empty())
        SetCurrentDirectoryW(savedCurrent_.c_str());
    if (!dir_.empty())
        RemoveTree(dir_.substr(0, dir_.size() - 1));
    EXPECT_EQ(strings_, ZkHostLiveStrings()) << "host strings left behind";
}

} // namespace filestest
