#pragma once

class QString;
class QToolButton;

/// The "×" at the end of a row of a form. \p name says what it takes away.
QToolButton *makeRemoveButton(const QString &name);
