#pragma once

#include "common/auswahl_liste.h"
#include "connection/anschluss_punkt.h"
#include "platform/array.h"
#include "platform/text.h"

#include <array>

/// The short list in memory. Any index outside it raises CInvalidArgException.
using Anschlussliste = CArray<ConnValues>;

/// What the editing of a connection works on.
struct CAnschlussZustand
{
    Anschlussliste m_Anschlussliste;
    /// Working record: what goes back to the caller.
    ConnValues m_Aktuell;
    /// The record as handed in; FindeAnschlussTyp completes it in place.
    ConnValues m_Eingang;
    /// The name typed is to become a new entry of the short list.
    bool m_bNeu = false;

    /// What the fields show. Distances are texts in the user's unit and may be anything that he
    /// typed.
    CString m_TextSeitAN;
    CString m_TextSeitRI;
    /// Cross-over kind 0 to 2, -1 with none chosen.
    int m_Kreuz = -1;
    CString m_TextKreuz;
    /// A distance from the wall is in use.
    bool m_bVonWand = false;
    CString m_TextWand;
    CString m_TextName;
    /// Flow and return stand exchanged.
    bool m_bInverti = false;
    /// The point that the point fields show, and its numbers there: relative position, offset in
    /// metres and two angles in degrees.
    Punkt m_Punkt = Punkt::keiner;
    ConnVector m_Rel{};
    ConnVector m_Offset{};
    std::array<double, 2> m_Winkel{};
};

/// What the operations ask of whoever shows the connection.
class CAnschlussAnsicht
{
public:
    virtual ~CAnschlussAnsicht() = default;

    /// Draws the sketch and the preview in the drawing anew.
    virtual void ZeichneAnschluss() = 0;
    virtual void ZeichneVorschau() = 0;

    /// Moves the fields between the state and the controls.
    virtual void ZeigeFelder() = 0;
    virtual void LeseFelder() = 0;

    /// Shows which point is the active one.
    virtual void ZeigePunkt(Punkt punkt) = 0;

    /// The names of the connection types. A name and an entry of the short list belong together by
    /// their index alone.
    virtual CAuswahlListe& Typen() = 0;

    /// Applies the entry at the selected name to the working record.
    virtual void WaehleAnschlussTyp() = 0;
};

/// Decides the side distances of the working record. A point that leaves upward or downward sets
/// both to 0. Points on one vertical line of the sketch need two different distances, points that
/// mirror each other at least one: where they lack them, 0.1 m and 0.05 m go into the field texts,
/// from which the record takes them at the next reading.
void PruefeSeitAbstand(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht);

/// Places the active point (the flow point if none is chosen) by a row of the preset table and
/// redraws. A text that cannot be read ends it with the text assigned.
void SetzePreset(int row, CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht);

/// Exchanges flow and return point of the working record and redraws. The side distances stay on
/// their sides: they belong to the valves, which are not exchanged.
void TauscheAnRi(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht);

/// Looks for the record handed in among the entries of the short list and chooses the first one
/// that has its points.
///
/// First it completes that record in place: if one of its two texts is missing, its flow text
/// becomes the last preset with a button; if its points are equal, which stands for unset, their
/// numbers are read from the texts. A text that cannot be read ends the operation with nothing
/// selected.
///
/// Without a matching entry the record becomes the working record, and if its return text holds a
/// point, it is selected under a name of its own, which has no entry in the short list.
void FindeAnschlussTyp(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht);
