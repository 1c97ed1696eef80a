#pragma once

#include <QFrame>
#include <QHash>
#include <QStringList>

class AppState;
class HorizonChip;
class QToolButton;

/// The row of joined buttons that chooses the mode of the view area, with the chip of the days timeline.
class ModeBar : public QFrame {
    Q_OBJECT

public:
    /// Has a button for each mode of \p modes, in its order.
    ModeBar(AppState *state, const QStringList &modes, QWidget *parent = nullptr);

    static QString label(const QString &mode);

    void showMode(const QString &mode);
    [[nodiscard]] QToolButton *button(const QString &mode) const { return m_buttons.value(mode); }
    [[nodiscard]] HorizonChip *chip() const { return m_chip; }

signals:
    void modeChosen(const QString &mode);

private:
    void applyTheme();

    QHash<QString, QToolButton *> m_buttons; // by mode
    HorizonChip *m_chip;
};
