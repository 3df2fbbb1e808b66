#include "dialogs/platzierung.h"

#include "common/platzierung_datei.h"
#include "dialogs/list_tree.h"
#include "uikit/application.h"

namespace {

/// A more transparent window could not be found again.
constexpr int kDurchsichtigste = 100;

/// A window kept on a screen that is no longer there comes back at the left edge. Its right edge
/// stays, so that it is wider then; users know it that way.
CRect AufDenSchirm(CRect rect)
{
    if (rect.left >= GetVirtualScreenSize().cx) {
        rect.left = 0;
    }
    return rect;
}

} // namespace

void PlatzierungLaden(CDialog& dialog, const CString& schluessel, int* alpha, bool ohneGroesse)
{
    CRect rect;
    if (LesePlatzierung(schluessel, rect, alpha)) {
        rect = AufDenSchirm(rect);
        if (ohneGroesse || !dialog.IsResizable()) {
            const CRect jetzt = dialog.GetWindowRect();
            rect.right = rect.left + jetzt.Width();
            rect.bottom = rect.top + jetzt.Height();
        }
        dialog.MoveWindow(rect);
        dialog.ShowWindow(true);
    }
    if (alpha == nullptr) {
        return;
    }
    if (*alpha < kDurchsichtigste || *alpha > kDeckend) {
        *alpha = kDeckend;
    }
    if (*alpha < kDeckend) {
        SetWindowAlpha(dialog, *alpha);
    }
}

void PlatzierungSpeichern(const CDialog& dialog, const CString& schluessel, const int* alpha)
{
    SchreibePlatzierung(schluessel, dialog.GetKeptRect(), alpha != nullptr ? *alpha : kDeckend);
}
