#include "tests/reference_host/catalog/catalogue_fixture.h"

#include <cstddef>
#include <string>
#include <tuple>

namespace {
using CCatalogueReadingTest = CCatalogueTest;

constexpr char kHead[] = "010;200410;Prova;20240301\n";
// The series' record and its sizes are lines 4 and 5 of OneProduct().
constexpr char kSeries[] = "700;1;T;M;600;102;1700;1.33;6.3\n";
constexpr char kSize[] = "710.01;1;500\n";

std::string Utf16(const std::string& latin1)
{
    std::string bytes = "\xFF\xFE";
    for (const char c : latin1) {
        bytes += c;
        bytes += '\0';
    }
    return bytes;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}
} // namespace

TEST_F(CCatalogueReadingTest, AFaultIsToldWithItsLine)
{
    const std::string good = std::string(kSeries) + kSize;
    const std::tuple<std::string, int, const wchar_t*> cases[] = {
        {"", 0, L"testata"},
        {"\n\n999;x\n", 0, L"testata"},
        // Empty and unknown lines count as lines.
        {"\r\n;;\r\n999;x\r\n010;200410;Prova;20240301\r\n100;x;K\r\n", 5, L"campo 1"},
        {kHead, 0, L"categoria"},
        {"100;1;K\n", 1, L"testata"},
        {"\r\n\r\n010;200410\r\n", 3, L"nome del produttore"},
        {std::string(kHead) + "110;1;P\n", 2, L"record 100"},
        {std::string(kHead) + kSeries, 2, L"record 110"},
        {std::string(kHead) + "100;1;K\n700;1\n", 3, L"record 110"},
        {std::string(kHead) + "100;x;K\n", 2, L"campo 1"},
        {std::string(kHead) + "100;1;\n", 2, L"campo 2"},
        {std::string(kHead) + "100;1;K\n110;1;P\n" + good + "100;2;K\n", 6, L"due volte"},
        {std::string(kHead) + "100;1;K\n\n100;2;L\n", 2, L"non contiene prodotti"},
        {OneProduct(""), 3, L"non contiene serie"},
        {OneProduct(good + "110;2;P\n"), 6, L"due volte"},
        {OneProduct(good + "110;2;Q\n100;2;L\n"), 6, L"non contiene serie"},
        {OneProduct(kSize), 4, L"record 700"},
        {OneProduct(kSeries), 4, L"non ha misure"},
        {OneProduct(good + good), 6, L"due volte"},
        {OneProduct(kSeries + std::string("700;2;U;M;600;102;1700;1.33;6.3\n") + kSize), 4,
         L"non ha misure"},
        {OneProduct("700;1;T;MM;600;102;1700;1.33;6.3\n"), 4, L"forma costruttiva"},
        {OneProduct("700;1;T;M;;102;1700;1.33;6.3\n"), 4, L"campo 4 (altezza)"},
        {OneProduct("700;1;T;M;alto;102;1700;1.33;6.3\n"), 4, L"manca il numero"},
        {OneProduct("700;1;T;M;600;0;1700;1.33;6.3\n"), 4, L"campo 5"},
        {OneProduct("700;1;T;M;600;-102;1700;1.33;6.3\n"), 4, L"campo 5"},
        {OneProduct("700;1;T;M;600;102;1e999;1.33;6.3\n"), 4, L"campo 6"},
        {OneProduct("700;1;T;M;600;102;1700;1,33;6.3\n"), 4, L"punto"},
        {OneProduct("700;1;T;M;600;102;1700;1.33\n"), 4, L"campo 8"},
        {OneProduct(kSeries + std::string("710.01;1;500\n710.01;2;500\n")), 6, L"crescere"},
        {OneProduct(kSeries + std::string("710.02;900;400;50\n")), 5, L"inferiore"},
        {OneProduct(kSeries + std::string("710.02;400;900;0\n")), 5, L"passo"},
        {OneProduct(kSeries + std::string("710.02;400;900;50\n710.02;400;900;50\n")), 6, L"già"},
        {OneProduct(kSeries + std::string("710.03;45;20\n")), 5, L"elementi"},
        {OneProduct("700;1;T;S;600;102;65;1.3;0.9\n710.01;1;500\n"), 5, L"710.03"},
        {OneProduct("700;1;T;S;600;102;65;1.3;0.9\n710.03;45;1001\n"), 5, L"campo 2"},
        {OneProduct("700;1;T;E;600;102;65;1.3;0.9\n710.02;400;900;50\n"), 5, L"al metro"},
        {OneProduct(good + "800;2;500;ORD;Testo\n"), 6, L"serie 2"},
        {OneProduct(good + "800;1;500;;Testo\n"), 6, L"numero d'ordine"},
        {"\xEF\xBB\xBF" + OneProduct(good), 0, L"codifica"},
        {"\xFE\xFF" + OneProduct(good), 0, L"codifica"},
    };
    for (const auto& [bytes, line, message] : cases) {
        SCOPED_TRACE(bytes);
        WriteCatalogue("Prova", bytes);
        EXPECT_EQ(Read(L"Prova"), -1);
        EXPECT_EQ(FindHersteller(L"Prova")->pArt, nullptr);
        const auto error = reference_host::GetCatalogueError(L"Prova");
        ASSERT_TRUE(error);
        EXPECT_EQ(error->strFile, m_folder.Path("Prova/hk.tga"));
        EXPECT_EQ(error->nLine, line);
        EXPECT_NE(error->strMessage.find(message), CString::npos)
            << testing::PrintToString(error->strMessage);
    }
}

TEST_F(CCatalogueReadingTest, TheSizesOfAFileAreLimitedInAll)
{
    // Two series of 99,501 lengths stay within 200,000 sizes, a third goes beyond.
    const std::string cut = ";T;M;600;102;1700;1.33;6.3\n710.02;500;100000;1\n";
    WriteCatalogue("Prova", OneProduct("700;1" + cut + "700;2" + cut));
    EXPECT_GT(Read(L"Prova"), 0);
    WriteCatalogue("Prova", OneProduct("700;1" + cut + "700;2" + cut + "700;3" + cut));
    EXPECT_EQ(Read(L"Prova"), -1);
    EXPECT_EQ(reference_host::GetCatalogueError(L"Prova")->nLine, 9);
}

TEST_F(CCatalogueReadingTest, EncodingAndLineEndsMakeNoDifference)
{
    const std::string latin1 = "010;200410;Pr\xFC"
                               "fer;20240301\n\n100;1;K\xE4lte\n999;sconosciuto\n110;1;P\xF9\n" +
                               std::string(kSeries) + "710.01;1;500;\n710.01;2;900";
    const std::string crlf = Replaced(latin1, "\n", "\r\n");
    const std::string files[] = {
        latin1,      latin1 + "\n",      crlf,       crlf + "\r\n", Utf16(latin1),
        Utf16(crlf), Utf16(crlf) + "\r", crlf + "\r"};
    for (const std::string& bytes : files) {
        SCOPED_TRACE(bytes);
        WriteCatalogue("Prova", bytes);
        ASSERT_EQ(Read(L"Prova"), 2);
        EXPECT_FALSE(reference_host::GetCatalogueError(L"Prova"));
        const HK_VDI3805_PRODUKT* produkt = Produkt(L"Prova", L"K\u00E4lte", L"P\u00F9");
        ASSERT_NE(produkt, nullptr);
        EXPECT_EQ(Rows(*produkt).back()->Daten.Laenge, 900);
    }
}
