#include "reference_host/check/check_run.h"

#include "platform/encoding.h"
#include "platform/path.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace reference_host {

namespace {

struct CRun
{
    CheckExit exit;
    std::string out;
    std::string err;
};

CRun Check(const std::vector<CString>& arguments)
{
    std::ostringstream out;
    std::ostringstream err;
    const CheckExit exit = RunCheck(arguments, out, err);
    return {exit, out.str(), err.str()};
}

/// Lines, which stand in one text with "|" between them.
std::string Lines(const std::string& text)
{
    std::string bytes;
    for (const char c : text + '|') {
        bytes += c == '|' ? '\n' : c;
    }
    return bytes;
}

/// The findings without the file in front and the count behind.
std::string Findings(const CTempFolder& folder, const std::string& name, const CRun& run)
{
    const std::string file = Utf8FromWide(folder.Path(name));
    std::istringstream lines(run.out);
    std::string findings;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(file + ": ")) {
            findings += line.substr(file.size() + 2) + '|';
        }
    }
    return findings;
}

const std::string kRadiators = "010;200410;Prova S.p.A.;20240301|100;1;K|110;1;P|";
const std::string kValves = "010;200410;Prova S.p.A.;20240301|100;1;A|110;1;B|";
const std::string kDataSet = "700;1;2;15;0.9;;;;;;;1;;|710.01;1;2;;;1;;;0.25|";
const std::string kNumber = "02000000000000000000000000000000010";

TEST(CheckRun, EachFaultIsToldWithItsLineAndField)
{
    const std::string unit = "700;1;T;E;600;100;1000;1.3;5|";
    const std::string number = kNumber + "0";
    const std::string point = "0;0;0;0;0;0;0;0";
    const struct
    {
        const char* what;
        const char* name;
        std::string lines;
        /// How each finding begins, with "|" between them.
        std::vector<const char*> findings;
    } cases[] = {
        {"what the reader refuses",
         "hk.tga",
         kRadiators + "700;1;T;M;;100;1700;1.3;6",
         {"riga 4: Record 700, campo 4 (altezza): manca il numero"}},
        {"UTF-8",
         "hk.tga",
         kRadiators + "700;1;Tür;E;600;100;1000;1.3;5|710.01;1;600",
         {"riga 4: il testo è in UTF-8"}},
        {"names that look alike",
         "hk.tga",
         kRadiators + unit + "710.01;1;600|110;2;p |" + unit + "710.01;1;600",
         {"riga 6: Record 110, campo 2 (nome): il prodotto \"p \" si distingue da \"P\" (riga 3)"}},
        {"series that run into each other",
         "hk.tga",
         kRadiators + unit + "710.01;1;600|700;2;T;E;900;100;1500;1.3;5|710.01;1;600",
         {"riga 7: Record 710.01, campo 2 (lunghezza): la serie comincia con 600 mm"}},
        {"a series twice",
         "hk.tga",
         kRadiators +
             "700;1;T;S;600;100;65;1.3;1|710.03;45;9|700;2;T;S;600;100;65;1.3;1|710.03;45;9",
         {"riga 7: Record 710.03, campo 1 (lunghezza dell'elemento): la misura 600 x 100 x 45 mm"}},
        {"one measure with two contents",
         "hk.tga",
         kRadiators + unit +
             "710.01;1;500|710.01;2;600|700;2;U;E;600;100;900;1.3;5|710.01;1;500;;7",
         {"riga 8: Record 710.01, campo 4 (contenuto d'acqua): la misura 600 x 100 x 500 mm"}},
        {"values without sense",
         "hk.tga",
         kRadiators + "700;1;T;M;600.5;100;0.4;1.3;0|710.02;400;900;100",
         {"riga 4: Record 700, campo 4 (altezza): l'altezza 600.5 mm non è in millimetri interi",
          "riga 4: Record 700, campo 6 (potenza): la potenza della misura, arrotondata, è di 0 W",
          "riga 4: Record 700, campo 8 (contenuto d'acqua): con il contenuto d'acqua 0 l"}},
        {"lengths in steps of one and a half millimetres",
         "hk.tga",
         kRadiators + "700;1;T;M;600;100;1700;1.3;6|710.02;400;600;1.5",
         {"riga 5: Record 710.02, campo 1 (lunghezza minima): la lunghezza 401.5 mm"}},
        {"single sections",
         "hk.tga",
         kRadiators + "700;1;T;S;600;100;65;1.3;1|710.03;45;1",
         {"riga 3: Prodotto \"P\": il prodotto ha soltanto elementi singoli"}},
        {"more rows than are taken",
         "hk.tga",
         kRadiators + "700;1;T;M;600;100;1700;1.3;6|710.02;400;20000;5",
         {"riga 3: Prodotto \"P\": il prodotto ha 3921 righe"}},
        {"many sizes of which few are made at a time",
         "hk.tga",
         kRadiators + "700;1;T;M;600;100;1700;1.3;6|710.02;400;2500;1",
         {}},
        {"articles without effect",
         "hk.tga",
         kRadiators + unit + "710.01;1;600|800;1;601;A|800;1;600;B|800;1;600;C",
         {"riga 6: Record 800, campo 2 (lunghezza o numero di elementi): la serie non ha la misura "
          "601",
          "riga 8: Record 800, campo 2 (lunghezza o numero di elementi): la misura 600 ha già "
          "l'articolo della riga 7"}},

        {"another head", "ha.tga", "000;x", {"riga 1: la testata 000"}},
        {"fields that are missing",
         "ha.tga",
         kValves + "700;1|710.01;1;2;;;1;;;0.25|800",
         {"riga 4: al record 700 mancano i campi da 2 a 12",
          "riga 4: Record 700, campo 2 (tipo di valvola): 0 non è compreso tra 1 e 11",
          "riga 6: al record 800 manca il campo 1"}},
        {"no valve, only the name", "ha.tga", "\xEF\xBB\xBF", {"il file non ha articoli"}},
        {"records without parent",
         "ha.tga",
         "110;1;B",
         {"il file non ha articoli", "riga 1: il record 110 non ha un record 100 sopra di sé"}},
        {"numbers that are read otherwise",
         "ha.tga",
         kValves + "700;1;12;15;0,9;;;;;;;1;;|710.01;1;2;;;1;;;0,25|800;" + number + ";B",
         {"riga 4: Record 700, campo 4 (kvs): i decimali si scrivono con il punto",
          "riga 4: Record 700, campo 2 (tipo di valvola): 12 non è compreso",
          "riga 5: Record 710.01, campo 8 (kv): i decimali si scrivono con il punto"}},
        {"articles that are never found",
         "ha.tga",
         kValves + kDataSet + "800;" + number.substr(0, 29) + ";B|800;" + number + ";|800;" +
             number + ";B|100;2;C|110;1;D|800;" + number.substr(0, 30) + "000200;B",
         {"riga 6: Record 800, campo 1 (numero TGA): \"02",
          "riga 7: Record 800, campo 2 (numero d'ordine)",
          "riga 8: Record 800, campo 1 (numero TGA): il numero è già quello della riga 7",
          "riga 11: Record 800, campo 1 (numero TGA): rimanda al record 700 numero 2"}},
        {"texts that are not there or shifted",
         "ha.tga",
         kValves + "160;12;Testa|160;01;Testa|160;0;Tür|" + kDataSet + "800;020003" +
             number.substr(6) + ";B",
         {"riga 4: Record 160, campo 1 (numero): \"12\" non ha una cifra sola",
          "riga 5: Record 160, campo 1 (numero): \"01\" non ha una cifra sola",
          "riga 6: Record 160, campo 1 (numero): \"0\" non è un numero da 1 in su",
          "riga 6: il testo è in UTF-8",
          "riga 9: Record 800, campo 1 (numero TGA): rimanda al record 160 numero 3 (comando)"}},
        {"records of the last group behind a new main group",
         "ha.tga",
         kValves + kDataSet + "100;2;C|800;" + number + ";B",
         {}},
        {"data sets",
         "ha.tga",
         kValves + kDataSet + "710.02;1|710.01;2;2;;;2;;;0.3|700;1;2;15;0.9;;;;;;;1;;|800;" +
             number + ";B",
         {"riga 7: Record 710.01: la riga non segue il suo record 700",
          "riga 8: Record 700, campo 1 (numero del gruppo di dati): il numero 1 è già",
          "riga 8: Record 700: la tabella kv non ha righe"}},

        {"a short list",
         "Vent.txt",
         "[a]|V" + point + "|R" + point + "|[a]|V1;2|R" + point + "|[b",
         {"riga 4: il nome è già quello della riga 1",
          "riga 5: il punto di mandata ha meno di tre numeri",
          "riga 7: manca la parentesi quadra chiusa", "riga 7: il tipo \"\" non ha punti"}},
    };
    for (const auto& c : cases) {
        const CTempFolder folder;
        folder.WriteBytes(c.name, Lines(c.lines));
        const CRun run = Check({folder.Path(c.name)});
        std::istringstream found(Findings(folder, c.name, run));
        std::string finding;
        for (const char* const expected : c.findings) {
            std::getline(found, finding, '|');
            EXPECT_EQ(finding.substr(0, std::string(expected).size()), expected) << c.what;
        }
        EXPECT_FALSE(std::getline(found, finding, '|')) << c.what << ": " << finding;
        EXPECT_EQ(run.exit, c.findings.empty() ? CheckExit::clean : CheckExit::findings) << c.what;
        EXPECT_EQ(run.err, "");
    }
}

TEST(CheckRun, ALastLineWithoutItsEndIsLost)
{
    const CTempFolder folder;
    folder.WriteBytes("HA.TGA", Lines(kValves + kDataSet) + "800;" + kNumber + "0;B");
    const CRun run = Check({folder.Path("HA.TGA")});
    // The blank line behind the rows is no record, but it counts.
    EXPECT_NE(run.out.find("riga 6: l'ultima riga non ha la fine di riga"), std::string::npos)
        << run.out;
    EXPECT_EQ(run.exit, CheckExit::findings);
}

TEST(CheckRun, AFullTableIsToldOnce)
{
    std::string lines = kValves + "700;1;2;15;0.9;;;;;;;1;;";
    for (int row = 1; row <= 60; ++row) {
        lines += "|710.01;1;2;;;" + std::to_string(row) + ";;;0.25";
    }
    const CTempFolder folder;
    folder.WriteBytes("ha.tga", Lines(lines + "|800;" + kNumber + "0;B"));
    EXPECT_EQ(
        Findings(folder, "ha.tga", Check({folder.Path()})),
        "riga 54: Record 710.01: la tabella kv ha 50 righe: il modulo segnala \"MAXKV\" a ogni "
        "lettura e non ne legge altre|");
}

TEST(CheckRun, FoldersAreLookedThroughAndMakersToldFromEachOther)
{
    const CTempFolder folder;
    const std::string file =
        Lines(kRadiators + "700;1;T;E;600;100;1000;1.3;5|710.01;1;600|710.01;2;800");
    folder.WriteBytes("Altovico/hk.tga", file);
    folder.WriteBytes("Nuovo/hk.tga", file);
    const CRun run = Check({folder.Path()});
    EXPECT_EQ(run.out, "2 produttori di corpi scaldanti, 4 righe: nessun difetto\n");
    EXPECT_EQ(run.exit, CheckExit::clean);
    EXPECT_EQ(Check({folder.Path("Altovico")}).exit, CheckExit::clean);
}

TEST(CheckRun, NamesThatAreNearlyTheSameAreToldAndALinkThatLeadsBackEnds)
{
    const CTempFolder folder;
    const std::string file =
        Lines(kRadiators + "700;1;T;E;600;100;1000;1.3;5|710.01;1;600|710.01;2;800");
    folder.WriteBytes("Altovico/hk.tga", file);
    folder.WriteBytes("Nuovo/hk.tga", file);
    folder.WriteBytes("nuovo /hk.tga", file);
    const CRun run = Check({folder.Path()});
    EXPECT_EQ(run.out,
              Utf8FromWide(folder.Path("nuovo ")) +
                  ": il produttore \"nuovo \" si distingue da \"Nuovo\" solo per maiuscole o "
                  "spazi\n3 produttori di corpi scaldanti, 6 righe: 1 difetto\n");

    // However deep, and once where a link leads back.
    folder.WriteBytes("1/2/3/4/5/6/7/8/Altovico/hk.tga", file);
    std::filesystem::create_directory_symlink(folder.Root() / "1", folder.Root() / "1/2/back");
    EXPECT_TRUE(Check({folder.Path("1")}).out.starts_with("1 produttore di"));
    EXPECT_NE(Check({folder.Path()}).out.find("4 produttori di"), std::string::npos);
}

TEST(CheckRun, TheSamplesHaveNoFaultsButTheTwoThatTheyShow)
{
    const CRun run = Check({WideFromUtf8(RADSEL_DATA_DIR)});
    EXPECT_NE(
        run.out.find("Lindenbrück/hk.tga: riga 3: Prodotto \"Bodenkanal\": il prodotto ha 2125"),
        std::string::npos);
    EXPECT_NE(run.out.find("Möhrental/ha.tga: riga 615: Record 710.01: la tabella kv ha 50 righe"),
              std::string::npos);
    EXPECT_NE(
        run.out.find("4 produttori di corpi scaldanti, 10479 righe; 3 produttori di valvole, 343 "
                     "valvole; 22 tipi di attacco: 2 difetti\n"),
        std::string::npos)
        << run.out;
}

TEST(CheckRun, WhatCannotBeLookedAtHasExitCodesOfItsOwn)
{
    const CTempFolder folder;
    folder.WriteBytes("altro.txt", "x");
    const struct
    {
        std::vector<CString> arguments;
        CheckExit exit;
    } cases[] = {
        {{}, CheckExit::wrongArguments},
        {{L"--tutto"}, CheckExit::wrongArguments},
        {{L"-x"}, CheckExit::wrongArguments},
        {{folder.Path("altro.txt")}, CheckExit::wrongArguments},
        {{folder.Path("hk.tga")}, CheckExit::unreadable},
        {{folder.Path("nessuno")}, CheckExit::unreadable},
        {{folder.Path()}, CheckExit::unreadable},
    };
    for (const auto& c : cases) {
        const CRun run = Check(c.arguments);
        EXPECT_EQ(run.exit, c.exit);
        EXPECT_TRUE(run.err.starts_with("radsel_check: ")) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_EQ(Check({L"--help"}).exit, CheckExit::clean);
}

TEST(CheckRun, ALinkToNothingCannotBeRead)
{
    const CTempFolder folder;
    for (const char* const name : {"hk.tga", "ha.tga", "Vent.txt"}) {
        const std::filesystem::path link = folder.Root() / "rotto" / name;
        std::filesystem::create_directories(link.parent_path());
        std::filesystem::create_symlink("nessuno", link);
        EXPECT_EQ(Check({folder.Path("rotto")}).err, "radsel_check: non si può leggere " +
                                                         link.string() +
                                                         ": No such file or directory\n");
        std::filesystem::remove(link);
    }
}

} // namespace

} // namespace reference_host
