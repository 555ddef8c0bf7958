#include "calendar_support.h"

#include "frame/win/host.h"

namespace caltest {

namespace {

// The library formats dates into one host string of its own, which stays
// alive between calls: it is made once here, before any test counts strings.
// The frame objects linked into this program read the library's resources.
class Library : public testing::Environment {
    void SetUp() override {
        zk::ModuleInstance = GetModuleHandleW(L"ZKLIB.dll");
        zk::cal::CCalendar warmUp;
        ZelCalMarkDate(reinterpret_cast<ZelCalControl>(&warmUp), Date(2000, 1, 1), 1);
    }
};
const auto *const library = testing::AddGlobalTestEnvironment(new Library);

} // namespace

HostArray Strings(const std::vector<std::wstring> &texts, int32_t low) {
    HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(texts.size()) - 1);
    for (size_t i = 0; i < texts.size(); ++i)
        HostArraySetString(array, ZkHostStrMake(texts[i].c_str()), low + static_cast<int32_t>(i));
    return array;
}

} // namespace caltest
