#include "dialog/queues/PanelRecognition.h"

#include <QFileInfo>

#include "platform/foundation/Bundle.h"

namespace corvana {

namespace {
constexpr char kExtensionAttribute[] = "QXPrintDialogExtension";
constexpr QLatin1StringView kIdentifyingKeys{"PMPPDKeysIdentifying"};
} // namespace

QString namedBundle(ppd_file_t *ppd)
{
    const ppd_attr_t *named = ppdFindAttr(ppd, kExtensionAttribute, nullptr);
    return named && named->value ? QString::fromUtf8(named->value) : QString();
}

PanelDecision decidePanels(ppd_file_t *ppd, const Bundle &bundle)
{
    const QString bundleName = QFileInfo(bundle.path()).fileName();
    for (const ppd_attr_t *named = ppdFindAttr(ppd, kExtensionAttribute, nullptr); named;
         named = ppdFindNextAttr(ppd, kExtensionAttribute, nullptr)) {
        if (QString::fromUtf8(named->value) == bundleName)
            return {true, QStringLiteral("the PPD names the bundle %1").arg(bundleName)};
    }
    const QStringList keywords = bundle.infoStringList(kIdentifyingKeys).value_or(QStringList());
    QStringList missing;
    for (const QString &keyword : keywords) {
        if (!ppdOption(ppd, keyword))
            missing += keyword;
    }
    if (!keywords.isEmpty() && missing.isEmpty())
        return {true, QStringLiteral("the PPD has the options %1").arg(keywords.join(u' '))};
    return {false, QStringLiteral("the PPD does not name the bundle %1 and lacks the options %2")
                       .arg(bundleName, missing.join(u' '))};
}

} // namespace corvana
