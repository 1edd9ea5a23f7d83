#include "dialog/job/Conversion.h"

#include <QFile>
#include <QTimer>

#include "dialog/job/CupsFilter.h"
#include "dialog/job/PpdFilters.h"

namespace corvana {

using namespace Qt::StringLiterals;

Conversion::Conversion(const ConversionRequest &request, QObject *parent)
    : QObject(parent), m_request(request)
{
    connect(&m_chain, &FilterChain::pageReached, this, &Conversion::pageReached);
    connect(&m_chain, &FilterChain::finished, this, [this](const QString &problem) {
        m_parts.reset();
        Q_EMIT finished(problem);
    });
}

Conversion::~Conversion() = default;

void Conversion::start()
{
    QString problem;
    const FilterPlan plan = prepare(&problem);
    if (problem.isEmpty())
        return m_chain.start(plan, m_request.ticket.secrets);
    QTimer::singleShot(0, this, [this, problem] {
        m_parts.reset();
        Q_EMIT finished(problem);
    });
}

// Errors: `problem` says what stands in the way.
FilterPlan Conversion::prepare(QString *problem)
{
    const QString filter = findCupsFilter(problem);
    if (filter.isEmpty())
        return {};
    m_parts = std::make_unique<QTemporaryDir>();
    if (!m_parts->isValid()) {
        *problem = m_parts->errorString();
        return {};
    }
    const QString own = m_parts->filePath(u"printer.ppd"_s);
    *problem = takePpd(own);
    return planConversion(m_request, {filter, own, m_parts->path()});
}

// The chain gets a PPD that is its own: what was looked at is what its filters read, whoever writes
// the other one. Answers what stands in the way.
QString Conversion::takePpd(const QString &own) const
{
    // The filter chain would do without a PPD, and print a file without any of the choices.
    QFile ppd(m_request.ppdPath);
    if (!ppd.open(QIODevice::ReadOnly))
        return tr("%1 cannot be read: %2").arg(m_request.ppdPath, ppd.errorString());
    const QByteArray content = ppd.readAll();
    QFile copy(own);
    if (!copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        copy.write(content) != content.size())
        return tr("%1 cannot be written: %2").arg(own, copy.errorString());
    // A PDF is made by filters of the system only.
    if (m_request.result == ConversionRequest::Result::Pdf)
        return {};
    return problemOfPpdFilters(own).replace(own, m_request.ppdPath);
}

} // namespace corvana
