// The names that the public headers declare and the .def files export.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace decl {

// Functions declared with the ZKAPI calling convention in a C header text,
// in order: "T ZKAPI Name(" with comments left out.
std::vector<std::string> zkapiFunctions(const std::string &header);

// One line of the EXPORTS section of a .def file.
struct DefEntry {
    std::string exported;  // the name in the export table
    std::string internal;  // the symbol it stands for ("Name@N"); empty if none given
    int line = 0;
};

// The EXPORTS entries of a .def text ("Name@N == Name" or "Name").
std::vector<DefEntry> defEntries(const std::string &def);

// The whole text of a file, or nothing if it cannot be read.
std::optional<std::string> readText(const std::string &path);

} // namespace decl
