#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "dialog/presets/PresetFile.h"
#include "dialog/presets/PresetStore.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Replacing = PresetStore::Replacing;

namespace {

const QString kModel = u"Corvana CL-330 Color"_s;
const QString kForAll;

/// A preset of the user's own and one for everybody of the same name, and which printers each is
/// for.
struct Shadow
{
    const char *name;
    QString own;
    QString forEverybody;
    QStringList names; ///< on a printer of kModel
    QStringList all;   ///< of all models
};
const QString kOther = u"Another Model"_s;
const QStringList kBoth{u"Reports"_s, u"Reports (for everybody)"_s};
const QList<Shadow> kShadows{
    {"both for the model", kModel, kModel, kBoth, kBoth},
    {"both for all printers", kForAll, kForAll, kBoth, kBoth},
    {"the user's own for all printers", kForAll, kModel, {kBoth.at(1), kBoth.at(0)}, kBoth},
    {"the one for everybody for all printers", kModel, kForAll, kBoth, kBoth},
    {"the user's own for another model",
     kOther,
     kModel,
     {u"Reports"_s},
     {u"Reports"_s, u"Reports"_s}},
};

Preset named(const QString &name, const QString &model, const QString &media)
{
    Preset preset;
    preset.name = name;
    preset.model = model;
    preset.content.options = {{u"Media"_s, media}};
    return preset;
}

class InAnotherLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromLatin1(text).replace(u"(for everybody)"_s, u"[all]"_s);
    }
};

QString mediaOf(const std::optional<StoredPreset> &found)
{
    return found ? found->preset.content.options.value(u"Media"_s) : QString();
}

} // namespace

/// Presets of one name, and files that others put in the place of those that were looked at.
class PresetNamesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString shared() const { return m_folder->filePath(u"shared"_s); }
    PresetStore store() const
    {
        return PresetStore({m_folder->filePath(u"own"_s), {shared()}, TrustedOwners::RootAndUser});
    }
    PresetStore everybodys() const { return PresetStore({shared()}); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void bothOfOneNameAreListed_data() { addRows(kShadows); }
    void bothOfOneNameAreListed()
    {
        const Shadow &row = currentRow(kShadows);
        QCOMPARE(
            everybodys().save(named(u"Reports"_s, row.forEverybody, u"Thick"_s), Replacing::No),
            QString());
        QCOMPARE(store().save(named(u"Reports"_s, row.own, u"Thin"_s), Replacing::No), QString());
        const PresetListing listing = store().list(kModel);
        QCOMPARE(listing.names(), row.names);
        QCOMPARE(store().listAll().names(), row.all);
        // By its own name always, whether that is needed or not.
        QCOMPARE(mediaOf(listing.find(u"Reports (for everybody)"_s)), u"Thick"_s);
        QCOMPARE(mediaOf(listing.find(u"Reports"_s)),
                 row.names.size() == 2 ? u"Thin"_s : u"Thick"_s);
    }

    void aPresetWithThatVeryNameHidesNothingEither()
    {
        QCOMPARE(everybodys().save(named(u"Reports"_s, kModel, u"Thick"_s), Replacing::No),
                 QString());
        for (const QString &name : kBoth)
            QCOMPARE(store().save(named(name, kModel, u"Thin"_s), Replacing::No), QString());
        const PresetListing listing = store().list(kModel);
        QCOMPARE(listing.presets.size(), 3);
        QCOMPARE(mediaOf(listing.find(kBoth.at(1))), u"Thin"_s);
        QCOMPARE(mediaOf(listing.find(u"Reports (for everybody) (for everybody)"_s)), u"Thick"_s);
    }

    // It is another one, although the one for everybody would be found by that name.
    void aPresetThatIsCalledLikeOneForEverybodyIsListedBesideIt()
    {
        QCOMPARE(everybodys().save(named(u"Reports"_s, kModel, u"Thick"_s), Replacing::No),
                 QString());
        QCOMPARE(store().save(named(kBoth.at(1), kModel, u"Thin"_s), Replacing::No), QString());
        const PresetListing listing = store().list(kModel);
        QCOMPARE(listing.names(), kBoth);
        QCOMPARE(mediaOf(listing.find(kBoth.at(1))), u"Thin"_s);
    }

    // Whoever wrote a script may have another language than whoever runs it.
    void theOneForEverybodyIsFoundInEnglishAndInTheUsersLanguage()
    {
        QCOMPARE(everybodys().save(named(u"Reports"_s, kModel, u"Thick"_s), Replacing::No),
                 QString());
        InAnotherLanguage translator;
        QCoreApplication::installTranslator(&translator);
        const PresetListing listing = store().list(kModel);
        for (const QString &name : {u"Reports"_s, u"Reports [all]"_s, kBoth.at(1)})
            QCOMPARE(mediaOf(listing.find(name)), u"Thick"_s);
        QCoreApplication::removeTranslator(&translator);
    }

    void whatWasLookedAtIsWhatIsRead()
    {
        QCOMPARE(store().save(named(u"First"_s, kModel, u"Thick"_s), Replacing::No), QString());
        QCOMPARE(store().save(named(u"Second"_s, kModel, u"Thin"_s), Replacing::No), QString());
        const PresetListing listing = store().list(kModel);
        const QString first = listing.find(u"First"_s)->path;
        const QString second = listing.find(u"Second"_s)->path;
        const PresetReading reading = readPresetFile(first, [&](int) {
            return ::rename(QFile::encodeName(second).constData(),
                            QFile::encodeName(first).constData()) == 0;
        });
        QVERIFY(reading.preset);
        QCOMPARE(reading.preset->name, u"First"_s);
        QCOMPARE(readPresetFile(first).preset->name, u"Second"_s);
    }

    void whatIsNotTrustedIsNotRead()
    {
        QCOMPARE(store().save(named(u"First"_s, kModel, u"Thick"_s), Replacing::No), QString());
        const QString path = store().list(kModel).find(u"First"_s)->path;
        const PresetReading reading = readPresetFile(path, [](int) { return false; });
        QVERIFY(!reading.preset && reading.problem.isEmpty());
    }

    // Whatever lies under its name by then.
    void aFileThatIsOpenIsJudgedByItself()
    {
        const QString bad = writeFile(m_folder->filePath(u"bad.json"_s), "{}");
        const QString good = writeFile(m_folder->filePath(u"good.json"_s), "{}");
        QVERIFY(QFile::setPermissions(bad, QFile::ReadOwner | QFile::WriteOther));
        const int descriptor = ::open(QFile::encodeName(bad).constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(descriptor >= 0);
        QCOMPARE(::rename(QFile::encodeName(good).constData(), QFile::encodeName(bad).constData()),
                 0);
        QVERIFY(!whyNotTrusted(bad, TrustedOwners::RootAndUser));
        QVERIFY(whyNotTrusted(descriptor, bad, TrustedOwners::RootAndUser));
        ::close(descriptor);
    }

    void theFoldersAboveAFileThatIsOpenAreThoseWhereItLies()
    {
        QVERIFY(QDir(m_folder->path()).mkpath(u"open/to/all"_s));
        const QString file = writeFile(m_folder->filePath(u"open/to/all/a.json"_s), "{}");
        const QString link = m_folder->filePath(u"link.json"_s);
        QVERIFY(QFile::link(file, link));
        QCOMPARE(::chmod(QFile::encodeName(m_folder->filePath(u"open"_s)).constData(), 0777), 0);
        const int descriptor = ::open(QFile::encodeName(link).constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(descriptor >= 0);
        const auto problem = whyNotTrusted(descriptor, link, TrustedOwners::RootAndUser);
        ::close(descriptor);
        QVERIFY(problem);
        QVERIFY2(problem->text().startsWith(m_folder->filePath(u"open"_s)),
                 qPrintable(problem->text()));
    }
};

QTEST_GUILESS_MAIN(PresetNamesTest)
#include "preset_names_test.moc"
