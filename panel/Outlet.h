#pragma once

#include <type_traits>

#include <QLatin1StringView>
#include <QPointer>
#include <QWidget>

#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

/// A control or label of a panel's interface file, and the panel's field that it goes into. The
/// type of the field is the kind of control that the file must have there.
///
/// For tables of a panel's options: a row names its outlets once, and they are connected, looked up
/// and compared by it.
template <typename Panel> class Outlet
{
public:
    /// None: an option without a label.
    constexpr Outlet() = default;

    /// The control called `name`, in the panel's field.
    template <auto Field> static constexpr Outlet of(QLatin1StringView name)
    {
        Outlet outlet;
        outlet.m_name = name;
        outlet.m_connect = [](Panel &panel, InterfaceConnections &connections,
                              QLatin1StringView control) {
            connections.outlet(control, panel.*Field);
        };
        outlet.m_widget = [](const Panel &panel) -> QWidget * { return (panel.*Field).data(); };
        return outlet;
    }

    void connect(Panel &panel, InterfaceConnections &connections) const
    {
        if (m_connect)
            m_connect(panel, connections, m_name);
    }
    /// The control; null where there is none, and until the interface file is loaded.
    QWidget *widget(const Panel &panel) const { return m_widget ? m_widget(panel) : nullptr; }

private:
    QLatin1StringView m_name;
    void (*m_connect)(Panel &, InterfaceConnections &, QLatin1StringView) = nullptr;
    QWidget *(*m_widget)(const Panel &) = nullptr;
};

// Only declared: says which panel a field belongs to.
template <typename Panel, typename Control> Panel *panelOf(QPointer<Control> Panel::*field);

/// The outlet called `name`, whose field is `&Panel::name`.
template <auto Field> constexpr auto outlet(QLatin1StringView name)
{
    using Panel = std::remove_pointer_t<decltype(panelOf(Field))>;
    return Outlet<Panel>::template of<Field>(name);
}

} // namespace corvana
