#pragma once

#include <QtGlobal>

/// Marks what the platform library offers to hosts and plug-in bundles; everything else is hidden.
#if defined(CORVANA_PLATFORM_LIBRARY)
#define CORVANA_PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define CORVANA_PLATFORM_EXPORT Q_DECL_IMPORT
#endif
