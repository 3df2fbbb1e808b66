#pragma once

#include "workbench/building/building.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;

namespace workbench {

/// Asks for the heating system of a building and tells beforehand what it would mean for the rooms.
class CSystemDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CSystemDialog(const CBuilding& building, QWidget* parent = nullptr);

    CHeatingSystem GetSystem() const;

private:
    void TakeCommon(int index);
    void ShowConsequence();

    CBuilding m_building;
    QComboBox* m_pCommon;
    QDoubleSpinBox* m_pVorlauf;
    QDoubleSpinBox* m_pRuecklauf;
    QLabel* m_pConsequence;
    QDialogButtonBox* m_pButtons;
};

} // namespace workbench
