// A window's record in a moveable local block under one of the library's
// properties, with a window object of its own family sitting on the window
// above the procedure the record keeps: the shape of every subclass whose
// state the host may see (field flags, form flags, adopted lists).
#pragma once

#include <windows.h>

#include <new>

#include "frame/win/localblock.h"
#include "frame/win/propcache.h"
#include "frame/win/window.h"

namespace zk {

// The window's record: the one it has, or a new zero-filled one stored
// under `property` with a new Object subclassing the window, the procedure
// it replaced kept in `former` of the record. Null when the block, the
// property or the subclass cannot be had; nothing is left then.
template <class Object, class Record>
HLOCAL SubclassWithRecord(HWND window, const wchar_t *property, WNDPROC Record::*former) {
    if (HLOCAL record = PropGet(window, property))
        return record;
    if (!IsWindow(window))
        return nullptr;
    HLOCAL record = LocalBlockNew(sizeof(Record));
    if (!record)
        return nullptr;
    if (!PropSet(window, property, record)) {
        LocalFree(record);
        return nullptr;
    }
    auto *object = new (std::nothrow) Object;
    if (!object || !object->SubclassWindow(window)) {
        delete object;
        PropRemove(window, property);
        LocalFree(record);
        return nullptr;
    }
    const WNDPROC replaced = object->DefaultProcedure();
    LocalWith<Record>(record, [&](Record &r) { r.*former = replaced ? replaced : &DefWindowProcW; });
    return record;
}

} // namespace zk
