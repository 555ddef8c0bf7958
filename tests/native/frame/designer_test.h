// Shared pieces of the designer tests: byte vectors and small serialisable
// classes shaped like the library's block elements.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "frame/core/archive.h"
#include "frame/core/block_io.h"

namespace designertest {

using Bytes = std::vector<uint8_t>;

// What a storing archive wrote, through `write`.
template <class Write>
Bytes Stored(Write &&write) {
    zk::CMemFile file;
    zk::CArchive ar(file, zk::CArchive::store);
    write(ar);
    ar.Close();
    return Bytes(file.Data(), file.Data() + file.GetLength());
}

// A memory file holding bytes, positioned at 0.
inline zk::CMemFile FileOf(const Bytes &bytes) {
    zk::CMemFile file;
    if (!bytes.empty())
        file.Write(bytes.data(), bytes.size());
    file.SeekToBegin();
    return file;
}

inline Bytes Cat(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes &p : parts)
        all.insert(all.end(), p.begin(), p.end());
    return all;
}

inline Bytes Ascii(const char *text) { return Bytes(text, text + std::char_traits<char>::length(text)); }

// An element with a version word and one i32 (like a palette colour).
class SColorItem : public zk::CObject {
    ZK_DECLARE_SERIAL(SColorItem)
public:
    int32_t colour = -1;
    void Serialize(zk::CArchive &ar) override {
        if (ar.IsStoring()) {
            ar.WriteU32(1);
            ar.WriteI32(colour);
        } else if (ar.ReadU32() != 0) {
            colour = ar.ReadI32();
        }
    }
};

// An element with a text (like a menu entry).
class SMenuItem : public zk::CObject {
    ZK_DECLARE_SERIAL(SMenuItem)
public:
    std::u16string text;
    void Serialize(zk::CArchive &ar) override {
        if (ar.IsStoring())
            ar.WriteString(text);
        else
            text = ar.ReadString();
    }
};

// The cause of the archive exception a read of `bytes` ends with.
template <class Read>
zk::ArchiveException::Cause FailureOf(const Bytes &bytes, Read &&read) {
    zk::CMemFile file = FileOf(bytes);
    zk::CArchive ar(file, zk::CArchive::load);
    try {
        read(ar);
    } catch (const zk::ArchiveException &e) {
        return e.cause;
    }
    ADD_FAILURE() << "the read went through";
    return zk::ArchiveException::wrongMode;
}

} // namespace designertest
