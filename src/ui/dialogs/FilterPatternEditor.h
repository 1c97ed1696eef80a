#pragma once

#include "calendar/FilterEngine.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// The texts that a pattern rule looks for, one row each: where, what, and a button that removes it.
class FilterPatternEditor : public QWidget {
    Q_OBJECT

public:
    explicit FilterPatternEditor(QWidget *parent = nullptr);

    void setConditions(const FilterEngine::PatternConditions &conditions);
    /// Without rows that are blank: the empty text would match every event.
    [[nodiscard]] FilterEngine::PatternConditions conditions() const;
    [[nodiscard]] QWidget *firstField() const;

signals:
    void edited();

private:
    struct Row {
        QWidget *widget = nullptr;
        QComboBox *field = nullptr;
        QLineEdit *text = nullptr;
    };

    void addRow(int field, const QString &text);
    void putBeforeAddButton(const QList<QWidget *> &fields); // in the order of Tab
    void removeRow(QWidget *widget);

    QVBoxLayout *m_rowLayout;
    QPushButton *m_add;
    QCheckBox *m_caseSensitive;
    QList<Row> m_rows;
};
