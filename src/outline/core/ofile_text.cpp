#include "outline/core/ofile_text.h"

#include <utility>

namespace zk::lbx::ofile {
namespace {

constexpr int32_t kTabColumns = 8;

// The bytes with each CR LF pair turned into two NULs and a NUL at the end
// if the last byte is none, widened.
std::u16string Prepare(std::string_view bytes, picstream::Widen widen) {
    std::string work(bytes);
    for (size_t i = 0; i + 1 < work.size(); ++i) {
        if (work[i] == '\r' && work[i + 1] == '\n') {
            work[i] = '\0';
            work[++i] = '\0';
        }
    }
    if (work.empty() || work.back() != '\0')
        work.push_back('\0');
    std::u16string wide = widen(work);
    // A code page that swallowed the final NUL must not let a line run off
    // the end.
    if (wide.empty() || wide.back() != u'\0')
        wide.push_back(u'\0');
    return wide;
}

struct DepthEntry {
    int32_t line;   // kTextRoot or the index of the line loaded there
    int32_t column; // its indentation; -1 for the root
};

TextStatus Parse(std::string_view bytes, std::vector<TextLine> &lines, picstream::Widen widen) {
    if (bytes.size() >= kTextLimit)
        return TextStatus::tooLarge;
    const std::u16string text = Prepare(bytes, widen ? widen : picstream::WidenLatin1);
    std::vector<TextLine> plan;
    std::vector<DepthEntry> table;
    table.reserve(kTextDepths);
    table.push_back({kTextRoot, -1});
    size_t depth = 0;
    int32_t column = 0;
    size_t at = 0;
    while (at < text.size()) {
        const char16_t c = text[at];
        if (c == u'\0') {
            ++at;
            column = 0;
            continue;
        }
        if (c == u'\t' || c == u' ') {
            column += c == u'\t' ? kTabColumns : 1;
            ++at;
            continue;
        }
        if (column < table[depth].column) {
            // Back to the nearest shallower entry; the line is taken again
            // and loads as a child there.
            while (depth > 0 && table[depth].column >= column)
                --depth;
            continue;
        }
        size_t end = at;
        while (text[end] != u'\0')
            ++end;
        TextLine line;
        line.text.assign(text, at, end - at);
        line.anchor = table[depth].line;
        const auto index = static_cast<int32_t>(plan.size());
        if (column == table[depth].column) {
            line.sibling = true;
            line.level = static_cast<int32_t>(depth) - 1;
            table[depth].line = index;
        } else {
            if (depth + 1 >= kTextDepths)
                return TextStatus::tooDeep;
            line.level = static_cast<int32_t>(depth);
            ++depth;
            table.resize(depth + 1);
            table[depth] = {index, column};
        }
        plan.push_back(std::move(line));
        at = end + 1;
        column = 0;
    }
    lines = std::move(plan);
    return TextStatus::ok;
}

} // namespace

TextStatus OutlineTextParse(std::string_view bytes, std::vector<TextLine> &lines, picstream::Widen widen) noexcept {
    try {
        return Parse(bytes, lines, widen);
    } catch (...) {
        return TextStatus::noMemory;
    }
}

} // namespace zk::lbx::ofile
