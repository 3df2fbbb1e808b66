#include "workbench/program/connection_run.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

bool Holds(const CString& text, const CString& line)
{
    return text.find(line) != CString::npos;
}

TEST(ConnectionRun, TheChoiceIsToldInWords)
{
    CConnectionChoice choice;
    const CString empty = FormatConnectionChoice(choice);
    EXPECT_TRUE(Holds(empty, L"Mandata                     non indicato\n"));
    EXPECT_TRUE(Holds(empty, L"Valvola di ritorno          nessuna, DN 0\n"));
    EXPECT_TRUE(Holds(empty, L"Distanza dalla parete       non usata\n"));

    choice.anschluss.Name = L"Squadra";
    choice.anschluss.AnschlussRI = L"0.5; 0; 0;0; -0.5; 0.03; 0;0";
    choice.anschluss.KreuzTyp = 2;
    choice.anschluss.KreuzAbstand = 0.25;
    choice.ventilVorlauf.Hersteller = L"Alfa";
    choice.ventilVorlauf.Bezeichnung = L"A-20";
    choice.ventilVorlauf.DN = 20.0;
    choice.bTyp = false;
    const CString full = FormatConnectionChoice(choice);
    EXPECT_TRUE(Holds(full, L"Tipo                        Squadra\n"));
    EXPECT_TRUE(Holds(full, L"Ritorno                     all'estremità destra, in basso 30 mm"));
    EXPECT_TRUE(Holds(full, L"Incrocio                    ritorno sopra mandata, 0,250 m\n"));
    EXPECT_TRUE(Holds(full, L"Valvola di mandata          Alfa A-20, DN 20\n"));
    EXPECT_TRUE(Holds(full, L"Tipo attacco attivo         no\n"));
}

} // namespace

} // namespace workbench
