#include "outline/core/lbx_text.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace zk::lbx {

// The characters follow a small header, as in the framework's string: the
// empty text is one static block that is never counted or freed.
struct LbxText::Header {
    std::size_t refs;   // 0 marks the static empty block
    std::size_t length; // characters, without the terminator
};

namespace {

struct EmptyBlock {
    std::size_t refs = 0;
    std::size_t length = 0;
    char16_t chars[1] = {0};
};
EmptyBlock emptyBlock;

} // namespace

LbxText::LbxText() noexcept : chars_(emptyBlock.chars) {}

LbxText::Header *LbxText::header() const noexcept {
    return reinterpret_cast<Header *>(reinterpret_cast<char *>(chars_) - sizeof(Header));
}

std::size_t LbxText::size() const noexcept { return header()->length; }

LbxText::LbxText(const LbxText &other) noexcept : chars_(other.chars_) {
    if (header()->refs) {
        ++header()->refs;
    }
}

LbxText &LbxText::operator=(const LbxText &other) noexcept {
    if (chars_ != other.chars_) {
        release();
        chars_ = other.chars_;
        if (header()->refs) {
            ++header()->refs;
        }
    }
    return *this;
}

LbxText::~LbxText() { release(); }

void LbxText::release() noexcept {
    Header *h = header();
    if (h->refs && --h->refs == 0) {
        std::free(h);
    }
    chars_ = emptyBlock.chars;
}

void LbxText::assign(std::u16string_view text) {
    if (text.empty()) {
        release();
        return;
    }
    void *block = std::malloc(sizeof(Header) + (text.size() + 1) * sizeof(char16_t));
    if (!block) {
        throw std::bad_alloc();
    }
    auto *h = static_cast<Header *>(block);
    h->refs = 1;
    h->length = text.size();
    auto *chars = reinterpret_cast<char16_t *>(h + 1);
    std::memcpy(chars, text.data(), text.size() * sizeof(char16_t));
    chars[text.size()] = 0;
    release();
    chars_ = chars;
}

char16_t *LbxText::mutableData() {
    if (header()->refs > 1) {
        LbxText copy;
        copy.assign(view());
        *this = copy;
    }
    return chars_;
}

} // namespace zk::lbx
