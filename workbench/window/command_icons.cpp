#include "workbench/window/command_icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <array>

namespace workbench {

namespace {

/// Signs are drawn in a square of this side, with y downwards.
constexpr double kIconGrid = 24.0;
constexpr double kIconStroke = 1.7;

const QColor kProgramGround(24, 92, 150);
const QColor kWarm(206, 84, 38);

void PaintOpen(QPainter& painter)
{
    const std::array folder = {QPointF(3, 19), QPointF(3, 5),  QPointF(9, 5),
                               QPointF(11, 8), QPointF(19, 8), QPointF(19, 11)};
    painter.drawPolyline(folder.data(), int(folder.size()));
    const std::array front = {QPointF(3, 19), QPointF(6.5, 11), QPointF(22, 11), QPointF(18.5, 19)};
    painter.drawPolygon(front.data(), int(front.size()));
}

void PaintSave(QPainter& painter)
{
    const std::array outline = {QPointF(4, 4), QPointF(17, 4), QPointF(20, 7), QPointF(20, 20),
                                QPointF(4, 20)};
    painter.drawPolygon(outline.data(), int(outline.size()));
    painter.drawRect(QRectF(8, 4, 7, 5));
    painter.drawRect(QRectF(7, 13, 10, 7));
}

/// An arrow that bends back to the left.
void PaintUndo(QPainter& painter)
{
    QPainterPath path(QPointF(5, 9));
    path.lineTo(15, 9);
    path.cubicTo(QPointF(21, 9), QPointF(21, 19), QPointF(14, 19));
    path.lineTo(9, 19);
    painter.drawPath(path);
    const std::array head = {QPointF(9, 4.5), QPointF(4.5, 9), QPointF(9, 13.5)};
    painter.drawPolyline(head.data(), int(head.size()));
}

void PaintRedo(QPainter& painter)
{
    painter.translate(kIconGrid, 0.0);
    painter.scale(-1.0, 1.0);
    PaintUndo(painter);
}

/// Columns between two pipes.
void PaintColumns(QPainter& painter, double top, double bottom)
{
    constexpr int kColumns = 4;
    for (int i = 0; i < kColumns; ++i) {
        painter.drawRoundedRect(QRectF(3.5 + 4.5 * i, top, 3.2, bottom - top), 1.4, 1.4);
    }
}

void PaintRadiator(QPainter& painter)
{
    PaintColumns(painter, 5.0, 19.0);
}

/// The sign of a valve: two triangles that touch, with a stem.
void PaintConnection(QPainter& painter)
{
    const std::array body = {QPointF(4, 9), QPointF(4, 19), QPointF(20, 9), QPointF(20, 19)};
    painter.drawPolygon(body.data(), int(body.size()));
    painter.drawLine(QPointF(12, 14), QPointF(12, 5));
    painter.drawLine(QPointF(8, 5), QPointF(16, 5));
}

/// A radiator with its measure.
void PaintSizeAll(QPainter& painter)
{
    PaintColumns(painter, 3.5, 14.0);
    painter.drawLine(QPointF(3.5, 19), QPointF(20.5, 19));
    for (const double x : {3.5, 20.5}) {
        painter.drawLine(QPointF(x, 16.5), QPointF(x, 21.5));
    }
}

void PaintProject(QPainter& painter)
{
    const std::array sheet = {QPointF(5, 3), QPointF(14, 3), QPointF(19, 8), QPointF(19, 21),
                              QPointF(5, 21)};
    painter.drawPolygon(sheet.data(), int(sheet.size()));
    const std::array fold = {QPointF(14, 3), QPointF(14, 8), QPointF(19, 8)};
    painter.drawPolyline(fold.data(), int(fold.size()));
    for (const double y : {12.0, 15.0, 18.0}) {
        painter.drawLine(QPointF(8, y), QPointF(16, y));
    }
}

using Painter = void (*)(QPainter& painter);

Painter PainterOf(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::open:
        return PaintOpen;
    case CommandIcon::save:
        return PaintSave;
    case CommandIcon::undo:
        return PaintUndo;
    case CommandIcon::redo:
        return PaintRedo;
    case CommandIcon::radiator:
        return PaintRadiator;
    case CommandIcon::connection:
        return PaintConnection;
    case CommandIcon::sizeAll:
        return PaintSizeAll;
    case CommandIcon::project:
        return PaintProject;
    case CommandIcon::none:
        break;
    }
    return nullptr;
}

void PaintSign(QPainter& painter, const QRect& place, Painter paint, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / kIconGrid, place.height() / kIconGrid);
    painter.setPen(QPen(color, kIconStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    paint(painter);
    painter.restore();
}

class CSignEngine : public QIconEngine
{
public:
    explicit CSignEngine(Painter sign) : m_sign(sign) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        PaintSign(*painter, place, m_sign,
                  QApplication::palette().color(group, QPalette::ButtonText));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new CSignEngine(*this); }

private:
    Painter m_sign;
};

} // namespace

QIcon IconOf(CommandIcon icon)
{
    const Painter sign = PainterOf(icon);
    return sign != nullptr ? QIcon(new CSignEngine(sign)) : QIcon();
}

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(side / kIconGrid, side / kIconGrid);
        painter.setPen(Qt::NoPen);
        painter.setBrush(kProgramGround);
        painter.drawRoundedRect(QRectF(0, 0, kIconGrid, kIconGrid), 4.5, 4.5);
        painter.setBrush(Qt::white);
        PaintColumns(painter, 5.0, 17.0);
        painter.setBrush(kWarm);
        painter.drawRoundedRect(QRectF(3.5, 18.5, 16.7, 2.0), 1.0, 1.0);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace workbench
