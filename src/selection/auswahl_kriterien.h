#pragma once

#include "common/auswahl_liste.h"
#include "frame/handover.h"
#include "platform/array.h"
#include "platform/text.h"
#include "radiator/hk_vdi3805.h"
#include "selection/auswahl_controls.h"

/// What the criteria ask of the dialog.
class CAuswahlAnsicht
{
public:
    virtual ~CAuswahlAnsicht() = default;

    /// True: reads all controls into the members; false: writes all members to the controls.
    /// Writing a text that a control already holds raises no event. Other writes raise the change
    /// events of their controls, but only after the last control is written: a handler calls
    /// UpdateData(true) itself, and must not read controls that still hold their old texts.
    virtual void UpdateData(bool lesen) = 0;

    virtual void EnableControl(int id, bool enable) = 0;

    /// The list of that control: heating systems or one of the four size lists; always the same
    /// one.
    virtual CAuswahlListe& Liste(int id) = 0;

    /// Rebuilds the rows of the result, after a filter pass if asked for, and selects the best one.
    virtual void ZeilenAufbauen(bool bFiltern) = 0;
};

/// The criteria of the radiator selection: the fields on the right of the dialog, how they drive
/// the filter pass, and what opening and OK do with them. Lengths are millimetres, outputs watts,
/// temperatures degrees Celsius.
///
/// Showing the fields raises change events, so that an operation may be called again while it is
/// still at work. This comes to an end because showing the same texts once more raises none.
class CAuswahlKriterien
{
public:
    /// `katalog` brings the hand-over that the criteria read and write. `treffer`: the pass before
    /// the dialog has found a best row; with `warnen` the user is told once when no row fits. Layer
    /// fields start with the host's default. View and catalogue must outlive the object.
    CAuswahlKriterien(CAuswahlAnsicht& ansicht, CHKVdi3805& katalog, bool treffer, bool warnen);

    /// Reads the criteria into the hand-over and rebuilds the grid. The first call filters only if
    /// the pass before the dialog has found no best row.
    void Neuberechnen();

    /// The same once the dialog has opened, before that nothing. For a change of a size list
    /// (18004, 18008, 18009, 18010), of a length (18002, 18003) or of the wanted output (18005).
    void NeuberechnenWennBereit();

    /// Shows the fields and recomputes with the manufacturer's file read again, since rows of
    /// radiators that are built to measure are made for the wanted output.
    void KatalogNeuLesen();

    /// Shows lengths and wanted output of the hand-over.
    void FelderAnzeigen();

    /// Shows the output of the selected row, as the grid has it, and the deviation.
    void LeistungIstAnzeigen(const CString& leistung);

    /// Shows by how many percent the selected row's output is off the wanted one (0.0 if none is
    /// wanted), and the exponent of the radiator in the hand-over.
    void AbweichungAnzeigen();

    /// First step of the opening, before the grid is made: switches the output filter off that the
    /// caller's filter pass may have had.
    void LeistungFilterAus();
    /// Second step, before the tree selects the product: takes room data, room temperature and
    /// heating systems from the hand-over and the list file.
    void UebergabeLesen();
    /// Third step, when the product is selected: chooses the layer. `layerListe` are the layers of
    /// the drawing; an empty list leaves the layer field alone. FelderAnzeigen() and setting
    /// m_bInitialisiert end the opening.
    void LayerLesen(CAuswahlListe& layerListe);

    /// A product was selected, and the hand-over names it: fills the size lists, shows the range of
    /// the hand-over in them, or the whole range if one of its limits is not in the list, and
    /// recomputes.
    void NeuesProdukt();

    /// 18017: the output filter goes on or off, and with it the fields of the outputs.
    void LeistungAngabeGeklickt();

    /// 18019: all rows, or those that fit. The size controls are out of use with all rows.
    void AlleAnzeigenGeklickt();

    /// 18047: ticked, what the room still lacks becomes the wanted output.
    void RestGeklickt();

    /// 18049, 18015 and 18016: ticked, a percentage of the room's demand becomes the wanted output.
    void ProzentGeaendert();

    /// 18107: text changed, focus lost. Leaving the field reads the catalogue at the new factor.
    void RaumtemperaturGeaendert();
    void RaumtemperaturVerlassen();

    /// 7006: temperatures and name of the selected heating system come into force.
    void SystemGewaehlt();

    /// 268: the name and the temperatures in the fields become an entry of the list, and come into
    /// force. Nothing happens while one of the three is missing.
    void SystemSpeichern();

    /// 269: deletes the selected heating system; the first one left comes into force.
    void SystemLoeschen();

    /// OK, except for the dialog's own placement: the output of the selected row and the
    /// temperatures go to the hand-over, layer, heating systems and selection to their stores. The
    /// fields are not read: temperatures typed last are taken only if an event has read them.
    void Uebernehmen();

    CHKVdi3805* const m_pVdi;

    /// A best row exists.
    bool m_bTreffer;
    /// When no row fits for the first time, the user is to be told and the size range widened.
    bool m_bWarnen;
    /// The opening is finished.
    bool m_bInitialisiert = false;

    /// Layer that goes back to the caller, and its colour.
    CString m_strLayer;
    int m_nLayerFarbe = 0;

    /// The fields. Indices of lists are -1 without a selection.
    int m_bLeistungAngabe = 0;
    int m_nHoeheBis = -1;
    int m_nHoeheVon = -1;
    int m_nTiefeBis = -1;
    int m_nTiefeVon = -1;
    CString m_strLaengeBis;
    CString m_strLaengeVon;
    CString m_strLeistungSoll;
    CString m_strLeistungIst;
    CString m_strAbweichung;
    CString m_strExponent;
    int m_bAlleAnzeigen = 0;
    int m_nHeizsystem = 0;
    CString m_strRaum;
    double m_RaumBedarf = 0.0;
    int m_bRest = 0;
    int m_bProzent = 0;
    double m_Prozent = 0.0;
    int m_bLayerAktiv = 0;
    CString m_strLayerEingabe;
    CString m_strSystemName;
    double m_Ruecklauf = 0.0;
    double m_Vorlauf = 0.0;
    CString m_strRaumtemperatur;

private:
    HK_DATEN_VDI3805_UEBERGABE& Uebergabe() const { return m_pVdi->GetDaten(); }

    void RaumdatenLesen();
    void HeizsystemeLesen();
    void LiesMass(int listId, int index, double& mass);
    void FuelleMassListen(const CArray<double, double>& masse, int vonId, int bisId);
    void SucheBereich(int listId, double min, double max, int& von, int& bis);
    void LeistungAngabeAnwenden();
    void LiesRaumtemperatur();
    void SystemAnwenden();

    CAuswahlAnsicht& m_ansicht;
};
