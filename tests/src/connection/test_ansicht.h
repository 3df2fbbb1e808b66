#pragma once

#include "connection/anschluss_zustand.h"
#include "tests/support/test_liste.h"

#include <functional>
#include <string>

/// A view without a screen: holds the names of the types and notes what it was asked for.
class CTestAnsicht : public CAnschlussAnsicht
{
public:
    void ZeichneAnschluss() override
    {
        aufrufe += "Sketch ";
        if (beimZeichnen) {
            beimZeichnen();
        }
    }
    void ZeichneVorschau() override { aufrufe += "Preview "; }
    void ZeigeFelder() override { aufrufe += "Fields "; }
    void LeseFelder() override
    {
        aufrufe += "Read ";
        if (beimLesen) {
            beimLesen();
        }
    }
    void ZeigePunkt(Punkt punkt) override { gezeigt = punkt; }
    CAuswahlListe& Typen() override { return typen; }
    void WaehleAnschlussTyp() override { aufrufe += "Apply "; }

    CTestListe typen;
    Punkt gezeigt = Punkt::keiner;
    std::string aufrufe;
    /// What else is to happen at these calls.
    std::function<void()> beimZeichnen;
    std::function<void()> beimLesen;
};
