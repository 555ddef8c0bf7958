// The i686 calling convention, checked without running the DLLs (32-bit
// Wine is not to be had): every export of ZKLIB.dll and zkhost.dll pops
// exactly the argument bytes of its declaration with its `ret N`, plus 4
// where the result is a record that comes back through a hidden pointer.
// The declarations' bytes come from the i686 compiler (bin/abi-table.bin,
// tools/abi); the machine code from the cross tools' disassembler.
#include "declarations.h"
#include "locations.h"
#include "pe_image.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <set>

namespace {

struct Declared {
    uint32_t bytes = 0;
    bool hidden = false;
};

std::map<std::string, Declared> ReadAbiTable(const std::string &path) {
    std::map<std::string, Declared> table;
    std::ifstream in(path, std::ios::binary);
    char record[64];
    while (in.read(record, sizeof record)) {
        Declared d;
        std::memcpy(&d.bytes, record + 56, 4);
        uint32_t hidden = 0;
        std::memcpy(&hidden, record + 60, 4);
        d.hidden = hidden != 0;
        table[std::string(record, strnlen(record, 56))] = d;
    }
    return table;
}

// The code between one label of the disassembly and the next: the bytes
// its `ret` instructions pop, where its direct jumps go, and whether it
// jumps through a pointer (a tail call into an imported function, which
// the compiler makes only when the callee pops what the caller got).
struct Block {
    std::vector<uint32_t> rets;
    std::vector<uint64_t> jumps;
    bool indirectTailCall = false;
};

bool StartsWith(const std::string &text, size_t at, const char *prefix) {
    return text.compare(at, std::strlen(prefix), prefix) == 0;
}

// Lines of `objdump -d --no-show-raw-insn`: "6dcaf490 <_Name@60>:" opens a
// block; "6dcaf4cf:\tret    $0x40", "...:\tjmp    6dc86000 <...>" and
// "...:\tjmp    *0x6dd7faf4" are what it holds.
std::map<uint64_t, Block> disassemble(const std::string &objdump, const std::string &dll) {
    std::map<uint64_t, Block> blocks;
    const std::string command = objdump + " -d --no-show-raw-insn '" + dll + "'";
    std::unique_ptr<FILE, int (*)(FILE *)> pipe(popen(command.c_str(), "r"), pclose);
    if (!pipe)
        return blocks;
    Block *current = nullptr;
    char buffer[1024];
    while (std::fgets(buffer, sizeof buffer, pipe.get())) {
        std::string line(buffer);
        while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
            line.pop_back();
        if (line.size() > 3 && std::isxdigit(static_cast<unsigned char>(line[0])) && line.back() == ':' &&
            line.find(" <") != std::string::npos) {
            current = &blocks[std::stoull(line.substr(0, line.find(' ')), nullptr, 16)];
            continue;
        }
        const size_t tab = line.find(":\t");
        if (!current || tab == std::string::npos)
            continue;
        size_t at = tab + 2;
        for (const char *prefix : {"repz ", "rep "})
            if (StartsWith(line, at, prefix))
                at += std::strlen(prefix);
        if (StartsWith(line, at, "ret")) {
            const size_t dollar = line.find("$0x", at);
            current->rets.push_back(dollar == std::string::npos
                                        ? 0u
                                        : static_cast<uint32_t>(std::stoul(line.substr(dollar + 3), nullptr, 16)));
        } else if (StartsWith(line, at, "jmp ")) {
            const size_t target = line.find_first_not_of(' ', at + 4);
            if (target == std::string::npos)
                continue;
            if (line[target] == '*')
                current->indirectTailCall = true;
            else if (std::isxdigit(static_cast<unsigned char>(line[target])))
                current->jumps.push_back(std::stoull(line.substr(target), nullptr, 16));
        }
    }
    return blocks;
}

// The pops of a function: its own returns, or those of the blocks its
// direct jumps reach when it has none (a tail call to a function of its
// own). Empty with `tailCall` set when it leaves only through a pointer.
std::set<uint32_t> PopsOf(const std::map<uint64_t, Block> &blocks, uint64_t address, bool &tailCall, int depth = 0) {
    std::set<uint32_t> pops;
    const auto found = blocks.find(address);
    if (found == blocks.end() || depth > 4)
        return pops;
    pops.insert(found->second.rets.begin(), found->second.rets.end());
    if (pops.empty()) {
        tailCall = tailCall || found->second.indirectTailCall;
        for (uint64_t target : found->second.jumps)
            if (target != address) {
                const std::set<uint32_t> more = PopsOf(blocks, target, tailCall, depth + 1);
                pops.insert(more.begin(), more.end());
            }
    }
    return pops;
}

// "Name@N == Name" entries: the exported name and its N.
std::map<std::string, uint32_t> DefBytes(const std::vector<std::string> &files) {
    std::map<std::string, uint32_t> bytes;
    for (const std::string &file : files) {
        const auto text = decl::ReadText(file);
        EXPECT_TRUE(text) << "cannot read " << file;
        if (!text)
            continue;
        const bool part = file.find("/exports/") != std::string::npos;
        for (const decl::DefEntry &e : decl::DefEntries(*text, part)) {
            const size_t at = e.internal.rfind('@');
            EXPECT_NE(at, std::string::npos) << e.exported << " has no argument bytes in " << file;
            if (at != std::string::npos)
                bytes[e.exported] = static_cast<uint32_t>(std::stoul(e.internal.substr(at + 1)));
        }
    }
    return bytes;
}

struct Dll {
    const char *file;
    std::vector<std::string> defs;
};

TEST(I686CallingConvention, EveryExportPopsTheBytesItsDeclarationPushes) {
    const std::string bin = locations::Win32Bin(), objdump = locations::I686Objdump();
    ASSERT_FALSE(bin.empty()) << locations::HowToConfigure();
    ASSERT_FALSE(objdump.empty()) << "i686-w64-mingw32-objdump was not found when the native build was configured";
    const auto declared = ReadAbiTable(bin + "/abi-table.bin");
    ASSERT_FALSE(declared.empty()) << "no declarations in " << bin << "/abi-table.bin";
    const std::string src = locations::SourceDir();
    const Dll dlls[] = {{"ZKLIB.dll", decl::DefFiles(src + "/res/ZKLIB.def", src + "/res/exports")},
                        {"zkhost.dll", {src + "/host/win/zkhost.def"}}};
    for (const Dll &dll : dlls) {
        std::string error;
        const auto image = pe::load(bin + "/" + dll.file, error);
        ASSERT_TRUE(image) << error;
        const auto listed = DefBytes(dll.defs);
        const auto blocks = disassemble(objdump, bin + "/" + dll.file);
        ASSERT_FALSE(blocks.empty()) << "no disassembly of " << dll.file;
        int checked = 0;
        for (const pe::Export &e : image->exports) {
            const auto d = declared.find(e.name);
            const auto n = listed.find(e.name);
            if (d == declared.end() || n == listed.end()) {
                ADD_FAILURE() << dll.file << " exports " << e.name << ", which the .def or the headers lack";
                continue;
            }
            EXPECT_EQ(d->second.bytes, n->second) << e.name << ": the header's declaration pushes " << d->second.bytes
                                                  << " bytes, the .def says " << n->second;
            const uint32_t expected = d->second.bytes + (d->second.hidden ? 4 : 0);
            bool tailCall = false;
            const std::set<uint32_t> pops = PopsOf(blocks, image->imageBase + e.rva, tailCall);
            if (pops.empty() && tailCall) {
                ++checked;
                continue;
            }
            EXPECT_EQ(pops, std::set<uint32_t>{expected})
                << dll.file << " " << e.name << " pops " << ::testing::PrintToString(pops) << ", its declaration "
                << expected;
            ++checked;
        }
        EXPECT_EQ(checked, static_cast<int>(listed.size())) << dll.file;
    }
}

} // namespace
