#include "dialog/window/pages/CustomPaperSize.h"

#include <algorithm>
#include <cmath>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

#include "dialog/session/PaperSize.h"
#include "dialog/window/pages/ControlLock.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Unit
{
    double points;
    int decimals;
    double step;
};
constexpr Unit kMillimetres{kPointsPerMillimetre, 1, 1.0};
constexpr Unit kInches{kPointsPerInch, 2, 0.1};

const Unit &unitAt(int index)
{
    return index == 0 ? kMillimetres : kInches;
}

bool usesInches()
{
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem;
}

double kept(double points, float least, float most)
{
    return std::clamp(points, static_cast<double>(least),
                      std::max(static_cast<double>(least), static_cast<double>(most)));
}

// The field's limits are inside the printer's, however they have to be rounded.
void setRange(QDoubleSpinBox *field, float least, float most, const Unit &unit)
{
    const double parts = std::pow(10.0, unit.decimals);
    field->setDecimals(unit.decimals);
    field->setSingleStep(unit.step);
    // 14 inches are 355.6 mm, though 1008 points divided and multiplied come out a hair below.
    constexpr double kHair = 1e-6;
    field->setRange(std::ceil(static_cast<double>(least) / unit.points * parts - kHair) / parts,
                    std::floor(static_cast<double>(most) / unit.points * parts + kHair) / parts);
    // Of one that is locked it says who has locked it.
    if (!ControlLock::isLocked(field))
        setPlainToolTip(field, CustomPaperSize::tr("From %1 to %2")
                                   .arg(field->textFromValue(field->minimum()),
                                        field->textFromValue(field->maximum())));
}

} // namespace

CustomPaperSize::CustomPaperSize(ppd_file_t *ppd, QWidget *parent)
    : QWidget(parent), m_ppd(ppd), m_width(addField(u"paperWidth"_s)),
      m_height(addField(u"paperHeight"_s)), m_unit(new QComboBox(this))
{
    m_width->setAccessibleName(tr("Paper width"));
    m_height->setAccessibleName(tr("Paper height"));
    m_unit->setObjectName(u"paperUnit"_s);
    setAccessibleLabel(m_unit, tr("Unit of the paper size"));
    m_unit->addItems({tr("mm"), tr("inches")});
    m_unit->setCurrentIndex(usesInches() ? 1 : 0);
    ignoreWheelWithoutFocus(m_unit);
    connect(m_unit, &QComboBox::currentIndexChanged, this, &CustomPaperSize::showSize);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_width);
    row->addWidget(plainLabel(u"×"_s, this));
    row->addWidget(m_height);
    row->addWidget(m_unit);
    row->addStretch();
    setFocusProxy(m_width);
    showSize();
}

QDoubleSpinBox *CustomPaperSize::addField(const QString &name)
{
    auto *field = new QDoubleSpinBox(this);
    field->setObjectName(name);
    field->setKeyboardTracking(false); // a size is entered when it is complete
    field->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    ignoreWheelWithoutFocus(field);
    connect(field, &QDoubleSpinBox::valueChanged, this, [this, field] {
        if (!ProgrammaticChange::isInProgress())
            takeSize(field);
    });
    return field;
}

void CustomPaperSize::setSize(const QSizeF &points)
{
    m_points = {kept(points.width(), m_ppd->custom_min[0], m_ppd->custom_max[0]),
                kept(points.height(), m_ppd->custom_min[1], m_ppd->custom_max[1])};
    showSize();
}

void CustomPaperSize::showSize()
{
    const ProgrammaticChange change;
    const Unit &unit = unitAt(m_unit->currentIndex());
    setRange(m_width, m_ppd->custom_min[0], m_ppd->custom_max[0], unit);
    setRange(m_height, m_ppd->custom_min[1], m_ppd->custom_max[1], unit);
    m_width->setValue(m_points.width() / unit.points);
    m_height->setValue(m_points.height() / unit.points);
}

void CustomPaperSize::takeSize(const QDoubleSpinBox *field)
{
    const double points = field->value() * unitAt(m_unit->currentIndex()).points;
    if (field == m_width)
        m_points.setWidth(points);
    else
        m_points.setHeight(points);
    Q_EMIT entered();
}

void CustomPaperSize::setLocked(const QString &why)
{
    ControlLock::set(m_width, why);
    ControlLock::set(m_height, why);
}

} // namespace corvana
