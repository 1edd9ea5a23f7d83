#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/PanelRecognition.h"
#include "fuzz/support/InputFile.h"
#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

/// Input: an administrator's rules about panels, and the file of the instances that are ours. A
/// rule in front decides whatever follows it; and an instance that is noted is known, with all
/// that were known before.
void run(const QByteArray &input)
{
    const QStringList names{u"lobby-1"_s, u"ipp://printer.example.com/ipp/print"_s};
    const MemoryFile rules(input);
    panelRule(rules.path(), names);
    const MemoryFile none("none *\n" + input);
    require(panelRule(none.path(), names) == PanelRule::None, "the first rule that fits counts");
    const MemoryFile panels("panels lobby-?\n" + input);
    require(panelRule(panels.path(), names) == PanelRule::Panels,
            "the first rule that fits counts");

    static const QTemporaryDir folder;
    const QString path = folder.filePath(u"instances.json"_s);
    const QString damaged = path + u".damaged"_s;
    QFile::remove(damaged);
    writeInput(path, input);
    const OwnInstances instances(path);
    const QMap<QString, OwnInstance> before = instances.read();
    const OwnInstance fuzz{u"Fuzz"_s, u"A Model"_s, true, {}};
    const QList<JobOption> options{{u"a"_s, u"b c"_s}};
    const QString problem = instances.note({{u"queue/fuzz"_s, options}}, fuzz);
    if (!problem.isEmpty()) {
        require(contentOf(path) == input, "a file that is not changed stays as it is");
        return;
    }
    require(input.trimmed().isEmpty() || QJsonDocument::fromJson(input).isObject() ||
                contentOf(damaged) == input,
            "a file that is damaged is kept");
    QMap<QString, OwnInstance> expected = before;
    const OwnInstance noted = instances.read().value(u"queue/fuzz"_s);
    expected.insert(u"queue/fuzz"_s, noted);
    require(noted.settings == fuzz.settings && noted.model == fuzz.model &&
                noted.written.value(0) == options && instances.read() == expected,
            "an instance that was noted is known, and all others");
    require(instances.forget({u"queue/fuzz"_s}).isEmpty() &&
                !instances.names().contains(u"queue/fuzz"_s),
            "an instance that was forgotten is not known");
}

const Target target("panel_rules", run);

} // namespace

} // namespace corvana::fuzz
