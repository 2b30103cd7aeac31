#pragma once

#include <QString>

namespace kelvaro {

/// A name for a file of a chart, without an ending: that of the chart as far as every file system takes it,
/// up to 60 characters of it.
QString FileNameOf(const QString &chartName);

} // namespace kelvaro
