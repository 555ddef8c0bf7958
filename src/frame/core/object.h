// Serialisable objects: what an archive needs to know of a class to write an
// object of it with its class tag and to make a new one when reading.
#pragma once

#include <cstdint>
#include <memory>

namespace zk {

class CArchive;
class CObject;

// Every serialisable class of the library: versionable, schema 1. Only the
// low 16 bits reach the archive.
inline constexpr uint32_t kSerialSchema = 0x80000001u;

struct RuntimeClass {
    const char *name; // ASCII, as stored in the archive
    uint32_t schema;
    std::unique_ptr<CObject> (*create)();
};

class CObject {
public:
    virtual ~CObject() = default;
    virtual const RuntimeClass &GetRuntimeClass() const = 0;
    // Writes or reads the object's fields, by the archive's direction.
    virtual void Serialize(CArchive &ar) = 0;
};

template <class T>
std::unique_ptr<CObject> CreateObject() {
    return std::make_unique<T>();
}

} // namespace zk

// In a class body: the class's runtime information. The class must be
// default-constructible.
#define ZK_DECLARE_SERIAL(Class)                                                                                       \
public:                                                                                                                \
    static const ::zk::RuntimeClass classInfo;                                                                         \
    const ::zk::RuntimeClass &GetRuntimeClass() const override { return classInfo; }

// In one source file: the name under which the class is stored.
#define ZK_IMPLEMENT_SERIAL(Class)                                                                                     \
    const ::zk::RuntimeClass Class::classInfo = {#Class, ::zk::kSerialSchema, &::zk::CreateObject<Class>};
