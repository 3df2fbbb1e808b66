#include "workbench/program/connection_list.h"

#include "frame/conn_values.h"
#include "host/host_fittings.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_fault.h"
#include "platform/format.h"
#include "reference_host/files/short_list_file.h"
#include "workbench/building/user_text.h"
#include "workbench/program/arguments.h"

#include <cmath>
#include <cstddef>
#include <optional>
#include <ostream>
#include <utility>

namespace workbench {

namespace {

/// Fewer numbers make no point: the short list leaves such an entry out.
constexpr int kWenigsteZahlen = 3;

struct CPunkt
{
    ConnVector position{};
    ConnVector offset{};
    ConnVector winkel{};
};

std::optional<CPunkt> ReadPunkt(const CString& text)
{
    CPunkt punkt;
    double seitAbstand = 0.0;
    double kreuzAbstand = 0.0;
    int kreuzTyp = 0;
    double wandAbstand = 0.0;
    const int count =
        lmGet_K_APUNKT_X(text, punkt.position.data(), punkt.offset.data(), punkt.winkel.data(),
                         seitAbstand, kreuzAbstand, kreuzTyp, wandAbstand);
    return count < kWenigsteZahlen ? std::nullopt : std::optional(punkt);
}

/// The words for one axis: its two ends and its middle, and how to go from there.
struct CAxisWords
{
    const wchar_t* low;
    const wchar_t* middle;
    const wchar_t* high;
    const wchar_t* less;
    const wchar_t* more;
};

constexpr CAxisWords kAxes[] = {
    {L"all'estremità sinistra", L"al centro", L"all'estremità destra", L"a sinistra", L"a destra"},
    {L"sul fronte", L"", L"sul lato della parete", L"verso il locale", L"verso la parete"},
    {L"in basso", L"a metà altezza", L"in alto", L"più in basso", L"più in alto"},
};

CString DescribePosition(const CAxisWords& words, double position)
{
    if (position == -0.5) {
        return words.low;
    }
    if (position == 0.5) {
        return words.high;
    }
    if (position == 0.0) {
        return words.middle;
    }
    return L"al " + FormatFixed(100.0 * (position + 0.5), 0) + L" % dell'asse";
}

CString DescribeAxis(const CAxisWords& words, double position, double offset)
{
    CString text = DescribePosition(words, position);
    if (offset != 0.0) {
        text += text.empty() ? L"" : L" ";
        text += FormatFixed(1000.0 * std::fabs(offset), 0) + L" mm " +
                (offset < 0.0 ? words.less : words.more);
    }
    return text;
}

CString DescribeDirection(const ConnVector& winkel)
{
    if (winkel[1] == 0.0 && winkel[0] == 0.0) {
        return L"tubo verso destra";
    }
    if (winkel[1] == 0.0 && winkel[0] == 180.0) {
        return L"tubo verso sinistra";
    }
    if (winkel[1] == 0.0 && winkel[0] == 90.0) {
        return L"tubo verso la parete";
    }
    if (winkel[0] == 0.0 && winkel[1] == 90.0) {
        return L"tubo verso l'alto";
    }
    if (winkel[0] == 0.0 && winkel[1] == 270.0) {
        return L"tubo verso il basso";
    }
    return L"tubo con angoli " + FormatNumber(winkel[0]) + L"° e " + FormatNumber(winkel[1]) + L"°";
}

CString DescribePunkt(const CPunkt& punkt)
{
    CString text;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const CString part = DescribeAxis(kAxes[axis], punkt.position[axis], punkt.offset[axis]);
        text += part.empty() ? CString() : part + L", ";
    }
    return text + DescribeDirection(punkt.winkel);
}

/// Walks the lines of a short list in the way of the dialog, and tells what goes wrong on it.
class CListPrinter
{
public:
    CListPrinter(CString file, const CStringArray& lines, std::ostream& out, std::ostream& err)
        : m_file(std::move(file)), m_lines(lines), m_out(out), m_err(err)
    {
    }

    ExitCode Print()
    {
        for (int i = 0; i < m_lines.GetSize(); ++i) {
            if (m_lines[i].starts_with(L'[')) {
                TakeName(i);
            } else {
                TakePair(i++);
            }
        }
        CheckNameUsed();
        Write(m_out, L"Tipi di attacco: " + FormatInt(m_nTypes));
        return m_bFault ? ExitCode::badCatalogue : ExitCode::ok;
    }

private:
    static void Write(std::ostream& stream, const CString& text)
    {
        stream << Utf8FromWide(text) << '\n';
    }

    void Fault(int index, const CString& message)
    {
        m_bFault = true;
        Write(m_err, FormatFileFault({index + 1, message, m_file}));
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

    std::optional<CPunkt> TakePunkt(int index, wchar_t mark, const CString& what)
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
        const std::optional<CPunkt> punkt = ReadPunkt(line.substr(1));
        if (!punkt) {
            Fault(index, L"il punto di " + what + L" ha meno di tre numeri");
        }
        return punkt;
    }

    void TakePair(int index)
    {
        if (m_nNameLine < 0) {
            Fault(index, L"questi punti di attacco non hanno un nome proprio");
        }
        m_nNameLine = -1;
        const std::optional<CPunkt> flow = TakePunkt(index, L'V', L"mandata");
        const std::optional<CPunkt> back = TakePunkt(index + 1, L'R', L"ritorno");
        if (!flow || !back) {
            return;
        }
        ++m_nTypes;
        Write(m_out, m_name);
        Write(m_out, L"    mandata: " + DescribePunkt(*flow));
        Write(m_out, L"    ritorno: " + DescribePunkt(*back));
    }

    CString m_file;
    const CStringArray& m_lines;
    std::ostream& m_out;
    std::ostream& m_err;
    CString m_name;
    /// Line of a name that no pair has followed yet, -1 if there is none.
    int m_nNameLine = -1;
    int m_nTypes = 0;
    bool m_bFault = false;
};

} // namespace

ExitCode ListConnections(const CString& path, std::ostream& out, std::ostream& err)
{
    reference_host::CShortListFile list;
    try {
        list = reference_host::ReadShortList(path);
    } catch (const CFileException& exception) {
        err << Utf8FromWide(exception.GetErrorMessage()) << '\n';
        return ExitCode::badCatalogue;
    }
    if (list.fault) {
        err << Utf8FromWide(FormatFileFault(*list.fault)) << '\n';
        return ExitCode::badCatalogue;
    }
    return CListPrinter(list.strFile, list.lines, out, err).Print();
}

ExitCode RunConnectionList(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    return ListConnections(arguments.strConnectionList, out, err);
}

CString DescribeConnectionPoint(const CString& text)
{
    const std::optional<CPunkt> punkt = ReadPunkt(text);
    return punkt ? DescribePunkt(*punkt) : L"non indicato";
}

} // namespace workbench
