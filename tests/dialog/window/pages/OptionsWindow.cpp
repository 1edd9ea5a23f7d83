#include "tests/dialog/window/pages/OptionsWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "tests/support/Gestures.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

using Origin = PpdSession::Origin;

OptionsWindow::OptionsWindow() = default;

OptionsWindow::~OptionsWindow() = default;

void OptionsWindow::open(const PpdBuilder &ppd, const QList<OptionChoice> &marks)
{
    m_session = sessionFor(ppd);
    for (const OptionChoice &mark : marks)
        QVERIFY(m_session->change(mark.keyword, mark.choice, Origin::Dialog).accepted());
    m_proposed.clear();
    m_printed = 0;
    m_window = std::make_unique<QDialog>();
    m_window->resize(600, 400);
    m_page = new OptionsPage(*m_session);
    auto *print = new QPushButton(u"Print"_s);
    print->setDefault(true);
    auto *layout = new QVBoxLayout(m_window.get());
    layout->addWidget(m_page);
    layout->addWidget(print);
    QObject::connect(print, &QPushButton::clicked, m_page, [this] { ++m_printed; });
    QObject::connect(m_page, &OptionsPage::proposed, m_page,
                     [this](const QString &keyword, const QString &choice) {
                         m_proposed += keyword + u'=' + choice;
                         m_session->change(keyword, choice, Origin::Dialog);
                     });
    m_list = m_page->findChild<QTreeView *>(u"options"_s);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_list->setFocus();
}

void OptionsWindow::close()
{
    m_window.reset();
    m_session.reset();
}

QModelIndex OptionsWindow::option(const QString &keyword) const
{
    const QAbstractItemModel *model = m_list->model();
    const QModelIndexList found = model->match(model->index(0, 0), OptionsModel::KeywordRole,
                                               keyword, 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex()
                           : found.constFirst().siblingAtColumn(OptionsModel::Choice);
}

QString OptionsWindow::current() const
{
    return m_list->currentIndex().data(OptionsModel::KeywordRole).toString();
}

void OptionsWindow::go(const QString &keyword)
{
    m_list->setFocus();
    m_list->setCurrentIndex(option(keyword));
}

void OptionsWindow::clickOn(const QModelIndex &index)
{
    m_list->scrollTo(index);
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, m_list->visualRect(index).center());
}

ChoiceEditor *OptionsWindow::editor() const
{
    const auto editors = m_list->viewport()->findChildren<ChoiceEditor *>();
    for (ChoiceEditor *editor : editors) {
        if (editor->isVisible())
            return editor;
    }
    return nullptr;
}

QComboBox *OptionsWindow::choices() const
{
    return editor() ? editor()->findChild<QComboBox *>() : nullptr;
}

QLineEdit *OptionsWindow::field() const
{
    auto *field = editor() ? editor()->findChild<QLineEdit *>(u"customValue"_s) : nullptr;
    return field && field->isVisible() ? field : nullptr;
}

QWidget *OptionsWindow::openList()
{
    return QApplication::activePopupWidget();
}

QLineEdit *OptionsWindow::search() const
{
    return m_page->findChild<QLineEdit *>(u"search"_s);
}

QString OptionsWindow::hint() const
{
    const auto *hint = m_page->findChild<QLabel *>(u"hint"_s);
    return hint->isVisible() ? hint->text() : QString();
}

void OptionsWindow::key(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

void OptionsWindow::type(const QString &text)
{
    for (const QChar c : text) { // QTest types ASCII only
        QKeyEvent press(QEvent::KeyPress, c.toUpper().unicode(), {}, QString(c));
        QApplication::sendEvent(QApplication::focusWidget(), &press);
    }
}

void OptionsWindow::openField(const QString &keyword)
{
    go(keyword);
    key(Qt::Key_Return);
    QVERIFY(choices());
    if (openList())
        choices()->hidePopup();
    QVERIFY(pick(choices(), choices()->itemText(choices()->findData(u"Custom"_s))));
    QVERIFY(field());
    QVERIFY(field()->hasFocus());
}

} // namespace corvana::test
