#include "ui/forms/RecurringEditScopeDialog.h"

#include "ui/dialogs/Prompt.h"

#include <QCoreApplication>

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(RecurringEditScopeDialog)
};

}

void RecurringEditScopeDialog::ask(const QString &eventTitle, QWidget *parent, QObject *context,
                                   std::function<void(Scope)> onChosen)
{
    const QList<Prompt::Choice> choices{
        { Tr::tr("This event only"),
          Tr::tr("Only this occurrence is changed; the rest of the series stays as it was.") },
        { Tr::tr("This and following events"),
          Tr::tr("This occurrence and every later one inherit the change. Past occurrences keep their original "
                 "times.") },
        { Tr::tr("All events in the series"),
          Tr::tr("The master event shifts; every occurrence — past and future — moves with it.") },
    };
    constexpr Scope Scopes[] = { Scope::ThisOnly, Scope::ThisAndFollowing, Scope::All };
    Prompt::choose(parent, Tr::tr("Edit Recurring Event"), Tr::tr("Edit \"%1\"").arg(eventTitle),
                   Tr::tr("This event repeats. Apply your changes to:"), choices, context,
                   [Scopes, onChosen = std::move(onChosen)](int index) { onChosen(Scopes[index]); });
}
