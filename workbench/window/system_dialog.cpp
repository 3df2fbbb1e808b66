#include "workbench/window/system_dialog.h"

#include "reference_host/files/system_list_file.h"
#include "workbench/plan/coverage.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/decimal_box.h"
#include "workbench/window/plan_commands.h"
#include "workbench/window/plan_texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

namespace {

/// Supply and return of systems that are built most, from the boiler of old to the heat pump.
constexpr CHeatingSystem kCommon[] = {
    {80.0, 60.0}, {75.0, 65.0}, {70.0, 55.0}, {65.0, 50.0}, {55.0, 45.0},
    {50.0, 40.0}, {45.0, 38.0}, {45.0, 35.0}, {35.0, 28.0},
};

CDecimalBox* MakeTemperature(double value)
{
    auto* const box = new CDecimalBox(1.0, 110.0, "°C");
    box->SetNumber(value);
    return box;
}

CDecimalBox* MakePercentage(double value)
{
    auto* const box = new CDecimalBox(0.0, 1000.0, "%");
    box->SetNumber(value);
    return box;
}

QString CountText(std::size_t changed, std::size_t now)
{
    return QString("%1 (ora %2)").arg(changed).arg(now);
}

std::size_t CountOversized(const CBuilding& building)
{
    const std::vector<CRoomRef> rooms = AllRooms(building);
    return static_cast<std::size_t>(std::ranges::count_if(rooms, [&](const CRoomRef& ref) {
        return CoverageOf(building, RoomOf(building, ref)) == Coverage::oversized;
    }));
}

bool Has(const std::vector<COfferedSystem>& offers, const CHeatingSystem& system)
{
    return std::ranges::find(offers, system, &COfferedSystem::system) != offers.end();
}

/// What the user has stored in the selection dialog, under his names, and what is usual besides.
std::vector<COfferedSystem> OfferedSystems()
{
    std::vector<COfferedSystem> offers;
    for (const reference_host::CStoredSystem& stored : reference_host::ReadStoredSystems()) {
        const CHeatingSystem system{stored.vorlauf, stored.ruecklauf};
        if (system.IsPlausible()) {
            offers.push_back(
                {QString("%1 (%2)").arg(ToQt(stored.strName), SystemText(system)), system});
        }
    }
    for (const CHeatingSystem& system : kCommon) {
        if (!Has(offers, system)) {
            offers.push_back({SystemText(system) + " °C", system});
        }
    }
    return offers;
}

} // namespace

CSystemDialog::CSystemDialog(const CBuilding& building, QWidget* parent)
    : QDialog(parent), m_building(building), m_offers(OfferedSystems()), m_pOffers(new QComboBox),
      m_pVorlauf(MakeTemperature(building.system.vorlauf)),
      m_pRuecklauf(MakeTemperature(building.system.ruecklauf)),
      m_pExcessMax(MakePercentage(building.ueberschussMax)), m_pConsequence(new QLabel),
      m_pButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle("Sistema di riscaldamento");
    m_pVorlauf->setObjectName("supply");
    m_pRuecklauf->setObjectName("return");
    m_pExcessMax->setObjectName("excessMax");
    m_pConsequence->setObjectName("consequence");
    m_pConsequence->setTextFormat(Qt::PlainText);
    m_pConsequence->setWordWrap(true);
    m_pConsequence->setMinimumHeight(fontMetrics().height() * 3);
    m_pButtons->button(QDialogButtonBox::Cancel)->setText("Annulla");

    m_pOffers->setObjectName("systems");
    for (const COfferedSystem& offer : m_offers) {
        m_pOffers->addItem(offer.strText);
    }
    m_pOffers->setPlaceholderText("altre temperature");
    auto* const form = new QFormLayout;
    form->addRow("&Sistema:", m_pOffers);
    form->addRow("&Mandata:", m_pVorlauf);
    form->addRow("&Ritorno:", m_pRuecklauf);
    form->addRow("Sovradimensionato &oltre:", m_pExcessMax);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_pConsequence);
    layout->addStretch();
    layout->addWidget(m_pButtons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);

    connect(m_pOffers, &QComboBox::activated, this, &CSystemDialog::TakeOffer);
    for (const CDecimalBox* const box : {m_pVorlauf, m_pRuecklauf}) {
        connect(box, &QDoubleSpinBox::valueChanged, this, &CSystemDialog::ShowSystem);
    }
    connect(m_pExcessMax, &QDoubleSpinBox::valueChanged, this, &CSystemDialog::ShowConsequence);
    connect(m_pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowSystem();
}

CHeatingSystem CSystemDialog::GetSystem() const
{
    return {m_pVorlauf->GetNumber(), m_pRuecklauf->GetNumber()};
}

double CSystemDialog::GetExcessMax() const
{
    return m_pExcessMax->GetNumber();
}

void CSystemDialog::TakeOffer(int index)
{
    const CHeatingSystem& system = m_offers[static_cast<std::size_t>(index)].system;
    m_pVorlauf->SetNumber(system.vorlauf);
    m_pRuecklauf->SetNumber(system.ruecklauf);
}

void CSystemDialog::ShowSystem()
{
    const auto shown = std::ranges::find(m_offers, GetSystem(), &COfferedSystem::system);
    m_pOffers->setCurrentIndex(shown != m_offers.end() ? static_cast<int>(shown - m_offers.begin())
                                                       : -1);
    ShowConsequence();
}

void CSystemDialog::ShowConsequence()
{
    QString text;
    bool possible = false;
    CBuilding changed = m_building;
    changed.system = GetSystem();
    if (!changed.system.IsPlausible()) {
        text = "La temperatura di ritorno deve stare sotto quella di mandata.";
    } else if (const CRoom* const room = FindRoomTooWarm(changed)) {
        text = QString("Il ritorno non supera la temperatura del locale \"%1\".")
                   .arg(ToQt(room->strName));
    } else {
        possible = true;
        changed.ueberschussMax = GetExcessMax();
        ChangeSystem(changed, changed.system);
        text = QString("Locali da sistemare: %1.\nLocali sovradimensionati: %2.")
                   .arg(CountText(OpenRooms(changed).size(), OpenRooms(m_building).size()),
                        CountText(CountOversized(changed), CountOversized(m_building)));
    }
    m_pConsequence->setText(text);
    m_pButtons->button(QDialogButtonBox::Ok)->setEnabled(possible);
}

} // namespace workbench
