// Stand-ins for what the text algorithms ask of the platform.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/core/expand.h"
#include "text/core/padb.h"
#include "text/core/proper.h"
#include "text/core/scan_reverse.h"

namespace zktest {

inline char16_t AsciiUpper(char16_t c) { return c >= u'a' && c <= u'z' ? c - 32 : c; }
inline char16_t AsciiLower(char16_t c) { return c >= u'A' && c <= u'Z' ? c + 32 : c; }

class AsciiCaseMap final : public zk::text::CaseMap {
public:
    void Upper(char16_t *text, std::size_t count) override {
        ++upperCalls;
        for (std::size_t i = 0; i < count; ++i)
            text[i] = AsciiUpper(text[i]);
    }
    void Lower(char16_t *text, std::size_t count) override {
        for (std::size_t i = 0; i < count; ++i)
            text[i] = AsciiLower(text[i]);
    }
    int upperCalls = 0;
};

// Steps back one character, or over a surrogate pair as one.
class AsciiScanner final : public zk::text::ReverseScanner {
public:
    std::size_t Previous(std::u16string_view text, std::size_t position) override {
        ++steps;
        if (position >= 2 && text[position - 1] >= 0xDC00 && text[position - 1] <= 0xDFFF &&
            text[position - 2] >= 0xD800 && text[position - 2] <= 0xDBFF)
            return position - 2;
        return position - 1;
    }
    bool EqualNoCase(const char16_t *a, const char16_t *b, std::size_t count) override {
        for (std::size_t i = 0; i < count; ++i)
            if (AsciiLower(a[i]) != AsciiLower(b[i]))
                return false;
        return true;
    }
    int steps = 0;
};

// A double-byte code page in miniature: ASCII is one byte, the kana block
// U+3041..U+30FF two (lead 0x82); anything else is '?'.
class FakeDbcs final : public zk::text::CodePage {
public:
    static bool IsDouble(char16_t c) { return c >= 0x3041 && c <= 0x30FF; }

    std::size_t ByteLength(std::u16string_view text) override {
        std::size_t n = 0;
        for (char16_t c : text)
            n += IsDouble(c) ? 2 : 1;
        return n;
    }
    char *AllocBytes(std::size_t size) override {
        if (failAlloc)
            return nullptr;
        ++live;
        return new char[size];
    }
    void FreeBytes(char *block) override {
        --live;
        delete[] block;
    }
    void ToBytes(std::u16string_view text, char *out, std::size_t size) override {
        std::size_t n = 0;
        for (char16_t c : text) {
            if (IsDouble(c)) {
                if (n + 2 > size - 1)
                    break;
                out[n++] = static_cast<char>(0x82);
                out[n++] = static_cast<char>(c - 0x3040);
            } else {
                if (n + 1 > size - 1)
                    break;
                out[n++] = c < 0x80 ? static_cast<char>(c) : '?';
            }
        }
        out[n] = 0;
    }
    bool CopyBytes(char *destination, const char *source, std::size_t limit) override {
        std::size_t n = 0;
        while (source[n] && n < limit) {
            const bool lead = static_cast<unsigned char>(source[n]) == 0x82;
            if (lead && n + 2 > limit)
                return true; // would split: left out
            destination[n] = source[n];
            if (lead) {
                destination[n + 1] = source[n + 1];
                ++n;
            }
            ++n;
        }
        return false;
    }
    std::size_t WideLength(const char *bytes) override {
        std::size_t m = 1;
        for (std::size_t n = 0; bytes[n]; ++n, ++m)
            if (static_cast<unsigned char>(bytes[n]) == 0x82)
                ++n;
        return m;
    }
    int live = 0;
    bool failAlloc = false;
};

// An array of strings and numbers at host indices low, low + 1, ...; an
// index outside reads as nothing, as a host error would.
class FakeArray final : public zk::text::ElementSource {
public:
    std::vector<std::u16string> strings;
    std::vector<int32_t> numbers;
    int32_t low = 0;
    std::vector<int32_t> stringReads, numberReads;

    zk::text::ArrayShape Shape() const {
        const auto count = static_cast<int32_t>(std::max(strings.size(), numbers.size()));
        return {count, low, low + count - 1};
    }
    std::u16string_view String(int32_t index) override {
        stringReads.push_back(index);
        const int64_t at = static_cast<int64_t>(index) - low;
        return at >= 0 && at < static_cast<int64_t>(strings.size()) ? std::u16string_view(strings[at])
                                                                    : std::u16string_view();
    }
    int32_t Number(int32_t index) override {
        numberReads.push_back(index);
        const int64_t at = static_cast<int64_t>(index) - low;
        return at >= 0 && at < static_cast<int64_t>(numbers.size()) ? numbers[at] : 0;
    }
};

} // namespace zktest
