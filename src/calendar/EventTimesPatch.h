#pragma once

#include "calendar/ICalTree.h"
#include "calendar/TimeForm.h"
#include "models/Event.h"

#include <optional>
#include <set>

/// Writes over a VEVENT when an event is: start and end, what it repeats, and which instance of a series it is.
class EventTimesPatch {
public:
    /// \p before is what \p vevent reads as. All three must outlive the patch.
    EventTimesPatch(ICal::TreeComponent &vevent, const Event &before, const Event &event);

    /// \p series is the form in which the series of an override begins, if it is known.
    void apply(const std::optional<TimeForm> &series);

    /// The form of DTSTART, if there is one.
    static std::optional<TimeForm> startForm(const ICal::TreeComponent &vevent);
    /// Has the override \p vevent, which reads as \p event, name its instance in the form in which its series begins.
    static void renameInstance(ICal::TreeComponent &vevent, const Event &event, const TimeForm &series);

private:
    using Instants = std::set<qint64>; // milliseconds since the epoch

    [[nodiscard]] TimeForm wantedStartForm() const;
    [[nodiscard]] bool keepsZone(const TimeForm &present, const QTimeZone &zone) const;
    void patchStart();
    [[nodiscard]] TimeForm wantedEndForm(const QDateTime &end) const;
    void patchEnd();
    void patchRule();
    void patchInstanceName(const std::optional<TimeForm> &series);
    [[nodiscard]] Instants excluded() const;
    void patchExceptionDates();
    void addExceptionDates(const Instants &instants);

    ICal::TreeComponent &m_vevent;
    const Event &m_before;
    const Event &m_event;
    TimeForm m_form; // of the start
    bool m_isStartChanged = false;
    bool m_isFormChanged = false;
};
