#pragma once

#include "platform/QuillonUpdate.h"

class QWidget;

namespace QuillonUpdate {

/// Looks for a newer release because the user asked to: also answers when there is none, when the check fails,
/// and when this build has no address to ask. One check at a time for each \p parent.
void runManualCheck(const Config &config, const QString &appName, QWidget *parent, const StatusHandler &status);

} // namespace QuillonUpdate
