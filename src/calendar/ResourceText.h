#pragma once

#include "calendar/ICalTree.h"
#include "calendar/ResourceComposer.h"

#include <QByteArray>
#include <QSet>

#include <vector>

/// The text of a resource while it is being patched: one VCALENDAR, or as many as the server has put into it.
class ResourceText {
public:
    /// A text without a whole VCALENDAR counts as none.
    explicit ResourceText(const QByteArray &newest);

    [[nodiscard]] bool isNew() const { return m_isNew; }
    /// Valid until the next change of this object.
    [[nodiscard]] std::vector<ICal::TreeComponent *> components(QByteArrayView name);
    /// Behind those of its name.
    void addComponent(ICal::TreeComponent component);
    void removeComponents(const std::vector<const ICal::TreeComponent *> &removed);

    /// The components with this name in the text that a record came with, to be patched and added. The zones that it
    /// describes are remembered for those.
    std::vector<ICal::TreeComponent> stored(const QString &text, QByteArrayView name);

    /// What is left, with a VTIMEZONE for each zone that was not named before and that none describes. Such a one
    /// begins with \p firstYear.
    ResourceComposer::Composed composed(int firstYear);

private:
    using Zones = QSet<QByteArray>;

    [[nodiscard]] Zones namedZones() const;
    [[nodiscard]] Zones describedZones() const;
    void describeZones(int firstYear);
    [[nodiscard]] ICal::TreeComponent zoneText(const QByteArray &tzid, int firstYear) const;

    QByteArray m_newest;
    ICal::TreeComponent m_root;
    bool m_isNew = false;
    Zones m_namedBefore;
    std::vector<ICal::TreeComponent> m_storedZones;
};
