#pragma once

#include <QDoubleSpinBox>

#include "dialog/session/JobAttributes.h"

namespace corvana {

/// A number field that lets every number in, so that one outside the range is refused in words
/// rather than turned into another one. Its arrows keep to the range.
class NumberField : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// `none`: what stands there instead of a number; without it there always is one.
    NumberField(const AllowedValues::Range &range, const QString &none, QWidget *parent);

    bool isNone() const;
    void setNone();

    QString textFromValue(double number) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;

private:
    bool canBeNone() const { return !specialValueText().isEmpty(); }

    AllowedValues::Range m_range;
};

} // namespace corvana
