#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include "dialog/window/WindowAlertPresenter.h"
#include "dialog/window/pages/ChoiceEditor.h"
#include "platform/toolkit/PlainText.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/RichTexts.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Taken for markup, it would open a file.
const QString kMark = u"<img src=/x>"_s;

// The texts of a PPD write these characters as hexadecimal digits.
const QByteArray kMarkInPpd = "<3C>img src=/x<3E>";

// A sample printer all of whose texts begin with the mark: groups, options, choices, its names.
QByteArray markedPpd(bool withPanels)
{
    QFile file(sourceFile(u"resources/ppd/corvana-cl5.ppd"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression text(
        u"^(\\*(?:OpenGroup: [^/\\n]+|OpenUI [^/\\n]+|[A-Za-z]+ [^/\\n]+)/)([^:\\n]*)"_s,
        QRegularExpression::MultilineOption);
    static const QRegularExpression names(u"^(\\*(?:NickName|ShortNickName|ModelName): \")"_s,
                                          QRegularExpression::MultilineOption);
    QString ppd = QString::fromUtf8(file.readAll());
    // Translations would take the place of the texts.
    ppd.remove(
        QRegularExpression(u"^\\*cupsLanguages.*\\n"_s, QRegularExpression::MultilineOption));
    ppd.remove(
        QRegularExpression(u"^\\*(ja|zh_CN)\\..*\\n"_s, QRegularExpression::MultilineOption));
    ppd.replace(text, u"\\1"_s + QString::fromLatin1(kMarkInPpd) + u"\\2"_s);
    ppd.replace(names, u"\\1"_s + kMark);
    if (!withPanels) {
        ppd.remove(QRegularExpression(u"^\\*QXPrintDialogExtension.*\\n"_s,
                                      QRegularExpression::MultilineOption));
        ppd.replace(u"QXMonoColor"_s, u"MonoColor"_s); // nor are its options those of a panel
    }
    return ppd.toUtf8();
}

} // namespace

/// Texts of PPDs, servers, documents and files are shown as they are, wherever the dialog shows
/// them.
class MarkupTextsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    AlertAnswerer m_alerts;
    std::unique_ptr<WindowDriver> m_window;
    QStringList m_rich;
    int m_boxes = 0;

    template <typename Control> Control *control(const QString &name) const
    {
        return m_window->child<Control>(name);
    }
    QTabWidget *pages() const { return m_window->pages(); }

    void open(bool withPanels)
    {
        Printer printer;
        printer.name = kMark;
        printer.description = kMark + u"Lobby"_s;
        printer.location = kMark;
        printer.makeAndModel = kMark;
        printer.stateMessage = kMark;
        printer.stateReasons = {kMark};
        printer.state = PrinterState::Stopped;
        printer.ppdPath = m_folder.filePath(u"marked.ppd"_s);
        QFile file(printer.ppdPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(markedPpd(withPanels));
        file.close();
        QString error;
        PrintRequest request;
        request.documents = {
            inspectDocument(sourceFile(u"resources/sample/welcome.pdf"_s), &error)};
        QCOMPARE(error, QString());
        request.title = kMark + u"title"_s;
        request.output = m_folder.filePath(u"<img src=x>.ps"_s);
        request.bundleRoots = withPanels ? QStringList{bundleRoot()} : QStringList();
        request.printers = {printer, printer};
        request.printers[1].name = u"other"_s;
        m_window = std::make_unique<WindowDriver>(request);
        QTRY_VERIFY(pages()->count() > 2);
        QCoreApplication::processEvents();
    }
    ShownTexts walk()
    {
        ShownTexts found = shownTexts(kMark);
        m_rich += found.rich;
        return found;
    }
    // Every list that can be opened on the page.
    void walkLists(QWidget *page)
    {
        for (QComboBox *list : page->findChildren<QComboBox *>()) {
            if (!list->isVisible() || !list->isEnabled())
                continue;
            list->showPopup();
            walk();
            list->hidePopup();
        }
    }

private Q_SLOTS:
    void init()
    {
        m_rich.clear();
        m_boxes = 0;
        m_alerts.answer = [this](QMessageBox &box) {
            ++m_boxes;
            walk();
            box.buttons().constLast()->click();
        };
    }
    void cleanup() { m_window.reset(); }

    void aPrinterWithPanels()
    {
        open(true);
        QCOMPARE(pages()->count(), 5); // with that of all options
        for (int page = 0; page < pages()->count(); ++page) {
            pages()->setCurrentIndex(page);
            if (auto *more = pages()->currentWidget()->findChild<QPushButton *>(u"optionButton"_s);
                more && !more->isChecked())
                more->click();
            QCoreApplication::processEvents();
            const ShownTexts found = walk();
            QVERIFY2(found.plain > 20, qPrintable(QString::number(found.plain)));
            walkLists(pages()->currentWidget());
            auto *rows = pages()->currentWidget()->findChild<QTableView *>(u"advancedTableView"_s);
            for (int row = 0; rows && row < rows->model()->rowCount(); ++row) {
                rows->selectRow(row);
                QVERIFY(walk().toolTips > 0);
            }
        }
        QVERIFY2(m_rich.isEmpty(), qPrintable(m_rich.join(u'\n')));
    }

    void aPrinterWithoutPanels()
    {
        open(false);
        QCOMPARE(pages()->count(), 3);
        walkLists(pages()->currentWidget());
        pages()->setCurrentIndex(1);
        auto *options = control<QTreeView>(u"options"_s);
        QVERIFY(options);
        QVERIFY(walk().toolTips > 20);
        const QAbstractItemModel *rows = options->model();
        for (int group = 0; group < rows->rowCount(); ++group) {
            const QModelIndex heading = rows->index(group, 0);
            QVERIFY(heading.data().toString().startsWith(kMark));
            for (int row = 0; row < rows->rowCount(heading); row += 5) {
                options->setCurrentIndex(rows->index(row, 1, heading));
                QTest::keyClick(options, Qt::Key_F2);
                walk();
                if (auto *editor = options->findChild<ChoiceEditor *>())
                    walkLists(editor);
                QTest::keyClick(options->findChild<QComboBox *>() ? options->focusWidget()
                                                                  : options,
                                Qt::Key_Escape);
            }
        }
        pages()->setCurrentIndex(2);
        QVERIFY(walk().plain > 20);
        QVERIFY2(m_rich.isEmpty(), qPrintable(m_rich.join(u'\n')));
    }

    void theListOfPrinters()
    {
        open(false);
        auto *printers = control<QComboBox>(u"printers"_s);
        walk();
        printers->showPopup();
        QVERIFY(walk().toolTips > 0);
        printers->hidePopup();
        QVERIFY2(m_rich.isEmpty(), qPrintable(m_rich.join(u'\n')));
    }

    // What cannot be combined is said in the message bar, with the names of all options concerned.
    void aRefusal()
    {
        open(true);
        auto *duplex = control<QComboBox>(u"Duplex"_s);
        pages()->setCurrentIndex(1);
        auto *media = control<QComboBox>(u"mediaTypePopup"_s);
        QVERIFY(DialogDriver::choose(media, u"Glossy"_s));
        pages()->setCurrentIndex(0);
        DialogDriver::choose(duplex, u"DuplexNoTumble"_s);
        auto *text = control<QLabel>(u"messageText"_s);
        QVERIFY(text->isVisible());
        QVERIFY2(text->text().contains(kMark), qPrintable(text->text()));
        walk();
        QVERIFY2(m_rich.isEmpty(), qPrintable(m_rich.join(u'\n')));
    }

    void anAlertOfAPanel()
    {
        Alert alert;
        alert.messageText = kMark;
        alert.informativeText = kMark;
        alert.buttons = {kMark, kMark + u"2"_s};
        m_alerts.answer = [this](QMessageBox &box) {
            ++m_boxes;
            QVERIFY(walk().plain >= 4);
            box.buttons().constFirst()->click();
        };
        WindowAlertPresenter().runModal(alert, nullptr);
        QCOMPARE(m_boxes, 1);
        QVERIFY2(m_rich.isEmpty(), qPrintable(m_rich.join(u'\n')));
    }

    void theQuestionWhetherToReplaceAFile()
    {
        open(false);
        const QString name = m_folder.filePath(u"<img src=&#47;x>.ps"_s);
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        control<QLineEdit>(u"output"_s)->setText(name);
        m_alerts.answer = [this](QMessageBox &box) {
            ++m_boxes;
            QVERIFY(box.text().contains(u"<img src=&#47;x>"_s));
            m_rich += shownTexts(u"<img src=&#47;x>"_s, false).rich;
            box.button(QMessageBox::No)->click();
        };
        control<QPushButton>(u"print"_s)->click();
        QTRY_COMPARE(m_boxes, 1);
        QVERIFY2(m_rich.isEmpty(), qPrintable(m_rich.join(u'\n')));
        QCOMPARE(QFile(name).size(), 0);
    }

    // The walk itself: each of these is what it has to find.
    void theWalkFindsWhatIsMarkup_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addRow("a label") << 0;
        QTest::addRow("a tool tip") << 1;
        QTest::addRow("an item's tool tip") << 2;
        QTest::addRow("a tab's tool tip") << 3;
        QTest::addRow("what a message box adds to its text") << 4;
        QTest::addRow("a tool tip with markup around it") << 5;
        QTest::addRow("an action") << 6;
    }
    void theWalkFindsWhatIsMarkup()
    {
        QFETCH(int, kind);
        QLabel label;
        QPushButton button;
        QComboBox list;
        list.addItem(u"item"_s);
        QTabWidget tabs;
        tabs.addTab(new QWidget, u"tab"_s);
        QMessageBox box;
        QAction action(u"text"_s);
        button.addAction(&action);
        QCOMPARE(shownTexts(kMark).rich, QStringList());
        switch (kind) {
        case 0:
            label.setText(kMark);
            break;
        case 1:
            button.setToolTip(kMark);
            break;
        case 2:
            list.setItemData(0, kMark, Qt::ToolTipRole);
            break;
        case 3:
            tabs.setTabToolTip(0, kMark);
            break;
        case 4:
            box.setTextFormat(Qt::PlainText);
            box.setInformativeText(kMark);
            break;
        case 5:
            button.setToolTip(u"<qt>%1</qt>"_s.arg(kMark));
            break;
        case 6:
            action.setToolTip(kMark);
            break;
        default:
            break;
        }
        QCOMPARE(shownTexts(kMark).rich.size(), 1);
    }

    void theWalkAcceptsWhatIsPlain()
    {
        const std::unique_ptr<QLabel> label(plainLabel(kMark));
        QPushButton button(kMark);
        button.setToolTip(plainToolTip(kMark));
        QMessageBox box(QMessageBox::Information, kMark, kMark);
        box.setInformativeText(kMark);
        makePlain(&box);
        const ShownTexts found = shownTexts(kMark);
        QCOMPARE(found.rich, QStringList());
        QCOMPARE(found.toolTips, 1);
        QVERIFY(found.plain >= 4);
    }
};

QTEST_MAIN(MarkupTextsTest)

#include "markup_texts_test.moc"
