// String tables and host arrays: a table file written, loaded and asked by
// key; an array of names sorted both ways.
#include <windows.h>

#include <string>
#include <vector>

#include "ownedstr.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zklib.h"

namespace gallery {
namespace {

// A folder of its own under the temporary folder, gone with the object.
class TempFolder {
public:
    TempFolder() {
        wchar_t temp[MAX_PATH];
        if (GetTempPathW(MAX_PATH, temp))
            path_ = std::wstring(temp) + L"zkgallery" + std::to_wstring(GetCurrentProcessId());
        ok_ = !path_.empty() && (CreateDirectoryW(path_.c_str(), nullptr) || GetLastError() == ERROR_ALREADY_EXISTS);
    }
    ~TempFolder() {
        for (const std::wstring &file : files_)
            DeleteFileW(file.c_str());
        if (ok_)
            RemoveDirectoryW(path_.c_str());
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    bool Ok() const { return ok_; }

    // Writes bytes as a file of the folder; its full path, or empty.
    std::wstring Write(const std::wstring &name, const std::string &bytes) {
        const std::wstring file = path_ + L"\\" + name;
        const HANDLE h =
            CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (h == INVALID_HANDLE_VALUE)
            return {};
        DWORD written = 0;
        const bool ok =
            WriteFile(h, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written == bytes.size();
        CloseHandle(h);
        files_.push_back(file);
        return ok ? file : std::wstring();
    }

private:
    std::wstring path_;
    std::vector<std::wstring> files_;
    bool ok_ = false;
};

void StringTable(Report &report) {
    TempFolder folder;
    // Three keyed lines; the last has no line end, and a lone LF stays in
    // its value.
    const std::wstring file = folder.Ok() ? folder.Write(L"messages.tbl", "{greeting}Hello from the table\r\n"
                                                                          "{farewell}Goodbye\r\n"
                                                                          "{twolines}first\nsecond")
                                          : std::wstring();
    if (!report.LogCheck(L"string table file written", file, !file.empty(), L"a file in the temporary folder"))
        return;
    const intptr_t table = ZelStrLoadTable(file.c_str());
    report.Check(L"ZelStrLoadTable(\"messages.tbl\")", table > 0 ? L"a table handle" : std::to_wstring(table),
                 table > 0, L"a table handle");
    if (table <= 0)
        return;
    report.Text(L"ZelStrFind(table, \"greeting\")", OwnedStr(ZelStrFind(table, L"greeting")).Text(),
                L"Hello from the table");
    // The lone LF is shown escaped, so that the log keeps one line a step.
    const std::wstring twoLines = OwnedStr(ZelStrFind(table, L"twolines")).Text();
    std::wstring shown;
    for (wchar_t c : twoLines)
        shown += c == L'\n' ? std::wstring(L"\\n") : std::wstring(1, c);
    report.Check(L"ZelStrFind(table, \"twolines\")", Quote(shown), twoLines == L"first\nsecond",
                 Quote(L"first\\nsecond"));
    report.Text(L"ZelStrFind(table, \"Greeting\")", OwnedStr(ZelStrFind(table, L"Greeting")).Text(), L"");
    report.Number(L"ZelStrFreeTable(table)", ZelStrFreeTable(table), 1);
    report.Number(L"ZelStrLoadTable(\"absent.tbl\")", ZelStrLoadTable(L"zk-absent-table.tbl"), ZEL_FILE_NOT_FOUND);
}

std::wstring Joined(HostArray array) {
    int32_t low = 0, high = -1;
    const int32_t count = HostArrayGetBounds(array, &low, &high);
    std::wstring text;
    for (int32_t i = low; count > 0 && i <= high; ++i) {
        HostStr element = 0;
        HostArrayGetString(array, &element, i);
        int32_t size = 0;
        const wchar_t *chars = element ? HostStrLock(element, &size) : nullptr;
        text += (i > low ? L", " : L"") + std::wstring(chars ? chars : L"");
    }
    return text;
}

void ArraySort(Report &report) {
    // Bounds from 1, and ties that differ in case: they keep their order.
    const HostArray names = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(names, 1, 5);
    const wchar_t *const input[] = {L"pear", L"Apple", L"fig", L"apple", L"Banana"};
    int32_t index = 1;
    for (const wchar_t *name : input)
        HostArraySetString(names, ZkHostStrMake(name), index++);
    report.Note(L"array before sorting: " + Joined(names));
    report.Number(L"ZelArraySort(names, ascending)", ZelArraySort(names, ZEL_SORT_ASCENDING, HOST_TYPE_STRING), 5);
    report.Text(L"sorted ascending", Joined(names), L"Apple, apple, Banana, fig, pear");
    report.Number(L"ZelArraySort(names, descending)", ZelArraySort(names, ZEL_SORT_DESCENDING, HOST_TYPE_STRING), 5);
    report.Text(L"sorted descending", Joined(names), L"pear, fig, Banana, Apple, apple");
    report.Number(L"ZelArrayFindString(names, \"BANANA\")", ZelArrayFindString(names, L"BANANA"), 3);
    HostArrayDestroy(names);
}

} // namespace

void RunStringTableSteps(Report &report) {
    report.Section(L"String tables and arrays");
    StringTable(report);
    ArraySort(report);
}

} // namespace gallery
