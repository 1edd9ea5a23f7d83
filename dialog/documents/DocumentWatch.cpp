#include "dialog/documents/DocumentWatch.h"

#include <algorithm>

#include <QFileInfo>

namespace corvana {

namespace {

// Programs write a document in pieces, and put a finished one in the place of the former. Units:
// milliseconds.
constexpr int kQuiet = 300;
// Until it is looked again whether a file is back: nothing tells of one that is not there.
constexpr int kAbsence = 1000;

} // namespace

DocumentWatch::DocumentWatch(QObject *parent) : QObject(parent)
{
    m_quiet.setSingleShot(true);
    connect(&m_quiet, &QTimer::timeout, this, &DocumentWatch::look);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, [this] { m_quiet.start(kQuiet); });
}

DocumentWatch::State DocumentWatch::stateOf(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? State{info.size(), info.lastModified()} : State{};
}

void DocumentWatch::watch(const QStringList &paths)
{
    m_states.clear();
    for (const QString &path : paths)
        m_states.insert(path, stateOf(path));
    follow();
}

// A file that took the place of another one is not watched yet, whatever its name.
void DocumentWatch::follow()
{
    if (const QStringList before = m_files.files(); !before.isEmpty())
        m_files.removePaths(before);
    QStringList present;
    for (auto state = m_states.cbegin(); state != m_states.cend(); ++state) {
        if (state->size >= 0)
            present += state.key();
    }
    if (!present.isEmpty())
        m_files.addPaths(present);
    m_quiet.stop();
    if (present.size() < m_states.size())
        m_quiet.start(kAbsence);
}

void DocumentWatch::look()
{
    bool areOthers = false;
    for (auto state = m_states.begin(); state != m_states.end(); ++state) {
        const State now = stateOf(state.key());
        areOthers = areOthers || *state != now;
        *state = now;
    }
    follow();
    if (areOthers)
        Q_EMIT changed();
}

} // namespace corvana
