// The PE reader on small images made here byte by byte.
#include "pe_image.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t kSectionRva = 0x1000;
constexpr std::uint32_t kSectionFile = 0x200;

void put16(Bytes &b, std::size_t at, std::uint16_t v) {
    if (b.size() < at + 2) {
        b.resize(at + 2);
    }
    b[at] = static_cast<std::uint8_t>(v);
    b[at + 1] = static_cast<std::uint8_t>(v >> 8);
}

void put32(Bytes &b, std::size_t at, std::uint32_t v) {
    put16(b, at, static_cast<std::uint16_t>(v));
    put16(b, at + 2, static_cast<std::uint16_t>(v >> 16));
}

void put64(Bytes &b, std::size_t at, std::uint64_t v) {
    put32(b, at, static_cast<std::uint32_t>(v));
    put32(b, at + 4, static_cast<std::uint32_t>(v >> 32));
}

// An image with one section that holds whatever tables a test adds.
class Builder {
public:
    explicit Builder(bool wide) : wide_(wide) {}

    // Export directory for `names` (ordinal base 5); `unnamed` more
    // addresses without names; the first `forwarded` names point into the
    // directory itself.
    Builder &exports(const std::vector<std::string> &names, int unnamed = 0, int forwarded = 0) {
        const std::size_t dir = alloc(40);
        const std::uint32_t count = static_cast<std::uint32_t>(names.size()) + unnamed;
        const std::size_t functions = alloc(4 * count);
        const std::size_t nameTable = alloc(4 * names.size());
        const std::size_t ordinals = alloc(2 * names.size());
        put32(s_, dir + 12, text("TEST.dll"));
        put32(s_, dir + 16, 5);
        put32(s_, dir + 20, count);
        put32(s_, dir + 24, static_cast<std::uint32_t>(names.size()));
        put32(s_, dir + 28, rva(functions));
        put32(s_, dir + 32, rva(nameTable));
        put32(s_, dir + 36, rva(ordinals));
        for (std::size_t i = 0; i < count; ++i) {
            const bool forward = static_cast<int>(i) < forwarded;
            put32(s_, functions + 4 * i, forward ? rva(dir) + 4 : 0x8000 + static_cast<std::uint32_t>(i));
        }
        for (std::size_t i = 0; i < names.size(); ++i) {
            // Names in reverse address order: the ordinal table must be followed.
            const std::uint16_t index = static_cast<std::uint16_t>(names.size() - 1 - i);
            put32(s_, nameTable + 4 * i, text(names[i]));
            put16(s_, ordinals + 2 * i, index);
        }
        exportRva_ = rva(dir);
        exportSize_ = static_cast<std::uint32_t>(s_.size() - dir);
        return *this;
    }

    struct Dll {
        std::string name;
        std::vector<std::string> names;
        std::vector<std::uint16_t> ordinals;
    };

    Builder &imports(const std::vector<Dll> &dlls) {
        const std::size_t table = alloc(20 * (dlls.size() + 1));
        const unsigned step = wide_ ? 8 : 4;
        for (std::size_t d = 0; d < dlls.size(); ++d) {
            const Dll &dll = dlls[d];
            const std::size_t count = dll.names.size() + dll.ordinals.size();
            const std::size_t lookup = alloc(step * (count + 1));
            std::size_t slot = 0;
            for (const std::string &name : dll.names) {
                // Hint (two bytes) and name together.
                const std::size_t hint = s_.size();
                s_.insert(s_.end(), {0, 0});
                text(name);
                entry(lookup + step * slot++, rva(hint));
            }
            for (std::uint16_t ordinal : dll.ordinals) {
                entry(lookup + step * slot++, (wide_ ? 1ull << 63 : 1ull << 31) | ordinal);
            }
            put32(s_, table + 20 * d, rva(lookup));
            put32(s_, table + 20 * d + 12, text(dll.name));
            put32(s_, table + 20 * d + 16, rva(lookup));
        }
        importRva_ = rva(table);
        return *this;
    }

    // Breaks the terminating zero entry of the first DLL's lookup table by
    // filling the rest of the section with non-zero bytes.
    Builder &unterminatedImports() {
        const std::size_t table = alloc(20);
        const std::size_t nameRva = text("LOOP.dll");
        const std::size_t lookup = s_.size();
        s_.resize(s_.size() + 64, 0x11);
        put32(s_, table, rva(lookup));
        put32(s_, table + 12, static_cast<std::uint32_t>(nameRva));
        importRva_ = rva(table);
        return *this;
    }

    // Raw access for corrupting a built table.
    Bytes &section() { return s_; }
    std::uint32_t exportRva() const { return exportRva_; }

    Bytes build() const {
        Bytes b(kSectionFile, 0);
        b[0] = 'M';
        b[1] = 'Z';
        put32(b, 0x3C, 0x40);
        put32(b, 0x40, 0x00004550);
        const std::uint16_t optionalSize = wide_ ? 240 : 224;
        put16(b, 0x44, wide_ ? pe::kMachineAmd64 : pe::kMachineI386);
        put16(b, 0x46, 1);
        put16(b, 0x54, optionalSize);
        const std::size_t optional = 0x58;
        put16(b, optional, wide_ ? 0x20B : 0x10B);
        const std::size_t countAt = optional + (wide_ ? 108 : 92);
        put32(b, countAt, 16);
        put32(b, countAt + 4, exportRva_);
        put32(b, countAt + 8, exportSize_);
        put32(b, countAt + 12, importRva_);
        put32(b, countAt + 16, importRva_ ? 40 : 0);
        const std::size_t sectionTable = optional + optionalSize;
        const char name[] = ".data";
        for (std::size_t i = 0; i < sizeof name - 1; ++i) {
            b[sectionTable + i] = static_cast<std::uint8_t>(name[i]);
        }
        put32(b, sectionTable + 8, static_cast<std::uint32_t>(s_.size()));
        put32(b, sectionTable + 12, kSectionRva);
        put32(b, sectionTable + 16, static_cast<std::uint32_t>(s_.size()));
        put32(b, sectionTable + 20, kSectionFile);
        b.insert(b.end(), s_.begin(), s_.end());
        return b;
    }

private:
    std::size_t alloc(std::size_t n) {
        const std::size_t at = s_.size();
        s_.resize(at + n + (4 - n % 4) % 4, 0);
        return at;
    }
    std::uint32_t rva(std::size_t at) const { return kSectionRva + static_cast<std::uint32_t>(at); }
    std::uint32_t text(const std::string &t) {
        const std::size_t at = s_.size();
        s_.insert(s_.end(), t.begin(), t.end());
        s_.push_back(0);
        return rva(at);
    }
    void entry(std::size_t at, std::uint64_t v) {
        if (wide_) {
            put64(s_, at, v);
        } else {
            put32(s_, at, static_cast<std::uint32_t>(v));
        }
    }

    bool wide_;
    Bytes s_;
    std::uint32_t exportRva_ = 0;
    std::uint32_t exportSize_ = 0;
    std::uint32_t importRva_ = 0;
};

std::vector<std::string> names(const pe::Image &image) {
    std::vector<std::string> out;
    for (const pe::Export &e : image.exports) {
        out.push_back(e.name);
    }
    return out;
}

class PeWidth : public ::testing::TestWithParam<bool> {};

TEST_P(PeWidth, ReadsNamedExportsWithTheirOrdinals) {
    const Bytes file = Builder(GetParam()).exports({"Alpha", "Beta", "Gamma"}).build();
    std::string error;
    const auto image = pe::parse(file, error);
    ASSERT_TRUE(image) << error;
    EXPECT_EQ(GetParam() ? pe::kMachineAmd64 : pe::kMachineI386, image->machine);
    EXPECT_EQ(GetParam(), image->pe32plus);
    EXPECT_EQ("TEST.dll", image->exportDllName);
    EXPECT_EQ((std::vector<std::string>{"Alpha", "Beta", "Gamma"}), names(*image));
    // Alpha is bound to the last address: ordinal base 5 + index 2.
    EXPECT_EQ(7u, image->exports[0].ordinal);
    EXPECT_EQ(5u, image->exports[2].ordinal);
    EXPECT_EQ(0u, image->unnamedExports);
    EXPECT_FALSE(image->exports[0].forwarded);
    EXPECT_TRUE(image->imports.empty());
}

TEST_P(PeWidth, CountsOrdinalOnlyExportsAndSeesForwarders) {
    const Bytes file = Builder(GetParam()).exports({"A", "B"}, 2, 1).build();
    std::string error;
    const auto image = pe::parse(file, error);
    ASSERT_TRUE(image) << error;
    EXPECT_EQ(2u, image->unnamedExports);
    // Address 0 (index 0) is forwarded and belongs to "B", the last name.
    EXPECT_TRUE(image->exports[1].forwarded);
    EXPECT_FALSE(image->exports[0].forwarded);
}

TEST_P(PeWidth, ReadsImportsByNameAndByOrdinal) {
    const Bytes file = Builder(GetParam())
                           .imports({{"zkhost.dll", {"HostStrAlloc", "HostHalt"}, {}},
                                     {"KERNEL32.dll", {"OutputDebugStringW"}, {7, 9}}})
                           .build();
    std::string error;
    const auto image = pe::parse(file, error);
    ASSERT_TRUE(image) << error;
    ASSERT_EQ(2u, image->imports.size());
    EXPECT_EQ("zkhost.dll", image->imports[0].dll);
    EXPECT_EQ((std::vector<std::string>{"HostStrAlloc", "HostHalt"}), image->imports[0].names);
    EXPECT_TRUE(image->imports[0].ordinals.empty());
    EXPECT_EQ((std::vector<std::string>{"OutputDebugStringW"}), image->imports[1].names);
    EXPECT_EQ((std::vector<std::uint32_t>{7, 9}), image->imports[1].ordinals);
    EXPECT_TRUE(image->exports.empty());
}

TEST_P(PeWidth, EveryTruncationFailsCleanly) {
    const Bytes file = Builder(GetParam())
                           .exports({"Alpha", "Beta"})
                           .imports({{"x.dll", {"F"}, {3}}})
                           .build();
    std::string error;
    ASSERT_TRUE(pe::parse(file, error)) << error;
    for (std::size_t n = 0; n < file.size(); ++n) {
        const Bytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(n));
        EXPECT_FALSE(pe::parse(part, error)) << "cut at " << n;
        EXPECT_FALSE(error.empty()) << "cut at " << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Pe, PeWidth, ::testing::Values(false, true),
                         [](const auto &info) { return info.param ? "PE32plus" : "PE32"; });

TEST(PeImage, RejectsWhatIsNotAPeFile) {
    std::string error;
    EXPECT_FALSE(pe::parse(Bytes{}, error));
    EXPECT_EQ("not an MZ file", error);
    Bytes file = Builder(true).build();
    file[0x41] = 'X';
    EXPECT_FALSE(pe::parse(file, error));
    EXPECT_EQ("no PE signature", error);
    file = Builder(true).build();
    put16(file, 0x58, 0x107);
    EXPECT_FALSE(pe::parse(file, error));
    EXPECT_EQ("unknown optional header magic", error);
}

TEST(PeImage, ImpossibleCountsAreRefused) {
    Builder builder(true);
    builder.exports({"A"});
    // A name count that the file cannot hold.
    put32(builder.section(), builder.exportRva() - kSectionRva + 24, 0x40000000);
    std::string error;
    EXPECT_FALSE(pe::parse(builder.build(), error));
    EXPECT_EQ("export tables outside the file", error);
}

TEST(PeImage, NameOrdinalBeyondTheAddressesIsRefused) {
    Builder builder(false);
    builder.exports({"A", "B"});
    const std::size_t dir = builder.exportRva() - kSectionRva;
    put32(builder.section(), dir + 20, 1); // one address for two names
    std::string error;
    EXPECT_FALSE(pe::parse(builder.build(), error));
    EXPECT_NE(std::string::npos, error.find("has no address")) << error;
}

TEST(PeImage, AnImportTableWithoutItsEndIsRefused) {
    std::string error;
    EXPECT_FALSE(pe::parse(Builder(false).unterminatedImports().build(), error));
    EXPECT_NE(std::string::npos, error.find("LOOP.dll")) << error;
}

TEST(PeImage, LoadNamesAFileThatCannotBeOpened) {
    std::string error;
    EXPECT_FALSE(pe::load("/nonexistent/ZKLIB.dll", error));
    EXPECT_EQ("cannot open /nonexistent/ZKLIB.dll", error);
}

} // namespace
