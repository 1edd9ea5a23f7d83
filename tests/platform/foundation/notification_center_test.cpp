#include <QtTest>

#include "platform/foundation/NotificationCenter.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class NotificationCenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliveryIsAtOnceAndInTheOrderOfRegistration();
    void onlyTheNameThatWasAskedForIsDelivered();
    void anObserverOfOneSenderHearsNoOther();
    void anObserverOfAnySenderHearsAll();
    void aPostWithoutSenderReachesOnlyObserversOfAnySender();
    void theUserInformationIsDelivered();
    void emptyUserInformationDiffersFromNone();
    void aDoubleRegistrationCountsTwice();
    void removingAnObserverEndsAllItsRegistrations();
    void removingOneRegistrationKeepsTheOthers();
    void removingWhatWasNeverRegisteredIsNoError();
    void anObserverRemovedMeanwhileIsSkipped();
    void anObserverAddedMeanwhileIsNotReached();
    void anObserverThatRegistersAnewMeanwhileIsNotReachedAgain();
    void anObserverMayRemoveItselfInItsHandler();
    void aHandlerMayPostAgain();
    void anExceptionOfAHandlerReachesThePoster();
    void theDefaultCenterIsOneAndTheSame();
};

namespace {
const QString name = u"PMPaperDidChange"_s;
const QString otherName = u"PMPaperWillChange"_s;
} // namespace

void NotificationCenterTest::deliveryIsAtOnceAndInTheOrderOfRegistration()
{
    NotificationCenter center;
    QStringList heard;
    int a = 0;
    int b = 0;
    center.addObserver(&b, name, nullptr, [&](const Notification &) { heard += u"b"_s; });
    center.addObserver(&a, name, nullptr, [&](const Notification &) { heard += u"a"_s; });
    center.post(name, nullptr);
    QCOMPARE(heard, (QStringList{u"b"_s, u"a"_s}));
}

void NotificationCenterTest::onlyTheNameThatWasAskedForIsDelivered()
{
    NotificationCenter center;
    int heard = 0;
    center.addObserver(this, name, nullptr, [&](const Notification &) { ++heard; });
    center.post(otherName, nullptr);
    center.post(name.toLower(), nullptr);
    center.post(QString(), nullptr);
    QCOMPARE(heard, 0);
}

void NotificationCenterTest::anObserverOfOneSenderHearsNoOther()
{
    NotificationCenter center;
    int sender = 0;
    int otherSender = 0;
    QList<void *> heard;
    center.addObserver(this, name, &sender, [&](const Notification &n) { heard += n.sender; });
    center.post(name, &otherSender);
    center.post(name, &sender);
    QCOMPARE(heard, QList<void *>{&sender});
}

void NotificationCenterTest::anObserverOfAnySenderHearsAll()
{
    NotificationCenter center;
    int sender = 0;
    QList<void *> heard;
    center.addObserver(this, name, nullptr, [&](const Notification &n) { heard += n.sender; });
    center.post(name, &sender);
    center.post(name, nullptr);
    QCOMPARE(heard, (QList<void *>{&sender, nullptr}));
}

void NotificationCenterTest::aPostWithoutSenderReachesOnlyObserversOfAnySender()
{
    NotificationCenter center;
    int sender = 0;
    int heard = 0;
    center.addObserver(this, name, &sender, [&](const Notification &) { ++heard; });
    center.post(name, nullptr);
    QCOMPARE(heard, 0);
}

void NotificationCenterTest::theUserInformationIsDelivered()
{
    NotificationCenter center;
    Notification heard;
    center.addObserver(this, name, nullptr, [&](const Notification &n) { heard = n; });
    const QVariantMap information{{u"key"_s, 3}};
    center.post(name, this, information);
    QCOMPARE(heard.name, name);
    QCOMPARE(heard.sender, static_cast<void *>(this));
    QCOMPARE(heard.userInfo, information);
    QVERIFY(heard.hasUserInfo);
}

void NotificationCenterTest::emptyUserInformationDiffersFromNone()
{
    NotificationCenter center;
    QList<bool> heard;
    center.addObserver(this, name, nullptr, [&](const Notification &n) { heard += n.hasUserInfo; });
    center.post(name, nullptr);
    center.post(name, nullptr, {});
    QCOMPARE(heard, (QList<bool>{false, true}));
}

void NotificationCenterTest::aDoubleRegistrationCountsTwice()
{
    NotificationCenter center;
    int heard = 0;
    const auto handler = [&](const Notification &) { ++heard; };
    center.addObserver(this, name, nullptr, handler);
    center.addObserver(this, name, nullptr, handler);
    center.post(name, nullptr);
    QCOMPARE(heard, 2);
}

void NotificationCenterTest::removingAnObserverEndsAllItsRegistrations()
{
    NotificationCenter center;
    int sender = 0;
    int other = 0;
    int heard = 0;
    int heardByOther = 0;
    center.addObserver(this, name, nullptr, [&](const Notification &) { ++heard; });
    center.addObserver(this, otherName, &sender, [&](const Notification &) { ++heard; });
    center.addObserver(&other, name, nullptr, [&](const Notification &) { ++heardByOther; });
    center.removeObserver(this);
    center.post(name, nullptr);
    center.post(otherName, &sender);
    QCOMPARE(heard, 0);
    QCOMPARE(heardByOther, 1);
}

void NotificationCenterTest::removingOneRegistrationKeepsTheOthers()
{
    NotificationCenter center;
    int sender = 0;
    QStringList heard;
    const auto note = [&](const char *what) {
        return [&heard, what](const Notification &) { heard += QString::fromLatin1(what); };
    };
    center.addObserver(this, name, &sender, note("removed"));
    center.addObserver(this, name, &sender, note("removed as well"));
    center.addObserver(this, name, nullptr, note("any sender"));
    center.addObserver(this, otherName, &sender, note("other name"));
    center.addObserver(&sender, name, &sender, note("other observer"));
    center.removeObserver(this, name, &sender);
    center.post(name, &sender);
    center.post(otherName, &sender);
    QCOMPARE(heard, (QStringList{u"any sender"_s, u"other observer"_s, u"other name"_s}));
}

void NotificationCenterTest::removingWhatWasNeverRegisteredIsNoError()
{
    NotificationCenter center;
    int heard = 0;
    int stranger = 0;
    center.addObserver(this, name, nullptr, [&](const Notification &) { ++heard; });
    center.removeObserver(&stranger);
    center.removeObserver(this, otherName, nullptr);
    center.post(name, nullptr);
    QCOMPARE(heard, 1);
}

void NotificationCenterTest::anObserverRemovedMeanwhileIsSkipped()
{
    NotificationCenter center;
    int first = 0;
    int second = 0;
    int heardBySecond = 0;
    center.addObserver(&first, name, nullptr,
                       [&](const Notification &) { center.removeObserver(&second); });
    center.addObserver(&second, name, nullptr, [&](const Notification &) { ++heardBySecond; });
    center.post(name, nullptr);
    QCOMPARE(heardBySecond, 0);
}

void NotificationCenterTest::anObserverAddedMeanwhileIsNotReached()
{
    NotificationCenter center;
    int added = 0;
    int heardByAdded = 0;
    center.addObserver(this, name, nullptr, [&](const Notification &) {
        // Many, so that the list of registrations must move in memory during the delivery.
        for (int i = 0; i < 100; ++i)
            center.addObserver(&added, name, nullptr,
                               [&](const Notification &) { ++heardByAdded; });
    });
    center.post(name, nullptr);
    QCOMPARE(heardByAdded, 0);
    center.removeObserver(this);
    center.post(name, nullptr);
    QCOMPARE(heardByAdded, 100);
}

void NotificationCenterTest::anObserverThatRegistersAnewMeanwhileIsNotReachedAgain()
{
    NotificationCenter center;
    int first = 0;
    int second = 0;
    int heard = 0;
    const auto hear = [&](const Notification &) { ++heard; };
    center.addObserver(&first, name, nullptr, [&](const Notification &) {
        center.removeObserver(&second);
        center.addObserver(&second, name, nullptr, hear);
    });
    center.addObserver(&second, name, nullptr, hear);
    center.post(name, nullptr);
    QCOMPARE(heard, 0);
}

void NotificationCenterTest::anObserverMayRemoveItselfInItsHandler()
{
    NotificationCenter center;
    QString heard;
    const QString token = u"kept by the handler"_s;
    center.addObserver(this, name, nullptr, [&center, &heard, token, this](const Notification &n) {
        center.removeObserver(this);
        heard = token + n.name; // what the handler holds must still be there
    });
    center.post(name, nullptr);
    QCOMPARE(heard, token + name);
    heard.clear();
    center.post(name, nullptr);
    QVERIFY(heard.isEmpty());
}

void NotificationCenterTest::aHandlerMayPostAgain()
{
    NotificationCenter center;
    QStringList heard;
    center.addObserver(this, name, nullptr, [&](const Notification &) {
        heard += u"before"_s;
        center.post(otherName, nullptr);
        heard += u"after"_s;
    });
    center.addObserver(this, otherName, nullptr,
                       [&](const Notification &) { heard += u"inner"_s; });
    center.post(name, nullptr);
    QCOMPARE(heard, (QStringList{u"before"_s, u"inner"_s, u"after"_s}));
}

void NotificationCenterTest::anExceptionOfAHandlerReachesThePoster()
{
    NotificationCenter center;
    int heard = 0;
    center.addObserver(this, name, nullptr,
                       [](const Notification &) { throw std::runtime_error("host"); });
    QVERIFY_EXCEPTION_THROWN(center.post(name, nullptr), std::runtime_error);
    center.removeObserver(this);
    center.addObserver(this, name, nullptr, [&](const Notification &) { ++heard; });
    center.post(name, nullptr);
    QCOMPARE(heard, 1);
}

void NotificationCenterTest::theDefaultCenterIsOneAndTheSame()
{
    QCOMPARE(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

QTEST_GUILESS_MAIN(NotificationCenterTest)
#include "notification_center_test.moc"
