// The command line, the environment switch and Wine's view of Unix paths.
#include <gtest/gtest.h>

#include "options.h"

namespace {

using gallery::Options;
using gallery::ParseOptions;
using gallery::WindowsPath;

Options Parse(std::initializer_list<const wchar_t *> args, const wchar_t *env = nullptr) {
    std::vector<const wchar_t *> argv(args);
    return ParseOptions(static_cast<int>(argv.size()), argv.data(), env);
}

TEST(GalleryOptions, DefaultsToInteractiveWithOutputBelowTheCurrentFolder) {
    const Options options = Parse({});
    EXPECT_TRUE(options.valid);
    EXPECT_FALSE(options.headless);
    EXPECT_EQ(L"out\\gallery", options.outDir);
}

TEST(GalleryOptions, HeadlessBySwitchOrByEnvironmentOne) {
    EXPECT_TRUE(Parse({L"--headless"}).headless);
    EXPECT_TRUE(Parse({}, L"1").headless);
    EXPECT_FALSE(Parse({}, L"0").headless);
    EXPECT_FALSE(Parse({}, L"").headless);
}

TEST(GalleryOptions, OutputFolderIsTakenAsWineSeesIt) {
    const Options options = Parse({L"--out", L"/tmp/build/out", L"--headless"});
    EXPECT_TRUE(options.valid);
    EXPECT_TRUE(options.headless);
    EXPECT_EQ(L"Z:\\tmp\\build\\out", options.outDir);
    EXPECT_EQ(L"C:\\a\\b", Parse({L"--out", L"C:/a/b"}).outDir);
    EXPECT_EQ(L"rel\\dir", WindowsPath(L"rel/dir"));
}

TEST(GalleryOptions, RejectsUnknownArgumentsAndAMissingFolder) {
    const Options unknown = Parse({L"--headles"});
    EXPECT_FALSE(unknown.valid);
    EXPECT_NE(std::wstring::npos, unknown.error.find(L"--headles"));
    EXPECT_FALSE(Parse({L"--out"}).valid);
    EXPECT_FALSE(Parse({L"--out", L""}).valid);
}

} // namespace
