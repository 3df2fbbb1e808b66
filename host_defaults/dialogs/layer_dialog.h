#pragma once

#include "host_defaults/dialogs/layer_list.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace host_defaults {

/// The choice of a layer of the drawing, or the name and colour of a new one.
class CLayerDialog : public QDialog
{
public:
    /// Opens on the layer of that name. `color` is what a layer that is not in the drawing gets.
    CLayerDialog(std::vector<CLayerEntry> layers, const QString& name, int color, QWidget* parent);

    /// Name and colour index as they stand now. The name of a layer of the drawing is spelt as
    /// there.
    CLayerEntry GetChoice() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeList();
    QLayout* MakeNewLayer(const QString& name);
    void FillList();
    void FilterList(const QString& text);
    void SelectInList(const QTreeWidgetItem* item);
    void ChooseColor();
    void ShowChoice();

    std::vector<CLayerEntry> m_layers;
    int m_newColor;
    QLineEdit* m_filter;
    QTreeWidget* m_list;
    QLineEdit* m_name;
    QPushButton* m_color;
    QLabel* m_hint;
    QWidget* m_ok;
};

} // namespace host_defaults
