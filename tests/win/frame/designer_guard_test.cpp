// The guarded form of exported control functions, with a real control:
// string 48 for a null pointer, the row's words for an exception.
#include <stdexcept>

#include "designer_win_test.h"
#include "frame/win/guard.h"

using namespace designertest;

namespace {

const wchar_t kNullText[] = L"Function 'ZelCalGetColor()' unable to act because pointer to control instance is NULL.  "
                            L"This is likely due to interception of ZKM_ControlCreate in Brandle Builder.  "
                            L"Please remove any such lines from your application.";

// An export as a control family writes it.
int32_t GetColor(zk::CGenericControl *control, int32_t role) {
    return zk::GuardedControlText(L"ZelCalGetColor()", L"Unable to retrieve color for specified role.", -1, control,
                                  [&](zk::CGenericControl &c) -> int32_t {
                                      if (role < 0 || role > 3)
                                          throw zk::InvalidArgException();
                                      return static_cast<int32_t>(c.GetRoleColor(role));
                                  });
}

TEST(ControlGuard, ANullControlShowsStringFortyEightOnceAndFails) {
    zkt::DebugOutputCapture capture;
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_EQ(GetColor(nullptr, 0), -1);
    ASSERT_EQ(answerer.answered(), 1);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Zelkova Kit Library");
    const auto texts = answerer.dialogs()[0].StaticTexts();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back(), kNullText);
    EXPECT_EQ(capture.text(), L"ZelCalGetColor() - Unable to retrieve color for specified role.\n");
}

TEST(ControlGuard, ABodyThatThrowsTracesItsWordsWithoutABox) {
    zkt::TestWindow parent;
    HWND window = MakeControl(kSubclassClass, parent);
    auto *control = static_cast<zk::CGenericControl *>(zk::Window::FromHandle(window));
    ASSERT_NE(control, nullptr);
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(GetColor(control, 1), static_cast<int32_t>(GetSysColor(COLOR_WINDOWTEXT)));
    EXPECT_EQ(capture.calls(), 0u);
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_EQ(GetColor(control, 9), -1);
    EXPECT_EQ(answerer.answered(), 0);
    EXPECT_EQ(capture.lines(),
              std::vector<std::wstring>{L"ZelCalGetColor() - Unable to retrieve color for specified role."});
}

} // namespace
