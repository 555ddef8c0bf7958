#include "diag/core/report_text.h"

#include <string>

#include "diag/core/debug_flags.h"
#include "diag/core/elapsed_text.h"

namespace zk::diag {
namespace {

void PutClock(ReportSink &out, const std::u16string &time) {
    out.Put(u" (");
    out.Put(time.c_str());
    out.Put(u")");
}

} // namespace

void WriteReport(const std::vector<Sample> &samples, const char16_t *totalText, uint32_t flags, System &system,
                 ReportSink &out) {
    const size_t count = samples.size();
    const bool clock = (flags & kClockTime) != 0;
    uint32_t start = 0;
    for (size_t i = 0; i < count; ++i) {
        const Sample &sample = samples[i];
        const std::u16string time = clock ? system.ClockText(sample.clock) : std::u16string();
        if (i == 0) {
            start = sample.hundredths;
            if (clock) {
                out.Put(u"Begin: (");
                out.Put(time.c_str());
                out.Put(u")");
                out.Put(u"\n");
            }
        }
        // With two samples the total says it all; with more, every later
        // sample has its line, the last one too, ahead of the total.
        if (i > 0 && count >= 3) {
            out.Put(sample.label.c_str());
            out.Put(u": ");
            if (flags & kElapsed)
                out.Put(ElapsedText(sample.hundredths - samples[i - 1].hundredths).c_str());
            if (clock)
                PutClock(out, time);
            out.Put(u"\n");
        }
        if (i + 1 == count) {
            out.Put(u"Total ");
            out.Put(totalText);
            out.Put(u": ");
            out.Put(ElapsedText(sample.hundredths - start).c_str());
            if (count == 2 && clock)
                PutClock(out, time);
            if (!(flags & kMessageBox)) {
                out.Put(u"\n");
                out.Put(u"\n");
            }
        }
    }
}

} // namespace zk::diag
