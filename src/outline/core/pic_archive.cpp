#include "outline/core/pic_archive.h"

namespace zk::lbx::picstream {

void Writer::U16(uint16_t v) {
    bytes_.push_back(static_cast<uint8_t>(v));
    bytes_.push_back(static_cast<uint8_t>(v >> 8));
}

void Writer::U32(uint32_t v) {
    U16(static_cast<uint16_t>(v));
    U16(static_cast<uint16_t>(v >> 16));
}

void Writer::Count(uint32_t n) {
    if (n < 0xFFFFu) {
        U16(static_cast<uint16_t>(n));
    } else {
        U16(0xFFFF);
        U32(n);
    }
}

void Writer::String(std::u16string_view text) {
    U8(0xFF);
    U16(0xFFFE);
    const size_t n = text.size();
    if (n < 255) {
        U8(static_cast<uint8_t>(n));
    } else if (n < 0xFFFE) {
        U8(0xFF);
        U16(static_cast<uint16_t>(n));
    } else {
        U8(0xFF);
        U16(0xFFFF);
        U32(static_cast<uint32_t>(n));
    }
    for (char16_t c : text)
        U16(static_cast<uint16_t>(c));
}

void Writer::NewClass(uint16_t schema, std::string_view className) {
    U16(kNewClassTag);
    U16(schema);
    U16(static_cast<uint16_t>(className.size()));
    bytes_.insert(bytes_.end(), className.begin(), className.end());
}

void Writer::ClassRef(uint32_t index) {
    if (index < kBigObjectTag) {
        U16(static_cast<uint16_t>(kClassTag | index));
    } else {
        U16(kBigObjectTag);
        U32(kBigClassTag | index);
    }
}

std::u16string WidenLatin1(std::string_view bytes) {
    std::u16string out;
    out.reserve(bytes.size());
    for (char c : bytes)
        out.push_back(static_cast<char16_t>(static_cast<unsigned char>(c)));
    return out;
}

bool Reader::Need(size_t n) {
    if (!ok_ || n > size_ - pos_) {
        ok_ = false;
        return false;
    }
    return true;
}

uint8_t Reader::U8() {
    if (!Need(1))
        return 0;
    return data_[pos_++];
}

uint16_t Reader::U16() {
    if (!Need(2))
        return 0;
    const uint16_t v = static_cast<uint16_t>(data_[pos_] | (data_[pos_ + 1] << 8));
    pos_ += 2;
    return v;
}

uint32_t Reader::U32() {
    const uint32_t low = U16();
    const uint32_t high = U16();
    return ok_ ? (low | (high << 16)) : 0;
}

uint32_t Reader::Count() {
    const uint16_t n = U16();
    return n == 0xFFFF ? U32() : n;
}

std::string Reader::Bytes(size_t n) {
    if (!Need(n))
        return {};
    std::string out(reinterpret_cast<const char *>(data_ + pos_), n);
    pos_ += n;
    return out;
}

std::u16string Reader::String() {
    bool wide = false;
    uint32_t length = 0;
    for (int round = 0; ok_; ++round) {
        const uint8_t b = U8();
        if (b < 0xFF) {
            length = b;
            break;
        }
        const uint16_t w = U16();
        if (w == 0xFFFE) {
            // The wide tag comes once, before the length.
            if (wide || round > 0) {
                Fail();
                return {};
            }
            wide = true;
            continue;
        }
        length = w < 0xFFFF ? w : U32();
        break;
    }
    if (!ok_)
        return {};
    if (!wide) {
        std::string bytes = Bytes(length);
        return ok_ ? widen_(bytes) : std::u16string();
    }
    if (length > Remaining() / 2) {
        Fail();
        return {};
    }
    std::u16string out;
    out.reserve(length);
    for (uint32_t i = 0; i < length; ++i)
        out.push_back(static_cast<char16_t>(U16()));
    return out;
}

ObjectTag ReadObjectTag(Reader &in) {
    ObjectTag tag;
    const uint16_t w = in.U16();
    if (!in.Ok())
        return tag;
    if (w == kNewClassTag) {
        tag.schema = in.U16();
        const uint16_t nameLength = in.U16();
        tag.className = in.Bytes(nameLength);
        tag.kind = in.Ok() ? ObjectTag::NewClass : ObjectTag::Bad;
        return tag;
    }
    uint32_t big;
    if (w == kBigObjectTag) {
        big = in.U32();
        if (!in.Ok())
            return tag;
    } else {
        big = (static_cast<uint32_t>(w & kClassTag) << 16) | (w & ~kClassTag);
    }
    if (big & kBigClassTag) {
        tag.kind = ObjectTag::ClassRef;
        tag.index = big & ~kBigClassTag;
    } else {
        tag.kind = big == kNullTag ? ObjectTag::Null : ObjectTag::ObjectRef;
        tag.index = big;
    }
    return tag;
}

} // namespace zk::lbx::picstream
