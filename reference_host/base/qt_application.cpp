#include "reference_host/base/qt_application.h"

#include <QApplication>

namespace reference_host {

bool EnsureWindows()
{
    if (QCoreApplication::instance() == nullptr) {
        // Both outlive main(): the toolkit keeps referring to them, and tearing its window system
        // down among the destructors of a foreign program is a known source of crashes.
        static int count = 1;
        static char name[] = "radsel";
        static char* arguments[] = {name, nullptr};
        new QApplication(count, arguments);
    }
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace reference_host
