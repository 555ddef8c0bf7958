// ZelDosEnumFileInfo over a folder of 20,000 empty files against the
// platform's FindFirstFileW / FindNextFileW walk over the same folder in the
// same run. The listing does per file what the walk does, plus four host
// elements: the name as a host string, the size, the creation date through
// local time and the DOS form, and the attributes. The figure is the
// listing's time over the walk's, on the median of rounds taken in turn;
// the bound is 3. The program fails only when the listing's count or its
// names differ from the walk's; under ./zk test it takes one round. The folder is left in the temporary folder
// for the next run (see MakeFiles).
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

#include "bench.h"
#include "zkhost.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr double kBound = 3.0;
constexpr int kFiles = 20000;

// Whether a name is one of the bench's files.
bool OwnName(const wchar_t *name) {
    int number = -1;
    wchar_t tail = 0;
    return swscanf(name, L"file%05d.da%lc", &number, &tail) == 2 && tail == L't' && number >= 0 && number < kFiles &&
           std::wcslen(name) == 13;
}

// Anything else a kept folder may have gathered goes.
void RemoveStrays(const std::wstring &dir) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((dir + L"\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && !OwnName(entry.cFileName))
            DeleteFileW((dir + L"\\" + entry.cFileName).c_str());
    } while (FindNextFileW(search, &entry));
    FindClose(search);
}

// Makes the files the folder does not hold yet. Under Wine each new name
// costs a walk of the whole folder (no other spelling of it may exist), so
// 20,000 files take minutes to make while an existing one is found at once:
// the folder is kept for the next run.
bool MakeFiles(const std::wstring &dir) {
    for (int i = 0; i < kFiles; ++i) {
        wchar_t name[32];
        swprintf(name, 32, L"\\file%05d.dat", i);
        const HANDLE file = CreateFileW((dir + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE)
            CloseHandle(file);
        else if (GetLastError() != ERROR_FILE_EXISTS)
            return false;
    }
    return true;
}

// The platform's walk alone: the files it finds, the folder's links left out.
int PlatformWalk(const std::wstring &pattern) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(pattern.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return -1;
    int count = 0;
    do {
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            ++count;
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return count;
}

// The names the listing wrote: all of them "fileNNNNN.dat", each once.
bool NamesComplete(HostArray names) {
    int32_t low = 0, high = -1;
    if (HostArrayGetBounds(names, &low, &high) != kFiles || low != 0)
        return false;
    std::vector<bool> seen(kFiles);
    for (int32_t i = 0; i <= high; ++i) {
        HostStr handle = 0;
        HostArrayGetString(names, &handle, i);
        int32_t size = 0;
        const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
        int number = -1;
        if (!text || swscanf(text, L"file%05d.dat", &number) != 1 || number < 0 || number >= kFiles || seen[number])
            return false;
        seen[number] = true;
    }
    return true;
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_dos", argc, argv);
    const int rounds = run.Size(1, 7);
    // The test run makes the files beforehand, outside Wine, and names the
    // folder here; otherwise they are made in the temporary folder.
    wchar_t given[MAX_PATH] = {};
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const std::wstring dir = GetEnvironmentVariableW(L"ZK_DOSBENCH_DIR", given, MAX_PATH) - 1u < MAX_PATH - 1u
                                 ? std::wstring(given)
                                 : std::wstring(temp) + L"zkdos_bench";
    CreateDirectoryW(dir.c_str(), nullptr);
    RemoveStrays(dir);
    const std::wstring pattern = dir + L"\\*.*";

    std::printf("  ZelDosEnumFileInfo against FindFirstFileW/FindNextFileW, %d files, median of %d rounds\n", kFiles,
                rounds);
    const double madeStart = Seconds();
    if (!MakeFiles(dir)) {
        run.Wrong("the files could not be made");
        return run.Finish();
    }
    std::printf("  files ready in %.2f s\n", Seconds() - madeStart);

    std::vector<double> library, platform, ratios;
    for (int round = 0; round < rounds && run.Ok(); ++round) {
        const HostArray names = HostArrayCreate(HOST_TYPE_STRING), sizes = HostArrayCreate(HOST_TYPE_NUMBER),
                        dates = HostArrayCreate(HOST_TYPE_DATETIME), attributes = HostArrayCreate(HOST_TYPE_NUMBER);
        int32_t listed = 0;
        int walked = 0;
        auto byLibrary = [&] {
            const double start = Seconds();
            listed = ZelDosEnumFileInfo(pattern.c_str(), 0, names, sizes, dates, attributes);
            library.push_back(Seconds() - start);
        };
        auto byPlatform = [&] {
            const double start = Seconds();
            walked = PlatformWalk(pattern);
            platform.push_back(Seconds() - start);
        };
        // Turns about in the lead, so that neither always finds the cache as
        // the other left it.
        if (round % 2) {
            byPlatform();
            byLibrary();
        } else {
            byLibrary();
            byPlatform();
        }
        ratios.push_back(library.back() / platform.back());
        if (listed != kFiles || walked != kFiles)
            run.Wrong("count: ZelDosEnumFileInfo %d, platform walk %d, files %d", listed, walked, kFiles);
        else if (round == 0)
            run.Check(NamesComplete(names), "the listing's names are not the folder's files");
        for (HostArray array : {names, sizes, dates, attributes})
            HostArrayDestroy(array);
    }
    if (run.Ok()) {
        std::printf("  ZelDosEnumFileInfo   median %8.2f ms, best %8.2f ms\n", Median(library) * 1e3,
                    Best(library) * 1e3);
        std::printf("  FindFirst/NextFileW  median %8.2f ms, best %8.2f ms\n", Median(platform) * 1e3,
                    Best(platform) * 1e3);
        run.Figure("ZelDosEnumFileInfo / platform walk time", Median(ratios), Want::AtMost, kBound);
    }
    return run.Finish();
}
