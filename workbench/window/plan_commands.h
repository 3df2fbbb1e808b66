#pragma once

#include "workbench/plan/repair.h"
#include "workbench/window/message_pane.h"

#include <QObject>

#include <functional>
#include <optional>

class CDrawer;
class QWidget;

namespace workbench {

class CPlanDocument;
struct CPrompts;

/// What the designer does with rooms and radiators. Each command is one step that can be undone,
/// and none if the user cancels or nothing changes.
class CPlanCommands : public QObject
{
    Q_OBJECT

public:
    /// All outlive the commands. `window` is the parent of dialogs.
    CPlanCommands(CPlanDocument& document, const CPrompts& prompts, QWidget& window);

    /// The radiator of a room: a first one, or with `radiator` another one in its place.
    void ChooseRadiator(const CRoomRef& room, std::optional<std::size_t> radiator, CDrawer& drawer);

    /// One product for rooms, which are sized with it at once if the user wants so.
    void ChooseProduct(const std::vector<CRoomRef>& rooms);

    /// Sizes the rooms anew. `what` names the step.
    void Size(const std::vector<CRoomRef>& rooms, const CString& what);

    /// Gives the rooms among these that need it what they need, as far as that goes, and tells room
    /// by room what was done.
    void Repair(const std::vector<CRoomRef>& rooms, const CString& what);

    void Connect(const std::vector<CRadiatorRef>& radiators, CDrawer& drawer);
    void Remove(const std::vector<CRadiatorRef>& radiators);

    /// Takes rooms out of the building, which must keep one; asks where radiators go with them.
    void RemoveRooms(const std::vector<CRoomRef>& rooms);

    /// Asks for what papers say of the project.
    void DescribeProject();

    /// Asks for a further room, which stands east of the others of its floor: that one, unless the
    /// user says another. Nothing if he cancels.
    std::optional<CRoomRef> AddRoom(std::size_t floor);

    /// Asks for another heating system of the building, and from what excess on radiators count as
    /// oversized. False if it keeps its system.
    bool ChangeSystem();

signals:
    /// Something for the list of messages, which holds for the building as it is now.
    void Told(const std::vector<CNotice>& notices);

private:
    using Question = std::function<std::optional<CBuilding>()>;

    /// The answer of a dialog. A call of it that fails is told, and nothing changes.
    std::optional<CBuilding> Ask(const Question& question);
    /// The same, and what was chosen becomes the building. False if nothing was.
    bool Take(const CString& what, const Question& question);

    /// What becomes of the radiators of rooms that were picked by hand; nothing if the user
    /// cancels.
    std::optional<Picked> AskForPicked(const CBuilding& building,
                                       const std::vector<CRoomRef>& rooms);

    /// A radiator for a room, asked for until it fits the heating system of the building. The
    /// notices become what the user has to know of it.
    std::optional<CBuilding> AskForRadiator(const CRoomRef& room,
                                            std::optional<std::size_t> radiator, CDrawer& drawer,
                                            std::vector<CNotice>& notices);

    enum class OtherSystem
    {
        take,
        chooseAgain,
        cancel,
    };
    /// What is to become of a radiator that was chosen at other temperatures.
    OtherSystem AskWhatSystem(const CBuilding& changed, const CHeatingSystem& chosen);

    void Tell(const QString& text);
    void TellCancelled();
    void TellRepair(const CRepairResult& result);
    /// Tells what came of sizing, after that has become the building.
    void TellSized(const CSizingResult& result);

    CPlanDocument& m_document;
    const CPrompts& m_prompts;
    QWidget& m_window;
};

/// The rooms that someone has to look after.
std::vector<CRoomRef> OpenRooms(const CBuilding& building);

} // namespace workbench
