#include "os/core/net_connections.h"

#include <algorithm>
#include <new>

namespace zk::os {

bool NetPlatform::Allocate(std::vector<char16_t> &block, size_t chars) noexcept {
    try {
        block.assign(chars, u'\0');
        return true;
    } catch (const std::bad_alloc &) {
        block = {};
        return false;
    }
}

namespace {

struct Answer {
    bool memory = true; // false: the block could not be grown
    uint32_t code = 0;  // the platform's last answer
};

// One query, the block growing by a step for each "too small": the block is
// given up before the larger one is asked for, and keeps its size for the
// names asked after.
Answer Ask(NetPlatform &platform, const std::u16string &local, std::vector<char16_t> &block) {
    Answer answer;
    for (;;) {
        auto chars = static_cast<uint32_t>(block.size());
        answer.code = platform.Connection(local.c_str(), block.data(), &chars);
        if (answer.code != kNetMoreData)
            return answer;
        const size_t wanted = block.size() + kNetBlockStep;
        block = {};
        if (!platform.Allocate(block, wanted)) {
            answer.memory = false;
            return answer;
        }
    }
}

// The answer's text, up to its terminator or the end of the block.
std::u16string_view Remote(const std::vector<char16_t> &block) {
    const auto end = std::find(block.begin(), block.end(), u'\0');
    return {block.data(), static_cast<size_t>(end - block.begin())};
}

} // namespace

int32_t EnumNetConnections(NetPlatform &platform, NetListing &listing) {
    std::vector<char16_t> block;
    if (!platform.Allocate(block, kNetBlockStep))
        return kNetNoMemory;
    int32_t last = -1;
    uint32_t code = 0;
    // Asks for one local name and adds it when it is connected; false when
    // memory ran out on the way.
    const auto list = [&](const std::u16string &local) {
        const Answer answer = Ask(platform, local, block);
        code = answer.code;
        if (!answer.memory)
            return false;
        if (code != 0)
            return true;
        if (!listing.Add(last + 1, local, Remote(block)))
            return false;
        ++last;
        return true;
    };

    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        if (platform.DriveType(letter) != kDriveRemote)
            continue;
        if (!list(std::u16string{letter, u':'}))
            return kNetNoMemory;
    }
    // Only the last drive's answer counts here: a drive that dropped its
    // connection since its type was read ends the listing when it was the
    // last remote drive, and is passed over otherwise. Without any network
    // drive the printers are not looked at.
    if (code != 0 || last < 0)
        return -static_cast<int32_t>(code);

    for (char16_t port = u'0'; port <= u'2'; ++port) {
        if (!list(std::u16string(u"LPT") + port))
            return kNetNoMemory;
    }
    listing.Finish(last);
    return last + 1;
}

std::optional<std::u16string> NetName(NetPlatform &platform, std::u16string_view local) {
    std::u16string name;
    name.reserve(local.size());
    for (const char16_t c : local) {
        if (c != u'\\')
            name.push_back(c);
    }
    std::vector<char16_t> block;
    if (!platform.Allocate(block, kNetBlockStep))
        return std::nullopt;
    const Answer answer = Ask(platform, name, block);
    if (!answer.memory || answer.code != 0)
        return std::nullopt;
    return std::u16string(Remote(block));
}

} // namespace zk::os
