// Bytes of any shape into the outline stream reader. Beyond not crashing:
// a stream that reads must describe a tree the loader can build (each
// record's parent read before it, at a level above it), and must come back equal
// through the writer, whose bytes read again to the same records.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "outline/core/ofile_stream.h"

namespace {

using namespace zk::lbx::ofile;

void check(bool condition) {
    if (!condition)
        __builtin_trap();
}

void CheckShape(const OBLOB &blob, const std::vector<int32_t> &parents) {
    check(parents.size() == blob.items.size());
    for (size_t i = 0; i < parents.size(); ++i) {
        const int32_t level = blob.items[i].level;
        const int32_t parent = parents[i];
        if (parent == kIsRoot) {
            check(i == 0 && level == -1);
            continue;
        }
        check(level >= 0 && level <= kMaxLevel);
        // A jump deeper than one level loads under the record before it, so
        // a parent is any earlier record above this one, or the root itself.
        if (parent != kUnderRoot) {
            check(parent >= 0 && static_cast<size_t>(parent) < i);
            check(blob.items[static_cast<size_t>(parent)].level < level);
        }
    }
}

void ReadOne(const uint8_t *data, size_t size) {
    OBLOB blob;
    std::vector<int32_t> parents;
    const ReadStatus status = OutlineRead(data, size, blob, parents);
    if (status != ReadStatus::ok) {
        check(blob == OBLOB{} && parents.empty());
        return;
    }
    CheckShape(blob, parents);
    const std::vector<uint8_t> bytes = OutlineWrite(blob);
    OBLOB again;
    std::vector<int32_t> parentsAgain;
    check(OutlineRead(bytes.data(), bytes.size(), again, parentsAgain) == ReadStatus::ok);
    check(again == blob && parentsAgain == parents);
    check(OutlineWrite(again) == bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    ReadOne(data, size);
    // Most inputs fail the magic at once: read each also as the body of a stream.
    std::vector<uint8_t> stream{0x59, 0x87};
    stream.insert(stream.end(), data, data + size);
    ReadOne(stream.data(), stream.size());
    return 0;
}
