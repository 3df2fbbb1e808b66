#pragma once

#include "frame/ventil_kv.h"
#include "platform/text.h"
#include "valve/ventil_nodes.h"

#include <cstddef>
#include <string_view>

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

    /// The data set that a user of the tree is at; null after each load.
    VENT_VDI3805_DATEN* Akt700 = nullptr;

private:
    /// A record on its way into the tree.
    struct Satz;

    void Leeren();
    bool NimmSatz(const Satz& satz);
    void NimmKopf(const Satz& satz);
    void NimmHauptgruppe(const Satz& satz);
    bool NimmGruppe(const Satz& satz);
    bool NimmDaten(const Satz& satz);
    bool NimmZusatz(const Satz& satz);
    bool NimmNummerierten(const Satz& satz);

    CVentilZeilen m_zeilen;
    // The last node of each kind.
    VENT_VDI3805_HAUPTGRUPPE* AktHauptgruppe = nullptr;
    VENT_VDI3805_GRUPPE* AktGruppe = nullptr;
    /// The group of the last data set, until an additional record has followed that.
    VENT_VDI3805_GRUPPE* m_pOhneZusatz = nullptr;
    bool m_bHatDatensatz = false;
};

/// False if the line does not end in ";" and a line feed, or has fewer than two characters.
/// `melden` shows which of the two in a message box.
bool PruefeSatzende(const CString& zeile, int zeilenNr, bool melden);

/// Splits an ident text into its groups: 15 of two digits, one of four, one of two. A text of fewer
/// than 16 characters leaves them alone; a group that stands at or behind the end of the text, or
/// begins with "?", is -1; one without a number stays as it was.
void LeseIdent(std::wstring_view text, VentIdent& ident);
