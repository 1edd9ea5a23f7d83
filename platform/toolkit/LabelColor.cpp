#include "platform/toolkit/LabelColor.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QPointer>
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

// One filter for all labels, on the application: of a change of its palette it tells itself and its
// windows, but not the labels inside them.
class PaletteWatcher : public QObject
{
public:
    static void watch(QWidget *label)
    {
        static QPointer<PaletteWatcher> watcher;
        if (!watcher)
            watcher = new PaletteWatcher;
        watcher->m_labels.removeAll(nullptr);
        watcher->m_labels += label;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange && watched == parent()) {
            for (const QPointer<QWidget> &label : std::as_const(m_labels)) {
                if (label)
                    apply(label);
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    PaletteWatcher() : QObject(qApp) { qApp->installEventFilter(this); }

    QList<QPointer<QWidget>> m_labels;
};

} // namespace

void setTextColor(QWidget *label, ControlTextColor color)
{
    const bool watched = label->property(kColorProperty).isValid();
    if (watched && textColor(label) == color)
        return;
    label->setProperty(kColorProperty, QVariant::fromValue(color));
    if (!watched)
        PaletteWatcher::watch(label);
    apply(label);
}

ControlTextColor textColor(const QWidget *label)
{
    return label->property(kColorProperty).value<ControlTextColor>();
}

} // namespace corvana
