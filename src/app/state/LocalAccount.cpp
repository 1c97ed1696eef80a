#include "app/state/LocalAccount.h"

#include "app/state/AppState.h"
#include "models/Account.h"
#include "models/Constants.h"
#include "storage/AccountRepository.h"
#include "storage/Savepoint.h"

bool LocalAccount::ensure(AppState *state)
{
    AccountRepository *accounts = state->accounts();
    if (accounts->getById(LocalDefaults::LocalAccountId))
        return true;
    Account account;
    account.id = LocalDefaults::LocalAccountId;
    account.name = Name;
    account.type = AccountType::Quillon;
    account.color = QStringLiteral("#4CAF50");
    account.createdAt = QDateTime::currentDateTimeUtc();
    account.updatedAt = account.createdAt;
    Savepoint savepoint(state->database());
    // A tombstone would be in the way of the new row.
    return accounts->reapTombstone(account.id) && accounts->insert(account) && savepoint.commit();
}
