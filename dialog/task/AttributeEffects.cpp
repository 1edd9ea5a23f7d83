#include "dialog/task/AttributeEffects.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/AttributeChoices.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OutputOrder.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/session/TwoSided.h"
#include "dialog/task/OpenedPrinter.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Shapes = JobAttribute::Shapes;

namespace {

constexpr auto kText = "text/plain"_L1;
constexpr auto kPicture = "image/"_L1;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AttributeEffects)
};

bool isShaped(const Document &document, Shapes shapes)
{
    switch (shapes) {
    case Shapes::Texts:
        return document.format == kText;
    case Shapes::Pictures:
        return document.format.startsWith(kPicture);
    case Shapes::Everything:
    case Shapes::ScaledPages:
        break;
    }
    return true;
}

Shapes shapesOf(const JobOption &attribute)
{
    const JobAttribute *known = jobAttribute(attribute.name);
    return known ? known->shapes : Shapes::Everything;
}

QString titlesOf(const QList<Document> &documents)
{
    constexpr qsizetype kMostNamed = 3;
    QStringList titles;
    for (const Document &document : documents.first(std::min(documents.size(), kMostNamed)))
        titles += Texts::tr("“%1”").arg(terminalLine(document.title));
    if (documents.size() > kMostNamed)
        titles += u"…"_s;
    return titles.join(u", "_s);
}

QString sentenceOn(const JobOption &option, Shapes shapes, const QList<Document> &documents)
{
    const QString form = shapes == Shapes::Texts
                             ? Texts::tr("%1 has no effect on %2: only texts follow it.")
                             : Texts::tr("%1 has no effect on %2: only pictures follow it.");
    return form.arg(u"%1=%2"_s.arg(option.name, option.value), titlesOf(documents));
}

// Pages whose size is their own are moved by a margin only when they are scaled.
bool haveSizesOfTheirOwn(const QList<Document> &documents)
{
    return !documents.isEmpty() &&
           std::none_of(documents.cbegin(), documents.cend(), [](const Document &document) {
               return isShaped(document, Shapes::Texts) || isShaped(document, Shapes::Pictures);
           });
}

bool isMarked(const JobOption &choice, const PpdSession &session)
{
    return session.markedChoice(choice.name) == choice.value;
}

} // namespace

bool hasEffectOn(const QList<Document> &documents, const JobOption &attribute)
{
    const Shapes shapes = shapesOf(attribute);
    return documents.isEmpty() ||
           std::any_of(documents.cbegin(), documents.cend(),
                       [&](const Document &document) { return isShaped(document, shapes); });
}

QStringList takeWhatHasNoEffect(QList<JobOption> &options, const QList<Document> &documents,
                                const OpenedPrinter &printer)
{
    ppd_file_t *ppd = printer.session->ppd();
    QStringList sentences;
    options.removeIf([&](const JobOption &option) {
        const QString name = nameInOneCase(option.name, ppd);
        const JobOption attribute = inOneSpelling({name, option.value});
        if (ppdOption(ppd, name) || hasEffectOn(documents, attribute))
            return false;
        sentences += sentenceOn(option, shapesOf(attribute), documents);
        return true;
    });
    return sentences;
}

QString usualValueOf(const QString &name, const QList<JobOption> &attributes,
                     const OpenedPrinter &printer)
{
    const JobAttribute *attribute = jobAttribute(name);
    if (name != kOutputOrderAttribute || isTwoSidedByHand(attributes))
        return attribute ? QString(attribute->usual) : QString();
    // The order in which the stack is that of the pages.
    const QString bin = printer.session->markedChoice(u"OutputBin"_s);
    return stacksFaceUp(printer.session->ppd(), {{u"OutputBin"_s, bin}}) ? u"reverse"_s
                                                                         : u"normal"_s;
}

bool isKnownToBeDone(const JobOption &attribute, const OpenedPrinter &printer)
{
    const JobOption option = inOneSpelling(attribute);
    const JobAttribute *known = jobAttribute(option.name);
    if (!known || !known->accepts(option.value))
        return false;
    if (!AttributeReader::isFor(option.name))
        return true;
    const AttributeChoices found =
        AttributeReader(printer.session->ppd(), printer.jobValues).read(option);
    switch (found.outcome) {
    case AttributeChoices::Outcome::Attribute:
        return true;
    case AttributeChoices::Outcome::Choices:
        return std::all_of(
            found.choices.cbegin(), found.choices.cend(),
            [&](const JobOption &choice) { return isMarked(choice, *printer.session); });
    case AttributeChoices::Outcome::Refused:
        break;
    }
    return false;
}

QHash<QString, QString> remarksOn(const QList<JobOption> &attributes, const OpenedPrinter &printer,
                                  const QList<Document> &documents)
{
    QHash<QString, QString> remarks;
    for (const JobOption &attribute : attributes) {
        // Nobody but a queue asks for what is not known here.
        if (printer.fetched.defaults.contains(attribute) && !isKnownToBeDone(attribute, printer))
            remarks.insert(
                attribute.name,
                Texts::tr("asked for by the queue; what the printer makes of it is not known"));
        else if (shapesOf(attribute) == Shapes::ScaledPages && haveSizesOfTheirOwn(documents))
            remarks.insert(attribute.name, Texts::tr("only where a page is scaled"));
    }
    return remarks;
}

} // namespace corvana
