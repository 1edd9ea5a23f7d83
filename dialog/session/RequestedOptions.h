#pragma once

#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/session/PpdSession.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The name under which an option stands for everybody below: names are the same to lp whatever
/// their case. A name that nobody knows stays as it is.
QString nameInOneCase(const QString &name, ppd_file_t *ppd);

/// Options that are asked for together, sorted by who takes them; `problems` names each one that
/// nobody does. Nothing is marked or written.
///
/// Borrows the session. `jobValues` may be null.
class RequestedOptions
{
public:
    RequestedOptions(const QList<JobOption> &requested, PpdSession &session,
                     const PDEJobValues *jobValues);

    QStringList problems{};
    QList<OptionChoice> choices{};  ///< for the PPD
    QList<JobOption> panelValues{}; ///< for the plug-in
    QList<JobOption> attributes{};  ///< for CUPS
    std::optional<int> copies{};

    /// Names of lp's for what the printer, or the dialog, has another one.
    static QStringList translatedOptions();

private:
    void add(const JobOption &option);
    bool addPanelValue(const JobOption &option);
    bool addChoice(const JobOption &option, const QString &keyword);
    bool addAttribute(const JobOption &option);
    bool addChoicesOfAttribute(const JobOption &option);
    void addMedia(const JobOption &option);
    QList<OptionChoice> paperOf(const QString &media) const;
    void addMediaDetails(const JobOption &option);
    void addSides(const JobOption &option);
    void addCopies(const JobOption &option);

    void refuse(const JobOption &option, const QString &why);
    bool refuseLocked(const JobOption &attribute);
    void refuseValue(const JobOption &option, const QString &allowed);
    QString knownNames() const;

    PpdSession &m_session;
    const PDEJobValues *m_jobValues;
    QList<JobOption> m_requested; // in one case and one spelling
};

} // namespace corvana
