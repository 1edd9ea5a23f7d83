#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "dialog/window/ElidedToolButton.h"
#include "platform/toolkit/PlainText.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// A tool button that gives way.
class ElidedToolButtonTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ElidedToolButton> m_button;

    /// As it is painted with so much room, of its own size.
    QImage shown(int percent)
    {
        const QSize whole = m_button->sizeHint();
        m_button->resize(whole.width() * percent / 100, whole.height());
        return m_button->grab().toImage();
    }
    QString toolTip()
    {
        QHelpEvent help(QEvent::ToolTip, m_button->rect().center(),
                        m_button->mapToGlobal(m_button->rect().center()));
        QApplication::sendEvent(m_button.get(), &help);
        return QToolTip::text();
    }

private Q_SLOTS:
    void init()
    {
        m_button = std::make_unique<ElidedToolButton>();
        m_button->setText(u"Something that is rather long"_s);
    }
    void cleanup()
    {
        QToolTip::hideText();
        m_button.reset();
    }

    void itCanBecomeMuchNarrowerThanItsText()
    {
        QVERIFY(m_button->minimumSizeHint().width() < m_button->sizeHint().width() / 3);
        QCOMPARE(m_button->minimumSizeHint().height(), m_button->sizeHint().height());
        m_button->setText(u"i"_s);
        QVERIFY(m_button->minimumSizeHint().width() <= m_button->sizeHint().width());
    }

    void aTextThatHasNoRoomIsCutBehindItsBeginning()
    {
        const QImage cut = shown(60);
        const QString text = m_button->text();
        qsizetype kept = -1;
        QToolButton plain;
        plain.resize(m_button->size());
        for (qsizetype length = 0; length < text.size(); ++length) {
            plain.setText(text.left(length).trimmed() + u'…');
            if (plain.grab().toImage() == cut)
                kept = length;
        }
        QVERIFY(kept > text.size() / 3);
        QVERIFY(kept < text.size() * 2 / 3);
    }

    void aTextThatHasRoomIsWhole()
    {
        QToolButton plain;
        plain.setText(m_button->text());
        plain.resize(plain.sizeHint());
        QCOMPARE(shown(100), plain.grab().toImage());
    }

    void theWholeTextIsItsToolTipOnlyWhereItIsCut()
    {
        shown(100);
        QCOMPARE(toolTip(), QString());
        shown(50);
        QCOMPARE(toolTip(), plainToolTip(m_button->text()));
    }
};

QTEST_MAIN(ElidedToolButtonTest)
#include "elided_tool_button_test.moc"
