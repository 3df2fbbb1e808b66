#pragma once

#include <QProxyStyle>

/// The look of an explorer's tree: the selection takes the whole row, and the row under the mouse
/// lights up in a weak shade of the selection's colour. Everything else is the application's style.
class CExplorerStyle : public QProxyStyle
{
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
