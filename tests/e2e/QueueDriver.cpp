#include "tests/e2e/QueueDriver.h"
#include "dialog/app/RequestFromCommandLine.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "dialog/window/CredentialsDialog.h"
#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterComboBox.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

namespace {

constexpr int kBeat = 10; // milliseconds

PrintRequest requestOf(const QueueDriver::Start &start)
{
    CommandLine line;
    line.documents = start.documents;
    line.server = start.server;
    line.printer = start.printer;
    line.options = start.options;
    line.copies = start.copies;
    line.bundleRoots = {corvana::test::bundleRoot()};
    QString error;
    PrintRequest prepared = preparePrintRequest(line, &error).value_or(PrintRequest());
    if (!error.isEmpty())
        throw std::runtime_error(error.toStdString());
    return prepared;
}

} // namespace

Heartbeat::Heartbeat()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kBeat);
    connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
}

void Heartbeat::start()
{
    if (m_timer.isActive())
        return;
    m_last.start();
    m_timer.start();
}

void Heartbeat::stop()
{
    if (!m_timer.isActive())
        return;
    beat();
    m_timer.stop();
}

qint64 Heartbeat::takeLargestGap()
{
    return std::exchange(m_largest, 0);
}

void Heartbeat::beat()
{
    m_largest = std::max(m_largest, m_last.restart());
}

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
                warned = dialog->findChild<QLabel *>(QStringLiteral("notEncrypted")) != nullptr;
                auto *buttons = dialog->findChild<QDialogButtonBox *>();
                if (!answer)
                    return buttons->button(QDialogButtonBox::Cancel)->click();
                dialog->findChild<QLineEdit *>(QStringLiteral("user"))->setText(answer->user);
                dialog->findChild<QLineEdit *>(QStringLiteral("password"))
                    ->setText(answer->password);
                buttons->button(QDialogButtonBox::Ok)->click();
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

QueueDriver::QueueDriver(const Start &start)
{
    m_heart.start();
    m_dialog = std::make_unique<PrintWindow>(requestOf(start));
    m_dialog->show();
    if (!QTest::qWaitForWindowExposed(m_dialog.get()))
        throw std::runtime_error("the window does not come up");
    m_heart.stop();
}

QueueDriver::~QueueDriver() = default;

bool QueueDriver::waitUntil(const std::function<bool()> &isSo, int milliseconds)
{
    m_heart.start();
    const bool is = QTest::qWaitFor(isSo, milliseconds);
    m_heart.stop();
    return is;
}

bool QueueDriver::canPrint() const
{
    const auto *print = child<QPushButton>("print");
    return print->isEnabled() && child<QSpinBox>("copies");
}

bool QueueDriver::isPrinting() const
{
    return m_dialog->isVisible() && child<QWidget>("progress")->isVisible();
}

bool QueueDriver::waitForTheEnd()
{
    return waitUntil([this] { return !isPrinting(); }, 60000);
}

bool QueueDriver::press(const char *button)
{
    auto *found = child<QPushButton>(button);
    if (!found || !found->isVisible() || !found->isEnabled())
        return false;
    m_heart.start();
    found->click();
    QCoreApplication::processEvents();
    m_heart.stop();
    return true;
}

QString QueueDriver::labelText(const char *parent, const char *name) const
{
    const auto *holder = child<QWidget>(parent);
    const auto *label = holder ? holder->findChild<QLabel *>(QString::fromLatin1(name)) : nullptr;
    return label && label->isVisible() ? label->text() : QString();
}

QString QueueDriver::message() const
{
    return labelText("message", "messageText");
}

QString QueueDriver::status() const
{
    return child<PrinterStatusLine>("printerStatus")->text();
}

QString QueueDriver::waiting() const
{
    const auto *page = child<QWidget>("waiting");
    const auto *label = page ? page->findChild<QLabel *>() : nullptr;
    return label ? label->text() : QString();
}

QString QueueDriver::progress() const
{
    return child<QLabel>("progressText")->text();
}

QString QueueDriver::footer()
{
    auto *box = child<PrinterComboBox>("printers");
    box->showPopup();
    const auto *line = child<ElidedLabel>("printerFooter");
    const QString text = line && line->isVisible() ? line->text() : QString();
    box->hidePopup();
    return text;
}

QStringList QueueDriver::printers() const
{
    const PrinterModel *model = child<PrinterComboBox>("printers")->printers();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row)
        names += model->data(model->index(row), Qt::DisplayRole).toString();
    return names;
}

QString QueueDriver::printer() const
{
    const std::optional<Printer> current = child<PrinterComboBox>("printers")->currentPrinter();
    return current ? current->name : QString();
}

bool QueueDriver::isPrinterGone() const
{
    return child<PrinterComboBox>("printers")->isCurrentPrinterGone();
}

void QueueDriver::changeSettings(bool twoSided)
{
    m_heart.start();
    child<QSpinBox>("copies")->setValue(3);
    auto *ranges = child<QLineEdit>("pageRanges");
    ranges->setText(QStringLiteral("1-2"));
    auto *sides = child<QComboBox>("Duplex");
    if (sides && twoSided) {
        sides->setCurrentIndex(sides->count() - 1);
        Q_EMIT sides->activated(sides->currentIndex());
    }
    QCoreApplication::processEvents();
    m_heart.stop();
}

QStringList QueueDriver::settings()
{
    auto *pages = child<QTabWidget>("pages");
    const int current = pages->currentIndex();
    pages->setCurrentIndex(pages->count() - 1);
    QStringList lines{QStringLiteral("printer ") + printer(),
                      QStringLiteral("file ") + child<QLineEdit>("output")->text(),
                      QStringLiteral("copies ") + child<QSpinBox>("copies")->text(),
                      QStringLiteral("pages ") + child<QLineEdit>("pageRanges")->text()};
    const auto *table = child<QTableWidget>("summary");
    for (int row = 0; row < table->rowCount(); ++row)
        lines += table->item(row, 0)->text() + QStringLiteral(": ") + table->item(row, 1)->text();
    pages->setCurrentIndex(current);
    return lines;
}

} // namespace corvana::test
