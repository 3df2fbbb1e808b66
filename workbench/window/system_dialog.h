#pragma once

#include "workbench/building/building.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;

namespace workbench {

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
    void TakeCommon(int index);
    void ShowConsequence();

    CBuilding m_building;
    QComboBox* m_pCommon;
    QDoubleSpinBox* m_pVorlauf;
    QDoubleSpinBox* m_pRuecklauf;
    QDoubleSpinBox* m_pExcessMax;
    /// What it showed first, which may be rounded.
    double m_dExcessShown;
    QLabel* m_pConsequence;
    QDialogButtonBox* m_pButtons;
};

} // namespace workbench
