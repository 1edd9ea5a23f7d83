#include "tests/e2e/Monkey.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "dialog/printers/PrinterSource.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/TaskHistory.h"
#include "platform/printcore/Ppd.h"
#include "tests/e2e/WindowInvariants.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

struct Stroke
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char *name;
};
// What would print, or leave the window, is not among those for the window itself.
constexpr Stroke kStrokes[] = {
    {Qt::Key_Tab, Qt::NoModifier, "Tab"},
    {Qt::Key_Backtab, Qt::ShiftModifier, "Shift+Tab"},
    {Qt::Key_Up, Qt::NoModifier, "Up"},
    {Qt::Key_Down, Qt::NoModifier, "Down"},
    {Qt::Key_Left, Qt::NoModifier, "Left"},
    {Qt::Key_Right, Qt::NoModifier, "Right"},
    {Qt::Key_Home, Qt::NoModifier, "Home"},
    {Qt::Key_End, Qt::NoModifier, "End"},
    {Qt::Key_PageUp, Qt::NoModifier, "PageUp"},
    {Qt::Key_PageDown, Qt::NoModifier, "PageDown"},
    {Qt::Key_Space, Qt::NoModifier, "Space"},
    {Qt::Key_Delete, Qt::NoModifier, "Delete"},
    {Qt::Key_Backspace, Qt::NoModifier, "Backspace"},
    {Qt::Key_5, Qt::NoModifier, "5"},
    {Qt::Key_0, Qt::NoModifier, "0"},
    {Qt::Key_Minus, Qt::NoModifier, "-"},
    {Qt::Key_E, Qt::NoModifier, "E"},
    {Qt::Key_Z, Qt::ControlModifier, "Ctrl+Z"},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "Ctrl+Shift+Z"},
    {Qt::Key_F, Qt::ControlModifier, "Ctrl+F"},
    {Qt::Key_PageDown, Qt::ControlModifier, "Ctrl+PageDown"},
    {Qt::Key_PageUp, Qt::ControlModifier, "Ctrl+PageUp"},
    {Qt::Key_A, Qt::ControlModifier, "Ctrl+A"},
    {Qt::Key_Down, Qt::AltModifier, "Alt+Down"},
    {Qt::Key_F1, Qt::NoModifier, "F1"},
    {Qt::Key_F4, Qt::NoModifier, "F4"},
    {Qt::Key_Escape, Qt::NoModifier, "Escape"},
    {Qt::Key_Return, Qt::NoModifier, "Return"},
};

// What people type, and what nobody should.
constexpr QStringView kWords[] = {
    u"2",        u"1-3",      u"9999999999",
    u"-5",       u"1,,3-",    u"en",
    u"<b>x</b>", u"%1 %2 %n", u"\u00e9\u65e5\u672c",
    u"Paper",    u"\u202e",   u"210 x 297",
    u"0.0001",   u"a\nb\tc",  u"  ",
};

constexpr QLatin1StringView kDecisive[] = {"PageSize"_L1, "QXMediaType"_L1, "MediaType"_L1};

// How long the window is left alone now and then, so that what is fetched, counted and drawn beside
// it arrives. Units: milliseconds.
constexpr int kPause = 60;

bool endsTheWindow(const QWidget *widget)
{
    const QString name = widget ? widget->objectName() : QString();
    return name == "print"_L1 || name == "cancel"_L1;
}

QString describe(const QWidget *widget)
{
    return widget ? QLatin1StringView(widget->metaObject()->className()) + " \""_L1 +
                        widget->objectName() + '"'_L1
                  : u"nothing"_s;
}

bool takesPart(const QWidget *widget)
{
    return widget->focusPolicy() != Qt::NoFocus || widget->inherits("QAbstractButton") ||
           widget->inherits("QTabBar") || widget->inherits("QMenu");
}

QPoint somePlace(quint32 number, const QWidget *widget)
{
    return {int(number % quint32(std::max(1, widget->width()))),
            int(number / 4096 % quint32(std::max(1, widget->height())))};
}

} // namespace

QList<Act> randomActs(quint32 seed, int count)
{
    QRandomGenerator random(seed);
    QList<Act> acts;
    for (int i = 0; i < count; ++i)
        acts += Act{random.generate(), random.generate(), random.generate()};
    return acts;
}

Monkey::Monkey(PrintWindow &window, QStringList files, World world)
    : m_window(window), m_files(std::move(files)), m_world(std::move(world))
{
}

QString Monkey::run(const QList<Act> &acts)
{
    m_acts = acts;
    m_next = 0;
    QTimer::singleShot(0, this, &Monkey::next);
    m_loop.exec();
    return m_fault;
}

// The one after this is asked for before: a menu or a dialog returns only when it is closed.
void Monkey::next()
{
    // What follows from an act may come with the events behind it, and what follows from a click
    // when it cannot be a double one any more.
    if (m_doubt == Doubt::New) {
        m_doubt = Doubt::Waiting;
        QTimer::singleShot(kPause + QApplication::doubleClickInterval(), this, &Monkey::next);
        return;
    }
    if (std::exchange(m_doubt, Doubt::None) == Doubt::Waiting)
        m_fault = fault();
    if (m_next >= m_acts.size() || !m_fault.isNull())
        return finish();
    const Act act = m_acts.at(m_next++);
    m_formerFocus = m_window.focusWidget();
    QTimer::singleShot(act.where % 32 == 0 ? kPause : 0, this, &Monkey::next);
    // Files of the machine are nobody's to play with.
    if (auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
        note(u"leave the choice of a file"_s);
        return files->reject();
    }
    // Somebody who does not look gets out of a menu by chance only.
    if (QWidget *popup = QApplication::activePopupWidget(); popup && act.where % 6 == 1) {
        note(u"close the menu"_s);
        popup->close();
    } else {
        perform(act);
    }
    if (m_doubt == Doubt::None && !fault().isNull())
        m_doubt = Doubt::New;
}

// A menu that closes gives the focus back to where it was, which may be out of sight since.
QString Monkey::fault() const
{
    const QString broken = brokenInvariant(m_window);
    if (!broken.isNull() || m_window.focusWidget() == m_formerFocus)
        return broken;
    return unseenFocus(m_window);
}

void Monkey::finish()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    else if (QWidget *modal = QApplication::activeModalWidget())
        modal->close();
    else
        m_loop.quit();
    // What was asked for before may still open something, which keeps the loop from ending.
    QTimer::singleShot(0, this, &Monkey::finish);
}

// A window manager gives the focus to what is left when a window closes.
QWidget *Monkey::stage() const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *top = modal ? modal : QApplication::activeWindow();
    if (!top || !top->isVisible())
        top = &m_window;
    if (QApplication::activeWindow() != top)
        top->activateWindow();
    return top;
}

void Monkey::perform(const Act &act)
{
    QWidget *on = stage();
    const quint32 kind = act.kind % 64;
    if (kind < 21)
        return press(act, on);
    if (kind < 41)
        return click(act, on);
    if (kind < 46)
        return on == &m_window ? choose(act) : click(act, on);
    if (kind < 48)
        return on == &m_window ? takeBack(act) : click(act, on);
    if (kind < 51)
        return type(act, on);
    if (kind < 54)
        return pull(act, on);
    if (kind < 57)
        return turnWheel(act, on);
    if (kind < 58)
        return resize(act);
    if (on != &m_window)
        return m_window.activateWindow();
    if (kind < 59)
        return lookAtSummary();
    if (kind < 61)
        return changePrinter(act);
    return kind < 62 ? changeDocuments(act) : changeWorld(act);
}

QWidget *Monkey::focusIn(QWidget *stage) const
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus || (stage != focus && !stage->isAncestorOf(focus)))
        focus = stage->focusWidget();
    return focus ? focus : stage;
}

void Monkey::press(const Act &act, QWidget *stage)
{
    const Stroke &stroke = kStrokes[act.what % std::size(kStrokes)];
    const QPointer<QWidget> focus = focusIn(stage);
    const bool ends = stroke.key == Qt::Key_Escape || stroke.key == Qt::Key_Return ||
                      (stroke.key == Qt::Key_Space && endsTheWindow(focus));
    if (stage == &m_window && ends)
        return;
    note(u"press %1 in %2"_s.arg(QLatin1StringView(stroke.name), describe(focus)));
    QTest::keyPress(focus.data(), stroke.key, stroke.modifiers);
    if (focus)
        QTest::keyRelease(focus.data(), stroke.key, stroke.modifiers);
}

// As input methods commit it.
void Monkey::type(const Act &act, QWidget *stage)
{
    QWidget *focus = focusIn(stage);
    const QString words = kWords[act.what % std::size(kWords)].toString();
    note(u"type %1 into %2"_s.arg(words, describe(focus)));
    QInputMethodEvent event;
    event.setCommitString(words);
    QApplication::sendEvent(focus, &event);
}

// What does something is more often hit than what lies between.
QWidget *Monkey::someWidget(quint32 number, QWidget *stage) const
{
    const bool anything = number % 4 == 0;
    QList<QWidget *> all = stage->findChildren<QWidget *>();
    all.removeIf([&](const QWidget *one) {
        return !one->isVisible() || !one->isEnabled() || endsTheWindow(one) ||
               one->visibleRegion().isEmpty() || (!anything && !takesPart(one));
    });
    return all.isEmpty() ? stage : all.at(number / 4 % all.size());
}

void Monkey::click(const Act &act, QWidget *stage)
{
    const QPointer<QWidget> widget = someWidget(act.where, stage);
    const QPoint place =
        act.what % 2 ? widget->rect().center() : somePlace(act.what / 2, widget.data());
    const Qt::MouseButton button = act.what % 13 == 0 ? Qt::RightButton : Qt::LeftButton;
    note(u"click %1 at %2, %3"_s.arg(describe(widget)).arg(place.x()).arg(place.y()));
    QTest::mousePress(widget.data(), button, Qt::NoModifier, place);
    if (widget)
        QTest::mouseRelease(widget.data(), button, Qt::NoModifier, place);
    if (widget && act.what % 11 == 0)
        QTest::mouseDClick(widget.data(), button, Qt::NoModifier, place);
    // Which that leaves out; and a button that is held in what has gone is let go of elsewhere.
    if (QApplication::mouseButtons() != Qt::NoButton)
        QTest::mouseRelease(widget ? widget.data() : stage, button, Qt::NoModifier, place);
}

void Monkey::pull(const Act &act, QWidget *stage)
{
    const QPointer<QWidget> widget = someWidget(act.where, stage);
    const QPoint from = somePlace(act.what, widget.data());
    const QPoint to = somePlace(act.what * 2654435761U, widget.data());
    note(u"pull in %1"_s.arg(describe(widget)));
    QTest::mousePress(widget.data(), Qt::LeftButton, Qt::NoModifier, from);
    if (widget)
        QTest::mouseMove(widget.data(), to);
    if (widget)
        QTest::mouseRelease(widget.data(), Qt::LeftButton, Qt::NoModifier, to);
}

void Monkey::turnWheel(const Act &act, QWidget *stage)
{
    QWidget *widget = someWidget(act.where, stage);
    const QPoint place = somePlace(act.what, widget);
    const QPoint turn(0, act.what % 2 ? 120 : -120);
    note(u"turn the wheel in %1"_s.arg(describe(widget)));
    QWheelEvent event(place, widget->mapToGlobal(place), {}, turn, Qt::NoButton,
                      act.what % 7 ? Qt::NoModifier : Qt::ControlModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(widget, &event);
}

void Monkey::resize(const Act &act)
{
    const QSize size(500 + int(act.where % 1500), 300 + int(act.what % 1200));
    note(u"resize to %1 x %2"_s.arg(size.width()).arg(size.height()));
    m_window.resize(size);
}

// As a list does when somebody picks from it. By single clicks and keys most choices of most
// options would hardly ever be made, and papers and media, on which the rules of the panels turn,
// as seldom as all others.
void Monkey::choose(const Act &act)
{
    PrintTask &task = m_window.task();
    if (task.phase() != PrintTask::Phase::Ready)
        return;
    if (act.where % 3 == 0)
        return chooseAttribute(act);
    const QList<ppd_option_t *> options = choosableOptions(*task.opened()->session);
    if (options.isEmpty())
        return;
    ppd_file_t *ppd = task.opened()->session->ppd();
    const ppd_option_t *decisive =
        act.where % 3 == 1 ? ppdOption(ppd, kDecisive[act.where / 3 % std::size(kDecisive)])
                           : nullptr;
    const ppd_option_t &option = decisive ? *decisive : *options.at(act.where / 3 % options.size());
    const ppd_choice_t &choice = option.choices[act.what % quint32(option.num_choices)];
    const QString keyword = ppdKeyword(option.keyword);
    note(u"choose %1=%2"_s.arg(keyword, ppdKeyword(choice.choice)));
    task.propose(keyword, ppdKeyword(choice.choice));
}

void Monkey::takeBack(const Act &act)
{
    TaskHistory &history = m_window.task().history();
    switch (act.where % 4) {
    case 0:
        note(u"undo"_s);
        return history.undo();
    case 1:
        note(u"redo"_s);
        return history.redo();
    case 2:
        note(u"reset the page"_s);
        return m_window.findChild<QAction *>(u"resetPage"_s)->trigger();
    default:
        note(u"reset everything"_s);
        return m_window.findChild<QAction *>(u"resetAll"_s)->trigger();
    }
}

void Monkey::chooseAttribute(const Act &act)
{
    PrintTask &task = m_window.task();
    const QList<OfferedAttribute> offered = task.attributes();
    if (offered.isEmpty())
        return;
    const QString name = offered.at(act.where / 3 % offered.size()).name;
    const AllowedValues &allowed = jobAttribute(name)->allowed;
    QString value = u"7"_s;
    if (!allowed.words.empty())
        value = allowed.words[act.what % allowed.words.size()].value;
    note(u"choose %1=%2"_s.arg(name, value));
    task.setAttribute(name, value);
}

// It is compared with the job only while it is seen.
void Monkey::lookAtSummary()
{
    auto *pages = m_window.findChild<QTabWidget *>(u"pages"_s);
    note(u"look at the summary"_s);
    pages->setCurrentIndex(pages->count() - 1);
}

void Monkey::changePrinter(const Act &act)
{
    const QList<Printer> printers = m_window.task().printers().printers();
    if (printers.isEmpty())
        return;
    const Printer &printer = printers.at(act.where % printers.size());
    note(u"choose the printer %1"_s.arg(printer.description));
    m_window.task().choosePrinter(printer);
}

void Monkey::changeDocuments(const Act &act)
{
    PrintTask &task = m_window.task();
    const int count = int(task.documents().size());
    if (!task.canChangeDocuments())
        return;
    if (count == 0 || act.where % 3 == 0) {
        if (m_files.isEmpty() || count > 5)
            return;
        const QString &file = m_files.at(act.what % m_files.size());
        note(u"add the document %1"_s.arg(file));
        return task.addDocuments({file});
    }
    const int index = int(act.what % quint32(count));
    if (act.where % 3 == 1) {
        note(u"remove document %1"_s.arg(index));
        return task.removeDocument(index);
    }
    note(u"move document %1 to the front"_s.arg(index));
    task.moveDocument(index, 0);
}

void Monkey::changeWorld(const Act &act)
{
    if (m_world)
        note(m_world(act));
}

// At once: what comes next may be a crash.
void Monkey::note(const QString &what)
{
    m_done += what;
    static const QString path = qEnvironmentVariable("CORVANA_MONKEY_LOG");
    if (path.isEmpty())
        return;
    QFile file(path);
    if (file.open(QIODevice::Append))
        file.write(what.toUtf8() + '\n');
}

// Behind the act that fails nothing matters; before it, whole parts are left out first, which gets
// rid of most of thousands of acts in few trials. A part that had to stay may go once another one
// is gone, so single acts are tried until each of them has to stay.
QList<Act> shortened(QList<Act> acts, const QDeadlineTimer &end, const Trial &trial)
{
    const auto leaveOut = [&](qsizetype from, qsizetype length) {
        QList<Act> fewer = acts;
        fewer.remove(from, std::min(length, acts.size() - from));
        const std::optional<qsizetype> failing = trial(fewer);
        if (failing)
            acts = fewer.first(std::min(*failing, fewer.size()));
        return failing.has_value();
    };
    qsizetype length = std::max<qsizetype>(1, acts.size() / 2);
    for (bool goesOn = true; goesOn && !end.hasExpired();) {
        bool isShorter = false;
        for (qsizetype from = 0; from < acts.size() && !end.hasExpired();) {
            if (leaveOut(from, length))
                isShorter = true;
            else
                from += length;
        }
        goesOn = length > 1 || isShorter;
        length = std::clamp<qsizetype>(length / 2, 1, std::max<qsizetype>(1, acts.size() / 2));
    }
    return acts;
}

} // namespace corvana::test
