#pragma once

#include <QString>

class QStatusBar;
class QWidget;

namespace workbench {

/// Tells, for as long as it lives, that the program is busy and with what: by the wait cursor and
/// in the status bar of a window. For work that may take its time and cannot tell how far it is.
class CWaiting
{
public:
    CWaiting(const QWidget& window, const QString& what);
    ~CWaiting();
    CWaiting(const CWaiting&) = delete;
    CWaiting& operator=(const CWaiting&) = delete;

private:
    /// Null for a window without one.
    QStatusBar* m_pBar;
};

} // namespace workbench
