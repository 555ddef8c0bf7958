// Objects with class tags. Indices count from 1 through the whole archive,
// one for each new class and one for each object, in the order written.
#include <cstring>

#include "frame/core/archive.h"

namespace zk {

uint32_t CArchive::NextIndex() {
    if (mapCount_ > kMaxMapCount)
        throw ArchiveException{ArchiveException::badSchema};
    return mapCount_++;
}

void CArchive::WriteClassIndex(uint32_t index) {
    if (index < kBigObjectTag) {
        WriteU16(static_cast<uint16_t>(kClassTag | index));
    } else {
        WriteU16(kBigObjectTag);
        WriteU32(kBigClassTag | index);
    }
}

void CArchive::WriteObject(const CObject *object) {
    NeedStoring();
    if (!object) {
        WriteU16(kNullTag);
        return;
    }
    const RuntimeClass &cls = object->GetRuntimeClass();
    const auto seen = storedClasses_.find(&cls);
    if (seen == storedClasses_.end()) {
        const size_t length = std::strlen(cls.name);
        WriteU16(kNewClassTag);
        WriteU16(static_cast<uint16_t>(cls.schema & 0xFFFF));
        WriteU16(static_cast<uint16_t>(length));
        Write(cls.name, length);
        storedClasses_.emplace(&cls, NextIndex());
    } else {
        WriteClassIndex(seen->second);
    }
    NextIndex(); // the object's own
    // One Serialize serves both directions; a storing archive only reads the object.
    const_cast<CObject *>(object)->Serialize(*this);
}

std::unique_ptr<CObject> CArchive::ReadObject(const RuntimeClass &expected) {
    const uint16_t tag = ReadU16();
    if (tag == kNullTag)
        return nullptr;
    if (loaded_.size() > kMaxMapCount)
        throw ArchiveException{ArchiveException::badSchema};
    if (tag == kNewClassTag) {
        ReadU16(); // the schema: every class here is versionable, any schema is read
        const uint16_t length = ReadU16();
        if (length > kMaxClassName)
            throw ArchiveException{ArchiveException::badClass};
        char name[kMaxClassName + 1] = {};
        Read(name, length);
        if (length != std::strlen(expected.name) || std::memcmp(name, expected.name, length) != 0)
            throw ArchiveException{ArchiveException::badClass};
        loaded_.push_back(&expected);
    } else {
        const uint32_t objectTag = tag == kBigObjectTag ? ReadU32()
                                   : (tag & kClassTag)  ? kBigClassTag | (tag & ~kClassTag)
                                                        : tag;
        // A plain index would name an object read before: this library
        // never writes one object twice, so such a tag is damage.
        if (!(objectTag & kBigClassTag))
            throw ArchiveException{ArchiveException::badIndex};
        const uint32_t index = objectTag & ~kBigClassTag;
        if (index == 0 || index >= loaded_.size() || !loaded_[index])
            throw ArchiveException{ArchiveException::badIndex};
        if (loaded_[index] != &expected)
            throw ArchiveException{ArchiveException::badClass};
    }
    loaded_.push_back(nullptr); // the object's own index
    std::unique_ptr<CObject> object = expected.create();
    object->Serialize(*this);
    return object;
}

} // namespace zk
