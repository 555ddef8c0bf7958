// File functions: a file copied in a folder of its own under the temporary
// folder, its count, size and contents checked, and everything removed.
#include <windows.h>

#include <string>

#include "report.h"
#include "steps.h"
#include "zklib.h"

namespace gallery {
namespace {

const char kSample[] = "Zelkova Kit copies this line.\r\nAnd this one.\r\n";

bool WriteSample(const std::wstring &path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool ok = WriteFile(file, kSample, sizeof kSample - 1, &written, nullptr) && written == sizeof kSample - 1;
    CloseHandle(file);
    return ok;
}

std::string ReadAll(const std::wstring &path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    std::string bytes;
    char chunk[4096];
    DWORD read = 0;
    while (ReadFile(file, chunk, sizeof chunk, &read, nullptr) && read > 0)
        bytes.append(chunk, read);
    CloseHandle(file);
    return bytes;
}

} // namespace

void RunFileSteps(Report &report) {
    report.Section(L"File functions");
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const std::wstring dir = std::wstring(temp) + L"zkgallery_files_" + std::to_wstring(GetCurrentProcessId());
    const std::wstring copies = dir + L"\\copies";
    const std::wstring source = dir + L"\\notes.txt", target = copies + L"\\notes.bak";
    if (!CreateDirectoryW(dir.c_str(), nullptr) || !CreateDirectoryW(copies.c_str(), nullptr) || !WriteSample(source)) {
        report.Check(L"temporary folder", dir, false, L"a folder with notes.txt");
    } else {
        report.Note(L"in " + dir);
        report.Number(L"ZelFileCopy(\"*.txt\", \"copies\\*.bak\")",
                      ZelFileCopy((dir + L"\\*.txt").c_str(), (copies + L"\\*.bak").c_str()), 1);
        const bool same = ReadAll(target) == kSample;
        report.Check(L"copies\\notes.bak", same ? L"same bytes as notes.txt" : L"differs from notes.txt", same,
                     L"same bytes as notes.txt");
        report.Number(L"ZelFileGetSize(\"copies\\notes.bak\")", ZelFileGetSize(target.c_str()), sizeof kSample - 1);
        report.Number(L"ZelFileCopy(\"*.none\", ...)", ZelFileCopy((dir + L"\\*.none").c_str(), copies.c_str()),
                      ZEL_FILE_NOT_FOUND);
    }
    DeleteFileW(target.c_str());
    DeleteFileW(source.c_str());
    RemoveDirectoryW(copies.c_str());
    RemoveDirectoryW(dir.c_str());
}

} // namespace gallery
