// The four sources of a picture load. Each fills the PIC it is given and
// answers false on failure; the caller then frees the PIC.
#pragma once

#include <cstddef>
#include <cstdint>

#include "outline/core/pic_plan.h"
#include "outline/win/pic.h"

namespace zk::lbx {

bool PicFromModule(PIC &pic, const PicPlan &plan);
bool PicFromFile(PIC &pic, const PicPlan &plan);
bool PicFromResource(PIC &pic, const PicPlan &plan);
// bytes, size: the image and the bytes known to be readable behind it.
bool PicFromMemory(PIC &pic, const PicPlan &plan, const uint8_t *bytes, size_t size);
// A load from memory whose length is not given: the bytes the headers
// claim, as far as they are readable.
bool PicFromPointer(PIC &pic, const PicPlan &plan, const void *pointer);

// Bytes readable from `pointer` on, up to `want`: committed pages that are
// neither guard pages nor without access.
size_t PicReadableBytes(const void *pointer, size_t want) noexcept;

} // namespace zk::lbx
