#pragma once

#include <QDialog>

class QLabel;
class QSpinBox;

namespace host_defaults {

class CColorGrid;

/// The choice of one of the 255 colours of a drawing, by swatch or by number.
class CColorDialog : public QDialog
{
public:
    /// Opens on `index`; on none for one that is no colour.
    CColorDialog(int index, QWidget* parent);

    /// The chosen colour index, 0 as long as there is none.
    int GetIndex() const;

private:
    QWidget* MakeFooter();
    void ShowSelected(int index);

    CColorGrid* m_grid;
    QLabel* m_sample;
    QLabel* m_values;
    QSpinBox* m_number;
    QWidget* m_ok;
};

} // namespace host_defaults
