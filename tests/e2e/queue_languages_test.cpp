#include <algorithm>
#include <functional>

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/FaultyServer.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// Something that a run without a window has to say, whatever the language.
struct Occasion
{
    QStringList arguments{};
    std::function<void(PrivateCups &, FaultyServer &)> arrange{};
    int status = 0;
    /// Names, values and numbers that stand in the message as they are.
    QStringList names{};
};

/// The keywords of an option's choices.
QStringList choicesOf(const QString &option)
{
    QFile ppd(kPpd);
    if (!ppd.open(QIODevice::ReadOnly))
        return {};
    const QRegularExpression line(u"^\\*%1 ([^/: ]+)[/:]"_s.arg(option),
                                  QRegularExpression::MultilineOption);
    QStringList keywords;
    for (const auto &match : line.globalMatch(QString::fromUtf8(ppd.readAll())))
        keywords += match.captured(1);
    return keywords;
}

/// What is wrong with a message in a language without Latin letters and without blanks between
/// sentences; empty when nothing is.
QString faultOf(QString message, const QString &locale, QStringList names)
{
    for (const QString &name : std::as_const(names)) {
        if (!message.contains(name))
            return u"“%1” is not in it"_s.arg(name);
    }
    static const QRegularExpression blank(u"[。！？；] "_s);
    if (blank.match(message).hasMatch())
        return u"there is a blank between two sentences"_s;
    // What contains another name goes first.
    std::sort(names.begin(), names.end(),
              [](const QString &left, const QString &right) { return left.size() > right.size(); });
    for (const QString &name : std::as_const(names))
        message.remove(name);
    static const QRegularExpression latin(u"[A-Za-z]+"_s);
    if (const auto match = latin.match(message); match.hasMatch())
        return u"“%1” is in another language"_s.arg(match.captured());
    static const QRegularExpression kana(u"[\\x{3041}-\\x{3096}\\x{30a1}-\\x{30fa}]"_s);
    static const QRegularExpression han(u"[\\x{4e00}-\\x{9fff}]"_s);
    const bool isJapanese = kana.match(message).hasMatch();
    if (isJapanese != (locale == u"ja_JP.UTF-8"_s) || !han.match(message).hasMatch())
        return u"it is in another language"_s;
    return {};
}

} // namespace

/// What a run without a window says in languages that are not written like English: all of it in
/// one language, with names, values and the job's number as they are.
class QueueLanguagesTest : public QueueRuns
{
    Q_OBJECT

private Q_SLOTS:
    void theLastMessageIsInTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<Occasion>("occasion");
        const QString server = u"SERVER"_s; // stands for its address
        const QStringList office{u"-d"_s, u"office"_s, kText};
        const std::pair<const char *, Occasion> occasions[] = {
            {"printed", {.arguments = office, .names = {u"office"_s, u"office-1"_s}}},
            {"held for instructions",
             {.arguments = QStringList{u"-o"_s, u"QXMediaType=Label"_s} + office,
              .names = {u"office"_s, u"office-1"_s, u"lp -i office-1 -H resume"_s}}},
            {"stopped by somebody who says why",
             {.arguments = QStringList{u"--no-wait"_s} + office,
              .arrange = [](PrivateCups &cups,
                            FaultyServer &) { cups.stopQueue(u"office"_s, u"Toner is ordered"_s); },
              .names = {u"office"_s, u"office-1"_s, u"Toner is ordered"_s}}},
            {"no jobs are taken",
             {.arguments = office,
              .arrange = [](PrivateCups &cups,
                            FaultyServer &) { cups.rejectJobs(u"office"_s, u"Moving"_s); },
              .status = 1,
              .names = {u"office"_s, u"Moving"_s}}},
            {"a value that is not allowed",
             {.arguments = QStringList{u"-o"_s, u"QXMediaType=Silk"_s} + office,
              .status = 1,
              .names = choicesOf(u"QXMediaType"_s) + QStringList{u"QXMediaType=Silk"_s}}},
            {"no such queue",
             {.arguments = {u"-d"_s, u"nowhere"_s, kText},
              .status = 1,
              .names = {u"nowhere"_s, server}}},
            {"the number of the job is lost",
             {.arguments = office,
              .arrange =
                  [](PrivateCups &, FaultyServer &between) {
                      between.closeBeforeResponse(IPP_OP_CREATE_JOB);
                  },
              .status = 1,
              .names = {u"office-1"_s, server}}},
        };
        for (const char *locale : {"ja_JP.UTF-8", "zh_CN.UTF-8"}) {
            for (const auto &[name, occasion] : occasions)
                QTest::addRow("%s, %s", name, locale) << QString::fromLatin1(locale) << occasion;
        }
    }
    void theLastMessageIsInTheUsersLanguage()
    {
        QFETCH(QString, locale);
        QFETCH(Occasion, occasion);
        m_cups->addQueue(u"office"_s, kPpd);
        FaultyServer between(m_cups->port());
        if (occasion.arrange)
            occasion.arrange(*m_cups, between);
        m_runner->setVariable(u"LC_ALL"_s, locale);
        m_runner->setVariable(u"CUPS_SERVER"_s, between.server());
        const RunEnd end = m_runner->run(occasion.arguments);
        QVERIFY2(end.status == occasion.status, end.text().constData());
        QStringList names = occasion.names;
        names.replaceInStrings(u"SERVER"_s, between.server());
        QString message = occasion.status == 0 ? end.out : end.err;
        message.remove(u"corvana-print: "_s);
        const QString fault = faultOf(message, locale, names);
        QVERIFY2(fault.isEmpty(), (fault.toUtf8() + '\n' + end.text()).constData());
    }
};

QTEST_GUILESS_MAIN(QueueLanguagesTest)

#include "queue_languages_test.moc"
