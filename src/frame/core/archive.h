// The byte format of property blocks: an archive written into or read from a
// memory file. Little-endian integers; texts with the wide tag; counts; and
// objects with class tags, where the first object of a class carries its
// name and schema and later ones refer to it by index.
//
// Reading never trusts a length: a count, a text or a class name that runs
// past the end of the file ends the read with an ArchiveException, before
// anything of that size is allocated.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "frame/core/memfile.h"
#include "frame/core/object.h"

namespace zk {

struct ArchiveException {
    enum Cause {
        endOfFile, // the record goes on past the end of the file
        badIndex,  // a tag refers to nothing read before, or to an object
        badClass,  // a class name that is not the one expected there
        badSchema, // too many objects for the index space
        wrongMode, // reading a storing archive, writing a loading one, or after Close
    };
    Cause cause;
};

// Tag words of objects.
inline constexpr uint16_t kNullTag = 0x0000;
inline constexpr uint16_t kNewClassTag = 0xFFFF;
inline constexpr uint16_t kClassTag = 0x8000;
inline constexpr uint16_t kBigObjectTag = 0x7FFF; // a 32-bit tag follows
inline constexpr uint32_t kBigClassTag = 0x80000000u;
inline constexpr uint32_t kMaxMapCount = 0x3FFFFFFEu;
// Longest class name a reader accepts.
inline constexpr uint16_t kMaxClassName = 63;

class CArchive {
public:
    enum Mode { store, load };

    // Bytes go straight to (or come straight from) the file, at its position.
    CArchive(CMemFile &file, Mode mode);
    CArchive(const CArchive &) = delete;
    CArchive &operator=(const CArchive &) = delete;

    bool IsLoading() const { return mode_ == load; }
    bool IsStoring() const { return mode_ == store; }
    // Ends the archive; any later use raises wrongMode.
    void Close() { closed_ = true; }

    // ---- plain values ----
    void WriteU8(uint8_t value);
    void WriteU16(uint16_t value);
    void WriteU32(uint32_t value);
    void WriteI32(int32_t value) { WriteU32(static_cast<uint32_t>(value)); }
    uint8_t ReadU8();
    uint16_t ReadU16();
    uint32_t ReadU32();
    int32_t ReadI32() { return static_cast<int32_t>(ReadU32()); }
    void Write(const void *bytes, size_t count);
    void Read(void *bytes, size_t count); // all of them, or endOfFile

    // A boolean or small enumeration held as i32: one byte, read back
    // without sign extension.
    void WriteFlag(int32_t value) { WriteU8(static_cast<uint8_t>(value)); }
    int32_t ReadFlag() { return ReadU8(); }

    // ---- counts of object arrays: u16, or u16 0xFFFF and u32 ----
    void WriteCount(size_t count);
    size_t ReadCount();

    // ---- texts: the wide tag, the length in characters, UTF-16LE ----
    void WriteString(std::u16string_view text);
    // Also reads a text written without the tag, one byte per character.
    std::u16string ReadString();

    // ---- tagged objects ----
    void WriteObject(const CObject *object);
    // The next object, which must be of class `expected`; null for a null tag.
    std::unique_ptr<CObject> ReadObject(const RuntimeClass &expected);
    template <class T>
    std::unique_ptr<T> ReadObjectAs() {
        return std::unique_ptr<T>(static_cast<T *>(ReadObject(T::classInfo).release()));
    }

    // Loading: bytes not read yet.
    size_t Remaining() const { return file_.Remaining(); }

private:
    void NeedStoring() const;
    void NeedLoading(size_t bytes) const;
    uint32_t NextIndex();
    void WriteClassIndex(uint32_t index);
    uint32_t ReadStringLength(bool &wide);

    CMemFile &file_;
    Mode mode_;
    bool closed_ = false;
    uint32_t mapCount_ = 1; // index 0 is the null object
    std::unordered_map<const RuntimeClass *, uint32_t> storedClasses_;
    // Loading: what each index stands for; objects are null entries.
    std::vector<const RuntimeClass *> loaded_{nullptr};
};

} // namespace zk
