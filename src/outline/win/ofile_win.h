// What the three outline file exports share on the platform side: bytes of
// the system code page widened, the list emptied of rows and nodes, and the
// registries swapped for fresh ones.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "outline/core/lbx.h"
#include "zklib.h"

namespace zk::lbx::ofile {

// Single bytes of the system code page (CP_ACP) as wide characters.
std::u16string WidenSystem(std::string_view bytes);

// Empties an adopted list for a load: its rows go under the keep-items bit
// (HostListClear), then every node below the root. False, with nothing
// changed, when the list's parent record cannot be found or locked.
bool ClearForLoad(HWND window, LbxNode *root);

// Frees both registries of a list (a failed load or save).
void FreeRegistries(HWND window) noexcept;

// The steps of the three exports, under their frames: ZelListLoadOutline,
// ZelListSaveOutline and ZelListLoadOutlineFile (given: the parent's and the
// leaf's normal and selected pictures).
ZelItemHandle Load(HWND window, HostStr handle);
int32_t Save(HWND window, HostStr *out);
ZelItemHandle LoadFile(HWND window, const wchar_t *name, const ZelPicHandle given[4]);

// NUL-terminated wide text of a stream string.
inline const wchar_t *Wide(const std::u16string &text) { return reinterpret_cast<const wchar_t *>(text.c_str()); }

} // namespace zk::lbx::ofile
