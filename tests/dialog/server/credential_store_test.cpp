#include <future>

#include <QTest>

#include "dialog/server/CredentialStore.h"
#include "tests/dialog/server/WorkerThread.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kRealm = u"print:631"_s;
const QString kDevice = u"ipp://localhost/printers/office"_s;
const Credentials kLisa{u"lisa"_s, u"secret"_s};

bool never()
{
    return false;
}

} // namespace

class CredentialStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_store = std::make_unique<CredentialStore>();
        m_questions.clear();
        m_answers.clear();
    }

    void withoutAnyoneToAskNobodyWaits()
    {
        CredentialStore::Outcome outcome;
        onWorker([&] { outcome = m_store->ask(kRealm, {}, never); });
        QVERIFY(!outcome.credentials);
        QVERIFY(outcome.nobodyToAsk);
    }

    void theQuestionIsPutOnTheGuiThread()
    {
        QThread *where = nullptr;
        m_store->setQuestioner([&](const CredentialsQuestion &, const auto &answer) {
            where = QThread::currentThread();
            answer(kLisa);
        });
        CredentialStore::Outcome outcome;
        onWorker([&] { outcome = m_store->ask(kRealm, {}, never); });
        QCOMPARE(where, QThread::currentThread());
        QVERIFY(outcome.credentials);
        QVERIFY(!outcome.nobodyToAsk);
        QCOMPARE(outcome.credentials->user, kLisa.user);
        QCOMPARE(outcome.credentials->password, kLisa.password);
    }

    void theQuestionSaysWhatIsToBeKnown()
    {
        keepQuestions();
        CredentialsQuestion question;
        question.server.host = u"print"_s;
        question.user = u"lisa"_s;
        question.encrypted = true;
        question.forDevice = true;
        const WorkerThread worker([&] { m_store->ask(kRealm, question, never); });
        QTRY_COMPARE(m_questions.size(), 1);
        QCOMPARE(m_questions.constFirst().server.host, u"print"_s);
        QCOMPARE(m_questions.constFirst().user, u"lisa"_s);
        QVERIFY(m_questions.constFirst().encrypted);
        QVERIFY(m_questions.constFirst().forDevice);
        m_answers.constFirst()(std::nullopt);
    }

    void twoWorkersShareOneQuestion()
    {
        keepQuestions();
        std::atomic<int> asking{0};
        std::array<CredentialStore::Outcome, 2> outcomes;
        const auto ask = [&](CredentialStore::Outcome &outcome) {
            ++asking;
            outcome = m_store->ask(kRealm, {}, never);
        };
        {
            const WorkerThread first([&] { ask(outcomes[0]); });
            QTRY_COMPARE(m_questions.size(), 1);
            std::atomic<bool> looked{false};
            const WorkerThread second([&] {
                outcomes[1] = m_store->ask(kRealm, {}, [&] {
                    looked = true; // it waits by now
                    return false;
                });
            });
            QTRY_VERIFY(looked);
            m_answers.constFirst()(kLisa);
            QTRY_VERIFY(first.isDone() && second.isDone());
        }
        QCOMPARE(m_questions.size(), 1);
        for (const auto &outcome : outcomes) {
            QVERIFY(outcome.credentials);
            QCOMPARE(outcome.credentials->user, u"lisa"_s);
        }
    }

    void othersAreAskedForOnTheirOwn()
    {
        keepQuestions();
        const QString other = u"a.other:631"_s;
        const auto about = [](const QString &host) {
            CredentialsQuestion question;
            question.server.host = host;
            return question;
        };
        {
            const WorkerThread first([&] { m_store->ask(kRealm, about(kRealm), never); });
            const WorkerThread second([&] { m_store->ask(other, about(other), never); });
            QTRY_COMPARE(m_questions.size(), 2);
            for (const int i : {1, 0}) {
                const bool isFirst = m_questions.at(i).server.host == kRealm;
                m_answers.at(i)(isFirst ? std::optional(kLisa) : std::nullopt);
            }
        }
        QVERIFY(m_store->known(kRealm) == kLisa);
        QVERIFY(!m_store->known(other));
    }

    void whatWasGivenIsNotAskedAgainUntilItIsForgotten()
    {
        answerAtOnce(kLisa);
        onWorker([&] { m_store->ask(kRealm, {}, never); });
        QCOMPARE(m_store->known(kRealm)->password, u"secret"_s);
        CredentialStore::Outcome again;
        onWorker([&] { again = m_store->ask(kRealm, {}, never); });
        QCOMPARE(m_questions.size(), 1);
        QCOMPARE(again.credentials->user, u"lisa"_s);

        m_store->forget(kRealm, kLisa);
        QVERIFY(!m_store->known(kRealm));
        onWorker([&] { m_store->ask(kRealm, {}, never); });
        QCOMPARE(m_questions.size(), 2);
    }

    // A refusal takes its time, and somebody else may have been asked again meanwhile.
    void whatWasGivenMeanwhileIsNotForgotten_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("isForgotten");
        QTest::newRow("the refused ones") << kLisa.user << kLisa.password << true;
        QTest::newRow("another password") << kLisa.user << u"newer"_s << false;
        QTest::newRow("another user") << u"bart"_s << kLisa.password << false;
    }
    void whatWasGivenMeanwhileIsNotForgotten()
    {
        QFETCH(QString, user);
        QFETCH(QString, password);
        QFETCH(bool, isForgotten);
        answerAtOnce(Credentials{user, password});
        onWorker([&] { m_store->ask(kRealm, {}, never); });
        m_store->forget(u"other:631"_s, {user, password});
        QVERIFY(m_store->known(kRealm));
        m_store->forget(kRealm, kLisa);
        QCOMPARE(!m_store->known(kRealm), isForgotten);
    }

    void whatWasGivenInAdvanceIsForEverybodyAndNobodyIsAsked()
    {
        answerAtOnce(std::nullopt);
        m_store->giveInAdvance(kLisa);
        QVERIFY(m_store->known(kRealm) == kLisa);
        CredentialStore::Outcome outcome;
        onWorker([&] { outcome = m_store->ask({kRealm, kDevice}, {}, never); });
        QVERIFY(outcome.credentials == kLisa);
        QVERIFY(m_questions.isEmpty());
        QVERIFY(!m_store->isGuess(kRealm));
    }

    void whatWasGivenInAdvanceIsNotTriedTwiceInVain()
    {
        m_store->giveInAdvance(kLisa);
        m_store->forget(kRealm, kLisa);
        QVERIFY(!m_store->known(kRealm));
        QVERIFY(m_store->known({kRealm, kDevice}) == kLisa);
    }

    void whatTheDeviceWasGivenIsTriedForItsServerBeforeAnybodyIsAsked_data()
    {
        QTest::addColumn<bool>("isRight");
        QTest::newRow("and is right") << true;
        QTest::newRow("and is wrong") << false;
    }
    void whatTheDeviceWasGivenIsTriedForItsServerBeforeAnybodyIsAsked()
    {
        QFETCH(bool, isRight);
        answerAtOnce(kLisa);
        onWorker([&] { m_store->ask({kRealm, kDevice}, {}, never); });
        QVERIFY(!m_store->isGuess({kRealm, kDevice}));
        CredentialStore::Outcome outcome;
        onWorker([&] { outcome = m_store->ask(kRealm, {}, never); });
        QVERIFY(outcome.credentials == kLisa);
        QVERIFY(m_store->isGuess(kRealm));
        QCOMPARE(m_questions.size(), 1);
        if (!isRight) {
            m_store->forget(kRealm, kLisa);
            QVERIFY(m_store->known({kRealm, kDevice}) == kLisa);
            onWorker([&] { m_store->ask(kRealm, {}, never); });
            QVERIFY(!m_store->isGuess(kRealm));
        }
        QCOMPARE(m_questions.size(), isRight ? 1 : 2);
    }

    void anotherServerIsNotTriedWithIt()
    {
        answerAtOnce(kLisa);
        onWorker([&] { m_store->ask({kRealm, kDevice}, {}, never); });
        onWorker([&] { m_store->ask(u"other:631"_s, {}, never); });
        QCOMPARE(m_questions.size(), 2);
    }

    void whoeverDoesNotWantToIsAskedAgainNextTime()
    {
        answerAtOnce(std::nullopt);
        CredentialStore::Outcome outcome;
        onWorker([&] { outcome = m_store->ask(kRealm, {}, never); });
        QVERIFY(!outcome.credentials);
        QVERIFY(!outcome.nobodyToAsk);
        QVERIFY(!m_store->known(kRealm));
        onWorker([&] { m_store->ask(kRealm, {}, never); });
        QCOMPARE(m_questions.size(), 2);
    }

    void aWorkerThatIsCanceledDoesNotWaitForThePerson()
    {
        keepQuestions();
        std::atomic<bool> canceled{false};
        CredentialStore::Outcome outcome;
        {
            const WorkerThread worker(
                [&] { outcome = m_store->ask(kRealm, {}, [&] { return canceled.load(); }); });
            QTRY_COMPARE(m_questions.size(), 1);
            canceled = true;
            QTRY_VERIFY(worker.isDone());
        }
        QVERIFY(!outcome.credentials);
        // The question still stands; its answer is for the next one.
        m_answers.constFirst()(kLisa);
        QVERIFY(m_store->known(kRealm));
    }

    void anAnswerThatComesTwiceCountsOnce()
    {
        keepQuestions();
        {
            const WorkerThread worker([&] { m_store->ask(kRealm, {}, never); });
            QTRY_COMPARE(m_questions.size(), 1);
            m_answers.constFirst()(kLisa);
        }
        m_answers.constFirst()(Credentials{u"bart"_s, u"x"_s});
        QCOMPARE(m_store->known(kRealm)->user, u"lisa"_s);
    }

    void aQuestionerThatGoesAwayBeforeItWasAskedAnswersNothing()
    {
        answerAtOnce(kLisa);
        CredentialStore::Outcome outcome{kLisa};
        {
            // The event loop does not turn until the questioner is gone.
            std::promise<void> waiting;
            std::once_flag once;
            const WorkerThread worker([&] {
                outcome = m_store->ask(kRealm, {}, [&] {
                    std::call_once(once, [&] { waiting.set_value(); });
                    return false;
                });
            });
            waiting.get_future().wait();
            m_store->setQuestioner({});
            QTRY_VERIFY(worker.isDone());
        }
        QVERIFY(!outcome.credentials);
        QVERIFY(m_questions.isEmpty());
    }

private:
    void keepQuestions()
    {
        m_store->setQuestioner([this](const CredentialsQuestion &question, const auto &answer) {
            m_questions += question;
            m_answers += answer;
        });
    }
    void answerAtOnce(const std::optional<Credentials> &credentials)
    {
        m_store->setQuestioner(
            [this, credentials](const CredentialsQuestion &question, const auto &answer) {
                m_questions += question;
                answer(credentials);
            });
    }

    std::unique_ptr<CredentialStore> m_store;
    QList<CredentialsQuestion> m_questions;
    QList<CredentialStore::Answer> m_answers;
};

QTEST_GUILESS_MAIN(CredentialStoreTest)
#include "credential_store_test.moc"
