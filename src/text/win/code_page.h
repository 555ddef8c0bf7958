// The system's ANSI code page and the host's multi-byte helpers, as the
// byte padding uses them.
#pragma once

#include "text/core/padb.h"

namespace zk::text {

class WinCodePage final : public CodePage {
public:
    std::size_t ByteLength(std::u16string_view text) override;
    char *AllocBytes(std::size_t size) override;
    void FreeBytes(char *block) override;
    void ToBytes(std::u16string_view text, char *out, std::size_t size) override;
    bool CopyBytes(char *destination, const char *source, std::size_t limit) override;
    std::size_t WideLength(const char *bytes) override;
};

} // namespace zk::text
