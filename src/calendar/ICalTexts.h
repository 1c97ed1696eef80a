#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <array>
#include <string>

namespace ICal {

/// RFC 5545 §3.3.11.
QString unescapedText(QByteArrayView value);
/// The values of a list of such, without the blanks around them and without empty ones.
QStringList unescapedList(QByteArrayView value);
/// In lower case.
QString lowerCaseText(QByteArrayView value);

/// Decodes texts that files repeat, such as addresses, places and rules: equal ones that follow closely share
/// their characters.
class RepeatedTexts {
public:
    using Decoder = QString (*)(QByteArrayView utf8);

    QString text(QByteArrayView utf8, Decoder decode = QString::fromUtf8);

private:
    struct Entry {
        Decoder decode = nullptr;
        std::string utf8;
        QString text;
    };

    std::array<Entry, 128> m_entries; // each text has one place only
};

} // namespace ICal
