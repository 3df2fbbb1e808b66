#pragma once

#include "connection/anschluss_zustand.h"

/// How the fields of the connection dialog and the records behind them become each other.

/// Makes the record handed in the working record and shows it in the fields. Distances that are not
/// in use leave their fields empty.
void FuelleFelder(CAnschlussZustand& zustand);

/// Takes the side distances from their fields into the working record.
void LeseSeitAbstaende(CAnschlussZustand& zustand);

/// Makes the entry at the selected name the working record; the side distances in the fields
/// outlive that. A name behind the last entry stands for the first one, which is selected then.
/// False, with nothing changed, if no name is selected. An empty short list raises
/// CInvalidArgException.
bool UebernehmeTyp(CAnschlussZustand& zustand, CAuswahlListe& typen);

/// Shows the active point of the working record in the point fields, as its text has it. False,
/// with the fields left alone, if no point is active or its text cannot be read.
bool LesePunkt(CAnschlussZustand& zustand);

/// Writes the point fields to the active point of the working record, numbers and text; the text
/// then holds no distances. False if no point is active.
bool SchreibePunkt(CAnschlussZustand& zustand);

/// What one press of an arrow makes of the number in the field beside it.
double Geschoben(double zahl, int delta);

/// Offers the side distance of the flow valve where a distance from the wall is wanted and none is
/// given.
void ErgaenzeWandAbstand(CAnschlussZustand& zustand);

/// True if an entry of the short list has the name typed.
bool IstNameVergeben(const CAnschlussZustand& zustand);

/// The rules at OK: the fields go into the working record, a point that leaves upward or downward
/// has no side distance, whatever the other one does, and both texts are built anew.
void SchliesseAb(CAnschlussZustand& zustand);
