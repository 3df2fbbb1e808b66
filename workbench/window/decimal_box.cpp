#include "workbench/window/decimal_box.h"

#include "workbench/window/plan_texts.h"

#include <QSignalBlocker>

namespace workbench {

namespace {

/// The decimal sign of the field's locale.
QString WithComma(QString text)
{
    return text.replace('.', ',');
}

} // namespace

CDecimalBox::CDecimalBox(double least, double most, const QString& unit)
{
    setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    setRange(least, most);
    setDecimals(2);
    setSuffix(" " + unit);
}

void CDecimalBox::SetNumber(double number)
{
    {
        // Who hears of it asks for the number.
        const QSignalBlocker quiet(this);
        setValue(number);
        m_dNumber = number;
        m_dShown = value();
    }
    emit valueChanged(value());
}

double CDecimalBox::GetNumber() const
{
    return value() == m_dShown ? m_dNumber : value();
}

QValidator::State CDecimalBox::validate(QString& text, int& position) const
{
    text = WithComma(text);
    return QDoubleSpinBox::validate(text, position);
}

double CDecimalBox::valueFromText(const QString& text) const
{
    return QDoubleSpinBox::valueFromText(WithComma(text));
}

QString CDecimalBox::textFromValue(double value) const
{
    return DecimalText(value, decimals());
}

} // namespace workbench
