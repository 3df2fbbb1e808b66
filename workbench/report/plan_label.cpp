#include "workbench/report/plan_label.h"

#include "workbench/report/plan_legend.h"
#include "workbench/toolkit/qt_text.h"

#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace workbench {

namespace {

/// Sizes of texts in points. Below the least one nobody reads it.
constexpr double kNamePoints = 8.0;
constexpr double kFigurePoints = 6.5;
constexpr double kLeastPoints = 4.0;
constexpr double kNumberPoints = 5.0;

/// Height of a line in millimetres a point.
constexpr double kPointHeight = 0.46;

/// Between a room's walls and its texts.
constexpr double kEdge = 0.6;

/// Each size of a text is this share of the one before.
constexpr double kShrink = 0.92;

/// Who has to turn his head for a text wants it larger by this.
constexpr double kWorthTurning = 1.4;

/// A name of more words is broken within the first of them only.
constexpr qsizetype kMostWords = 12;

/// A name of which less could be read is left out.
constexpr int kLeastCharacters = 4;

/// One line of a room's label.
struct CLabelLine
{
    QString text;
    CTextLook look;
    /// It may end in "…".
    bool bCut = false;
};

using CLabel = std::vector<CLabelLine>;

CTextLook NameLook(double points)
{
    return {points, true, kInk, Qt::AlignHCenter};
}

/// A room's name in lines, and the width of the widest in millimetres a point.
struct CBrokenName
{
    QStringList lines;
    double width = 0.0;
};

/// Finds what a room's label says in a space.
class CRoomLabelMaker
{
public:
    CRoomLabelMaker(const CReportSheet& sheet, const CRoom& room, Coverage coverage)
        : m_sheet(sheet), m_room(room), m_coverage(coverage), m_names(BreakName())
    {
    }

    /// A label that fits the space, or nothing. They come from the best to the last resort: what
    /// shows the name whole goes before what cuts it.
    std::optional<CLabel> WholeNameAndFigures(const QSizeF& space) const
    {
        return FirstFitting(kFigurePoints, space, [this](double points, const CBrokenName& name) {
            const double larger = points * kNamePoints / kFigurePoints;
            return Joined(NameLines(name, larger), Figures(points));
        });
    }

    std::optional<CLabel> WholeName(const QSizeF& space) const
    {
        return FirstFitting(kNamePoints, space, [](double points, const CBrokenName& name) {
            return NameLines(name, points);
        });
    }

    std::optional<CLabel> CutNameAndFigures(const QSizeF& space) const
    {
        return FirstFitting(kFigurePoints, space, [this](double points, const CBrokenName&) {
            return Joined({{ToQt(m_room.strName), NameLook(kLeastPoints), true}}, Figures(points));
        });
    }

    std::optional<CLabel> CutName(const QSizeF& space) const
    {
        const CLabel label = {{ToQt(m_room.strName), NameLook(kLeastPoints), true}};
        return Fits(label, space) ? std::optional(label) : std::nullopt;
    }

private:
    /// `make(points, name)` with the largest points and the fewest lines of the name that fit.
    template <class MAKE>
    std::optional<CLabel> FirstFitting(double points, const QSizeF& space, MAKE make) const
    {
        while (points >= kLeastPoints) {
            for (const CBrokenName& name : m_names) {
                CLabel label = make(points, name);
                if (Fits(label, space)) {
                    return label;
                }
            }
            points *= kShrink;
        }
        return std::nullopt;
    }

    bool Fits(const CLabel& label, const QSizeF& space) const
    {
        double height = 0.0;
        for (const CLabelLine& line : label) {
            const QString needed = line.bCut ? line.text.left(kLeastCharacters) : line.text;
            if (m_sheet.WidthOf(needed, line.look) > space.width()) {
                return false;
            }
            height += line.look.dPunkte * kPointHeight;
        }
        return height <= space.height();
    }

    CLabel Figures(double points) const
    {
        const CTextLook look{points, false, kInk, Qt::AlignHCenter};
        CLabel figures = {{"Fabbisogno " + WattText(m_room.bedarf), look},
                          {"Coperto " + WattText(CoveredOf(m_room)), look},
                          {"Resto " + WattText(RemainderOf(m_room)), look}};
        figures.back().look.farbe = PrintInkOf(m_coverage);
        figures.back().look.bFett = true;
        return figures;
    }

    static CLabel NameLines(const CBrokenName& name, double points)
    {
        CLabel label;
        for (const QString& line : name.lines) {
            label.push_back({line, NameLook(points)});
        }
        return label;
    }

    static CLabel Joined(CLabel label, const CLabel& below)
    {
        label.insert(label.end(), below.begin(), below.end());
        return label;
    }

    /// The words with a line's end before each of the places in `breaks`.
    CBrokenName Broken(const QStringList& words, const std::vector<qsizetype>& breaks) const
    {
        CBrokenName name;
        qsizetype from = 0;
        for (std::size_t i = 0; i <= breaks.size(); ++i) {
            const qsizetype to = i < breaks.size() ? breaks[i] : words.size();
            name.lines += words.mid(from, to - from).join(' ');
            name.width = std::max(name.width, m_sheet.WidthOf(name.lines.back(), NameLook(1.0)));
            from = to;
        }
        return name;
    }

    /// The name in one line, in two and in three, as far as it has words, broken where that makes
    /// it narrowest.
    std::vector<CBrokenName> BreakName() const
    {
        const QStringList words = ToQt(m_room.strName).simplified().split(' ');
        const qsizetype count = std::min(words.size(), kMostWords);
        std::vector<CBrokenName> names = {Broken(words, {})};
        const auto consider = [&](const std::vector<qsizetype>& breaks) {
            const CBrokenName name = Broken(words, breaks);
            if (names.size() == breaks.size()) {
                names.push_back(name);
            } else if (name.width < names[breaks.size()].width) {
                names[breaks.size()] = name;
            }
        };
        for (qsizetype first = 1; first < count; ++first) {
            consider({first});
        }
        for (qsizetype first = 1; first < count; ++first) {
            for (qsizetype second = first + 1; second < count; ++second) {
                consider({first, second});
            }
        }
        return names;
    }

    const CReportSheet& m_sheet;
    const CRoom& m_room;
    Coverage m_coverage;
    /// By their count of lines.
    std::vector<CBrokenName> m_names;
};

/// In the middle of the space.
void PaintLabel(CReportSheet& sheet, const QRectF& space, const CLabel& label)
{
    double height = 0.0;
    for (const CLabelLine& line : label) {
        height += line.look.dPunkte * kPointHeight;
    }
    double top = space.center().y() - height / 2;
    for (const CLabelLine& line : label) {
        const double lineHeight = line.look.dPunkte * kPointHeight;
        sheet.Text({space.left(), top, space.width(), lineHeight}, line.text, line.look);
        top += lineHeight;
    }
}

/// The same, to be read from the right.
void PaintUprightLabel(CReportSheet& sheet, const QRectF& space, const CLabel& label)
{
    QPainter& painter = sheet.GetPainter();
    painter.save();
    painter.translate(space.center() * CReportSheet::kUnits);
    painter.rotate(-90.0);
    const QSizeF size = space.size().transposed();
    PaintLabel(sheet, {{-size.width() / 2, -size.height() / 2}, size}, label);
    painter.restore();
}

} // namespace

void PaintRoomLabel(CReportSheet& sheet, const QRectF& space, const CRoom& room, Coverage coverage)
{
    const QRectF free = space.adjusted(kEdge, kEdge, -kEdge, -kEdge);
    const CRoomLabelMaker maker(sheet, room, coverage);
    for (const auto make : {&CRoomLabelMaker::WholeNameAndFigures, &CRoomLabelMaker::WholeName,
                            &CRoomLabelMaker::CutNameAndFigures, &CRoomLabelMaker::CutName}) {
        const auto across = (maker.*make)(free.size());
        const auto upright =
            free.height() > free.width() ? (maker.*make)(free.size().transposed()) : std::nullopt;
        const bool isTurned =
            upright && (!across || upright->front().look.dPunkte >
                                       kWorthTurning * across->front().look.dPunkte);
        if (isTurned) {
            PaintUprightLabel(sheet, free, *upright);
            return;
        }
        if (across) {
            PaintLabel(sheet, free, *across);
            return;
        }
    }
}

void PaintRadiatorNumber(CReportSheet& sheet, const QString& number, double output,
                         const CSpaceAlong& space, double away)
{
    const CTextLook look{kNumberPoints, true, kInk, Qt::AlignHCenter};
    for (const QString& text : {number + QStringLiteral(" · ") + WattText(output), number}) {
        const double half = sheet.WidthOf(text, look) / 2;
        const double spare = (space.dBefore + space.dBehind) / 2 - half;
        if (spare >= 0.0) {
            const double reach = half + std::min(spare, kEdge);
            const double middle =
                std::min(std::max(0.0, reach - space.dBefore), space.dBehind - reach);
            sheet.Text({middle - half, away - kNumberHeight / 2, 2.0 * half, kNumberHeight}, text,
                       look);
            return;
        }
    }
}

} // namespace workbench
