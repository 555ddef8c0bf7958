// The names that the public headers declare and the .def files export.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace decl {

// Functions declared with the ZKAPI calling convention in a C header text,
// in order: "T ZKAPI Name(" with comments left out.
std::vector<std::string> ZkapiFunctions(const std::string &header);

// One line of the EXPORTS section of a .def file.
struct DefEntry {
    std::string exported; // the name in the export table
    std::string internal; // the symbol it stands for ("Name@N"); empty if none given
    int line = 0;
};

// The EXPORTS entries of a .def text ("Name@N == Name" or "Name"). A part
// of a .def (an area's own list, joined to the head by the build) is all
// entries, without the EXPORTS keyword.
std::vector<DefEntry> DefEntries(const std::string &def, bool part = false);

// The whole text of a file, or nothing if it cannot be read.
std::optional<std::string> ReadText(const std::string &path);

// A header's text with its quoted includes of files beside it written in
// place, as the compiler sees them.
std::optional<std::string> ReadHeaderTree(const std::string &path);

// The files that make up a .def: the head, then the parts in its folder of
// parts (if given and present) in name order, as the build joins them.
std::vector<std::string> DefFiles(const std::string &head, const std::string &partsDir);

} // namespace decl
