#pragma once

#include <QWidget>

class QToolButton;

/// The bar on top of a dialog: title, buttons, and whatever the dialog paints beside them. The
/// window is moved by dragging it.
class CCaptionBar : public QWidget
{
    Q_OBJECT

public:
    /// Which buttons stand left of the one that closes.
    struct Buttons
    {
        bool minimize = false;
        bool maximize = false;
    };
    CCaptionBar(QWidget* window, Buttons buttons);

    void SetTitle(const QString& title);

    static int Height();
    static int ButtonWidth();

signals:
    void CloseRequested();
    void MinimizeRequested();
    void MaximizeRequested();
    void MenuRequested(const QPoint& screen);
    /// The bar is being painted; drawing on it is allowed until the handlers return.
    void Painting();
    void Pressed(const QPoint& screen);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QToolButton* AddButton(void (CCaptionBar::*signal)(), const char* name, int glyph);

    QWidget* m_window;
    bool m_maximizable;
    QList<QToolButton*> m_buttons;
    QString m_title;
    bool m_dragging = false;
    QPoint m_dragOffset;
};
