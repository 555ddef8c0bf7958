// The header and .def readers, and the agreement of the .def files with
// the public headers.
#include "declarations.h"
#include "locations.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace {

using Names = std::vector<std::string>;

// The readers in one smoke test each: a name in a comment is no declaration,
// and only lines inside EXPORTS are entries.
TEST(Declarations, ReadersSkipCommentsAndOtherSections) {
    const std::string header = "/* int32_t ZKAPI InAComment(void); */\n"
                               "// HostStr ZKAPI InALineComment(void);\n"
                               "int32_t ZKAPI First(const wchar_t *text);\n"
                               "HostStr    ZKAPI\n    Second (void);\n"
                               "int32_t __stdcall NotZkapi(void);\n";
    EXPECT_EQ((Names{"First", "Second"}), decl::ZkapiFunctions(header));
    const auto entries =
        decl::DefEntries("LIBRARY x\nNotAnExport\nEXPORTS\n  Alpha@4 == Alpha ; note\nBeta\nSECTIONS\n.data READ\n");
    ASSERT_EQ(2u, entries.size());
    EXPECT_EQ("Alpha", entries[0].exported);
    EXPECT_EQ("Alpha@4", entries[0].internal);
    EXPECT_EQ(4, entries[0].line);
    EXPECT_EQ("Beta", entries[1].exported);
    EXPECT_EQ("", entries[1].internal);
}

std::string source(const std::string &relative) { return locations::SourceDir() + "/" + relative; }

Names ReadHeader(const std::string &relative) {
    const auto text = decl::ReadHeaderTree(source(relative));
    EXPECT_TRUE(text) << "cannot read " << source(relative);
    return text ? decl::ZkapiFunctions(*text) : Names{};
}

// One .def file as the build joins it: its head and its parts.
struct DefSource {
    std::string head;
    std::string parts; // empty: no parts
};

const DefSource kZklibDef{"res/ZKLIB.def", "res/exports"};
const DefSource kZkhostDef{"host/win/zkhost.def", ""};

struct NamedEntry {
    std::string file;
    decl::DefEntry entry;
};

std::vector<NamedEntry> ReadDef(const DefSource &def) {
    std::vector<NamedEntry> out;
    const auto files = decl::DefFiles(source(def.head), def.parts.empty() ? "" : source(def.parts));
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto text = decl::ReadText(files[i]);
        EXPECT_TRUE(text) << "cannot read " << files[i];
        if (text) {
            for (decl::DefEntry &e : decl::DefEntries(*text, i > 0))
                out.push_back({files[i], std::move(e)});
        }
    }
    return out;
}

// Every entry of a .def is "Name@N == Name": stdcall inside on i686, the
// plain name outside; each name once over the head and all parts.
void ExpectStdcallForm(const DefSource &def) {
    static const std::regex decorated(R"(([A-Za-z_][A-Za-z0-9_]*)@([0-9]+))");
    const auto entries = ReadDef(def);
    EXPECT_FALSE(entries.empty()) << def.head << " exports nothing";
    std::set<std::string> seen;
    for (const NamedEntry &n : entries) {
        const decl::DefEntry &e = n.entry;
        std::smatch m;
        EXPECT_TRUE(std::regex_match(e.internal, m, decorated) && m[1] == e.exported)
            << n.file << ":" << e.line << ": \"" << e.exported << "\" is not of the form Name@N == Name";
        EXPECT_TRUE(seen.insert(e.exported).second)
            << n.file << ":" << e.line << ": " << e.exported << " is listed twice";
    }
}

TEST(DefFiles, AreInTheStdcallForm) {
    ExpectStdcallForm(kZklibDef);
    ExpectStdcallForm(kZkhostDef);
}

TEST(DefFiles, NamesAreDeclaredInTheirHeaders) {
    const struct {
        const DefSource &def;
        std::vector<std::string> headers;
    } defs[] = {{kZklibDef, {"include/zklib.h"}}, {kZkhostDef, {"include/zkhost.h", "include/zkhostctl.h"}}};
    for (const auto &d : defs) {
        std::set<std::string> declared;
        for (const std::string &header : d.headers) {
            const Names names = ReadHeader(header);
            declared.insert(names.begin(), names.end());
        }
        for (const NamedEntry &n : ReadDef(d.def)) {
            EXPECT_TRUE(declared.count(n.entry.exported))
                << n.file << ":" << n.entry.line << ": " << n.entry.exported << " is not declared ZKAPI in "
                << ::testing::PrintToString(d.headers);
        }
    }
}

} // namespace
