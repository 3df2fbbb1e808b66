#include "radiator/leere_antwort.h"

#include "radiator/hk_vdi3805.h"
#include "radiator/size_queries.h"
#include "tests/support/diagnosis_log.h"
#include "tests/support/memory_catalogue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace {

/// What is told of one call; the test fails unless it is one text.
CDiagnosis Told()
{
    const std::vector<CDiagnosis> told = CDiagnosisLog::Take();
    EXPECT_EQ(told.size(), 1U);
    return told.empty() ? CDiagnosis{} : told.front();
}

/// A silent selection, as the export makes it.
int Waehle(HK_DATEN_VDI3805_UEBERGABE uebergabe)
{
    CHKVdi3805 katalog(&uebergabe);
    katalog.SetLeistungFilter(0);
    katalog.Filtern();
    const int chosen = katalog.BesteAuswahlMinLeistung(&uebergabe);
    if (chosen < 0) {
        ErklaereLeereAuswahl(katalog);
    }
    return chosen;
}

class LeereAntwort : public testing::Test
{
protected:
    LeereAntwort()
    {
        m_catalogue.Add(L'M', 600, 100, 400, 1700, 0, 2.5, L"T22");
        m_catalogue.Add(L'M', 600, 100, 1000, 1700, 0, 6.3, L"T22");
        m_catalogue.Add(L'S', 500, 80, 75, 65, 1, 0.9, L"C3");
        m_catalogue.Add(L'S', 500, 80, 120, 65, 2, 1.8, L"C3");
        m_catalogue.Produkt().Hoehen.Add(500);
        m_catalogue.Produkt().Hoehen.Add(600);
        m_catalogue.Produkt().Tiefen.Add(80);
        m_catalogue.Produkt().Tiefen.Add(100);
    }

    CMemoryCatalogue m_catalogue;
    CDiagnosisLog m_log;
};

TEST_F(LeereAntwort, EachReasonOfASelectionIsToldInWords)
{
    using Uebergabe = HK_DATEN_VDI3805_UEBERGABE;
    const struct
    {
        std::function<void(Uebergabe&)> change;
        HostDiagnosis reason;
        const wchar_t* text;
    } cases[] = {
        {[](Uebergabe& u) { u.Hersteller = L"prova "; }, HostDiagnosis::unknownMaker,
         L"Il catalogo non ha il produttore \"prova \". C'è \"Prova\": contano anche spazi e "
         L"maiuscole. Ci sono: \"Prova\", \"Prova seconda\"."},
        {[](Uebergabe& u) { u.Hersteller = L"Prova seconda"; }, HostDiagnosis::unreadMaker,
         L"Il catalogo del produttore \"Prova seconda\" non è stato letto, o non contiene nulla."},
        {[](Uebergabe& u) { u.Art = L"x"; }, HostDiagnosis::unknownKind,
         L"Il produttore \"Prova\" non ha la categoria \"x\". Ci sono: \"Genere\"."},
        {[](Uebergabe& u) { u.Produkt = L""; }, HostDiagnosis::unknownProduct,
         L"La categoria \"Genere\" del produttore \"Prova\" non ha il prodotto \"\". Ci sono: "
         L"\"Prodotto\"."},
        {[](Uebergabe& u) {
             u.HoeheMin = u.HoeheMax = 700;
             u.LaengeMin = 1200;
             u.LaengeMax = 2000;
         },
         HostDiagnosis::noRowInRange,
         // The row of 1000 mm is the longest of its series and short enough: its length passes.
         L"Nessuna delle 4 righe del prodotto \"Prodotto\" rientra nei limiti: l'altezza da 690 a "
         L"710 mm ne esclude 4; la lunghezza da 1200 a 2000 mm ne esclude 3; un elemento solo non "
         L"è "
         L"un corpo scaldante e ne esclude 1. La riga più vicina è \"T22\", altezza 600, "
         L"profondità "
         L"100, lunghezza 1000 mm, 1700 W alle temperature di progetto, contenuto 6.3 l."},
        {[](Uebergabe& u) { u.Leistung = 200000; }, HostDiagnosis::noNearOutput,
         L"La potenza richiesta di 200000 W dista almeno 100000 W da ogni riga che rientra nei "
         L"limiti. La riga più vicina è \"T22\", altezza 600, profondità 100, lunghezza 1000 mm, "
         L"1700 W alle temperature di progetto, contenuto 6.3 l."},
        {[](Uebergabe& u) { u.Ruecklauf = u.Vorlauf; }, HostDiagnosis::noNearOutput,
         L"Le temperature di mandata e di ritorno non danno una potenza: sono uguali. La riga "
         L"più vicina è \"T22\", altezza 600, profondità 100, lunghezza 400 mm, contenuto"},
        {[](Uebergabe& u) {
             u.Vorlauf = 5;
             u.Ruecklauf = 45;
             u.Raumtemperatur = 20;
         },
         HostDiagnosis::noNearOutput,
         L"Le temperature di mandata, di ritorno e del locale non danno una potenza. La riga"},
        {[](Uebergabe& u) { u.Leistung = NAN; }, HostDiagnosis::noNearOutput,
         L"La potenza richiesta non è un numero. La riga"},
        // The single section misses the range by less, but no range lets it in.
        {[](Uebergabe& u) { u.LaengeMax = 60; }, HostDiagnosis::noRowInRange,
         L"Nessuna delle 4 righe del prodotto \"Prodotto\" rientra nei limiti: la lunghezza da 0 a "
         L"60 mm ne esclude 4; un elemento solo non è un corpo scaldante e ne esclude 1. La riga "
         L"più vicina è \"C3\", altezza 500, profondità 80, lunghezza 120 mm, elementi 2"},
    };
    for (const auto& c : cases) {
        auto uebergabe = m_catalogue.Uebergabe(1000);
        c.change(uebergabe);
        EXPECT_EQ(Waehle(uebergabe), -1);
        const CDiagnosis told = Told();
        EXPECT_EQ(told.reason, c.reason);
        EXPECT_EQ(told.text.substr(0, CString(c.text).size()), c.text);
    }
    EXPECT_GE(Waehle(m_catalogue.Uebergabe(1000)), 0);
    EXPECT_TRUE(CDiagnosisLog::Take().empty()) << "nothing is told of what was found";
}

TEST_F(LeereAntwort, AFaultyCatalogueIsToldWithTheRowsThatDoNotFit)
{
    m_catalogue.Add(L'S', 500, 80, 100, 65, 3, 1.8, L"C3");
    auto uebergabe = m_catalogue.Uebergabe(1000);
    uebergabe.TiefeMin = 200;
    EXPECT_EQ(Waehle(uebergabe), -1);
    const CString text = Told().text;
    EXPECT_NE(text.find(L"ha inoltre 1 difetto di catalogo; il primo, alla riga 5: dopo 120 mm"),
              CString::npos);
}

TEST_F(LeereAntwort, TheQuestionsForSizesTellTheirsToo)
{
    auto uebergabe = m_catalogue.Uebergabe(1000);
    EXPECT_EQ(Inhalt(uebergabe, 0.6, 0.1, 0.95), 0.0);
    CDiagnosis told = Told();
    EXPECT_EQ(told.reason, HostDiagnosis::unknownMeasures);
    EXPECT_NE(told.text.find(L"non ha la misura altezza 600, profondità 100, lunghezza 950 mm. La "
                             L"riga più vicina è \"T22\", altezza 600, profondità 100, lunghezza "
                             L"1000 mm"),
              CString::npos);
    EXPECT_EQ(Inhalt(uebergabe, 0.6, 0.1, 1.0), 6.3);

    m_catalogue.Produkt().Tiefen.RemoveAll();
    EXPECT_EQ(MinTiefe(uebergabe), -1.0);
    EXPECT_EQ(Told().reason, HostDiagnosis::noDepths);

    m_catalogue.Clear();
    short sizes[3][2];
    double contents[1];
    OCArray<double> heights;
    const std::function<void()> calls[] = {
        [&] { LeseMasse(uebergabe, heights, heights); },
        [&] { LeseMasse(uebergabe, sizes[0], sizes[1], sizes[2], contents, 1); },
        [&] { MaxTiefe(uebergabe); },
        [&] { Inhalt(uebergabe, 0.6, 0.1, 1.0); },
        [&] { Waehle(uebergabe); },
    };
    for (const auto& call : calls) {
        call();
        EXPECT_EQ(Told().reason, HostDiagnosis::noRows);
    }
}

} // namespace
