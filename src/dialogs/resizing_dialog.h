#pragma once

#include "dialogs/brushed_dialog.h"

#include <vector>

/// How a control follows one direction of its dialog.
enum Anker
{
    ankerFest = 0,
    /// The far edge moves by the growth.
    ankerStrecken = 1,
    /// Both edges move by the growth.
    ankerMitgehen = 2,
    /// Keeps its size and its distance from the middle of the client area.
    ankerMitte = 3,
};

/// Entry that the system menu of a resizing dialog has; what it does is the dialog's matter.
inline constexpr unsigned kMenuTransparenz = 16;

/// A dialog whose controls follow when it is sized. It never gets smaller than it opened.
class CResizingDialog : public CBrushedDialog
{
public:
    explicit CResizingDialog(const DialogTemplate& dialogTemplate);

protected:
    /// Lets a control follow. Its place is taken at this moment, so that this must be said while
    /// the dialog has the size of its template; said twice, the later one counts. An id without a
    /// control moves nothing. `keinHintergrund` leaves the control's place out when the dialog's
    /// background is erased.
    void AnkerSetzen(int id, int x, int y, bool keinHintergrund);

    /// Allows or locks sizing in the two directions. Locking both of an open dialog takes its grip
    /// away.
    void GroesseErlauben(bool x, bool y);

    /// For dialogs whose opacity the user may choose: on the entry "Transparency..." of the system
    /// menu, asks for it and applies it when confirmed; `alpha` is the opacity before and after,
    /// 255 opaque. False, with nothing done, if `id` is any other command.
    bool AendereTransparenz(unsigned id, int& alpha);

    bool OnInitDialog() override;
    void OnSize(SizeKind kind) override;
    void OnMove() override;
    void OnMinMaxInfo(MinMaxInfo& info) override;
    void OnEraseBackground(CDC& dc) override;
    void OnDestroy() override;

private:
    struct AnkerSatz
    {
        int id = 0;
        int x = ankerFest;
        int y = ankerFest;
        CRect rect;
        bool keinHintergrund = false;
        /// Distances of the left and the top edge from the middle of the client area.
        int mitteX = 0;
        int mitteY = 0;
    };

    void GriffAnlegen();
    CRect NeuesRechteck(const AnkerSatz& satz, const CRect& client) const;

    std::vector<AnkerSatz> m_anker;
    CRect m_client;
    CSize m_kleinste;
    bool m_bGroesseX = true;
    bool m_bGroesseY = true;
    CSize m_letzteGroesse;
    CPoint m_letzterOrt;
    bool m_bGeoeffnet = false;
};
