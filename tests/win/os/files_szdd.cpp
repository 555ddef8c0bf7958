// Writes the classic compressed-file format of COMPRESS.EXE ("SZDD") so
// that the expansion through the platform's LZ functions can be checked on
// files made here. Header: "SZDD" 88 F0 27 33 'A', the name's missing last
// character, the expanded length (32 bits LE). Then LZSS over a 4096-byte
// ring filled with spaces, first written at 4096 - 16; each flag byte rules
// eight items, lowest bit first: 1 a literal, 0 a match of two bytes
// (position low 8 bits; position high 4 bits, length - 3).
#include <cstdint>
#include <string>
#include <vector>

namespace filestest {

std::string SzddCompress(const std::string &data, char missing) {
    constexpr size_t kRing = 4096, kStart = kRing - 16, kMin = 3, kMax = 18, kWindow = kRing - kMax - 2;
    std::string out("SZDD\x88\xF0\x27\x33"
                    "A",
                    9);
    out += missing;
    for (int shift = 0; shift < 32; shift += 8)
        out += static_cast<char>((data.size() >> shift) & 0xFF);
    size_t flagAt = 0;
    int bit = 8;
    auto flag = [&](bool literal) {
        if (bit == 8)
            flagAt = out.size(), out += '\0', bit = 0;
        if (literal)
            out[flagAt] = static_cast<char>(out[flagAt] | (1 << bit));
        ++bit;
    };
    // The last offset of each three-byte prefix.
    std::vector<size_t> last(1 << 12, SIZE_MAX);
    auto hash = [&](size_t i) {
        return ((static_cast<unsigned char>(data[i]) << 4) ^ (static_cast<unsigned char>(data[i + 1]) << 2) ^
                static_cast<unsigned char>(data[i + 2])) &
               0xFFF;
    };
    size_t i = 0;
    while (i < data.size()) {
        size_t length = 0, position = 0;
        const size_t limit = std::min(kMax, data.size() - i);
        if (i == 0) { // the ring holds nothing but spaces yet
            while (length < limit && data[length] == ' ')
                ++length;
            position = kRing / 2;
        }
        if (i + kMin <= data.size()) {
            const size_t from = last[hash(i)];
            size_t n = 0;
            if (from != SIZE_MAX && from + kWindow >= i)
                while (n < limit && data[from + n] == data[i + n])
                    ++n;
            if (n > length)
                length = n, position = (kStart + from) % kRing;
        }
        const size_t step = length >= kMin ? length : 1;
        if (step == 1) {
            flag(true);
            out += data[i];
        } else {
            flag(false);
            out += static_cast<char>(position & 0xFF);
            out += static_cast<char>(((position >> 4) & 0xF0) | (length - kMin));
        }
        for (size_t end = i + step; i < end; ++i)
            if (i + kMin <= data.size())
                last[hash(i)] = i;
    }
    return out;
}

} // namespace filestest
