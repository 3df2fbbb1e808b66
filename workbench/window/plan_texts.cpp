#include "workbench/window/plan_texts.h"

#include "workbench/plan/coverage.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/coverage_look.h"

#include <QStringList>
#include <QTextDocument>

#include <utility>
#include <vector>

namespace workbench {

namespace {

using Row = std::pair<QString, QString>;

QString Millimetres(double value)
{
    return DecimalText(value, 0) + " mm";
}

QString Joined(const QStringList& parts, const QString& separator)
{
    QStringList filled = parts;
    filled.removeAll(QString());
    return filled.join(separator);
}

QString Table(const QString& title, const std::vector<Row>& rows)
{
    QString html = "<b>" + title.toHtmlEscaped() + "</b><table>";
    for (const auto& [what, value] : rows) {
        if (!value.isEmpty()) {
            html +=
                "<tr><td>" + what + ":&nbsp;&nbsp;</td><td>" + value.toHtmlEscaped() + "</td></tr>";
        }
    }
    return html + "</table>";
}

QString Area(const CFloorRect& rect)
{
    constexpr double kSquareMetre = 1e6;
    return DecimalText(rect.breite * rect.tiefe / kSquareMetre, 1) + QStringLiteral(" m²");
}

QString Valve(const std::optional<CValveKey>& key)
{
    return key ? ToQt(key->strHersteller) + " " + ToQt(key->strVentilNr) : QString();
}

QString Connection(const ConnValues& anschluss)
{
    if (anschluss.AnschlussAN.empty() && anschluss.AnschlussRI.empty()) {
        return "da definire";
    }
    return anschluss.Name.empty() ? QString("definito") : ToQt(anschluss.Name);
}

QString Place(const CRoom& room, const CPlacedRadiator& radiator)
{
    const CRadiatorPlace& place = room.plaetze[radiator.nPlatz];
    return (place.art == PlaceKind::window ? "sotto la finestra, " : "a parete, ") +
           Millimetres(place.breite);
}

/// What is wrong with the size of a radiator, or of all in its room; empty if nothing is.
QString SizeFault(const CBuilding& building, const CRoom& room, const CPlacedRadiator& radiator)
{
    const CString excess = DescribeExcess(building, room, radiator);
    if (!excess.empty()) {
        return TextOf(Coverage::tooLarge) + ": " + ToQt(excess);
    }
    const bool isOversized = CoverageOf(building, room) == Coverage::oversized;
    return isOversized ? StateOf(building, room) : QString();
}

} // namespace

QString DecimalText(double value, int decimals)
{
    QString text = ToQt(FormatDecimals(value, decimals));
    while (text.contains(',') && (text.endsWith('0') || text.endsWith(','))) {
        text.chop(1);
    }
    return text;
}

QString PlainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString ShortLabelOf(const CPlacedRadiator& radiator)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    const QString type = ToQt(radiator.strTyp);
    const QString length = DecimalText(daten.Laenge, 0);
    // Most makers have the size in the type.
    return type.contains(length)
               ? type
               : Joined({type, DecimalText(daten.Hoehe, 0) + QStringLiteral("×") + length}, " ");
}

QString StateOf(const CBuilding& building, const CRoom& room)
{
    const Coverage coverage = CoverageOf(building, room);
    return TextOf(coverage) +
           (IsMissized(coverage) ? ": " + ToQt(DescribeCoverage(building, room)) : QString());
}

QString ToolTipOf(const CBuilding& building, const CRoom& room)
{
    return Table(
        ToQt(room.strName),
        {{"Temperatura", DecimalText(room.raumtemperatur, 1) + QStringLiteral(" °C")},
         {"Superficie", Area(room.grundriss)},
         {"Fabbisogno", WattText(room.bedarf)},
         {"Altro riscaldamento", room.gedeckt != 0.0 ? WattText(room.gedeckt) : QString()},
         {"Corpi scaldanti",
          QString::number(room.heizkoerper.size()) + ", " + WattText(OutputOf(room))},
         {"Coperto", WattText(CoveredOf(room))},
         {"Resto", WattText(RemainderOf(room))},
         {"Stato", StateOf(building, room)},
         {"Prodotto scelto",
          Joined({ToQt(room.strHersteller), ToQt(room.strArt), ToQt(room.strProdukt)}, ", ")}});
}

QString ToolTipOf(const CBuilding& building, const CRoom& room, const CPlacedRadiator& radiator)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    const QString times = QStringLiteral(" × ");
    return Table(Joined({ToQt(radiator.strProdukt), ToQt(radiator.strTyp)}, ", "),
                 {{"Produttore", ToQt(radiator.strHersteller)},
                  {"Tipo di corpo", ToQt(radiator.strArt)},
                  {"Locale", ToQt(room.strName)},
                  {"Posto", Place(room, radiator)},
                  {"Stato", SizeFault(building, room, radiator)},
                  {"Altezza × profondità × lunghezza", DecimalText(daten.Hoehe, 0) + times +
                                                           DecimalText(daten.Tiefe, 0) + times +
                                                           Millimetres(daten.Laenge)},
                  {"Elementi", daten.Elemente > 0.0 ? DecimalText(daten.Elemente, 0) : QString()},
                  {"Resa", WattText(daten.Leistung)},
                  {"Resa EN 442", WattText(daten.LeistungEN442)},
                  {"Esponente", daten.Exponent > 0.0 ? DecimalText(daten.Exponent, 4) : QString()},
                  {"Contenuto d'acqua",
                   daten.Inhalt > 0.0 ? DecimalText(daten.Inhalt, 2) + " l" : QString()},
                  {"Dalla parete", DecimalText(radiator.abstandWand * 1000.0, 0) + " mm"},
                  {"Dal pavimento", DecimalText(radiator.abstandBoden * 1000.0, 0) + " mm"},
                  {"Layer", ToQt(radiator.strLayer)},
                  {"Attacco", Connection(radiator.anschluss)},
                  {"Valvola di mandata", Valve(radiator.ventile.vorlauf)},
                  {"Valvola di ritorno", Valve(radiator.ventile.ruecklauf)}});
}

} // namespace workbench
