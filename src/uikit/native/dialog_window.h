#pragma once

#include "uikit/dialog.h"
#include "uikit/native/dialog_font.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

class CCaptionBar;
class QButtonGroup;
class QScrollArea;

/// The system's own entries of the system menu.
enum SystemCommand : unsigned
{
    systemRestore = 0xF120,
    systemMinimize = 0xF020,
    systemMaximize = 0xF030,
    systemClose = 0xF060,
};

/// The toolkit's side of a dialog: frame, caption bar and client area, and the way of their events
/// into the dialog's handlers.
///
/// A dialog has the size that it asks for, and its handlers know no other. Where that is more than
/// the screen has, the window shows a part of it and scroll bars for the rest.
class CDialogWindow : public QWidget
{
    Q_OBJECT

public:
    CDialogWindow(CDialog& dialog, QWidget* owner);
    ~CDialogWindow() override;

    QWidget& Client() const { return *m_client; }
    CCaptionBar& Caption() const { return *m_caption; }
    QWidget* Find(int id) const;
    QWidget* Add(const ControlTemplate& control, const QRect& pixels);
    /// Adds all controls of the template and takes its size.
    void Fill(const DialogTemplate& dialogTemplate);
    QRect MapUnits(const CRect& units) const;

    /// Radio buttons of the group that begins with that id, in template order.
    std::vector<class QRadioButton*> RadioGroup(int firstId) const;

    void StartTimer(int id, int milliseconds);
    void StopTimer(int id);

    void ApplyColors();
    /// Applies the least and largest size that the dialog allows; one that cannot be resized gets
    /// exactly `size`.
    void ApplyMinMax(const QSize& size);
    /// Puts the window there, as large as the screen lets it be.
    void Place(const QRect& whole);
    /// Size of the window with all of its client area, whatever the screen shows of it.
    QSize WholeSize() const;
    /// Where the window would stand had not the program around it moved it when it showed. A move
    /// after that is the user's.
    QPoint KeptPlace() const;
    void FocusFirst();
    void ShowSystemMenu(const QPoint& screen);
    void DefaultPlace();
    /// Sizes the window so that its client area has that size.
    void SetClientSize(const QSize& size);
    void NextControl();
    /// The caption bar is being painted; drawing on it is allowed until this returns.
    void PaintBesideTitle();
    void PressFrame(const QPoint& screen);
    /// Carries out the system's own entries of the system menu.
    void DoSystemCommand(unsigned id);

    /// Ends the event loop of DoModal().
    void Leave();
    void RunLoop();

protected:
    bool eventFilter(QObject* control, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend class CClientArea;

    /// `dialogShows` tells that more of the client area is painted than what lies below controls.
    void PaintClient(bool dialogShows);
    void Connect(QWidget& widget, const ControlTemplate& control);
    void Tell(int id, ControlEvent event);
    void PressDefault();
    void LayOut();
    Qt::Edges EdgesAt(const QPoint& place) const;
    int Border() const;
    QSize FrameSize() const;
    QSize FitToScreen(QSize whole) const;

    CDialog& m_dialog;
    CDialogFontScope m_font;
    /// Average character of the font; all dialog units are parts of it.
    QSizeF m_baseUnits;
    CCaptionBar* m_caption;
    QScrollArea* m_scroll;
    QWidget* m_client;
    /// Size of the window below which its client area scrolls.
    QSize m_least;
    /// What the dialog has asked for; nothing once the user has sized the window.
    QSize m_asked;
    QPoint m_ownPlace;
    std::optional<QPoint> m_shownPlace;
    std::map<int, QPointer<QWidget>> m_controls;
    /// Controls that tell of clicks because of their style.
    std::set<const QWidget*> m_notifying;
    QButtonGroup* m_lastGroup = nullptr;
    std::map<int, QTimer*> m_timers;
    class QEventLoop* m_loop = nullptr;
};

/// The window of an open dialog; null if it has none.
CDialogWindow* WindowOf(const CDialog& dialog);
