#include "dialog/task/PresetApplication.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/LockedValues.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/SavedAsPdf.h"
#include "dialog/task/StartValues.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetApplication)
};

// One use of a preset.
class Application
{
public:
    Application(const PresetContent &content, const PresetUse &use,
                const QList<Document> &documents, OpenedPrinter &printer, JobSettings &settings)
        : m_content(content), m_use(use), m_documents(documents), m_printer(printer),
          m_session(*printer.session), m_settings(settings)
    {
    }

    PresetOutcome run()
    {
        m_printer.panels->bringUp();
        sortOptions();
        leaveOutSourceOfHandFed();
        markChoices();
        writeEntries();
        writeOwnValues();
        compare();
        applyAttributes();
        return m_outcome;
    }

private:
    bool isWish(const QString &name) const
    {
        return m_use.changed.isEmpty() || m_use.changed.contains(name);
    }

    void note(const QString &name, const QString &sentence)
    {
        // Of what is locked people hear who has chosen: it is not the printer that lacks it.
        const bool isSaidFirst = isWish(name) || m_session.locks().contains(name);
        QStringList &said = isSaidFirst ? m_outcome.missing : m_outcome.details;
        if (!said.contains(sentence))
            said += sentence;
        m_said += name;
    }

    QString textOf(const JobOption &option) const
    {
        return choiceText({option.name, option.value}, m_session);
    }

    // Who takes each of the options: the plug-in, the PPD, or nobody.
    void sortOptions()
    {
        PrintSettings trial;
        trial.setEntries(m_session.printSettings().entries());
        const QList<JobOption> options = m_content.jobOptions();
        for (const JobOption &option : options) {
            // A file may name them all the same.
            if (neverKept(m_session).contains(option.name))
                continue;
            JobValueClaim claim;
            if (m_printer.jobValues)
                claim = m_printer.jobValues->takeJobOption(option, trial, m_session.ppd());
            if (claim.outcome == JobValueClaim::Outcome::NotMine)
                sortChoice(option);
            else if (claim.outcome == JobValueClaim::Outcome::Accepted)
                m_ownValues += option;
            else
                note(option.name, Texts::tr("%1 is not possible on this printer. Allowed: %2.")
                                      .arg(textOf(option), claim.allowed));
        }
    }

    // libcups takes the mark of the paper source away when sheets are fed by hand, and the other
    // way round, so that one of them would undo the other for ever.
    void leaveOutSourceOfHandFed()
    {
        if (m_choices.contains(OptionChoice{u"ManualFeed"_s, u"True"_s}))
            m_choices.removeIf(
                [](const OptionChoice &one) { return one.keyword == "InputSlot"_L1; });
    }

    void sortChoice(const JobOption &option)
    {
        ppd_option_t *found = ppdOption(m_session.ppd(), option.name);
        QString value = option.value;
        if (value.startsWith(kCustomPrefix))
            value = checkCustomValue(m_session.ppd(), option.name, value).value.value_or(QString());
        else if (!ppdChoice(found, value) || value == kCustomChoice)
            value.clear();
        if (m_session.options().contains(found) && !value.isEmpty())
            m_choices += OptionChoice{option.name, value};
        else
            m_unknown += option;
    }

    // Those that are not in force already.
    QList<OptionChoice> otherChoices() const
    {
        QList<OptionChoice> others = m_choices;
        others.removeIf([&](const OptionChoice &choice) {
            const QString custom = m_session.customValue(choice.keyword);
            return choice.choice ==
                   (custom.isNull() ? m_session.markedChoice(choice.keyword) : custom);
        });
        return others;
    }

    // What is left out where a set cannot be had: what nobody has wished before what somebody has,
    // the last before the first, the paper at the end.
    Refusal leastMissed(const QList<Refusal> &refusals) const
    {
        const auto rank = [&](const Refusal &refusal) {
            const QString &keyword = refusal.proposed.keyword;
            return keyword == kPageSizeOption ? 2 : int(isWish(keyword));
        };
        return *std::min_element(
            refusals.crbegin(), refusals.crend(),
            [&](const Refusal &a, const Refusal &b) { return rank(a) < rank(b); });
    }

    // As one set.
    void markTogether()
    {
        while (true) {
            const QList<OptionChoice> others = otherChoices();
            const QList<Refusal> refusals = m_session.changeTogether(others);
            if (refusals.isEmpty())
                return;
            Refusal left = leastMissed(refusals);
            if (!m_choices.contains(left.proposed))
                left.proposed = others.constLast(); // which is in the way of something locked
            note(left.proposed.keyword, refusalText(left, m_session));
            m_choices.removeAll(left.proposed);
        }
    }

    void markChoices()
    {
        markTogether();
        // A new paper makes the panels propose a medium for it, which counts where none was kept.
        m_printer.panels->tellPaper(m_choices);
        m_printer.panels->deliverPending();
        markTogether();
    }

    void writeEntries()
    {
        const QList<PanelEntry> entries = panelEntries(m_session, m_printer.jobValues);
        for (const PanelEntry &entry : entries) {
            const QVariant kept = m_content.entries.value(entry.key);
            if (kept.isValid() && kept != entry.value)
                m_session.printSettings().setValue(entry.key, kept);
        }
    }

    // Those that the entries say already are left alone: a value that is not in force would be
    // written as its default into the entries of what is.
    void writeOwnValues()
    {
        const QList<OptionDifference> others =
            optionDifferences(m_ownValues, m_session, m_printer.jobValues);
        for (const OptionDifference &other : others)
            m_printer.jobValues->takeJobOption(other.asked, m_session.printSettings(),
                                               m_session.ppd());
        markImplied(m_session, m_printer.jobValues);
        m_printer.panels->deliverPending();
        m_printer.panels->restoreAll();
        if (!putBackLockedValues(m_session, m_printer.jobValues).isEmpty())
            m_printer.panels->restoreAll();
        // What a panel proposed beside all that, nobody wishes; what became of it is compared.
        m_session.takeRefusals();
    }

    QString lost(const JobOption &asked) const
    {
        return Texts::tr("%1 is not possible together with the other settings.").arg(textOf(asked));
    }
    QString replaced(const OptionDifference &other) const
    {
        if (m_session.locks().contains(other.asked.name))
            return lockedText(other.asked.name, m_session);
        return Texts::tr("The printer's settings do not allow %1 here; it became %2.")
            .arg(textOf(other.asked), textOf({other.asked.name, other.now}));
    }

    void compare()
    {
        QList<JobOption> asked = m_ownValues;
        for (const OptionChoice &choice : std::as_const(m_choices))
            asked += JobOption{choice.keyword, choice.choice};
        for (const OptionDifference &other :
             optionDifferences(asked, m_session, m_printer.jobValues))
            note(other.asked.name, other.now.isNull() ? lost(other.asked) : replaced(other));
        // What the plug-in names although the PPD does not is in the job as it was.
        for (const OptionDifference &other :
             optionDifferences(m_unknown, m_session, m_printer.jobValues))
            note(other.asked.name,
                 Texts::tr("%1 is not on this printer.").arg(textOf(other.asked)));
        const QList<PanelEntry> entries = panelEntries(m_session, m_printer.jobValues);
        for (const PanelEntry &entry : entries) {
            const QVariant kept = m_content.entries.value(entry.key);
            const bool isSaid =
                std::any_of(entry.options.cbegin(), entry.options.cend(),
                            [&](const QString &option) { return m_said.contains(option); });
            if (kept.isValid() && kept != entry.value && !isSaid)
                note(entry.options.value(0),
                     Texts::tr("A value of the printer's own settings (%1) is not possible here.")
                         .arg(entry.options.join(u'/')));
        }
    }

    // Attributes that the printer, or what is printed, has nothing to do with.
    QList<JobOption> possibleAttributes()
    {
        QList<JobOption> possible;
        for (auto one = m_content.attributes.cbegin(); one != m_content.attributes.cend(); ++one) {
            const JobOption attribute{one.key(), one.value()};
            if (!jobAttribute(attribute.name) && !attribute.value.isNull())
                note(attribute.name,
                     Texts::tr("%1 is not on this printer.").arg(textOf(attribute)));
            if (!isKept(attribute.name))
                continue;
            if (attribute.value.isNull()) {
                possible += attribute;
                continue;
            }
            QList<JobOption> left{attribute};
            QStringList problems;
            if (passesFilesOn(m_printer))
                problems = takeWhatCannotBeDone(left, m_printer);
            else if (savesPdf(m_printer))
                problems = takeWhatPdfLacks(left);
            problems += takeWhatHasNoEffect(left, m_documents, m_printer);
            const RequestedOptions read(left, m_session, m_printer.jobValues);
            problems += read.problems;
            // What is an option of this printer's own, such as the collating of some, was kept as
            // an attribute elsewhere.
            if (!read.choices.isEmpty() && !m_content.options.contains(read.choices.at(0).keyword))
                m_session.changeTogether(read.choices);
            for (const QString &problem : std::as_const(problems))
                note(attribute.name, problem);
            possible += read.attributes;
        }
        return possible;
    }

    void applyAttributes()
    {
        QList<JobOption> attributes = possibleAttributes();
        const auto isNamed = [&](const QString &name) {
            return std::any_of(attributes.cbegin(), attributes.cend(),
                               [&](const JobOption &one) { return one.name == name; });
        };
        const QList<JobOption> present = m_settings.attributes();
        for (const JobOption &one : present) {
            const bool isLocked = !m_settings.lockedBy(one.name).isNull();
            if (m_use.others == PresetUse::Others::Cleared && isKept(one.name) && !isLocked &&
                !isNamed(one.name))
                attributes += JobOption{one.name, QString()};
        }
        for (const JobOption &attribute : std::as_const(attributes)) {
            if (attribute.value.isNull() && !canBeNone(attribute.name, m_printer))
                continue;
            if (m_use.by == JobSettings::By::User)
                m_settings.setAttribute(
                    attribute.name, attribute.value,
                    usualValueOf(attribute.name, m_settings.attributes(), m_printer));
            else
                m_settings.addAttributes({attribute});
            if (m_settings.attribute(attribute.name) != attribute.value &&
                !m_settings.lockedBy(attribute.name).isNull() &&
                !m_session.locks().value(attribute.name).allowsAttribute(attribute))
                note(attribute.name, lockedText(attribute.name, m_session));
        }
        m_printer.panels->deliverPending();
    }

    const PresetContent &m_content;
    const PresetUse &m_use;
    const QList<Document> &m_documents;
    OpenedPrinter &m_printer;
    PpdSession &m_session;
    JobSettings &m_settings;
    QList<OptionChoice> m_choices; // for the PPD
    QList<JobOption> m_ownValues;  // for the plug-in
    QList<JobOption> m_unknown;    // nobody takes them
    QStringList m_said;            // names of what was noted
    PresetOutcome m_outcome;
};

} // namespace

PresetOutcome applyPreset(const PresetContent &content, const PresetUse &use,
                          const QList<Document> &documents, OpenedPrinter &printer,
                          JobSettings &settings)
{
    return Application(content, use, documents, printer, settings).run();
}

} // namespace corvana
