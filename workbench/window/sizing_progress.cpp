#include "workbench/window/sizing_progress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

namespace workbench {

namespace {

/// Telling the user about every room would take longer than sizing it.
constexpr qint64 kShowEvery = 40;

/// What is done sooner needs no bar.
constexpr int kShowAfter = 300;

/// A bar that is asked room by room whether to go on.
class CSizingBar
{
public:
    CSizingBar(QWidget* parent, const QString& title, const QString& text, std::size_t rooms)
        : m_bar(text, "Annulla", 0, static_cast<int>(rooms), parent)
    {
        m_bar.setObjectName("sizing");
        m_bar.setWindowTitle(title);
        m_bar.setWindowModality(Qt::WindowModal);
        m_bar.setMinimumDuration(kShowAfter);
        m_sinceShown.start();
    }

    /// A desktop may leave the keys with a bar that goes while the program works.
    ~CSizingBar()
    {
        if (m_bar.isActiveWindow()) {
            m_bar.hide();
            m_bar.parentWidget()->activateWindow();
        }
    }
    CSizingBar(const CSizingBar&) = delete;
    CSizingBar& operator=(const CSizingBar&) = delete;

    bool GoOn(std::size_t done, std::size_t all)
    {
        if (m_sinceShown.elapsed() >= kShowEvery) {
            m_sinceShown.restart();
            m_bar.setMaximum(static_cast<int>(all));
            m_bar.setValue(static_cast<int>(done));
            QCoreApplication::processEvents();
        }
        return !m_bar.wasCanceled();
    }

private:
    QProgressDialog m_bar;
    QElapsedTimer m_sinceShown;
};

} // namespace

CSizingResult SizeWithProgress(QWidget* parent, const CBuilding& building,
                               const std::vector<CRoomRef>& rooms, Picked picked)
{
    CSizingBar bar(parent, "Dimensiona", "Dimensionamento dei corpi scaldanti…", rooms.size());
    return SizeRooms(
        building, rooms, [&](std::size_t done, std::size_t all) { return bar.GoOn(done, all); },
        picked);
}

CRepairResult RepairWithProgress(QWidget* parent, const CBuilding& building,
                                 const std::vector<CRoomRef>& rooms, Picked picked)
{
    CSizingBar bar(parent, "Ripara", "Riparazione dei locali…", rooms.size());
    return RepairRooms(
        building, rooms, [&](std::size_t done, std::size_t all) { return bar.GoOn(done, all); },
        picked);
}

} // namespace workbench
