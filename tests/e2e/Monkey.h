#pragma once

#include <functional>
#include <optional>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "dialog/window/PrintWindow.h"

namespace corvana::test {

/// Something that somebody does without looking: which kind of thing, where and with what. The same
/// numbers do the same in the same situation, and anything at all in another one, so that a list of
/// acts can be made shorter.
struct Act
{
    quint32 kind = 0;
    quint32 where = 0;
    quint32 what = 0;
};

QList<Act> randomActs(quint32 seed, int count);

/// Random hands in a print window: keys, clicks, pulls, turns of the wheel, words, other sizes,
/// choices that are taken back, other printers and documents, in whatever menu, list or dialog is
/// open just then, and a look at the summary now and then. It does not print, does not leave the
/// window, and touches no files of anybody's. After each act the invariants of the window have to
/// hold, and what got the focus has to be in sight.
class Monkey : public QObject
{
public:
    /// What happens outside the window, such as a server that goes away. Answers what it was.
    using World = std::function<QString(const Act &)>;

    /// Borrows the window, which is on the screen. Files are added to its documents now and then.
    explicit Monkey(PrintWindow &window, QStringList files = {}, World world = {});

    /// Does all of it, and closes what is open then. Answers what does not hold, and null where
    /// everything does; what was done until then is in done().
    QString run(const QList<Act> &acts);
    const QStringList &done() const { return m_done; }
    /// How many of the acts were taken until then.
    qsizetype actsTaken() const { return m_next; }

private:
    enum class Doubt { None, New, Waiting };

    void next();
    void finish();
    QString fault() const;
    void perform(const Act &act);
    QWidget *stage() const;
    void press(const Act &act, QWidget *stage);
    void type(const Act &act, QWidget *stage);
    void click(const Act &act, QWidget *stage);
    void pull(const Act &act, QWidget *stage);
    void turnWheel(const Act &act, QWidget *stage);
    void resize(const Act &act);
    void choose(const Act &act);
    void takeBack(const Act &act);
    void chooseAttribute(const Act &act);
    void lookAtSummary();
    void changePrinter(const Act &act);
    void changeDocuments(const Act &act);
    void changeWorld(const Act &act);
    QWidget *focusIn(QWidget *stage) const;
    QWidget *someWidget(quint32 number, QWidget *stage) const;
    void note(const QString &what);

    PrintWindow &m_window;
    QStringList m_files;
    World m_world;
    QEventLoop m_loop;
    QList<Act> m_acts;
    qsizetype m_next = 0;
    Doubt m_doubt = Doubt::None;
    QPointer<QWidget> m_formerFocus; // before the last act
    QString m_fault;
    QStringList m_done;
};

/// Answers how many acts it takes until something fails, and nothing where all of them pass.
using Trial = std::function<std::optional<qsizetype>(const QList<Act> &)>;

/// The shortest list of acts that this finds, until the time is over, for which `trial` still
/// fails; it does for `acts`. What is left could not be made shorter by leaving out any one act,
/// where there was time enough.
QList<Act> shortened(QList<Act> acts, const QDeadlineTimer &end, const Trial &trial);

} // namespace corvana::test
