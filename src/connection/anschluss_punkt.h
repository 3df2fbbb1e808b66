#pragma once

#include "frame/conn_values.h"

/// The two points of a radiator; none before the user has chosen one.
enum class Punkt
{
    keiner = -1,
    vorlauf = 0,
    ruecklauf = 1
};

/// Which fields of a record belong to one point. This is the only place that knows it: whatever
/// works on either point takes its fields from here.
struct CPunktFelder
{
    CString ConnValues::*text;
    ConnVector ConnValues::*position;
    ConnVector ConnValues::*offset;
    ConnVector ConnValues::*winkel;
    double ConnValues::*seitAbstand;
};

/// The fields of the return point, or of the flow point for any other value.
const CPunktFelder& FelderVon(Punkt punkt);

/// Reads the numbers of a point, and the distances that go with them, out of the point's text in
/// the record. Returns how many numbers the text holds, 0 for none.
int LesePunktText(ConnValues& werte, Punkt punkt);

/// The same with the targets of side distance and cross-over distance exchanged, as presets and
/// records handed in are read. Presets get their side distances back afterwards; a record handed in
/// without numbers keeps them as they come. False if the text holds no number.
bool LesePunktTextGekreuzt(ConnValues& werte, Punkt punkt);

/// Builds the text of a point out of its numbers in the record and the distances given, in metres.
/// The distance from the wall is no matter of a point and never part of its text.
void BauePunktText(ConnValues& werte, Punkt punkt, double seitAbstand, double kreuzAbstand,
                   int kreuzTyp);
