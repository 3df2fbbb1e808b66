#pragma once

#include "dialogs/brushed_dialog.h"
#include "frame/vdi6030_start.h"
#include "platform/text.h"

/// Edits the distances from wall and floor at which the next radiators are placed. They are part of
/// the start values that the host keeps; OK stores them there, creating the record where there is
/// none. Nothing is checked: a text without a number stores 0.0.
class CWandAbDlg : public CBrushedDialog
{
public:
    CWandAbDlg();
    ~CWandAbDlg() override;

protected:
    const CMessageMap& GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    void OnOK() override;

private:
    void OnTextGeaendert();

    VDI6030START m_Start;
    CString m_TextWand;
    CString m_TextBoden;
};
