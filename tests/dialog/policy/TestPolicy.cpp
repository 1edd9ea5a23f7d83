#include "tests/dialog/policy/TestPolicy.h"

#include "dialog/policy/PolicyFile.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

std::shared_ptr<const Policy> policyFrom(const QList<QByteArray> &texts, const QStringList &groups)
{
    PolicyReading reading;
    for (int i = 0; i < texts.size(); ++i) {
        const QString file = u"%1.conf"_s.arg(i + 1);
        const PolicyFile parsed = parsePolicyFile(texts.at(i), file, i);
        reading.files += file;
        reading.entries += parsed.entries;
        reading.problems += parsed.problems;
    }
    return std::make_shared<const Policy>(reading, PolicyUser{u"anna"_s, groups});
}

Printer queue(const QString &name)
{
    Printer printer;
    printer.name = name;
    printer.origin = PrinterOrigin::Queue;
    return printer;
}

} // namespace corvana::test
