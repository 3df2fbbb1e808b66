#include "connection/ventil_paar.h"

#include "common/numbers.h"
#include "platform/format.h"

namespace {

CString NennweiteText(const VDI3805_VENTIL_KV& ventil)
{
    return FormatFixed(ventil.DN, 0);
}

} // namespace

CVentilSeite SeiteVon(CVentilPaar& paar, Punkt punkt)
{
    if (punkt == Punkt::ruecklauf) {
        return {paar.m_VentilRI, paar.m_TextDnRI, paar.m_bUebernehmeRI};
    }
    return {paar.m_VentilAN, paar.m_TextDnAN, paar.m_bUebernehmeAN};
}

Punkt Gegenueber(Punkt punkt)
{
    return punkt == Punkt::ruecklauf ? Punkt::vorlauf : Punkt::ruecklauf;
}

void ZeigeNennweiten(CVentilPaar& paar)
{
    for (const Punkt punkt : {Punkt::vorlauf, Punkt::ruecklauf}) {
        const CVentilSeite seite = SeiteVon(paar, punkt);
        if (seite.ventil.DN > 0) {
            seite.textDn = NennweiteText(seite.ventil);
        }
    }
}

bool Uebernehme(CVentilPaar& paar, Punkt von)
{
    const CVentilSeite quelle = SeiteVon(paar, von);
    if (!quelle.uebernehmen) {
        return false;
    }
    const CVentilSeite ziel = SeiteVon(paar, Gegenueber(von));
    ziel.ventil = quelle.ventil;
    ziel.textDn = NennweiteText(ziel.ventil);
    quelle.uebernehmen = false;
    return true;
}

void ErgaenzeNennweiten(CVentilPaar& paar)
{
    for (const Punkt punkt : {Punkt::vorlauf, Punkt::ruecklauf}) {
        const CVentilSeite seite = SeiteVon(paar, punkt);
        if (seite.ventil.DN <= 0) {
            seite.ventil.DN = ParseNumber(seite.textDn);
        }
    }
}
