// Copying multi-byte text to a byte limit without cutting a double-byte
// character in two. The lead-byte test is a parameter so that the rule can
// be checked against any code page.
#pragma once

#include <cstdint>

namespace hostwin {

// Copies at most `limit` bytes of source to destination and ends it with a
// NUL (destination holds limit + 1 bytes). True when a lead byte was left out
// because its trail byte lay beyond the limit.
template <class IsLead>
bool CopyWholeCharacters(char *destination, const char *source, int32_t limit, IsLead isLead) {
    if (!destination)
        return false;
    int32_t n = 0;
    bool split = false;
    if (source) {
        while (n < limit && source[n]) {
            unsigned char c = static_cast<unsigned char>(source[n]);
            if (isLead(c) && source[n + 1]) {
                if (n + 1 >= limit) {
                    split = true;
                    break;
                }
                destination[n] = source[n];
                destination[n + 1] = source[n + 1];
                n += 2;
                continue;
            }
            destination[n] = source[n];
            ++n;
        }
    }
    destination[n] = 0;
    return split;
}

} // namespace hostwin
