#pragma once

#include <QDoubleSpinBox>

namespace workbench {

/// A field for a number with up to two decimals. Comma and point are read alike, whatever the
/// locale of the process; a comma is shown, as everywhere in the program.
class CDecimalBox : public QDoubleSpinBox
{
public:
    CDecimalBox(double least, double most, const QString& unit);

protected:
    QValidator::State validate(QString& text, int& position) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;
};

} // namespace workbench
