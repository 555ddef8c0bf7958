// The handlers of LbxParentWndProc. Each answers true when it has answered
// the message (with *result where it has one) and false to forward it to
// the parent's former procedure.
#pragma once

#include <windows.h>

#include "outline/core/lbx.h"

namespace zk::lbx {

// WM_MEASUREITEM: the height of a row by its font and pictures.
bool ParentMeasure(HWND parent, MEASUREITEMSTRUCT *request);
// WM_DELETEITEM: frees the row's item (and node) unless a row is removed on purpose.
bool ParentDelete(HWND parent, const LbxParent &record, const DELETEITEMSTRUCT *request);
// WM_COMPAREITEM: items by text without regard to case, other rows as strings.
bool ParentCompare(const COMPAREITEMSTRUCT *request, LRESULT *result);
// WM_COMMAND: focus and selection of adopted lists and combo boxes.
bool ParentCommand(HWND parent, UINT code, HWND control, LRESULT *result);

} // namespace zk::lbx
