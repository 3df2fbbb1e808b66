#include "module/font_occ_manager.h"
#include "module/radsel_app.h"
#include "module/silent/resource_context.h"
#include "uikit/application.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace {

TEST(ResourceContext, PutsBackWhatWasCurrentOnEveryWayOut)
{
    CWinApp host;
    CWinApp::MakeCurrent(&host);
    try {
        const CResourceContext outer;
        {
            const CResourceContext inner;
        }
        EXPECT_EQ(CWinApp::Current(), &theApp);
        throw std::runtime_error("on the way out");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(CWinApp::Current(), &host);
    }
    CWinApp::MakeCurrent(nullptr);
}

TEST(FontOccManager, GivesTheMessageFontToTemplatesOfThreeControlsAndMore)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ASSERT_TRUE(EnsureApplication());
    const ControlTemplate control{5, ControlKind::button, L"Scelta", 1, 2, 3, 4, styleGroup};
    DialogTemplate dialog{77, L"Prova", 100, 50, frameResizable, {control, control}, {L"Altro", 6}};
    CFontOccManager manager;
    EXPECT_FALSE(manager.PreCreateDialog(dialog));

    dialog.controls.push_back(control);
    const std::optional<DialogTemplate> copy = manager.PreCreateDialog(dialog);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->font.face, GetMessageFont().face);
    EXPECT_EQ(copy->font.points, GetMessageFont().points);
    EXPECT_EQ(copy->controls.size(), 3U);
    EXPECT_EQ(copy->cx, 100);
    EXPECT_EQ(dialog.font.face, L"Altro") << "the template itself stays";
}

} // namespace
