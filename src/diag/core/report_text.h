// The text of the stopwatch's report, piece by piece: the start's clock,
// a line for every later sample when there are at least three, and the
// total named by the text of the call that ends the run.
#pragma once

#include <cstdint>
#include <vector>

#include "diag/core/report_sink.h"
#include "diag/core/sample.h"
#include "diag/core/system.h"

namespace zk::diag {

// `flags` decides what a line shows (kElapsed, kClockTime) and whether the
// total ends with two line feeds (not in a box); clock times are asked of
// `system`, once per sample.
void WriteReport(const std::vector<Sample> &samples, const char16_t *totalText, uint32_t flags, System &system,
                 ReportSink &out);

} // namespace zk::diag
