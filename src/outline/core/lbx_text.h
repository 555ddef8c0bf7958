// The text of an outline item: a reference-counted wide string whose one
// member is the address of its characters. The text query hands out the
// address of this field, and a reader who receives it reads the characters
// through one indirection (LbxTextAtField) whatever the text's length.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zk::lbx {

class LbxText {
public:
    LbxText() noexcept;
    LbxText(const LbxText &other) noexcept; // shares the characters
    LbxText &operator=(const LbxText &other) noexcept;
    ~LbxText();

    // Replaces the text with a copy of `text`; throws std::bad_alloc and then
    // leaves the old text in place.
    void assign(std::u16string_view text);

    const char16_t *c_str() const noexcept { return chars_; }
    std::size_t size() const noexcept;
    bool empty() const noexcept { return size() == 0; }
    std::u16string_view view() const noexcept { return {chars_, size()}; }

    // Characters to change in place, the length kept. Shared characters are
    // copied first (throws std::bad_alloc then).
    char16_t *mutableData();

private:
    struct Header;
    Header *header() const noexcept;
    void release() noexcept;

    char16_t *chars_; // never null: an empty text points at a shared empty block
};

static_assert(sizeof(LbxText) == sizeof(char16_t *), "the text field is one address");

// The characters of a text whose field address was handed out by the text query.
inline const char16_t *LbxTextAtField(const void *field) noexcept {
    return *static_cast<const char16_t *const *>(field);
}

} // namespace zk::lbx
