#include "dialog/window/pages/NumberField.h"

#include <QLocale>

namespace corvana {

namespace {

constexpr double kNone = -1; // no attribute takes a number below 0
constexpr double kMostThatFits = 999999;

} // namespace

NumberField::NumberField(const AllowedValues::Range &range, const QString &none, QWidget *parent)
    : QDoubleSpinBox(parent), m_range(range)
{
    setSpecialValueText(none);
    setDecimals(range.isWhole ? 0 : 3);
    setRange(canBeNone() ? kNone : 0, kMostThatFits);
    setKeyboardTracking(false); // a number counts when it is complete
}

bool NumberField::isNone() const
{
    return value() == kNone;
}

void NumberField::setNone()
{
    setValue(kNone);
}

QString NumberField::textFromValue(double number) const
{
    QString text = locale().toString(number, 'f', decimals());
    const QString point = locale().decimalPoint();
    while (text.contains(point) && (text.endsWith(u'0') || text.endsWith(point)))
        text.chop(1);
    return text.remove(locale().groupSeparator());
}

double NumberField::valueFromText(const QString &text) const
{
    return canBeNone() && text == specialValueText() ? kNone : QDoubleSpinBox::valueFromText(text);
}

QValidator::State NumberField::validate(QString &text, int &position) const
{
    if (text.isEmpty())
        return QValidator::Intermediate;
    if (canBeNone() && text == specialValueText())
        return QValidator::Acceptable;
    return text.startsWith(locale().negativeSign()) ? QValidator::Invalid
                                                    : QDoubleSpinBox::validate(text, position);
}

void NumberField::fixup(QString &text) const
{
    if (text.isEmpty() && canBeNone())
        text = specialValueText();
}

void NumberField::stepBy(int steps)
{
    if (isNone())
        return setValue(m_range.least);
    const double next = value() + steps * singleStep();
    if (canBeNone() && next < m_range.least && value() <= m_range.least)
        return setNone();
    setValue(qBound(m_range.least, next, m_range.most));
}

QAbstractSpinBox::StepEnabled NumberField::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    if (isNone() || value() < m_range.most)
        enabled |= StepUpEnabled;
    if (!isNone() && (canBeNone() || value() > m_range.least))
        enabled |= StepDownEnabled;
    return enabled;
}

} // namespace corvana
