#include "frame/core/livehandles.h"

#include <unordered_map>

namespace zk {
namespace {

// Address -> kind. An address holds one object at a time, so one map serves
// all kinds; a freed address that is reused by another kind is re-entered.
struct Table {
    std::unordered_map<std::uintptr_t, LiveKind> objects;
    std::size_t counts[8] = {};
};

Table &table() {
    static Table *instance = new Table(); // never destroyed: objects may outlive static teardown
    return *instance;
}

std::size_t slot(LiveKind kind) { return static_cast<std::size_t>(kind) & 7u; }

} // namespace

void LiveAdd(LiveKind kind, const void *object) {
    if (!object) {
        return;
    }
    Table &t = table();
    auto [it, inserted] = t.objects.try_emplace(reinterpret_cast<std::uintptr_t>(object), kind);
    if (!inserted) {
        --t.counts[slot(it->second)];
        it->second = kind;
    }
    ++t.counts[slot(kind)];
}

void LiveRemove(LiveKind kind, const void *object) noexcept {
    Table &t = table();
    auto it = t.objects.find(reinterpret_cast<std::uintptr_t>(object));
    if (it != t.objects.end() && it->second == kind) {
        t.objects.erase(it);
        --t.counts[slot(kind)];
    }
}

bool IsLive(LiveKind kind, const void *object) noexcept {
    if (!object) {
        return false;
    }
    const Table &t = table();
    auto it = t.objects.find(reinterpret_cast<std::uintptr_t>(object));
    return it != t.objects.end() && it->second == kind;
}

std::size_t LiveCount(LiveKind kind) noexcept { return table().counts[slot(kind)]; }

} // namespace zk
