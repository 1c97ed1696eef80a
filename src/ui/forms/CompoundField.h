#pragma once

#include <QList>

class QString;
class QToolButton;
class QWidget;

/// What fields made of several controls share.

/// The focus for \p field goes to \p first, also by the mnemonic of the field's label: that needs a focus
/// policy, which a proxy alone does not give.
void setFirstControl(QWidget *field, QWidget *first);

/// Tab visits \p controls, in this order, just before \p next. A row that is added later would come last otherwise.
void setTabStopsBefore(QWidget *next, const QList<QWidget *> &controls);

/// The "×" at the end of a row of a form. \p name says what it takes away.
QToolButton *makeRemoveButton(const QString &name);
