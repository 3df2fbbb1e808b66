#pragma once

#include "workbench/building/building.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace workbench {

/// Asks for what the papers of a building say of its project. Every field may stay empty; a date
/// that is none keeps the dialog from being confirmed, which it tells.
class CProjectDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CProjectDialog(const CProject& project, QWidget* parent = nullptr);

    CProject GetProject() const;

private:
    void CheckDate();

    QLineEdit* m_pClient;
    QLineEdit* m_pDesigner;
    QLineEdit* m_pNumber;
    QLineEdit* m_pDate;
    QLabel* m_pFault;
    QDialogButtonBox* m_pButtons;
};

} // namespace workbench
