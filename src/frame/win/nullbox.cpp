#include "frame/win/guard.h"

namespace zk {

void NullControlBox(const wchar_t *functionName) {
    std::wstring text = LoadText(48);
    const size_t at = text.find(L"%1");
    if (at != std::wstring::npos)
        text.replace(at, 2, functionName ? functionName : L"");
    MessageBoxW(GetActiveWindow(), text.c_str(), kAppName, MB_OK | MB_ICONHAND);
}

} // namespace zk
