#include "dialog/job/DocumentCopies.h"

#include <algorithm>

#include <QCoreApplication>

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DocumentCopies)
};

bool asksForUncollated(const JobOption &option)
{
    // A PPD's own option has a capital; the filters take both for the same.
    if (option.name.compare("collate"_L1, Qt::CaseInsensitive) == 0)
        return QStringList{u"false"_s, u"off"_s, u"no"_s}.contains(option.value,
                                                                   Qt::CaseInsensitive);
    return (option.name == "multiple-document-handling"_L1 &&
            option.value == "separate-documents-uncollated-copies"_L1) ||
           (option.name == "sheet-collate"_L1 && option.value == "uncollated"_L1);
}

} // namespace

bool isCollated(const QList<JobOption> &options)
{
    return std::none_of(options.cbegin(), options.cend(), asksForUncollated);
}

int repetitionsOf(const JobTicket &ticket, int documents)
{
    const bool isWanted = documents > 1 && ticket.copies > 1 && isCollated(ticket.options);
    return isWanted && ticket.copies <= kMostRepeatedDocuments / documents ? ticket.copies : 1;
}

CopiesOrder copiesOrder(const JobTicket &ticket, int documents, bool arePutTogether)
{
    if (documents < 2 || ticket.copies < 2)
        return CopiesOrder::Plain;
    if (arePutTogether)
        return isCollated(ticket.options) ? CopiesOrder::SetOfAll : CopiesOrder::EachPage;
    return repetitionsOf(ticket, documents) > 1 ? CopiesOrder::SetOfAll : CopiesOrder::EachDocument;
}

QString textOf(CopiesOrder order)
{
    switch (order) {
    case CopiesOrder::Plain:
        return {};
    case CopiesOrder::SetOfAll:
        return Texts::tr("all documents, then all of them again (A B A B)");
    case CopiesOrder::EachDocument:
        return Texts::tr("each document with all its copies (A A B B)");
    case CopiesOrder::EachPage:
        return Texts::tr("each page with all its copies (1 1 2 2)");
    }
    return {};
}

} // namespace corvana
