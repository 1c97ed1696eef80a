#pragma once

#include "calendar/ICalAlarm.h"
#include "calendar/ICalDateTime.h"
#include "calendar/ICalLine.h"
#include "calendar/ICalTexts.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace ICal {

/// The properties that a builder reads, and its member that reads each.
template <typename Builder, size_t Size> class PropertyTable {
public:
    struct Property {
        QByteArrayView name;
        void (Builder::*read)(const ContentLine &line);
    };

    /// No name is longer than 31 bytes.
    explicit constexpr PropertyTable(std::array<Property, Size> properties)
        : m_properties(properties)
    {
        std::ranges::sort(m_properties, {}, nameLength);
        for (size_t length = 0; length < m_begins.size(); ++length) {
            const auto begin = std::ranges::lower_bound(m_properties, qsizetype(length), {}, nameLength);
            m_begins[length] = size_t(begin - m_properties.begin());
        }
    }

    /// Leaves out a line whose name is not in the table.
    void read(Builder &builder, const ContentLine &line) const
    {
        const auto length = size_t(line.name().size());
        if (length + 1 >= m_begins.size())
            return;
        for (size_t i = m_begins[length]; i < m_begins[length + 1]; ++i) {
            if (line.is(m_properties[i].name))
                return (builder.*m_properties[i].read)(line);
        }
    }

private:
    static constexpr qsizetype nameLength(const Property &property) { return property.name.size(); }

    std::array<Property, Size> m_properties; // by length of name
    std::array<size_t, 33> m_begins{}; // of the names of each length
};

/// What the builders of events and tasks have in common: they collect the text of a component, read its
/// properties into a record, and know which lines belong to an alarm.
template <typename Record> class RecordBuilder {
protected:
    /// Starts afresh, with \p head as the text so far.
    void begin(std::string_view head)
    {
        m_record = m_blank;
        m_raw.assign(head);
        m_alarm.reset();
        m_foreignDepth = 0;
    }

    /// Takes one unfolded line, and reads it with the members of \p builder: readProperty() outside alarms,
    /// addAlarm() at the end of each.
    template <typename Builder> void addLine(QByteArrayView line, Builder &builder)
    {
        m_raw.append(line.data(), size_t(line.size()));
        m_raw += '\r';
        m_raw += '\n';
        if (!m_alarm) {
            addLineOutsideAlarms(line, builder);
        } else if (line == "BEGIN:VALARM") {
            m_alarm.emplace();
        } else if (line == "END:VALARM") {
            builder.addAlarm(*m_alarm);
            m_alarm.reset();
        } else {
            m_alarm->readLine(ContentLine(line));
        }
    }

    [[nodiscard]] size_t textBytes() const { return m_raw.size(); }

    /// Ends the text with \p tail. The record stays until the next begin(), to be moved away.
    Record &finish(std::string_view tail)
    {
        m_raw.append(tail);
        m_record.rawIcalendar = QString::fromUtf8(m_raw.data(), qsizetype(m_raw.size()));
        return m_record;
    }

    ICalParser::DateTimeValue readTime(const ContentLine &line)
    {
        return m_times.read(line.value(), line.parameter("TZID"));
    }

    template <QString Record::*Field> void readText(const ContentLine &line)
    {
        m_record.*Field = unescapedText(line.value());
    }
    template <QString Record::*Field> void readAsItStands(const ContentLine &line)
    {
        m_record.*Field = m_repeated.text(line.value());
    }
    template <QString Record::*Field> void readLowerCase(const ContentLine &line)
    {
        m_record.*Field = m_repeated.text(line.value(), lowerCaseText);
    }
    template <int Record::*Field> void readNumber(const ContentLine &line) { m_record.*Field = line.value().toInt(); }
    template <QDateTime Record::*Field> void readStamp(const ContentLine &line)
    {
        m_record.*Field = readTime(line).value.toUTC();
    }

    Record m_record;
    DateTimeReader m_times; // knows the zones of the whole file
    RepeatedTexts m_repeated; // of the whole file

private:
    template <typename Builder> void addLineOutsideAlarms(QByteArrayView line, Builder &builder)
    {
        const ContentLine content(line);
        if (m_foreignDepth == 0 && line == "BEGIN:VALARM")
            m_alarm.emplace();
        else if (content.is("BEGIN"))
            ++m_foreignDepth;
        else if (m_foreignDepth == 0)
            builder.readProperty(content);
        else if (content.is("END"))
            --m_foreignDepth;
    }

    const Record m_blank{}; // copied, as the default values of a new record would be texts of its own
    std::string m_raw; // kept for its capacity
    std::optional<Alarm> m_alarm; // set while within a VALARM
    int m_foreignDepth = 0; // of components such as VLOCATION, whose properties are their own; RFC 9073
};

} // namespace ICal
