#include "support/ScratchState.h"
#include "ui/dialogs/GroupName.h"
#include "ui/dialogs/ManageFiltersDialog.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QPushButton *button(QWidget &dialog, const QString &text)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&text](const QPushButton *candidate) {
        return QString(candidate->text()).remove(u'&') == text;
    });
    return found == buttons.end() ? nullptr : *found;
}

QListWidget *list(const QWidget &dialog)
{
    return dialog.findChild<QListWidget *>();
}

QStringList titles(const QWidget &dialog)
{
    QStringList texts;
    for (int row = 0; row < list(dialog)->count(); ++row)
        texts.append(list(dialog)->item(row)->text());
    return texts;
}

/// Translates the names of groups while it lives.
class Upper : public QTranslator {
public:
    Upper() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "GroupName") == 0 ? QString::fromUtf8(text).toUpper() : QString();
    }
};

const QString A = QStringLiteral("A");
const QString B = QStringLiteral("B");

}

class tst_ManageDialogs : public QObject {
    Q_OBJECT

private slots:
    void movingAFilterChangesWhichOneDecides()
    {
        ScratchState state;
        ManageFiltersDialog dialog(state.state());
        QVERIFY(list(dialog)->isHidden()); // a text says what to do
        QVERIFY(!button(dialog, u"Edit…"_qs)->isEnabled());
        state.addFilter(A, A);
        state.addFilter(B, B);
        QTRY_COMPARE(titles(dialog), QStringList({ A, B }));
        QVERIFY(!list(dialog)->isHidden());
        list(dialog)->setCurrentRow(1);
        QVERIFY(!button(dialog, u"Move Down"_qs)->isEnabled());
        button(dialog, u"Move Up"_qs)->click();
        QTRY_COMPARE(titles(dialog), QStringList({ B, A }));
        QVERIFY(state->filterRules()->getById(B)->priority < state->filterRules()->getById(A)->priority);
        QCOMPARE(list(dialog)->currentRow(), 0); // the moved one stays selected

        QVERIFY(list(dialog)->model()->moveRow({}, 1, {}, 0)); // as a drop inside the list does
        QTRY_COMPARE(state->filterRules()->getAll().constFirst().id, A);
        QTRY_COMPARE(titles(dialog), QStringList({ A, B }));
        list(dialog)->item(0)->setCheckState(Qt::Unchecked);
        QVERIFY(!state->filterRules()->getById(A)->enabled);
    }

    void theBuiltInGroupStaysOnTop()
    {
        ScratchState state;
        state.addGroup(A);
        state.addGroup(B);
        ManageViewsDialog dialog(state.state());
        QCOMPARE(titles(dialog).size(), 3);
        list(dialog)->setCurrentRow(0);
        QVERIFY(!button(dialog, u"Delete"_qs)->isEnabled());
        QVERIFY(!button(dialog, u"Move Down"_qs)->isEnabled());
        list(dialog)->setCurrentRow(1);
        QVERIFY(!button(dialog, u"Move Up"_qs)->isEnabled());
        button(dialog, u"Move Down"_qs)->click();
        QTRY_COMPARE(titles(dialog).mid(1), QStringList({ B, A }));
        QVERIFY(list(dialog)->model()->moveRow({}, 2, {}, 0)); // dropped above it
        QTRY_COMPARE(titles(dialog).mid(1), QStringList({ A, B }));
        QCOMPARE(state->views()->getAll().constFirst().id, QString(ViewDefaults::AllCalendarsId));
    }

    void theBuiltInGroupsNameIsTranslated()
    {
        ScratchState state;
        state.addGroup(u"All Calendars"_qs); // the user's own by that name
        const Upper translator;
        ManageViewsDialog dialog(state.state());
        QCOMPARE(titles(dialog), QStringList({ u"ALL CALENDARS"_qs, u"All Calendars"_qs }));
        ViewDef builtIn = *state->views()->getById(ViewDefaults::AllCalendarsId);
        builtIn.name = u"Mine"_qs;
        QCOMPARE(groupDisplayName(builtIn), u"Mine"_qs);
    }

    void deletingTheActiveGroupFallsBack()
    {
        ScratchState state;
        state.addGroup(A);
        state.addGroup(B);
        state->setActiveViewId(A);
        ManageViewsDialog dialog(state.state());
        Prompt::ScopedAnswers answers;
        list(dialog)->setCurrentRow(2);
        button(dialog, u"Delete"_qs)->click();
        QTRY_COMPARE(titles(dialog).size(), 2);
        QCOMPARE(state->activeViewId(), A);
        list(dialog)->setCurrentRow(1);
        button(dialog, u"Delete"_qs)->click();
        QTRY_COMPARE(titles(dialog).size(), 1);
        QCOMPARE(state->activeViewId(), QString(ViewDefaults::AllCalendarsId));
        QCOMPARE(answers.asked.constFirst().text, u"Delete \"B\"? You can recreate it later."_qs);
    }
};

QTEST_MAIN(tst_ManageDialogs)
#include "tst_ManageDialogs.moc"
