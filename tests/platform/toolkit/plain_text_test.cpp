#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Texts that look like markup are shown as they are.
class PlainTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLabelShowsWhatItIsGivenLaterAsWell()
    {
        const std::unique_ptr<QLabel> label(plainLabel(u"<b>one</b>"_s));
        QCOMPARE(label->text(), u"<b>one</b>"_s);
        const int narrow = label->sizeHint().width();
        label->setText(u"<b>one</b><br>"_s);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(label->sizeHint().width() > narrow); // each character takes room
    }

    void aLabelThatLeadsToAControlIsPlainToo()
    {
        QLabel label;
        label.setBuddy(&label);
        setLiteralText(&label, u"<i>a</i> & b"_s);
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QCOMPARE(label.text(), u"<i>a</i> && b"_s);
    }

    void allLabelsOfAViewButThoseThatWereToldToShowMarkup()
    {
        QLabel view;
        auto *inside = new QLabel(&view);
        auto *markup = new QLabel(&view);
        markup->setTextFormat(Qt::RichText);
        makeLabelsPlain(&view);
        QCOMPARE(view.textFormat(), Qt::PlainText);
        QCOMPARE(inside->textFormat(), Qt::PlainText);
        QCOMPARE(markup->textFormat(), Qt::RichText);
    }

    void allTextsOfAMessageBox()
    {
        QMessageBox box(QMessageBox::Warning, u"title"_s, u"<b>text</b>"_s);
        box.setInformativeText(u"<img src=x>"_s);
        makePlain(&box);
        int texts = 0;
        const auto labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().isEmpty())
                continue;
            ++texts;
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
        QCOMPARE(texts, 2);
    }

    void aToolTip_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tip");
        QTest::newRow("markup") << u"<b>&"_s << u"<qt>&lt;b&gt;&amp;</qt>"_s;
        QTest::newRow("lines") << u"one\ntwo"_s << u"<qt>one<br>two</qt>"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void aToolTip()
    {
        QFETCH(QString, text);
        QFETCH(QString, tip);
        QCOMPARE(plainToolTip(text), tip);
    }

    // Panels give these labels their texts, which come from a PPD.
    void theLabelsOfAnInterfaceFile()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"view.ui"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"(<ui version="4.0"><class>View</class><widget class="QWidget" name="View">
<layout class="QVBoxLayout"><item><widget class="QLabel" name="named"/></item>
<item><widget class="QLabel" name="bound">
<property name="bindValue" stdset="0"><string>key</string></property></widget></item>
</layout></widget></ui>)");
        file.close();
        QPointer<BindingDictionary> dictionary;
        InterfaceConnections connections;
        connections.bindingDictionary(dictionary);
        const LoadedInterface loaded = loadInterface(file.fileName(), connections);
        QCOMPARE(loaded.problems, QStringList());
        dictionary->setValue(u"key"_s, u"<img src=x>"_s);
        auto *bound = loaded.view->findChild<QLabel *>(u"bound"_s);
        QCOMPARE(bound->text(), u"<img src=x>"_s);
        QCOMPARE(bound->textFormat(), Qt::PlainText);
        QCOMPARE(loaded.view->findChild<QLabel *>(u"named"_s)->textFormat(), Qt::PlainText);
    }
};

QTEST_MAIN(PlainTextTest)

#include "plain_text_test.moc"
