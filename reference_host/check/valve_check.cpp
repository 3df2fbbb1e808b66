#include "reference_host/check/valve_check.h"

#include "platform/exception.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "reference_host/catalog/reader/catalogue_text.h"
#include "reference_host/check/check_texts.h"
#include "reference_host/files/valve_file_check.h"

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace reference_host {

namespace {

/// Shorter numbers are never searched for.
constexpr std::size_t kShortestNumber = 30;
/// A kv table of so many rows is full, and the module says so with each reading.
constexpr int kFullTable = 50;
constexpr int kLargestKind = 11;
constexpr double kLargestNumber = 1e6;

struct CNumberField
{
    int nField;
    const wchar_t* name;
    double dMin;
    bool bRequired;
};

constexpr CNumberField kDataSetNumbers[] = {
    {1, L"numero del gruppo di dati", 0.0, true},
    {3, L"DN", 0.0, false},
    {4, L"kvs", 0.0, false},
    {5, L"primo valore", -kLargestNumber, false},
    {6, L"secondo valore", -kLargestNumber, false},
    {7, L"pressione massima", 0.0, false},
};

constexpr CNumberField kRowNumbers[] = {
    {2, L"xp", 0.0, true},
    {5, L"regolazione", -kLargestNumber, false},
    {7, L"kv del bypass", 0.0, false},
    {8, L"kv", 0.0, true},
    {9, L"kvs", 0.0, false},
};

struct CTextKind
{
    const wchar_t* record;
    std::size_t nPosition;
    const wchar_t* name;
};

/// Texts to which an article refers by two digits of its number.
constexpr CTextKind kTextKinds[] = {
    {L"160", 4, L"comando"}, {L"200", 6, L"forma costruttiva"}, {L"400", 18, L"materiale"}};

constexpr std::size_t kDataSetPosition = 30;

/// A group of the ident, as the module reads it: -1 where the number leaves it open, 0 where it has
/// no digits.
int IdentGroup(const CString& number, std::size_t position, int width)
{
    if (position >= number.size() || number[position] == L'?') {
        return -1;
    }
    short value = 0;
    ScanShort(number, position, width, value);
    return value;
}

class CValveLines
{
public:
    /// `told` are the lines of which it is known what they lack.
    CValveLines(const CString& file, std::set<int> told, CCheckReport& report)
        : m_file(file), m_told(std::move(told)), m_report(report)
    {
    }

    void Take(const CRecordLine& line)
    {
        const CString type = line.GetText(0);
        const bool told = m_told.contains(line.GetLineNumber());
        // Behind a new main group records go on to the last group until the next one begins.
        if (type == L"110") {
            CloseGroup();
        } else if (type == L"700") {
            TakeDataSet(line);
        } else if (type == L"710.01") {
            TakeRow(line);
        } else if (type == L"710.02" || type == L"710.03" || type == L"710.04" ||
                   type == L"710.05") {
            CloseDataSet();
        } else if (type == L"800") {
            m_hasArticles = true;
            if (!told) {
                TakeArticle(line);
            }
        } else if (!told && (type == L"160" || type == L"200" || type == L"400")) {
            TakeText(line, type);
        }
    }

    void Finish()
    {
        CloseGroup();
        if (!m_hasArticles) {
            m_report.Find(m_file, 0,
                          L"il file non ha articoli (record 800): non c'è alcuna valvola");
        }
    }

private:
    struct CArticle
    {
        CString strNumber;
        int nLine;
    };

    struct CDataSet
    {
        int nLine;
        int nRows = 0;
        int nKind = 0;
        float last = 0.0F;
        bool bTold = false;
    };

    void Find(int line, const CString& place, const CString& text)
    {
        m_report.Find(m_file, line, place + text);
    }

    template <std::size_t N>
    void CheckNumbers(const CRecordLine& line, const CNumberField (&fields)[N])
    {
        for (const CNumberField& field : fields) {
            const bool told = m_told.contains(line.GetLineNumber());
            if (line.IsEmpty(field.nField) && (told || !field.bRequired)) {
                continue;
            }
            try {
                line.ReadNumber(field.nField, field.name, field.dMin, kLargestNumber);
            } catch (const CFileFault& fault) {
                m_report.Find(m_file, fault.nLine, fault.strMessage);
            }
        }
    }

    void TakeDataSet(const CRecordLine& line)
    {
        CloseDataSet();
        CheckNumbers(line, kDataSetNumbers);
        const int number = _wtoi(line.GetText(1));
        const int kind = _wtoi(line.GetText(2));
        const auto [first, isNew] = m_dataSets.try_emplace(number, line.GetLineNumber());
        if (!isNew) {
            Find(line.GetLineNumber(), FieldPlace(L"700", 1, L"numero del gruppo di dati"),
                 L"il numero " + FormatInt(number) + L" è già quello della riga " +
                     FormatInt(first->second) + L", che vale per tutte le valvole del gruppo");
        }
        if (kind < 1 || kind > kLargestKind) {
            Find(line.GetLineNumber(), FieldPlace(L"700", 2, L"tipo di valvola"),
                 FormatInt(kind) + L" non è compreso tra 1 e " + FormatInt(kLargestKind) +
                     (kind > kLargestKind ? L": la tabella kv non si legge"
                                          : L": la valvola non ha una descrizione"));
        }
        m_dataSet = CDataSet{line.GetLineNumber()};
        m_dataSet->nKind = kind;
    }

    void TakeRow(const CRecordLine& line)
    {
        CheckNumbers(line, kRowNumbers);
        if (!m_dataSet) {
            Find(line.GetLineNumber(), L"Record 710.01: ",
                 L"la riga non segue il suo record 700 e non appartiene ad alcuna tabella kv");
            return;
        }
        const auto setting = static_cast<float>(_wtof(line.GetText(5)));
        if (m_dataSet->nRows > 0 && setting == m_dataSet->last) {
            return; // The module keeps the first of several rows of one presetting.
        }
        m_dataSet->last = setting;
        if (++m_dataSet->nRows >= kFullTable && !m_dataSet->bTold) {
            m_dataSet->bTold = true;
            Find(line.GetLineNumber(), L"Record 710.01: ",
                 L"la tabella kv ha " + FormatInt(kFullTable) +
                     L" righe: il modulo segnala \"MAXKV\" a ogni lettura e non ne legge altre");
        }
    }

    void CloseDataSet()
    {
        if (m_dataSet && m_dataSet->nRows == 0 && m_dataSet->nKind <= kLargestKind) {
            Find(m_dataSet->nLine, L"Record 700: ", L"la tabella kv non ha righe (record 710.01)");
        }
        m_dataSet.reset();
    }

    void TakeArticle(const CRecordLine& line)
    {
        const CString number = line.GetText(1);
        const CString place = FieldPlace(L"800", 1, L"numero TGA");
        if (number.size() < kShortestNumber) {
            Find(line.GetLineNumber(), place,
                 L"\"" + number + L"\" ha meno di " +
                     FormatInt(static_cast<long long>(kShortestNumber)) +
                     L" caratteri: la valvola non si trova mai");
            return;
        }
        const auto [first, isNew] = m_numbers.try_emplace(number, line.GetLineNumber());
        if (!isNew) {
            Find(line.GetLineNumber(), place,
                 L"il numero è già quello della riga " + FormatInt(first->second) + L", che vale");
        }
        if (line.IsEmpty(2)) {
            Find(line.GetLineNumber(), FieldPlace(L"800", 2, L"numero d'ordine"),
                 L"manca il testo: la valvola passa per non trovata");
        }
        m_articles.push_back({number, line.GetLineNumber()});
        ++m_report.nValves;
    }

    void TakeText(const CRecordLine& line, const CString& type)
    {
        const CString written = line.GetText(1);
        const int number = _wtoi(written);
        m_texts[{type, number}] = line.GetLineNumber();
        const CString place = FieldPlace(type.c_str(), 1, L"numero");
        if (number < 1) {
            Find(line.GetLineNumber(), place,
                 L"\"" + written + L"\" non è un numero da 1 in su: il testo non si vede mai");
        } else if (written.size() != 1) {
            Find(line.GetLineNumber(), place,
                 L"\"" + written + L"\" non ha una cifra sola: il testo che si vede è spostato");
        }
    }

    void CloseGroup()
    {
        CloseDataSet();
        for (const CArticle& article : m_articles) {
            const CString place = FieldPlace(L"800", 1, L"numero TGA");
            const int dataSet = IdentGroup(article.strNumber, kDataSetPosition, 4);
            if (!m_dataSets.contains(dataSet)) {
                Find(article.nLine, place,
                     L"rimanda al record 700 numero " + FormatInt(dataSet) +
                         L", che il gruppo non ha: la valvola non si trova mai");
            }
            for (const CTextKind& kind : kTextKinds) {
                const int text = IdentGroup(article.strNumber, kind.nPosition, 2);
                if (text > 0 && !m_texts.contains({kind.record, text})) {
                    Find(article.nLine, place,
                         L"rimanda al record " + CString(kind.record) + L" numero " +
                             FormatInt(text) + L" (" + kind.name + L"), che il gruppo non ha");
                }
            }
        }
        m_articles.clear();
        m_dataSets.clear();
        m_texts.clear();
    }

    const CString& m_file;
    std::set<int> m_told;
    CCheckReport& m_report;
    bool m_hasArticles = false;
    // Of the open group.
    std::map<int, int> m_dataSets;
    std::map<std::pair<CString, int>, int> m_texts;
    std::vector<CArticle> m_articles;
    std::optional<CDataSet> m_dataSet;
    /// Line of each number in the file.
    std::map<CString, int> m_numbers;
};

} // namespace

void CheckValveFile(const CString& file, CCheckReport& report)
{
    try {
        const CValveFileCheck check(file);
        ++report.nValveFiles;
        if (const auto refusal = check.FindRefusal()) {
            report.findings.push_back(*refusal);
            return;
        }
        std::set<int> told;
        for (CFileFault& fault : check.FindAllFaults()) {
            told.insert(fault.nLine);
            report.findings.push_back(std::move(fault));
        }
        CValveLines lines(file, std::move(told), report);
        int number = 0;
        bool utf8 = false;
        for (const CString& line : check.GetLines()) {
            lines.Take(CRecordLine(line, ++number));
            if (!utf8 && IsUtf8Line(line)) {
                utf8 = true;
                report.Find(file, number, kIsUtf8);
            }
        }
        lines.Finish();
        if (!check.GetLost().empty()) {
            report.Find(file, number + 1, L"l'ultima riga non ha la fine di riga e non si legge");
        }
    } catch (const CFileException& error) {
        report.unreadable.push_back(error.GetErrorMessage());
    }
}

} // namespace reference_host
