#include "text/core/expand.h"

#include <charconv>

namespace zk::text {
namespace {

void AppendLong(std::u16string &out, int32_t value) {
    char digits[16];
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    out.append(digits, result.ptr); // ASCII digits and sign widen as they are
}

class Expander {
public:
    Expander(std::u16string_view text, const ArrayShape &shape, ElementSource &elements)
        : text_(text), shape_(shape), elements_(elements), groups_(text) {}

    std::u16string Run() {
        out_.reserve(text_.size());
        std::size_t pos = 0;
        while (pos < text_.size()) {
            const std::size_t next = text_.find_first_of(u"%{", pos);
            if (next == std::u16string_view::npos) {
                out_.append(text_.substr(pos));
                break;
            }
            out_.append(text_.substr(pos, next - pos));
            pos = text_[next] == u'%' ? PlainCode(next) : GroupAt(next);
        }
        return std::move(out_);
    }

private:
    // A code outside braces; the position after what it took.
    std::size_t PlainCode(std::size_t percent) {
        const std::size_t letter = percent + 1;
        if (letter < text_.size()) {
            const char16_t c = text_[letter];
            if (c == u'%') {
                out_.push_back(u'%');
                return letter + 1;
            }
            // Elements are taken from index 0 on, whatever the array's low
            // bound: that is how applications have always called it.
            if (IsElementCode(c) && cursor_ < static_cast<int64_t>(shape_.size())) {
                const int32_t index = static_cast<int32_t>(cursor_++);
                Value(c, index);
                return letter + 1;
            }
        }
        // Used up, or not a code: the % is text and the next character is
        // scanned as text.
        out_.push_back(u'%');
        return letter;
    }

    // A group at the {; the position after it.
    std::size_t GroupAt(std::size_t open) {
        const std::optional<Group> group = groups_.At(open);
        if (!group) {
            // A { without a } after it is not a group: it is copied as a plain
            // character and the scan goes on after it, so codes behind it
            // still work and the expansion always ends.
            out_.push_back(u'{');
            return open + 1;
        }
        if (!group->code) {
            out_.append(text_.substr(open, group->length()));
            return group->close + 1;
        }
        const GroupCode &code = *group->code;
        const std::u16string_view prefix = text_.substr(open + 1, code.percent - open - 1);
        const std::u16string_view suffix = text_.substr(code.end, group->close - code.end);
        for (int64_t index = shape_.low; index <= shape_.last(); ++index) {
            if (code.comma && index != shape_.low)
                out_.push_back(u',');
            out_.append(prefix);
            Value(code.letter, static_cast<int32_t>(index));
            out_.append(suffix);
        }
        return group->close + 1;
    }

    // A code's value: the element at `index`, or for u the index itself.
    void Value(char16_t letter, int32_t index) {
        if (letter == u'u')
            AppendLong(out_, index);
        else if (letter == u'n')
            AppendLong(out_, elements_.Number(index));
        else
            out_.append(elements_.String(index));
    }

    std::u16string_view text_;
    const ArrayShape &shape_;
    ElementSource &elements_;
    const GroupFinder groups_;
    std::u16string out_;
    int64_t cursor_ = 0; // the next element of the plain codes
};

} // namespace

std::u16string Expand(std::u16string_view text, const ArrayShape &shape, ElementSource &elements) {
    return Expander(text, shape, elements).Run();
}

} // namespace zk::text
