#include "headerlist/core/image_list.h"

#include <algorithm>

namespace zk::hdr {

namespace {

uint32_t Le(const uint8_t *p, int bytes) {
    uint32_t value = 0;
    for (int i = bytes - 1; i >= 0; --i)
        value = value << 8 | p[i];
    return value;
}

void Put(std::vector<uint8_t> &out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

constexpr size_t kFileHead = 14, kInfoHead = 40;

uint64_t Stride(int64_t width, uint32_t bitCount) {
    return ((static_cast<uint64_t>(width) * bitCount + 31) >> 3) & ~3ull;
}

// One bitmap of the stream, appended to bytes.
void ReadBitmap(CArchive &ar, std::vector<uint8_t> &bytes) {
    const size_t at = bytes.size();
    bytes.resize(at + kFileHead + kInfoHead);
    ar.Read(bytes.data() + at, kFileHead + kInfoHead);
    const uint8_t *file = bytes.data() + at;
    const uint8_t *info = file + kFileHead;
    if (Le(file, 2) != 0x4D42 || Le(info, 4) != kInfoHead)
        throw ArchiveException{ArchiveException::badClass};
    const auto width = static_cast<int32_t>(Le(info + 4, 4));
    const auto height = static_cast<int32_t>(Le(info + 8, 4));
    const uint32_t planes = Le(info + 12, 2), bitCount = Le(info + 14, 2);
    if (width < 0)
        throw ArchiveException{ArchiveException::badClass};
    const uint64_t bitsPerPixel = static_cast<uint64_t>(planes) * bitCount;
    const uint64_t palette = bitsPerPixel <= 8 ? (uint64_t{1} << bitsPerPixel) * 4 : 0;
    const uint64_t stride = Stride(width, bitCount);
    const uint64_t lines = static_cast<uint64_t>(height < 0 ? -int64_t{height} : height);
    // The product is checked against what is left before it is formed.
    if (stride && lines > ar.Remaining() / stride)
        throw ArchiveException{ArchiveException::endOfFile};
    const uint64_t rest = palette + stride * lines;
    if (rest > ar.Remaining())
        throw ArchiveException{ArchiveException::endOfFile};
    bytes.resize(at + kFileHead + kInfoHead + rest);
    ar.Read(bytes.data() + at + kFileHead + kInfoHead, rest);
}

void AppendBitmap(std::vector<uint8_t> &out, int32_t width, int32_t height, uint16_t bitCount) {
    const uint32_t palette = bitCount <= 8 ? (1u << bitCount) * 4 : 0;
    const uint32_t offset = kFileHead + kInfoHead + palette;
    const auto rows = static_cast<uint32_t>(Stride(width, bitCount) * static_cast<uint32_t>(height));
    Put(out, 0x4D42, 2);
    Put(out, offset, 4); // the platform's writer puts the offset here as the size
    Put(out, 0, 4);
    Put(out, offset, 4);
    Put(out, kInfoHead, 4);
    Put(out, static_cast<uint32_t>(width), 4);
    Put(out, static_cast<uint32_t>(height), 4);
    Put(out, 1, 2);
    Put(out, bitCount, 2);
    Put(out, 0, 4);
    Put(out, rows, 4);
    for (int i = 0; i < 4; ++i)
        Put(out, 0, 4);
    if (bitCount == 1) {
        Put(out, 0, 4);
        Put(out, 0x00FFFFFF, 4);
    } else {
        out.insert(out.end(), palette, 0);
    }
    out.insert(out.end(), rows, 0);
}

// Without the platform a list is its stream bytes.
void BytesDestroy(void *list) { delete static_cast<std::vector<uint8_t> *>(list); }
bool BytesWrite(void *list, std::vector<uint8_t> &bytes) {
    const auto *own = static_cast<std::vector<uint8_t> *>(list);
    bytes.insert(bytes.end(), own->begin(), own->end());
    return true;
}
void *BytesRead(const uint8_t *bytes, size_t count) { return new std::vector<uint8_t>(bytes, bytes + count); }
void *BytesCopy(void *source, bool) { return new std::vector<uint8_t>(*static_cast<std::vector<uint8_t> *>(source)); }
void *BytesDefault(bool large) {
    const int32_t side = large ? 32 : 16;
    return new std::vector<uint8_t>(MakeImageStream(side, side, 1));
}
int32_t BytesCount(void *list) {
    const auto *own = static_cast<std::vector<uint8_t> *>(list);
    return own->size() >= kImageStreamHead ? static_cast<int32_t>(Le(own->data() + 4, 2)) : 0;
}

ImageListOps bound{&BytesDestroy, &BytesWrite, &BytesRead, &BytesCopy, &BytesDefault, &BytesCount};

} // namespace

const ImageListOps &ImageOps() { return bound; }
void BindImageOps(const ImageListOps &ops) { bound = ops; }

std::vector<uint8_t> ReadImageStream(CArchive &ar) {
    std::vector<uint8_t> bytes(kImageStreamHead);
    ar.Read(bytes.data(), kImageStreamHead);
    if (Le(bytes.data(), 2) != kImageStreamMagic || Le(bytes.data() + 2, 2) != kImageStreamVersion)
        throw ArchiveException{ArchiveException::badClass};
    const bool mask = (Le(bytes.data() + 18, 2) & kImageMaskFlag) != 0;
    ReadBitmap(ar, bytes);
    if (mask)
        ReadBitmap(ar, bytes);
    return bytes;
}

std::vector<uint8_t> MakeImageStream(int32_t cx, int32_t cy, int32_t count) {
    std::vector<uint8_t> out;
    const int32_t tiles = std::max((count + 3) / 4, 1);
    Put(out, kImageStreamMagic, 2);
    Put(out, kImageStreamVersion, 2);
    Put(out, static_cast<uint32_t>(count), 2);
    Put(out, static_cast<uint32_t>(count + 1), 2); // room for the next
    Put(out, 10, 2);                               // growth
    Put(out, static_cast<uint32_t>(cx), 2);
    Put(out, static_cast<uint32_t>(cy), 2);
    Put(out, 0xFFFFFFFF, 4); // CLR_NONE
    Put(out, kImageMaskFlag | 0x18, 2);
    for (int i = 0; i < 4; ++i)
        Put(out, 0xFFFF, 2);
    AppendBitmap(out, 4 * cx, tiles * cy, 24);
    AppendBitmap(out, 4 * cx, tiles * cy, 1);
    return out;
}

CImageList &CImageList::operator=(CImageList &&other) noexcept {
    if (this != &other) {
        DeleteImageList();
        list_ = other.list_;
        other.list_ = nullptr;
    }
    return *this;
}

void CImageList::Attach(void *list) {
    DeleteImageList();
    list_ = list;
}

void *CImageList::Detach() {
    void *list = list_;
    list_ = nullptr;
    return list;
}

void CImageList::DeleteImageList() {
    if (list_)
        ImageOps().destroy(list_);
    list_ = nullptr;
}

void CImageList::Write(CArchive &ar) const {
    if (!list_)
        return;
    std::vector<uint8_t> bytes;
    if (ImageOps().write(list_, bytes) && !bytes.empty())
        ar.Write(bytes.data(), bytes.size());
}

void CImageList::Read(CArchive &ar) {
    const std::vector<uint8_t> bytes = ReadImageStream(ar);
    Attach(ImageOps().read(bytes.data(), bytes.size()));
}

} // namespace zk::hdr
