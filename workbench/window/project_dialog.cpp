#include "workbench/window/project_dialog.h"

#include "workbench/building/printable.h"
#include "workbench/toolkit/qt_text.h"

#include <QDate>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

namespace workbench {

namespace {

/// The longest text that a building's file takes.
constexpr int kLongestText = 200;

/// As Italians write a day, with or without leading zeros.
const QString kTypedDate = "d/M/yyyy";
const QString kShownDate = "dd/MM/yyyy";

/// The day in the form of the building's file, an empty text for an empty one, or nothing for a
/// text that is no day.
std::optional<QString> DayOf(const QString& typed)
{
    if (typed.trimmed().isEmpty()) {
        return QString();
    }
    const QDate day = QDate::fromString(typed.trimmed(), kTypedDate);
    return day.isValid() ? std::optional(day.toString(Qt::ISODate)) : std::nullopt;
}

CString TextOf(const QLineEdit& field)
{
    return Printable(FromQt(field.text().trimmed()));
}

} // namespace

CProjectDialog::CProjectDialog(const CProject& project, QWidget* parent)
    : QDialog(parent), m_pFault(new QLabel),
      m_pButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle("Dati del progetto");
    auto* const form = new QFormLayout;
    const auto add = [&](const char* name, const QString& label, const QString& text) {
        auto* const field = new QLineEdit(text);
        field->setObjectName(name);
        field->setMaxLength(kLongestText);
        form->addRow(label, field);
        return field;
    };
    m_pClient = add("client", "&Committente:", ToQt(project.strClient));
    m_pDesigner = add("designer", "&Progettista:", ToQt(project.strDesigner));
    m_pNumber = add("number", "&Numero:", ToQt(project.strNumber));
    m_pDate =
        add("date",
            "&Data:", QDate::fromString(ToQt(project.strDate), Qt::ISODate).toString(kShownDate));
    m_pDate->setPlaceholderText("gg/mm/aaaa; vuota: il giorno della stampa");
    m_pFault->setObjectName("fault");
    m_pButtons->button(QDialogButtonBox::Cancel)->setText("Annulla");

    auto* const column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_pFault);
    column->addStretch();
    column->addWidget(m_pButtons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 72);

    connect(m_pDate, &QLineEdit::textChanged, this, &CProjectDialog::CheckDate);
    connect(m_pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

CProject CProjectDialog::GetProject() const
{
    return {TextOf(*m_pClient), TextOf(*m_pDesigner), TextOf(*m_pNumber),
            FromQt(DayOf(m_pDate->text()).value_or(QString()))};
}

void CProjectDialog::CheckDate()
{
    const bool isDay = DayOf(m_pDate->text()).has_value();
    m_pFault->setText(isDay ? QString() : "La data non è un giorno come 31/12/2026.");
    m_pButtons->button(QDialogButtonBox::Ok)->setEnabled(isDay);
}

} // namespace workbench
