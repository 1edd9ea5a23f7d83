#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QTest>

#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

namespace corvana::test {

/// What nearly every test of this panel sets up: a host for a printer, the panel, and where a test
/// needs them a bundle and preferences of its own.
class PrintSettingFixture : public QObject
{
protected:
    /// A panel for that host, not shown yet. What it called so far is forgotten.
    void openPanel(std::shared_ptr<RecordingHost> host)
    {
        m_panel.reset();
        m_host = std::move(host);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        m_host->forgetCalls();
    }
    void openPanel(const QByteArray &ppd) { openPanel(RecordingHost::forPpd(ppd)); }
    /// Brings up the view of the panel.
    void showPanel()
    {
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->forgetCalls();
    }
    /// Ends everything, and with it the test, for which every alert must have come that it
    /// expected.
    void closeAll()
    {
        if (m_host)
            QCOMPARE(m_host->alerts().outstanding(), 0);
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
        m_preferences.reset();
    }

    std::optional<UserPreferences> m_preferences;
    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

} // namespace corvana::test
