// The table of live objects whose addresses cross the export boundary as
// handles (outline items and nodes, pictures). An export that receives such
// a handle asks the table before it reads the object, so a stale, freed or
// forged handle gives the export's failure value instead of a fault.
//
// Objects enter the table when they are made and leave it when they are
// destroyed. One thread, no lock: everything runs on the user-interface
// thread of the application.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zk {

enum class LiveKind : uint8_t {
    OutlineItem = 1,   // LbxItem
    OutlineNode = 2,   // LbxNode: the item handle
    Picture = 3,       // PIC: the picture handle
    Accelerator = 4,   // the local block of an accelerator record
    MessageButton = 5, // a button object of the message box
};

// Enters an object; throws std::bad_alloc when the table cannot grow.
void LiveAdd(LiveKind kind, const void *object);
// Takes an object out; an address that is not in the table is ignored.
void LiveRemove(LiveKind kind, const void *object) noexcept;
// Whether the address is a live object of that kind. Null is never live.
bool IsLive(LiveKind kind, const void *object) noexcept;
inline bool IsLive(LiveKind kind, std::uintptr_t handle) noexcept {
    return IsLive(kind, reinterpret_cast<const void *>(handle));
}
// Number of live objects of a kind (tests and leak checks).
std::size_t LiveCount(LiveKind kind) noexcept;

} // namespace zk
