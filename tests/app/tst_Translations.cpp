#include "support/TestData.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct Message {
    QString key; ///< context, source and comment
    QString source;
    QString type; ///< "unfinished" and the like; empty for a finished entry
    bool isPlural = false;
    QStringList translations; ///< one for each plural form
};

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message;
    QString comment;
    message.isPlural = xml.attributes().value("numerus"_L1) == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.type = xml.attributes().value("type"_L1).toString();
            if (!message.isPlural)
                message.translations = { xml.readElementText() };
            else
                while (xml.readNextStartElement())
                    message.translations += xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    message.key = context + u'|' + message.source + u'|' + comment;
    return message;
}

QList<Message> readCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == u"message")
            messages += readMessage(xml, context);
    }
    return messages;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(u"%(L?\\d|L?n)"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        found += match.captured();
    found.sort();
    found.removeDuplicates();
    return found;
}

bool hasMnemonic(QString text)
{
    return text.remove(u"&&"_s).contains(u'&');
}

QString cataloguePath(const QString &language)
{
    return QStringLiteral(QUILLON_SOURCE_DIR "/resources/i18n/calendar_%1.ts").arg(language);
}

}

/// The catalogues that ship are whole.
class TestTranslations : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString fresh = m_dir.filePath(u"fresh.ts"_s);
        QProcess lupdate;
        lupdate.start(QStringLiteral(QUILLON_LUPDATE),
                      { u"-silent"_s, QStringLiteral(QUILLON_SOURCE_DIR "/src"), u"-ts"_s, fresh });
        QVERIFY(lupdate.waitForFinished(60'000));
        m_source = readCatalogue(fresh);
        QVERIFY(m_source.size() > 100);
    }

    void wholeAndSound_data()
    {
        columns<QString, int>("language", "pluralForms");
        row("German", "de", 2);
        row("Spanish", "es", 2);
        row("French", "fr", 2);
        row("Japanese", "ja", 1);
    }
    void wholeAndSound()
    {
        QFETCH(QString, language);
        QFETCH(int, pluralForms);
        QHash<QString, Message> translated;
        for (const Message &message : readCatalogue(cataloguePath(language)))
            translated.insert(message.key, message);

        QStringList problems;
        for (const Message &wanted : std::as_const(m_source)) {
            const Message found = translated.value(wanted.key);
            const auto complain = [&](QLatin1StringView what) { problems += what + u": "_s + wanted.key; };
            if (found.translations.isEmpty())
                complain("missing"_L1);
            else if (!found.type.isEmpty())
                complain("not finished"_L1);
            else if (wanted.isPlural && found.translations.size() != pluralForms)
                complain("wrong number of plural forms"_L1);
            for (const QString &text : found.translations) {
                if (text.trimmed().isEmpty())
                    complain("empty"_L1);
                else if (placeholders(text) != placeholders(wanted.source))
                    complain("other placeholders"_L1);
                else if (hasMnemonic(text) != hasMnemonic(wanted.source))
                    complain("mnemonic lost or added"_L1);
            }
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    }

    void englishIsEmpty()
    {
        QVERIFY(QFile::exists(cataloguePath(u"en"_s)));
        QVERIFY(readCatalogue(cataloguePath(u"en"_s)).isEmpty());
    }

private:
    QTemporaryDir m_dir;
    QList<Message> m_source; // what the code asks for now
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_Translations.moc"
