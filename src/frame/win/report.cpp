// Debugger traces of caught exceptions.
#include "frame/win/host.h"

namespace zk {

void TraceLine(const wchar_t *functionName, const wchar_t *text) {
    OutputDebugStringW(functionName ? functionName : L"");
    OutputDebugStringW(L" - ");
    OutputDebugStringW(text ? text : L"");
    OutputDebugStringW(L"\n");
}

} // namespace zk

void ZelReportError(UINT stringId, const wchar_t *functionName) {
    // The text goes out as it stands: a "%1" in it is not filled in here.
    const std::wstring text = zk::LoadText(stringId);
    zk::TraceLine(functionName, text.c_str());
}
