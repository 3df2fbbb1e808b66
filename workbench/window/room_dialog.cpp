#include "workbench/window/room_dialog.h"

#include "workbench/building/printable.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/decimal_box.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace workbench {

namespace {

constexpr double kMetre = 1000.0;
/// A building's file takes no longer names.
constexpr int kLongestName = 200;

/// Of most names.
constexpr int kNameCharacters = 40;
/// Of the widest number, and of its unit and buttons.
constexpr int kNumberCharacters = 18;

/// As a building's file takes it: what is pasted may have tabs and line ends.
CString NameIn(const QString& typed)
{
    return Printable(FromQt(typed.trimmed()));
}

CDecimalBox* MakeBox(const char* name, double least, double most, const QString& unit, double value)
{
    auto* const box = new CDecimalBox(least, most, unit);
    box->setObjectName(name);
    box->SetNumber(value);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * kNumberCharacters);
    return box;
}

} // namespace

CRoomDialog::CRoomDialog(const CBuilding& building, std::size_t floor, QWidget* parent)
    : QDialog(parent), m_building(building), m_pFloor(new QComboBox), m_pName(new QLineEdit),
      m_pFault(new QLabel),
      m_pButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    const CNewRoom usual;
    m_pDemand = MakeBox("demand", 0.0, 50000.0, "W", 1000.0);
    m_pTemperature = MakeBox("temperature", 0.0, 40.0, "°C", usual.raumtemperatur);
    m_pWidth = MakeBox("width", 1.0, 100.0, "m", usual.breite / kMetre);
    m_pDepth = MakeBox("depth", 1.0, 100.0, "m", usual.tiefe / kMetre);
    m_pWindow = MakeBox("window", 200.0, 20000.0, "mm", usual.fensterBreite);
    m_pSill = MakeBox("sill", 200.0, 5000.0, "mm", usual.bruestung);
    m_pFloor->setObjectName("floor");
    m_pFloor->setEditable(true);
    m_pFloor->setInsertPolicy(QComboBox::NoInsert);
    m_pFloor->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_pFloor->lineEdit()->setMaxLength(kLongestName);
    m_pName->setObjectName("name");
    m_pName->setMaxLength(kLongestName);
    m_pName->setMinimumWidth(fontMetrics().averageCharWidth() * kNameCharacters);
    m_pFault->setObjectName("fault");
    m_pFault->setWordWrap(true);

    auto* const form = new QFormLayout(this);
    const bool isNew = building.floors.empty();
    setWindowTitle(isNew ? "Nuovo edificio" : "Aggiungi locale");
    if (isNew) {
        m_pBuildingName = new QLineEdit("Edificio nuovo");
        m_pBuildingName->setObjectName("building");
        m_pBuildingName->setMaxLength(kLongestName);
        m_building = MakeBuilding(L"Edificio nuovo");
        form->addRow("&Edificio:", m_pBuildingName);
        m_pFloor->addItem("Piano terra");
    }
    for (const CFloor& each : building.floors) {
        m_pFloor->addItem(ToQt(each.strName));
    }
    m_pFloor->setCurrentIndex(isNew ? 0 : static_cast<int>(floor));
    form->addRow("&Piano:", m_pFloor);
    form->addRow(isNew ? "Primo &locale:" : "&Locale:", m_pName);
    form->addRow("&Fabbisogno:", m_pDemand);
    form->addRow("&Temperatura:", m_pTemperature);
    form->addRow("La&rghezza:", m_pWidth);
    form->addRow("Pro&fondità:", m_pDepth);
    form->addRow("Larghezza della &finestra:", m_pWindow);
    form->addRow("Altezza del &davanzale:", m_pSill);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(m_pFault);
    form->addRow(m_pButtons);
    m_pButtons->button(QDialogButtonBox::Cancel)->setText("Annulla");
    m_pName->setFocus();

    connect(m_pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_pName, &QLineEdit::textChanged, this, &CRoomDialog::ShowFault);
    connect(m_pFloor, &QComboBox::editTextChanged, this, &CRoomDialog::ShowFault);
    for (const CDecimalBox* const box : {m_pTemperature, m_pWidth, m_pWindow, m_pSill}) {
        connect(box, &QDoubleSpinBox::valueChanged, this, &CRoomDialog::ShowFault);
    }
    if (m_pBuildingName != nullptr) {
        connect(m_pBuildingName, &QLineEdit::textChanged, this, &CRoomDialog::ShowFault);
    }
    m_pButtons->button(QDialogButtonBox::Ok)->setEnabled(FindFault().empty());
}

CNewRoom CRoomDialog::GetRoom() const
{
    CNewRoom room;
    room.strFloor = NameIn(m_pFloor->currentText());
    room.strName = NameIn(m_pName->text());
    room.bedarf = m_pDemand->value();
    room.raumtemperatur = m_pTemperature->value();
    room.breite = m_pWidth->value() * kMetre;
    room.tiefe = m_pDepth->value() * kMetre;
    room.fensterBreite = m_pWindow->value();
    room.bruestung = m_pSill->value();
    return room;
}

CBuilding CRoomDialog::GetBuilding() const
{
    CBuilding building = m_building;
    if (m_pBuildingName != nullptr) {
        building.strName = NameIn(m_pBuildingName->text());
    }
    AddRoom(building, GetRoom());
    return building;
}

CString CRoomDialog::FindFault() const
{
    const bool hasNoName =
        m_pBuildingName != nullptr && m_pBuildingName->text().trimmed().isEmpty();
    return hasNoName ? L"Manca il nome dell'edificio."
                     : workbench::FindFault(m_building, GetRoom());
}

void CRoomDialog::ShowFault()
{
    const CString fault = FindFault();
    m_pFault->setText(ToQt(fault));
    m_pButtons->button(QDialogButtonBox::Ok)->setEnabled(fault.empty());
}

} // namespace workbench
