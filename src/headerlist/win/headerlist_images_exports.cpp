// Exports of the list's images: a large and a small picture at one index.
#include "headerlist/win/headerlist_exports.h"
#include "outline/win/pic.h"

using zk::GuardedControlText;
using zk::hdr::CHeaderListBox;
using zk::hdr::ListOf;
using zk::lbx::PIC;

namespace {

// A picture handle that names no live picture is the caller's mistake.
const PIC &PictureArg(INT_PTR handle) {
    const PIC *picture = zk::lbx::PicFromHandle(handle);
    if (!picture)
        throw zk::UserException();
    return *picture;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelLVImageAdd(ZelLVControl list, INT_PTR large, INT_PTR small) {
    return GuardedControlText(L"ZelLVImageAdd()", L"Unable to add image to control.", -1, ListOf(list),
                              [&](CHeaderListBox &l) { return l.AddImage(&PictureArg(large), &PictureArg(small)); });
}

int32_t ZKAPI ZelLVImageCountGet(ZelLVControl list) {
    return GuardedControlText(L"ZelLVImageCountGet()", L"Unable to retrieve count on images in control.", -1,
                              ListOf(list), [](CHeaderListBox &l) { return l.ImageCount(); });
}

int32_t ZKAPI ZelLVImageRemove(ZelLVControl list, int32_t index) {
    return GuardedControlText(L"ZelLVImageRemove()", L"Unable to remove image from control.", 0, ListOf(list),
                              [&](CHeaderListBox &l) { return l.RemoveImage(index); });
}

int32_t ZKAPI ZelLVImageRemoveAll(ZelLVControl list) {
    return GuardedControlText(L"ZelLVImageRemoveAll()", L"Unable to remove all images from control.", 0, ListOf(list),
                              [](CHeaderListBox &l) { return l.RemoveAllImages(); });
}

int32_t ZKAPI ZelLVImageReplace(ZelLVControl list, int32_t index, INT_PTR large, INT_PTR small) {
    return GuardedControlText(
        L"ZelLVImageReplace()", L"Unable to replace image in control.", 0, ListOf(list),
        [&](CHeaderListBox &l) { return l.ReplaceImage(index, &PictureArg(large), &PictureArg(small)); });
}

} // extern "C"
