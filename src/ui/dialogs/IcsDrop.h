#pragma once

#include <QStringList>

class QMimeData;

/// What a drag brings that the import can read: local files that end in ".ics", in any case of letters.
namespace IcsDrop {

QStringList localPathsIn(const QMimeData *data);
bool hasIcs(const QMimeData *data);

} // namespace IcsDrop
