#include "tests/dialog/support/FakePlugIn.h"

#include "platform/pde/PDEPluginCallback.h"

namespace corvana::test {

namespace {
constexpr QLatin1StringView kStrength{"Strength"};
constexpr QLatin1StringView kStrengthEntry{"fake.Strength"};
} // namespace

FakePanel::FakePanel(QString name, CallLog &log, std::shared_ptr<PDEPluginCallback> host)
    : m_name(std::move(name)), m_log(log), m_host(std::move(host))
{
}

void FakePanel::note(const QString &operation, const QString &what)
{
    m_log += m_name + u'.' + operation + (what.isEmpty() ? QString() : u' ' + what);
    if (const auto act = inside.value(operation))
        act();
}

bool FakePanel::propose(const QString &keyword, const QString &choice)
{
    return m_host->willChangePPDOptionKeyValue_ppdChoice(keyword, choice);
}

QWidget *FakePanel::panelView()
{
    note(QStringLiteral("view"));
    if (hasView && !m_view)
        m_view = std::make_unique<QWidget>();
    return m_view.get();
}

void FakePanel::willShow()
{
    note(QStringLiteral("willShow"));
}

bool FakePanel::shouldHide()
{
    note(QStringLiteral("shouldHide"));
    return allowsLeaving;
}

bool FakePanel::restoreValuesAndReturnError(QString *)
{
    note(QStringLiteral("restore"));
    return true;
}

bool FakePanel::saveValuesAndReturnError(QString *)
{
    note(QStringLiteral("save"));
    return true;
}

void FakePanel::writeShownValues(PrintSettings &settings) const
{
    for (auto value = shown.cbegin(); value != shown.cend(); ++value)
        settings.setValue(value.key(), value.value());
}

QVariantMap FakePanel::summaryInfo()
{
    note(QStringLiteral("summary"));
    QVariantMap summary;
    QStringList order;
    for (const auto &[title, value] : summaryLines) {
        summary.insert(title, value);
        order += title;
    }
    summary.insert(QLatin1StringView(kSummaryDisplayOrder), order);
    return summary;
}

void FakePanel::PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword, const QString &choice)
{
    m_log += QStringLiteral("%1.changed %2=%3").arg(m_name, keyword, choice);
    if (const auto act = inside.value(QStringLiteral("changed")))
        act();
}

bool FakePanel::shouldPrint()
{
    note(QStringLiteral("shouldPrint"));
    return allowsPrinting;
}

QList<std::shared_ptr<PDEPanel>>
FakePlugIn::PDEPanelsForType_withHostInfo(const QString &type,
                                          const std::shared_ptr<PDEPluginCallback> &host)
{
    askedTypes += type;
    QList<std::shared_ptr<PDEPanel>> built;
    panels.clear();
    for (const QString &name : std::as_const(m_names)) {
        panels += std::make_shared<FakePanel>(name, log, host);
        if (whileBuilding)
            whileBuilding(*panels.last());
        built += panels.last();
    }
    return built;
}

QList<JobOption> FakeJobValues::jobOptions(const PrintSettings &settings, ppd_file_t *) const
{
    const QString value = settings.value(kStrengthEntry).toString();
    return value.isNull() ? QList<JobOption>() : QList<JobOption>{{kStrength, value}};
}

JobValueClaim FakeJobValues::takeJobOption(const JobOption &option, PrintSettings &settings,
                                           ppd_file_t *) const
{
    if (option.name != kStrength)
        return {};
    const int strength = option.value.toInt();
    if (strength < 1 || strength > 9)
        return {JobValueClaim::Outcome::Refused, {}, QStringLiteral("1 to 9")};
    settings.setValue(kStrengthEntry, option.value);
    return {JobValueClaim::Outcome::Accepted, option, {}};
}

QList<JobOption> FakeJobValues::impliedMarks(const PrintSettings &settings, ppd_file_t *) const
{
    if (!settings.contains(kStrengthEntry))
        return {};
    const bool boost = settings.value(kStrengthEntry).toInt() > 5;
    return {{QStringLiteral("Boost"), boost ? QStringLiteral("ON") : QStringLiteral("OFF")}};
}

} // namespace corvana::test
