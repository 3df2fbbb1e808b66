#include "connection/kurzliste.h"
#include "host/host_base.h"
#include "host/host_fittings.h"
#include "platform/encoding.h"
#include "tests/src/connection/test_ansicht.h"
#include "tests/support/setting_override.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

using namespace reference_host;

namespace {

TEST(ConnectionSamples, EveryTypeIsReadUnderItsNameAndDiffersFromAllOthers)
{
    const CSettingOverride setting{kSettingServerPath, WideFromUtf8(RADSEL_DATA_DIR "/root")};
    CAnschlussZustand zustand;
    CTestAnsicht ansicht;
    ASSERT_TRUE(LeseVentTxt(zustand, ansicht));
    const Anschlussliste& liste = zustand.m_Anschlussliste;
    EXPECT_GE(liste.GetSize(), 12);
    ASSERT_EQ(ansicht.typen.texte.size(), static_cast<std::size_t>(liste.GetSize()));

    std::set<CString> names;
    // What the search for a record's type compares.
    std::set<std::tuple<ConnVector, ConnVector, ConnVector, ConnVector, ConnVector>> points;
    for (int i = 0; i < liste.GetSize(); ++i) {
        const ConnValues& typ = liste[i];
        EXPECT_EQ(typ.Name, ansicht.typen.texte[static_cast<std::size_t>(i)]);
        names.insert(typ.Name);
        points.emplace(typ.PosAN, typ.OffsetAN, typ.PosRI, typ.OffsetRI, typ.WinkelRI);
        for (const CString& text : {typ.AnschlussAN, typ.AnschlussRI}) {
            ConnVector v;
            double d = 0;
            int k = 0;
            EXPECT_EQ(lmGet_K_APUNKT_X(text, v.data(), v.data(), v.data(), d, d, k, d), 8)
                << Utf8FromWide(typ.Name);
        }
    }
    EXPECT_EQ(names.size(), ansicht.typen.texte.size());
    EXPECT_EQ(points.size(), ansicht.typen.texte.size());
}

} // namespace
