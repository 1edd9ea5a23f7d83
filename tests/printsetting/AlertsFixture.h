#pragma once

#include "platform/foundation/UserDefaults.h"
#include "tests/printsetting/PrintSettingFixture.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

inline const AlertAnswer kOk{0, false};
inline const AlertAnswer kCancel{1, false};
inline const AlertAnswer kSilenced{0, true};

/// Texts that tell the pieces of an alert apart, whatever the shipped ones say. Signs that formats
/// know must come through as they are.
inline QMap<QString, QString> textsOfAlerts()
{
    return {
        {u"OK"_s, u"Good"_s},
        {u"Cancel"_s, u"Back"_s},
        {u"DLG_TITLE_BACKCOVER"_s, u"Open it"_s},
        {u"STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS"_s, u"[R %1]"_s},
        {u"STR_MES_BACKCOVER_OPEN"_s, u"[O %@]"_s},
        {u"STR_MES_BACKCOVER_PULLDOWN_GRAY"_s, u"[G]"_s},
        {u"STR_MES_BACKCOVER_NOTE_USEMP"_s, u"[U]"_s},
        {u"STR_MES_BACKCOVER_STARTPRINT"_s, u"[S]"_s},
        {u"DLG_BACKCOVER_INSTRUCTION_NOTE"_s, u"[E]"_s},
        {u"STR_MES_BACKCOVER_NOTE_DUPLEX"_s, u"[D]"_s},
        {u"STR_MES_TRAY_REQUEST_INSTRUCTIONS"_s, u"[request %2]"_s},
        {u"STR_MES_TRAY_RECOMMEND_INSTRUCTIONS"_s, u"[recommend %3]"_s},
        {u"STR_MES_TRAY_SELECT_MP"_s, u"[select %1]"_s},
        {u"STR_MES_TRAY_USEMP"_s, u"[use]"_s},
        {u"STR_MES_TRAY_USEMP_ONESHEET"_s, u"[use one]"_s},
        {u"Unsupported Paper Title"_s, u"No such paper"_s},
    };
}

/// A panel whose alerts are answered by the test.
class AlertsFixture : public PrintSettingFixture
{
protected:
    void openForAlerts()
    {
        m_preferences.emplace();
        m_bundle.emplace(TestBundle::copied());
        m_bundle->setTexts(textsOfAlerts());
    }
    /// A panel, not shown yet, of a printer whose medium is `medium`; null leaves the usual one.
    void makePanel(int model, const QString &medium)
    {
        openPanel(samplePpd(model));
        if (!medium.isNull())
            m_panel->m_outputBin.insert(u"QXMediaType"_s, medium);
    }
};

} // namespace corvana::test
