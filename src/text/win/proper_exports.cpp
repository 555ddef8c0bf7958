// ZelStrProper: capitalisation of names with the platform's case mapping.
#include "text/core/proper.h"
#include "text/win/host_text.h"

namespace {

class WinCaseMap final : public zk::text::CaseMap {
public:
    void Upper(char16_t *text, std::size_t count) override {
        CharUpperBuffW(reinterpret_cast<wchar_t *>(text), static_cast<DWORD>(count));
    }
    void Lower(char16_t *text, std::size_t count) override {
        CharLowerBuffW(reinterpret_cast<wchar_t *>(text), static_cast<DWORD>(count));
    }
};

} // namespace

HostStr ZKAPI ZelStrProper(const wchar_t *text) {
    return zk::StringResult([&]() -> HostStr {
        if (!text)
            return ZelStrEmpty();
        WinCaseMap caseMap;
        const std::u16string proper = zk::text::Proper(zk::text::ArgText(text), caseMap);
        return zk::text::SizedResult(proper, 2 * static_cast<uint64_t>(proper.size()) + 2);
    });
}
