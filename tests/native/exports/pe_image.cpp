#include "pe_image.h"

#include <fstream>

namespace pe {
namespace {

struct Section {
    std::uint32_t virtualAddress;
    std::uint32_t virtualSize;
    std::uint32_t rawOffset;
    std::uint32_t rawSize;
};

struct Directory {
    std::uint32_t rva = 0;
    std::uint32_t size = 0;
};

// Little-endian reads that fail instead of reading past the end.
class Bytes {
public:
    explicit Bytes(const std::vector<std::uint8_t> &bytes) : b_(bytes) {}

    bool has(std::size_t offset, std::size_t count) const { return offset <= b_.size() && count <= b_.size() - offset; }
    bool u16(std::size_t offset, std::uint16_t &v) const {
        if (!has(offset, 2))
            return false;
        v = static_cast<std::uint16_t>(b_[offset] | b_[offset + 1] << 8);
        return true;
    }
    bool u32(std::size_t offset, std::uint32_t &v) const {
        std::uint16_t lo = 0, hi = 0;
        if (!u16(offset, lo) || !u16(offset + 2, hi))
            return false;
        v = lo | static_cast<std::uint32_t>(hi) << 16;
        return true;
    }
    bool u64(std::size_t offset, std::uint64_t &v) const {
        std::uint32_t lo = 0, hi = 0;
        if (!u32(offset, lo) || !u32(offset + 4, hi))
            return false;
        v = lo | static_cast<std::uint64_t>(hi) << 32;
        return true;
    }
    // A NUL-terminated text of at most `limit` characters.
    bool text(std::size_t offset, std::string &out, std::size_t limit = 4096) const {
        out.clear();
        for (std::size_t i = offset; i < b_.size() && out.size() <= limit; ++i) {
            if (!b_[i])
                return true;
            out += static_cast<char>(b_[i]);
        }
        return false;
    }

private:
    const std::vector<std::uint8_t> &b_;
};

class Parser {
public:
    Parser(const std::vector<std::uint8_t> &bytes, std::string &error)
        : in_(bytes), error_(error), limit_(bytes.size()) {}

    std::optional<Image> run() {
        Image image;
        Directory exports, imports;
        if (!headers(image, exports, imports))
            return std::nullopt;
        if (exports.rva && !ReadExports(image, exports))
            return std::nullopt;
        if (imports.rva && !ReadImports(image, imports))
            return std::nullopt;
        return image;
    }

private:
    bool fail(const std::string &why) {
        error_ = why;
        return false;
    }

    bool headers(Image &image, Directory &exports, Directory &imports) {
        std::uint16_t mz = 0;
        std::uint32_t peOffset = 0, signature = 0;
        if (!in_.u16(0, mz) || mz != 0x5A4D || !in_.u32(0x3C, peOffset))
            return fail("not an MZ file");
        if (!in_.u32(peOffset, signature) || signature != 0x00004550)
            return fail("no PE signature");
        const std::size_t coff = static_cast<std::size_t>(peOffset) + 4;
        std::uint16_t sectionCount = 0, optionalSize = 0, magic = 0;
        if (!in_.u16(coff, image.machine) || !in_.u16(coff + 2, sectionCount) || !in_.u16(coff + 16, optionalSize))
            return fail("truncated COFF header");
        const std::size_t optional = coff + 20;
        if (!in_.u16(optional, magic))
            return fail("truncated optional header");
        if (magic != 0x10B && magic != 0x20B)
            return fail("unknown optional header magic");
        image.pe32plus = magic == 0x20B;
        if (image.pe32plus) {
            in_.u64(optional + 24, image.imageBase);
        } else {
            std::uint32_t base = 0;
            in_.u32(optional + 28, base);
            image.imageBase = base;
        }
        const std::size_t countAt = optional + (image.pe32plus ? 108 : 92);
        const std::size_t directoriesAt = countAt + 4;
        std::uint32_t directoryCount = 0;
        if (!in_.u32(countAt, directoryCount))
            return fail("truncated optional header");
        // Only the first two directories are read: exports and imports.
        if (directoryCount > 0 && (!in_.u32(directoriesAt, exports.rva) || !in_.u32(directoriesAt + 4, exports.size)))
            return fail("truncated data directories");
        if (directoryCount > 1 &&
            (!in_.u32(directoriesAt + 8, imports.rva) || !in_.u32(directoriesAt + 12, imports.size))) {
            return fail("truncated data directories");
        }
        if (directoriesAt + 8ull * directoryCount > optional + optionalSize)
            return fail("data directories overrun the optional header");
        const std::size_t table = optional + optionalSize;
        for (std::uint16_t i = 0; i < sectionCount; ++i) {
            const std::size_t at = table + 40u * i;
            Section s{};
            if (!in_.u32(at + 8, s.virtualSize) || !in_.u32(at + 12, s.virtualAddress) ||
                !in_.u32(at + 16, s.rawSize) || !in_.u32(at + 20, s.rawOffset)) {
                return fail("truncated section table");
            }
            sections_.push_back(s);
        }
        return true;
    }

    // The file offset of `count` bytes at `rva`, all inside one section's
    // file data.
    bool OffsetOf(std::uint32_t rva, std::size_t count, std::size_t &offset) const {
        for (const Section &s : sections_) {
            if (rva < s.virtualAddress)
                continue;
            const std::uint64_t inside = rva - s.virtualAddress;
            const std::uint64_t size = s.virtualSize > s.rawSize ? s.rawSize : s.virtualSize;
            const std::uint64_t span = s.virtualSize ? size : s.rawSize;
            if (inside + count <= span) {
                offset = static_cast<std::size_t>(s.rawOffset + inside);
                return in_.has(offset, count);
            }
        }
        return false;
    }

    bool TextAt(std::uint32_t rva, std::string &out) const {
        std::size_t offset = 0;
        return OffsetOf(rva, 1, offset) && in_.text(offset, out);
    }

    bool ReadExports(Image &image, const Directory &dir) {
        std::size_t at = 0;
        if (!OffsetOf(dir.rva, 40, at))
            return fail("export directory outside the file");
        std::uint32_t nameRva = 0, base = 0, functionCount = 0, nameCount = 0;
        std::uint32_t functionsRva = 0, namesRva = 0, ordinalsRva = 0;
        in_.u32(at + 12, nameRva);
        in_.u32(at + 16, base);
        in_.u32(at + 20, functionCount);
        in_.u32(at + 24, nameCount);
        in_.u32(at + 28, functionsRva);
        in_.u32(at + 32, namesRva);
        in_.u32(at + 36, ordinalsRva);
        if (nameRva && !TextAt(nameRva, image.exportDllName))
            return fail("export directory name outside the file");
        std::size_t functions = 0, names = 0, ordinals = 0;
        // The counts are checked against the file before anything is sized by them.
        if ((functionCount && !OffsetOf(functionsRva, 4ull * functionCount, functions)) ||
            (nameCount &&
             (!OffsetOf(namesRva, 4ull * nameCount, names) || !OffsetOf(ordinalsRva, 2ull * nameCount, ordinals)))) {
            return fail("export tables outside the file");
        }
        std::vector<bool> named(functionCount, false);
        for (std::uint32_t i = 0; i < nameCount; ++i) {
            std::uint32_t rva = 0;
            std::uint16_t index = 0;
            in_.u32(names + 4ull * i, rva);
            in_.u16(ordinals + 2ull * i, index);
            Export e;
            if (!TextAt(rva, e.name))
                return fail("export name outside the file");
            if (index >= functionCount)
                return fail("export name " + e.name + " has no address");
            std::uint32_t address = 0;
            in_.u32(functions + 4ull * index, address);
            e.ordinal = base + index;
            e.rva = address;
            e.forwarded = address >= dir.rva && address - dir.rva < dir.size;
            named[index] = true;
            image.exports.push_back(std::move(e));
        }
        for (std::uint32_t i = 0; i < functionCount; ++i) {
            std::uint32_t address = 0;
            in_.u32(functions + 4ull * i, address);
            if (address && !named[i])
                ++image.unnamedExports;
        }
        return true;
    }

    bool ReadImports(Image &image, const Directory &dir) {
        std::uint32_t rva = dir.rva;
        for (std::size_t n = 0; n <= limit_ / 20; ++n, rva += 20) {
            std::size_t at = 0;
            if (!OffsetOf(rva, 20, at))
                return fail("import directory outside the file");
            std::uint32_t lookup = 0, nameRva = 0, thunks = 0;
            in_.u32(at, lookup);
            in_.u32(at + 12, nameRva);
            in_.u32(at + 16, thunks);
            if (!lookup && !nameRva && !thunks) {
                return true; // the terminating entry
            }
            ImportedDll dll;
            if (!TextAt(nameRva, dll.dll))
                return fail("imported DLL name outside the file");
            if (!ReadThunks(image.pe32plus, lookup ? lookup : thunks, dll))
                return false;
            image.imports.push_back(std::move(dll));
        }
        return fail("import directory without an end");
    }

    bool ReadThunks(bool wide, std::uint32_t rva, ImportedDll &dll) {
        const unsigned step = wide ? 8 : 4;
        for (std::size_t n = 0; n <= limit_ / step; ++n, rva += step) {
            std::size_t at = 0;
            std::uint64_t entry = 0;
            if (!OffsetOf(rva, step, at))
                return fail("import table of " + dll.dll + " outside the file");
            if (wide) {
                in_.u64(at, entry);
            } else {
                std::uint32_t narrow = 0;
                in_.u32(at, narrow);
                entry = narrow;
            }
            if (!entry)
                return true;
            const std::uint64_t byOrdinal = wide ? 1ull << 63 : 1ull << 31;
            if (entry & byOrdinal) {
                dll.ordinals.push_back(static_cast<std::uint32_t>(entry & 0xFFFF));
                continue;
            }
            std::string name;
            // Hint (two bytes), then the name.
            if (entry > 0xFFFFFFFFull - 2 || !TextAt(static_cast<std::uint32_t>(entry) + 2, name))
                return fail("imported name from " + dll.dll + " outside the file");
            dll.names.push_back(std::move(name));
        }
        return fail("import table of " + dll.dll + " without an end");
    }

    Bytes in_;
    std::string &error_;
    // Sections may map the same file bytes at many addresses: table walks
    // stop after as many entries as the file could hold, aliasing or not.
    std::size_t limit_;
    std::vector<Section> sections_;
};

} // namespace

std::optional<Image> parse(const std::vector<std::uint8_t> &bytes, std::string &error) {
    error.clear();
    return Parser(bytes, error).run();
}

std::optional<Image> load(const std::string &path, std::string &error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open " + path;
        return std::nullopt;
    }
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    file.seekg(0, std::ios::beg);
    std::vector<std::uint8_t> bytes(size > 0 ? static_cast<std::size_t>(size) : 0);
    if (!file.read(reinterpret_cast<char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()))) {
        error = "cannot read " + path;
        return std::nullopt;
    }
    auto image = parse(bytes, error);
    if (!image)
        error = path + ": " + error;
    return image;
}

} // namespace pe
