#pragma once

#include <QList>

#include <sys/types.h>

#include "dialog/preview/RendererProcess.h"

namespace corvana::test {

/// The processes that draw pages for this one and are alive. `name` is that of their program.
QList<pid_t> runningRenderers(const char *name = "corvana-page-renderer");

/// A renderer that behaves as `manner` says; see tests/renderer/lock/HostileAnswers.cpp. One at a
/// time, since the environment tells it.
RendererSettings hostileRenderer(const char *manner);

} // namespace corvana::test
