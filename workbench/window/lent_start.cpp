#include "workbench/window/lent_start.h"

#include "host/host_prefs.h"
#include "reference_host/prefs/host_settings.h"
#include "reference_host/prefs/lent_start.h"
#include "workbench/plan/new_radiator.h"
#include "workbench/plan/radiator_list.h"
#include "workbench/schedule/valve_selection.h"

namespace workbench {

namespace {

VDI6030START ReadStart()
{
    const VDI6030START* const kept = ReadDefFile_VDI6030START(false);
    return kept != nullptr ? *kept : VDI6030START();
}

} // namespace

ConnValues ConnectionToShow(const CPlacedRadiator& radiator)
{
    const CConnectionTexts texts = ConnectionOf(radiator);
    ConnValues anschluss = radiator.anschluss;
    anschluss.AnschlussAN = texts.strVorlauf;
    anschluss.AnschlussRI = texts.strRuecklauf;
    anschluss.WandAbstand = radiator.abstandWand;
    anschluss.GrafikAN = GraphicEntry(anschluss.GrafikAN);
    anschluss.GrafikRI = GraphicEntry(anschluss.GrafikRI);
    return anschluss;
}

CLentStart::CLentStart(const CPlacedRadiator& radiator) : m_lent(ReadStart())
{
    m_lent.AbstandWand = radiator.abstandWand;
    m_lent.AbstandBoden = radiator.abstandBoden;
    m_lent.Anschluss = ConnectionToShow(radiator);
    m_lent.VentilVorlauf = RecordOf(radiator.ventile.vorlauf);
    m_lent.VentilRuecklauf = ReturnRecordOf(radiator.ventile);
    reference_host::LendStart(m_lent);
}

CLentStart::~CLentStart()
{
    const bool connected = GetConfirmed().anschluss.has_value();
    reference_host::EndLentStart();
    if (connected) {
        // The lists have a name for "no graphic", which must not become that of one.
        VDI6030START kept = ReadStart();
        kept.Anschluss.GrafikAN = GraphicOfEntry(kept.Anschluss.GrafikAN);
        kept.Anschluss.GrafikRI = GraphicOfEntry(kept.Anschluss.GrafikRI);
        WriteDefFile_VDI6030START(&kept, false);
    }
}

CConfirmedStart CLentStart::GetConfirmed() const
{
    CConfirmedStart confirmed;
    const VDI6030START now = reference_host::GetLentStart().value_or(m_lent);
    if (!IsSameDistance(now.AbstandWand, m_lent.AbstandWand) ||
        !IsSameDistance(now.AbstandBoden, m_lent.AbstandBoden)) {
        confirmed.abstaende = {now.AbstandWand, now.AbstandBoden};
    }
    // The dialog gives a nominal diameter to every valve that it returns, even to none.
    if (now.VentilVorlauf.DN != m_lent.VentilVorlauf.DN) {
        confirmed.anschluss = {m_lent.Anschluss,
                               now.Anschluss,
                               {KeyOf(now.VentilVorlauf), KeyOf(now.VentilRuecklauf)}};
    }
    return confirmed;
}

CLentBlock::CLentBlock(const CString& block) : m_lent(GraphicEntry(block))
{
    reference_host::OverrideHostSetting(reference_host::kSettingHKBlock, m_lent);
}

CLentBlock::~CLentBlock()
{
    const CString now = KeptBlock();
    reference_host::ClearHostSettingOverride(reference_host::kSettingHKBlock);
    if (now != m_lent && now != GraphicOfEntry(now)) {
        lmSetHKBlock(GraphicOfEntry(now));
    }
}

CString CLentBlock::GetShown() const
{
    return GraphicOfEntry(KeptBlock());
}

} // namespace workbench
