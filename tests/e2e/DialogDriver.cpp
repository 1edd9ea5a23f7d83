#include "tests/e2e/DialogDriver.h"

#include <stdexcept>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableView>
#include <QTest>

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/Gestures.h"
#include "tests/support/TestPaths.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

CommandLine smallDocument(const QStringList &options)
{
    CommandLine line = sampleDocument();
    // Two pages with hardly anything on them: what is looked at are the codes around them, and the
    // filters need a third of the time.
    line.documents = {sourceFile(u"tests/data/pages.pdf"_s)};
    line.options = options;
    return line;
}

QString check(const QCheckBox *box)
{
    return box->isChecked() ? u"ON"_s : u"OFF"_s;
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
    const auto *picture = box.findChild<QWidget *>(u"accessoryView"_s);
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
    CommandLine line = smallDocument(options);
    line.ppd = corvana::test::sourceFile(u"resources/ppd/%1.ppd"_s).arg(printer);
    line.output = m_folder.filePath(u"job.ps"_s);
    openAndDisclose(line);
}

DialogDriver::DialogDriver(const QueueAt &queue, const QStringList &options)
{
    CommandLine line = smallDocument(options);
    line.server = queue.server;
    line.printer = queue.name;
    if (!queue.document.isEmpty())
        line.documents = {queue.document};
    openAndDisclose(line);
}

void DialogDriver::openAndDisclose(const CommandLine &line)
{
    open(requestFor(line));
    m_panel = waitForPanel(1);
    if (m_panel.isNull())
        throw std::runtime_error("the panel does not come up");
    showPage(1);
    auto *disclosure = control<QPushButton>(u"optionButton"_s);
    if (disclosure && !disclosure->isChecked())
        disclosure->click();
}

DialogDriver::~DialogDriver()
{
    destroyDialog();
}

bool DialogDriver::reach(QWidget *control)
{
    if (!control)
        return false;
    if (control->isVisible())
        return true;
    auto *rows = m_panel->findChild<QTableView *>(u"advancedTableView"_s);
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
        choices = {u"OFF"_s, u"ON"_s};
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

QMap<QString, QString> DialogDriver::summary()
{
    QMap<QString, QString> lines;
    for (const auto &[title, value] : summaryLines())
        lines.insert(title, value);
    return lines;
}

bool DialogDriver::somethingWasWritten() const
{
    return !QDir(m_folder.path()).isEmpty();
}

QString DialogDriver::waitForReport()
{
    const bool closed = QTest::qWaitFor([this] { return !dialog().isVisible(); }, kWindowPatience);
    return closed ? dialog().report() : QString();
}

QByteArray DialogDriver::print()
{
    pressPrint();
    if (!QTest::qWaitFor([this] { return !dialog().printedTo().isEmpty(); }, kWindowPatience))
        return {};
    QFile file(dialog().printedTo());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace corvana::test
