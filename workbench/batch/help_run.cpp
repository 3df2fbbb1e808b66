#include "workbench/batch/help_run.h"

#include "platform/encoding.h"
#include "workbench/batch/console.h"

namespace workbench {

namespace {

/// Which programs tell a part of the text.
enum class Teller
{
    both,
    windows,
    noWindows,
};

struct CPart
{
    Teller teller;
    const wchar_t* text;
};

constexpr CPart kParts[] = {
    {Teller::both,
     LR"(Sceglie un corpo scaldante per ogni locale di un edificio e le sue valvole di mandata e di ritorno,
dai cataloghi dei produttori.

Opzioni:
  --building FILE    edificio da calcolare (formato: docs/building-format.md)
  --sample FILE      edificio che vale se --building manca
  --catalogues DIR   cartella dei cataloghi, una sottocartella per produttore
  --valve-catalogues DIR
                     cartella delle valvole, una sottocartella per produttore
  --system M/R       temperature di mandata e ritorno in °C, per esempio 75/65, 55/45 o 45/35;
                     senza l'opzione valgono quelle dell'edificio
  --room NOME        calcola soltanto questo locale
  --valves           mostra anche le tabelle kv delle valvole
  --csv-plain        scrive il CSV per i programmi: punto decimale, nessun segno di codifica, codici
                     senza formule; senza l'opzione è per un foglio di calcolo in italiano
)"},
    {Teller::windows,
     LR"(  --output DIR       cartella dei risultati: corpi-scaldanti.csv, corpi-scaldanti.xlsx,
                     corpi-scaldanti.json, progetto.pdf con piante e distinta, pianta.dxf
)"},
    {Teller::noWindows,
     LR"(  --output DIR       cartella dei risultati: corpi-scaldanti.csv e corpi-scaldanti.json
)"},
    {Teller::both, LR"(  --save FILE        scrive l'edificio con i corpi scaldanti scelti
  --list-connections [FILE]
                     mostra in parole un elenco di tipi di attacco (Vent.txt) e nient'altro;
                     senza FILE quello della radice dei dati
)"},
    {Teller::windows, LR"(  --valve-dialog [PRODUTTORE [NUMERO]]
                     apre la finestra di scelta delle valvole e mostra la valvola scelta;
                     si apre sul produttore (nome della sua cartella) e sulla valvola con questo
                     NumeroTGA, se indicati
)"},
    {Teller::windows,
     LR"(  --workplace DIR    cartella del posto di lavoro: posizione delle finestre e aiuti attivi
)"},
    {Teller::windows, LR"(  --connection-dialog [--superuser]
                     apre la finestra di attacco e valvole accanto a una pianta con tre corpi
                     scaldanti e mostra quanto confermato; con --superuser la finestra si può
                     espandere
  --radiator-dialog [NOME]
                     apre la scelta del corpo scaldante di un locale, il primo se NOME manca, e
                     mostra quello scelto
  --tree-dialog      apre la scelta di un prodotto dall'albero dei cataloghi e lo mostra; valgono
                     --catalogues e --system
)"},
    {Teller::windows,
     LR"(  --batch            calcola senza finestre; senza quest'opzione e con uno schermo si apre il
                     programma con la pianta dell'edificio
)"},
    {Teller::noWindows,
     LR"(  --batch            calcola, come fa il programma anche senza quest'opzione
)"},
    {Teller::both, LR"(  --version          mostra il nome e la versione del programma
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
)"},
    {Teller::windows, LR"(  6  finestra annullata
  7  nessuno schermo per mostrare la finestra
)"},
};

} // namespace

CString GetHelpText(bool hasWindows)
{
    CString text;
    for (const CPart& part : kParts) {
        const Teller only = hasWindows ? Teller::windows : Teller::noWindows;
        text += part.teller == Teller::both || part.teller == only ? part.text : L"";
    }
    return text;
}

ExitCode ShowVersion(const CArguments& /*arguments*/, std::ostream& out, std::ostream& err)
{
    return Show(GetProgramName() + L" " + WideFromUtf8(RADSEL_VERSION) + L"\n", ExitCode::ok, out,
                err);
}

} // namespace workbench
