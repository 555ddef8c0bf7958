#include "frame/win/propcache.h"

#include <cwchar>
#include <unordered_map>
#include <vector>

namespace zk {
namespace {

// Few names per window: a short list beats a second map. The names are the
// library's constants; they are compared by text, since one literal may
// have a different address in each translation unit.
struct Entry {
    const wchar_t *name;
    HANDLE value;
};

class PropCopy {
public:
    bool Find(HWND window, const wchar_t *name, HANDLE *value) {
        AcquireSRWLockShared(&lock_);
        bool found = false;
        if (auto it = windows_.find(window); it != windows_.end()) {
            for (const Entry &e : it->second) {
                if (std::wcscmp(e.name, name) == 0) {
                    *value = e.value;
                    found = true;
                    break;
                }
            }
        }
        ReleaseSRWLockShared(&lock_);
        return found;
    }

    void Put(HWND window, const wchar_t *name, HANDLE value) {
        AcquireSRWLockExclusive(&lock_);
        try {
            auto &entries = windows_[window];
            bool replaced = false;
            for (Entry &e : entries) {
                if (std::wcscmp(e.name, name) == 0) {
                    e.value = value;
                    replaced = true;
                    break;
                }
            }
            if (!replaced) {
                entries.push_back({name, value});
            }
        } catch (...) {
            // Without memory the window simply stays uncached.
            windows_.erase(window);
        }
        ReleaseSRWLockExclusive(&lock_);
    }

    void Forget(HWND window, const wchar_t *name) {
        AcquireSRWLockExclusive(&lock_);
        if (auto it = windows_.find(window); it != windows_.end()) {
            if (!name) {
                windows_.erase(it);
            } else {
                auto &entries = it->second;
                for (std::size_t i = 0; i < entries.size(); ++i) {
                    if (std::wcscmp(entries[i].name, name) == 0) {
                        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(i));
                        break;
                    }
                }
                if (entries.empty()) {
                    windows_.erase(it);
                }
            }
        }
        ReleaseSRWLockExclusive(&lock_);
    }

private:
    SRWLOCK lock_ = SRWLOCK_INIT;
    std::unordered_map<HWND, std::vector<Entry>> windows_;
};

PropCopy &Copy() {
    static PropCopy *copy = new PropCopy(); // lives past every window
    return *copy;
}

} // namespace

HANDLE PropGet(HWND window, const wchar_t *name) {
    if (!window || !name) {
        return nullptr;
    }
    HANDLE value = nullptr;
    if (Copy().Find(window, name, &value)) {
        if (IsWindow(window)) {
            return value;
        }
        // Destroyed without the library seeing it: its handle may come back.
        Copy().Forget(window, nullptr);
        return nullptr;
    }
    value = GetPropW(window, name);
    // Only what is there is kept: a window without the property may be any
    // window at all, and remembering those would grow without end.
    if (value) {
        Copy().Put(window, name, value);
    }
    return value;
}

bool PropSet(HWND window, const wchar_t *name, HANDLE value) {
    if (!SetPropW(window, name, value)) {
        return false;
    }
    Copy().Put(window, name, value);
    return true;
}

HANDLE PropRemove(HWND window, const wchar_t *name) {
    Copy().Forget(window, name);
    return RemovePropW(window, name);
}

void PropForget(HWND window, const wchar_t *name) {
    if (window && name) {
        Copy().Forget(window, name);
    }
}

} // namespace zk
