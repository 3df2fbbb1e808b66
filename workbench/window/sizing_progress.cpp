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

} // namespace

CSizingResult SizeWithProgress(QWidget* parent, const CBuilding& building,
                               const std::vector<CRoomRef>& rooms, Picked picked)
{
    QProgressDialog bar("Dimensionamento dei corpi scaldanti…", "Annulla", 0,
                        static_cast<int>(rooms.size()), parent);
    bar.setObjectName("sizing");
    bar.setWindowTitle("Dimensiona");
    bar.setWindowModality(Qt::WindowModal);
    bar.setMinimumDuration(kShowAfter);
    QElapsedTimer sinceShown;
    sinceShown.start();
    return SizeRooms(
        building, rooms,
        [&](std::size_t done, std::size_t /*all*/) {
            if (sinceShown.elapsed() >= kShowEvery) {
                sinceShown.restart();
                bar.setValue(static_cast<int>(done));
                QCoreApplication::processEvents();
            }
            return !bar.wasCanceled();
        },
        picked);
}

} // namespace workbench
