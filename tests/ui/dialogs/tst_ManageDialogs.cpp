#include "storage/FilterRuleRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/GroupName.h"
#include "ui/dialogs/ManageFiltersDialog.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

namespace {

QPushButton *button(QWidget &dialog, const QString &text)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (QString(candidate->text()).remove(u'&') == text)
            return candidate;
    }
    return nullptr;
}

QStringList titles(QWidget &dialog)
{
    QStringList texts;
    const auto *list = dialog.findChild<QListWidget *>();
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

void addView(ScratchState &state, const QString &name, int position)
{
    ViewDef view;
    view.id = name;
    view.name = name;
    view.sortOrder = position;
    view.createdAt = QDateTime::currentDateTimeUtc();
    view.updatedAt = view.createdAt;
    QVERIFY(state->views()->insert(view));
}

void addRule(ScratchState &state, const QString &name, int priority)
{
    FilterRule rule;
    rule.id = name;
    rule.name = name;
    rule.type = FilterType::AllDay;
    rule.conditions = QStringLiteral(R"({"runtimeType":"allDay"})");
    rule.priority = priority;
    rule.createdAt = QDateTime::currentDateTimeUtc();
    rule.updatedAt = rule.createdAt;
    QVERIFY(state->filterRules()->insert(rule));
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
        addRule(state, A, 50);
        addRule(state, B, 90);
        ManageFiltersDialog dialog(state.state());
        QCOMPARE(titles(dialog), QStringList({ A, B }));
        dialog.findChild<QListWidget *>()->setCurrentRow(1);
        QVERIFY(!button(dialog, QStringLiteral("Move Down"))->isEnabled());
        button(dialog, QStringLiteral("Move Up"))->click();
        QTRY_COMPARE(titles(dialog), QStringList({ B, A }));
        QVERIFY(state->filterRules()->getById(B)->priority < state->filterRules()->getById(A)->priority);
        QCOMPARE(dialog.findChild<QListWidget *>()->currentRow(), 0); // the moved one stays selected
    }

    void draggingARowStoresTheOrder()
    {
        ScratchState state;
        addRule(state, A, 50);
        addRule(state, B, 90);
        ManageFiltersDialog dialog(state.state());
        QAbstractItemModel *model = dialog.findChild<QListWidget *>()->model();
        QVERIFY(model->moveRow({}, 1, {}, 0)); // as a drop inside the list does
        QTRY_COMPARE(state->filterRules()->getAll().constFirst().id, B);
        QTRY_COMPARE(titles(dialog), QStringList({ B, A }));
    }

    void theCheckBoxSwitchesAFilter()
    {
        ScratchState state;
        addRule(state, A, 1);
        ManageFiltersDialog dialog(state.state());
        dialog.findChild<QListWidget *>()->item(0)->setCheckState(Qt::Unchecked);
        QVERIFY(!state->filterRules()->getById(A)->enabled);
    }

    void saysWhatToDoWhenThereIsNothing()
    {
        ScratchState state;
        ManageFiltersDialog dialog(state.state());
        QVERIFY(dialog.findChild<QListWidget *>()->isHidden());
        QVERIFY(!button(dialog, QStringLiteral("Edit…"))->isEnabled());
        addRule(state, A, 1);
        QTRY_COMPARE(titles(dialog), QStringList{ A });
        QVERIFY(!dialog.findChild<QListWidget *>()->isHidden());
    }

    void theBuiltInGroupStaysOnTop()
    {
        ScratchState state;
        addView(state, A, 1);
        addView(state, B, 2);
        ManageViewsDialog dialog(state.state());
        auto *list = dialog.findChild<QListWidget *>();
        QCOMPARE(list->count(), 3);
        list->setCurrentRow(0);
        QVERIFY(!button(dialog, QStringLiteral("Delete"))->isEnabled());
        QVERIFY(!button(dialog, QStringLiteral("Move Down"))->isEnabled());
        list->setCurrentRow(1);
        QVERIFY(!button(dialog, QStringLiteral("Move Up"))->isEnabled());
        button(dialog, QStringLiteral("Move Down"))->click();
        QTRY_COMPARE(titles(dialog).mid(1), QStringList({ B, A }));

        QVERIFY(list->model()->moveRow({}, 2, {}, 0)); // dropped above it
        QTRY_COMPARE(titles(dialog).mid(1), QStringList({ A, B }));
        QCOMPARE(state->views()->getAll().constFirst().id, QString(ViewDefaults::AllCalendarsId));
    }

    void theBuiltInGroupsNameIsTranslated()
    {
        ScratchState state;
        addView(state, QStringLiteral("All Calendars"), 1); // the user's own by that name
        const Upper translator;
        ManageViewsDialog dialog(state.state());
        QCOMPARE(titles(dialog), QStringList({ QStringLiteral("ALL CALENDARS"), QStringLiteral("All Calendars") }));
        ViewDef builtIn = *state->views()->getById(ViewDefaults::AllCalendarsId);
        builtIn.name = QStringLiteral("Mine");
        QCOMPARE(groupDisplayName(builtIn), QStringLiteral("Mine"));
    }

    void deletingTheActiveGroupFallsBack()
    {
        ScratchState state;
        addView(state, A, 1);
        addView(state, B, 2);
        state->setActiveViewId(A);
        ManageViewsDialog dialog(state.state());
        auto *list = dialog.findChild<QListWidget *>();
        Prompt::ScopedAnswers answers;
        list->setCurrentRow(2);
        button(dialog, QStringLiteral("Delete"))->click();
        QTRY_COMPARE(titles(dialog).size(), 2);
        QCOMPARE(state->activeViewId(), A);
        list->setCurrentRow(1);
        button(dialog, QStringLiteral("Delete"))->click();
        QTRY_COMPARE(titles(dialog).size(), 1);
        QCOMPARE(state->activeViewId(), QString(ViewDefaults::AllCalendarsId));
        QCOMPARE(answers.asked.constFirst().text, QStringLiteral("Delete \"B\"? You can recreate it later."));
    }
};

QTEST_MAIN(tst_ManageDialogs)
#include "tst_ManageDialogs.moc"
