#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <vector>

/// A label that shortens what it cannot show and then tells the whole as its tooltip.
class CLabelWidget : public QLabel
{
    Q_OBJECT

public:
    explicit CLabelWidget(QWidget* parent);

    /// Makes the words of the text end at these places, in pixels.
    void SetColumns(const std::vector<int>& ends);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool IsCut() const;
    void PaintColumns();

    std::vector<int> m_columns;
};

/// An edit that tells as its tooltip the whole of a text that it cannot show.
class CEditWidget : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent* event) override;

private:
    bool IsCut() const;
};

/// A frame whose title stands in its top line.
class CGroupWidget : public QGroupBox
{
    Q_OBJECT

public:
    explicit CGroupWidget(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Two arrows, one above the other, that repeat while they are held.
class CSpinWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CSpinWidget(QWidget* parent);

signals:
    /// -1 down, 1 up.
    void Stepped(int delta);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class QToolButton* MakeArrow(Qt::ArrowType arrow, int delta);

    QToolButton* m_up;
    QToolButton* m_down;
};
