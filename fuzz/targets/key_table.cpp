#include <QTemporaryDir>

#include "fuzz/support/InputFile.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/ForeignText.h"
#include "platform/foundation/FormatString.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

/// Input: the compiled table of texts of a bundle. A key has a text or stands for itself, the same
/// each time; and as a format of an alert a text loses its directives and reads no memory.
void run(const QByteArray &input)
{
    static const QTemporaryDir root;
    const QString folder = root.filePath(u"Fuzz.bundle"_s);
    writeInput(folder + u"/info.json"_s, R"({"CFBundleLocalizations": ["English"]})");
    writeInput(folder + u"/strings/English.qm"_s, input);
    const std::shared_ptr<Bundle> bundle = Bundle::open(folder);
    for (const char *key : {"Paper Type", "key", "", "%s%n%d"}) {
        const QString name = QString::fromLatin1(key);
        const QString text = bundle->localizedString(name);
        require(text == bundle->localizedString(name), "a text is the same each time", name);
        require(bundle->localizedStringOrKey(name) == (text.isNull() ? name : text),
                "a key without a text stands for itself", name);
        const QString shown = formattedWithoutArguments(text);
        require(shown.size() <= text.size(), "a format without arguments becomes no longer", text);
        require(terminalLine(terminalLine(text)) == terminalLine(text),
                "a text for a terminal is one", text);
    }
    const QString format = QString::fromUtf8(input);
    require(formattedWithoutArguments(format).size() <= format.size(),
            "a format without arguments becomes no longer", format);
}

const Target target("key_table", run);

} // namespace

} // namespace corvana::fuzz
