#include "declarations.h"

#include <cctype>
#include <fstream>
#include <regex>
#include <sstream>

namespace decl {
namespace {

// Comments may mention ZKAPI functions that are not declared: blank them,
// keeping line breaks.
std::string withoutComments(const std::string &text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        if (text.compare(i, 2, "/*") == 0) {
            const std::size_t end = text.find("*/", i + 2);
            const std::size_t stop = end == std::string::npos ? text.size() : end + 2;
            for (; i < stop; ++i) {
                out += text[i] == '\n' ? '\n' : ' ';
            }
        } else if (text.compare(i, 2, "//") == 0) {
            while (i < text.size() && text[i] != '\n') {
                ++i;
            }
        } else {
            out += text[i++];
        }
    }
    return out;
}

std::string trim(const std::string &s) {
    std::size_t a = 0, b = s.size();
    while (a < b && std::isspace(static_cast<unsigned char>(s[a]))) {
        ++a;
    }
    while (b > a && std::isspace(static_cast<unsigned char>(s[b - 1]))) {
        --b;
    }
    return s.substr(a, b - a);
}

} // namespace

std::vector<std::string> zkapiFunctions(const std::string &header) {
    static const std::regex declaration(R"(\bZKAPI\s+([A-Za-z_][A-Za-z0-9_]*)\s*\()");
    const std::string text = withoutComments(header);
    std::vector<std::string> names;
    for (std::sregex_iterator it(text.begin(), text.end(), declaration), end; it != end; ++it) {
        names.push_back((*it)[1].str());
    }
    return names;
}

std::vector<DefEntry> defEntries(const std::string &def) {
    static const std::regex entry(
        R"(^([A-Za-z_][A-Za-z0-9_@?$]*)(\s*==\s*([A-Za-z_][A-Za-z0-9_@?$]*))?(\s+.*)?$)");
    std::vector<DefEntry> entries;
    std::istringstream in(def);
    std::string raw;
    bool inExports = false;
    int number = 0;
    while (std::getline(in, raw)) {
        ++number;
        std::string line = trim(raw.substr(0, raw.find(';')));
        if (line.empty()) {
            continue;
        }
        // Any other section keyword ends the EXPORTS list.
        const std::string keyword = line.substr(0, line.find_first_of(" \t"));
        if (keyword == "EXPORTS") {
            inExports = true;
            line = trim(line.substr(keyword.size()));
            if (line.empty()) {
                continue;
            }
        } else if (keyword == "LIBRARY" || keyword == "NAME" || keyword == "IMPORTS" ||
                   keyword == "SECTIONS" || keyword == "HEAPSIZE" || keyword == "STACKSIZE" ||
                   keyword == "VERSION" || keyword == "DESCRIPTION") {
            inExports = false;
            continue;
        }
        if (!inExports) {
            continue;
        }
        std::smatch m;
        DefEntry e;
        e.line = number;
        if (std::regex_match(line, m, entry)) {
            if (m[3].matched) {
                e.internal = m[1].str();
                e.exported = m[3].str();
            } else {
                e.exported = m[1].str();
            }
        } else {
            e.exported = line; // kept as is: the checks name it
        }
        entries.push_back(std::move(e));
    }
    return entries;
}

std::optional<std::string> readText(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    std::ostringstream out;
    out << file.rdbuf();
    return out.str();
}

} // namespace decl
