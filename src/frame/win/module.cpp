// The library's module handle and its string resources.
#include "frame/win/host.h"

namespace zk {

HINSTANCE ModuleInstance = nullptr;

std::wstring LoadText(UINT id) {
    const wchar_t *text = nullptr;
    // A zero buffer size asks for a read-only pointer to the resource itself.
    const int length = LoadStringW(ModuleInstance, id, reinterpret_cast<wchar_t *>(&text), 0);
    return length > 0 && text ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

} // namespace zk
