#include "uikit/native/whole_text.h"

#include <QTextDocument>
#include <QToolTip>

void TellWholeText(const QHelpEvent& at, QWidget& widget, const QString& text, const QRect& area)
{
    const QString tip = Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
    QToolTip::showText(at.globalPos(), tip, &widget, area);
}
