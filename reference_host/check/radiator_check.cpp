#include "reference_host/check/radiator_check.h"

#include "common/katalog_pruefung.h"
#include "platform/exception.h"
#include "platform/file_limits.h"
#include "platform/format.h"
#include "platform/whole_file.h"
#include "reference_host/catalog/reader/catalogue_file.h"
#include "reference_host/catalog/reader/row_builder.h"
#include "reference_host/check/check_texts.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <variant>

namespace reference_host {

namespace {

/// Where a fault of a row stands in the file.
struct CPlace
{
    int nLine;
    CString strField;
};

CPlace PlaceOfLength(const CCatalogueSeries& serie, int line)
{
    if (serie.IsPerSection()) {
        return {line, FieldPlace(L"710.03", 1, L"lunghezza dell'elemento")};
    }
    if (serie.zuschnitt && line == serie.zuschnitt->nLine) {
        return {line, FieldPlace(L"710.02", 1, L"lunghezza minima")};
    }
    return {line, FieldPlace(L"710.01", 2, L"lunghezza")};
}

/// An output or a content may be that of the unit, which stands beside its length.
CPlace PlaceOfOwn(const CCatalogueSeries& serie, int line, bool own, int ownField, int field,
                  const wchar_t* name)
{
    return own ? CPlace{line, FieldPlace(L"710.01", ownField, name)}
               : CPlace{serie.nLine, FieldPlace(L"700", field, name)};
}

CPlace PlaceOf(KatalogFeld feld, const CCatalogueSeries& serie, const CCatalogueRow& row)
{
    const HK_DATEN_VDI3805& daten = row.row.Daten;
    const bool unit = !serie.IsPerMetre() && !serie.IsPerSection();
    switch (feld) {
    case KatalogFeld::hoehe:
        return {serie.nLine, FieldPlace(L"700", 4, L"altezza")};
    case KatalogFeld::tiefe:
        return {serie.nLine, FieldPlace(L"700", 5, L"profondità")};
    case KatalogFeld::leistung:
        return PlaceOfOwn(serie, row.nLine, unit && daten.LeistungEN442 != serie.dLeistung, 3, 6,
                          L"potenza");
    case KatalogFeld::inhalt:
        return PlaceOfOwn(serie, row.nLine, unit && daten.Inhalt != serie.dInhalt, 4, 8,
                          L"contenuto d'acqua");
    case KatalogFeld::elemente:
        return {row.nLine, FieldPlace(L"710.03", 2, L"numero massimo di elementi")};
    default:
        return PlaceOfLength(serie, row.nLine);
    }
}

/// The most rows that the product has for any requirement.
std::size_t MostRows(const CCatalogueProduct& produkt)
{
    // From a watt to far more than any radiator gives.
    constexpr int requirements = 80;
    constexpr double step = 1.3;
    std::size_t most = 0;
    double output = 1.0;
    for (int i = 0; i < requirements; ++i) {
        most = std::max(most, BuildRows(produkt, output).size());
        output *= step;
    }
    return most;
}

void Append(OCArray<double>& list, const std::set<double>& sizes)
{
    for (const double size : sizes) {
        list.Add(size);
    }
}

class CRadiatorCheck
{
public:
    CRadiatorCheck(const CString& file, CCheckReport& report) : m_file(file), m_report(report) {}

    void Check(const CCatalogue& katalog)
    {
        CheckNames(katalog.arten, L"100", L"la categoria");
        for (const CCatalogueKind& art : katalog.arten) {
            CheckNames(art.produkte, L"110", L"il prodotto");
            for (const CCatalogueProduct& produkt : art.produkte) {
                CheckProduct(produkt);
            }
        }
    }

private:
    template <class Part>
    void CheckNames(const std::vector<Part>& parts, const wchar_t* record, const CString& what)
    {
        std::map<CString, const Part*> seen;
        for (const Part& part : parts) {
            const auto [first, isNew] = seen.try_emplace(ReadName(part.strName), &part);
            if (!isNew) {
                m_report.Find(m_file, part.nLine,
                              FieldPlace(record, 2, L"nome") + what + L" \"" + part.strName +
                                  L"\" si distingue da \"" + first->second->strName + L"\" (riga " +
                                  FormatInt(first->second->nLine) +
                                  L") solo per maiuscole o spazi");
            }
        }
    }

    void CheckProduct(const CCatalogueProduct& produkt)
    {
        std::vector<CCatalogueRow> rows = BuildAllRows(produkt);
        m_report.nRows += static_cast<int>(rows.size());
        HK_VDI3805_PRODUKT node;
        const CCrossSections sizes = CrossSectionsOf(produkt);
        Append(node.Hoehen, sizes.hoehen);
        Append(node.Tiefen, sizes.tiefen);
        node.pTyp = &rows.front().row;
        for (std::size_t i = 1; i < rows.size(); ++i) {
            rows[i - 1].row.pNext = &rows[i].row;
        }
        const bool bTooMany =
            rows.size() > kMaxKatalogZeilen && MostRows(produkt) > kMaxKatalogZeilen;
        m_told.clear();
        for (const CKatalogMangel& mangel : PruefeProdukt(node)) {
            if (mangel.nRow >= 0) {
                const CCatalogueRow& row = rows[static_cast<std::size_t>(mangel.nRow)];
                Tell(mangel, PlaceOf(mangel.feld, produkt.serien[row.nSerie], row));
            } else if (mangel.regel != KatalogRegel::anzahl || bTooMany) {
                Tell(mangel, {produkt.nLine, L"Prodotto \"" + produkt.strName + L"\": "});
            }
        }
        CheckArticles(produkt, rows);
    }

    /// Rows of one line often share a fault.
    void Tell(const CKatalogMangel& mangel, const CPlace& place)
    {
        if (mangel.nRow < 0 || m_told.emplace(place.nLine, mangel.feld, mangel.regel).second) {
            m_report.Find(m_file, place.nLine, place.strField + mangel.strText);
        }
    }

    void CheckArticles(const CCatalogueProduct& produkt, const std::vector<CCatalogueRow>& rows)
    {
        std::vector<std::set<double>> sizes(produkt.serien.size());
        for (const CCatalogueRow& row : rows) {
            const bool sections = produkt.serien[row.nSerie].IsPerSection();
            sizes[row.nSerie].insert(sections ? row.row.Daten.Elemente : row.row.Daten.Laenge);
        }
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            CheckArticles(produkt.serien[i], sizes[i]);
        }
    }

    void CheckArticles(const CCatalogueSeries& serie, const std::set<double>& sizes)
    {
        const CString place = FieldPlace(L"800", 2, L"lunghezza o numero di elementi");
        std::map<double, int> lines;
        for (const CCatalogueArticle& article : serie.artikel) {
            const CString size = FormatPlain(article.dSize);
            const auto [first, isNew] = lines.try_emplace(article.dSize, article.nLine);
            if (!sizes.contains(article.dSize)) {
                m_report.Find(m_file, article.nLine,
                              place + L"la serie non ha la misura " + size +
                                  L": l'articolo non ha effetto");
            } else if (!isNew) {
                m_report.Find(m_file, article.nLine,
                              place + L"la misura " + size + L" ha già l'articolo della riga " +
                                  FormatInt(first->second) + L", che vale");
            }
        }
    }

    const CString& m_file;
    CCheckReport& m_report;
    std::set<std::tuple<int, KatalogFeld, KatalogRegel>> m_told;
};

void CheckBytes(const CString& file, const std::string& bytes, CCheckReport& report)
{
    if (const int line = FindUtf8Line(bytes)) {
        report.Find(file, line, kIsUtf8);
    }
    auto result = ParseCatalogue(BytesOf(bytes));
    if (auto* const fault = std::get_if<CFileFault>(&result)) {
        fault->strFile = file;
        report.findings.push_back(std::move(*fault));
        return;
    }
    CRadiatorCheck(file, report).Check(std::get<CCatalogue>(result));
}

} // namespace

void CheckRadiatorFile(const CString& file, CCheckReport& report)
{
    try {
        const auto bytes = ReadWholeFile(file, kLargestCatalogue);
        ++report.nCatalogues;
        if (bytes) {
            CheckBytes(file, *bytes, report);
        } else {
            report.Find(file, 0, DescribeTooLarge(kLargestCatalogue));
        }
    } catch (const CFileException& error) {
        report.unreadable.push_back(error.GetErrorMessage());
    }
}

} // namespace reference_host
