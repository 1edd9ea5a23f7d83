#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "dialog/presets/PresetFile.h"
#include "dialog/presets/PresetStore.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Replacing = PresetStore::Replacing;

namespace {

const QString kModel = u"Corvana CL-330 Color"_s;

// The mode of the folder above (0), of the folder for everybody (1), of that of a model in it (2),
// or of a file in that (3).
struct Distrusted
{
    const char *name;
    int below;
    mode_t mode;
    const char *says; // null where it is believed
};

constexpr Distrusted kDistrusted[] = {
    {"nobody else may write anything", 3, 0644, nullptr},
    {"anybody may write the file", 3, 0646, "the file is not used"},
    {"its group may write the file", 3, 0664, "the file is not used"},
    {"anybody may write the model's folder", 2, 0757, "nothing in this folder"},
    {"its group may write the folder", 1, 0775, "nothing in this folder"},
    {"anybody may write the folder above", 0, 0777, "nothing below this folder"},
    {"a folder above such as /tmp", 0, 01777, nullptr},
};

Preset named(const QString &name, const QString &model = kModel, const QString &media = u"Thick"_s)
{
    Preset preset;
    preset.name = name;
    preset.model = model;
    preset.content.options = {{u"Media"_s, media}};
    return preset;
}

} // namespace

/// Presets in folders that several programs use.
class PresetStoreTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString own() const { return m_folder->filePath(u"own"_s); }
    QString shared() const { return m_folder->filePath(u"shared"_s); }
    PresetStore store() const { return PresetStore(places()); }
    PresetPlaces places() const { return {own(), {shared()}, TrustedOwners::RootAndUser}; }
    QString fileInShared() const
    {
        QDirIterator all(shared(), {u"*.json"_s}, QDir::Files, QDirIterator::Subdirectories);
        return all.next();
    }
    QStringList files() const
    {
        QStringList found;
        QDirIterator all(own(), {u"*.json"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext())
            found += all.next();
        return found;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void whatIsSavedIsListedForItsModelAndForNoOther()
    {
        QCOMPARE(store().save(named(u"Reports"_s), Replacing::No), QString());
        QCOMPARE(store().save(named(u"Letters"_s, {}), Replacing::No), QString());
        QCOMPARE(store().list(kModel).names(), (QStringList{u"Reports"_s, u"Letters"_s}));
        QCOMPARE(store().list(u"Another"_s).names(), QStringList{u"Letters"_s});
        QCOMPARE(store().listAll().names(), (QStringList{u"Letters"_s, u"Reports"_s}));
        QCOMPARE(store().list(kModel).find(u"Reports"_s)->preset, named(u"Reports"_s));
    }

    void whatAnotherWindowHasWrittenIsListed()
    {
        const PresetStore first = store();
        QVERIFY(first.list(kModel).presets.isEmpty());
        QCOMPARE(store().save(named(u"Reports"_s), Replacing::No), QString());
        QCOMPARE(first.list(kModel).names(), QStringList{u"Reports"_s});
    }

    void aNameThatIsTakenIsReplacedOnlyWhenAskedFor()
    {
        QCOMPARE(store().save(named(u"Reports"_s), Replacing::No), QString());
        const Preset other = named(u"Reports"_s, kModel, u"Thin"_s);
        QVERIFY(store().save(other, Replacing::No).contains(u"“Reports”"_s));
        QCOMPARE(store().list(kModel).find(u"Reports"_s)->preset, named(u"Reports"_s));
        QCOMPARE(store().save(other, Replacing::Yes), QString());
        QCOMPARE(store().list(kModel).find(u"Reports"_s)->preset, other);
        QCOMPARE(files().size(), 1);
    }

    void aNameThatCannotBeOneIsRefused()
    {
        for (const QString &name : {QString(), u"a\nb"_s, QString(200, u'x')})
            QVERIFY(!store().save(named(name), Replacing::No).isEmpty());
        QVERIFY(files().isEmpty());
    }

    void whatALaterVersionHasWrittenOutlivesReplacingAndRenaming()
    {
        Preset later = named(u"Reports"_s);
        later.further.insert(u"ink"_s, u"blue"_s);
        QCOMPARE(store().save(later, Replacing::No), QString());
        QCOMPARE(store().save(named(u"Reports"_s, kModel, u"Thin"_s), Replacing::Yes), QString());
        QCOMPARE(store().rename(named(u"Reports"_s), u"Drafts"_s), QString());
        const Preset now = store().list(kModel).find(u"Drafts"_s)->preset;
        QCOMPARE(now.further.value(u"ink"_s).toString(), u"blue"_s);
        QCOMPARE(now.content.options.value(u"Media"_s), u"Thin"_s);
    }

    void renamingNeverReplacesAnother()
    {
        QCOMPARE(store().save(named(u"A"_s), Replacing::No), QString());
        QCOMPARE(store().save(named(u"B"_s, kModel, u"Thin"_s), Replacing::No), QString());
        QVERIFY(!store().rename(named(u"A"_s), u"B"_s).isEmpty());
        QVERIFY(!store().rename(named(u"C"_s), u"D"_s).isEmpty());
        QCOMPARE(store().list(kModel).names(), (QStringList{u"A"_s, u"B"_s}));
        QCOMPARE(store().rename(named(u"A"_s), u"A"_s), QString());
        QCOMPARE(store().list(kModel).find(u"B"_s)->preset.content.options.value(u"Media"_s),
                 u"Thin"_s);
    }

    void whatIsRemovedIsGone()
    {
        QCOMPARE(store().save(named(u"A"_s), Replacing::No), QString());
        QCOMPARE(store().remove(named(u"A"_s)), QString());
        QCOMPARE(store().remove(named(u"A"_s)), QString());
        QVERIFY(store().list(kModel).presets.isEmpty());
    }

    void aFileUnderAnyNameIsThePresetThatItSays()
    {
        QCOMPARE(store().save(named(u"A"_s), Replacing::No), QString());
        const QString moved = QFileInfo(files().constFirst()).path() + u"/mine.json"_s;
        QVERIFY(QFile::rename(files().constFirst(), moved));
        QCOMPARE(store().list(kModel).names(), QStringList{u"A"_s});
        QCOMPARE(store().save(named(u"A"_s, kModel, u"Thin"_s), Replacing::Yes), QString());
        QCOMPARE(files(), QStringList{moved});
        QCOMPARE(store().remove(named(u"A"_s)), QString());
        QVERIFY(files().isEmpty());
    }

    void whatIsDamagedIsNamedAndStaysAsItIs()
    {
        QCOMPARE(store().save(named(u"A"_s), Replacing::No), QString());
        QCOMPARE(store().save(named(u"B"_s), Replacing::No), QString());
        const QString path = store().list(kModel).find(u"A"_s)->path;
        writeFile(path, "{ \"version\": 1, \"name\": \"A\", ");
        const PresetListing listing = store().list(kModel);
        QCOMPARE(listing.names(), QStringList{u"B"_s});
        QCOMPARE(listing.problems.size(), 1);
        QVERIFY(listing.problems.constFirst().contains(path));
        const QString refused = store().save(named(u"A"_s), Replacing::Yes);
        QVERIFY2(refused.contains(path), qPrintable(refused));
        QVERIFY(!store().rename(named(u"B"_s), u"A"_s).isEmpty());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("{ \"version\": 1, \"name\": \"A\", "));
        QCOMPARE(store().list(kModel).names(), QStringList{u"B"_s});
    }

    void thoseForEverybodyAreReadAndNeverWritten()
    {
        QCOMPARE(PresetStore({shared()}).save(named(u"House"_s), Replacing::No), QString());
        QCOMPARE(PresetStore({shared()}).save(named(u"Reports"_s), Replacing::No), QString());
        QCOMPARE(store().save(named(u"Reports"_s, kModel, u"Thin"_s), Replacing::No), QString());
        const PresetListing listing = store().list(kModel);
        QCOMPARE(listing.names(),
                 (QStringList{u"House"_s, u"Reports"_s, u"Reports (for everybody)"_s}));
        QVERIFY(!listing.find(u"House"_s)->isOwn);
        QVERIFY(listing.find(u"Reports"_s)->isOwn);
        QVERIFY(!store().rename(named(u"House"_s), u"Mine"_s).isEmpty());
        QCOMPARE(store().remove(named(u"House"_s)), QString());
        QVERIFY(store().list(kModel).find(u"House"_s));
    }

    void whatOthersMayWriteIsNoAdministratorsPreset_data() { addRows(kDistrusted); }
    void whatOthersMayWriteIsNoAdministratorsPreset()
    {
        const Distrusted &row = currentRow(kDistrusted);
        QCOMPARE(PresetStore({shared()}).save(named(u"House"_s), Replacing::No), QString());
        const QString file = fileInShared();
        const QString spoiled = row.below == 0   ? m_folder->path()
                                : row.below == 1 ? shared()
                                : row.below == 2 ? QFileInfo(file).path()
                                                 : file;
        ::chmod(QFile::encodeName(spoiled).constData(), row.mode);
        const PresetStore desk = store();
        for (const PresetListing &listing : {desk.list(kModel), desk.listAll()}) {
            QCOMPARE(listing.presets.isEmpty(), row.says != nullptr);
            QCOMPARE(listing.problems.size(), row.says ? 1 : 0);
            if (row.says) {
                QVERIFY2(listing.problems.constFirst().startsWith(spoiled + u": "_s),
                         qPrintable(listing.problems.constFirst()));
                QVERIFY2(listing.problems.constFirst().contains(QLatin1StringView(row.says)),
                         qPrintable(listing.problems.constFirst()));
            }
        }
    }

    void aLinkIsJudgedByWhatItLeadsTo()
    {
        QCOMPARE(PresetStore({shared()}).save(named(u"House"_s), Replacing::No), QString());
        const QString outside = m_folder->filePath(u"outside.json"_s);
        QVERIFY(QFile::rename(fileInShared(), outside));
        QVERIFY(QFile::link(outside, shared() + u"/house.json"_s));
        QCOMPARE(store().list(kModel).names(), QStringList{u"House"_s});
        ::chmod(QFile::encodeName(outside).constData(), 0666);
        QCOMPARE(store().list(kModel).names(), QStringList());
        QCOMPARE(store().list(kModel).problems.size(), 1);
    }

    void whatBelongsToAnotherUserIsNoAdministratorsPreset()
    {
        if (::geteuid() != 0)
            QSKIP("only root can give a file away");
        QCOMPARE(PresetStore({shared()}).save(named(u"House"_s), Replacing::No), QString());
        QCOMPARE(::chown(QFile::encodeName(fileInShared()).constData(), 65534, 65534), 0);
        QVERIFY(store().list(kModel).presets.isEmpty());
        QVERIFY(store().list(kModel).problems.value(0).contains(u"65534"_s));
    }

    void aFolderForEverybodyThatIsNotThereIsNotSpokenOf()
    {
        QCOMPARE(store().list(kModel).problems, QStringList());
        QCOMPARE(store().listAll().problems, QStringList());
    }

    void aFullDiskIsSaidAndLeavesWhatWasThere()
    {
        QCOMPARE(store().save(named(u"A"_s), Replacing::No), QString());
        const QByteArray before = writePreset(store().list(kModel).find(u"A"_s)->preset);
        Preset large = named(u"A"_s);
        for (int i = 0; i < 1000; ++i)
            large.content.options.insert(u"Option%1"_s.arg(i), u"Choice"_s);
        QString problem;
        {
            const FileSizeLimit limit(4096);
            problem = store().save(large, Replacing::Yes);
        }
        QVERIFY2(problem.contains(own()), qPrintable(problem));
        QCOMPARE(writePreset(store().list(kModel).find(u"A"_s)->preset), before);
        QCOMPARE(files().size(), 1);
    }

    void aHomeThatCannotBeWrittenIsSaid()
    {
        QVERIFY(QDir().mkpath(own()));
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner |
                                                            QFile::ReadOther | QFile::ExeOther));
        QVERIFY(QFile::setPermissions(own(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther |
                                                 QFile::ExeOther));
        {
            const OrdinaryUser user;
            const QString problem = store().save(named(u"A"_s), Replacing::No);
            QVERIFY2(problem.contains(own()), qPrintable(problem));
            QVERIFY(store().list(kModel).presets.isEmpty());
        }
        QFile::setPermissions(m_folder->path(),
                              QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
        QFile::setPermissions(own(), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    }

    void aHomeThatIsNoFolderIsSaid()
    {
        writeFile(own(), "a file");
        QVERIFY(store().save(named(u"A"_s), Replacing::No).contains(own()));
    }

    // Each of them saves presets of its own and all of them the same one, again and again.
    void severalProgramsSaveAtOnce()
    {
        constexpr int kPrograms = 4;
        constexpr int kRounds = 15;
        QList<pid_t> programs;
        for (int program = 0; program < kPrograms; ++program) {
            const pid_t child = ::fork();
            QVERIFY(child >= 0);
            if (child > 0) {
                programs += child;
                continue;
            }
            bool isFine = true;
            for (int round = 0; round < kRounds; ++round) {
                const QString mine = u"%1-%2"_s.arg(program).arg(round);
                isFine = store().save(named(mine), Replacing::No).isEmpty() && isFine;
                Preset common = named(u"Common"_s, kModel, u"M%1"_s.arg(program));
                for (int i = 0; i < 200; ++i)
                    common.content.options.insert(u"O%1"_s.arg(i), u"M%1"_s.arg(program));
                isFine = store().save(common, Replacing::Yes).isEmpty() && isFine;
                isFine = store().list(kModel).problems.isEmpty() && isFine;
            }
            ::_exit(isFine ? 0 : 1);
        }
        for (const pid_t program : std::as_const(programs)) {
            int status = 0;
            QCOMPARE(::waitpid(program, &status, 0), program);
            QCOMPARE(status, 0);
        }
        const PresetListing listing = store().list(kModel);
        QVERIFY(listing.problems.isEmpty());
        QCOMPARE(listing.presets.size(), kPrograms * kRounds + 1);
        const PresetContent common = listing.find(u"Common"_s)->preset.content;
        for (const QString &value : common.options)
            QCOMPARE(value, common.options.first());
    }

    // Of several that save a new preset of the same name one gets it, and the others are told.
    void oneNameIsGivenOnce()
    {
        constexpr int kPrograms = 6;
        QList<pid_t> programs;
        for (int program = 0; program < kPrograms; ++program) {
            const pid_t child = ::fork();
            if (child == 0)
                ::_exit(store().save(named(u"A"_s, kModel, u"M%1"_s.arg(program)), Replacing::No)
                                .isEmpty()
                            ? 0
                            : 1);
            programs += child;
        }
        int winners = 0;
        for (const pid_t program : std::as_const(programs)) {
            int status = 0;
            QCOMPARE(::waitpid(program, &status, 0), program);
            winners += status == 0 ? 1 : 0;
        }
        QCOMPARE(winners, 1);
    }
};

QTEST_GUILESS_MAIN(PresetStoreTest)
#include "preset_store_test.moc"
