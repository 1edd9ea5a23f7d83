#include "platform/toolkit/LabelColor.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QVariant>
#include <QWidget>

namespace corvana {

namespace {

constexpr char kColorProperty[] = "corvanaTextColor";

void apply(QWidget *label)
{
    QPalette palette; // resolves to the inherited palette where nothing is set
    if (textColor(label) == ControlTextColor::Disabled) {
        const QColor disabled =
            QApplication::palette(label).color(QPalette::Disabled, QPalette::WindowText);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            palette.setColor(group, QPalette::WindowText, disabled);
            palette.setColor(group, QPalette::Text, disabled);
        }
    }
    label->setPalette(palette);
}

// One filter per label, its child, so that it ends with it.
class PaletteWatcher : public QObject
{
public:
    explicit PaletteWatcher(QWidget *label) : QObject(label) { label->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange)
            apply(static_cast<QWidget *>(watched));
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void setTextColor(QWidget *label, ControlTextColor color)
{
    const bool watched = label->property(kColorProperty).isValid();
    if (watched && textColor(label) == color)
        return;
    label->setProperty(kColorProperty, QVariant::fromValue(color));
    if (!watched)
        new PaletteWatcher(label);
    apply(label);
}

ControlTextColor textColor(const QWidget *label)
{
    return label->property(kColorProperty).value<ControlTextColor>();
}

} // namespace corvana
