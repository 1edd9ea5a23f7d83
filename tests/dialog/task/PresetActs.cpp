#include "tests/dialog/task/PresetActs.h"

#include <QSignalSpy>

namespace corvana::test {

using namespace Qt::StringLiterals;

void lookAgain(TaskPresets &presets, int patience)
{
    QSignalSpy changed(&presets, &TaskPresets::changed);
    presets.look();
    changed.wait(patience);
}

QString endOf(TaskPresets &presets, const std::function<void()> &act, int patience)
{
    QSignalSpy ended(&presets, &TaskPresets::ended);
    act();
    constexpr int kPatience = 20000; // milliseconds that an act may take on a busy machine
    if (ended.isEmpty() && !ended.wait(kPatience))
        return u"nothing ended"_s;
    lookAgain(presets, patience);
    return ended.constFirst().constFirst().toString();
}

} // namespace corvana::test
