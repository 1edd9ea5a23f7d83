#pragma once

#include "platform/printcore/PageFormat.h"
#include "tests/printsetting/PrintSettingFixture.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// A printer without rules but those of paper and medium.
inline PpdBuilder printerOfMedia()
{
    return PpdBuilder().option("QXMediaType", "Media Type", "Plain",
                               {{"Plain", "Plain"},
                                {"Thin", "Thin"},
                                {"Thick", "Thick"},
                                {"Glossy", "Glossy"},
                                {"Env", "Envelopes"}});
}

/// A paper that the printer names.
inline Paper listed(const QString &name)
{
    return {name, name, 595, 842};
}

/// A panel whose page is on A4.
class PaperFixture : public PrintSettingFixture
{
protected:
    void openForPaper()
    {
        m_preferences.emplace();
        m_bundle.emplace(TestBundle::built());
    }
    static void postPaperChange()
    {
        NotificationCenter::defaultCenter().post(
            QLatin1StringView(kPrintDestinationPaperDidChangeNotification), nullptr);
    }
    void makePanel(const PpdBuilder &ppd)
    {
        openPanel(ppd.text());
        QCOMPARE(m_panel->paperName, u"A4"_s);
    }
};

} // namespace corvana::test
