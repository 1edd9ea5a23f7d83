#include <QFontMetrics>
#include <QLabel>
#include <QTest>
#include <QToolButton>

#include "dialog/window/pages/MessageBar.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class MessageBarTest : public QObject
{
    Q_OBJECT

private:
    MessageBar m_bar;
    QToolButton *details() { return m_bar.findChild<QToolButton *>(u"messageDetails"_s); }
    QString shown() { return m_bar.findChild<QLabel *>(u"messageText"_s)->text(); }

private Q_SLOTS:
    void init()
    {
        m_bar.resize(600, 100);
        m_bar.showMessage(MessageBar::Kind::Problem, u"The file is damaged."_s);
    }

    void aShortMessageHasNoDetails() { QVERIFY(details()->isHidden()); }

    void twoLinesInAScriptOfAnotherFontAreWhole()
    {
        // As the window's font often is: without the letters of the user's script.
        QFont font(u"DejaVu Sans"_s);
        font.setPixelSize(13);
        m_bar.setFont(font);
        const QString word = u"설정 "_s;
        QString text = word;
        auto *label = m_bar.findChild<QLabel *>(u"messageText"_s);
        const int line = label->fontMetrics().size(Qt::TextSingleLine, word).height();
        if (line <= label->fontMetrics().lineSpacing())
            QSKIP("no font with higher lines is installed");
        m_bar.show();
        while (label->heightForWidth(label->width()) < 2 * line) {
            text += word;
            m_bar.showMessage(MessageBar::Kind::Problem, text);
        }
        QVERIFY(details()->isHidden());
        QTRY_VERIFY(label->parentWidget()->height() >= 2 * line);
        m_bar.hide();
    }

    void detailsAreReadByWhoAsksForThem()
    {
        m_bar.addDetails(u"xref not found"_s);
        QVERIFY(!details()->isHidden());
        QCOMPARE(shown(), u"The file is damaged."_s);
        details()->click();
        QCOMPARE(shown(), u"The file is damaged.\nxref not found"_s);
        QCOMPARE(m_bar.text(), u"The file is damaged."_s);
        details()->click();
        QCOMPARE(shown(), u"The file is damaged."_s);
    }

    void theNextMessageHasItsOwnDetails()
    {
        m_bar.addDetails(u"xref not found"_s);
        details()->click();
        m_bar.showMessage(MessageBar::Kind::Problem, u"Another one."_s);
        QCOMPARE(shown(), u"Another one."_s);
        QVERIFY(details()->isHidden());
    }
};

QTEST_MAIN(MessageBarTest)
#include "message_bar_test.moc"
