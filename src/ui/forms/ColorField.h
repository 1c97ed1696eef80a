#pragma once

#include <QString>
#include <QWidget>

class ColorButton;
class QPushButton;

/// A colour of its own, or that of the calendar.
class ColorField : public QWidget {
    Q_OBJECT

public:
    /// \p dialogTitle is that of the dialog for a colour of one's own.
    explicit ColorField(const QString &dialogTitle, QWidget *parent = nullptr);

    [[nodiscard]] QString color() const { return m_color; } ///< "#RRGGBB"; empty means the calendar's
    void setColor(const QString &color);
    void setCalendarColor(const QString &color); ///< what the button shows while there is none of its own

signals:
    void colorChanged(const QString &color); ///< by the user

private:
    void refresh();

    ColorButton *m_button;
    QPushButton *m_clear;
    QString m_color;
    QString m_calendarColor;
};
