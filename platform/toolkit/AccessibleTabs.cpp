#include <memory>
#include <vector>

#include <QAccessibleWidget>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>

#include "platform/toolkit/ScreenReader.h"

namespace corvana {

namespace {

constexpr char kTabs[] = "corvana.accessibleTabs";

/// One tab, which is no widget.
class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleTab(QTabBar *bar, int place) : m_bar(bar), m_place(place) {}

    bool isValid() const override { return m_bar && m_place < m_bar->count(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_bar.data());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text what) const override
    {
        if (!isValid())
            return {};
        if (what == QAccessible::Name) {
            const QString name = m_bar->accessibleTabName(m_place);
            return name.isEmpty() ? withoutMarks(m_bar->tabText(m_place)) : name;
        }
        return {};
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override
    {
        if (!isValid())
            return {};
        return {m_bar->mapToGlobal(m_bar->tabRect(m_place).topLeft()),
                m_bar->tabRect(m_place).size()};
    }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool isCurrent = m_place == m_bar->currentIndex();
        state.invisible = !m_bar->isVisible() || !m_bar->isTabVisible(m_place);
        state.disabled = !m_bar->isEnabled() || !m_bar->isTabEnabled(m_place);
        state.focusable = true;
        state.selectable = true;
        state.selected = isCurrent;
        state.focused = isCurrent && m_bar->hasFocus();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString &action) override
    {
        if (!isValid() || !m_bar->isTabEnabled(m_place))
            return;
        m_bar->setCurrentIndex(m_place);
        if (action == setFocusAction())
            m_bar->setFocus(Qt::OtherFocusReason);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    static QString withoutMarks(QString text)
    {
        constexpr QChar kMark = u'&';
        for (qsizetype at = text.indexOf(kMark); at >= 0; at = text.indexOf(kMark, at + 1))
            text.remove(at, 1);
        return text;
    }

    QPointer<QTabBar> m_bar;
    int m_place;
};

class AccessibleTabBar : public QAccessibleWidget
{
public:
    explicit AccessibleTabBar(QTabBar *bar)
        : QAccessibleWidget(bar, QAccessible::PageTabList), m_bar(bar)
    {
    }
    ~AccessibleTabBar() override
    {
        for (const QAccessible::Id id : m_tabs)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return m_bar->count(); }
    QAccessibleInterface *child(int place) const override
    {
        if (place < 0 || place >= m_bar->count())
            return nullptr;
        while (static_cast<int>(m_tabs.size()) <= place)
            m_tabs.push_back(QAccessible::registerAccessibleInterface(
                new AccessibleTab(m_bar, static_cast<int>(m_tabs.size()))));
        return QAccessible::accessibleInterface(m_tabs[static_cast<size_t>(place)]);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (size_t place = 0; place < m_tabs.size(); ++place) {
            if (QAccessible::accessibleInterface(m_tabs[place]) == child)
                return static_cast<int>(place);
        }
        return -1;
    }
    QAccessibleInterface *focusChild() const override
    {
        return m_bar->hasFocus() ? child(m_bar->currentIndex()) : nullptr;
    }
    QString text(QAccessible::Text what) const override
    {
        const QString said = QAccessibleWidget::text(what);
        if (what != QAccessible::Name || !said.isEmpty() || m_bar->currentIndex() < 0)
            return said;
        return child(m_bar->currentIndex())->text(QAccessible::Name);
    }

private:
    QTabBar *m_bar;
    mutable std::vector<QAccessible::Id> m_tabs;
};

QAccessibleInterface *interfaceFor(const QString &, QObject *object)
{
    auto *bar = qobject_cast<QTabBar *>(object);
    return bar && bar->property(kTabs).toBool() ? new AccessibleTabBar(bar) : nullptr;
}

} // namespace

void makeTabsAccessible(QTabWidget *tabs)
{
    static const bool installed = [] {
        QAccessible::installFactory(interfaceFor);
        return true;
    }();
    Q_UNUSED(installed)
    tabs->tabBar()->setProperty(kTabs, true);
}

} // namespace corvana
