#pragma once

#include <QLineEdit>

#include "tests/printsetting/PrintSettingFixture.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// Where the panel keeps the minutes.
inline QString minutesEntry()
{
    return u"QXSleepTime_Time"_s;
}

/// Minutes from 5 to 240, while most printers have 1 to 99.
inline QByteArray printerWithLongSleepTimes()
{
    return PpdBuilder()
        .option("QXSleepTime", "Sleep", "Custom", {{"Default", "Default"}, {"Custom", "Manual"}})
        .customInteger("QXSleepTime", "Time", "Minutes", 5, 240)
        .text();
}

/// What a keyboard or an input method enters at the cursor in one edit.
inline void enter(QLineEdit *field, const QString &text)
{
    QTest::sendKeyEvent(QTest::Press, field, Qt::Key_unknown, text, Qt::NoModifier);
}

/// A shown panel whose user chooses the minutes.
class SleepTimeFixture : public PrintSettingFixture
{
protected:
    void openInManualMode()
    {
        const QString custom = u"Custom"_s;
        m_bundle.emplace(TestBundle::built());
        const std::shared_ptr<RecordingHost> host = RecordingHost::forSamplePrinter();
        host->mark(u"QXSleepTime"_s, custom);
        host->settings().setValue(kSleepModeEntry, custom);
        openPanel(host);
        showPanel();
        QVERIFY(m_panel->hasMode(kModeManualSleep));
    }
    /// The user replaces the whole text in one edit.
    void edit(const QString &text)
    {
        m_panel->sleepTimeField->selectAll();
        if (text.isEmpty())
            QTest::keyClick(m_panel->sleepTimeField, Qt::Key_Delete);
        else
            enter(m_panel->sleepTimeField, text);
    }
};

} // namespace corvana::test
