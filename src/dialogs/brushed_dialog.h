#pragma once

#include "uikit/dialog.h"

/// Control of the banner in every dialog.
inline constexpr int kBannerId = 563;

/// Base of the module's dialogs: skin colours, help on the caption bar and on F1, Enter that moves
/// on like Tab where the user wants that.
class CBrushedDialog : public CDialog
{
public:
    explicit CBrushedDialog(const DialogTemplate& dialogTemplate);

    /// Whether this dialog shows the skin's colours. Starts as true.
    void SetSkin(bool skin) { m_bSkin = skin; }
    /// Whether help is offered. Opening sets it by the help switches of the working place.
    void SetHilfe(bool hilfe) { m_bHilfe = hilfe; }
    bool GetHilfe() const { return m_bHilfe; }

    /// Place of the help icon on the screen, as last painted.
    const CRect& GetHilfeRect() const { return m_rcHilfe; }

protected:
    bool OnInitDialog() override;
    bool OnCommand(int id, ControlEvent event) override;
    bool OnHelp() override;
    void OnMove() override;
    void OnNcPaint(CDC& dc) override;
    void OnNcLButtonDown(CPoint screen) override;
    ControlColors OnCtlColor(ColorKind kind) override;
    void OnPaint() override;

private:
    bool m_bSkin = true;
    bool m_bEnterAlsTab = false;
    bool m_bHilfe = true;
    CRect m_rcHilfe;
    unsigned m_nDialogId;
};
