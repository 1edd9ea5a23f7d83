#include "tests/dialog/job/DocumentsScene.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include "tests/dialog/support/TestPrinters.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

// One script for the filter chain and for the program that works on PDFs. Each call is a stage,
// named by what it reads ("one.txt", "0.pdf" for what that has become, "whole.pdf") or does
// ("count", "pick", "unite"). The test makes a file hold-STAGE, fail-STAGE or crash-STAGE to say
// what shall become of it. Every document has as many pages as the file "pages" says.
constexpr char kStages[] = R"sh(
program=${0##*/}
for last in "$@"; do :; done
stage=${last##*/}
[ "$program" = qpdf ] && stage=pick
for argument in "$@"; do
    [ "$argument" = --show-npages ] && stage=count
    [ "$argument" = --empty ] && stage=unite
done
printf '%s\n' "$@" >"$DIR/arguments-$stage"
echo "$stage" >>"$DIR/stages"
echo $$ >"$DIR/pid"
output=/dev/stdout
[ "$stage" = unite ] || [ "$stage" = pick ] && output=$last
if [ -e "$DIR/hold-$stage" ]; then
    echo half >"$output"
    touch "$DIR/held"
    sleep 300
fi
if [ -e "$DIR/fail-$stage" ]; then
    echo half >"$output"
    echo "ERROR: $stage is upside down" >&2
    exit 1
fi
[ -e "$DIR/crash-$stage" ] && kill -SEGV $$
[ -e "$DIR/nothing-$stage" ] && exit 0
[ -e "$DIR/half-$stage" ] && { echo half >"$output"; exit 0; }
case $stage in
unite)
    for part in "$@"; do [ -f "$part" ] && [ "$part" != "$last" ] && grep -v EOF "$part"; done >"$output"
    echo '%%EOF' >>"$output"
    ;;
count) cat "$DIR/pages" ;;
pick) { grep -v EOF "$3" | sed "s/\$/, pages $6/"; echo '%%EOF'; } >"$output" ;;
[0-9]*.pdf) cat "$last" ;;
whole.pdf) grep -v EOF "$last" ;;
*) printf '%s as PDF\n%%%%EOF\n' "$(cat "$last")" ;;
esac
)sh";

} // namespace

void DocumentsScene::begin()
{
    m_filter = std::make_unique<FakeFilter>(kStages);
    QVERIFY(QFile::copy(path(u"filter"_s), path(u"qpdf"_s)));
    m_path = std::make_unique<Variable>("PATH",
                                        QFile::encodeName(path(QString())) + ':' + qgetenv("PATH"));
    m_temporary = std::make_unique<QTemporaryDir>();
    m_temporaryPath = std::make_unique<Variable>("TMPDIR", QFile::encodeName(m_temporary->path()));
    // What becomes of two documents cannot stand in a row.
    writeFile(m_filter->ppdPath(),
              PpdBuilder().text() +
                  "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n");
    writeFile(path(u"pages"_s), "5\n");
    writeFile(path(u"one.txt"_s), "1");
    writeFile(path(u"two.txt"_s), "2");
    writeFile(m_filter->output(), "yesterday's");
}

void DocumentsScene::end()
{
    m_temporaryPath.reset();
    m_path.reset();
    m_temporary.reset();
    m_filter.reset();
}

Document DocumentsScene::document(const QString &name) const
{
    return {path(name), u"application/postscript"_s, name};
}

QList<Document> DocumentsScene::documents() const
{
    return {document(u"one.txt"_s), document(u"two.txt"_s)};
}

QStringList DocumentsScene::lines(const QString &name) const
{
    return QString::fromUtf8(m_filter->content(name)).split(u'\n', Qt::SkipEmptyParts);
}

QStringList DocumentsScene::temporaryFiles() const
{
    return QDir(m_temporary->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

void DocumentsScene::make(const QString &name)
{
    writeFile(path(name), "");
}

FileJobRequest DocumentsScene::request(const QList<Document> &list, const JobTicket &ticket) const
{
    return {list, ticket, m_filter->ppdPath(), m_filter->output()};
}

QString DocumentsScene::printed(const QList<Document> &list, const JobTicket &ticket)
{
    FileJob job(request(list, ticket));
    QObject::connect(&job, &Job::finished, &job,
                     [&] { m_leftAtTheEnd = m_filter->leftOvers() + temporaryFiles(); });
    job.start();
    const JobOutcome outcome = job.wait();
    return outcome.kind == JobOutcome::Kind::Printed ? QString() : outcome.text;
}

void DocumentsScene::verifyNothingIsLeft()
{
    QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("yesterday's"));
    QCOMPARE(m_filter->leftOvers(), QStringList());
    QCOMPARE(temporaryFiles(), QStringList());
    const QStringList orders =
        QDir(path(QString()))
            .entryList({u"hold-*"_s, u"fail-*"_s, u"crash-*"_s, u"half-*"_s, u"nothing-*"_s});
    for (const QString &order : orders)
        QVERIFY(QFile::remove(path(order)));
    QFile::remove(path(u"held"_s));
    QCOMPARE(printed(documents()), QString());
    QCOMPARE(m_leftAtTheEnd, QStringList());
    QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n2 as PDF\n"));
}

} // namespace corvana::test
