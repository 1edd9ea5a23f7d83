#include <QFile>
#include <QTest>

#include "platform/foundation/UserDefaults.h"
#include "tests/support/Rows.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct DamagedCase
{
    const char *name;
    QByteArray content;
};
const DamagedCase kDamaged[] = {
    {"a section without an end", "[General\na=1\n"},
    // Sections are looked at when their keys are asked for.
    {"a line that is no entry", "nonsense"},
    {"a line among others that is none", "[General]\na=1\n# b\n"},
    // Sixty megabytes of it took nearly a gigabyte.
    {"more than anybody keeps", "[General]\na=" + QByteArray(4 * 1024 * 1024, 'x') + '\n'},
};

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Preferences as their files have them.
class UserDefaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDamagedFileIsNotReadAndIsKeptWhenItIsReplaced_data() { addRows(kDamaged); }
    void aDamagedFileIsNotReadAndIsKeptWhenItIsReplaced()
    {
        const DamagedCase &row = currentRow(kDamaged);
        const UserPreferences preferences;
        UserDefaults &defaults = UserDefaults::standardUserDefaults();
        const QString name = u"damaged"_s;
        const QString path = UserDefaults::fileOfDomain(name);
        QVERIFY(defaults.setPersistentDomain_forName({{u"former"_s, 1}}, name));
        write(path, row.content);

        QVERIFY(!defaults.persistentDomainForName(name));
        QVERIFY(defaults.setPersistentDomain_forName({{u"key"_s, 2}}, name));
        QVERIFY(contentOf(path + u".damaged"_s) == row.content);
        const auto domain = defaults.persistentDomainForName(name);
        QVERIFY(domain);
        QCOMPARE(domain->keys(), QStringList{u"key"_s});
    }

    void aLongValueIsKept()
    {
        const UserPreferences preferences;
        UserDefaults &defaults = UserDefaults::standardUserDefaults();
        const QString value(3 * 1024 * 1024, u'x');
        QVERIFY(defaults.setPersistentDomain_forName({{u"key"_s, value}}, u"long"_s));
        QVERIFY(defaults.persistentDomainForName(u"long"_s).value().value(u"key"_s) == value);
    }
};

QTEST_GUILESS_MAIN(UserDefaultsTest)
#include "user_defaults_test.moc"
