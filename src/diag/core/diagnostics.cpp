#include "diag/core/diagnostics.h"

#include <cstring>
#include <string>
#include <vector>

#include "diag/core/report_sink.h"
#include "diag/core/report_text.h"

namespace zk::diag {
namespace {

const char16_t *OrEmpty(const char16_t *text) { return text ? text : u""; }

} // namespace

int32_t Diagnostics::Assert(int32_t condition, const char16_t *text) {
    if (condition)
        return 1;
    const std::u16string name = system_.ActiveWindowName();
    const std::u16string_view said = OrEmpty(text);
    // "%s: %s" of the name and the text, in a block of its own.
    const uint64_t chars = name.size() + 2 + said.size();
    Blocks &memory = system_.Memory();
    OwnedBlock block(memory,
                     2 * chars + 2 <= UINT32_MAX ? memory.Alloc(static_cast<uint32_t>(2 * chars + 2)) : nullptr);
    Locked locked(memory, block.get());
    if (!locked) {
        system_.Box(name.c_str(), kAssertionCaption);
        return 1;
    }
    char16_t *out = locked.text();
    std::memcpy(out, name.data(), name.size() * sizeof(char16_t));
    out += name.size();
    *out++ = u':';
    *out++ = u' ';
    std::memcpy(out, said.data(), said.size() * sizeof(char16_t));
    out[said.size()] = 0;
    system_.Box(locked.text(), kAssertionCaption);
    return 1;
}

int32_t Diagnostics::String(const char16_t *text, uint16_t level) {
    if (level > level_)
        return 0;
    if (flags_ & kMessageBox) {
        system_.Box(OrEmpty(text), kDebugCaption);
    } else {
        system_.Debug(OrEmpty(text));
        system_.Debug(u"\n");
    }
    return 1;
}

uint32_t Diagnostics::SetFlags(uint32_t flags, int32_t set) {
    flags_ = set ? flags_ | flags : flags_ & ~flags;
    return flags_;
}

int32_t Diagnostics::SetLevel(uint16_t level) {
    level_ = level;
    return 1;
}

bool Diagnostics::Record(const char16_t *label) {
    if (!samples_.Exists())
        return false;
    const uint32_t hundredths = system_.TickCount() / 10;
    const HostDateTime clock = system_.Now();
    return samples_.Add(hundredths, clock, label);
}

int32_t Diagnostics::BeginTime() {
    if (!samples_.Start())
        return 0;
    return Record(u"") ? 1 : 0;
}

int32_t Diagnostics::SetTime(const char16_t *text) { return Record(text) ? 1 : 0; }

int32_t Diagnostics::EndTime(const char16_t *text, uint16_t level) {
    if (level > level_)
        return 0;
    // A run of one sample ends now; a longer one ended at its last sample.
    if (samples_.Count() == 1 && !Record(text))
        return 0;
    std::vector<Sample> samples;
    if (!samples_.Read(samples))
        return 0;
    const uint32_t flags = flags_;
    ReportSink out(system_, (flags & kMessageBox) != 0);
    if (!out.Open())
        return 0;
    WriteReport(samples, OrEmpty(text), flags, system_, out);
    out.Show(kPerformanceCaption);
    samples_.Release();
    return 1;
}

} // namespace zk::diag
