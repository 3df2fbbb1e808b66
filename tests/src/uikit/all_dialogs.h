#pragma once

#include "module/radsel_app.h"
#include "tests/dialog_support/dialog_driver.h"
#include "tests/look/cut_texts.h"
#include "tests/support/message_log.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tools/dialog_gallery.h"
#include "uikit/application.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "uikit/native/caption_bar.h"
#include "uikit/native/dialog_window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

/// The font that a test is named by.
inline void PrintTo(const DialogFont& font, std::ostream* stream)
{
    *stream << ToNative(font.face).toStdString() << ' ' << font.points;
}

using Complaints = std::vector<std::string>;

/// A control that shows, with what its template says of it.
struct Part
{
    const ControlTemplate& control;
    QWidget* widget;
    QRect place;
};

inline std::string Name(const Part& part)
{
    return std::to_string(part.control.id) + " \"" + ToNative(part.control.caption).toStdString() +
           '"';
}

inline bool IsGroup(const Part& part)
{
    return part.control.kind == ControlKind::groupBox;
}

/// Controls stand in the focus chain as they were made, those without an id too.
inline std::vector<Part> PartsOf(const CDialog& dialog)
{
    std::vector<Part> parts;
    QWidget& client = WindowOf(dialog)->Client();
    QWidget* widget = &client;
    for (const ControlTemplate& control : dialog.GetTemplate().controls) {
        do {
            widget = widget->nextInFocusChain();
        } while (widget->parentWidget() != &client);
        if (widget->isVisible()) {
            parts.push_back({control, widget, widget->geometry()});
        }
    }
    return parts;
}

/// Texts that the dialog put there are data, which may be shortened where the whole is told.
inline void CheckTexts(const CDialog& dialog, const std::vector<Part>& parts,
                       Complaints& complaints)
{
    const CDialogWindow& window = *WindowOf(dialog);
    for (const CutText& cut : FindCutTexts(window.Client())) {
        const auto part = std::ranges::find(parts, cut.widget, &Part::widget);
        const bool isCaption = part != parts.end() && cut.text == ToNative(part->control.caption);
        if (isCaption || !cut.isTold) {
            complaints.push_back("does not fit: " + std::to_string(GetControlId(*cut.widget)) +
                                 " \"" + cut.text.toStdString() + '"');
        }
    }
    const CCaptionBar& caption = window.Caption();
    if (caption.fontMetrics().horizontalAdvance(window.windowTitle()) >
        caption.TitleArea().width()) {
        complaints.push_back("the title does not fit");
    }
}

/// Gives all dialogs one font.
class CGivenFont : public COccManager
{
public:
    explicit CGivenFont(DialogFont font) : m_font(std::move(font)) {}

    std::optional<DialogTemplate> PreCreateDialog(const DialogTemplate& dialogTemplate) override
    {
        DialogTemplate replaced = dialogTemplate;
        replaced.font = m_font;
        return replaced;
    }

private:
    DialogFont m_font;
};

/// Has every dialog looked at that opens, in one font, then cancels it.
class CAllDialogsTest : public ::testing::TestWithParam<DialogFont>
{
protected:
    CAllDialogsTest()
        : m_before(SetDialogObserver([this](CDialog& dialog) {
              ++m_opened;
              for (const int id : m_presses) {
                  CDialogUser(dialog).Click(id);
              }
              m_complaints = Check(dialog);
              dialog.EndDialog(kIdCancel);
          }))
    {
        SetDialogFontSize(0);
        theApp.Start();
        theApp.EnableControlContainer(std::make_unique<CGivenFont>(GetParam()));
    }
    ~CAllDialogsTest() override
    {
        CWinApp::MakeCurrent(m_appBefore);
        theApp.EnableControlContainer(nullptr);
        SetDialogObserver(m_before);
        SetDialogFontSize(8);
    }

    virtual Complaints Check(CDialog& dialog) = 0;

    /// Opens every dialog with sample data, and expects no complaint of any.
    void LookAtAll()
    {
        const CTempFolder workplace;
        const CSettingOverride valves(reference_host::kSettingVEDir, L"");
        const CSettingOverride catalogues(reference_host::kSettingHKDir, L"");
        const CSettingOverride root(reference_host::kSettingServerPath, L"");
        const CSettingOverride local(reference_host::kSettingLocalPath, L"");
        const std::vector<GalleryEntry> gallery = DialogGallery(RADSEL_DATA_DIR);
        // Opening and cancelling is not to touch the sample data.
        reference_host::OverrideHostSetting(reference_host::kSettingLocalPath, workplace.Path());
        for (const GalleryEntry& entry : gallery) {
            const int opened = m_opened;
            m_presses = entry.presses;
            entry.open();
            EXPECT_EQ(m_opened, opened + 1) << entry.name;
            EXPECT_EQ(m_complaints, Complaints{}) << entry.name;
        }
    }

    CMessageLog m_messages;
    Complaints m_complaints;
    int m_opened = 0;
    std::vector<int> m_presses;
    DialogObserver m_before;
    CWinApp* m_appBefore = CWinApp::MakeCurrent(&theApp);
};
