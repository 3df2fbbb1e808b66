#pragma once

#include "workbench/plan/new_room.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace workbench {

class CDecimalBox;

/// Asks for a room that is added to a building; for a building without floors, which is new, also
/// for the building's name. Tells what keeps the room from being added.
class CRoomDialog : public QDialog
{
    Q_OBJECT

public:
    /// `floor` is proposed.
    CRoomDialog(const CBuilding& building, std::size_t floor, QWidget* parent = nullptr);

    CNewRoom GetRoom() const;
    /// With the room.
    CBuilding GetBuilding() const;

private:
    /// What keeps the room from being added; empty if nothing does.
    CString FindFault() const;
    void ShowFault();

    CBuilding m_building;
    /// Null for a building that has a name.
    QLineEdit* m_pBuildingName = nullptr;
    QComboBox* m_pFloor;
    QLineEdit* m_pName;
    CDecimalBox* m_pDemand;
    CDecimalBox* m_pTemperature;
    CDecimalBox* m_pWidth;
    CDecimalBox* m_pDepth;
    CDecimalBox* m_pWindow;
    CDecimalBox* m_pSill;
    QLabel* m_pFault;
    QDialogButtonBox* m_pButtons;
};

} // namespace workbench
