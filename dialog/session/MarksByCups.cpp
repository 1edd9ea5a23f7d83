#include "dialog/session/MarksByCups.h"

#include <vector>

#include "dialog/session/OptionNames.h"

namespace corvana {

namespace {

// Takes all marks of a PPD away for as long as it lives.
class WithoutMarks
{
public:
    explicit WithoutMarks(ppd_file_t *ppd) : m_ppd(ppd)
    {
        m_marked = take();
        for (int i = 0; i < ppd->num_sizes; ++i)
            m_sizes.push_back(ppd->sizes[i].marked);
    }
    ~WithoutMarks()
    {
        take();
        for (ppd_choice_t *choice : m_marked) {
            choice->marked = 1;
            cupsArrayAdd(m_ppd->marked, choice);
        }
        for (int i = 0; i < m_ppd->num_sizes; ++i)
            m_ppd->sizes[i].marked = m_sizes[static_cast<std::size_t>(i)];
    }
    WithoutMarks(const WithoutMarks &) = delete;
    WithoutMarks &operator=(const WithoutMarks &) = delete;

private:
    std::vector<ppd_choice_t *> take()
    {
        std::vector<ppd_choice_t *> marked;
        while (auto *choice = static_cast<ppd_choice_t *>(cupsArrayFirst(m_ppd->marked))) {
            choice->marked = 0;
            marked.push_back(choice);
            cupsArrayRemove(m_ppd->marked, choice);
        }
        return marked;
    }

    ppd_file_t *m_ppd;
    std::vector<ppd_choice_t *> m_marked;
    std::vector<char> m_sizes;
};

bool isPlain(const QString &value)
{
    return !value.startsWith(kCustomPrefix, Qt::CaseInsensitive) && !value.startsWith(u'{');
}

} // namespace

QList<JobOption> choicesByCups(ppd_file_t *ppd, const QList<JobOption> &attributes)
{
    const WithoutMarks without(ppd);
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
