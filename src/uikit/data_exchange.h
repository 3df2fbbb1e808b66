#pragma once

#include "platform/text.h"
#include "uikit/wnd.h"

class CDialog;

/// One run of the exchange between a dialog's controls and its members.
class CDataExchange
{
public:
    CDataExchange(CDialog& dialog, bool save) : m_bSaveAndValidate(save), m_dialog(dialog) {}

    /// True if the members are filled from the controls.
    const bool m_bSaveAndValidate;

    CDialog& GetDialog() const { return m_dialog; }

private:
    CDialog& m_dialog;
};

/// Raised by an exchange that cannot read a field, when the user has been told. UpdateData() ends
/// with false on it.
class CExchangeFailed
{
};

/// Text of an edit, a label or an editable list.
void DDX_Text(CDataExchange* pDX, int id, CString& value);
/// Number of an edit. A text that is no number as a whole is told to the user; one that is the
/// number already is left as it was typed.
void DDX_Text(CDataExchange* pDX, int id, double& value);
void DDX_Text(CDataExchange* pDX, int id, int& value);
/// Check box: 0 or 1.
void DDX_Check(CDataExchange* pDX, int id, int& value);
void DDX_Check(CDataExchange* pDX, int id, bool& value);
/// Group of radio buttons that begins with this id: place of the chosen one from 0, -1 for none.
void DDX_Radio(CDataExchange* pDX, int id, int& value);
/// Index of the chosen item of a combo box, -1 for none.
void DDX_CBIndex(CDataExchange* pDX, int id, int& value);

/// Binds a control object to its control. Does nothing once it is bound.
void DDX_Control(CDataExchange* pDX, int id, CWnd& control);
