#pragma once

class CHKVdi3805;

/// Why an answer is empty, told to the host's listener (host/host_diagnosis.h). All of it is asked
/// after a filter pass and leaves the object and its hand-over as they are; without a listener
/// nothing is done.

/// For a silent selection that chose no row.
void ErklaereLeereAuswahl(CHKVdi3805& katalog);

/// For a product of which rows are asked: nothing is told if it has some.
void ErklaereFehlendeZeilen(CHKVdi3805& katalog);

/// For a product without a list of depths.
void ErklaereFehlendeTiefen(CHKVdi3805& katalog);

/// For measures in mm that no row of the product has.
void ErklaereFehlendeMasse(CHKVdi3805& katalog, double hoehe, double tiefe, double laenge);
