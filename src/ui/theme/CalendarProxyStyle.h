#pragma once

#include <QProxyStyle>

/// The style Fusion with check boxes and radio buttons of our own, in lists too, and a soft highlight in menus.
/// The wheel changes a combo box or spin box only while it has the focus.
class CalendarProxyStyle : public QProxyStyle {
    Q_OBJECT

public:
    CalendarProxyStyle();

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;

    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returned = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
