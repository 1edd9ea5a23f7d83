#include "dialog/terminal/OutcomeLine.h"

#include <cstdio>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonValue numberOrNull(int number)
{
    return number > 0 ? QJsonValue(number) : QJsonValue();
}

QByteArray line(QLatin1StringView state, const JobOutcome &outcome)
{
    const QJsonObject object{
        {u"queue"_s, textOrNull(outcome.queue)},
        {u"job"_s, numberOrNull(outcome.job)},
        {u"state"_s, state},
        {u"reasons"_s, QJsonArray::fromStringList(outcome.reasons)},
        {u"pages"_s, numberOrNull(outcome.pages)},
        {u"file"_s, textOrNull(outcome.file)},
        {u"message"_s, textOrNull(outcome.text)},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QByteArray outcomeLine(const JobOutcome &outcome)
{
    return line(outcomeKeyword(outcome.kind), outcome);
}

QByteArray refusalLine(const QString &queue, const QStringList &problems)
{
    JobOutcome outcome;
    outcome.queue = queue;
    outcome.text = problems.join(u'\n');
    return line(outcomeKeyword(JobOutcome::Kind::Refused), outcome);
}

void writeLine(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

} // namespace corvana
