// The export and import tables of the two DLLs of both cross builds.
#include "declarations.h"
#include "locations.h"
#include "pe_image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace {

using NameSet = std::set<std::string>;

struct Target {
    const char *name;
    std::string (*bin)();
    const char *variable;
    std::uint16_t machine;
    bool pe32plus;
};

void PrintTo(const Target &target, std::ostream *out) { *out << target.name; }

const Target kTargets[] = {
    {"x86_64", locations::Win64Bin, "ZK_WIN64_BIN", pe::kMachineAmd64, true},
    {"i686", locations::Win32Bin, "ZK_WIN32_BIN", pe::kMachineI386, false},
};

std::string lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

std::string list(const NameSet &names) {
    std::ostringstream out;
    for (const std::string &n : names)
        out << "\n    " << n;
    return out.str();
}

// Names in `a` that are not in `b`.
NameSet minus(const NameSet &a, const NameSet &b) {
    NameSet out;
    std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(out, out.end()));
    return out;
}

NameSet ExportNames(const pe::Image &image) {
    NameSet out;
    for (const pe::Export &e : image.exports)
        out.insert(e.name);
    return out;
}

NameSet SourceNames(const std::string &relative, bool header) {
    const std::string path = locations::SourceDir() + "/" + relative;
    const auto text = header ? decl::ReadHeaderTree(path) : decl::ReadText(path);
    EXPECT_TRUE(text) << "cannot read " << path;
    NameSet out;
    if (text && header) {
        for (const std::string &n : decl::ZkapiFunctions(*text))
            out.insert(n);
    } else if (text) {
        for (const decl::DefEntry &e : decl::DefEntries(*text))
            out.insert(e.exported);
    }
    return out;
}

class DllTables : public ::testing::TestWithParam<Target> {
protected:
    void SetUp() override {
        const Target &t = GetParam();
        const std::string bin = t.bin();
        ASSERT_FALSE(bin.empty()) << t.variable << " is empty: the " << t.name << " DLLs cannot be checked; "
                                  << locations::HowToConfigure();
        std::string error;
        zklib = pe::load(bin + "/ZKLIB.dll", error);
        ASSERT_TRUE(zklib) << error;
        zkhost = pe::load(bin + "/zkhost.dll", error);
        ASSERT_TRUE(zkhost) << error;
    }

    std::optional<pe::Image> zklib;
    std::optional<pe::Image> zkhost;
};

TEST_P(DllTables, AreBuiltForTheTarget) {
    for (const pe::Image *image : {&*zklib, &*zkhost}) {
        EXPECT_EQ(GetParam().machine, image->machine);
        EXPECT_EQ(GetParam().pe32plus, image->pe32plus);
    }
    EXPECT_EQ("ZKLIB.dll", zklib->exportDllName);
    EXPECT_EQ("zkhost.dll", zkhost->exportDllName);
}

// Decorations on i686 ("Name@N", "_Name") would break every caller that
// declares the plain names; the MinGW runtime DLLs are not shipped, so the
// runtime is linked statically.
TEST_P(DllTables, ExportNamesAreUndecoratedAndTheRuntimeIsStatic) {
    for (const auto &[image, dll] : {std::pair{&*zklib, "ZKLIB.dll"}, std::pair{&*zkhost, "zkhost.dll"}}) {
        for (const pe::Export &e : image->exports) {
            EXPECT_EQ(std::string::npos, e.name.find('@')) << dll << " exports " << e.name;
            EXPECT_NE('_', e.name.front()) << dll << " exports " << e.name;
            EXPECT_FALSE(e.forwarded) << dll << " forwards " << e.name;
        }
        EXPECT_EQ(0u, image->unnamedExports) << dll << " exports addresses without names";
        for (const pe::ImportedDll &imported : image->imports) {
            for (const char *runtime : {"libgcc", "libstdc++", "libwinpthread"})
                EXPECT_NE(0u, lower(imported.dll).rfind(runtime, 0)) << dll << " imports " << imported.dll;
        }
    }
}

// The reader refuses what is no whole PE file instead of reading past it.
TEST_P(DllTables, TheReaderRefusesBrokenImages) {
    std::string error;
    EXPECT_FALSE(pe::parse({}, error));
    EXPECT_EQ("not an MZ file", error);
    EXPECT_FALSE(pe::load("/nonexistent/ZKLIB.dll", error));
    std::vector<std::uint8_t> bytes(1024);
    std::ifstream file(GetParam().bin() + "/ZKLIB.dll", std::ios::binary);
    ASSERT_TRUE(file.read(reinterpret_cast<char *>(bytes.data()), 1024));
    for (std::size_t size : {std::size_t{0x40}, std::size_t{0x100}, std::size_t{1024}}) {
        bytes.resize(size);
        EXPECT_FALSE(pe::parse(bytes, error)) << "cut at " << size;
        EXPECT_FALSE(error.empty());
    }
}

// ZKLIB.dll exports exactly the ZKAPI functions of include/zklib.h, and
// zkhost.dll exactly the names of its .def.
TEST_P(DllTables, EachDllExportsExactlyTheNamesOfItsSource) {
    for (const auto &[image, source] :
         {std::pair{&*zklib, "include/zklib.h"}, std::pair{&*zkhost, "host/win/zkhost.def"}}) {
        const NameSet expected = SourceNames(source, image == &*zklib), exported = ExportNames(*image);
        EXPECT_EQ(image->exports.size(), exported.size()) << "a name is exported twice";
        EXPECT_TRUE(minus(expected, exported).empty())
            << "named in " << source << " but not exported:" << list(minus(expected, exported));
        EXPECT_TRUE(minus(exported, expected).empty())
            << "exported but not named in " << source << ":" << list(minus(exported, expected));
    }
}

TEST_P(DllTables, ZklibImportsFromZkhostOnlyNamesItExports) {
    const NameSet exported = ExportNames(*zkhost);
    int found = 0;
    for (const pe::ImportedDll &dll : zklib->imports) {
        if (lower(dll.dll) != "zkhost.dll")
            continue;
        ++found;
        EXPECT_TRUE(dll.ordinals.empty()) << "ZKLIB.dll imports from zkhost.dll by ordinal";
        EXPECT_FALSE(dll.names.empty());
        NameSet imported(dll.names.begin(), dll.names.end());
        for (const std::string &name : imported)
            EXPECT_EQ(std::string::npos, name.find('@')) << "decorated import " << name;
        EXPECT_TRUE(minus(imported, exported).empty())
            << "imported by ZKLIB.dll but not exported by zkhost.dll:" << list(minus(imported, exported));
    }
    EXPECT_EQ(1, found) << "ZKLIB.dll must import zkhost.dll exactly once";
}

INSTANTIATE_TEST_SUITE_P(Targets, DllTables, ::testing::ValuesIn(kTargets),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
