// A span of the stopwatch as text: minutes, then seconds and hundredths of
// two digits each ("%ld:%.2ld.%.2ld" of h / 6000, h % 6000 / 100, h % 100).
#pragma once

#include <cstdint>
#include <string>

namespace zk::diag {

std::u16string ElapsedText(uint32_t hundredths);

} // namespace zk::diag
