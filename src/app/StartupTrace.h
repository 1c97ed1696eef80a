#pragma once

#include <QLoggingCategory>
#include <QObject>

Q_DECLARE_LOGGING_CATEGORY(lcStartup)

/// Says in the log category `calendar.startup` when the first surface has been painted, for those who
/// measure the start. Does nothing while the category is off.
class StartupTrace : public QObject {
    Q_OBJECT

public:
    /// Waits for the first paint of a timeline and then goes away with \p parent.
    static void watch(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};
