#include "host_defaults/dialogs/layer_dialog.h"

#include "host/host_base.h"
#include "host/host_prompts.h"
#include "host_defaults/dialogs/dialog_parts.h"
#include "host_defaults/dialogs/qt_application.h"
#include "host_defaults/window_dialogs.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace host_defaults {

namespace {

constexpr int kSwatchSide = 14;
constexpr int kRowHeight = 22;
constexpr int kColorColumnWidth = 64;
constexpr QSize kSize(380, 430);
/// The same in characters and lines of the font, where that is a large one.
constexpr QSize kCharacters(54, 28);

/// What no drawing accepts in the name of a layer.
const QRegularExpression kLayerName(QStringLiteral("[^<>/\\\\\":;?*|,=`]*"));

int ValidColor(int color)
{
    constexpr int kWhite = 7;
    return color >= kFirstColorIndex && color <= kLastColorIndex ? color : kWhite;
}

} // namespace

CLayerDialog::CLayerDialog(std::vector<CLayerEntry> layers, const QString& name, int color,
                           QWidget* parent)
    : QDialog(parent), m_layers(std::move(layers)), m_newColor(ValidColor(color))
{
    setWindowTitle(QStringLiteral("Scelta layer"));
    m_filter = new QLineEdit(this);
    m_filter->setPlaceholderText(QStringLiteral("Filtra i layer"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    MakeList();

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addLayout(MakeNewLayer(name));
    layout->addSpacing(8);
    QDialogButtonBox* const buttons = AddButtons(*this);
    m_ok = buttons->buttons().constFirst();
    layout->addWidget(buttons);
    resize(kSize.expandedTo({kCharacters.width() * fontMetrics().averageCharWidth(),
                             kCharacters.height() * fontMetrics().height()}));

    FillList();
    ShowChoice();
    m_filter->setFocus();
}

void CLayerDialog::MakeList()
{
    m_list = new QTreeWidget(this);
    m_list->setHeaderLabels({QStringLiteral("Layer"), QStringLiteral("Colore")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionsMovable(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    m_list->header()->resizeSection(
        1, std::max(kColorColumnWidth, m_list->header()->sectionSizeHint(1)));
    m_list->headerItem()->setTextAlignment(1, Qt::AlignCenter);
    m_list->setIconSize({kSwatchSide, kSwatchSide});

    connect(m_list, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* item) { SelectInList(item); });
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(m_filter, &QLineEdit::textChanged, this, &CLayerDialog::FilterList);
}

QLayout* CLayerDialog::MakeNewLayer(const QString& name)
{
    m_name = new QLineEdit(name, this);
    m_name->setValidator(new QRegularExpressionValidator(kLayerName, m_name));
    m_color = new QPushButton(this);
    m_color->setAutoDefault(false);
    m_hint = new QLabel(this);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    auto* const nameCaption = new QLabel(QStringLiteral("&Nome:"), this);
    nameCaption->setBuddy(m_name);
    auto* const colorCaption = new QLabel(QStringLiteral("&Colore:"), this);
    colorCaption->setBuddy(m_color);

    connect(m_name, &QLineEdit::textChanged, this, &CLayerDialog::ShowChoice);
    connect(m_color, &QPushButton::clicked, this, &CLayerDialog::ChooseColor);

    auto* const layout = new QGridLayout;
    layout->addWidget(nameCaption, 0, 0);
    layout->addWidget(m_name, 0, 1, 1, 2);
    layout->addWidget(colorCaption, 1, 0);
    layout->addWidget(m_color, 1, 1);
    layout->addWidget(m_hint, 1, 2);
    layout->setColumnStretch(2, 1);
    return layout;
}

void CLayerDialog::FillList()
{
    const CLayerEntry* const chosen = FindLayer(m_layers, m_name->text());
    // A colour's icon takes longer to paint than all the rest of a row.
    std::map<int, QIcon> icons;
    for (const CLayerEntry& layer : m_layers) {
        auto* const item = new QTreeWidgetItem(m_list, {layer.name, QString::number(layer.color)});
        const auto [icon, isNew] = icons.try_emplace(layer.color);
        if (isNew) {
            icon->second = ColorIcon(layer.color, kSwatchSide);
        }
        item->setIcon(0, icon->second);
        item->setTextAlignment(1, Qt::AlignCenter);
        item->setSizeHint(0, {0, kRowHeight});
        if (&layer == chosen) {
            m_list->setCurrentItem(item);
        }
    }
}

void CLayerDialog::FilterList(const QString& text)
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        QTreeWidgetItem* const item = m_list->topLevelItem(row);
        item->setHidden(!item->text(0).contains(text.trimmed(), Qt::CaseInsensitive));
    }
}

void CLayerDialog::SelectInList(const QTreeWidgetItem* item)
{
    if (item != nullptr) {
        m_name->setText(item->text(0));
    }
}

void CLayerDialog::ChooseColor()
{
    if (::GetColorDlg(m_newColor)) {
        ShowChoice();
    }
}

CLayerEntry CLayerDialog::GetChoice() const
{
    const QString name = m_name->text().trimmed();
    const CLayerEntry* const layer = FindLayer(m_layers, name);
    return layer != nullptr ? *layer : CLayerEntry{name, m_newColor};
}

void CLayerDialog::ShowChoice()
{
    const CLayerEntry choice = GetChoice();
    const bool isNew = FindLayer(m_layers, choice.name) == nullptr;
    m_color->setIcon(ColorIcon(choice.color, kSwatchSide));
    m_color->setText(QString::number(choice.color));
    m_color->setEnabled(isNew);
    m_hint->setText(isNew && !choice.name.isEmpty() ? QStringLiteral("nuovo layer") : QString());
    m_ok->setEnabled(!choice.name.isEmpty());
}

bool CLayerDialog::eventFilter(QObject* watched, QEvent* event)
{
    // From the filter the list can be walked without leaving the field.
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool ShowLayerDialog(CDrawer* drawer, CString& layer, int& farbe)
{
    if (!EnsureWindows()) {
        return false;
    }
    CLayerDialog dialog(ReadLayers(drawer), QString::fromStdWString(layer), farbe,
                        ParentForDialog());
    const bool confirmed = dialog.exec() == QDialog::Accepted;
    const CLayerEntry choice = dialog.GetChoice();
    if (!confirmed || choice.name.isEmpty()) {
        return false;
    }
    layer = choice.name.toStdWString();
    farbe = choice.color;
    return true;
}

} // namespace host_defaults
