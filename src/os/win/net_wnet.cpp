#include "os/win/net_wnet.h"

#include <winnetwk.h>

#include <string>

namespace zk::os {

namespace {

const wchar_t *Wide(const char16_t *text) { return reinterpret_cast<const wchar_t *>(text); }

// A host string of the text, without the retry dialog: 0 when the host has
// no memory.
HostStr Plain(std::u16string_view text) {
    const std::wstring copy(reinterpret_cast<const wchar_t *>(text.data()), text.size());
    return ZelStrFromText(copy.c_str());
}

} // namespace

int32_t WNetPlatform::DriveType(char16_t letter) {
    const wchar_t root[] = {static_cast<wchar_t>(letter), L':', L'\\', 0};
    return ZelDosGetDriveType(root);
}

uint32_t WNetPlatform::Connection(const char16_t *local, char16_t *buffer, uint32_t *chars) {
    DWORD length = *chars;
    const DWORD code = WNetGetConnectionW(Wide(local), reinterpret_cast<wchar_t *>(buffer), &length);
    *chars = length;
    return code;
}

bool HostArrayListing::Add(int32_t index, std::u16string_view local, std::u16string_view remote) {
    // Each string goes into its array as soon as it is made: the array owns
    // it then, and a failure of the second leaves nothing without an owner.
    const HostStr localName = Plain(local);
    if (!localName)
        return false;
    HostArraySetString(local_, localName, index);
    const HostStr remoteName = Plain(remote);
    if (!remoteName)
        return false;
    HostArraySetString(remote_, remoteName, index);
    return true;
}

void HostArrayListing::Finish(int32_t last) {
    HostArraySetBounds(local_, 0, last);
    HostArraySetBounds(remote_, 0, last);
}

} // namespace zk::os
