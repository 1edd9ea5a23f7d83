#include "tests/dialog/support/WindowDriver.h"

#include <stdexcept>

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "dialog/app/RequestFromCommandLine.h"
#include "tests/support/TestPaths.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

PrintRequest requestFor(const CommandLine &line)
{
    QString error;
    PrintRequest prepared = preparePrintRequest(line, &error).value_or(PrintRequest());
    if (!error.isEmpty())
        throw std::runtime_error(error.toStdString());
    // What one test has printed is nothing to the next.
    prepared.remembersLastUsed = false;
    return prepared;
}

CommandLine sampleDocument()
{
    CommandLine line;
    line.documents = {sourceFile(u"resources/sample/welcome.pdf"_s)};
    line.bundleRoots = {bundleRoot()};
    return line;
}

WindowDriver::WindowDriver(const PrintRequest &request, Activation activation)
{
    open(request, activation);
}

WindowDriver::~WindowDriver() = default;

void WindowDriver::open(const PrintRequest &request, Activation activation)
{
    m_dialog = std::make_unique<PrintWindow>(request);
    m_dialog->show();
    if (!QTest::qWaitForWindowExposed(m_dialog.get()))
        throw std::runtime_error("the window does not come up");
    if (activation == Activation::No)
        return;
    m_dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dialog.get()))
        throw std::runtime_error("the window does not get the focus");
}

QTabWidget *WindowDriver::pages() const
{
    return child<QTabWidget>(u"pages"_s);
}

void WindowDriver::showPage(int page)
{
    pages()->setCurrentIndex(page);
    QCoreApplication::processEvents();
}

void WindowDriver::showLastPage()
{
    showPage(pages()->count() - 1);
}

QList<QWidget *> WindowDriver::panelViews() const
{
    QList<QWidget *> views;
    for (int i = 0; i < pages()->count(); ++i) {
        auto *page = qobject_cast<QScrollArea *>(pages()->widget(i));
        if (page && page->widget())
            views += page->widget();
    }
    return views;
}

QWidget *WindowDriver::waitForPanel(int page) const
{
    QWidget *panel = nullptr;
    const auto isUp = [&] {
        auto *area = qobject_cast<QScrollArea *>(pages()->widget(page));
        panel = area ? area->widget() : nullptr;
        return panel != nullptr;
    };
    return QTest::qWaitFor(isUp, kWindowPatience) ? panel : nullptr;
}

bool WindowDriver::waitForPanels(int count) const
{
    return QTest::qWaitFor([&] { return panelViews().size() == count; }, kWindowPatience);
}

QString WindowDriver::message() const
{
    const auto *bar = child<QWidget>(u"message"_s);
    const auto *text = bar ? bar->findChild<QLabel *>(u"messageText"_s) : nullptr;
    return text && text->isVisible() ? text->text() : QString();
}

QList<std::pair<QString, QString>> WindowDriver::summaryLines()
{
    showLastPage();
    const auto *table = child<QTableWidget>(u"summary"_s);
    QList<std::pair<QString, QString>> lines;
    for (int row = 0; row < table->rowCount(); ++row)
        lines.emplaceBack(table->item(row, 0)->text(), table->item(row, 1)->text());
    return lines;
}

bool WindowDriver::canPress(const QString &button) const
{
    const auto *found = child<QPushButton>(button);
    return found && found->isVisible() && found->isEnabled();
}

bool WindowDriver::press(const QString &button)
{
    if (!canPress(button))
        return false;
    child<QPushButton>(button)->click();
    return true;
}

bool WindowDriver::pressPrint()
{
    return press(u"print"_s);
}

} // namespace corvana::test
