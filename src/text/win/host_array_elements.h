// The elements of a host array as the template expansion reads them.
#pragma once

#include "frame/win/host.h"
#include "text/core/expand.h"

namespace zk::text {

class HostArrayElements final : public ElementSource {
public:
    explicit HostArrayElements(HostArray array) : array_(array) {}
    // Borrowed: the array keeps the string alive.
    std::u16string_view String(int32_t index) override;
    // "%ld" of HostNumberToLong; a missing or null element reads 0.
    int32_t Number(int32_t index) override;

private:
    HostArray array_;
};

} // namespace zk::text
