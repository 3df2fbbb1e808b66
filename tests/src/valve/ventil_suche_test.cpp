#include "host/host_prefs.h"
#include "platform/exception.h"
#include "platform/path.h"
#include "tests/src/common/lines.h"
#include "tests/src/valve/ventil_fixture.h"
#include "tests/support/diagnosis_log.h"
#include "tests/support/message_log.h"
#include "valve/ventil_abruf.h"
#include "valve/ventil_bewertung.h"

#include <tuple>
#include <utility>

namespace {

const std::string kRows = "700;1;2;15;0.9;;;;;;;1;;|710.01;1;2;;;1;;;0.25|";
const CString kNr = WideFromUtf8(TgaNr("02", "0001"));

/// A file of one valve of this kvs, the number of its data set apart.
std::string Datei(const std::string& kvs, const std::string& tgaNr = TgaNr("02", "0001"))
{
    return Saetze("100;1;Haupt|110;1;Gruppe|700;1;2;15;" + kvs + ";;;;;;;1;;|800;" + tgaNr +
                  ";Bestell;D;T;Name");
}

VDI3805_VENTIL_KV MitSchluessel(const CString& hersteller, const CString& ventilNr)
{
    VDI3805_VENTIL_KV ventil;
    ventil.Hersteller = hersteller;
    ventil.VentilNr = ventilNr;
    ventil.Kvs = 77.0F;
    return ventil;
}

class CVentilSucheTest : public CVentilTest
{
protected:
    CVentVdiKatalog m_katalog;
    VDI3805_VENTIL_KV m_ventil;
};

/// The kept first record outlives a test, so that no two tests may use the same maker.
class CVentilAbrufTest : public CVentilTest
{
protected:
    CVentilAbrufTest()
    {
        static int count = 0;
        const std::string suffix = std::to_string(++count);
        m_a = WideFromUtf8("AbrufA" + suffix);
        m_b = WideFromUtf8("AbrufB" + suffix);
        Halte(m_a, "1");
        Halte(m_b, "2");
    }

    /// Writes a maker's file and puts it into the host's cache, where searches find it from now on.
    void Halte(const CString& maker, const std::string& kvs)
    {
        Schreibe(Utf8FromWide(maker), Datei(kvs));
        const CString path = VentilDateiPfad(m_folder.Path(), maker);
        lmGetCacheObject()->AddFileToCache(path, LinesIn(path), false);
    }

    /// The valves that a call with these makers fetches, by their kvs; 77 stands for none.
    static std::pair<float, float> Hole(const CString& maker1, const CString& maker2)
    {
        VDI3805_VENTIL_KV first = MitSchluessel(maker1, kNr);
        VDI3805_VENTIL_KV second = MitSchluessel(maker2, kNr);
        HoleVentilDaten(first, second);
        return {first.Kvs, second.Kvs};
    }

    CString m_a;
    CString m_b;
};

} // namespace

TEST_F(CVentilSucheTest, AValveIsFilledWithKeyAndNames)
{
    const CString maker = NeuerHersteller(Datei("0.9"));
    ASSERT_TRUE(m_katalog.SucheVentil(maker, kNr, m_ventil));
    EXPECT_EQ(m_ventil.Hauptgruppe, L"Haupt");
    EXPECT_EQ(m_ventil.Gruppe, L"Gruppe");
    EXPECT_EQ(m_ventil.Bezeichnung, L"Bestell") << "the order number, not the name";
    EXPECT_EQ(m_ventil.Hersteller, maker);
    EXPECT_EQ(m_ventil.VentilNr, kNr);
    EXPECT_EQ(m_ventil.Kvs, 0.9F);
}

TEST_F(CVentilSucheTest, TheFirstArticleWithExactlyThisNumberCounts)
{
    const std::string nr = TgaNr("02", "0001");
    const std::string other = TgaNr("02", "0002");
    const struct
    {
        const char* what;
        std::string records;
        CString searched;
        const wchar_t* found; // order number, null if none
    } cases[] = {
        {"two of them", "110;1;B|" + kRows + "800;" + nr + ";1|800;" + nr + ";2", kNr, L"1"},
        {"in a later group", "110;1;B|800;" + other + ";1|110;2;C|" + kRows + "800;" + nr + ";2",
         kNr, L"2"},
        {"in a later main group", "110;1;B|100;2;D|100;3;E|110;1;F|" + kRows + "800;" + nr + ";3",
         kNr, L"3"},
        {"articles stand before the data", "110;1;B|800;" + nr + ";1|" + kRows, kNr, L"1"},
        {"the first data set of the number counts",
         "110;1;B|700;2|710.01;1|" + kRows + "700;1|800;" + nr + ";1", kNr, L"1"},
        {"a row is no data set", "110;1;B|710.01;1|" + kRows + "800;" + nr + ";1", kNr, L"1"},
        {"the data set of another group does not count",
         "110;1;B|" + kRows + "110;2;C|800;" + nr + ";1", kNr, nullptr},
        {"no data at all", "110;1;B|800;" + nr + ";1", kNr, nullptr},
        {"no data set, though a later article has one",
         "110;1;B|800;" + nr + ";1|110;2;C|" + kRows + "800;" + nr + ";2", kNr, nullptr},
        {"no such article", "110;1;B|" + kRows + "800;" + other + ";1", kNr, nullptr},
        {"a blank makes another number", "110;1;B|" + kRows + "800;" + nr + " ;1", kNr, nullptr},
        {"29 characters are no key", "110;1;B|" + kRows + "800;" + nr.substr(0, 29) + ";1",
         kNr.substr(0, 29), nullptr},
        // 30 characters end before group 15, which is -1 then.
        {"30 characters are one", "110;1;B|700;-1;2;15;;;;;;;;;;|800;" + nr.substr(0, 30) + ";1",
         kNr.substr(0, 30), L"1"},
        {"the newer head", "000;x", kNr, nullptr},
        {"a record without parent", "800;" + nr + ";1|110;1;B", kNr, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        m_ventil = MitSchluessel(L"x", L"y");
        const std::string head = c.records.starts_with("000") ? "" : "100;1;A|";
        const CString maker = NeuerHersteller(Saetze(head + c.records));
        EXPECT_EQ(m_katalog.SucheVentil(maker, c.searched, m_ventil), c.found != nullptr);
        EXPECT_EQ(m_ventil.Bezeichnung, c.found ? c.found : L"");
        EXPECT_EQ(m_ventil.VentilNr, c.found ? c.searched : L"y");
    }
}

TEST_F(CVentilSucheTest, WithoutAFileNothingIsFound)
{
    m_ventil = MitSchluessel(L"x", L"y");
    EXPECT_FALSE(m_katalog.SucheVentil(L"Nessuno", kNr, m_ventil));
    EXPECT_EQ(m_ventil.VentilNr, L"y");
    EXPECT_EQ(m_katalog.DateiPfad, m_folder.Path() + L"\\Nessuno\\ha.tga");
    EXPECT_FALSE(m_katalog.SucheVentil(L"Altro", kNr.substr(0, 29), m_ventil));
    EXPECT_EQ(m_katalog.DateiPfad, m_folder.Path() + L"\\Nessuno\\ha.tga") << "nothing was read";
}

TEST_F(CVentilAbrufTest, OnlyTheFirstValveIsKeptAndAnswersEitherRecord)
{
    EXPECT_EQ(Hole(m_a, m_b), std::pair(1.0F, 2.0F));
    Halte(m_a, "3");
    Halte(m_b, "4");
    EXPECT_EQ(Hole(m_a, m_a), std::pair(1.0F, 1.0F)) << "kept, without a search";
    EXPECT_EQ(Hole(m_a, m_b), std::pair(1.0F, 4.0F)) << "searched at each call anew";
    EXPECT_EQ(Hole(m_b, m_a), std::pair(4.0F, 3.0F));
    EXPECT_EQ(Hole(m_a, m_a), std::pair(3.0F, 3.0F));
}

TEST_F(CVentilAbrufTest, TheFirstKeyAloneDecidesOnTheResult)
{
    const std::tuple<CString, CString, bool> cases[] = {
        {m_a, kNr, true}, {m_a, kNr.substr(0, 29), false}, {L"", kNr, false}};
    for (const auto& [maker, number, fetched] : cases) {
        for (const CString& other : {m_b, CString()}) {
            VDI3805_VENTIL_KV first = MitSchluessel(maker, number);
            VDI3805_VENTIL_KV second = MitSchluessel(other, kNr);
            EXPECT_EQ(HoleVentilDaten(first, second), fetched);
            EXPECT_EQ(first.Kvs, fetched ? 1.0F : 77.0F);
            EXPECT_EQ(second.Kvs, fetched && other == m_b ? 2.0F : 77.0F) << "not looked at";
        }
    }
}

TEST_F(CVentilAbrufTest, AFailedSearchIsKeptToo)
{
    const CString missing = m_a + L"x";
    VDI3805_VENTIL_KV first = MitSchluessel(missing, kNr);
    VDI3805_VENTIL_KV second = MitSchluessel(missing, kNr);
    second.Kvs = 5.0F;
    EXPECT_TRUE(HoleVentilDaten(first, second));
    EXPECT_EQ(first.Kvs, 77.0F);
    EXPECT_EQ(second.Kvs, 77.0F) << "the first record as it came";

    Schreibe(Utf8FromWide(missing), Datei("3"));
    first.Kvs = 5.0F;
    EXPECT_TRUE(HoleVentilDaten(first, second));
    EXPECT_EQ(first.Kvs, 77.0F) << "no search for a kept key";

    VDI3805_VENTIL_KV other = MitSchluessel(m_b, kNr);
    EXPECT_TRUE(HoleVentilDaten(other, first));
    EXPECT_EQ(first.Kvs, 3.0F);
}

TEST_F(CVentilAbrufTest, ABadLineRaisesAndKeepsNothing)
{
    const std::string head = "100;1;A|110;1;B|";
    const std::string article = "800;" + TgaNr("02", "0001") + ";B";
    const struct
    {
        std::string file;
        const wchar_t* told;
    } files[] = {
        {Datei("1") + "110\r\n", L"riga 5: al record 110 manca il campo 1"},
        {Saetze(head + "700;1|" + article), L"riga 3: al record 700 manca il campo 2"},
        {Saetze(head + kRows + "710.01;2;2|" + article),
         L"riga 5: al record 710.01 mancano i campi da 3 a 4"},
        {Saetze(head + "700;1|720.01;1;2"), L"riga 4: al record 720.01 mancano i campi da 3 a 8"},
    };
    for (const auto& [file, told] : files) {
        SCOPED_TRACE(file);
        const CString bad = NeuerHersteller(file);
        VDI3805_VENTIL_KV first = MitSchluessel(bad, kNr);
        VDI3805_VENTIL_KV second;
        EXPECT_THROW(HoleVentilDaten(first, second), CInvalidArgException);
        try {
            HoleVentilDaten(first, second);
            ADD_FAILURE() << "no exception";
        } catch (const CInvalidArgException& fault) {
            EXPECT_EQ(fault.GetErrorMessage(),
                      TextFromPath(m_folder.Root() / Utf8FromWide(bad) / "ha.tga") + L": " + told);
        }

        VDI3805_VENTIL_KV good = MitSchluessel(m_a, kNr);
        EXPECT_THROW(HoleVentilDaten(good, first), CInvalidArgException);
        EXPECT_EQ(good.Kvs, 1.0F);
    }
}

TEST_F(CVentilAbrufTest, WhyAValveIsMissingIsTold)
{
    const std::string nr = TgaNr("02", "0001");
    const struct
    {
        const char* what;
        CString maker;
        HostDiagnosis reason;
        const wchar_t* text;
    } cases[] = {
        {"no file", L"Nessuno", HostDiagnosis::unreadValveFile, L"No such file"},
        {"no folder name", L"..", HostDiagnosis::unreadValveFile, L"\"..\" non può essere"},
        {"the newer head", NeuerHersteller(Saetze("000;x")), HostDiagnosis::unreadValveFile,
         L"ha.tga: la testata 000"},
        {"a record without parent", NeuerHersteller(Saetze("110;1;B")),
         HostDiagnosis::unreadValveFile, L"ha.tga: un record sta prima"},
        {"no article", NeuerHersteller(Saetze("100;1;A")), HostDiagnosis::unknownValve,
         L"ha.tga: non c'è la valvola"},
        {"no data set", NeuerHersteller(Saetze("100;1;A|110;1;B|800;" + nr + ";1")),
         HostDiagnosis::noValveData, L"ha.tga: riga 3: alla valvola"},
    };
    const CDiagnosisLog log;
    for (const auto& c : cases) {
        // The second time the failed search is kept.
        for (int i = 0; i < 2; ++i) {
            VDI3805_VENTIL_KV first = MitSchluessel(c.maker, kNr);
            VDI3805_VENTIL_KV second;
            EXPECT_TRUE(HoleVentilDaten(first, second));
            const std::vector<CDiagnosis> told = CDiagnosisLog::Take();
            ASSERT_EQ(told.size(), 1U) << c.what;
            EXPECT_EQ(told[0].reason, c.reason) << c.what;
            EXPECT_NE(told[0].text.find(c.text), CString::npos) << Utf8FromWide(told[0].text);
        }
    }
    VDI3805_VENTIL_KV good = MitSchluessel(m_a, kNr);
    VDI3805_VENTIL_KV same = good;
    EXPECT_TRUE(HoleVentilDaten(good, same));
    EXPECT_TRUE(CDiagnosisLog::Take().empty());
}
