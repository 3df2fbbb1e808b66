#include "workbench/batch/connection_list.h"

#include "common/text_file.h"
#include "platform/encoding.h"
#include "tests/src/common/lines.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace workbench {

namespace {

struct Listing
{
    ExitCode code;
    std::string out;
    std::string err;
};

Listing List(const CTempFolder& folder, std::initializer_list<CString> lines)
{
    WriteTextFile(folder.Path("Vent.txt"), Lines(lines), false, false, 0x1001);
    std::ostringstream out;
    std::ostringstream err;
    const ExitCode code = ListConnections(folder.Path("Vent.txt"), out, err);
    return {code, out.str(), err.str()};
}

TEST(ConnectionList, TypesAreToldInPlainWords)
{
    const CTempFolder folder;
    const Listing listing = List(folder, {L"[Più attacchi]", L"V-0.5; 0.0;  0;0; 0.5; -0.03; 180;0",
                                          L"R 0.25; 0.03; -0.5;0.1;-0.5;  0.00;   0;270"});
    EXPECT_EQ(
        listing.out,
        "Più attacchi\n"
        "    mandata: all'estremità sinistra, in alto 30 mm più in basso, tubo verso "
        "sinistra\n"
        "    ritorno: al 75 % dell'asse 30 mm a destra, sul fronte 100 mm verso la parete, in "
        "basso, tubo verso il basso\n"
        "Tipi di attacco: 1\n");
    EXPECT_EQ(listing.err, "");
    EXPECT_EQ(listing.code, ExitCode::ok);
}

TEST(ConnectionList, FaultsAreToldWithTheirLineAndTheRestIsListed)
{
    const CTempFolder folder;
    const CString point = L"0;0;0;0;0;0;0;0";
    const Listing listing =
        List(folder, {L"[senza punti]", L"[aperto", L"V" + point, L"R" + point, L"V" + point,
                      L"R1;2", L"[buono]", L"V" + point, L"R" + point, L"[monco]", L"x" + point});
    const std::string file = Utf8FromWide(folder.Path("Vent.txt"));
    EXPECT_EQ(listing.err,
              file + ": riga 1: il tipo \"senza punti\" non ha punti di attacco\n" + file +
                  ": riga 2: manca la parentesi quadra chiusa dopo il nome\n" + file +
                  ": riga 5: questi punti di attacco non hanno un nome proprio\n" + file +
                  ": riga 6: il punto di ritorno ha meno di tre numeri\n" + file +
                  ": riga 11: qui ci vuole il punto di mandata, una riga che inizia con V\n" +
                  file + ": riga 11: manca la riga del punto di ritorno\n");
    EXPECT_NE(listing.out.find("buono\n"), std::string::npos);
    EXPECT_NE(listing.out.find("Tipi di attacco: 2\n"), std::string::npos);
    EXPECT_EQ(listing.code, ExitCode::badCatalogue);

    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(ListConnections(folder.Path("manca.txt"), out, err), ExitCode::badCatalogue);
    EXPECT_NE(err.str().find("manca.txt"), std::string::npos);
}

} // namespace

} // namespace workbench
