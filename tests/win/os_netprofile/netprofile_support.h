// The network and profile tests: a fresh folder for each test, INI files
// written byte for byte, string arrays made and read back, and a check
// that no host string or array outlives the test.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace netprofiletest {

using Texts = std::vector<std::wstring>;

// A string array holding the texts from index 0.
HostArray StringArray(const Texts &texts);
// The array's elements from low to high bound; "<none>" for no string.
Texts Elements(HostArray array);

class FolderTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    std::wstring At(const std::wstring &name) const { return dir_ + name; }
    // Writes a file of ASCII text; its path.
    std::wstring Make(const std::wstring &name, const std::string &text);
    std::string Contents(const std::wstring &name) const;
    // An array that the test's end destroys.
    HostArray Array(const Texts &texts = {});
    // Runs the current directory in the folder until the end of the test.
    void EnterFolder();

    std::wstring dir_;

private:
    std::wstring savedCurrent_;
    std::vector<HostArray> arrays_;
    int32_t strings_ = 0;
    int32_t liveArrays_ = 0;
};

} // namespace netprofiletest
