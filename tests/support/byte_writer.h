// Little-endian bytes written piece by piece, for streams and files too long
// to spell out as a table. A format adds its own records by deriving:
// struct Stream : zkt::ByteWriterOf<Stream> { Stream &header(...); };
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zkt {

template <class Self>
struct ByteWriterOf {
    std::vector<uint8_t> b;

    Self &u8(uint8_t v) {
        b.push_back(v);
        return static_cast<Self &>(*this);
    }
    Self &u16(uint16_t v) { return u8(v & 0xFF).u8(v >> 8); }
    Self &u32(uint32_t v) { return u16(v & 0xFFFF).u16(v >> 16); }
    // A string of one byte a character after a one-byte length.
    Self &narrow(std::string_view s) {
        u8(static_cast<uint8_t>(s.size()));
        for (char c : s)
            u8(static_cast<uint8_t>(c));
        return static_cast<Self &>(*this);
    }
    // A UTF-16 string as an archive writes it: the wide tag FF FE FF, then a
    // one-byte length.
    Self &wide(std::u16string_view s) {
        u8(0xFF).u16(0xFFFE).u8(static_cast<uint8_t>(s.size()));
        for (char16_t c : s)
            u16(c);
        return static_cast<Self &>(*this);
    }
    Self &wide(std::wstring_view s) {
        u8(0xFF).u16(0xFFFE).u8(static_cast<uint8_t>(s.size()));
        for (wchar_t c : s)
            u16(static_cast<uint16_t>(c));
        return static_cast<Self &>(*this);
    }
};

struct ByteWriter : ByteWriterOf<ByteWriter> {};

} // namespace zkt
