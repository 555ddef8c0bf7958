// Image lists as a property block holds them: a platform list behind a
// handle, written and read in the platform's own stream form (a 28-byte
// head, "IL" and version 0x101, then the image bitmap and, with ILC_MASK, the
// mask bitmap, each a BITMAPFILEHEADER, a 40-byte BITMAPINFOHEADER, a palette
// for 8 bits or fewer and the rows).
//
// The portable code never makes or reads a list itself: the platform binds
// its operations (ImageList_Read, ImageList_Write and the icon copy) at
// start-up. Until then, as in native builds, a list is its stream bytes, so
// blocks read and write the same without the platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/core/archive.h"

namespace zk::hdr {

inline constexpr uint16_t kImageStreamMagic = 0x4C49; // "IL"
inline constexpr uint16_t kImageStreamVersion = 0x101;
inline constexpr size_t kImageStreamHead = 28;
inline constexpr uint16_t kImageMaskFlag = 0x0001; // ILC_MASK

struct ImageListOps {
    void (*destroy)(void *list);
    // Appends the list's stream form; false when the platform writes nothing.
    bool (*write)(void *list, std::vector<uint8_t> &bytes);
    // A list from one whole stream form; null when the platform refuses it.
    void *(*read)(const uint8_t *bytes, size_t count);
    // A new list of the standard size (large: the system's icon size, else
    // 16 by 16) holding each image of source.
    void *(*copy)(void *source, bool large);
    // A new list of the standard size holding the default icon.
    void *(*makeDefault)(bool large);
    // The number of images.
    int32_t (*count)(void *list);
};

const ImageListOps &ImageOps();
void BindImageOps(const ImageListOps &ops);

// Reads one stream form from the archive, whole: the head, the image bitmap
// and the mask bitmap when the head's flags ask for one. A head that is not
// the platform's, a bitmap header it would refuse, or bytes short of what
// the headers announce raise an ArchiveException before anything of that
// size is allocated.
std::vector<uint8_t> ReadImageStream(CArchive &ar);

// A stream form of `count` blank images cx by cy (24-bit images, a mask),
// as the platform would write a new list.
std::vector<uint8_t> MakeImageStream(int32_t cx, int32_t cy, int32_t count);

// One platform list, owned.
class CImageList {
public:
    CImageList() = default;
    ~CImageList() { DeleteImageList(); }
    CImageList(CImageList &&other) noexcept : list_(other.list_) { other.list_ = nullptr; }
    CImageList &operator=(CImageList &&other) noexcept;
    CImageList(const CImageList &) = delete;
    CImageList &operator=(const CImageList &) = delete;

    void *Handle() const { return list_; }
    void Attach(void *list);
    void *Detach();
    void DeleteImageList();
    int32_t GetImageCount() const { return list_ ? ImageOps().count(list_) : 0; }

    // The stream form; nothing for no list, as the platform writes nothing.
    void Write(CArchive &ar) const;
    // Replaces the list by the one read; a stream the platform refuses leaves none.
    void Read(CArchive &ar);

private:
    void *list_ = nullptr;
};

} // namespace zk::hdr
