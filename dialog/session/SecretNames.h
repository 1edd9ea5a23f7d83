#pragma once

#include <QString>

namespace corvana {

/// Whether a keyword ("HPPinPrnt", "JobPassword") or a text ("Access Code", "暗証番号") says that
/// its value is somebody's secret. PPDs give such values any type, most often a whole number.
bool soundsSecret(const QString &name);

} // namespace corvana
