#pragma once

#include "ui/dialogs/FormDialog.h"

#include <QDate>
#include <QString>

#include <memory>

/// Edits one recurrence rule with a live line of plain language. RFC 5545 §3.3.10; what the controls cannot
/// say (BYSETPOS and others) is lost when it is accepted.
class RecurrenceEditDialog : public FormDialog {
    Q_OBJECT

public:
    RecurrenceEditDialog(const QString &initialRule, QDate startDate, Qt::DayOfWeek firstDayOfWeek, QWidget *parent);
    ~RecurrenceEditDialog() override;

    [[nodiscard]] QString rrule() const; ///< the RRULE value without its prefix

private:
    class Controls;
    std::unique_ptr<Controls> m_controls;
};
