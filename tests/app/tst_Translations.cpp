#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

struct Message {
    QString context;
    QString source;
    QString comment;
    QString type; ///< "unfinished" and the like; empty for a finished entry
    bool isPlural = false;
    QStringList translations; ///< one for each plural form

    [[nodiscard]] QString key() const { return context + u'|' + source + u'|' + comment; }
};

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message;
    message.context = context;
    message.isPlural = xml.attributes().value(QLatin1StringView("numerus")) == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.type = xml.attributes().value(QLatin1StringView("type")).toString();
            if (!message.isPlural)
                message.translations = {xml.readElementText()};
            else
                while (xml.readNextStartElement())
                    message.translations += xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
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
    static const QRegularExpression pattern(QStringLiteral("%(L?\\d|L?n)"));
    QStringList found;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        found += match.next().captured();
    found.sort();
    found.removeDuplicates();
    return found;
}

bool hasMnemonic(QString text)
{
    return text.remove(QStringLiteral("&&")).contains(u'&');
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
    void initTestCase();
    void wholeAndSound_data();
    void wholeAndSound();
    void englishIsEmpty();

private:
    QTemporaryDir m_dir;
    QList<Message> m_source; // what the code asks for now
};

void TestTranslations::initTestCase()
{
    const QString fresh = m_dir.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(QUILLON_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral(QUILLON_SOURCE_DIR "/src"), QStringLiteral("-ts"), fresh});
    QVERIFY(lupdate.waitForFinished(60'000));
    m_source = readCatalogue(fresh);
    QVERIFY(m_source.size() > 100);
}

void TestTranslations::wholeAndSound_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pluralForms");
    QTest::newRow("German") << QStringLiteral("de") << 2;
    QTest::newRow("Spanish") << QStringLiteral("es") << 2;
    QTest::newRow("French") << QStringLiteral("fr") << 2;
    QTest::newRow("Japanese") << QStringLiteral("ja") << 1;
}

void TestTranslations::wholeAndSound()
{
    QFETCH(QString, language);
    QFETCH(int, pluralForms);

    QHash<QString, Message> translated;
    for (const Message &message : readCatalogue(cataloguePath(language)))
        translated.insert(message.key(), message);

    QStringList problems;
    for (const Message &wanted : std::as_const(m_source)) {
        const Message found = translated.value(wanted.key());
        const auto complain = [&](const char *what) { problems += QStringLiteral("%1: %2").arg(QLatin1StringView(what), wanted.key()); };
        if (found.translations.isEmpty()) {
            complain("missing");
            continue;
        }
        if (!found.type.isEmpty())
            complain("not finished");
        if (wanted.isPlural && found.translations.size() != pluralForms)
            complain("wrong number of plural forms");
        for (const QString &text : found.translations) {
            if (text.trimmed().isEmpty())
                complain("empty");
            else if (placeholders(text) != placeholders(wanted.source))
                complain("other placeholders");
            else if (hasMnemonic(text) != hasMnemonic(wanted.source))
                complain("mnemonic lost or added");
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void TestTranslations::englishIsEmpty()
{
    QVERIFY(QFile::exists(cataloguePath(QStringLiteral("en"))));
    QVERIFY(readCatalogue(cataloguePath(QStringLiteral("en"))).isEmpty());
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_Translations.moc"
