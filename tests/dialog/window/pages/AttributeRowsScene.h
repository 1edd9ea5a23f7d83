#pragma once

#include <memory>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "dialog/session/PpdSession.h"
#include "dialog/window/pages/GeneralPage.h"
#include "tests/dialog/support/TestPrinters.h"

namespace corvana::test {

inline OfferedAttribute front(const QString &name, const QString &value = {})
{
    return {name, value, OfferedAttribute::Place::Front};
}

inline OfferedAttribute more(const QString &name, const QString &value = {})
{
    return {name, value, OfferedAttribute::Place::More, true, value.isNull()};
}

inline OfferedAttribute collate(const QString &value, bool hasEffect)
{
    return {QStringLiteral("collate"), value, OfferedAttribute::Place::BesideCopies, hasEffect};
}

/// The rows of the job's attributes on a General page, and what they propose. The base of tests.
class AttributeRowsScene : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<QWidget> m_window;
    GeneralPage *m_page = nullptr;
    std::unique_ptr<QSignalSpy> m_proposed;

    void open(const QList<OfferedAttribute> &offered)
    {
        m_session = sessionFor(smallPrinter());
        m_window = std::make_unique<QWidget>();
        m_page = new GeneralPage(*m_session);
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_page);
        layout->addWidget(new QPushButton(QStringLiteral("&Print")));
        m_window->resize(500, 500);
        m_page->setAttributes(offered);
        m_proposed = std::make_unique<QSignalSpy>(m_page, &GeneralPage::attributeProposed);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    template <typename Control = QWidget> Control *control(const QString &name)
    {
        return m_page->findChild<Control *>(name);
    }
    QString shown(const QString &name)
    {
        if (auto *other = control<QLineEdit>(name + QStringLiteral("Other"));
            other && other->isVisible())
            return other->text();
        if (auto *words = control<QComboBox>(name))
            return words->currentText();
        if (auto *number = control<QDoubleSpinBox>(name))
            return number->text();
        auto *text = control<QLineEdit>(name);
        return text ? text->text() : QString();
    }
    QString note(const QString &name)
    {
        auto *note = control<QLabel>(name + QStringLiteral("Note"));
        return note && note->isVisible() ? note->text() : QString();
    }
    // What the last proposal was for, and what it was.
    QStringList proposal()
    {
        return m_proposed->isEmpty() ? QStringList()
                                     : QStringList{m_proposed->constLast().at(0).toString(),
                                                   m_proposed->constLast().at(1).toString()};
    }
    void type(const QString &name, const QString &text)
    {
        QWidget *field = control(name);
        field->setFocus(Qt::TabFocusReason);
        if (auto *line = qobject_cast<QLineEdit *>(field))
            line->selectAll();
        else if (auto *number = qobject_cast<QDoubleSpinBox *>(field))
            number->selectAll();
        QTest::keyClicks(field, text);
    }

private Q_SLOTS:
    void cleanup()
    {
        m_proposed.reset();
        m_window.reset();
        m_session.reset();
    }
};

} // namespace corvana::test
