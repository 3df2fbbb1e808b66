#include "workbench/program/arguments.h"

#include "platform/number_scan.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace workbench {

namespace {

struct TextOption
{
    const wchar_t* name;
    CString CArguments::*field;
};

constexpr TextOption kTextOptions[] = {
    {L"--building", &CArguments::strBuilding},
    {L"--catalogues", &CArguments::strCatalogues},
    {L"--valve-catalogues", &CArguments::strValveCatalogues},
    {L"--output", &CArguments::strOutput},
    {L"--save", &CArguments::strSave},
    {L"--room", &CArguments::strRoom},
    {L"--workplace", &CArguments::strWorkplace},
};

bool IsDigits(const CString& text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

/// Unlike _wtof(), which takes whatever number stands at the start, this takes a whole text or none
/// of it.
std::optional<double> ParseDegrees(CString text)
{
    ReplaceAll(text, L',', L'.');
    const std::size_t point = text.find(L'.');
    const bool decimal = point != CString::npos;
    if (!IsDigits(text.substr(0, point)) || (decimal && !IsDigits(text.substr(point + 1)))) {
        return std::nullopt;
    }
    return _wtof(text);
}

void ApplyOption(CArguments& result, const CString& name, const CString& value)
{
    if (value.empty()) {
        throw CArgumentException(L"l'opzione " + name + L" richiede un valore");
    }
    if (name == L"--system") {
        result.system = ParseHeatingSystem(value);
        if (!result.system) {
            throw CArgumentException(L"--system: \"" + value +
                                     L"\" non è una coppia mandata/ritorno come 75/65, con il "
                                     L"ritorno sotto la mandata e la mandata non oltre 110 °C");
        }
        return;
    }
    for (const TextOption& option : kTextOptions) {
        if (name == option.name) {
            result.*option.field = value;
            return;
        }
    }
}

/// Takes the maker and the number that may stand behind --valve-dialog, and returns how many it
/// took.
std::size_t ApplyPreset(CArguments& result, std::span<const CString> behind)
{
    std::size_t taken = 0;
    for (CString CArguments::*field : {&CArguments::strMaker, &CArguments::strValveNumber}) {
        if (taken == behind.size() || behind[taken].starts_with(L"--")) {
            break;
        }
        result.*field = behind[taken++];
    }
    return taken;
}

bool TakesValue(const CString& name)
{
    return name == L"--system" ||
           std::any_of(std::begin(kTextOptions), std::end(kTextOptions),
                       [&](const TextOption& option) { return name == option.name; });
}

} // namespace

CArguments ParseArguments(const std::vector<CString>& arguments)
{
    CArguments result;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const CString& argument = arguments[i];
        const std::size_t equals = argument.find(L'=');
        const CString name = argument.substr(0, equals);
        if (argument == L"--help") {
            result.bHelp = true;
        } else if (argument == L"--valves") {
            result.bValves = true;
        } else if (argument == L"--valve-dialog") {
            result.bValveDialog = true;
            i += ApplyPreset(result, std::span(arguments).subspan(i + 1));
        } else if (argument == kTreeDialogOption) {
            result.bTreeDialog = true;
        } else if (argument == L"--batch") {
            continue;
        } else if (!TakesValue(name)) {
            throw CArgumentException(L"argomento sconosciuto: " + argument);
        } else if (equals != CString::npos) {
            ApplyOption(result, name, argument.substr(equals + 1));
        } else {
            ++i;
            ApplyOption(result, name, i < arguments.size() ? arguments[i] : CString());
        }
    }
    const bool asksForDialog = result.bValveDialog || result.bTreeDialog;
    if (result.strBuilding.empty() && !result.bHelp && !asksForDialog) {
        throw CArgumentException(L"manca l'edificio: indicarlo con --building FILE");
    }
    return result;
}

std::optional<CHeatingSystem> ParseHeatingSystem(const CString& text)
{
    const std::size_t slash = text.find(L'/');
    if (slash == CString::npos) {
        return std::nullopt;
    }
    const std::optional<double> vorlauf = ParseDegrees(text.substr(0, slash));
    const std::optional<double> ruecklauf = ParseDegrees(text.substr(slash + 1));
    if (!vorlauf || !ruecklauf) {
        return std::nullopt;
    }
    const CHeatingSystem system{*vorlauf, *ruecklauf};
    return system.IsPlausible() ? std::optional(system) : std::nullopt;
}

CString GetHelpText()
{
    return LR"(Sceglie un corpo scaldante per ogni locale di un edificio e le sue valvole di mandata e di ritorno,
dai cataloghi dei produttori.

Opzioni:
  --building FILE    edificio da calcolare (formato: docs/building-format.md)
  --catalogues DIR   cartella dei cataloghi, una sottocartella per produttore
  --valve-catalogues DIR
                     cartella delle valvole, una sottocartella per produttore
  --system M/R       temperature di mandata e ritorno in °C, per esempio 75/65, 55/45 o 45/35;
                     senza l'opzione valgono quelle dell'edificio
  --room NOME        calcola soltanto questo locale
  --valves           mostra anche le tabelle kv delle valvole
  --output DIR       cartella dei risultati: corpi-scaldanti.csv, corpi-scaldanti.json,
                     progetto.pdf con piante e distinta, pianta.dxf
  --save FILE        scrive l'edificio con i corpi scaldanti scelti
  --list-connections [FILE]
                     mostra in parole un elenco di tipi di attacco (Vent.txt) e nient'altro;
                     senza FILE quello della radice dei dati
  --valve-dialog [PRODUTTORE [NUMERO]]
                     apre la finestra di scelta delle valvole e mostra la valvola scelta;
                     si apre sul produttore (nome della sua cartella) e sulla valvola con questo
                     NumeroTGA, se indicati
  --workplace DIR    cartella del posto di lavoro: posizione delle finestre e aiuti attivi
  --connection-dialog [--superuser]
                     apre la finestra di attacco e valvole accanto a una pianta con tre corpi
                     scaldanti e mostra quanto confermato; con --superuser la finestra si può
                     espandere
  --radiator-dialog [NOME]
                     apre la scelta del corpo scaldante di un locale, il primo se NOME manca, e
                     mostra quello scelto
  --tree-dialog      apre la scelta di un prodotto dall'albero dei cataloghi e lo mostra; valgono
                     --catalogues e --system
  --batch            calcola senza finestre; senza quest'opzione e con uno schermo si apre il
                     programma con la pianta dell'edificio
  --help             mostra questo testo

I percorsi relativi partono dalla cartella corrente. Un'opzione ripetuta vale come scritta per ultima.

Codici di uscita:
  0  eseguito; i locali senza un corpo scaldante adatto e le valvole non trovate sono
     segnalati nell'elenco
  1  errore imprevisto
  2  argomenti errati
  3  edificio illeggibile o errato
  4  catalogo, file di valvole o disegno di blocchi danneggiato o illeggibile; il resto è calcolato
     ugualmente
  5  risultati non scrivibili
  6  finestra annullata
  7  nessuno schermo per mostrare la finestra
)";
}

} // namespace workbench
