#include "uikit/native/image_icon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>

#include <utility>

namespace {

class CImageIconEngine : public QIconEngine
{
public:
    CImageIconEngine(QImage normal, QImage selected)
        : m_normal(std::move(normal)), m_selected(std::move(selected))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const bool isChosen = mode == QIcon::Selected && !m_selected.isNull();
        QPixmap pixmap = QPixmap::fromImage(isChosen ? m_selected : m_normal);
        if (!isChosen && mode != QIcon::Normal) {
            QStyleOption option;
            option.palette = QApplication::palette();
            pixmap = QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
        }
        const QSize shown = actualSize(size, mode, state);
        return pixmap.size() == shown ? pixmap : pixmap.scaled(shown);
    }

    /// Never larger than the picture.
    QSize actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        const QSize whole = m_normal.size();
        const bool fits = whole.boundedTo(size) == whole;
        return fits ? whole : whole.scaled(size, Qt::KeepAspectRatio);
    }

    bool isNull() override { return m_normal.isNull(); }

    QIconEngine* clone() const override { return new CImageIconEngine(*this); }

private:
    QImage m_normal;
    QImage m_selected;
};

} // namespace

QIcon MakeImageIcon(const QImage& normal, const QImage& selected)
{
    return QIcon(new CImageIconEngine(normal, selected));
}
