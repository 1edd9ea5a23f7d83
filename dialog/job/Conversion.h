#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include "dialog/job/FilterChain.h"
#include "dialog/job/FilterPlan.h"

namespace corvana {

/// Makes one file of documents with the filter chain of CUPS: looks whether the machine has what
/// that needs and whether the printer's PPD is one whose filters may run here, plans it, and runs
/// the plan.
///
/// One object makes one file. Thread: GUI thread; the chain is a process of its own.
class Conversion : public QObject
{
    Q_OBJECT

public:
    explicit Conversion(const ConversionRequest &request, QObject *parent = nullptr);
    ~Conversion() override;

    /// Starts. `finished` follows in every case, never before this returns.
    void start();
    /// Stops it; `finished` follows with a failure. Does nothing when the file is made.
    void cancel() { m_chain.cancel(); }
    /// Whether cancel() was in time.
    bool isCanceled() const { return m_chain.isCanceled(); }
    /// Whether the problem is that no page is left: every filter has done its work.
    bool cameOutEmpty() const { return m_chain.cameOutEmpty(); }

Q_SIGNALS:
    /// A filter has come to this page. Range: 1 and more.
    void pageReached(int page);
    /// `problem` is empty when the file is complete.
    void finished(const QString &problem);

private:
    FilterPlan prepare(QString *problem);
    QString takePpd(const QString &own, const QString &filling, const QString &blank) const;

    ConversionRequest m_request;
    std::unique_ptr<QTemporaryDir> m_parts;
    FilterChain m_chain;
};

} // namespace corvana
