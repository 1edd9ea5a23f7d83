#include "tests/e2e/QueueDriver.h"

#include <algorithm>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include "dialog/window/CredentialsDialog.h"
#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterComboBox.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "tests/support/TestPaths.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

PrintRequest requestOf(const QueueDriver::Start &start)
{
    CommandLine line;
    line.documents = start.documents;
    line.server = start.server;
    line.printer = start.printer;
    line.options = start.options;
    line.copies = start.copies;
    line.bundleRoots = {corvana::test::bundleRoot()};
    return requestFor(line);
}

} // namespace

LoginAnswerer::LoginAnswerer()
{
    qApp->installEventFilter(this);
}

bool LoginAnswerer::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = qobject_cast<CredentialsDialog *>(watched);
    if (dialog && event->type() == QEvent::Show) {
        ++asked;
        // When it stands there whole.
        QMetaObject::invokeMethod(
            dialog,
            [this, dialog] {
                warned = dialog->findChild<QLabel *>(u"notEncrypted"_s) != nullptr;
                auto *buttons = dialog->findChild<QDialogButtonBox *>();
                if (!answer)
                    return buttons->button(QDialogButtonBox::Cancel)->click();
                dialog->findChild<QLineEdit *>(u"user"_s)->setText(answer->user);
                dialog->findChild<QLineEdit *>(u"password"_s)->setText(answer->password);
                buttons->button(QDialogButtonBox::Ok)->click();
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

QueueDriver::QueueDriver(const Start &start)
{
    m_heart.start();
    open(requestOf(start));
    m_heart.stop();
}

QueueDriver::~QueueDriver()
{
    destroyDialog();
}

bool QueueDriver::waitUntil(const std::function<bool()> &isSo, int milliseconds)
{
    m_heart.start();
    const bool is = QTest::qWaitFor(isSo, milliseconds);
    m_heart.stop();
    return is;
}

bool QueueDriver::canPrint()
{
    const auto *print = child<QPushButton>(u"print"_s);
    // Before the first paint, the button can be pressed while nothing has been taken yet.
    return print->isEnabled() && child<QSpinBox>(u"copies"_s) &&
           dialog().task().phase() == PrintTask::Phase::Ready;
}

bool QueueDriver::isPrinting() const
{
    return dialog().isVisible() && child<QWidget>(u"progress"_s)->isVisible();
}

bool QueueDriver::waitForTheEnd()
{
    return waitUntil([this] { return !isPrinting(); }, 60000);
}

bool QueueDriver::press(const QString &button)
{
    m_heart.start();
    const bool pressed = WindowDriver::press(button);
    QCoreApplication::processEvents();
    m_heart.stop();
    return pressed;
}

QString QueueDriver::status() const
{
    return child<PrinterStatusLine>(u"printerStatus"_s)->text();
}

QString QueueDriver::waiting() const
{
    const auto *page = child<QWidget>(u"waiting"_s);
    const auto *label = page ? page->findChild<QLabel *>() : nullptr;
    return label ? label->text() : QString();
}

QString QueueDriver::progress() const
{
    return child<QLabel>(u"progressText"_s)->text();
}

QString QueueDriver::footer()
{
    auto *box = child<PrinterComboBox>(u"printers"_s);
    box->showPopup();
    const auto *line = child<ElidedLabel>(u"printerFooter"_s);
    const QString text = line && line->isVisible() ? line->text() : QString();
    box->hidePopup();
    return text;
}

QStringList QueueDriver::printers() const
{
    const PrinterModel *model = child<PrinterComboBox>(u"printers"_s)->printers();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row)
        names += model->data(model->index(row), Qt::DisplayRole).toString();
    return names;
}

QString QueueDriver::printer() const
{
    const std::optional<Printer> current = child<PrinterComboBox>(u"printers"_s)->currentPrinter();
    return current ? current->name : QString();
}

bool QueueDriver::isPrinterGone() const
{
    return child<PrinterComboBox>(u"printers"_s)->isCurrentPrinterGone();
}

void QueueDriver::changeSettings(bool twoSided)
{
    m_heart.start();
    child<QSpinBox>(u"copies"_s)->setValue(3);
    auto *ranges = child<QLineEdit>(u"pageRanges"_s);
    ranges->setText(u"1-2"_s);
    auto *sides = child<QComboBox>(u"Duplex"_s);
    if (sides && twoSided) {
        sides->setCurrentIndex(sides->count() - 1);
        Q_EMIT sides->activated(sides->currentIndex());
    }
    QCoreApplication::processEvents();
    m_heart.stop();
}

QStringList QueueDriver::settings()
{
    const int current = pages()->currentIndex();
    QStringList lines{u"printer "_s + printer(), u"file "_s + child<QLineEdit>(u"output"_s)->text(),
                      u"copies "_s + child<QSpinBox>(u"copies"_s)->text(),
                      u"pages "_s + child<QLineEdit>(u"pageRanges"_s)->text()};
    // What comes out is counted in the background.
    const auto isCounted = [this] {
        const auto summary = summaryLines();
        return std::none_of(summary.cbegin(), summary.cend(),
                            [](const auto &line) { return line.second == u"…"_s; });
    };
    waitUntil(isCounted);
    for (const auto &[title, value] : summaryLines())
        lines += title + u": "_s + value;
    showPage(current);
    return lines;
}

} // namespace corvana::test
