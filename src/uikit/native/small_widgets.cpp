#include "uikit/native/small_widgets.h"

#include "uikit/native/whole_text.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>

namespace {

constexpr int kGroupTitleIndent = 8;
constexpr int kTitleGap = 3;

constexpr int kWordGap = 5;
constexpr int kCondensed = 80;

/// Places of words over columns, right edges in line. A word wider than its column pushes those
/// before it to the left.
QList<QRect> PlaceWords(const QStringList& words, const std::vector<int>& ends,
                        const QFontMetrics& metrics, const QRect& area)
{
    QList<QRect> places(words.size());
    int limit = area.width();
    for (int i = static_cast<int>(words.size()) - 1; i >= 0; --i) {
        const int width = metrics.horizontalAdvance(words[i]);
        const int right = qMin(ends[static_cast<std::size_t>(i)], limit);
        places[i] = QRect(right - width, 0, width, area.height());
        limit = right - width - kWordGap;
    }
    return places;
}

} // namespace

CLabelWidget::CLabelWidget(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

bool CLabelWidget::IsCut() const
{
    return m_columns.empty() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void CLabelWidget::SetColumns(const std::vector<int>& ends)
{
    m_columns = ends;
    update();
}

void CLabelWidget::PaintColumns()
{
    QPainter painter(this);
    const QStringList words =
        text().split(' ', Qt::SkipEmptyParts).mid(0, static_cast<int>(m_columns.size()));
    QList<QRect> places = PlaceWords(words, m_columns, fontMetrics(), rect());
    if (!places.isEmpty() && places.first().left() < 0) {
        QFont narrow = font();
        narrow.setStretch(kCondensed);
        painter.setFont(narrow);
        places = PlaceWords(words, m_columns, painter.fontMetrics(), rect());
    }
    for (int i = 0; i < words.size(); ++i) {
        painter.drawText(places[i], Qt::AlignVCenter | Qt::TextDontClip, words[i]);
    }
}

void CLabelWidget::paintEvent(QPaintEvent* event)
{
    if (!m_columns.empty()) {
        PaintColumns();
        return;
    }
    if (!IsCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const QString shortened =
        fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), shortened, foregroundRole());
}

bool CLabelWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsCut()) {
        TellWholeText(*static_cast<QHelpEvent*>(event), *this, text());
        return true;
    }
    return QLabel::event(event);
}

bool CEditWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsCut()) {
        TellWholeText(*static_cast<QHelpEvent*>(event), *this, text());
        return true;
    }
    return QLineEdit::event(event);
}

bool CEditWidget::IsCut() const
{
    /// What an edit keeps free on each side of its text.
    constexpr int kMargin = 2;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    return fontMetrics().horizontalAdvance(text()) > inside.width() - 2 * kMargin;
}

CGroupWidget::CGroupWidget(QWidget* parent) : QGroupBox(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CGroupWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QFontMetrics metrics = fontMetrics();
    const int line = metrics.height() / 2;
    painter.setPen(palette().color(QPalette::Mid));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, line + 0.5, -0.5, -0.5), 3, 3);
    if (title().isEmpty()) {
        return;
    }
    const int width = metrics.horizontalAdvance(title());
    const QRect area(kGroupTitleIndent, 0, width + 2 * kTitleGap, metrics.height());
    painter.fillRect(area, palette().window());
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(area, Qt::AlignCenter, title());
}

CSpinWidget::CSpinWidget(QWidget* parent)
    : QWidget(parent), m_up(MakeArrow(Qt::UpArrow, 1)), m_down(MakeArrow(Qt::DownArrow, -1))
{
    setFocusPolicy(Qt::StrongFocus);
}

QToolButton* CSpinWidget::MakeArrow(Qt::ArrowType arrow, int delta)
{
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, delta] { emit Stepped(delta); });
    return button;
}

void CSpinWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int half = height() / 2;
    m_up->setGeometry(0, 0, width(), half);
    m_down->setGeometry(0, half, width(), height() - half);
}

void CSpinWidget::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        emit Stepped(1);
        break;
    case Qt::Key_Down:
        emit Stepped(-1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CSpinWidget::paintEvent(QPaintEvent* /*event*/)
{
    if (hasFocus()) {
        QPainter painter(this);
        painter.fillRect(rect(), palette().highlight());
    }
}
