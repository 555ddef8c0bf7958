// A small reader of the export and import tables of PE files (DLLs and
// programs for 32-bit and 64-bit Windows), portable and bounds-checked:
// malformed input gives an error text, never a read outside the bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace pe {

constexpr std::uint16_t kMachineI386 = 0x014C;
constexpr std::uint16_t kMachineAmd64 = 0x8664;

struct Export {
    std::string name;
    std::uint32_t ordinal = 0;
    bool forwarded = false; // the address points into the export directory
    std::uint32_t rva = 0;  // the function's address, relative to the image base
};

struct ImportedDll {
    std::string dll;
    std::vector<std::string> names;      // imported by name
    std::vector<std::uint32_t> ordinals; // imported by ordinal
};

struct Image {
    std::uint16_t machine = 0;
    bool pe32plus = false;
    std::uint64_t imageBase = 0;
    std::string exportDllName;        // the name in the export directory
    std::vector<Export> exports;      // named exports
    std::uint32_t unnamedExports = 0; // addresses reachable by ordinal only
    std::vector<ImportedDll> imports;
};

// Reads the tables from the bytes of a PE file; on failure gives nothing
// and says why in `error`.
std::optional<Image> parse(const std::vector<std::uint8_t> &bytes, std::string &error);

// Reads the file at `path` and parses it.
std::optional<Image> load(const std::string &path, std::string &error);

} // namespace pe
