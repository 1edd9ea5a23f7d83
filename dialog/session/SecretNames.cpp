#include "dialog/session/SecretNames.h"

#include <algorithm>
#include <iterator>

#include <QRegularExpression>
#include <QStringList>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Words that mean a secret wherever they stand, since no other word contains them. The number of a
// department is one as well: like a user code, it is all that a printer asks for.
constexpr const char16_t *kPieces[] = {
    u"departmentid",
    u"departmentcode",
    u"passwort",
    u"kennwort",
    u"pinnumber",
    u"securecode",
    u"releasecode",
    u"keycode",
    u"lockcode",
    u"usercode",
    u"jobpin",
    u"userpin",
    u"password",
    u"passcode",
    u"passwd",
    u"passphrase",
    u"pincode",
    u"accesscode",
    u"securitycode",
    u"暗証",
    u"暗证",
    u"パスワード",
    u"パスコード",
    u"アクセスコード",
    u"認証コード",
    u"密码",
    u"密碼",
    u"口令",
    u"访问码",
    u"访问代码",
    u"验证码",
    u"识别码",
    u"存取代碼",
    u"存取碼",
    u"個人識別碼",
    u"安全码",
    u"安全碼",
    u"授权码",
    u"授權碼",
    u"通行码",
    u"セキュリティコード",
    u"비밀번호",
    u"액세스코드",
    u"접근코드",
    u"보안코드",
    u"인증코드",
    u"zugangscode",
    u"zugriffscode",
    u"motdepasse",
    u"coded'accès",
    u"coded’accès",
    u"codeconfidentiel",
    u"codedesécurité",
    u"codesecret",
    u"numérod'identificationpersonnel",
    u"numérod’identificationpersonnel",
    u"geheimzahl",
    u"geheimcode",
    u"entsperrcode",
    u"freigabecode",
    u"sicherheitscode",
    u"identifikationsnummer",
    u"identificationnumber",
    u"contraseña",
    u"clavedeacceso",
    u"códigodeseguridad",
    u"códigodesegurança",
    u"codicedisicurezza",
    u"codicesegreto",
    u"códigodeacceso",
    u"códigodeacesso",
    u"codiceaccesso",
    u"codicediaccesso",
};

// Words that mean it only as a whole: "Spinning" and "Secretary" contain them, too.
constexpr const char16_t *kWords[] = {u"pin",   u"pins", u"secret", u"passkey",
                                      u"senha", u"nip",  u"holdkey"};

// The words of "HPPinPrnt", "JOB_PIN2", "PINNumber" and "Access Code", in small letters.
QStringList wordsOf(const QString &name)
{
    static const QRegularExpression word(u"\\p{Lu}+(?![\\p{Ll}])|\\p{Lu}?\\p{Ll}+"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    QStringList words;
    auto matches = word.globalMatch(name);
    while (matches.hasNext())
        words += matches.next().captured().toLower();
    return words;
}

} // namespace

bool soundsSecret(const QString &name)
{
    const QStringList words = wordsOf(name);
    // "PINs" and "PINnumber": no rule of words parts these, and nothing else is written like that.
    static const QRegularExpression pin(u"(?<!\\p{Lu})PIN(?!\\p{Lu})"_s,
                                        QRegularExpression::UseUnicodePropertiesOption);
    if (pin.match(name).hasMatch())
        return true;
    // Korean for a password, and the beginning of that for encryption.
    static const QRegularExpression amho(u"암호(?!화)"_s);
    if (amho.match(name).hasMatch())
        return true;
    // "Access Code" and "AccessCode" are the same.
    const QString joined = QString(name).remove(u' ').remove(u'_').remove(u'-').toLower();
    return std::any_of(
               std::begin(kPieces), std::end(kPieces),
               [&](const char16_t *piece) { return joined.contains(QStringView(piece)); }) ||
           std::any_of(std::begin(kWords), std::end(kWords), [&](const char16_t *word) {
               return words.contains(QString::fromUtf16(word));
           });
}

} // namespace corvana
