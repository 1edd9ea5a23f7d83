#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "dialog/window/find/FoundMark.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

// A desktop whose user wants no animations, or does.
class Animations : public QProxyStyle
{
public:
    explicit Animations(bool wanted) : m_wanted(wanted) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        if (hint == SH_Widget_Animation_Duration)
            return m_wanted ? 200 : 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    bool m_wanted;
};

} // namespace

/// The frame around a control that was searched for.
class FoundMarkTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    QPushButton *m_button = nullptr; // fills the widget that holds it
    QPushButton *m_other = nullptr;

    QPointer<QWidget> mark() const { return m_window->findChild<QWidget *>(u"foundMark"_s); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        auto *holder = new QWidget;
        auto *inside = new QVBoxLayout(holder);
        inside->setContentsMargins(0, 0, 0, 0);
        m_button = new QPushButton(u"Found"_s);
        inside->addWidget(m_button);
        layout->addWidget(holder);
        m_other = new QPushButton(u"Other"_s);
        layout->addWidget(m_other);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup() { m_window.reset(); }

    void itStandsAroundAControlThatFillsItsHolder()
    {
        FoundMark::show(m_button);
        QVERIFY(mark() && mark()->isVisible());
        const QRect marked(mark()->mapTo(m_window.get(), QPoint(0, 0)), mark()->size());
        const QRect button(m_button->mapTo(m_window.get(), QPoint(0, 0)), m_button->size());
        QVERIFY(marked.adjusted(1, 1, -1, -1).contains(button));
        QVERIFY(mark()->parentWidget()->rect().contains(mark()->geometry()));
    }

    void itMovesWithTheControl()
    {
        FoundMark::show(m_other);
        const QPoint before = mark()->pos() - m_other->pos();
        m_window->resize(m_window->width() + 100, m_window->height() + 100);
        QTRY_COMPARE(mark()->pos() - m_other->pos(), before);
        QVERIFY(mark()->width() > m_other->width());
    }

    void thereIsOneAtATime()
    {
        FoundMark::show(m_button);
        FoundMark::show(m_other);
        QCOMPARE(m_window->findChildren<QWidget *>(u"foundMark"_s).size(), 1);
    }

    void itGoesWithTheControl()
    {
        FoundMark::show(m_button);
        m_button->hide();
        QTRY_VERIFY(!mark());
        m_button->show();
        FoundMark::show(m_button);
        delete m_button;
        QTRY_VERIFY(!mark());
    }

    void itTakesNoClick()
    {
        int clicks = 0;
        connect(m_button, &QPushButton::clicked, this, [&] { ++clicks; });
        FoundMark::show(m_button);
        const QPoint middle = m_button->mapTo(m_window.get(), m_button->rect().center());
        QCOMPARE(m_window->childAt(middle), m_button);
        QTest::mouseClick(m_button, Qt::LeftButton);
        QCOMPARE(clicks, 1);
    }

    void itGoesAfterAWhile_data()
    {
        QTest::addColumn<bool>("animations");
        QTest::newRow("faded") << true;
        QTest::newRow("at once where nobody wants animations") << false;
    }
    void itGoesAfterAWhile()
    {
        QFETCH(bool, animations);
        Animations style(animations);
        m_window->setStyle(&style);
        FoundMark::show(m_button);
        mark()->setStyle(&style);
        bool faded = false;
        QTRY_VERIFY_WITH_TIMEOUT(
            (faded = faded || (mark() && mark()->property("opacity").toDouble() < 1.0), !mark()),
            10000);
        QCOMPARE(faded, animations);
        m_window->setStyle(nullptr);
    }
};

QTEST_MAIN(FoundMarkTest)

#include "found_mark_test.moc"
