#include <cmath>

#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PaperSize.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

void requireSize(const std::optional<QSizeF> &size, const QString &text)
{
    require(!size || (std::isfinite(size->width()) && std::isfinite(size->height()) &&
                      size->width() >= 0 && size->height() >= 0),
            "a size is a size", text);
}

/// Input: a name of paper, or a custom page size. A size that it states is a paper and comes back
/// from the name by which IPP knows it; a page size of a PPD that it leads to is there, and a
/// custom one that is taken is taken again in the form that it was given.
void run(const QByteArray &input)
{
    static const std::unique_ptr<PpdSession> session = sessionOf(samplePpd());
    const QString text = QString::fromUtf8(input);
    requireSize(sizeWithUnit(text), text);
    requireSize(customPageSize(text), text);
    const QSize dimension = dimensionOfMedia(text);
    if (!dimension.isEmpty()) {
        require(isPaper(dimension), "what a name states can be a paper", text);
        require(dimensionOfMedia(customMediaName(dimension)) == dimension,
                "a size comes back from its name", customMediaName(dimension));
    }
    if (const QString size = pageSizeOfMedia(session->ppd(), text); !size.isEmpty())
        require(ppdChoice(ppdOption(session->ppd(), kPageSizeOption), size),
                "a page size that is found is there", size);
    for (const QString &custom : {text, kCustomPrefix + text, customChoiceOfMedia(text)}) {
        const CustomValueCheck check = checkCustomValue(session->ppd(), kPageSizeOption, custom);
        require(!check.allowed.isEmpty(), "what is allowed is said");
        if (!check.value)
            continue;
        require(checkCustomValue(session->ppd(), kPageSizeOption, *check.value).value ==
                    check.value,
                "a value that is taken is taken again", *check.value);
        const SessionSnapshot before = session->snapshot();
        require(
            session->change(kPageSizeOption, *check.value, PpdSession::Origin::Dialog).accepted(),
            "a paper that is taken can be chosen", *check.value);
        require(session->pageFormat().paper.width > 0 && session->pageFormat().paper.height > 0,
                "a paper that is chosen has a size", *check.value);
        session->restore(before);
        require(session->snapshot() == before, "what is restored is what was saved");
    }
}

const Target target("paper_size", run);

} // namespace

} // namespace corvana::fuzz
