// Date-time pictures: tokenizing, validity, formatting.
#include <cstdlib>
#include <string>
#include <vector>

#include "datetime.h"

namespace zkh {

namespace {

enum class Token {
    Year4,
    Year2,
    MonthName,
    MonthAbbrev,
    Month2,
    Month1,
    WeekdayName,
    WeekdayAbbrev,
    Day2,
    Day1,
    Hour2,
    Hour1,
    Hour24,
    Minute,
    Second,
    Micros,
    AmPm
};

struct TokenText {
    std::u16string_view text;
    Token token;
};

// Longest first, so that "mmmmmm" is never read as three minutes and
// "MMMM" never as two months. Case separates "MM" month from "mm" minute.
constexpr TokenText kTokens[] = {
    {u"mmmmmm", Token::Micros},     {u"yyyy", Token::Year4},
    {u"MMMM", Token::MonthName},    {u"dddd", Token::WeekdayName},
    {u"AMPM", Token::AmPm},         {u"MMM", Token::MonthAbbrev},
    {u"ddd", Token::WeekdayAbbrev}, {u"yy", Token::Year2},
    {u"MM", Token::Month2},         {u"dd", Token::Day2},
    {u"hh", Token::Hour2},          {u"HH", Token::Hour24},
    {u"mm", Token::Minute},         {u"ss", Token::Second},
    {u"M", Token::Month1},          {u"d", Token::Day1},
    {u"h", Token::Hour1},
};

struct Piece {
    bool isToken = false;
    Token token = Token::Year4;
    std::u16string_view text; // literal text when !isToken
};

struct Tokenized {
    std::vector<Piece> pieces;
    bool valid = true; // no unknown letter, no open quote
    bool twelveHour = false;
    int tokenCount = 0;
};

bool IsAsciiLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }

Tokenized tokenize(std::u16string_view picture) {
    Tokenized result;
    size_t i = 0;
    while (i < picture.size()) {
        const char16_t c = picture[i];
        if (c == u'"') {
            const size_t close = picture.find(u'"', i + 1);
            if (close == std::u16string_view::npos) {
                result.valid = false;
                result.pieces.push_back({false, Token::Year4, picture.substr(i + 1)});
                break;
            }
            result.pieces.push_back({false, Token::Year4, picture.substr(i + 1, close - i - 1)});
            i = close + 1;
            continue;
        }
        if (IsAsciiLetter(c)) {
            const TokenText *match = nullptr;
            for (const TokenText &t : kTokens) {
                if (picture.substr(i, t.text.size()) == t.text) {
                    match = &t;
                    break;
                }
            }
            if (match != nullptr) {
                result.pieces.push_back({true, match->token, {}});
                ++result.tokenCount;
                result.twelveHour = result.twelveHour || match->token == Token::AmPm;
                i += match->text.size();
                continue;
            }
            result.valid = false;
        }
        // A run of plain characters is one literal piece.
        size_t end = i + 1;
        while (end < picture.size() && picture[end] != u'"' && !IsAsciiLetter(picture[end]))
            ++end;
        result.pieces.push_back({false, Token::Year4, picture.substr(i, end - i)});
        i = end;
    }
    return result;
}

void AppendNumber(std::u16string &out, int64_t value, int width) {
    if (value < 0)
        out += u'-';
    uint64_t magnitude = value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    char16_t digits[24];
    int n = 0;
    do {
        digits[n++] = static_cast<char16_t>(u'0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    for (int pad = n; pad < width; ++pad)
        out += u'0';
    while (n > 0)
        out += digits[--n];
}

int TwelveHourOf(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

void AppendToken(std::u16string &out, Token token, const DateParts &p, bool twelveHour) {
    const int hour = twelveHour ? TwelveHourOf(p.hour) : p.hour;
    switch (token) {
    case Token::Year4:
        AppendNumber(out, p.year, 4);
        break;
    case Token::Year2:
        AppendNumber(out, std::abs(static_cast<int64_t>(p.year)) % 100, 2);
        break;
    case Token::MonthName:
        out += detail::MonthName(p.month);
        break;
    case Token::MonthAbbrev:
        out += detail::MonthName(p.month).substr(0, 3);
        break;
    case Token::Month2:
        AppendNumber(out, p.month, 2);
        break;
    case Token::Month1:
        AppendNumber(out, p.month, 1);
        break;
    case Token::WeekdayName:
        out += detail::WeekdayName(p.weekday);
        break;
    case Token::WeekdayAbbrev:
        out += detail::WeekdayName(p.weekday).substr(0, 3);
        break;
    case Token::Day2:
        AppendNumber(out, p.day, 2);
        break;
    case Token::Day1:
        AppendNumber(out, p.day, 1);
        break;
    case Token::Hour2:
        AppendNumber(out, hour, 2);
        break;
    case Token::Hour1:
        AppendNumber(out, hour, 1);
        break;
    case Token::Hour24:
        AppendNumber(out, p.hour, 2);
        break;
    case Token::Minute:
        AppendNumber(out, p.minute, 2);
        break;
    case Token::Second:
        AppendNumber(out, p.second, 2);
        break;
    case Token::Micros:
        AppendNumber(out, p.microsecond, 6);
        break;
    case Token::AmPm:
        out += p.hour < 12 ? u"AM" : u"PM";
        break;
    }
}

} // namespace

std::u16string DateFormat(const HostDateTime &d, std::u16string_view picture) {
    DateParts parts;
    if (!detail::DatePartsOf(d, parts))
        return {};
    const Tokenized t = tokenize(picture);
    std::u16string out;
    for (const Piece &piece : t.pieces) {
        if (piece.isToken)
            AppendToken(out, piece.token, parts, t.twelveHour);
        else
            out += piece.text;
    }
    return out;
}

bool PictureIsValid(std::u16string_view picture) {
    const Tokenized t = tokenize(picture);
    return t.valid && t.tokenCount > 0;
}

} // namespace zkh
