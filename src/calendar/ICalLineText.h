#pragma once

#include "calendar/ICalLine.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>

/// Content lines as bytes, unfolded. Whatever the values hold, none of them ends the line or becomes another part of
/// it.
namespace ICal {

/// A TEXT value (RFC 5545 §3.3.11); control characters are left out.
QByteArray textValue(const QString &text);
/// A value that is not escaped, such as a URI or a rule; control characters and line breaks are left out.
QByteArray plainValue(const QString &text);
/// A CAL-ADDRESS: a mailto URI, unless \p address is a URI or a path already.
QByteArray addressValue(const QString &address);
/// The value of a parameter, in quotes where it needs them. A quote in it becomes an apostrophe, as readers know no
/// other form that all understand.
QByteArray parameterValue(const QString &text);

/// \p line with another value.
QByteArray withValue(const ContentLine &line, const QByteArray &value);
/// \p line with the parameter set to \p value, which stands as it is; in the place of one of that name, else behind
/// all others.
QByteArray withParameter(const ContentLine &line, QByteArrayView name, const QByteArray &value);
QByteArray withoutParameters(const ContentLine &line, std::initializer_list<QByteArrayView> names);

} // namespace ICal
