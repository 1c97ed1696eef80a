#include "calendar/ComponentPatch.h"

#include "calendar/ICalLineText.h"
#include "calendar/ICalTexts.h"
#include "calendar/RruleExpander.h"
#include "calendar/RuleEnd.h"

#include <QStringList>

#include <algorithm>

using namespace ICal;

namespace {

using ReminderKey = std::pair<int, QString>;

std::optional<ReminderKey> reminderKey(const TreeComponent &component, ComponentPatch::ReadReminder read)
{
    if (!component.isSpelled("VALARM"))
        return std::nullopt;
    Alarm alarm;
    for (const TreeComponent::Item &item : component.items()) {
        if (const auto *line = std::get_if<TreeLine>(&item))
            alarm.readLine(line->content());
    }
    const std::optional<Reminder> reminder = (alarm.*read)();
    return reminder ? std::optional(ReminderKey(reminder->minutesBefore, reminder->action)) : std::nullopt;
}

QStringList sortedParts(const QString &rule)
{
    QStringList parts = rule.toUpper().split(u';', Qt::SkipEmptyParts);
    parts.sort();
    return parts;
}

/// UNTIL is a date where the start is one, else an instant in UTC: the one that the expander takes it for.
QString ruleText(const QString &rule, bool isAllDay)
{
    if (isAllDay)
        return RuleEnd::asDay(rule, true);
    constexpr QLatin1StringView until("UNTIL=");
    QStringList parts = rule.split(u';', Qt::SkipEmptyParts);
    for (QString &part : parts) {
        if (!part.startsWith(until, Qt::CaseInsensitive) || !part.back().isDigit())
            continue;
        const bool isDay = !part.sliced(until.size()).contains(u'T');
        part += isDay ? QLatin1StringView("T000000Z") : QLatin1StringView("Z");
    }
    return parts.join(u';');
}

/// The lines among which the reader takes the parent.
std::vector<const TreeLine *> parentLines(const TreeComponent &component, ComponentPatch::Parent which)
{
    std::vector<const TreeLine *> lines = component.lines("RELATED-TO");
    std::erase_if(lines, [which](const TreeLine *line) {
        const ContentLine content = line->content();
        const bool isPassedOver = which == ComponentPatch::Parent::FirstNamed && content.value().isEmpty();
        return isPassedOver || !isParentRelation(content);
    });
    return lines;
}

}

void ComponentPatch::setValue(TreeComponent &component, QByteArrayView name, const QByteArray &value)
{
    if (value.isEmpty())
        component.removeLines(name);
    else if (const TreeLine *last = component.lastLine(name))
        component.setLine(withValue(last->content(), value));
    else
        component.addLine(name.toByteArray() + ':' + value);
}

void ComponentPatch::setText(TreeComponent &component, QByteArrayView name, const QString &before, const QString &after)
{
    const QByteArray value = textValue(after);
    if (after == before || unescapedText(value) == before)
        return;
    const TreeLine *last = component.lastLine(name);
    if (!last || value.isEmpty())
        return setValue(component, name, value);
    const QByteArray line = withoutParameters(last->content(), { "ALTREP", "ENCODING", "CHARSET" });
    component.setLine(withValue(ContentLine(line), value));
}

void ComponentPatch::setPlain(TreeComponent &component, QByteArrayView name, const QString &before,
                              const QString &after)
{
    const QByteArray value = plainValue(after);
    if (after != before && QString::fromUtf8(value) != before)
        setValue(component, name, value);
}

void ComponentPatch::setWord(TreeComponent &component, QByteArrayView name, const QString &before, const QString &after,
                             const QString &fallback)
{
    const QByteArray value = plainValue((after.isEmpty() ? fallback : after).toUpper());
    if (after != before && lowerCaseText(value) != before)
        setValue(component, name, value);
}

void ComponentPatch::setNumber(TreeComponent &component, QByteArrayView name, int before, int after)
{
    if (after != before && std::max(after, 0) != before)
        setValue(component, name, after > 0 ? QByteArray::number(after) : QByteArray());
}

void ComponentPatch::setRule(TreeComponent &component, const QString &before, const QString &after, bool isAllDay,
                             bool isTypeChanged)
{
    const QStringList present = sortedParts(before);
    const QString wanted = ruleText(after, isAllDay);
    if (sortedParts(wanted) != present && (isTypeChanged || sortedParts(after) != present))
        setValue(component, "RRULE", plainValue(wanted));
}

void ComponentPatch::setParent(TreeComponent &component, Parent which, const QString &before, const QString &after)
{
    const QByteArray value = textValue(after);
    if (after == before || unescapedText(value) == before)
        return;
    const std::vector<const TreeLine *> parents = parentLines(component, which);
    if (parents.empty())
        return component.addLine("RELATED-TO;RELTYPE=PARENT:" + value);
    const TreeLine *read = which == Parent::FirstNamed ? parents.front() : parents.back();
    component.rewriteLines("RELATED-TO", [&](const TreeLine &line) -> std::optional<QByteArray> {
        if (value.isEmpty() && isParentRelation(line.content()))
            return std::nullopt;
        return &line == read ? withValue(line.content(), value) : line.text();
    });
}

void ComponentPatch::setAlarms(TreeComponent &component, std::vector<TreeComponent> wanted, ReadReminder read,
                               bool canAdd, qsizetype limit)
{
    qsizetype count = 0;
    std::vector<TreeComponent *> others;
    for (TreeComponent *present : component.components("VALARM")) {
        const std::optional<ReminderKey> key = reminderKey(*present, read);
        if (!key || count++ >= limit)
            continue;
        const auto match =
            std::ranges::find_if(wanted, [&](const TreeComponent &alarm) { return reminderKey(alarm, read) == key; });
        if (match == wanted.end())
            others.push_back(present);
        else
            wanted.erase(match);
    }
    // One that would not be read would be missing again the next time.
    std::erase_if(wanted, [&](const TreeComponent &alarm) { return !canAdd || !reminderKey(alarm, read); });
    std::erase_if(others, [&](TreeComponent *present) {
        const QString action = reminderKey(*present, read)->second;
        const auto moved = std::ranges::find_if(
            wanted, [&](const TreeComponent &alarm) { return reminderKey(alarm, read)->second == action; });
        if (moved == wanted.end())
            return false;
        present->setLine(moved->lastLine("TRIGGER")->text());
        wanted.erase(moved);
        return true;
    });
    component.removeComponents(
        [&others](const TreeComponent &present) { return std::ranges::find(others, &present) != others.end(); });
    for (TreeComponent &missing : wanted)
        component.addComponent(std::move(missing));
}

TreeComponent ComponentPatch::alarm(const Reminder &reminder, const QByteArray &trigger, const QString &text)
{
    const int minutes = reminder.minutesBefore;
    const QByteArray action = plainValue(reminder.action.trimmed().toUpper());
    TreeComponent alarm("VALARM");
    alarm.addLine("ACTION:" + (action.isEmpty() ? QByteArrayLiteral("DISPLAY") : action));
    alarm.addLine("DESCRIPTION:" + textValue(text));
    alarm.addLine(trigger + (minutes <= 0 ? QByteArrayLiteral(":PT0S") : ":-PT" + QByteArray::number(minutes) + 'M'));
    return alarm;
}

void ComponentPatch::stamp(TreeComponent &component, const QDateTime &now, int sequence)
{
    const QByteArray time = RruleExpander::formatRecurrenceId(now).toLatin1();
    component.setLine("DTSTAMP:" + time);
    component.setLine("LAST-MODIFIED:" + time);
    component.setLine("SEQUENCE:" + QByteArray::number(sequence));
}
