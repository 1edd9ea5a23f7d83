#include "tests/e2e/DialogDriver.h"
#include "dialog/app/RequestFromCommandLine.h"

#include <stdexcept>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/Gestures.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

namespace {

constexpr int kPatience = 20000; // milliseconds that printing may take on a busy machine

CommandLine sampleDocument(const QStringList &options)
{
    CommandLine line;
    line.documents = {corvana::test::sourceFile(QStringLiteral("resources/sample/welcome.pdf"))};
    line.bundleRoots = {corvana::test::bundleRoot()};
    line.options = options;
    return line;
}

PrintRequest request(const CommandLine &line)
{
    QString error;
    PrintRequest prepared = preparePrintRequest(line, &error).value_or(PrintRequest());
    if (!error.isEmpty())
        throw std::runtime_error(error.toStdString());
    return prepared;
}

QString check(const QCheckBox *box)
{
    return box->isChecked() ? QStringLiteral("ON") : QStringLiteral("OFF");
}

// With the keys alone: to the lower end, and from there up.
void slideTo(QSlider *slider, int value)
{
    QTest::keyClick(slider, Qt::Key_Home);
    while (slider->value() < value && slider->value() < slider->maximum())
        QTest::keyClick(slider, Qt::Key_Right);
}

SeenAlert seenAlert(const QMessageBox &box)
{
    SeenAlert alert{box.text(), box.informativeText(), {}, box.checkBox() != nullptr, {}};
    for (const QAbstractButton *button : box.buttons())
        alert.buttons += button->text().remove(u'&');
    const auto *picture = box.findChild<QWidget *>(QStringLiteral("accessoryView"));
    if (picture && picture->isVisible())
        alert.picture = picture->size();
    return alert;
}

} // namespace

AlertAnswerer::AlertAnswerer()
{
    qApp->installEventFilter(this);
}

bool AlertAnswerer::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Show) {
        // When it stands there whole.
        QMetaObject::invokeMethod(
            box,
            [this, box] {
                seen += seenAlert(*box);
                if (answer)
                    answer(*box);
                else
                    box->buttons().constFirst()->click();
                if (box->isVisible()) {
                    ++unanswered;
                    box->done(QDialog::Rejected);
                }
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

DialogDriver::DialogDriver(const QString &printer, const QStringList &options)
{
    CommandLine line = sampleDocument(options);
    line.ppd = corvana::test::sourceFile(QStringLiteral("resources/ppd/%1.ppd")).arg(printer);
    line.output = m_folder.filePath(QStringLiteral("job.ps"));
    open(line);
}

DialogDriver::DialogDriver(const QueueAt &queue, const QStringList &options)
{
    CommandLine line = sampleDocument(options);
    line.server = queue.server;
    line.printer = queue.name;
    open(line);
}

void DialogDriver::open(const CommandLine &line)
{
    m_dialog = std::make_unique<PrintWindow>(request(line));
    m_dialog->show();
    const auto panelIsUp = [this] {
        auto *pages = m_dialog->findChild<QTabWidget *>(QStringLiteral("pages"));
        auto *page = qobject_cast<QScrollArea *>(pages->widget(1));
        m_panel = page ? page->widget() : nullptr;
        return !m_panel.isNull();
    };
    if (!QTest::qWaitForWindowExposed(m_dialog.get()) || !QTest::qWaitFor(panelIsUp, kPatience))
        throw std::runtime_error("the panel does not come up");
    showPage(1);
    auto *disclosure = control<QPushButton>(QStringLiteral("optionButton"));
    if (disclosure && !disclosure->isChecked())
        disclosure->click();
}

DialogDriver::~DialogDriver() = default;

void DialogDriver::showPage(int page)
{
    m_dialog->findChild<QTabWidget *>(QStringLiteral("pages"))->setCurrentIndex(page);
    QCoreApplication::processEvents();
}

void DialogDriver::showLastPage()
{
    showPage(m_dialog->findChild<QTabWidget *>(QStringLiteral("pages"))->count() - 1);
}

bool DialogDriver::reach(QWidget *control)
{
    if (!control)
        return false;
    if (control->isVisible())
        return true;
    auto *rows = m_panel->findChild<QTableView *>(QStringLiteral("advancedTableView"));
    for (int row = 0; rows && rows->isVisible() && row < rows->model()->rowCount(); ++row) {
        rows->selectRow(row);
        if (control->isVisible())
            return true;
    }
    return false;
}

QStringList DialogDriver::offered(const QWidget *control)
{
    QStringList choices;
    if (const auto *popUp = qobject_cast<const QComboBox *>(control)) {
        for (int item = 0; item < popUp->count(); ++item)
            choices += popup::representedObject(popUp, item).toString();
    } else if (const auto *matrix = qobject_cast<const RadioMatrix *>(control)) {
        for (int row = 0; row < matrix->numberOfRows(); ++row)
            choices += matrix->representedObject(row).toString();
    } else if (qobject_cast<const QCheckBox *>(control)) {
        choices = {QStringLiteral("OFF"), QStringLiteral("ON")};
    } else if (const auto *slider = qobject_cast<const QSlider *>(control)) {
        for (int step = slider->minimum(); step <= slider->maximum(); ++step)
            choices += QString::number(step);
    }
    return choices;
}

QString DialogDriver::chosen(const QWidget *control)
{
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return popup::representedObject(popUp, popUp->currentIndex()).toString();
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(control))
        return matrix->representedObject(matrix->selectedRow()).toString();
    if (const auto *box = qobject_cast<const QCheckBox *>(control))
        return check(box);
    if (const auto *slider = qobject_cast<const QSlider *>(control))
        return QString::number(slider->value());
    return {};
}

bool DialogDriver::choose(QWidget *control, const QString &choice)
{
    const int row = static_cast<int>(offered(control).indexOf(choice));
    if (row < 0 || !control->isEnabled())
        return false;
    if (auto *popUp = qobject_cast<QComboBox *>(control))
        return pick(popUp, popUp->itemText(row));
    if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        return pick(matrix, row);
    if (auto *box = qobject_cast<QCheckBox *>(control))
        return check(box) == choice || click(box);
    if (auto *slider = qobject_cast<QSlider *>(control))
        slideTo(slider, choice.toInt());
    return chosen(control) == choice;
}

QString DialogDriver::message() const
{
    const auto *bar = m_dialog->findChild<QWidget *>(QStringLiteral("message"));
    const auto *text = m_dialog->findChild<QLabel *>(QStringLiteral("messageText"));
    return bar->isVisible() ? text->text() : QString();
}

QMap<QString, QString> DialogDriver::summary()
{
    showLastPage();
    const auto *table = m_dialog->findChild<QTableWidget *>(QStringLiteral("summary"));
    QMap<QString, QString> lines;
    for (int row = 0; row < table->rowCount(); ++row)
        lines.insert(table->item(row, 0)->text(), table->item(row, 1)->text());
    return lines;
}

void DialogDriver::pressPrint()
{
    m_dialog->findChild<QPushButton *>(QStringLiteral("print"))->click();
}

bool DialogDriver::somethingWasWritten() const
{
    return !QDir(m_folder.path()).isEmpty();
}

QString DialogDriver::waitForReport()
{
    const bool closed = QTest::qWaitFor([this] { return !m_dialog->isVisible(); }, kPatience);
    return closed ? m_dialog->report() : QString();
}

QByteArray DialogDriver::print()
{
    pressPrint();
    if (!QTest::qWaitFor([this] { return !m_dialog->printedTo().isEmpty(); }, kPatience))
        return {};
    QFile file(m_dialog->printedTo());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace corvana::test
