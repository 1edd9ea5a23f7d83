#pragma once

#include <random>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/e2e/BothFaces.h"
#include "tests/mass/PpdCollection.h"
#include "tests/mass/PpdText.h"

namespace corvana::test {

/// What a run over many PPDs came to.
struct MassCount
{
    int ppds = 0;
    int printed = 0;
    int refused = 0;
    int broken = 0; ///< PPDs that CUPS itself cannot read
    QStringList faults{}; ///< one sentence each, with what repeats it
};

/// Prints with PPDs that nobody has looked at before, each with its defaults and with two choices
/// of chance together: in a window, without one, and with the filter chain alone. What is printed
/// has to be what the chain makes of the same choices, in both faces; what is refused has to be
/// something that a line of the PPD excludes, and that line's choices have to be named. A PPD that CUPS cannot read is refused in every
/// case.
class MassRun
{
public:
    /// `seed`: the same one chooses the same. Errors: throws std::runtime_error.
    explicit MassRun(unsigned seed);

    void tryPpd(const NamedPpd &ppd);
    const MassCount &count() const { return m_count; }

private:
    using Choices = QList<PpdTextChoice>;

    Choices twoChoices(const PpdText &text);
    void tryChoices(const PpdText &text, const Choices &choices);
    QString problemOf(const PpdText &text, const Choices &choices);
    QByteArray chainAlone(const Choices &choices) const;

    unsigned m_seed;
    std::mt19937 m_chance;
    QTemporaryDir m_folder;
    QString m_document;
    QString m_ppd; // path of the one that is tried
    QString m_name;
    MassCount m_count;
};

} // namespace corvana::test
