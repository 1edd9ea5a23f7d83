#include "dialog/session/JobTicket.h"

#include <algorithm>

#include <QLoggingCategory>
#include <QRegularExpression>

#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcTicket, "corvana.dialog.ticket", QtWarningMsg)

namespace {

QList<JobOption> ownOptions(const PpdSession &session, const PDEJobValues *jobValues)
{
    return jobValues ? jobValues->jobOptions(session.printSettings(), session.ppd())
                     : QList<JobOption>();
}

bool names(const QList<JobOption> &options, const QString &keyword)
{
    return std::any_of(options.cbegin(), options.cend(),
                       [&](const JobOption &option) { return option.name == keyword; });
}

bool lacksValue(const PpdSession &session, const QString &keyword)
{
    return session.markedChoice(keyword) == kCustomChoice && session.customValue(keyword).isNull();
}

// A secret in every form in which a program on its way may quote it: with backslashes in front of
// any of its characters, one for each quoting, and with a single quote that stands outside the
// quotes.
QRegularExpression quotedInAnyWay(const QString &secret)
{
    QString pattern;
    const auto characters = secret.toUcs4();
    for (const char32_t character : characters) {
        if (character == U'\\')
            pattern += u"\\\\+"_s;
        else if (character == U'\'')
            pattern += uR"((?:'\\+''|'"'"'|\\*'))"_s;
        else
            pattern += u"\\\\*"_s + QRegularExpression::escape(QString::fromUcs4(&character, 1));
    }
    return QRegularExpression(pattern);
}

} // namespace

QList<JobOption> jobOptions(const PpdSession &session, const PDEJobValues *jobValues,
                            const QList<JobOption> &attributes)
{
    const QList<JobOption> own = ownOptions(session, jobValues);
    QList<JobOption> options;
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        const QString marked = session.markedChoice(keyword);
        if (marked.isNull() || names(own, keyword))
            continue;
        if (lacksValue(session, keyword)) {
            // Without its number the choice would reach the printer as some number of chance.
            qCWarning(lcTicket) << keyword << "is custom, but nobody gave it a value";
            continue;
        }
        const QString custom = session.customValue(keyword);
        options += JobOption{keyword, custom.isNull() ? marked : custom};
    }
    return options + own + attributes;
}

bool isCollated(const PpdSession &session, const QList<JobOption> &attributes)
{
    if (const QString marked = session.markedChoice(kCollateOption); !marked.isNull())
        return QStringList{u"true"_s, u"on"_s, u"yes"_s}.contains(marked, Qt::CaseInsensitive);
    const auto asked =
        std::find_if(attributes.cbegin(), attributes.cend(), [](const JobOption &attribute) {
            return attribute.name == kCollateAttribute;
        });
    return asked == attributes.cend() || asked->value != "false"_L1;
}

QList<JobOption> withCollation(QList<JobOption> attributes, int copies, const PpdSession &session)
{
    const bool isAsked = names(attributes, kCollateAttribute);
    const bool collated = isCollated(session, attributes);
    if (ppdOption(session.ppd(), kCollateOption)) {
        // Filters take whatever else a queue says under this name for copies in sets.
        if (!collated && names(attributes, kHandlingAttribute))
            attributes += JobOption{kHandlingAttribute, kUncollated};
        return attributes;
    }
    if (copies < 2 && !isAsked)
        return attributes;
    if (!isAsked)
        attributes += JobOption{kCollateAttribute, u"true"_s};
    // A default of the queue may have been answered under this name already.
    attributes.removeIf([](const JobOption &one) {
        return one == JobOption{kHandlingAttribute, kCollated} ||
               one == JobOption{kHandlingAttribute, kUncollated};
    });
    attributes += JobOption{kHandlingAttribute, collated ? kCollated : kUncollated};
    return attributes;
}

QStringList secretsOf(const PpdSession &session)
{
    QStringList secrets;
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        const QString custom = session.customValue(keyword);
        if (!custom.isEmpty() && isSecret(session.ppd(), keyword))
            secrets += custom.mid(kCustomPrefix.size());
        // One or two letters stand in every log, where dots would only tell which they are.
        constexpr qsizetype kTooShort = 3;
        const QString choice = session.markedChoice(keyword);
        if (choice.size() >= kTooShort && isSecretChoice(session.ppd(), keyword, choice))
            secrets += choice;
    }
    return secrets;
}

QString withoutSecrets(QString text, const QStringList &secrets)
{
    for (const QString &secret : secrets) {
        if (!secret.isEmpty())
            text.replace(quotedInAnyWay(secret), QString(kHiddenLength, u'•'));
    }
    return text;
}

QStringList optionsWithoutValue(const PpdSession &session, const PDEJobValues *jobValues)
{
    const QList<JobOption> own = ownOptions(session, jobValues);
    QStringList keywords;
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        if (lacksValue(session, keyword) && !names(own, keyword))
            keywords += keyword;
    }
    return keywords;
}

} // namespace corvana
