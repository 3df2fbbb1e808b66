#pragma once

#include <QDoubleSpinBox>

namespace workbench {

/// A field for a number with up to two decimals. Comma and point are read alike, whatever the
/// locale of the process; a comma is shown, as everywhere in the program.
class CDecimalBox : public QDoubleSpinBox
{
public:
    CDecimalBox(double least, double most, const QString& unit);

    /// Shows a number, rounded where it has more decimals.
    void SetNumber(double number);

    /// The number that was set, as long as the field shows it, and otherwise what it shows.
    double GetNumber() const;

protected:
    QValidator::State validate(QString& text, int& position) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;

private:
    /// What was set, and what the field has shown of it.
    double m_dNumber = 0.0;
    double m_dShown = 0.0;
};

} // namespace workbench
