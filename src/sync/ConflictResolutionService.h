#pragma once

#include "models/Event.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

class AppState;

namespace Sync {

/// One event that was changed both here and on a server.
struct EventConflict {
    QString id;
    Event local;
    Event remote;
    QDateTime detectedAt; ///< UTC
};

enum class ConflictResolution {
    KeepLocal,
    KeepServer,
    Skip, ///< decide later: the row stays as it is
};

/// The open conflicts of this run of the program. Nothing is stored: a later sync finds them again.
class ConflictResolutionService : public QObject {
    Q_OBJECT

public:
    explicit ConflictResolutionService(AppState *state, QObject *parent = nullptr);

    /// An event has one open conflict at most; the first pair stands.
    void recordConflict(const Event &local, const Event &remote);
    [[nodiscard]] QList<EventConflict> conflicts() const { return m_conflicts; }
    /// Takes the conflict off the list and writes the version that was chosen. An unknown id changes nothing.
    void resolve(const QString &conflictId, ConflictResolution resolution);
    void clearAll();

signals:
    void conflictsChanged();

private:
    AppState *m_state;
    QList<EventConflict> m_conflicts;
};

} // namespace Sync
