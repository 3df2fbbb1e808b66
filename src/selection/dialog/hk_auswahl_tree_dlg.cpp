#include "selection/dialog/hk_auswahl_tree_dlg.h"

#include "dialogs/list_tree.h"
#include "dialogs/platzierung.h"
#include "selection/dialog/hk_auswahl_tree_template.h"
#include "uikit/application.h"

namespace {

constexpr wchar_t kBaumPlatzierung[] = L"RADSEL_HK_AUSWAHL_TREE";

} // namespace

CHKAuswahlVdi3805TreeDlg::CHKAuswahlVdi3805TreeDlg(CHKVdi3805* vdi)
    : CResizingDialog(HKAuswahlTreeTemplate()), m_pVdi(vdi), m_baum(*m_pVdi)
{
}

CHKAuswahlVdi3805TreeDlg::~CHKAuswahlVdi3805TreeDlg() = default;

const CMessageMap& CHKAuswahlVdi3805TreeDlg::GetMessageMap() const
{
    using Dlg = CHKAuswahlVdi3805TreeDlg;
    static const CMessageMap map(
        &CResizingDialog::GetMessageMap(),
        {
            On(ControlEvent::treeItemExpanding, idProduktBaum, &Dlg::OnBaumItemExpanding),
            On(ControlEvent::treeSelectionChanged, idProduktBaum, &Dlg::OnBaumSelChanged),
        });
    return map;
}

void CHKAuswahlVdi3805TreeDlg::DoDataExchange(CDataExchange* pDX)
{
    CResizingDialog::DoDataExchange(pDX);
    DDX_Control(pDX, idProduktBaum, m_baum);
}

bool CHKAuswahlVdi3805TreeDlg::OnInitDialog()
{
    CResizingDialog::OnInitDialog();
    m_baum.Fuelle();
    SetzeAnker();
    PlatzierungLaden(*this, kBaumPlatzierung, nullptr, false);
    m_baum.WaehleVorgabe();
    SetExplorerTheme(m_baum);
    return true;
}

void CHKAuswahlVdi3805TreeDlg::SetzeAnker()
{
    GroesseErlauben(true, true);
    AnkerSetzen(idProduktBaum, ankerStrecken, ankerStrecken, false);
    AnkerSetzen(kIdOk, ankerMitgehen, ankerMitgehen, false);
    AnkerSetzen(kIdCancel, ankerMitgehen, ankerMitgehen, false);
    AnkerSetzen(kBannerId, ankerFest, ankerStrecken, false);
}

void CHKAuswahlVdi3805TreeDlg::OnBaumItemExpanding(CNotify& notify)
{
    if (m_baum.IstUngelesen(notify.item)) {
        const CWaitCursor warten;
        m_baum.LeseHersteller(notify.item);
    }
}

void CHKAuswahlVdi3805TreeDlg::OnBaumSelChanged(CNotify& notify)
{
    m_baum.UebernehmeProdukt(notify.item);
}

void CHKAuswahlVdi3805TreeDlg::OnOK()
{
    PlatzierungSpeichern(*this, kBaumPlatzierung, &kDeckend);
    CResizingDialog::OnOK();
}
