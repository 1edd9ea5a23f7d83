#include "dialog/printers/PanelRecognition.h"

#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>

#include "dialog/printers/Printer.h"
#include "dialog/printers/UserQueues.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/OwnVariable.h"
#include "platform/pde/PDEBundleLoader.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcRecognition, "corvana.dialog.recognition", QtWarningMsg)

namespace {

constexpr QLatin1StringView kBundleFile = "QXCLQuality13PDE.bundle"_L1;
constexpr char kExtensionAttribute[] = "QXPrintDialogExtension";
constexpr QLatin1StringView kIdentifyingKeys = "PMPPDKeysIdentifying"_L1;
// How much of a line a log quotes. Units: characters.
constexpr qsizetype kLongestQuotation = 80;
// Of a file that is none of rules each line is wrong, and a log of thousands says no more.
constexpr int kMostProblems = 100;

class RuleProblems
{
public:
    explicit RuleProblems(QString file) : m_file(std::move(file)) {}

    void add(const QString &line)
    {
        if (++m_count <= kMostProblems)
            qCWarning(lcRecognition).noquote()
                << m_file << "has a line that is no rule:" << line.left(kLongestQuotation);
        else if (m_count == kMostProblems + 1)
            qCWarning(lcRecognition).noquote() << m_file << "has more lines that are no rules";
    }

private:
    QString m_file;
    int m_count = 0;
};

} // namespace

QString namedBundle(ppd_file_t *ppd)
{
    const ppd_attr_t *named = ppdFindAttr(ppd, kExtensionAttribute, nullptr);
    return named && named->value ? QString::fromUtf8(named->value) : QString();
}

QString panelRulesFile()
{
    const QString named = ownVariable("CORVANA_PRINT_PANELS");
    return named.isEmpty() ? u"/etc/corvana-print/panels.conf"_s : named;
}

PanelRule panelRule(const QString &file, const QStringList &names)
{
    QFile rules(file);
    if (!rules.open(QIODevice::ReadOnly | QIODevice::Text))
        return PanelRule::ByPpd;
    RuleProblems problems(file);
    while (!rules.atEnd()) {
        const QString line = QString::fromUtf8(rules.readLine()).section(u'#', 0, 0).simplified();
        if (line.isEmpty())
            continue;
        const QString word = line.section(u' ', 0, 0);
        const QString pattern = line.section(u' ', 1);
        const bool panels = word == "panels"_L1;
        if (pattern.isEmpty() || (!panels && word != "none"_L1)) {
            problems.add(line);
            continue;
        }
        const auto expression = QRegularExpression::fromWildcard(pattern, Qt::CaseInsensitive);
        for (const QString &name : names) {
            if (expression.match(name).hasMatch())
                return panels ? PanelRule::Panels : PanelRule::None;
        }
    }
    return PanelRule::ByPpd;
}

PanelDecision decidePanels(ppd_file_t *ppd, const Bundle &bundle, PanelRule rule)
{
    if (rule != PanelRule::ByPpd)
        return {rule == PanelRule::Panels, u"the administrator's rules say so"_s};
    const QString bundleName = QFileInfo(bundle.path()).fileName();
    for (const ppd_attr_t *named = ppdFindAttr(ppd, kExtensionAttribute, nullptr); named;
         named = ppdFindNextAttr(ppd, kExtensionAttribute, nullptr)) {
        if (QString::fromUtf8(named->value) == bundleName)
            return {true, u"the PPD names the bundle %1"_s.arg(bundleName)};
    }
    const QStringList keywords = bundle.infoStringList(kIdentifyingKeys).value_or(QStringList());
    QStringList missing;
    for (const QString &keyword : keywords) {
        if (!ppdOption(ppd, keyword))
            missing += keyword;
    }
    if (!keywords.isEmpty() && missing.isEmpty())
        return {true, u"the PPD has the options %1"_s.arg(keywords.join(u' '))};
    return {false, u"the PPD does not name the bundle %1 and lacks the options %2"_s.arg(
                       bundleName, missing.join(u' '))};
}

QString bundleFileOf(ppd_file_t *ppd)
{
    const QString named = namedBundle(ppd);
    return named.isNull() ? QString(kBundleFile) : named;
}

PanelDecision decidePanels(ppd_file_t *ppd, const Printer &printer, const QStringList &bundleRoots)
{
    const PanelRule rule =
        panelRule(panelRulesFile(),
                  {queueOfInstance(printer.name), ppdText(ppd->nickname).value_or(QString())});
    const FoundPlugIn found = findPlugInBundle(bundleFileOf(ppd), bundleRoots);
    if (found.bundle) {
        PanelDecision decision = decidePanels(ppd, *found.bundle, rule);
        decision.found = found;
        return decision;
    }
    const bool wanted =
        rule == PanelRule::ByPpd ? !namedBundle(ppd).isNull() : rule == PanelRule::Panels;
    return {wanted, u"there is no usable bundle"_s};
}

} // namespace corvana
