#pragma once

#include "models/Event.h"
#include "models/FilterRule.h"

#include <QFrame>
#include <QTimer>

#include <optional>

class AppState;
class QLabel;

/// What a rule would hit in the coming days, while it is being edited.
class FilterPreview : public QFrame {
    Q_OBJECT

public:
    static constexpr int Days = 30;
    static constexpr int DelayMs = 200;

    struct Matches {
        int count = 0; ///< instances
        QStringList titles; ///< of the first events, each once
    };

    explicit FilterPreview(AppState *state, QWidget *parent = nullptr);

    void schedule(const FilterRule &rule); ///< after DelayMs without another call
    /// Instances of the coming days, before any filter. Kept until stored data changes.
    const QList<Event> &upcomingEvents();
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString titlesText() const;

    static Matches matchesOf(const QList<Event> &events, FilterRule rule);

private:
    void refresh();

    AppState *m_state;
    QLabel *m_count;
    QLabel *m_titles;
    QTimer m_timer;
    FilterRule m_rule;
    std::optional<QList<Event>> m_events;
};
