#pragma once

#include "frame/handover.h"

#include <algorithm>

/// The host's questions about the sizes in which a product exists. Hersteller, Art and Produkt of
/// the hand-over name the product; each call makes a filter pass over all of its rows, of which the
/// first 2000 are looked at, and writes Umrechnungsfaktor as every pass does.

/// Appends the product's heights and depths in mm; both arrays stay as they were if it has no rows.
void LeseMasse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, OCArray<double>& hoehen,
               OCArray<double>& tiefen);

/// Sizes of the rows in whole millimetres, ascending, without duplicates; water contents in the
/// order of the rows. Of more sizes than places those of the first rows stay. Unused places are -1
/// and -1.0. The short arrays need room for `capacity` + 1. If an array is null, all others come
/// back empty.
void LeseMasse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, short* hoehen, short* tiefen, short* laengen,
               double* inhalte, int capacity);

/// What that form gives for a product without rows: all places unused. An array may be null.
void LeereMasse(short* hoehen, short* tiefen, short* laengen, double* inhalte, int capacity);

/// The product's smallest and largest depth in mm; -1.0 if it has no rows or no depths.
double MinTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe);
double MaxTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe);

/// Water content in litres of the first row with exactly these measures, given in metres and cut to
/// whole millimetres (what lies less than 0.005 mm below one counts as that); 0.0 if there is none.
double Inhalt(HK_DATEN_VDI3805_UEBERGABE& uebergabe, double hoehe, double tiefe, double laenge);

/// Inserts `value` into the ascending array `a`, whose unused places hold -1, unless it is in there
/// already. Once the array is full, a value that is shifted beyond the capacity is lost. The result
/// is the count of filled places as far as the scan from the place of insertion tells.
///
/// The shift starts one place beyond the capacity: `a` must have room for `capacity` + 1 elements.
template <class T>
T SortiertEinfuegen(T* a, T value, int capacity)
{
    int i = 0;
    while (i < capacity && a[i] != value && a[i] != T(-1) && !(a[i] > value)) {
        ++i;
    }
    if (i < capacity && a[i] != value) {
        if (a[i] != T(-1)) {
            std::copy_backward(a + i, a + capacity, a + capacity + 1);
        }
        a[i] = value;
    }
    while (i < capacity && a[i] > T(0)) {
        ++i;
    }
    return static_cast<T>(i);
}
