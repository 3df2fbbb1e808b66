#pragma once

#include <QWidget>

class CDialogWindow;
class QToolButton;

/// The bar on top of a dialog: title, buttons, and whatever the dialog paints beside them. The
/// window is moved by dragging it.
class CCaptionBar : public QWidget
{
    Q_OBJECT

public:
    /// `frame` holds values of FrameStyle; they tell which buttons stand left of the one that
    /// closes.
    CCaptionBar(CDialogWindow& window, unsigned frame);

    static int Height();
    static int ButtonWidth();

    /// What the bar takes to show the whole title of its window.
    int WidthForTitle() const;
    QRect TitleArea() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void AddButton(const char* name, unsigned command);
    void ToggleMaximized();
    int WidthBesideTitle() const;

    CDialogWindow& m_window;
    bool m_maximizable;
    QList<QToolButton*> m_buttons;
    bool m_dragging = false;
    QPoint m_dragOffset;
};
