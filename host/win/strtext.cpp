// Operations on texts that answer host values: search, splitting into a
// string array, the current directory.
#include <cwchar>
#include <string_view>
#include <utility>
#include <vector>

#include "arraystore.h"
#include "guard.h"
#include "strstore.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

bool IsIn(std::wstring_view set, wchar_t c) { return set.find(c) != std::wstring_view::npos; }

// Token ranges of text. Without start delimiters a token may begin anywhere;
// with them, only after one of them, and the text between a token's end and
// the next start delimiter belongs to no token. An end delimiter that is a
// start delimiter too opens the next token at once.
std::vector<std::pair<size_t, size_t>> Tokens(std::wstring_view text, std::wstring_view starts,
                                              std::wstring_view ends) {
    std::vector<std::pair<size_t, size_t>> tokens;
    bool anywhere = starts.empty();
    bool inToken = anywhere;
    size_t begin = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        wchar_t c = text[i];
        if (inToken) {
            if (!IsIn(ends, c))
                continue;
            if (i > begin)
                tokens.emplace_back(begin, i);
            inToken = anywhere || IsIn(starts, c);
            begin = i + 1;
        } else if (IsIn(starts, c)) {
            inToken = true;
            begin = i + 1;
        }
    }
    if (inToken && text.size() > begin)
        tokens.emplace_back(begin, text.size());
    return tokens;
}

std::wstring_view View(const wchar_t *text) { return text ? std::wstring_view(text) : std::wstring_view(); }

} // namespace

extern "C" {

int32_t ZKAPI HostStrScan(const wchar_t *search, const wchar_t *text) {
    if (!search || !text)
        return -1;
    size_t at = std::wstring_view(text).find(search);
    return at == std::wstring_view::npos || at > INT32_MAX ? -1 : static_cast<int32_t>(at);
}

// The tokens go to the array from its low bound (0 for an empty array) as
// new strings, each with the array's reference; the bounds end at the last.
int32_t ZKAPI HostStrTokenize(const wchar_t *text, const wchar_t *startDelimiters, const wchar_t *endDelimiters,
                              HostArray array) {
    return Guard<int32_t>(-1, [&]() -> int32_t {
        HostArrayData *a = ArrayFind(array);
        if (!a || !a->HoldsStrings())
            return -1;
        std::wstring_view t = View(text);
        auto tokens = Tokens(t, View(startDelimiters), View(endDelimiters));
        if (int64_t(tokens.size()) > kMaxArrayElements)
            return -1;
        std::vector<HostStr> made;
        made.reserve(tokens.size());
        auto undo = [&] {
            for (HostStr h : made)
                StrRelease(h);
            return -1;
        };
        for (auto [begin, end] : tokens) {
            HostStr h = StrFromText(t.substr(begin, end - begin));
            if (!h)
                return undo();
            made.push_back(h);
        }
        int32_t low = a->count() ? a->low() : 0;
        int32_t count = static_cast<int32_t>(made.size());
        if (!a->resize(low, int64_t(low) + count - 1))
            return undo();
        for (int32_t i = 0; i < count; ++i)
            StrStore(&a->word(low + i), made[i]);
        return count;
    });
}

HostStr ZKAPI HostDirGetCurrent(void) {
    return Guard<HostStr>(0, [] {
        std::vector<wchar_t> buffer(MAX_PATH);
        for (int attempt = 0; attempt < 4; ++attempt) {
            DWORD n = GetCurrentDirectoryW(static_cast<DWORD>(buffer.size()), buffer.data());
            if (n == 0)
                return HostStr(0);
            if (n < buffer.size())
                return StrFromText(std::wstring_view(buffer.data(), n));
            buffer.resize(n + 1); // the directory changed size between the calls
        }
        return HostStr(0);
    });
}

} // extern "C"
