#pragma once

#include "connection/anschluss_zustand.h"

#include <functional>
#include <string>
#include <vector>

/// A view without a screen: holds the list of names and notes what it was asked for.
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
    int AnzahlNamen() const override { return static_cast<int>(namen.size()); }
    void FuegeNameHinzu(const CString& name) override { namen.push_back(name); }
    void WaehleName(int index) override { gewaehlt = index; }
    int GewaehlterName() const override { return gewaehlt; }
    void WaehleAnschlussTyp() override { aufrufe += "Apply "; }

    std::vector<CString> namen;
    int gewaehlt = -1;
    Punkt gezeigt = Punkt::keiner;
    std::string aufrufe;
    /// What else is to happen at these calls.
    std::function<void()> beimZeichnen;
    std::function<void()> beimLesen;
};
