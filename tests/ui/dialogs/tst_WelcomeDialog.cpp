#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/WelcomeDialog.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

QPushButton *buttonWith(const QDialog &dialog, const QString &text)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}

}

class tst_WelcomeDialog : public QObject {
    Q_OBJECT

private slots:
    void aChoiceCountsAtOnceAndIsNotSkipped()
    {
        ScratchState state;
        WelcomeDialog dialog(state.state());
        dialog.show();
        const auto combos = dialog.findChildren<QComboBox *>();
        const auto offers24 = [](const QComboBox *combo) { return combo->findData(QStringLiteral("24")) >= 0; };
        QComboBox *hours = *std::ranges::find_if(combos, offers24);
        QVERIFY(buttonWith(dialog, QStringLiteral("Skip")));
        QTest::keyClick(hours, Qt::Key_End);
        QCOMPARE(state->preferences()->get(QStringLiteral("ui/timeFormat"), QString()), QStringLiteral("24"));
        QPushButton *done = buttonWith(dialog, QStringLiteral("Done"));
        QVERIFY(done && !buttonWith(dialog, QStringLiteral("Skip")));
        done->click();
        QVERIFY(!dialog.isVisible());
    }

    void waysToBeginCloseItFirst()
    {
        ScratchState state;
        WelcomeDialog dialog(state.state());
        dialog.show();
        bool wasOpen = true;
        connect(&dialog, &WelcomeDialog::importRequested, this, [&] { wasOpen = dialog.isVisible(); });
        QSignalSpy add(&dialog, &WelcomeDialog::addCalendarRequested);
        buttonWith(dialog, QStringLiteral("Import a calendar file…"))->click();
        QVERIFY(!wasOpen);
        QCOMPARE(add.size(), 0);
        dialog.show();
        buttonWith(dialog, QStringLiteral("Add a calendar…"))->click();
        QCOMPARE(add.size(), 1);
    }
};

QTEST_MAIN(tst_WelcomeDialog)
#include "tst_WelcomeDialog.moc"
