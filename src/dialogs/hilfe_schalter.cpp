#include "dialogs/hilfe_schalter.h"

#include "common/arbeits_ordner.h"
#include "common/text_file.h"
#include "platform/number_scan.h"

bool HilfeErlaubt(unsigned dialogId, bool& erlaubt)
{
    CStringArray zeilen;
    MitArbeitsDatei(
        [&] { ReadTextFile(ArbeitsPfad(L"winsett.txt"), zeilen, CFile::modeRead, -1); });
    for (int i = 0; i < zeilen.GetSize(); ++i) {
        CStringArray felder;
        if (SplitString(felder, zeilen[i], L'|') >= 2 &&
            static_cast<unsigned>(_wtoi(felder[0])) == dialogId) {
            erlaubt = _wtoi(felder[1]) != 0;
            return true;
        }
    }
    return false;
}
