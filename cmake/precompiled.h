// Headers that nearly every file of the project includes itself; precompiled once for speed.
// No file may rely on it: each includes what it uses.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <cups/cups.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLoggingCategory>
#include <QMap>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVariant>
#include <QWidget>
