#include "dialog/printers/PanelRecognition.h"
#include "dialog/printers/Printer.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/Summary.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEBundleLoader.h"
#include "plugin/QXJobValues.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// The panels' own values stand in the job once each, and what they say is taken again.
void requireOwnValuesComeBack(PpdSession &session)
{
    const QXJobValues values;
    const QList<JobOption> own = values.jobOptions(session.printSettings(), session.ppd());
    for (const JobOption &option : own) {
        const JobValueClaim claim =
            values.takeJobOption(option, session.printSettings(), session.ppd());
        require(claim.outcome == JobValueClaim::Outcome::Accepted,
                "a value that the panels put into a job is taken by them", option.name);
    }
    require(values.jobOptions(session.printSettings(), session.ppd()) == own,
            "what the panels say of a job is the same when it is said again");
}

// Passwords of custom values and of choices are nowhere in a text that has been cleaned of them.
void requireSecretsAreHidden(const PpdSession &session)
{
    const QStringList secrets = secretsOf(session);
    const QString text = withoutSecrets(u"tried "_s + secrets.join(u' '), secrets);
    for (const QString &secret : secrets)
        require(secret.size() < 3 || !text.contains(secret) || u"tried "_s.contains(secret),
                "a secret is shown nowhere", text);
}

void requireGroupsHaveTitles(const PpdSession &session)
{
    const ppd_file_t *ppd = session.ppd();
    for (int g = 0; g < ppd->num_groups; ++g) {
        groupTitle(ppd->groups[g]);
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const ppd_option_t &option = ppd->groups[g].options[o];
            for (int c = 0; c < option.num_choices; ++c)
                require(!choiceText(option.choices[c]).contains(u'\n'),
                        "the text of a choice is one line");
        }
    }
}

// The folder that is trusted has a bundle in it, and one beside it.
void requireBundleIsNoPath(const PpdSession &session)
{
    const QString root = QStringLiteral(CORVANA_FUZZ_SOURCE_DIR "/resources/bundle");
    for (const QString &name : {namedBundle(session.ppd()), bundleFileOf(session.ppd())})
        require(!name.contains(u'/') || !findPlugInBundle(name, {root}).bundle,
                "a bundle that a PPD names by a path is none", name);
}

// Whoever names the bundle, or has its options, gets its panels; an administrator's rule comes
// first.
void requirePanelsAreDecided(const PpdSession &session)
{
    static const std::shared_ptr<Bundle> bundle =
        Bundle::open(QStringLiteral(CORVANA_FUZZ_SOURCE_DIR "/resources/bundle"));
    for (const PanelRule rule : {PanelRule::ByPpd, PanelRule::Panels, PanelRule::None}) {
        const PanelDecision decision = decidePanels(session.ppd(), *bundle, rule);
        require(!decision.reason.isEmpty(), "there is a reason for panels, or for none");
        require(rule == PanelRule::ByPpd || decision.panels == (rule == PanelRule::Panels),
                "an administrator's rule comes first", decision.reason);
    }
    Printer printer;
    printer.name = u"lobby"_s;
    decidePanels(session.ppd(), printer, {u"/nonexistent"_s});
}

// Several copies are collated or not, in every form that somebody reads.
void requireCollation(const PpdSession &session)
{
    const bool hasOption = ppdOption(session.ppd(), u"Collate"_s);
    for (const char *collate : {"", "true", "false"}) {
        QList<JobOption> attributes;
        if (*collate)
            attributes += {kCollateAttribute, QString::fromLatin1(collate)};
        const bool isCollated = corvana::isCollated(session, attributes);
        for (const JobOption &option : withCollation(attributes, 2, session)) {
            require(!hasOption || option.name == kCollateAttribute,
                    "a printer's own option says how copies lie", option.name);
            if (option.name == "multiple-document-handling"_L1)
                require(option.value.contains("uncollated"_L1) != isCollated,
                        "both names of an order of copies say the same", option.value);
        }
    }
}

/// Input: a PPD. It opens as a session or is refused with a reason. In a session every marked
/// choice stands among the entries; a choice that is accepted is in the job; one that is refused
/// changes nothing; going back to a saved state is the identity; and each option has a title and
/// names all of its choices.
void run(const QByteArray &input)
{
    const std::unique_ptr<PpdSession> session = sessionOf(input);
    if (!session)
        return;
    requireMarksAreEntries(*session);
    requireChoicesArePrintable(*session, input);
    requireOwnValuesComeBack(*session);
    requireSecretsAreHidden(*session);
    requireBundleIsNoPath(*session);
    requirePanelsAreDecided(*session);
    requireCollation(*session);
    requireGroupsHaveTitles(*session);
    for (const ppd_option_t *option : choosableOptions(*session)) {
        const QString keyword = ppdKeyword(option->keyword);
        const SummaryLine line = optionLine(*session, keyword);
        require(session->markedChoice(keyword).isNull() || !line.title.isEmpty(),
                "an option that is marked has a title", keyword);
        const QString allowed = allowedChoices(session->ppd(), option);
        for (int i = 0; i < option->num_choices; ++i) {
            const QString choice = ppdKeyword(option->choices[i].choice);
            require(choice == kCustomChoice || allowed.contains(choice),
                    "an option names its choices", keyword);
        }
    }
}

const Target target("ppd_session", run);

} // namespace

} // namespace corvana::fuzz
