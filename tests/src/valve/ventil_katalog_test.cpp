#include "valve/ventil_katalog.h"

#include "platform/exception.h"
#include "platform/path.h"
#include "tests/src/valve/ventil_fixture.h"
#include "tests/support/message_log.h"

#include <filesystem>
#include <sstream>
#include <tuple>
#include <utility>

namespace {

template <class Node>
std::string Zeilen(char mark, const CVentilListe<Node>& list)
{
    std::string text;
    ForEachNode(list,
                [&](const Node& node) { text += mark + std::to_string(node.ZeilenNr) + ' '; });
    return text;
}

std::string Texte(char mark, const VENT_VDI3805_TEXT* head)
{
    std::string text;
    ForEachNode(head, [&](const VENT_VDI3805_TEXT& node) {
        text += mark + std::to_string(node.Nummer) + '@' + std::to_string(node.ZeilenNr) + ' ';
    });
    return text;
}

/// The nodes of a group list by list: data sets as <type>#<number>@<line>, with >line for the first
/// additional record; additional records z, articles a, texts k, f and w with their line.
std::string Bild(const VENT_VDI3805_GRUPPE& gruppe)
{
    std::string text;
    ForEachNode(gruppe.Daten, [&](const VENT_VDI3805_DATEN& daten) {
        text += Utf8FromWide(CString(daten.Satzart)) + '#' + std::to_string(daten.Nummer) + '@' +
                std::to_string(daten.ZeilenNr);
        text += daten.Zusatz ? '>' + std::to_string(daten.Zusatz->ZeilenNr) + ' ' : " ";
    });
    return text + Zeilen('z', gruppe.Zusaetze) + Zeilen('a', gruppe.Artikel) +
           Texte('k', gruppe.Antriebe) + Texte('f', gruppe.Bauformen) +
           Texte('w', gruppe.Werkstoffe);
}

template <class Node>
std::string Kopf(const Node& node)
{
    return std::to_string(node.Nummer) + ':' + Utf8FromWide(node.Name) + '@' +
           std::to_string(node.ZeilenNr);
}

/// The whole tree: main groups with their groups in "(" and ")", these with their nodes in "[" "]".
std::string Bild(const CVentVdiKatalog& katalog)
{
    std::string text;
    ForEachNode(katalog.ErsteHauptgruppe, [&](const VENT_VDI3805_HAUPTGRUPPE& haupt) {
        text += Kopf(haupt) + '(';
        ForEachNode(haupt.Gruppen, [&](const VENT_VDI3805_GRUPPE& gruppe) {
            text += Kopf(gruppe) + '[' + Bild(gruppe) + ']';
        });
        text += ')';
    });
    return text;
}

class CVentVdiKatalogTest : public CVentilTest
{
protected:
    bool Lade(const std::string& records)
    {
        return katalog.LadeHersteller(NeuerHersteller(Saetze(records)));
    }

    CVentVdiKatalog katalog;
};

const std::string kGruppe = "100;1;A|110;2;B|";
const std::string kGruppeBild = "1:A@1(2:B@2[";
/// What stands in the tree before a file that is refused.
const std::string kGuteDatei = kGruppe + "800;1";

} // namespace

TEST_F(CVentVdiKatalogTest, ATreeHasANodeForEachKnownRecordInFileOrder)
{
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"an empty file", "", ""},
        {"a head only", "010;a;b;c", ""},
        {"nothing behind the name", "100;7;Ventile", "7:Ventile@1()"},
        {"a line may end in any number of separators", "100;7;Ventile;;;", "7:Ventile@1()"},
        {"fields that are there but empty", "100;;;|110;;;", "0:@1(0:@2[])"},
        {"whole numbers: leading blanks, a sign, and what stands behind them",
         "100; 12x;A|100;x;B|100;-5;C|100;1,5;D|100;1.9;E|100;99999999999;F",
         "12:A@1()0:B@2()-5:C@3()1:D@4()1:E@5()2147483647:F@6()"},
        {"unknown, blank and empty lines count as lines", "999;x|;||  |100;1;A|x|100;2;B",
         "1:A@5()2:B@7()"},
        {"only a whole first field is a type",
         kGruppe + "710.1;1|710.06;1|700 ;1| 700;1|0700;1|70;1|710;1|720;1|720.04;1",
         "1:A@1(2:B@2[])"},
        {"\"760\" needs no group and has no effect", "760|760;1|" + kGruppe + "760;1",
         "1:A@3(2:B@4[])"},
        {"data sets of a group form one list",
         kGruppe + "700;4;x|710.01;1|710.01;2|710.02;9|710.03;8|710.04;7|710.05;6|700;5|710.01;1",
         kGruppeBild + "700#4@3 710.01#1@4 710.01#2@5 710.02#9@6 710.03#8@7 710.04#7@8 "
                       "710.05#6@9 700#5@10 710.01#1@11 ])"},
        {"one field is enough for data", kGruppe + "700|710.01|710.02;",
         kGruppeBild + "700#0@3 710.01#0@4 710.02#0@5 ])"},
        {"rows without a data set above them stay", kGruppe + "710.01;3",
         kGruppeBild + "710.01#3@3 ])"},
        {"the kinds of record mix as they like",
         kGruppe + "800;1|160;1|200;2|400;3|700;1|800;2|160;4|200;5|400;6",
         kGruppeBild + "700#1@7 a3 a8 k1@4 k4@9 f2@5 f5@10 w3@6 w6@11 ])"},
        {"of the additional records a data set names the first",
         kGruppe + "700;1|720.01;;;;;;;;x|720.01;;;;;;;;x|720.02|700;2|700;3|720.03|720.02",
         kGruppeBild + "700#1@3>4 700#2@7 700#3@8>9 z4 z5 z6 z9 z10 ])"},
        {"each group has lists of its own",
         kGruppe + "700;1|800;1|160;1|720.02|110;3;C|800;2|700;2|720.02|160;2|200;1|400;1",
         "1:A@1(2:B@2[700#1@3>6 z6 a4 k1@5 ]3:C@7[700#2@9>10 z10 a8 k2@11 f1@12 w1@13 ])"},
        {"an additional record without a data set in its group goes to the last one of the file",
         kGruppe + "700;1|110;3;C|720.02|100;4;D|110;5;E|720.03",
         "1:A@1(2:B@2[700#1@3>5 ]3:C@4[z5 ])4:D@6(5:E@7[z8 ])"},
        {"a main group without groups does not end the group above it",
         kGruppe + "700;1|100;3;C|700;2|800;1|110;4;D|700;3",
         "1:A@1(2:B@2[700#1@3 700#2@5 a6 ])3:C@4(4:D@7[700#3@8 ])"},
    };
    for (const auto& [what, records, bild] : cases) {
        SCOPED_TRACE(what);
        EXPECT_TRUE(Lade(records));
        EXPECT_EQ(Bild(katalog), bild);
    }
}

TEST_F(CVentVdiKatalogTest, ANodeIsTheSameHoweverOneComesToIt)
{
    const std::string records = kGruppe + "700;1|710.01;1|110;3;C|720.02|720.03";
    for (const bool fromBelow : {true, false}) {
        ASSERT_TRUE(Lade(records));
        const VENT_VDI3805_GRUPPE& first = *katalog.ErsteHauptgruppe->Gruppen;
        const VENT_VDI3805_GRUPPE& second = *first.Next;
        const VENT_VDI3805_ZUSATZ* const seen = fromBelow ? second.Zusaetze.Erster() : nullptr;
        EXPECT_EQ(first.Daten->Zusatz, second.Zusaetze.Erster());
        EXPECT_TRUE(seen == nullptr || seen == second.Zusaetze);
        EXPECT_EQ(first.Daten->Next->Prev, first.Daten.Erster());
    }
}

TEST_F(CVentVdiKatalogTest, NodesKeepTheirWholeLine)
{
    ASSERT_TRUE(Lade("100;1;A;x|110;2;B;y|700;3;;|720.02;z|160;4;T;|200;5;|400;6;;U"));
    const VENT_VDI3805_HAUPTGRUPPE& haupt = *katalog.ErsteHauptgruppe;
    const VENT_VDI3805_GRUPPE& gruppe = *haupt.Gruppen;
    EXPECT_EQ(haupt.Zeile, L"100;1;A;x");
    EXPECT_EQ(gruppe.Zeile, L"110;2;B;y");
    EXPECT_EQ(gruppe.Daten->Zeile, L"700;3;;");
    EXPECT_EQ(gruppe.Zusaetze->Zeile, L"720.02;z");
    EXPECT_EQ(gruppe.Antriebe->Zeile, L"160;4;T;");
    EXPECT_EQ(gruppe.Bauformen->Zeile, L"200;5;");
    EXPECT_EQ(gruppe.Werkstoffe->Zeile, L"400;6;;U");
}

TEST_F(CVentVdiKatalogTest, AnArticleTakesTheFieldsThatItsLineHas)
{
    ASSERT_TRUE(Lade(kGruppe + "800;N1|800;N2;B|800;N3;;D;;|800;;|800;N5;B;D;T4;Name;more"));
    const VENT_VDI3805_ARTIKEL* artikel = katalog.ErsteHauptgruppe->Gruppen->Artikel;
    for (const wchar_t* const texts :
         {L"N1||||", L"N2|B|||", L"N3||D||", L"||||", L"N5|B|D|T4|Name"}) {
        EXPECT_EQ(artikel->TgaNr + L"|" + artikel->BestellNr + L"|" + artikel->Datanorm + L"|" +
                      artikel->Text4 + L"|" + artikel->Bezeichnung,
                  texts);
        artikel = artikel->Next;
    }
}

TEST_F(CVentVdiKatalogTest, AFileWithARecordThatHasNoParentIsRefused)
{
    const std::string orphans[] = {
        "110;1;B",
        "100;1;A|700;1",
        "100;1;A|800;1",
        "100;1;A|720.02",
        "100;1;A|400;1",
        kGruppe + "720.01;;;;;;;;x",
        kGruppe + "720.03|700;1",
        kGruppe + "710.01;1|720.02",
        "010;a;b;c|110;1;B|100;1;A",
    };
    for (const std::string& records : orphans) {
        SCOPED_TRACE(records);
        ASSERT_TRUE(Lade(kGuteDatei + "|700;1"));
        EXPECT_FALSE(Lade(records)) << "what an earlier file left must not serve as parent";
        EXPECT_EQ(katalog.ErsteHauptgruppe, nullptr);
        EXPECT_EQ(katalog.AnzahlHauptgruppen, 0);
    }
}

TEST_F(CVentVdiKatalogTest, ALineWithoutARequiredFieldRaises)
{
    const std::string lines[] = {"010",   "010;a",          "010;a;b;", "100",  "100;1;",
                                 "110;;", "720.01;;;;;;;;", "800;",     "160;", "200",
                                 "400"};
    for (const std::string& line : lines) {
        SCOPED_TRACE(line);
        EXPECT_THROW(Lade(kGruppe + "700;1|" + line + "|100;9;Z"), CInvalidArgException);
        const std::string bild = Bild(katalog);
        EXPECT_TRUE(bild.starts_with(kGruppeBild + "700#1@3 ")) << bild;
        EXPECT_EQ(bild.find("9:Z"), std::string::npos) << "the load stops";
        EXPECT_TRUE(Lade(kGuteDatei));
        EXPECT_EQ(Bild(katalog), kGruppeBild + "a3 ])") << "the next load starts anew";
    }
}

TEST_F(CVentVdiKatalogTest, TheHeadIsKept)
{
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"010;a;b;c", L"a/b/c/  "}, {"010;a;b;c;", L"a/b/c/  "},
        {"010;a;b;c;;", L"a/b/c/"}, {"010;a;b;c;d;e", L"a/b/c/d"},
        {"010;;;;", L"///  "},      {"010;1;x;w|010;2;y;z", L"2/y/z/  "}};
    for (const auto& [line, texts] : cases) {
        SCOPED_TRACE(line);
        CVentVdiKatalog fresh;
        // A file without a head leaves that of the file before.
        for (const std::string& records : {std::string(line), std::string()}) {
            ASSERT_TRUE(fresh.LadeHersteller(NeuerHersteller(Saetze(records))));
            EXPECT_EQ(fresh.NormDatum + L"/" + fresh.HerstellerName + L"/" +
                          fresh.AusfuehrungDatum + L"/" + fresh.Kopf4,
                      texts);
        }
    }
}

TEST_F(CVentVdiKatalogTest, TheShortNameGrowsWithEachHead)
{
    const std::pair<const char*, const wchar_t*> loads[] = {{"Prova Valvole", L"Prova"},
                                                            {"Uno", L"ProvaUno"},
                                                            {" x", L"ProvaUno"},
                                                            {"", L"ProvaUno"},
                                                            {"Due\tTre", L"ProvaUnoDue\tTre"}};
    for (const auto& [name, kurz] : loads) {
        ASSERT_TRUE(Lade("010;a;" + std::string(name) + ";c"));
        EXPECT_EQ(katalog.HerstellerKurz, kurz);
        EXPECT_EQ(katalog.HerstellerKurzKopie, kurz);
    }
}

TEST_F(CVentVdiKatalogTest, UmlautsOfADosFileAreRepaired)
{
    // 0x8E, 0x99 and 0x9A are other letters in code page 1252, which the table does not name.
    const std::string dos = "\x81\x84\x94\xE1\x8E\x99\x9A\xFC\x80";
    ASSERT_TRUE(Lade("100;1;" + dos + "|110;1;\x84|800;\x94;\x81;\xE1"));
    EXPECT_EQ(katalog.ErsteHauptgruppe->Name, L"üäöß\u017D\u2122\u0161ü\u20AC");
    EXPECT_EQ(katalog.ErsteHauptgruppe->Zeile, L"100;1;" + katalog.ErsteHauptgruppe->Name);
    EXPECT_EQ(katalog.ErsteHauptgruppe->Gruppen->Artikel->TgaNr, L"ö");
    EXPECT_EQ(katalog.ErsteHauptgruppe->Gruppen->Artikel->Datanorm, L"ß");
}

TEST_F(CVentVdiKatalogTest, UmlautsOfAWideFileAreRepaired)
{
    const CString line =
        L"100;1;\u0081\u0084\u008E\u0094\u0099\u009A\u00E1\u201D\u201Eü\u201Cx\r\n";
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : Utf16FromWide(line)) {
        bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    }
    ASSERT_TRUE(katalog.LadeHersteller(NeuerHersteller(bytes)));
    EXPECT_EQ(katalog.ErsteHauptgruppe->Name, L"üäÄöÖÜßöäü\u201Cx");
}

TEST_F(CVentVdiKatalogTest, AFileWithTheNewerHeadIsRefusedAndTheOldTreeStays)
{
    using namespace std::string_literals;
    const std::pair<std::string, bool> cases[] = {
        {"000\r\n", true},
        {"000;x\r\n010;a;b;c\r\n", true},
        {"0000;x\r\n", false},
        {" 000;x\r\n", false},
        {"000 ;x\r\n", false},
        {";000\r\n", false},
        {"00;x\r\n", false},
        {"", false},
        {"\r\n000;x\r\n", false},
        {"010;a;b;c\r\n000;x\r\n", false},
        // Without a line end there is no line, and a blank stands for the last one.
        {"000;x", false},
        {"000;x ", true},
        // Two line ends in front count as one.
        {"\n\n000;x\n", false},
        {"000;" + std::string(200000, 'x') + "\r\n", true},
        {"\xFF\xFE\x30\0\x30\0\x30\0;\0\n\0"s, true},
    };
    for (const auto& [bytes, isNew] : cases) {
        SCOPED_TRACE(bytes.substr(0, 20));
        ASSERT_TRUE(Lade(kGuteDatei));
        EXPECT_EQ(katalog.LadeHersteller(NeuerHersteller(bytes)), !isNew);
        EXPECT_EQ(katalog.HatNeuenKopf(), isNew);
        EXPECT_EQ(katalog.AnzahlHauptgruppen, isNew ? 1 : 0);
        EXPECT_EQ(katalog.LetzterPfad, katalog.DateiPfad);
    }
    EXPECT_FALSE(katalog.LeseNeuesFormat());
}

TEST_F(CVentVdiKatalogTest, AMissingFileEmptiesTheTreeWithoutAMessage)
{
    const CMessageLog messages;
    ASSERT_TRUE(Lade(kGuteDatei));
    EXPECT_FALSE(katalog.LadeHersteller(L"Nessuno"));
    EXPECT_FALSE(katalog.HatNeuenKopf());
    EXPECT_EQ(katalog.ErsteHauptgruppe, nullptr);
    EXPECT_TRUE(messages.Texts().empty());
    std::filesystem::create_directories(m_folder.Root() / "Cartella" / "ha.tga");
    EXPECT_FALSE(katalog.LadeHersteller(L"Cartella")) << "a folder is no file";
}

TEST_F(CVentVdiKatalogTest, LinesComeFromTheFirstReadingAndTheNewerHeadFromTheDisk)
{
    Schreibe("Prova", Saetze("000;x"));
    ASSERT_FALSE(katalog.LadeHersteller(L"Prova"));
    Schreibe("Prova", Saetze(kGuteDatei));
    ASSERT_TRUE(katalog.LadeHersteller(L"Prova"));
    const std::string first = Bild(katalog);
    EXPECT_EQ(first, kGruppeBild + "a3 ])") << "a refused file is not held";

    Schreibe("Prova", Saetze("100;9;Altro"));
    EXPECT_TRUE(CVentVdiKatalog().LadeHersteller(L"Prova"));
    EXPECT_TRUE(katalog.LadeHersteller(L"Prova"));
    EXPECT_EQ(Bild(katalog), first) << "a change on disk is not seen, and parsing starts anew";

    Schreibe("Prova", Saetze("000;x"));
    EXPECT_FALSE(katalog.LadeHersteller(L"Prova"));
    EXPECT_TRUE(katalog.LeseDatei()) << "the reader proper does not look at the head";
    EXPECT_EQ(Bild(katalog), first);

    std::filesystem::remove(m_folder.Root() / "Prova" / "ha.tga");
    EXPECT_TRUE(katalog.LadeHersteller(L"Prova"));
    EXPECT_EQ(Bild(katalog), first);
}

TEST_F(CVentVdiKatalogTest, ThePathLeadsThroughTheDataFolder)
{
    EXPECT_EQ(katalog.DateiPfad, m_folder.Path()) << "before the first load";
    EXPECT_EQ(katalog.LetzterPfad, L"");
    katalog.LadeHersteller(L"X");
    EXPECT_EQ(katalog.DateiPfad, m_folder.Path() + L"\\X\\ha.tga");
    EXPECT_EQ(VentilDateiPfad(L"C:\\ve", L"X"), L"C:\\ve\\X\\ha.tga");
    EXPECT_EQ(VentilDateiPfad(L"C:\\ve\\", L"X\\"), L"C:\\ve\\X\\ha.tga");
}

TEST_F(CVentVdiKatalogTest, SwitchedOnTheLineCheckSkipsEveryLine)
{
    PruefeVentilzeilen = true;
    const bool loaded = Lade("100;1;A|700|110");
    PruefeVentilzeilen = false;
    EXPECT_TRUE(loaded);
    EXPECT_EQ(katalog.ErsteHauptgruppe, nullptr);
}

TEST(PruefeSatzende, TellsWhatIsWrongIfAsked)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"100;1;\n", nullptr},
        {L";\n", nullptr},
        {L"\n", L"Satz  7 enthält keine Daten"},
        {L";", L"Satz  7 enthält keine Daten"},
        {L"100;1;", L"Blank am Satzende von Satz  7 "},
        {L"100;1; \n", L"Blank am Satzende von Satz  7 "},
        {L"100;1\n", L"Blank am Satzende von Satz  7 "}};
    for (const auto& [zeile, message] : cases) {
        SCOPED_TRACE(Utf8FromWide(zeile));
        for (const bool melden : {false, true}) {
            const CMessageLog messages;
            EXPECT_EQ(PruefeSatzende(zeile, 7, melden), message == nullptr);
            std::vector<CString> expected;
            if (melden && message != nullptr) {
                expected.push_back(message);
            }
            EXPECT_EQ(messages.Texts(), expected);
        }
    }
}

TEST(LeseIdent, SplitsTheTextIntoItsGroups)
{
    const std::pair<const wchar_t*, VentIdent> cases[] = {
        {L"0102030405060708", {1, 2, 3, 4, 5, 6, 7, 8, -1, -1, -1, -1, -1, -1, -1, -1, -1}},
        {L"01020304050607089", {1, 2, 3, 4, 5, 6, 7, 8, 9, -1, -1, -1, -1, -1, -1, -1, -1}},
        {L"011213141516171819202122232425123499",
         {1, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 1234, 99}},
        {L"0112131415161718192021222324251234990000",
         {1, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 1234, 99}},
        // Cut within the wide group, and within the last.
        {L"01121314151617181920212223242512",
         {1, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 12, -1}},
        {L"01121314151617181920212223242512345",
         {1, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 1234, 5}},
        // "?" counts at the start of a group only.
        {L"??12?31?1516171819202122232425????9?",
         {-1, 12, -1, 1, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, -1, 9}},
        // A sign counts towards the width, and a group without a digit stays 0.
        {L"-1+2xx1x-x16171819202122232425-123--",
         {-1, 2, 0, 1, 0, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, -123, 0}},
        // Blanks are skipped without counting: the scan runs into the next group.
        {L" 12345  6789012345678901234567890   ",
         {12, 23, 45, 67, 67, 89, 1, 23, 45, 67, 89, 1, 23, 45, 67, 890, 0}},
    };
    for (const auto& [text, groups] : cases) {
        SCOPED_TRACE(Utf8FromWide(text));
        VentIdent ident = {};
        LeseIdent(text, ident);
        EXPECT_EQ(ident, groups);
    }
}

TEST(LeseIdent, AShortTextLeavesTheGroupsAlone)
{
    VentIdent ident;
    ident.fill(7);
    const VentIdent before = ident;
    LeseIdent(L"010203040506070", ident);
    EXPECT_EQ(ident, before);
}

TEST_F(CVentVdiKatalogTest, AFileOfVeryManyNodesIsReadAndFreed)
{
    constexpr int kCount = 300000;
    // Bare line feeds: a pair would count as two line ends at the border of a chunk.
    std::ostringstream records;
    records << "100;1;A\n110;1;B\n700;1\n";
    for (int i = 0; i < kCount; ++i) {
        records << "710.01;" << i << "\n800;" << i << "\n";
    }
    for (int i = 0; i < kCount; ++i) {
        records << "100;" << i << ";C\n110;" << i << ";D\n";
    }
    ASSERT_TRUE(katalog.LadeHersteller(NeuerHersteller(records.str())));
    EXPECT_EQ(katalog.AnzahlHauptgruppen, kCount + 1);
    int articles = 0;
    ForEachArtikel(katalog, [&](const auto&, const VENT_VDI3805_ARTIKEL& artikel) {
        articles = artikel.ZeilenNr == 5 + 2 * articles ? articles + 1 : -1;
    });
    EXPECT_EQ(articles, kCount);
    EXPECT_FALSE(katalog.LadeHersteller(L"Nessuno"));
    EXPECT_EQ(katalog.ErsteHauptgruppe, nullptr);
}
