#pragma once

#include <memory>

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QVBoxLayout>

#include "dialog/window/chooser/PrinterComboBox.h"
#include "platform/toolkit/ControlActions.h"
#include "tests/dialog/window/chooser/ChooserPrinters.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// A window with a list of printers that can be opened, and counts what its user does with it.
class PopupScene
{
protected:
    void begin()
    {
        m_window = std::make_unique<QWidget>();
        m_combo = new PrinterComboBox;
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_combo);
        layout->addStretch();
        m_window->resize(400, 100);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_acts = 0;
        connectControlAction(m_combo, [this](QWidget *) { ++m_acts; });
    }
    void end()
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        m_window.reset();
    }

    template <typename Child> Child *child(const QString &name) const
    {
        return m_combo->findChild<Child *>(name);
    }
    QWidget *popup() const { return child<QWidget>(u"printerPopup"_s); }
    QLineEdit *field() const { return child<QLineEdit>(u"printerSearch"_s); }
    QListView *list() const { return child<QListView>(u"printerList"_s); }
    QLabel *count() const { return child<QLabel>(u"printerCount"_s); }

    void open(const QList<Printer> &printers, const QString &chosen = u"q0"_s)
    {
        m_combo->setPrinters(printers);
        m_combo->setCurrentPrinter(idOf(queue(chosen)));
        m_combo->showPopup();
        QVERIFY(popup()->isVisible());
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(field(), Qt::Key(key), modifiers);
    }
    QString highlighted() const { return list()->currentIndex().data().toString(); }
    QRect rectOf(const QString &text) const
    {
        const QAbstractItemModel *model = list()->model();
        const QModelIndexList found =
            model->match(model->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        return found.isEmpty() ? QRect() : list()->visualRect(found.constFirst());
    }

    std::unique_ptr<QWidget> m_window;
    PrinterComboBox *m_combo = nullptr;
    int m_acts = 0;
};

} // namespace corvana::test
