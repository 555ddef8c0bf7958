// Moveable local memory blocks, locked only for the length of a field
// access. A block is owned by whoever holds its handle (here: a window
// property); LocalPin pins it while it lives and unpins on every path.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstring>

namespace zk {

// A moveable, zero-initialised block of `bytes`; 0 when there is no memory.
inline HLOCAL LocalBlockNew(std::size_t bytes) { return LocalAlloc(LMEM_MOVEABLE | LMEM_ZEROINIT, bytes); }

// Pins a block as a T for the length of a scope. A handle of 0, or one that
// will not lock, gives an empty pin (operator bool false).
template <class T>
class LocalPin {
public:
    explicit LocalPin(HLOCAL handle) noexcept
        : handle_(handle), data_(handle ? static_cast<T *>(LocalLock(handle)) : nullptr) {}
    ~LocalPin() {
        if (data_) {
            LocalUnlock(handle_);
        }
    }
    LocalPin(const LocalPin &) = delete;
    LocalPin &operator=(const LocalPin &) = delete;

    explicit operator bool() const noexcept { return data_ != nullptr; }
    T *get() const noexcept { return data_; }
    T *operator->() const noexcept { return data_; }
    T &operator*() const noexcept { return *data_; }

private:
    HLOCAL handle_;
    T *data_;
};

// Reads a whole record out of a block under a short lock; false if it will not lock.
template <class T>
bool LocalCopy(HLOCAL handle, T *out) noexcept {
    LocalPin<T> pin(handle);
    if (!pin) {
        return false;
    }
    std::memcpy(static_cast<void *>(out), pin.get(), sizeof(T));
    return true;
}

// Runs f(record&) under a short lock; false if the block will not lock.
template <class T, class F>
bool LocalWith(HLOCAL handle, F &&f) {
    LocalPin<T> pin(handle);
    if (!pin) {
        return false;
    }
    f(*pin);
    return true;
}

} // namespace zk
