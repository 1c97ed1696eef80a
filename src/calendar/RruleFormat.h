#pragma once

#include <QString>

/// Rules and reminder offsets as one short line of text, translated. Knows more of RFC 5545 §3.3.10 than
/// RruleExpander does: a rule of another program reads correctly even where it cannot be laid out.
namespace RruleFormat {

/// "Every 2 weeks · Mon, Wed, Fri"; empty for an empty rule.
QString humanReadable(const QString &rule);
/// "30 min before"; 0 or less is the time of the event.
QString humanReadableReminder(int minutes);

} // namespace RruleFormat
