// The large and small images of the list, kept in step: an image has the
// same index in both lists.
#include <windows.h>

#include <commctrl.h>

#include "headerlist/win/headerlist_window.h"

namespace zk::hdr {

namespace {

HIMAGELIST ListOf(const CImageList &list) { return static_cast<HIMAGELIST>(list.Handle()); }

// A picture added at the end: its index, -1 when the list refused it, 0
// for a picture of no known format (nothing added).
int32_t Add(HIMAGELIST list, const PIC &picture) {
    switch (picture.type) {
    case lbx::PIC_TypeBitmap:
        return ImageList_Add(list, picture.bitmap, picture.mask);
    case lbx::PIC_TypeIcon:
    case lbx::PIC_TypeMemoryIcon:
        return ImageList_ReplaceIcon(list, -1, picture.icon);
    default:
        return 0;
    }
}

bool Replace(HIMAGELIST list, int32_t index, const PIC &picture) {
    switch (picture.type) {
    case lbx::PIC_TypeBitmap:
        return ImageList_Replace(list, index, picture.bitmap, picture.mask) != FALSE;
    case lbx::PIC_TypeIcon:
    case lbx::PIC_TypeMemoryIcon:
        return ImageList_ReplaceIcon(list, index, picture.icon) != -1;
    default:
        return false;
    }
}

} // namespace

int32_t CHeaderListBox::AddImage(const PIC *large, const PIC *small) {
    if (!large || !small)
        return -1;
    HIMAGELIST largeList = ListOf(Model().largeImages), smallList = ListOf(Model().smallImages);
    const int32_t first = Add(largeList, *large);
    if (first < 0)
        return first;
    const int32_t second = Add(smallList, *small);
    if (second == -1) {
        ImageList_Remove(largeList, first);
        return -1;
    }
    if (first != second) {
        ImageList_Remove(largeList, first);
        ImageList_Remove(smallList, second);
        return -1;
    }
    return first;
}

int32_t CHeaderListBox::ReplaceImage(int32_t index, const PIC *large, const PIC *small) {
    if (index < 0 || !large || !small)
        return 0;
    if (!Replace(ListOf(Model().largeImages), index, *large))
        return 0;
    return Replace(ListOf(Model().smallImages), index, *small) ? 1 : 0;
}

int32_t CHeaderListBox::ImageCount() const { return ImageList_GetImageCount(ListOf(logic_.model.smallImages)); }

int32_t CHeaderListBox::RemoveImage(int32_t index) {
    if (index < 0)
        return 0;
    ImageList_Remove(ListOf(Model().largeImages), index);
    return ImageList_Remove(ListOf(Model().smallImages), index) ? 1 : 0;
}

int32_t CHeaderListBox::RemoveAllImages() {
    if (!ImageList_SetImageCount(ListOf(Model().largeImages), 0))
        return 0;
    return ImageList_SetImageCount(ListOf(Model().smallImages), 0) ? 1 : 0;
}

} // namespace zk::hdr
