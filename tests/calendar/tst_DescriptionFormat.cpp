#include "calendar/DescriptionFormat.h"
#include "support/HarmlessHtml.h"
#include "support/TestData.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Invitation =
    u"Agenda\n\n________________\nMicrosoft Teams\nNeed help?<https://aka.ms/join>\n"
    "Join the meeting now<https://teams.microsoft.com/l/meetup?a=1&b=2>\nMeeting ID: 12\n\n\n\n\n"
    "See <https://example.com/x>\nFor organizers: Meeting options\n\nlegal text"_s;

QString safe(const QString &text)
{
    return DescriptionFormat::toSafeHtml(text, {}, {});
}

}

class tst_DescriptionFormat : public QObject {
    Q_OBJECT

private slots:
    void cleansInvitations()
    {
        const QString rest = u"Meeting ID: 12\n\nSee https://example.com/x"_s;
        QCOMPARE(
            DescriptionFormat::clean(Invitation, {}),
            u"Agenda\n\n<a href=\"https://teams.microsoft.com/l/meetup?a=1&b=2\">Join Microsoft Teams Meeting</a>\n\n"_s
                + rest);
        QCOMPARE(DescriptionFormat::clean(Invitation, u"https://elsewhere.example"_s), u"Agenda\n\n"_s + rest);
        const QString other = u"____\n\n\n\n\nNeed help? <https://example.com> \n"_s;
        QCOMPARE(DescriptionFormat::clean(other, {}), other);
    }

    void linkifies_data()
    {
        columns<QString, QString>("text", "expected");
        const QString link = u"<a href=\"https://x.org/a\" style=\"color:#123456;\">https://x.org/a</a>"_s;
        row("sentence", "See https://x.org/a.", u"See "_s + link + u'.');
        row("bracket", "(https://x.org/a)!?", u'(' + link + u")!?"_s);
        row("two", "https://x.org/a https://x.org/a", link + u' ' + link);
        row("in a tag", "<a href=\"https://x.org/a.\">b</a>", u"<a href=\"https://x.org/a.\">b</a>"_s);
        row("in other quotes", "<a href='https://x.org/a'>b</a>", u"<a href='https://x.org/a'>b</a>"_s);
        row("without quotes", "<a href=https://x.org/a>b</a>", u"<a href=https://x.org/a>b</a>"_s);
        row("in an anchor", "<a href='b'>https://x.org/a</a>", u"<a href='b'>https://x.org/a</a>"_s);
        row("other scheme", "ftp://x.org", u"ftp://x.org"_s);
    }
    void linkifies()
    {
        QFETCH(QString, text);
        QTEST(DescriptionFormat::linkifyUrls(text, u"#123456"_s), "expected");
    }

    void showsPlainText_data()
    {
        columns<QString, QString>("text", "expected");
        row("escaped", "a < b & \"c\"\r\n  d", u"a &lt; b &amp; &quot;c&quot;<br>  d"_s);
        row("address in angles", "<https://x.org/?a&b>",
            u"&lt;<a href=\"https://x.org/?a&amp;b\">https://x.org/?a&amp;b</a>&gt;"_s);
        row("quoted address", "\"https://x.org\"", u"&quot;<a href=\"https://x.org\">https://x.org</a>&quot;"_s);
        row("invitation", Invitation,
            u"Agenda<br><br><a href=\"https://teams.microsoft.com/l/meetup?a=1&amp;b=2\">Join Microsoft Teams "
            u"Meeting</a>"
            "<br><br>Meeting ID: 12<br><br>See <a href=\"https://example.com/x\">https://example.com/x</a>"_s);
        row("join line that breaks out",
            "Microsoft Teams Join the meeting now<https://teams.microsoft.com/\" on\nclick=\"x>",
            u"Microsoft Teams <a href=\"https://teams.microsoft.com/&quot; onclick=&quot;x\">"
            "Join Microsoft Teams Meeting</a>"_s);
    }
    void showsPlainText()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(safe(text), u"<div style=\"white-space:pre-wrap;\">"_s + expected + u"</div>"_s);
    }

    void showsHtml_data()
    {
        columns<QString, QString>("text", "expected");
        row("kept", "<p>a <B class=x>b</B><br/>c</p><ul><li>d</ul>", u"<p>a <b>b</b><br>c</p><ul><li>d</li></ul>"_s);
        row("blocks become lines", "<div>a</div><div><div>b</div></div>c<br><div>d</div> <div></div>",
            u"a<br>b<br>c<br>d"_s);
        row("blank line", "<div>a</div><div><br></div><div><b>b</b></div><p>c</p>", u"a<br><br><b>b</b><p>c</p>"_s);
        row("addresses in angles", "<br><https://x.org/a> <ann@x.org><o:p>b</o:p>",
            u"<br>&lt;<a href=\"https://x.org/a\">https://x.org/a</a>&gt; &lt;ann@x.org&gt;b"_s);
        row("table", "<table><tr><td>a<td>b</tr><tr><td>c</table>", u"a b<br>c"_s);
        row("end tags left out", "<p>a<p>b<ol><li>c<li>d<ul><li>e</ul></ol>",
            u"<p>a</p><p>b</p><ol><li>c</li><li>d<ul><li>e</li></ul></li></ol>"_s);
        row("crossed tags", "<p><b>a<i>b</b>c</i></u>", u"<p><b>a<i>b</i></b>c</p>"_s);
        row("not shown",
            "<head><title>t</title><style>p{}</style></head><script>if (a < b) '</p>'</SCRIPT ><p>a<!-- <b> --></p>",
            u"<p>a</p>"_s);
        row("never closed", "<p>a<script>alert(1)", u"<p>a</p>"_s);
        row("images and attributes", "<p onclick=x style='a'>a<img src=http://x onerror=y></p>", u"<p>a</p>"_s);
        row("link", "<a class=x HREF='https://x.org/?a&amp;b' target=_top>c</a>",
            u"<a href=\"https://x.org/?a&amp;b\">c</a>"_s);
        row("mail", "<a href=mailto:a@x.org>https://c.org</a>", u"<a href=\"mailto:a@x.org\">https://c.org</a>"_s);
        row("links do not nest", "<a href=http://a>b<a href=http://c>d</a>e</a>",
            u"<a href=\"http://a\">b</a><a href=\"http://c\">d</a>e"_s);
        row("bare address", "<p>(see https://x.org/?a&amp;b&gt;)",
            u"<p>(see <a href=\"https://x.org/?a&amp;b\">https://x.org/?a&amp;b</a>&gt;)</p>"_s);
        row("references", "<p>&lt;b&gt; &eacute;&nbsp;&#65;&#x2013;&#150; & &nope &#xD800;&#x4 &#x41;",
            u"<p>&lt;b&gt; &eacute;&nbsp;A\u2013&#150; &amp; &amp;nope \uFFFD&amp;#x4 A</p>"_s);
        row("stray brackets", "<br>1 < 2 <3 <> </> > 0 <", u"<br>1 &lt; 2 &lt;3 &lt;&gt; &lt;/&gt; &gt; 0 &lt;"_s);
        row("bracket in quotes", "<p title='a>b' alt=\">\">c</p>", u"<p>c</p>"_s);
        row("quote never closed", "<p title='a>b</p><p>c</p>", u"<p>b</p><p>c</p>"_s);
        row("invitation in one line",
            "<div>Agenda</div><div>Microsoft Teams</div><div>Need help?</div><div>For organizers: x</div>",
            u"Agenda\n"_s);
    }
    void showsHtml()
    {
        QFETCH(QString, text);
        QTEST(safe(text), "expected");
    }

    void letsNothingThrough_data()
    {
        columns<QString>("mustNotHold");
        const auto attack = [](const char *html, const char *mustNotHold = "href") {
            row(html, QString::fromLatin1(mustNotHold));
        };
        for (const char *html :
             { "<a href='javascript:alert(1)'>a</a>", "<a href=' java\nscript:alert(1)'>a</a>",
               "<a href='&#106;avascript&colon;alert(1)'>a</a>", "<a href=\"data:text/html,x\">a</a>",
               "<a href='\x01"
               "file:///etc/passwd'>a</a>",
               "<a href=//x.org>a</a>", "<a href=#a>a</a>", "<a xhref=http://x.org>a</a>",
               "<p><area href=http://x.org>a" })
            attack(html);
        attack("<br><svg onload=alert(1)><p>a", "alert");
        attack("<br><scr<script></script>ipt>alert(1)</script>", "<script");
        attack("<br><script\f>alert(1)</script >", "alert");
        attack("<br><!--><script>alert(1)</script>-->", "alert");
        attack("<br><img src=x:alert(1) onerror='alert(1)' \"><b a=\">", "alert");
        attack("<a href='http://x.org/\"onmouseover=\"a'>a</a>", "\"onmouseover");
        attack("<a href=\"http://x.org\" href=\"javascript:alert(1)\">a</a>", "alert");
        attack("<br>&lt;script&gt;a&lt;/script&gt;", "<script");
        attack("<br>https://x.org/'onclick='a&quot;onclick=&quot;", "\"onclick");
    }
    void letsNothingThrough()
    {
        QFETCH(QString, mustNotHold);
        const QString html =
            DescriptionFormat::toSafeHtml(QString::fromLatin1(QTest::currentDataTag()), {}, u"#123456"_s);
        QVERIFY2(isHarmlessHtml(html), qPrintable(html));
        QVERIFY2(!html.contains(mustNotHold), qPrintable(html));
    }

    void cutsLongText()
    {
        const QString text = u"a b "_s.repeated(50'000);
        QVERIFY(safe(text).endsWith(u"a b …</div>") && safe(text).size() < 11'000);
        QVERIFY(safe(u"<p><b>"_s + text).endsWith(u"…</b></p>") && safe(u"<p>"_s + text).size() < 11'000);
    }

    void endsSoonForHugeText_data()
    {
        columns<QString>("unit");
        for (const char *unit :
             { "<p>", "<b><i>", "<a <a ", "<a \">\" ", "<!--", "<script>", "</script><script", "&amp;&", "<ul><li>",
               "<p title='>", "<", "_ ", "https://x.org ", " \n", "Join the meeting now<https://teams.microsoft.com/",
               "<https://x", "Need help?", "____\n\n" })
            row(unit, QString::fromLatin1(unit));
    }
    void endsSoonForHugeText()
    {
        QFETCH(QString, unit);
        for (const QString &prefix : { u"<br>Microsoft Teams\n"_s, u"Microsoft Teams\n"_s }) {
            const QString text = prefix + unit.repeated(2'000'000 / unit.size()) + u"\">"_s;
            QElapsedTimer clock;
            clock.start();
            const QString html = DescriptionFormat::toSafeHtml(text, {}, u"#123456"_s);
            QVERIFY2(clock.elapsed() < 1500, qPrintable(QString::number(clock.elapsed())));
            QVERIFY(isHarmlessHtml(html) && html.size() < 100'000);
        }
    }
};

QTEST_GUILESS_MAIN(tst_DescriptionFormat)
#include "tst_DescriptionFormat.moc"
