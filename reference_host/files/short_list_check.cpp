#include "reference_host/files/short_list_check.h"

#include "host/host_fittings.h"

#include <optional>
#include <utility>

namespace reference_host {

namespace {

/// Fewer numbers make no point: the dialog leaves such an entry out.
constexpr int kFewestNumbers = 3;

bool IsPoint(const CString& text)
{
    double values[3] = {};
    double distance = 0.0;
    int kind = 0;
    return lmGet_K_APUNKT_X(text, values, values, values, distance, distance, kind, distance) >=
           kFewestNumbers;
}

class CListWalk
{
public:
    explicit CListWalk(const CShortListFile& list) : m_list(list), m_lines(list.lines) {}

    CShortListCheck Walk()
    {
        for (int i = 0; i < m_lines.GetSize(); ++i) {
            if (m_lines[i].starts_with(L'[')) {
                TakeName(i);
            } else {
                TakePair(i++);
            }
        }
        CheckNameUsed();
        return std::move(m_check);
    }

private:
    void Fault(int index, const CString& message)
    {
        m_check.faults.emplace_back(index + 1, message, m_list.strFile);
    }

    void CheckNameUsed()
    {
        if (m_nNameLine >= 0) {
            Fault(m_nNameLine, L"il tipo \"" + m_name + L"\" non ha punti di attacco");
        }
    }

    void TakeName(int index)
    {
        CheckNameUsed();
        const CString& line = m_lines[index];
        if (line.size() < 2 || line.back() != L']') {
            Fault(index, L"manca la parentesi quadra chiusa dopo il nome");
        }
        m_name = line.size() < 2 ? CString() : line.substr(1, line.size() - 2);
        m_nNameLine = index;
    }

    std::optional<CString> TakePoint(int index, wchar_t mark, const CString& what)
    {
        if (index >= m_lines.GetSize()) {
            Fault(index - 1, L"manca la riga del punto di " + what);
            return std::nullopt;
        }
        const CString& line = m_lines[index];
        if (!line.starts_with(mark)) {
            Fault(index,
                  L"qui ci vuole il punto di " + what + L", una riga che inizia con " + mark);
            return std::nullopt;
        }
        CString text = line.substr(1);
        if (!IsPoint(text)) {
            Fault(index, L"il punto di " + what + L" ha meno di tre numeri");
            return std::nullopt;
        }
        return text;
    }

    void TakePair(int index)
    {
        if (m_nNameLine < 0) {
            Fault(index, L"questi punti di attacco non hanno un nome proprio");
        }
        m_nNameLine = -1;
        const std::optional<CString> flow = TakePoint(index, L'V', L"mandata");
        const std::optional<CString> back = TakePoint(index + 1, L'R', L"ritorno");
        if (flow && back) {
            m_check.types.push_back({m_name, *flow, *back});
        }
    }

    const CShortListFile& m_list;
    const CStringArray& m_lines;
    CShortListCheck m_check;
    CString m_name;
    /// Line of a name that no pair has followed yet, -1 if there is none.
    int m_nNameLine = -1;
};

} // namespace

CShortListCheck CheckShortList(const CShortListFile& list)
{
    return CListWalk(list).Walk();
}

} // namespace reference_host
