// Named resources of the application: those registered by a test or the
// gallery, else RT_RCDATA resources of the main module. A loaded resource is
// a host string whose buffer holds the bytes.
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "guard.h"
#include "strstore.h"
#include "zkhost.h"
#include "zkhostctl.h"

using namespace hostwin;

namespace {

struct Resource {
    bool registered = false;
    std::vector<unsigned char> bytes; // registered ones
    HRSRC found = nullptr;            // ones of the main module
};

// Resource names compare without case, as the system's do. A handle is the
// index in the list plus one; resources stay for the process.
struct Registry {
    std::vector<Resource> list;
    std::map<std::wstring, HostResource> byName;
};

Registry &Resources() {
    static Registry registry;
    return registry;
}

std::wstring Key(const wchar_t *name) {
    if (IS_INTRESOURCE(name))
        return L"#" + std::to_wstring(reinterpret_cast<ULONG_PTR>(name));
    std::wstring key(name);
    if (!key.empty())
        CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
    return key;
}

HostResource Add(const std::wstring &key, Resource resource) {
    Registry &r = Resources();
    r.list.push_back(std::move(resource));
    HostResource handle = static_cast<HostResource>(r.list.size());
    try {
        r.byName[key] = handle;
    } catch (...) {
        r.list.pop_back();
        throw;
    }
    return handle;
}

} // namespace

extern "C" {

int32_t ZKAPI ZkHostResourceAdd(const wchar_t *name, const void *bytes, int32_t size) {
    return Guard<int32_t>(0, [&] {
        if (!name || size < 0 || (size > 0 && !bytes))
            return 0;
        Resource resource;
        resource.registered = true;
        auto *first = static_cast<const unsigned char *>(bytes);
        resource.bytes.assign(first, first + size);
        std::wstring key = Key(name);
        Registry &r = Resources();
        auto it = r.byName.find(key);
        if (it != r.byName.end())
            r.list[it->second - 1] = std::move(resource);
        else
            Add(key, std::move(resource));
        return 1;
    });
}

HostResource ZKAPI HostResourceFind(const wchar_t *name) {
    return Guard<HostResource>(0, [&]() -> HostResource {
        if (!name)
            return 0;
        std::wstring key = Key(name);
        Registry &r = Resources();
        if (auto it = r.byName.find(key); it != r.byName.end())
            return it->second;
        HRSRC found = FindResourceW(GetModuleHandleW(nullptr), name, RT_RCDATA);
        if (!found)
            return 0;
        Resource resource;
        resource.found = found;
        return Add(key, std::move(resource));
    });
}

// The buffer is the resource's size rounded up to whole characters, plus a
// terminator, so a resource that holds text can be read as text.
int32_t ZKAPI HostResourceLoad(HostResource resource, HostStr *bytes) {
    return Guard<int32_t>(0, [&] {
        Registry &r = Resources();
        if (!bytes || resource == 0 || resource > r.list.size())
            return 0;
        const Resource &res = r.list[resource - 1];
        const void *data = nullptr;
        DWORD size = 0;
        if (res.registered) {
            data = res.bytes.data();
            size = static_cast<DWORD>(res.bytes.size());
        } else {
            HMODULE module = GetModuleHandleW(nullptr);
            HGLOBAL loaded = LoadResource(module, res.found);
            data = loaded ? LockResource(loaded) : nullptr;
            size = data ? SizeofResource(module, res.found) : 0;
            if (!data)
                return 0;
        }
        if (size > INT32_MAX - 4)
            return 0;
        HostStr handle = StrCreate(static_cast<int32_t>(size + (size & 1) + 2));
        if (!handle)
            return 0;
        if (size)
            std::memcpy(StrFind(handle)->buffer, data, size);
        StrStore(bytes, handle);
        return 1;
    });
}

int32_t ZKAPI HostStrFreeResource(HostStr bytes) {
    if (!StrFind(bytes))
        return 0;
    StrRelease(bytes);
    return 1;
}

} // extern "C"
