#include "declarations.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace decl {
namespace {

// Comments may mention ZKAPI functions that are not declared: blank them,
// keeping line breaks.
std::string WithoutComments(const std::string &text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        if (text.compare(i, 2, "/*") == 0) {
            const std::size_t end = text.find("*/", i + 2);
            const std::size_t stop = end == std::string::npos ? text.size() : end + 2;
            for (; i < stop; ++i)
                out += text[i] == '\n' ? '\n' : ' ';
        } else if (text.compare(i, 2, "//") == 0) {
            while (i < text.size() && text[i] != '\n')
                ++i;
        } else {
            out += text[i++];
        }
    }
    return out;
}

std::string trim(const std::string &s) {
    std::size_t a = 0, b = s.size();
    while (a < b && std::isspace(static_cast<unsigned char>(s[a])))
        ++a;
    while (b > a && std::isspace(static_cast<unsigned char>(s[b - 1])))
        --b;
    return s.substr(a, b - a);
}

} // namespace

std::vector<std::string> ZkapiFunctions(const std::string &header) {
    static const std::regex declaration(R"(\bZKAPI\s+([A-Za-z_][A-Za-z0-9_]*)\s*\()");
    const std::string text = WithoutComments(header);
    std::vector<std::string> names;
    for (std::sregex_iterator it(text.begin(), text.end(), declaration), end; it != end; ++it)
        names.push_back((*it)[1].str());
    return names;
}

std::vector<DefEntry> DefEntries(const std::string &def, bool part) {
    static const std::regex entry(R"(^([A-Za-z_][A-Za-z0-9_@?$]*)(\s*==\s*([A-Za-z_][A-Za-z0-9_@?$]*))?(\s+.*)?$)");
    std::vector<DefEntry> entries;
    std::istringstream in(def);
    std::string raw;
    bool inExports = part;
    int number = 0;
    while (std::getline(in, raw)) {
        ++number;
        std::string line = trim(raw.substr(0, raw.find(';')));
        if (line.empty())
            continue;
        // Any other section keyword ends the EXPORTS list.
        const std::string keyword = line.substr(0, line.find_first_of(" \t"));
        if (keyword == "EXPORTS") {
            inExports = true;
            line = trim(line.substr(keyword.size()));
            if (line.empty())
                continue;
        } else if (keyword == "LIBRARY" || keyword == "NAME" || keyword == "IMPORTS" || keyword == "SECTIONS" ||
                   keyword == "HEAPSIZE" || keyword == "STACKSIZE" || keyword == "VERSION" ||
                   keyword == "DESCRIPTION") {
            inExports = false;
            continue;
        }
        if (!inExports)
            continue;
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

std::optional<std::string> ReadText(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::ostringstream out;
    out << file.rdbuf();
    return out.str();
}

std::optional<std::string> ReadHeaderTree(const std::string &path) {
    static const std::regex include(R"re(^[ \t]*#[ \t]*include[ \t]*"([^"]+)"[^\n]*$)re");
    auto text = ReadText(path);
    if (!text)
        return std::nullopt;
    const std::filesystem::path dir = std::filesystem::path(path).parent_path();
    std::istringstream in(*text);
    std::string out, line;
    while (std::getline(in, line)) {
        std::smatch m;
        if (std::regex_match(line, m, include) && std::filesystem::exists(dir / m[1].str())) {
            auto inner = ReadHeaderTree((dir / m[1].str()).string());
            if (!inner)
                return std::nullopt;
            out += *inner;
        } else {
            out += line;
        }
        out += '\n';
    }
    return out;
}

std::vector<std::string> DefFiles(const std::string &head, const std::string &partsDir) {
    std::vector<std::string> files{head};
    std::vector<std::string> parts;
    std::error_code error;
    if (!partsDir.empty() && std::filesystem::is_directory(partsDir, error)) {
        for (const auto &entry : std::filesystem::directory_iterator(partsDir, error)) {
            if (entry.path().extension() == ".def")
                parts.push_back(entry.path().string());
        }
    }
    std::sort(parts.begin(), parts.end());
    files.insert(files.end(), parts.begin(), parts.end());
    return files;
}

} // namespace decl
