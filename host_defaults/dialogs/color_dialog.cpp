#include "host_defaults/dialogs/color_dialog.h"

#include "host/host_base.h"
#include "host_defaults/dialogs/color_grid.h"
#include "host_defaults/dialogs/dialog_parts.h"
#include "host_defaults/dialogs/qt_application.h"
#include "host_defaults/window_dialogs.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace host_defaults {

namespace {

constexpr int kSampleSide = 40;

QString ValuesText(int index)
{
    const QColor color = ColorOf(index);
    return QStringLiteral("Rosso %1, verde %2, blu %3")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

} // namespace

CColorDialog::CColorDialog(int index, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Scelta colore"));
    m_grid = new CColorGrid(this);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_grid);
    layout->addSpacing(4);
    layout->addWidget(MakeFooter());
    layout->setSizeConstraint(QLayout::SetFixedSize);

    m_grid->OnSelected = [this](int selected) { ShowSelected(selected); };
    m_grid->OnChosen = [this] { accept(); };
    connect(m_number, &QSpinBox::valueChanged, m_grid, &CColorGrid::Select);
    m_grid->Select(index);
    ShowSelected(GetIndex());
    m_grid->setFocus();
}

int CColorDialog::GetIndex() const
{
    return m_grid->GetSelected();
}

QWidget* CColorDialog::MakeFooter()
{
    auto* const footer = new QWidget(this);
    m_sample = new QLabel(footer);
    m_sample->setFixedSize(kSampleSide, kSampleSide);
    m_values = new QLabel(footer);

    // The number below the first stands for "no colour chosen yet".
    m_number = new QSpinBox(footer);
    m_number->setRange(kFirstColorIndex - 1, kLastColorIndex);
    m_number->setSpecialValueText(QStringLiteral("\u2013"));
    auto* const caption = new QLabel(QStringLiteral("&Indice:"), footer);
    caption->setBuddy(m_number);

    auto* const number = new QHBoxLayout;
    number->addWidget(caption);
    number->addWidget(m_number);
    number->addStretch();
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addLayout(number);
    texts->addWidget(m_values);

    QDialogButtonBox* const buttons = AddButtons(*this);
    m_ok = buttons->buttons().constFirst();

    auto* const layout = new QHBoxLayout(footer);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(10);
    layout->addWidget(m_sample);
    layout->addLayout(texts, 1);
    layout->addWidget(buttons, 0, Qt::AlignBottom);
    return footer;
}

void CColorDialog::ShowSelected(int index)
{
    const QSignalBlocker blocker(m_number);
    m_number->setValue(index);
    m_ok->setEnabled(index != 0);
    if (index == 0) {
        m_sample->clear();
        m_values->setText(QStringLiteral("Nessun colore scelto"));
        return;
    }
    m_sample->setPixmap(ColorIcon(index, kSampleSide).pixmap(kSampleSide));
    m_values->setText(ValuesText(index));
}

bool ShowColorDialog(int& index)
{
    if (!EnsureWindows()) {
        return false;
    }
    CColorDialog dialog(index, ParentForDialog());
    if (dialog.exec() != QDialog::Accepted || dialog.GetIndex() == 0) {
        return false;
    }
    index = dialog.GetIndex();
    return true;
}

} // namespace host_defaults
