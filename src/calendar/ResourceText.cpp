#include "calendar/ResourceText.h"

#include "calendar/ICalParser.h"
#include "calendar/ICalTexts.h"
#include "calendar/TimeZoneText.h"
#include "calendar/TimeZones.h"

#include <algorithm>

using ICal::TreeComponent;
using ICal::TreeLine;

namespace {

constexpr QByteArrayView Calendar{ "VCALENDAR" };
constexpr QByteArrayView TimeZone{ "VTIMEZONE" };

std::optional<TreeComponent> calendarsIn(QByteArrayView text)
{
    std::optional<TreeComponent> root = TreeComponent::parse(text);
    return root && !root->components(Calendar).empty() ? root : std::nullopt;
}

TreeComponent emptyCalendar()
{
    TreeComponent calendar(Calendar);
    calendar.addLine("VERSION:2.0");
    calendar.addLine(QByteArray("PRODID:") + ICalParser::ProductId);
    TreeComponent root = *TreeComponent::parse({});
    root.addComponent(std::move(calendar));
    return root;
}

void collectZones(const TreeComponent &component, QSet<QByteArray> &zones)
{
    for (const TreeComponent::Item &item : component.items()) {
        if (const auto *line = std::get_if<TreeLine>(&item)) {
            if (const QByteArrayView tzid = line->content().parameter("TZID"); !tzid.isEmpty())
                zones.insert(tzid.toByteArray());
        } else if (const auto &part = std::get<TreeComponent>(item); !part.is(TimeZone)) {
            collectZones(part, zones);
        }
    }
}

QByteArray tzidOf(const TreeComponent &zone)
{
    const TreeLine *line = zone.lastLine("TZID");
    return line ? ICal::unescapedText(line->content().value()).toUtf8() : QByteArray();
}

}

ResourceText::ResourceText(const QByteArray &newest)
    : m_newest(newest)
    , m_root(emptyCalendar())
    , m_isNew(true)
{
    std::optional<TreeComponent> root = calendarsIn(newest);
    if (!root)
        return;
    m_root = *std::move(root);
    m_isNew = false;
    m_namedBefore = namedZones();
}

std::vector<TreeComponent *> ResourceText::components(QByteArrayView name)
{
    std::vector<TreeComponent *> all;
    for (TreeComponent *calendar : m_root.components(Calendar)) {
        const std::vector<TreeComponent *> parts = calendar->components(name);
        all.insert(all.end(), parts.begin(), parts.end());
    }
    return all;
}

void ResourceText::addComponent(TreeComponent component)
{
    m_root.components(Calendar).front()->addComponent(std::move(component));
}

void ResourceText::removeComponents(const std::vector<const TreeComponent *> &removed)
{
    // The others may move up as soon as the first one goes: these are asked for before they do.
    for (TreeComponent *calendar : m_root.components(Calendar)) {
        calendar->removeComponents(
            [&removed](const TreeComponent &part) { return std::ranges::find(removed, &part) != removed.end(); });
    }
}

std::vector<TreeComponent> ResourceText::stored(const QString &text, QByteArrayView name)
{
    std::vector<TreeComponent> found;
    const auto collect = [&](const TreeComponent &parent) {
        for (const TreeComponent *part : parent.components(name))
            found.push_back(*part);
        for (const TreeComponent *zone : parent.components(TimeZone))
            m_storedZones.push_back(*zone);
    };
    const std::optional<TreeComponent> root = TreeComponent::parse(text.toUtf8());
    if (!root)
        return found;
    collect(*root); // stored texts need no VCALENDAR around them
    for (const TreeComponent *calendar : root->components(Calendar))
        collect(*calendar);
    for (TreeComponent &part : found)
        part.refold();
    return found;
}

ResourceComposer::Composed ResourceText::composed(int firstYear)
{
    if (components("VEVENT").empty() && components("VTODO").empty())
        return { .text = {}, .isChanged = !m_newest.isEmpty() };
    if (!m_isNew && !m_root.isChanged())
        return { .text = m_newest, .isChanged = false };
    describeZones(firstYear);
    return { .text = m_root.bytes(), .isChanged = true };
}

ResourceText::Zones ResourceText::namedZones() const
{
    Zones zones;
    collectZones(m_root, zones);
    return zones;
}

ResourceText::Zones ResourceText::describedZones() const
{
    Zones zones;
    for (const TreeComponent *calendar : m_root.components(Calendar)) {
        for (const TreeComponent *zone : calendar->components(TimeZone))
            zones.insert(tzidOf(*zone));
    }
    return zones;
}

void ResourceText::describeZones(int firstYear)
{
    const Zones missing = namedZones() - m_namedBefore - describedZones();
    QByteArrayList names(missing.begin(), missing.end());
    std::ranges::sort(names, std::greater()); // each goes before the others
    for (const QByteArray &tzid : std::as_const(names))
        m_root.components(Calendar).front()->prependComponent(zoneText(tzid, firstYear));
}

TreeComponent ResourceText::zoneText(const QByteArray &tzid, int firstYear) const
{
    const auto stored = std::ranges::find(m_storedZones, tzid, tzidOf);
    if (stored != m_storedZones.end())
        return *stored;
    const QString name = QString::fromUtf8(tzid);
    const QTimeZone zone = TimeZones::find(name);
    // Times of a zone that is not known were read by the machine's clock.
    return TimeZoneText::component(name, zone.isValid() ? zone : QTimeZone::systemTimeZone(), firstYear);
}
