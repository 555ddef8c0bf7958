// Bytes of any shape into the indented text outline parser. Beyond not
// crashing: every line of the plan must be loadable in order (its anchor
// loaded before it, at the level the anchor calls for), within the table of
// depths, with no line end inside its text.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "outline/core/ofile_text.h"

namespace {

using namespace zk::lbx::ofile;

void check(bool condition) {
    if (!condition)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    std::vector<TextLine> lines;
    const TextStatus status = OutlineTextParse(bytes, lines);
    if (size >= kTextLimit) {
        check(status == TextStatus::tooLarge);
        return 0;
    }
    if (status != TextStatus::ok) {
        check(status == TextStatus::tooDeep && lines.empty());
        return 0;
    }
    for (size_t i = 0; i < lines.size(); ++i) {
        const TextLine &line = lines[i];
        check(!line.text.empty() && line.text.find(u'\0') == std::u16string::npos);
        check(line.text[0] != u' ' && line.text[0] != u'\t');
        check(line.level >= 0 && line.level <= 255);
        if (line.anchor == kTextRoot) {
            check(!line.sibling && line.level == 0);
            continue;
        }
        check(line.anchor >= 0 && static_cast<size_t>(line.anchor) < i);
        const int32_t anchorLevel = lines[static_cast<size_t>(line.anchor)].level;
        check(line.level == anchorLevel + (line.sibling ? 0 : 1));
    }
    return 0;
}
