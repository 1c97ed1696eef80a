#pragma once

#include "calendar/services/RecurringEdits.h"

#include <QString>

#include <functional>

class QObject;
class QWidget;

/// Asks which occurrences of a series a change is for.
namespace RecurringEditScopeDialog {

using Scope = RecurringEdits::Scope;

/// Opens the question over \p parent. \p onChosen is called with a scope other than Cancel, never before this
/// has returned, and not once \p context is gone. Prompt::ScopedAnswers answers it in tests.
void ask(const QString &eventTitle, QWidget *parent, QObject *context, std::function<void(Scope)> onChosen);

} // namespace RecurringEditScopeDialog
