#include "szdd.h"

#include <array>
#include <vector>

namespace filestest {

namespace {

constexpr size_t kRing = 4096;
constexpr size_t kStart = kRing - 16;
constexpr size_t kMinMatch = 3, kMaxMatch = 18;
// Matches reach back less than a ring, so the bytes they read are still there.
constexpr size_t kWindow = kRing - kMaxMatch - 2;
constexpr char kMagic[] = {'S', 'Z', 'D', 'D', '\x88', '\xF0', '\x27', '\x33', 'A'};

size_t RingPosition(size_t inputOffset) { return (kStart + inputOffset) % kRing; }

class ItemWriter {
public:
    explicit ItemWriter(std::string &out) : out_(out) {}
    void Literal(char c) {
        Flag(true);
        out_ += c;
    }
    void Match(size_t position, size_t length) {
        Flag(false);
        out_ += static_cast<char>(position & 0xFF);
        out_ += static_cast<char>(((position >> 4) & 0xF0) | (length - kMinMatch));
    }

private:
    void Flag(bool literal) {
        if (bit_ == 8) {
            flagAt_ = out_.size();
            out_ += '\0';
            bit_ = 0;
        }
        if (literal)
            out_[flagAt_] = static_cast<char>(out_[flagAt_] | (1 << bit_));
        ++bit_;
    }
    std::string &out_;
    size_t flagAt_ = 0;
    int bit_ = 8;
};

} // namespace

std::string SzddCompress(const std::string &data, char missing) {
    std::string out(kMagic, sizeof kMagic);
    out += missing;
    for (int shift = 0; shift < 32; shift += 8)
        out += static_cast<char>((data.size() >> shift) & 0xFF);

    ItemWriter items(out);
    // Recent offsets of each three-byte prefix, newest last.
    std::vector<std::vector<size_t>> chains(1 << 12);
    auto hash = [&](size_t i) {
        return ((static_cast<unsigned char>(data[i]) << 4) ^ (static_cast<unsigned char>(data[i + 1]) << 2) ^
                static_cast<unsigned char>(data[i + 2])) & 0xFFF;
    };
    size_t i = 0;
    while (i < data.size()) {
        size_t bestLength = 0, bestPosition = 0;
        const size_t limit = std::min(kMaxMatch, data.size() - i);
        // At the very start the ring holds nothing but spaces.
        if (i == 0) {
            while (bestLength < limit && data[bestLength] == ' ')
                ++bestLength;
            bestPosition = kRing / 2;
        }
        if (i + kMinMatch <= data.size()) {
            const std::vector<size_t> &chain = chains[hash(i)];
            int tries = 0;
            for (auto it = chain.rbegin(); it != chain.rend() && tries < 64 && *it + kWindow >= i; ++it, ++tries) {
                size_t length = 0;
                while (length < limit && data[*it + length] == data[i + length])
                    ++length;
                if (length > bestLength) {
                    bestLength = length;
                    bestPosition = RingPosition(*it);
                }
            }
        }
        const size_t step = bestLength >= kMinMatch ? bestLength : 1;
        if (step == 1)
            items.Literal(data[i]);
        else
            items.Match(bestPosition, bestLength);
        for (size_t k = 0; k < step; ++k, ++i) {
            if (i + kMinMatch <= data.size())
                chains[hash(i)].push_back(i);
        }
    }
    return out;
}

bool SzddExpand(const std::string &file, std::string &out) {
    if (file.size() < 14 || file.compare(0, sizeof kMagic, kMagic, sizeof kMagic) != 0)
        return false;
    size_t length = 0;
    for (int k = 0; k < 4; ++k)
        length |= static_cast<size_t>(static_cast<unsigned char>(file[10 + k])) << (8 * k);
    std::array<char, kRing> ring;
    ring.fill(' ');
    size_t write = kStart, at = 14;
    out.clear();
    while (out.size() < length) {
        if (at >= file.size())
            return false;
        const unsigned flags = static_cast<unsigned char>(file[at++]);
        for (int bit = 0; bit < 8 && out.size() < length; ++bit) {
            if (flags & (1u << bit)) {
                if (at >= file.size())
                    return false;
                out += ring[write] = file[at++];
                write = (write + 1) % kRing;
                continue;
            }
            if (at + 1 >= file.size())
                return false;
            const unsigned low = static_cast<unsigned char>(file[at]), high = static_cast<unsigned char>(file[at + 1]);
            at += 2;
            size_t position = low | ((high & 0xF0u) << 4);
            for (size_t n = (high & 0x0F) + kMinMatch; n > 0; --n) {
                out += ring[write] = ring[position];
                write = (write + 1) % kRing;
                position = (position + 1) % kRing;
            }
        }
    }
    out.resize(length);
    return true;
}

} // namespace filestest
