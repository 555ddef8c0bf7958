#include "frame/core/archive.h"

#include <limits>

namespace zk {

CArchive::CArchive(CMemFile &file, Mode mode) : file_(file), mode_(mode) {}

void CArchive::NeedStoring() const {
    if (closed_ || mode_ != store)
        throw ArchiveException{ArchiveException::wrongMode};
}

void CArchive::NeedLoading(size_t bytes) const {
    if (closed_ || mode_ != load)
        throw ArchiveException{ArchiveException::wrongMode};
    if (bytes > file_.Remaining())
        throw ArchiveException{ArchiveException::endOfFile};
}

void CArchive::Write(const void *bytes, size_t count) {
    NeedStoring();
    file_.Write(bytes, count);
}

void CArchive::Read(void *bytes, size_t count) {
    NeedLoading(count);
    file_.Read(bytes, count);
}

void CArchive::WriteU8(uint8_t value) { Write(&value, 1); }

void CArchive::WriteU16(uint16_t value) {
    const uint8_t bytes[2] = {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8)};
    Write(bytes, 2);
}

void CArchive::WriteU32(uint32_t value) {
    const uint8_t bytes[4] = {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8),
                              static_cast<uint8_t>(value >> 16), static_cast<uint8_t>(value >> 24)};
    Write(bytes, 4);
}

uint8_t CArchive::ReadU8() {
    uint8_t value = 0;
    Read(&value, 1);
    return value;
}

uint16_t CArchive::ReadU16() {
    uint8_t b[2];
    Read(b, 2);
    return static_cast<uint16_t>(b[0] | b[1] << 8);
}

uint32_t CArchive::ReadU32() {
    uint8_t b[4];
    Read(b, 4);
    return static_cast<uint32_t>(b[0]) | static_cast<uint32_t>(b[1]) << 8 | static_cast<uint32_t>(b[2]) << 16 |
           static_cast<uint32_t>(b[3]) << 24;
}

void CArchive::WriteCount(size_t count) {
    if (count < 0xFFFF) {
        WriteU16(static_cast<uint16_t>(count));
        return;
    }
    if (count > 0xFFFFFFFEu)
        throw ArchiveException{ArchiveException::badSchema};
    WriteU16(0xFFFF);
    WriteU32(static_cast<uint32_t>(count));
}

size_t CArchive::ReadCount() {
    const uint16_t count = ReadU16();
    if (count != 0xFFFF)
        return count;
    return ReadU32();
}

void CArchive::WriteString(std::u16string_view text) {
    const size_t length = text.size();
    if (length > 0xFFFFFFFEu)
        throw ArchiveException{ArchiveException::badSchema};
    WriteU8(0xFF);
    WriteU16(0xFFFE); // the wide tag
    if (length < 0xFF) {
        WriteU8(static_cast<uint8_t>(length));
    } else {
        WriteU8(0xFF);
        if (length < 0xFFFE) {
            WriteU16(static_cast<uint16_t>(length));
        } else {
            WriteU16(0xFFFF);
            WriteU32(static_cast<uint32_t>(length));
        }
    }
    for (char16_t c : text)
        WriteU16(static_cast<uint16_t>(c));
}

uint32_t CArchive::ReadStringLength(bool &wide) {
    wide = false;
    uint8_t small = ReadU8();
    if (small < 0xFF)
        return small;
    uint16_t middle = ReadU16();
    if (middle == 0xFFFE) {
        // The wide tag; the length proper follows in the same forms.
        wide = true;
        small = ReadU8();
        if (small < 0xFF)
            return small;
        middle = ReadU16();
    }
    if (middle < 0xFFFF)
        return middle;
    return ReadU32();
}

std::u16string CArchive::ReadString() {
    bool wide = false;
    const uint32_t length = ReadStringLength(wide);
    const size_t bytes = wide ? 2 * static_cast<size_t>(length) : length;
    NeedLoading(bytes);
    std::u16string text(length, u'\0');
    for (char16_t &c : text)
        c = wide ? static_cast<char16_t>(ReadU16()) : static_cast<char16_t>(ReadU8());
    return text;
}

} // namespace zk
