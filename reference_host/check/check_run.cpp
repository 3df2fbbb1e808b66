#include "reference_host/check/check_run.h"

#include "platform/encoding.h"
#include "platform/format.h"
#include "reference_host/check/check_path.h"

#include <ostream>

namespace reference_host {

namespace {

CString Counted(int count, const wchar_t* one, const wchar_t* many)
{
    return FormatInt(count) + L" " + (count == 1 ? one : many);
}

/// What was looked at, part by part.
CString DescribeLookedAt(const CCheckReport& report)
{
    CString text;
    const auto add = [&text](const CString& part) { text += (text.empty() ? L"" : L"; ") + part; };
    if (report.nCatalogues > 0) {
        add(Counted(report.nCatalogues, L"produttore di corpi scaldanti",
                    L"produttori di corpi scaldanti") +
            L", " + Counted(report.nRows, L"riga", L"righe"));
    }
    if (report.nValveFiles > 0) {
        add(Counted(report.nValveFiles, L"produttore di valvole", L"produttori di valvole") +
            L", " + Counted(report.nValves, L"valvola", L"valvole"));
    }
    if (report.nShortLists > 0) {
        add(Counted(report.nTypes, L"tipo di attacco", L"tipi di attacco"));
    }
    return text;
}

void Write(std::ostream& stream, const CString& text)
{
    stream << Utf8FromWide(text) << '\n';
}

CheckExit Refuse(std::ostream& err, const CString& message)
{
    Write(err, L"radsel_check: " + message + L"; si veda radsel_check --help");
    return CheckExit::wrongArguments;
}

CheckExit Tell(const CCheckReport& report, std::ostream& out, std::ostream& err)
{
    for (const CFileFault& fault : report.findings) {
        Write(out, FormatFileFault(fault));
    }
    for (const CString& place : report.unreadable) {
        Write(err, L"radsel_check: non si può leggere " + place);
    }
    const CString lookedAt = DescribeLookedAt(report);
    if (lookedAt.empty() && report.unreadable.empty()) {
        Write(err, L"radsel_check: non c'è alcun file hk.tga, ha.tga o Vent.txt");
        return CheckExit::unreadable;
    }
    if (!lookedAt.empty()) {
        const auto count = static_cast<int>(report.findings.size());
        Write(out, lookedAt + L": " +
                       (count == 0 ? L"nessun difetto" : Counted(count, L"difetto", L"difetti")));
    }
    return !report.unreadable.empty() ? CheckExit::unreadable
           : report.findings.empty()  ? CheckExit::clean
                                      : CheckExit::findings;
}

} // namespace

CString GetCheckHelp()
{
    return LR"(Dice che cosa non va nei cataloghi, come il modulo li vede.

Uso: radsel_check PERCORSO...

Ogni PERCORSO è un file, la cartella di un produttore o una cartella con più produttori. Si guardano
i file con questi nomi, a ogni profondità:
  hk.tga     corpi scaldanti di un produttore
  ha.tga     valvole di un produttore
  Vent.txt   elenco dei tipi di attacco

Ogni difetto sta su una riga: il file, la riga, il record e il campo, che cosa non va. I campi si
contano da 0, che è il tipo del record. Alla fine sta che cosa si è guardato.

Opzioni:
  --version  mostra il nome e la versione del programma
  --help     mostra questo testo

Codici di uscita:
  0  nessun difetto
  1  difetti
  2  argomenti errati, o un file con un altro nome
  4  un file o una cartella non si può leggere, o non c'è, o non c'è alcun file da
     guardare; il resto è guardato ugualmente
  5  uscita standard non scrivibile
)";
}

CheckExit RunCheck(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err)
{
    CCheckReport report;
    for (const CString& argument : arguments) {
        if (argument == L"--help" || argument == L"--version") {
            out << Utf8FromWide(argument == L"--help"
                                    ? GetCheckHelp()
                                    : L"radsel_check " + WideFromUtf8(RADSEL_VERSION) + L"\n");
            return out.flush() ? CheckExit::clean : CheckExit::outputNotWritable;
        }
        if (argument.starts_with(L"-")) {
            return Refuse(err, L"l'opzione " + argument + L" non esiste");
        }
    }
    if (arguments.empty()) {
        return Refuse(err, L"manca il percorso di un catalogo");
    }
    for (const CString& path : arguments) {
        if (!CheckPath(path, report)) {
            return Refuse(err, path + L": non è una cartella né un file hk.tga, ha.tga o Vent.txt");
        }
    }
    const CheckExit exit = Tell(report, out, err);
    if (!out.flush()) {
        Write(err, L"radsel_check: l'uscita standard non è scrivibile");
        return CheckExit::outputNotWritable;
    }
    return exit;
}

} // namespace reference_host
