// The byte form of the framework's archive as far as pictures need it:
// little-endian numbers, counted strings with the wide tag, counts, and the
// class tags of an object stream. Reading never throws and never reads past
// the bytes it was given: a short or malformed stream sets the failure
// state, and every later read fails too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zk::lbx::picstream {

// Tags of the object stream.
inline constexpr uint16_t kNullTag = 0x0000;
inline constexpr uint16_t kNewClassTag = 0xFFFF;
inline constexpr uint16_t kClassTag = 0x8000;
inline constexpr uint16_t kBigObjectTag = 0x7FFF;
inline constexpr uint32_t kBigClassTag = 0x80000000u;

class Writer {
public:
    void U8(uint8_t v) { bytes_.push_back(v); }
    void U16(uint16_t v);
    void U32(uint32_t v);
    // A count: u16, or 0xFFFF and a u32 when it does not fit.
    void Count(uint32_t n);
    // The wide tag FF FE FF, the length (one byte below 255, else FF and a
    // u16 below 0xFFFE, else FF FFFF and a u32), the UTF-16LE characters.
    void String(std::u16string_view text);
    // First object of a class: the new-class tag, schema, name length, name.
    void NewClass(uint16_t schema, std::string_view className);
    // A later object of a class already written, by its index in the map.
    void ClassRef(uint32_t index);

    const std::vector<uint8_t> &Bytes() const { return bytes_; }
    std::vector<uint8_t> Take() { return std::move(bytes_); }

private:
    std::vector<uint8_t> bytes_;
};

// Widens a string stored without the wide tag (single bytes of the system
// code page). The default takes each byte as the character of that number.
using Widen = std::u16string (*)(std::string_view bytes);
std::u16string WidenLatin1(std::string_view bytes);

class Reader {
public:
    Reader(const uint8_t *data, size_t size, Widen widen = WidenLatin1)
        : data_(data), size_(data ? size : 0), widen_(widen ? widen : WidenLatin1) {}

    bool Ok() const { return ok_; }
    void Fail() { ok_ = false; }
    size_t Position() const { return pos_; }
    size_t Remaining() const { return ok_ ? size_ - pos_ : 0; }

    uint8_t U8();
    uint16_t U16();
    uint32_t U32();
    uint32_t Count();
    // Either prefix form; characters widened when the wide tag is missing.
    std::u16string String();
    // Raw bytes, for class names.
    std::string Bytes(size_t n);

private:
    bool Need(size_t n);
    const uint8_t *data_;
    size_t size_;
    size_t pos_ = 0;
    bool ok_ = true;
    Widen widen_;
};

// What a tag of an object stream announces.
struct ObjectTag {
    enum Kind { Null, NewClass, ClassRef, ObjectRef, Bad } kind = Bad;
    uint32_t index = 0;    // ClassRef, ObjectRef: the map index
    uint16_t schema = 0;   // NewClass
    std::string className; // NewClass
};
ObjectTag ReadObjectTag(Reader &in);

} // namespace zk::lbx::picstream
