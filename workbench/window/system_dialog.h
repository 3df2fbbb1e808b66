#pragma once

#include "workbench/building/building.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QDialogButtonBox;
class QLabel;

namespace workbench {

class CDecimalBox;

/// A heating system that can be had with one choice.
struct COfferedSystem
{
    QString strText;
    CHeatingSystem system;
};

/// Asks for the heating system of a building, and by how much its radiators may exceed what is
/// asked, and tells beforehand what that would mean for the rooms.
class CSystemDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CSystemDialog(const CBuilding& building, QWidget* parent = nullptr);

    CHeatingSystem GetSystem() const;

    /// In per cent.
    double GetExcessMax() const;

private:
    void TakeOffer(int index);
    void ShowSystem();
    void ShowConsequence();

    CBuilding m_building;
    std::vector<COfferedSystem> m_offers;
    /// Shows none where the temperatures are those of none.
    QComboBox* m_pOffers;
    CDecimalBox* m_pVorlauf;
    CDecimalBox* m_pRuecklauf;
    CDecimalBox* m_pExcessMax;
    QLabel* m_pConsequence;
    QDialogButtonBox* m_pButtons;
};

} // namespace workbench
