#include "tests/support/RecordingHost.h"
#include "tests/support/TestPaths.h"

#include <stdexcept>

#include <QFile>
#include <QTemporaryFile>
#include <QTest>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr char kWillChange[] = "willChangePPDOptionKeyValue_ppdChoice";

QString pair(const QString &keyword, const QString &choice)
{
    return keyword + u'=' + choice;
}

ppd_file_t *openPpd(const QString &file)
{
    ppd_file_t *ppd = ppdOpenFile(QFile::encodeName(file).constData());
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        throw std::runtime_error(u"%1:%2: %3"_s.arg(file)
                                     .arg(line)
                                     .arg(QString::fromLocal8Bit(ppdErrorString(status)))
                                     .toStdString());
    }
    ppdLocalize(ppd);
    ppdMarkDefaults(ppd);
    return ppd;
}

QString firstPaper(ppd_file_t *ppd)
{
    const ppd_choice_t *paper = ppdMarkedChoice(ppd, u"PageSize"_s);
    return paper ? ppdKeyword(paper->choice) : QString();
}

} // namespace

char *toString(const HostCall &call)
{
    const QString text = call.operation + u'(' + call.arguments.join(u", "_s) + u')';
    return QTest::toString(text);
}

RecordingHost::RecordingHost(const QString &ppdFile) : m_ppd(openPpd(ppdFile))
{
    recordMarks();
    m_settings.setDuplexHandler([this](PMDuplexMode mode) { setDuplex(mode); });
    m_page.paper.name = firstPaper(m_ppd);
    if (!m_page.paper.name.isNull())
        m_page.paper.ppdPaperName = m_page.paper.name;
    if (const ppd_size_t *size = ppdPageSize(m_ppd, nullptr)) {
        m_page.paper.width = static_cast<double>(size->width);
        m_page.paper.height = static_cast<double>(size->length);
    }
}

RecordingHost::~RecordingHost()
{
    ppdClose(m_ppd);
}

std::shared_ptr<RecordingHost> RecordingHost::forSamplePrinter()
{
    return std::make_shared<RecordingHost>(
        corvana::test::sourceFile(u"resources/ppd/corvana-cl5.ppd"_s));
}

std::shared_ptr<RecordingHost> RecordingHost::forPpd(const QByteArray &text)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text) != text.size() || !file.flush())
        throw std::runtime_error(file.errorString().toStdString());
    return std::make_shared<RecordingHost>(file.fileName());
}

QStringList RecordingHost::asked() const
{
    QStringList changes;
    for (const HostCall &call : m_calls) {
        if (call.operation == QLatin1StringView(kWillChange))
            changes += call.arguments.join(u'=');
    }
    return changes;
}

void RecordingHost::note(const QString &operation, const QStringList &arguments)
{
    m_calls += HostCall{operation, arguments};
}

void RecordingHost::refuse(const QString &keyword, const QString &choice)
{
    m_refused += pair(keyword, choice);
}

QString RecordingHost::marked(const QString &keyword) const
{
    const ppd_choice_t *choice = ppdMarkedChoice(m_ppd, keyword);
    return choice ? ppdKeyword(choice->choice) : QString();
}

void RecordingHost::mark(const QString &keyword, const QString &choice)
{
    if (!ppdChoice(ppdOption(m_ppd, keyword), choice))
        throw std::invalid_argument(pair(keyword, choice).toStdString() + " is not in the PPD");
    ppdMarkOption(m_ppd, keyword.toLatin1().constData(), choice.toLatin1().constData());
    m_settings.setValue(keyword, choice);
}

void RecordingHost::unmark(const QString &keyword)
{
    ppd_option_t *option = ppdOption(m_ppd, keyword);
    for (int i = 0; option && i < option->num_choices; ++i) {
        option->choices[i].marked = 0;
        cupsArrayRemove(m_ppd->marked, &option->choices[i]);
    }
}

bool RecordingHost::respondsTo(PDECallbackOperation operation) const
{
    return !m_lacking.contains(operation);
}

PMPrintSettings RecordingHost::printSettings()
{
    return m_answersNoPrintSettings ? nullptr : &m_settings;
}

PMPageFormat RecordingHost::pageFormat()
{
    if (whenPageIsRead)
        whenPageIsRead();
    return m_answersNoPageFormat ? nullptr : &m_page;
}

bool RecordingHost::willChangePPDOptionKeyValue_ppdChoice(const QString &keyword,
                                                          const QString &choice)
{
    note(QLatin1StringView(kWillChange), {keyword, choice});
    if (whenAsked)
        whenAsked();
    if (!accepts(keyword, choice))
        return false;
    mark(keyword, choice);
    return true;
}

void RecordingHost::panelViewDidResize()
{
    note(u"panelViewDidResize"_s);
}

AlertPresenter *RecordingHost::alertPresenter()
{
    return &m_alerts;
}

bool RecordingHost::accepts(const QString &keyword, const QString &choice) const
{
    if (m_refusesEverything || m_refused.contains(pair(keyword, choice)))
        return false;
    if (!ppdChoice(ppdOption(m_ppd, keyword), choice))
        return false;
    cups_option_t *conflicts = nullptr;
    const int count = cupsGetConflicts(m_ppd, keyword.toLatin1().constData(),
                                       choice.toLatin1().constData(), &conflicts);
    cupsFreeOptions(count, conflicts);
    return count == 0;
}

void RecordingHost::recordMarks()
{
    for (ppd_option_t *option = ppdFirstOption(m_ppd); option; option = ppdNextOption(m_ppd)) {
        if (const ppd_choice_t *choice = ppdFindMarkedChoice(m_ppd, option->keyword))
            m_settings.setValue(ppdKeyword(option->keyword), ppdKeyword(choice->choice));
    }
}

void RecordingHost::setDuplex(PMDuplexMode mode)
{
    note(u"PMSetDuplex"_s, {QString::number(mode)});
    const QString keyword = u"Duplex"_s;
    ppd_option_t *option = ppdOption(m_ppd, keyword);
    if (!option)
        return;
    if (mode == kPMDuplexNone)
        mark(keyword, ppdKeyword(option->defchoice));
    else
        mark(keyword, mode == kPMDuplexNoTumble ? u"DuplexNoTumble"_s : u"DuplexTumble"_s);
}

} // namespace corvana::test
