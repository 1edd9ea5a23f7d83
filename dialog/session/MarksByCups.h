#pragma once

#include <vector>

#include <QList>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// Gives a PPD its marks back at the end of its life, whatever was marked meanwhile; but for custom
/// values, whose numbers are kept elsewhere.
class KeptMarks
{
public:
    explicit KeptMarks(ppd_file_t *ppd);
    ~KeptMarks();
    KeptMarks(const KeptMarks &) = delete;
    KeptMarks &operator=(const KeptMarks &) = delete;

    void takeAll() const;

private:
    ppd_file_t *m_ppd;
    std::vector<ppd_choice_t *> m_marked;
    std::vector<char> m_sizes;
};

/// The choices that CUPS' filters mark for a set of attributes, on a PPD without any mark. The
/// marks of `ppd` are afterwards what they were before.
/// Values of the form "Custom.…" and "{…}" mark nothing here: nobody has checked them.
QList<JobOption> choicesByCups(ppd_file_t *ppd, const QList<JobOption> &attributes);

} // namespace corvana
