#include "calendar/ICalLineText.h"

#include "calendar/ICalParser.h"

#include <algorithm>

using namespace ICal;

namespace {

bool isControl(QChar c)
{
    return (c < u' ' && c != u'\t') || c == QChar(0x7F);
}

QString withoutControls(QString text)
{
    return text.removeIf(isControl);
}

// RFC 3986 §3.1
bool hasScheme(QStringView text)
{
    const qsizetype colon = text.indexOf(u':');
    const auto isSchemeCharacter = [](QChar c) {
        return (c.isLetterOrNumber() && c.unicode() < 0x80) || c == u'+' || c == u'-' || c == u'.';
    };
    return colon > 0 && std::ranges::all_of(text.first(colon), isSchemeCharacter);
}

QByteArray part(const Parameter &parameter)
{
    const QByteArray value = parameter.value.toByteArray();
    return parameter.name.isEmpty() ? ';' + value : ';' + parameter.name.toByteArray() + '=' + value;
}

}

QByteArray ICal::textValue(const QString &text)
{
    return withoutControls(ICalParser::escapeText(text)).toUtf8();
}

QByteArray ICal::plainValue(const QString &text)
{
    return withoutControls(text).toUtf8();
}

QByteArray ICal::addressValue(const QString &address)
{
    const QString plain = withoutControls(address);
    return (hasScheme(plain) || plain.startsWith(u'/') ? plain : QStringLiteral("mailto:") + plain).toUtf8();
}

QByteArray ICal::parameterValue(const QString &text)
{
    const QByteArray value = withoutControls(text).replace(u'"', u'\'').toUtf8();
    const bool needsQuotes = value.contains(',') || value.contains(';') || value.contains(':');
    return needsQuotes ? '"' + value + '"' : value;
}

QByteArray ICal::withValue(const ContentLine &line, const QByteArray &value)
{
    QByteArray text = line.name().toByteArray();
    if (!line.parameters().isEmpty())
        text += ';' + line.parameters().toByteArray();
    return text + ':' + value;
}

QByteArray ICal::withParameter(const ContentLine &line, QByteArrayView name, const QByteArray &value)
{
    QByteArray text = line.name().toByteArray();
    QByteArrayView rest = line.parameters();
    Parameter parameter;
    bool isSet = false;
    while (takeParameter(rest, parameter)) {
        if (!isWord(parameter.name, name)) {
            text += part(parameter);
        } else if (!isSet) {
            text += part({ .name = parameter.name, .value = value });
            isSet = true;
        }
    }
    if (!isSet)
        text += part({ .name = name, .value = value });
    return text + ':' + line.value().toByteArray();
}

QByteArray ICal::withoutParameters(const ContentLine &line, std::initializer_list<QByteArrayView> names)
{
    QByteArray text = line.name().toByteArray();
    QByteArrayView rest = line.parameters();
    Parameter parameter;
    while (takeParameter(rest, parameter)) {
        if (std::ranges::none_of(names, [&](QByteArrayView name) { return isWord(parameter.name, name); }))
            text += part(parameter);
    }
    return text + ':' + line.value().toByteArray();
}
