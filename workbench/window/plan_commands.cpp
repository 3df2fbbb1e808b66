#include "workbench/window/plan_commands.h"

#include "workbench/plan/coverage.h"
#include "workbench/plan/module_call.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/sizing.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/module_calls.h"
#include "workbench/window/plan_document.h"
#include "workbench/window/plan_texts.h"
#include "workbench/window/project_dialog.h"
#include "workbench/window/prompts.h"
#include "workbench/window/room_dialog.h"
#include "workbench/window/sizing_progress.h"
#include "workbench/window/system_dialog.h"
#include "workbench/window/waiting.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

/// The demand of a room belongs to its temperature, so that one set in the dialog stays there.
CNotice TemperatureNotice(const CRoom& room, double shown)
{
    const QString own = DecimalText(room.raumtemperatur, 2);
    return {QString("la temperatura di %1 °C vale solo nel dialogo; il locale resta a %2 °C, e la "
                    "resa è quella a %2 °C.")
                .arg(DecimalText(shown, 2), own),
            ToQt(room.strName)};
}

} // namespace

CPlanCommands::CPlanCommands(CPlanDocument& document, const CPrompts& prompts, QWidget& window)
    : m_document(document), m_prompts(prompts), m_window(window)
{
}

void CPlanCommands::ChooseRadiator(const CRoomRef& ref, std::optional<std::size_t> radiator,
                                   CDrawer& drawer)
{
    const CBuilding& building = m_document.Building();
    const CRoom& room = RoomOf(building, ref);
    if (!radiator && FreePlaces(room).empty()) {
        m_prompts.tell(&m_window,
                       QString("Nel locale \"%1\" non c'è più posto per un altro corpo scaldante.")
                           .arg(ToQt(room.strName)),
                       CPrompts::Tone::information);
        return;
    }
    const CString what = L"Corpo scaldante di " + room.strName;
    std::vector<CNotice> notices;
    const bool isTaken = Take(what, [&] { return AskForRadiator(ref, radiator, drawer, notices); });
    if (isTaken && !notices.empty()) {
        emit Told(notices);
    }
}

std::optional<CBuilding> CPlanCommands::AskForRadiator(const CRoomRef& ref,
                                                       std::optional<std::size_t> radiator,
                                                       CDrawer& drawer,
                                                       std::vector<CNotice>& notices)
{
    const CBuilding& building = m_document.Building();
    for (;;) {
        const auto chosen = workbench::AskForRadiator(building, ref, radiator, drawer);
        auto changed = chosen ? PutRadiator(building, ref, radiator, *chosen) : std::nullopt;
        notices.clear();
        if (chosen && chosen->raumtemperatur) {
            notices = {TemperatureNotice(RoomOf(building, ref), *chosen->raumtemperatur)};
        }
        if (!changed || !chosen->system) {
            return changed;
        }
        switch (AskWhatSystem(*changed, *chosen->system)) {
        case OtherSystem::take:
            workbench::ChangeSystem(*changed, *chosen->system);
            return changed;
        case OtherSystem::chooseAgain:
            continue;
        case OtherSystem::cancel:
            return std::nullopt;
        }
    }
}

CPlanCommands::OtherSystem CPlanCommands::AskWhatSystem(const CBuilding& changed,
                                                        const CHeatingSystem& chosen)
{
    const QString text = QString("Il corpo scaldante è stato scelto per il sistema %1 °C, ma "
                                 "l'edificio ha %2 °C.")
                             .arg(SystemText(chosen), SystemText(changed.system));
    CBuilding other = changed;
    other.system = chosen;
    if (!chosen.IsPlausible() || FindRoomTooWarm(other) != nullptr) {
        const auto answer = m_prompts.ask(
            &m_window, text + " Per tutto l'edificio queste temperature non sono possibili.",
            "&Scegli di nuovo", "&Annulla", false);
        return answer == CPrompts::Answer::yes ? OtherSystem::chooseAgain : OtherSystem::cancel;
    }
    workbench::ChangeSystem(other, chosen);
    const auto answer = m_prompts.ask(
        &m_window,
        text + QString("\nCon %1 °C per tutto l'edificio i locali da sistemare sono %2 (ora %3).")
                   .arg(SystemText(chosen))
                   .arg(OpenRooms(other).size())
                   .arg(OpenRooms(m_document.Building()).size()),
        "&Cambia l'edificio", "&Scegli di nuovo", true);
    switch (answer) {
    case CPrompts::Answer::yes:
        return OtherSystem::take;
    case CPrompts::Answer::no:
        return OtherSystem::chooseAgain;
    default:
        return OtherSystem::cancel;
    }
}

std::optional<CBuilding> CPlanCommands::Ask(const Question& question)
{
    try {
        return question();
    } catch (const CModuleFault& fault) {
        Tell(ToQt(fault.GetMessage()));
        return std::nullopt;
    }
}

bool CPlanCommands::Take(const CString& what, const Question& question)
{
    std::optional<CBuilding> changed = Ask(question);
    if (changed) {
        m_document.Do(what, std::move(*changed));
    }
    return changed.has_value();
}

void CPlanCommands::ChooseProduct(const std::vector<CRoomRef>& rooms)
{
    if (rooms.empty()) {
        return;
    }
    auto changed = Ask([&] { return workbench::ChooseProduct(m_document.Building(), rooms); });
    if (!changed) {
        return;
    }
    const QString question =
        rooms.size() == 1
            ? QString("Dimensionare subito il locale con il nuovo prodotto?")
            : QString("Dimensionare subito i %1 locali con il nuovo prodotto?").arg(rooms.size());
    if (m_prompts.ask(&m_window, question, "&Dimensiona", "&Più tardi", false) ==
        CPrompts::Answer::yes) {
        const std::optional<Picked> picked = AskForPicked(*changed, rooms);
        if (!picked) {
            return;
        }
        CSizingResult result = SizeWithProgress(&m_window, *changed, rooms, *picked);
        if (result.bCancelled) {
            TellCancelled();
            return;
        }
        m_document.Do(L"Prodotto", result.building);
        TellSized(result);
        return;
    }
    m_document.Do(L"Prodotto", std::move(*changed));
}

std::optional<Picked> CPlanCommands::AskForPicked(const CBuilding& building,
                                                  const std::vector<CRoomRef>& rooms)
{
    if (!HasPicked(building, rooms)) {
        return Picked::stay;
    }
    switch (m_prompts.ask(&m_window, "Alcuni corpi scaldanti sono stati scelti a mano.",
                          "&Mantieni quelli", "&Dimensiona anche quelli", true)) {
    case CPrompts::Answer::yes:
        return Picked::stay;
    case CPrompts::Answer::no:
        return Picked::sizedAnew;
    default:
        return std::nullopt;
    }
}

void CPlanCommands::Size(const std::vector<CRoomRef>& rooms, const CString& what)
{
    if (rooms.empty()) {
        return;
    }
    const std::optional<Picked> picked = AskForPicked(m_document.Building(), rooms);
    if (!picked) {
        return;
    }
    CSizingResult result = SizeWithProgress(&m_window, m_document.Building(), rooms, *picked);
    if (result.bCancelled) {
        TellCancelled();
        return;
    }
    if (result.nSized > 0) {
        m_document.Do(what, result.building);
    }
    TellSized(result);
}

void CPlanCommands::Tell(const QString& text)
{
    emit Told({{text}});
}

void CPlanCommands::Repair(const std::vector<CRoomRef>& rooms, const CString& what)
{
    const std::optional<Picked> picked = AskForPicked(m_document.Building(), rooms);
    if (!picked) {
        return;
    }
    const CRepairResult result =
        RepairWithProgress(&m_window, m_document.Building(), rooms, *picked);
    if (result.bCancelled) {
        TellCancelled();
        return;
    }
    m_document.Do(what, result.building);
    TellRepair(result);
}

void CPlanCommands::TellRepair(const CRepairResult& result)
{
    std::vector<CNotice> notices = {
        {QString("Riparazione: locali esaminati %1. Locali da sistemare: %2.")
             .arg(result.rooms.size())
             .arg(OpenRooms(result.building).size())}};
    for (const CRepairedRoom& repaired : result.rooms) {
        notices.push_back(
            {ToQt(repaired.strReport), ToQt(RoomOf(result.building, repaired.room).strName)});
    }
    emit Told(notices);
}

void CPlanCommands::TellCancelled()
{
    Tell("Dimensionamento annullato: nulla è cambiato.");
}

void CPlanCommands::TellSized(const CSizingResult& result)
{
    QString message = QString("Corpi scaldanti scelti: %1.").arg(result.nSized);
    if (const std::size_t open = OpenRooms(result.building).size(); open > 0) {
        message += QString(" Locali da sistemare: %1.").arg(open);
    }
    std::vector<CNotice> notices = {{message}};
    for (const CSizingFault& fault : result.faults) {
        notices.push_back(
            {ToQt(fault.outcome.strNote), ToQt(RoomOf(result.building, fault.room).strName)});
    }
    emit Told(notices);
}

void CPlanCommands::Connect(const std::vector<CRadiatorRef>& radiators, CDrawer& drawer)
{
    if (radiators.empty()) {
        return;
    }
    Take(L"Attacchi e valvole",
         [&] { return ConnectRadiators(m_document.Building(), radiators, drawer); });
}

void CPlanCommands::Remove(const std::vector<CRadiatorRef>& radiators)
{
    if (radiators.empty()) {
        return;
    }
    CBuilding changed = m_document.Building();
    RemoveRadiators(changed, radiators);
    m_document.Do(radiators.size() == 1 ? L"Elimina corpo scaldante" : L"Elimina corpi scaldanti",
                  std::move(changed));
}

void CPlanCommands::RemoveRooms(const std::vector<CRoomRef>& rooms)
{
    CBuilding changed = m_document.Building();
    const bool isOne = rooms.size() == 1;
    const bool hasRadiators = std::ranges::any_of(
        rooms, [&](const CRoomRef& ref) { return !RoomOf(changed, ref).heizkoerper.empty(); });
    const QString question =
        isOne ? QString("Eliminare il locale \"%1\" con i suoi corpi scaldanti?")
                    .arg(ToQt(RoomOf(changed, rooms.front()).strName))
              : QString("Eliminare %1 locali con i loro corpi scaldanti?").arg(rooms.size());
    if (hasRadiators && m_prompts.ask(&m_window, question, "&Elimina", "&Annulla", false) !=
                            CPrompts::Answer::yes) {
        return;
    }
    workbench::RemoveRooms(changed, rooms);
    m_document.Do(isOne ? L"Elimina locale" : L"Elimina locali", std::move(changed));
}

void CPlanCommands::DescribeProject()
{
    CProjectDialog dialog(m_document.Building().project, &m_window);
    if (dialog.exec() == QDialog::Accepted) {
        CBuilding changed = m_document.Building();
        changed.project = dialog.GetProject();
        m_document.Do(L"Dati del progetto", std::move(changed));
    }
}

bool CPlanCommands::ChangeSystem()
{
    CSystemDialog dialog(m_document.Building(), &m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    const CHeatingSystem system = dialog.GetSystem();
    CBuilding changed = m_document.Building();
    changed.ueberschussMax = dialog.GetExcessMax();
    if (system == changed.system) {
        m_document.Do(L"Limite di sovradimensionamento", std::move(changed));
        return false;
    }
    const CWaiting waiting(m_window, "Calcolo con il nuovo sistema…");
    workbench::ChangeSystem(changed, system);
    const QString name = SystemText(system);
    const std::size_t open = OpenRooms(changed).size();
    m_document.Do(L"Sistema " + FromQt(name), std::move(changed));
    Tell(QString("Sistema di riscaldamento %1 °C: locali da sistemare: %2.").arg(name).arg(open));
    return true;
}

std::optional<CRoomRef> CPlanCommands::AddRoom(std::size_t floor)
{
    CRoomDialog dialog(m_document.Building(), floor, &m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    m_document.Do(L"Aggiungi locale", dialog.GetBuilding());
    return FindRoom(m_document.Building(), dialog.GetRoom().strName);
}

std::vector<CRoomRef> OpenRooms(const CBuilding& building)
{
    std::vector<CRoomRef> rooms = AllRooms(building);
    std::erase_if(rooms, [&](const CRoomRef& ref) {
        return !IsOpen(CoverageOf(building, RoomOf(building, ref)));
    });
    return rooms;
}

} // namespace workbench
