#include "dialog/driverless/StandardJobOptions.h"

#include <algorithm>
#include <optional>

#include <cups/pwg.h>

#include <QLoggingCategory>
#include <QRegularExpression>

#include "dialog/driverless/CapabilityOptions.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PaperSize.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcStandardOptions, "corvana.dialog.queues.options", QtWarningMsg)

namespace {

// The size of a custom choice. Errors: an empty one.
QSize customDimension(const QString &choice)
{
    const std::optional<QSizeF> points = customPageSize(choice);
    constexpr double kLongest = 3e6; // more would be no number of hundredths of a millimetre
    if (!points || points->width() > kLongest || points->height() > kLongest)
        return {};
    return {qRound(hundredthsOfPoints(points->width())),
            qRound(hundredthsOfPoints(points->height()))};
}

// Limits are written in points, so that a size at the limit may be off by rounding.
QSize withinLimits(QSize size, const std::optional<MediaSizeRange> &limits)
{
    constexpr int kRounding = 5;
    if (!limits || size.isEmpty())
        return size;
    const QSize nearest = size.expandedTo(limits->minimum).boundedTo(limits->maximum);
    const bool rounded = std::abs(nearest.width() - size.width()) <= kRounding &&
                         std::abs(nearest.height() - size.height()) <= kRounding;
    return rounded ? nearest : QSize();
}

/// The paper of a job, as far as the options have said.
struct Paper
{
    QString name;
    QSize dimension;
    bool borderless = false;
    QString type;
    QString source;

    bool needsDetails() const { return borderless || !type.isEmpty() || !source.isEmpty(); }
};

QString member(QLatin1StringView name, const QString &value)
{
    static const QRegularExpression plain(u"^[A-Za-z0-9._-]+\\z"_s);
    const QString form = plain.match(value).hasMatch() ? u" %1=%2"_s : u" %1=\"%2\""_s;
    return form.arg(name, value);
}

QList<JobOption> paperOptions(const Paper &paper)
{
    if (!paper.needsDetails()) {
        if (paper.name.isEmpty())
            return {};
        return {{u"media"_s, paper.name}};
    }
    QString details;
    if (!paper.dimension.isEmpty())
        details += u" media-size={x-dimension=%1 y-dimension=%2}"_s.arg(
            QString::number(paper.dimension.width()), QString::number(paper.dimension.height()));
    if (paper.borderless) {
        for (const char *margin : {"left", "right", "top", "bottom"})
            details += u" media-%1-margin=0"_s.arg(QLatin1StringView(margin));
    }
    if (!paper.type.isEmpty())
        details += member("media-type"_L1, paper.type);
    if (!paper.source.isEmpty())
        details += member("media-source"_L1, paper.source);
    return {{u"media-col"_s, u'{' + details.mid(1) + u'}'}};
}

class Translator
{
public:
    explicit Translator(const PrinterCapabilities &printer)
        : m_printer(printer), m_options(capabilityOptions(printer))
    {
    }

    void add(const JobOption &given)
    {
        const auto option =
            std::find_if(m_options.cbegin(), m_options.cend(), [&](const CapabilityOption &one) {
                return given.name == QLatin1StringView(one.keyword);
            });
        if (option == m_options.cend()) {
            m_others += given;
        } else if (option->attribute == "media" && given.value.startsWith(kCustomPrefix)) {
            addCustomPaper(given.value);
        } else {
            addChoice(*option, given.value);
        }
    }

    QList<JobOption> result() const
    {
        QList<JobOption> options = paperOptions(m_paper) + m_attributes;
        if (!m_finishings.isEmpty())
            options += JobOption{u"finishings"_s, m_finishings.join(u',')};
        // A choice that was picked stands for the attribute, whoever else has set that.
        for (const JobOption &other : m_others) {
            const bool picked = std::any_of(
                m_attributes.cbegin(), m_attributes.cend(),
                [&](const JobOption &attribute) { return attribute.name == other.name; });
            if (!picked)
                options += other;
        }
        return options;
    }

private:
    void addCustomPaper(const QString &value)
    {
        const bool unknown = m_printer.sizes.isEmpty() && !m_printer.customSizes;
        const QSize size = withinLimits(customDimension(value), m_printer.customSizes);
        if (size.isEmpty() || (!unknown && !m_printer.customSizes)) {
            qCWarning(lcStandardOptions) << "the printer takes no paper of the size" << value;
            return;
        }
        m_paper.dimension = size;
        m_paper.name = customMediaName(size);
    }

    void addChoice(const CapabilityOption &option, const QString &value)
    {
        const auto choice = std::find_if(
            option.choices.cbegin(), option.choices.cend(),
            [&](const CapabilityChoice &one) { return value == QLatin1StringView(one.keyword); });
        if (choice == option.choices.cend()) {
            qCWarning(lcStandardOptions) << "the printer has no" << option.keyword << value;
            return;
        }
        if (choice->value.isEmpty())
            return;
        if (option.attribute == "media") {
            m_paper.dimension = choice->dimension;
            m_paper.name = choice->value;
            m_paper.borderless = m_printer.mediaDetails && choice->margins.isBorderless();
        } else if (option.attribute == "media-type") {
            m_paper.type = choice->value;
        } else if (option.attribute == "media-source") {
            m_paper.source = choice->value;
        } else if (option.attribute == "finishings") {
            m_finishings += choice->value;
        } else {
            m_attributes += JobOption{QString::fromLatin1(option.attribute), choice->value};
        }
    }

    const PrinterCapabilities &m_printer;
    const QList<CapabilityOption> m_options;
    Paper m_paper;
    QList<JobOption> m_attributes;
    QStringList m_finishings;
    QList<JobOption> m_others;
};

} // namespace

QList<JobOption> standardJobOptions(const QList<JobOption> &ppdOptions,
                                    const PrinterCapabilities &printer)
{
    Translator translator(printer);
    for (const JobOption &option : ppdOptions)
        translator.add(option);
    return translator.result();
}

} // namespace corvana
