// A host string as the application holds it: one reference, dropped when
// the holder goes. Every string an export returns is kept in one of these.
#pragma once

#include <cwchar>
#include <string>
#include <utility>

#include "zkhost.h"
#include "zkhostctl.h"

namespace gallery {

class OwnedStr {
public:
    OwnedStr() = default;
    explicit OwnedStr(HostStr handle) : handle_(handle) {}
    ~OwnedStr() { Reset(0); }
    OwnedStr(OwnedStr &&other) noexcept : handle_(std::exchange(other.handle_, 0)) {}
    OwnedStr &operator=(OwnedStr &&other) noexcept {
        if (this != &other)
            Reset(std::exchange(other.handle_, 0));
        return *this;
    }
    OwnedStr(const OwnedStr &) = delete;
    OwnedStr &operator=(const OwnedStr &) = delete;

    HostStr Get() const { return handle_; }
    bool Valid() const { return handle_ != 0; }

    void Reset(HostStr handle) {
        if (handle_)
            ZkHostStrRelease(handle_);
        handle_ = handle;
    }

    // The text, bounded by the buffer the host reports.
    std::wstring Text() const {
        if (!handle_)
            return {};
        int32_t size = 0;
        const wchar_t *buffer = HostStrLock(handle_, &size);
        if (!buffer || size <= 0)
            return {};
        return std::wstring(buffer, wcsnlen(buffer, static_cast<size_t>(size) / sizeof(wchar_t)));
    }

private:
    HostStr handle_ = 0;
};

} // namespace gallery
