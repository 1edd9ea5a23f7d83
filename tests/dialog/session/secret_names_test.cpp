#include <QTest>

#include "dialog/session/SecretNames.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;

namespace {

struct Row
{
    const char *name;
    bool isSecret;
};

constexpr Row kRows[] = {
    {"PIN", true},
    {"Pin", true},
    {"HPPinPrnt", true},
    {"JobPIN", true},
    {"PINNumber", true},
    {"USER_PIN", true},
    {"Pin1", true},
    {"PIN-Code", true},
    {"PIN (4 digits)", true},
    {"Enter your PIN:", true},
    {"pincode", true},
    {"Password", true},
    {"JobPassword", true},
    {"userpassword", true},
    {"Passcode", true},
    {"Passphrase", true},
    {"AccessCode", true},
    {"HPUserAccessCode", true},
    {"Access Code", true},
    {"SecurityCode", true},
    {"Secret", true},
    {"PINnumber", true},
    {"PINs", true},
    {"SecureCode", true},
    {"ReleaseCode", true},
    {"Release Code", true},
    {"KeyCode", true},
    {"Department ID", true},
    {"DepartmentCode", true},
    {"Passwort", true},
    {"Kennwort", true},
    {"SecretKey", true},
    {"暗証番号", true},
    {"セキュリティ暗証番号（4桁）", true},
    {"パスワード", true},
    {"ユーザーのパスワード", true},
    {"PINコード", true},
    {"密码", true},
    {"作业密码", true},
    {"口令", true},
    {"访问码", true},
    {"使用者存取代碼", true},
    {"사용자 액세스 코드", true},
    {"비밀번호", true},
    {"Zugangscode", true},
    {"Benutzerzugriffscode", true},
    {"Code d'accès utilisateur", true},
    {"Code d’accès", true},
    {"Mot de passe", true},
    {"Contraseña", true},
    {"Código de acceso de usuario", true},
    {"Código de acesso do usuário", true},
    {"Senha", true},
    {"Codice accesso utente", true},
    {"암호", true},
    {"작업 암호:", true},
    {"보안 코드", true},
    {"セキュリティコード", true},
    {"授权码", true},
    {"個人識別碼", true},
    {"Geheimzahl", true},
    {"Persönliche Identifikationsnummer", true},
    {"Personal Identification Number", true},
    {"Code de sécurité", true},
    {"Numéro d’identification personnel", true},
    {"NIP", true},
    {"Clave de acceso", true},
    {"Código de segurança", true},
    {"Codice di sicurezza", true},

    {"암호화", false},
    {"Snip", false},
    {"Código de barras", false},
    {"Codice fiscale", false},
    {"セキュリティ", false},
    {"Spinning", false},
    {"Department", false},
    {"SPINNING", false},
    {"KeyColor", false},
    {"CodePage", false},
    {"OpinionX", false},
    {"Pinnacle", false},
    {"PinkToner", false},
    {"PINK", false},
    {"Mapping", false},
    {"Pinot", false},
    {"Secretary", false},
    {"PassThrough", false},
    {"Compass", false},
    {"AccessTray", false},
    {"Code", false},
    {"ColorCode", false},
    {"Sleep", false},
    {"QXSleepTime", false},
    {"Minutes (1 to 240)", false},
    {"PageSize", false},
    {"スリープまでの時間", false},
    {"休眠时间", false},
    {"密度", false},
    {"", false},
};

} // namespace

/// Which options hold what nobody else may read.
class SecretNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameSaysThatItsValueIsSecret_data() { addRows(kRows); }
    void aNameSaysThatItsValueIsSecret()
    {
        const Row &row = currentRow(kRows);
        QCOMPARE(soundsSecret(QString::fromUtf8(row.name)), row.isSecret);
    }
};

QTEST_GUILESS_MAIN(SecretNamesTest)

#include "secret_names_test.moc"
