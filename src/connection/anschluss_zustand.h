#pragma once

#include "frame/conn_values.h"
#include "platform/array.h"
#include "platform/text.h"

/// The short list in memory. Any index outside it raises CInvalidArgException.
using Anschlussliste = CArray<ConnValues>;

/// The two points of a radiator; none before the user has chosen one.
enum class Punkt
{
    keiner = -1,
    vorlauf = 0,
    ruecklauf = 1
};

/// What the editing of a connection works on.
struct CAnschlussZustand
{
    /// Working record: what goes back to the caller.
    ConnValues m_Aktuell;
    /// The record as handed in; FindeAnschlussTyp completes it in place.
    ConnValues m_Eingang;
    Anschlussliste m_Anschlussliste;
    /// The point that the point fields show.
    Punkt m_Punkt = Punkt::keiner;
    /// Texts of the side distance fields and of the name field.
    CString m_TextSeitAN;
    CString m_TextSeitRI;
    CString m_TextName;
    /// The name typed is to become a new entry of the short list.
    bool m_bNeu = false;
};

/// What the operations ask of whoever shows the connection. The list of connection types is a list
/// of names; a name and an entry of the short list belong together by their index alone.
class CAnschlussAnsicht
{
public:
    virtual ~CAnschlussAnsicht() = default;

    /// Draws the sketch and the preview in the drawing anew.
    virtual void ZeichneAnschluss() = 0;
    virtual void ZeichneVorschau() = 0;

    /// Moves the field texts between the state and the controls.
    virtual void ZeigeFelder() = 0;
    virtual void LeseFelder() = 0;

    /// Shows which point is the active one.
    virtual void ZeigePunkt(Punkt punkt) = 0;

    virtual int AnzahlNamen() const = 0;
    virtual void FuegeNameHinzu(const CString& name) = 0;
    virtual void WaehleName(int index) = 0;
    /// Index of the selected name, -1 if none is.
    virtual int GewaehlterName() const = 0;

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
