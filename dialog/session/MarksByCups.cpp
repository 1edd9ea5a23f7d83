#include "dialog/session/MarksByCups.h"

#include "dialog/session/OptionNames.h"

namespace corvana {

KeptMarks::KeptMarks(ppd_file_t *ppd) : m_ppd(ppd)
{
    for (auto *choice = static_cast<ppd_choice_t *>(cupsArrayFirst(ppd->marked)); choice;
         choice = static_cast<ppd_choice_t *>(cupsArrayNext(ppd->marked)))
        m_marked.push_back(choice);
    for (int i = 0; i < ppd->num_sizes; ++i)
        m_sizes.push_back(ppd->sizes[i].marked);
}

KeptMarks::~KeptMarks()
{
    takeAll();
    for (ppd_choice_t *choice : m_marked) {
        choice->marked = 1;
        cupsArrayAdd(m_ppd->marked, choice);
    }
    for (int i = 0; i < m_ppd->num_sizes; ++i)
        m_ppd->sizes[i].marked = m_sizes[static_cast<std::size_t>(i)];
}

void KeptMarks::takeAll() const
{
    while (auto *choice = static_cast<ppd_choice_t *>(cupsArrayFirst(m_ppd->marked))) {
        choice->marked = 0;
        cupsArrayRemove(m_ppd->marked, choice);
    }
}

namespace {

bool isPlain(const QString &value)
{
    return !value.startsWith(kCustomPrefix, Qt::CaseInsensitive) && !value.startsWith(u'{');
}

} // namespace

QList<JobOption> choicesByCups(ppd_file_t *ppd, const QList<JobOption> &attributes)
{
    const KeptMarks kept(ppd);
    kept.takeAll();
    cups_option_t *options = nullptr;
    int count = 0;
    for (const JobOption &attribute : attributes) {
        if (isPlain(attribute.value))
            count = cupsAddOption(attribute.name.toUtf8().constData(),
                                  attribute.value.toUtf8().constData(), count, &options);
    }
    cupsMarkOptions(ppd, count, options);
    cupsFreeOptions(count, options);
    QList<JobOption> choices;
    for (auto *choice = static_cast<ppd_choice_t *>(cupsArrayFirst(ppd->marked)); choice;
         choice = static_cast<ppd_choice_t *>(cupsArrayNext(ppd->marked)))
        choices += JobOption{ppdKeyword(choice->option->keyword), ppdKeyword(choice->choice)};
    return choices;
}

} // namespace corvana
