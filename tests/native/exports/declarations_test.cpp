// The header and .def readers, and the agreement of the .def files with
// the public headers.
#include "declarations.h"
#include "locations.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace {

using Names = std::vector<std::string>;

TEST(Declarations, FindsZkapiFunctionsAndNothingElse) {
    const std::string header = R"(
#define ZKAPI __stdcall
/* int32_t ZKAPI InAComment(void); */
// HostStr ZKAPI InALineComment(void);
typedef void (ZKAPI *Callback)(int);
int32_t ZKAPI First(const wchar_t *text);
HostStr    ZKAPI
    Second (void);
int32_t __stdcall NotZkapi(void);
LRESULT ZKAPI Third(int code, WPARAM w, LPARAM l); /* ZKAPI Fourth( */
)";
    EXPECT_EQ((Names{"First", "Second", "Third"}), decl::zkapiFunctions(header));
}

TEST(Declarations, ReadsDefEntriesOfBothForms) {
    const std::string def = "LIBRARY ZKLIB\n"
                            "; a comment\n"
                            "EXPORTS\n"
                            "    Alpha@4 == Alpha   ; trailing comment\n"
                            "    Beta\n"
                            "\n"
                            "    Gamma@12==Gamma\n";
    const auto entries = decl::defEntries(def);
    ASSERT_EQ(3u, entries.size());
    EXPECT_EQ("Alpha", entries[0].exported);
    EXPECT_EQ("Alpha@4", entries[0].internal);
    EXPECT_EQ(4, entries[0].line);
    EXPECT_EQ("Beta", entries[1].exported);
    EXPECT_EQ("", entries[1].internal);
    EXPECT_EQ("Gamma", entries[2].exported);
    EXPECT_EQ("Gamma@12", entries[2].internal);
}

TEST(Declarations, EntriesOutsideExportsAreNotExports) {
    const auto entries = decl::defEntries("LIBRARY x\nNotAnExport\nEXPORTS A\nB\nSECTIONS\n.data READ\n");
    ASSERT_EQ(2u, entries.size());
    EXPECT_EQ("A", entries[0].exported);
    EXPECT_EQ("B", entries[1].exported);
}

std::string source(const std::string &relative) {
    return locations::sourceDir() + "/" + relative;
}

Names readHeader(const std::string &relative) {
    const auto text = decl::readText(source(relative));
    EXPECT_TRUE(text) << "cannot read " << source(relative);
    return text ? decl::zkapiFunctions(*text) : Names{};
}

std::vector<decl::DefEntry> readDef(const std::string &relative) {
    const auto text = decl::readText(source(relative));
    EXPECT_TRUE(text) << "cannot read " << source(relative);
    return text ? decl::defEntries(*text) : std::vector<decl::DefEntry>{};
}

// Every entry of a .def is "Name@N == Name": stdcall inside on i686, the
// plain name outside; each name once.
void expectStdcallForm(const std::string &relative) {
    static const std::regex decorated(R"(([A-Za-z_][A-Za-z0-9_]*)@([0-9]+))");
    const auto entries = readDef(relative);
    EXPECT_FALSE(entries.empty()) << relative << " exports nothing";
    std::set<std::string> seen;
    for (const decl::DefEntry &e : entries) {
        std::smatch m;
        EXPECT_TRUE(std::regex_match(e.internal, m, decorated) && m[1] == e.exported)
            << relative << ":" << e.line << ": \"" << e.exported
            << "\" is not of the form Name@N == Name";
        EXPECT_TRUE(seen.insert(e.exported).second)
            << relative << ":" << e.line << ": " << e.exported << " is listed twice";
    }
}

TEST(DefFiles, AreInTheStdcallForm) {
    expectStdcallForm("res/ZKLIB.def");
    expectStdcallForm("host/win/zkhost.def");
}

TEST(DefFiles, ZklibDefNamesAreDeclaredInZklibH) {
    const Names names = readHeader("include/zklib.h");
    const std::set<std::string> declared(names.begin(), names.end());
    for (const decl::DefEntry &e : readDef("res/ZKLIB.def")) {
        EXPECT_TRUE(declared.count(e.exported))
            << "res/ZKLIB.def:" << e.line << ": " << e.exported
            << " is not declared ZKAPI in include/zklib.h";
    }
}

TEST(DefFiles, ZkhostDefNamesAreDeclaredInTheHostHeaders) {
    const Names host = readHeader("include/zkhost.h");
    const Names controls = readHeader("include/zkhostctl.h");
    std::set<std::string> declared(host.begin(), host.end());
    declared.insert(controls.begin(), controls.end());
    for (const decl::DefEntry &e : readDef("host/win/zkhost.def")) {
        EXPECT_TRUE(declared.count(e.exported))
            << "host/win/zkhost.def:" << e.line << ": " << e.exported
            << " is declared ZKAPI in neither include/zkhost.h nor include/zkhostctl.h";
    }
}

} // namespace
