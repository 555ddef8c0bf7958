// Window properties by the application's own names. These names are not
// the library's: the process-wide copy of the library's properties
// (frame/propcache) is told to forget them, never to keep them.
#include <cwchar>

#include "frame/win/guard.h"
#include "frame/win/propcache.h"

namespace {

// The arrays and the last index of the enumeration under way. One at a
// time: ZelWinEnumProps is not reentrant.
HostArray EnumNames = 0, EnumValues = 0;
int32_t EnumIndex = -1;

// A name given as an atom (its high bits zero) is not text.
bool IsAtom(const wchar_t *name) { return IS_INTRESOURCE(name); }

BOOL CALLBACK EnumProp(HWND, LPCWSTR name, HANDLE value) {
    try {
        ++EnumIndex;
        wchar_t atomName[256] = {};
        const wchar_t *text = name;
        if (IsAtom(name)) {
            const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(name));
            if (!GlobalGetAtomNameW(atom, atomName, 256))
                std::swprintf(atomName, 256, L"#%u", static_cast<unsigned>(atom));
            text = atomName;
        }
        HostArraySetString(EnumNames, zk::StrFromChars(text, std::wcslen(text)), EnumIndex);
        HostNumber number{};
        HostNumberFromULong(static_cast<uint32_t>(reinterpret_cast<UINT_PTR>(value)), &number);
        HostArraySetNumber(EnumValues, &number, EnumIndex);
        return TRUE;
    } catch (...) {
        return FALSE;
    }
}

// Whether the window has the property, whatever its value. Names are
// atoms underneath, which ignore case.
struct Search {
    const wchar_t *name;
    bool found;
};

BOOL CALLBACK MatchProp(HWND, LPWSTR name, HANDLE, ULONG_PTR search) {
    auto *s = reinterpret_cast<Search *>(search);
    const bool same = IsAtom(name) || IsAtom(s->name) ? name == s->name : lstrcmpiW(name, s->name) == 0;
    s->found = s->found || same;
    return s->found ? FALSE : TRUE;
}

bool HasProp(HWND window, const wchar_t *name) {
    Search search{name, false};
    EnumPropsExW(window, MatchProp, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelWinEnumProps(HWND window, HostArray names, HostArray values) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!IsWindow(window) || !names || !values)
                return 0;
            EnumNames = names;
            EnumValues = values;
            EnumIndex = -1;
            EnumPropsW(window, EnumProp);
            HostArraySetBounds(names, 0, EnumIndex);
            HostArraySetBounds(values, 0, EnumIndex);
            EnumNames = EnumValues = 0;
            return EnumIndex + 1;
        },
        [] { return int32_t{0}; });
}

INT_PTR ZKAPI ZelWinGetProp(HWND window, const wchar_t *name) {
    return name ? reinterpret_cast<INT_PTR>(GetPropW(window, name)) : 0;
}

int32_t ZKAPI ZelWinSetProp(HWND window, const wchar_t *name, uint16_t value) {
    if (!name || !SetPropW(window, name, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(value))))
        return 0;
    if (!IsAtom(name))
        zk::PropForget(window, name);
    return 1;
}

int32_t ZKAPI ZelWinRemoveProp(HWND window, const wchar_t *name) {
    if (!name || !IsWindow(window))
        return 0;
    // A property may hold 0, which RemovePropW cannot tell from none.
    if (!GetPropW(window, name) && !HasProp(window, name))
        return 0;
    if (IsAtom(name))
        RemovePropW(window, name);
    else
        zk::PropRemove(window, name);
    return 1;
}

} // extern "C"
