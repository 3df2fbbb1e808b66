#pragma once

#include "frame/ventil_kv.h"
#include "platform/text.h"
#include "valve/ventil_nodes.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// Makes the reader skip lines that PruefeSatzende refuses. As lines arrive without their line end,
/// that would be every line: leave it off.
extern bool PruefeVentilzeilen;

/// Shorter texts are no valve numbers and are never searched for.
inline constexpr std::size_t kShortestVentilNr = 30;

/// Path of a manufacturer's valve file under the valve data directory; empty if the name would lead
/// out of it.
CString VentilDateiPfad(const CString& verzeichnis, const CString& hersteller);

/// The valve catalogue of one manufacturer: reads "ha.tga" into a tree of nodes and finds valves in
/// it. Needs no window. Messages go through the message function of platform/.
///
/// A line that lacks a field that it must have raises CInvalidArgException to the caller, which
/// tells the file, the line and the field; the nodes built before it are then in the tree.
class CVentVdiKatalog
{
public:
    /// An empty tree; DateiPfad is the valve data directory itself.
    CVentVdiKatalog();
    ~CVentVdiKatalog();

    CVentVdiKatalog(const CVentVdiKatalog&) = delete;
    CVentVdiKatalog& operator=(const CVentVdiKatalog&) = delete;

    /// Builds DateiPfad for the manufacturer and loads the file. True if the tree now stands for
    /// that file. A file with the newer kind of head is refused and leaves the tree as it was; any
    /// other result of false leaves it empty. Never keeps a tree for a path that repeats: the lines
    /// come from the cache, the parsing is done again.
    bool LadeHersteller(const CString& hersteller);

    /// True if the first line of the file on disk begins with the record type "000".
    bool HatNeuenKopf() const;

    /// The reserved place of a reader for files with the "000" head: refuses them.
    bool LeseNeuesFormat();

    /// Reads the file named by DateiPfad, from the cache of the process where that holds it. False
    /// without a message if it cannot be opened or is beyond the limit for valve files, or if a
    /// record has no parent to stand under; the tree is then empty.
    bool LeseDatei();

    /// Loads the manufacturer's file and fills `ventil` from the first article with exactly this
    /// number, key and names included. False, with `ventil` untouched, if the number has fewer than
    /// 30 characters, the file does not load, no article matches, or the first that does names no
    /// data set of its group.
    bool SucheVentil(const CString& hersteller, const CString& ventilNr, VDI3805_VENTIL_KV& ventil);

    /// From the file head; unchanged by a file without one.
    CString NormDatum;
    CString HerstellerName;
    CString AusfuehrungDatum;
    CString Kopf4;
    /// Name up to its first blank; grows with each file head.
    CString HerstellerKurz;
    CString HerstellerKurzKopie;

    /// Path of the last load.
    CString LetzterPfad;
    /// The file to read; the valve data directory before the first load.
    CString DateiPfad;

    /// Root of the tree.
    VENT_VDI3805_HAUPTGRUPPE* ErsteHauptgruppe = nullptr;
    int AnzahlHauptgruppen = 0;

protected:
    /// BewerteVentil() for nodes of this tree, whose exception tells the file as well.
    void Bewerte(const VENT_VDI3805_ARTIKEL& artikel, const VENT_VDI3805_DATEN& daten,
                 VDI3805_VENTIL_KV& ventil) const;

    /// While a file is read, the last node whose type is "700". Free for use afterwards, until the
    /// next load.
    VENT_VDI3805_DATEN* Akt700 = nullptr;

private:
    /// A line on its way into the tree: the fields are views into the text.
    struct Satz;

    void Leeren();
    bool NimmZeile(CString& zeile, int zeilenNr);
    bool NimmSatz(Satz& satz);
    void NimmKopf(const Satz& satz);
    void NimmHauptgruppe(Satz& satz);
    bool NimmGruppe(Satz& satz);
    bool NimmDaten(Satz& satz);
    bool NimmZusatz(Satz& satz);
    bool NimmArtikel(const Satz& satz);
    bool NimmText(Satz& satz, VENT_VDI3805_TEXT* VENT_VDI3805_GRUPPE::*liste,
                  VENT_VDI3805_TEXT*& letzter);

    // The last node of each kind.
    VENT_VDI3805_HAUPTGRUPPE* AktHauptgruppe = nullptr;
    VENT_VDI3805_GRUPPE* AktGruppe = nullptr;
    VENT_VDI3805_ARTIKEL* AktArtikel = nullptr;
    VENT_VDI3805_DATEN* AktDaten = nullptr;
    VENT_VDI3805_ZUSATZ* AktZusatz = nullptr;
    VENT_VDI3805_TEXT* AktAntrieb = nullptr;
    VENT_VDI3805_TEXT* AktBauform = nullptr;
    VENT_VDI3805_TEXT* AktWerkstoff = nullptr;
    std::vector<std::wstring_view> m_felder;
};

/// False if the line does not end in ";" and a line feed, or has fewer than two characters.
/// `melden` shows which of the two in a message box.
bool PruefeSatzende(const CString& zeile, int zeilenNr, bool melden);

/// Replaces the foreign characters that the umlauts of a DOS code page have become.
void KorrigiereUmlaute(CString& zeile);

/// Splits an ident text into its groups: 15 of two digits, one of four, one of two. A text of fewer
/// than 16 characters leaves them alone; a group that stands at or behind the end of the text, or
/// begins with "?", is -1; one without a number stays as it was.
void LeseIdent(std::wstring_view text, VentIdent& ident);
