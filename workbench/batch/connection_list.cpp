#include "workbench/batch/connection_list.h"

#include "frame/conn_values.h"
#include "host/host_fittings.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_fault.h"
#include "platform/format.h"
#include "reference_host/files/short_list_check.h"
#include "workbench/batch/arguments.h"
#include "workbench/building/user_text.h"

#include <cmath>
#include <cstddef>
#include <optional>
#include <ostream>

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

void Write(std::ostream& stream, const CString& text)
{
    stream << Utf8FromWide(text) << '\n';
}

CString DescribeText(const CString& text)
{
    const std::optional<CPunkt> punkt = ReadPunkt(text);
    return punkt ? DescribePunkt(*punkt) : L"non indicato";
}

ExitCode Print(const reference_host::CShortListCheck& list, std::ostream& out, std::ostream& err)
{
    for (const reference_host::CShortListType& type : list.types) {
        Write(out, type.strName);
        Write(out, L"    mandata: " + DescribeText(type.strFlow));
        Write(out, L"    ritorno: " + DescribeText(type.strReturn));
    }
    for (const CFileFault& fault : list.faults) {
        Write(err, FormatFileFault(fault));
    }
    Write(out, L"Tipi di attacco: " + FormatInt(static_cast<long long>(list.types.size())));
    return list.faults.empty() ? ExitCode::ok : ExitCode::badCatalogue;
}

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
    return Print(reference_host::CheckShortList(list), out, err);
}

ExitCode RunConnectionList(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    return ListConnections(arguments.strConnectionList, out, err);
}

CString DescribeConnectionPoint(const CString& text)
{
    return DescribeText(text);
}

} // namespace workbench
