#include "report.h"

#include <cwchar>

#include "form.h"
#include "log.h"

namespace gallery {

std::wstring Quote(const std::wstring &text) { return L"\"" + text + L"\""; }

std::wstring HexText(uint32_t value) {
    wchar_t buffer[16];
    swprintf(buffer, 16, L"0x%X", static_cast<unsigned>(value));
    return buffer;
}

void Report::Section(const std::wstring &title) {
    log_.Line(L"");
    log_.Line(L"== " + title);
    if (form_)
        form_->Section(title);
}

void Report::Note(const std::wstring &text) { log_.Line(L"   " + text); }

bool Report::Record(const std::wstring &label, const std::wstring &shown, bool ok, const std::wstring &expected,
                    bool onForm) {
    std::wstring line = (ok ? L"ok    " : L"FAIL  ") + label + L" = " + shown;
    if (!ok && !expected.empty())
        line += L"  (expected " + expected + L")";
    log_.Line(line);
    if (onForm && form_)
        form_->Row(label, shown, ok);
    ok ? ++passes_ : ++failures_;
    return ok;
}

bool Report::Check(const std::wstring &label, const std::wstring &shown, bool ok, const std::wstring &expected) {
    return Record(label, shown, ok, expected, true);
}

bool Report::LogCheck(const std::wstring &label, const std::wstring &shown, bool ok, const std::wstring &expected) {
    return Record(label, shown, ok, expected, false);
}

bool Report::Text(const std::wstring &label, const std::wstring &actual, const std::wstring &expected) {
    return Check(label, Quote(actual), actual == expected, Quote(expected));
}

bool Report::Number(const std::wstring &label, int64_t actual, int64_t expected) {
    return Check(label, std::to_wstring(actual), actual == expected, std::to_wstring(expected));
}

bool Report::Hex(const std::wstring &label, uint32_t actual, uint32_t expected) {
    return Check(label, HexText(actual), actual == expected, HexText(expected));
}

} // namespace gallery
