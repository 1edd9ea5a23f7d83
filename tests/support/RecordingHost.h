#pragma once

#include <functional>
#include <memory>
#include <set>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEPluginCallback.h"
#include "tests/support/ScriptedAlertPresenter.h"

namespace corvana::test {

/// One thing that a panel did to its host, as a comparable value.
struct HostCall
{
    /// Name of the operation, as in PDEPluginCallback; or whatever was noted by note().
    QString operation;
    QStringList arguments;

    bool operator==(const HostCall &) const = default;
};

/// How QCOMPARE prints a list of calls. Ownership: the caller's, to be freed with delete[].
char *toString(const HostCall &call);

/// A host that behaves as a real one and remembers what its panels asked of it.
///
/// It opens a PPD, marks its defaults and records every mark in the print settings, before any
/// panel exists. An accepted change is marked in the PPD and recorded in the print settings, then
/// answered with true. Unknown keywords and choices, choices that collide with a constraint of the
/// PPD, and whatever the test told it to refuse, are answered with false and change nothing.
///
/// Ownership: shared with the panels, as every host. It owns the PPD, the print settings, the page
/// format and the alert presenter. Thread: GUI thread only.
class RecordingHost : public PDEPluginCallback
{
public:
    /// Errors: throws std::runtime_error when the PPD cannot be opened, naming line and reason.
    explicit RecordingHost(const QString &ppdFile);
    ~RecordingHost() override;

    /// A host of the sample printer that the project ships.
    static std::shared_ptr<RecordingHost> forSamplePrinter();
    /// A host of the printer that a PPD's text describes. Errors: as the constructor.
    static std::shared_ptr<RecordingHost> forPpd(const QByteArray &text);

    // What was called

    /// Changes asked for, resizes, and changes of two-sided printing, in order, with what note()
    /// added. Mere queries (respondsTo(), ppdFile(), printSettings() and so on) are not listed.
    const QList<HostCall> &calls() const { return m_calls; }
    /// Only the changes asked for, in order, each as "keyword=choice".
    QStringList asked() const;
    void forgetCalls() { m_calls.clear(); }
    /// How often a panel has said that it shows other values. Not among the calls.
    int shownChanges() const { return m_shownChanges; }
    /// Puts something that happened elsewhere (a panel's step, a notification) between the calls.
    void note(const QString &operation, const QStringList &arguments = {});

    // How the host behaves

    void refuse(const QString &keyword, const QString &choice);
    void refuseEverything(bool refuses = true) { m_refusesEverything = refuses; }
    /// Leaves out an operation that a host may leave out.
    void lack(PDECallbackOperation operation) { m_lacking.insert(operation); }
    /// Answers null for its print settings although it implements the operation.
    void answerNoPrintSettings(bool none = true) { m_answersNoPrintSettings = none; }
    void answerNoPageFormat(bool none = true) { m_answersNoPageFormat = none; }
    /// Run by willChangePPDOptionKeyValue_ppdChoice() before it answers, and by pageFormat(): what
    /// it throws reaches the panel.
    std::function<void()> whenAsked;
    std::function<void()> whenPageIsRead;

    // The job

    ppd_file_t *ppd() const { return m_ppd; }
    PrintSettings &settings() { return m_settings; }
    PageFormat &page() { return m_page; }
    ScriptedAlertPresenter &alerts() { return m_alerts; }

    /// The marked choice of an option; null when nothing is marked.
    QString marked(const QString &keyword) const;
    /// Marks and records a choice as if another part of the dialog had changed it.
    /// Range: a choice of the PPD; anything else throws std::invalid_argument.
    void mark(const QString &keyword, const QString &choice);
    /// Leaves an option without any marked choice.
    void unmark(const QString &keyword);

    // PDEPluginCallback

    bool respondsTo(PDECallbackOperation operation) const override;
    ppd_file_t *ppdFile() override { return m_ppd; }
    PMPrintSettings printSettings() override;
    PMPageFormat pageFormat() override;
    bool willChangePPDOptionKeyValue_ppdChoice(const QString &keyword,
                                               const QString &choice) override;
    void panelViewDidResize() override;
    void shownValuesDidChange() override { ++m_shownChanges; }
    AlertPresenter *alertPresenter() override;

private:
    bool accepts(const QString &keyword, const QString &choice) const;
    void recordMarks();
    void setDuplex(PMDuplexMode mode);

    ppd_file_t *m_ppd = nullptr;
    PrintSettings m_settings;
    PageFormat m_page;
    ScriptedAlertPresenter m_alerts;

    QList<HostCall> m_calls;
    std::set<PDECallbackOperation> m_lacking;
    int m_shownChanges = 0;
    QStringList m_refused; // "keyword=choice"
    bool m_refusesEverything = false;
    bool m_answersNoPrintSettings = false;
    bool m_answersNoPageFormat = false;
};

} // namespace corvana::test
