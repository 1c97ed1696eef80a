#include "ui/dialogs/FilterPreview.h"

#include "app/state/AppState.h"
#include "calendar/FilterEngine.h"
#include "calendar/services/VisibleEvents.h"
#include "storage/EventRepository.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int MaxTitles = 4;
constexpr int MaxTitleLength = 40;

QString shortTitle(const Event &event)
{
    const QString title = event.title.simplified();
    return title.size() > MaxTitleLength ? title.left(MaxTitleLength - 1) + u'…' : title;
}

}

FilterPreview::FilterPreview(AppState *state, QWidget *parent)
    : QFrame(parent)
    , m_state(state)
    , m_count(new QLabel(this))
    , m_titles(new QLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (QLabel *label : { m_count, m_titles }) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    m_titles->setProperty("muted", true);
    m_timer.setSingleShot(true);
    m_timer.setInterval(DelayMs);
    connect(&m_timer, &QTimer::timeout, this, &FilterPreview::refresh);
    connect(state->events(), &EventRepository::eventsChanged, this, [this] {
        m_events.reset();
        m_timer.start();
    });
}

void FilterPreview::schedule(const FilterRule &rule)
{
    m_rule = rule;
    m_timer.start();
}

const QList<Event> &FilterPreview::upcomingEvents()
{
    if (!m_events) {
        VisibleEvents *pipeline = m_state->visibleEvents();
        m_events = pipeline ? pipeline->unfilteredInRange(QDate::currentDate(), Days) : QList<Event>();
    }
    return *m_events;
}

QString FilterPreview::countText() const
{
    return m_count->text();
}

QString FilterPreview::titlesText() const
{
    return m_titles->text();
}

FilterPreview::Matches FilterPreview::matchesOf(const QList<Event> &events, FilterRule rule)
{
    // Hiding is what tells one occurrence from another: dimming knows only the ids of series.
    rule.id = QStringLiteral("__preview");
    rule.action = FilterAction::Hide;
    rule.enabled = true;
    rule.deletedAt.reset();
    const FilterEngine::FilterResult result = FilterEngine::apply(events, { rule });

    Matches matches{ .count = result.hiddenCount, .titles = {} };
    qsizetype kept = 0;
    for (const Event &event : events) {
        const bool stays = kept < result.events.size() && result.events.at(kept).id == event.id
            && result.events.at(kept).startTime == event.startTime;
        if (stays) {
            ++kept;
            continue;
        }
        const QString title = shortTitle(event);
        if (!title.isEmpty() && !matches.titles.contains(title))
            matches.titles.append(title);
        if (matches.titles.size() > MaxTitles)
            break;
    }
    return matches;
}

void FilterPreview::refresh()
{
    Matches matches = matchesOf(upcomingEvents(), m_rule);
    m_count->setText(tr("%n event(s) in the next 30 days match", nullptr, matches.count));
    const bool more = matches.titles.size() > MaxTitles;
    matches.titles = matches.titles.mid(0, MaxTitles);
    if (more)
        matches.titles.append(QStringLiteral("…"));
    m_titles->setText(matches.titles.join(QStringLiteral(", ")));
    m_titles->setVisible(!matches.titles.isEmpty());
}
