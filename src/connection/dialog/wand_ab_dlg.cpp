#include "connection/dialog/wand_ab_dlg.h"

#include "common/startwerte.h"
#include "common/units.h"
#include "connection/dialog/wand_ab_template.h"
#include "host/host_prefs.h"

CWandAbDlg::CWandAbDlg() : CBrushedDialog(WandAbTemplate()) {}

CWandAbDlg::~CWandAbDlg() = default;

const CMessageMap& CWandAbDlg::GetMessageMap() const
{
    static const CMessageMap map(
        &CBrushedDialog::GetMessageMap(),
        {
            On(ControlEvent::textChanged, idAbstandWand, &CWandAbDlg::OnTextGeaendert),
            On(ControlEvent::textChanged, idAbstandBoden, &CWandAbDlg::OnTextGeaendert),
        });
    return map;
}

void CWandAbDlg::DoDataExchange(CDataExchange* pDX)
{
    CBrushedDialog::DoDataExchange(pDX);
    DDX_Text(pDX, idAbstandWand, m_TextWand);
    DDX_Text(pDX, idAbstandBoden, m_TextBoden);
}

bool CWandAbDlg::OnInitDialog()
{
    CBrushedDialog::OnInitDialog();
    ResetUnits();
    m_Start = LeseStartwerte();
    const CString einheit = GetUnitText(false);
    GetDlgItem(idEinheitWand).SetWindowText(einheit);
    GetDlgItem(idEinheitBoden).SetWindowText(einheit);
    m_TextWand = MeterToText(m_Start.AbstandWand);
    m_TextBoden = MeterToText(m_Start.AbstandBoden);
    UpdateData(false);
    GetDlgItem(idAbstandWand).SetFocus();
    return false;
}

void CWandAbDlg::OnTextGeaendert()
{
    UpdateData(true);
}

void CWandAbDlg::OnOK()
{
    m_Start.AbstandWand = TextToMeter(m_TextWand);
    m_Start.AbstandBoden = TextToMeter(m_TextBoden);
    WriteDefFile_VDI6030START(&m_Start, false);
    CBrushedDialog::OnOK();
}
