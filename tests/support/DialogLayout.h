#pragma once

#include <QtTest>
#include <QtWidgets>

/// What holds for every dialog: Tab goes as one reads, and no text is cut.
namespace DialogLayout {

inline QRect inDialog(const QWidget *widget)
{
    return { widget->mapTo(widget->window(), QPoint()), widget->size() };
}

/// Fields in the order of Tab, from the first one of the dialog.
inline QList<QWidget *> tabStops(QDialog *dialog)
{
    QList<QWidget *> stops;
    for (QWidget *w = dialog->nextInFocusChain(); w != dialog; w = w->nextInFocusChain()) {
        if (w->isVisibleTo(dialog) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) && w->window() == dialog
            && !w->focusProxy())
            stops.append(w);
    }
    return stops;
}

inline QString nameOf(const QWidget *widget)
{
    return QLatin1StringView(widget->metaObject()->className()) + u' ' + widget->property("text").toString();
}

inline void checkTabOrder(QDialog *dialog)
{
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const bool leads = !label->buddy() || label->buddy()->focusPolicy() != Qt::NoFocus;
        QVERIFY2(leads || !label->text().contains(u'&'), qPrintable(nameOf(label) + QStringLiteral(" leads nowhere")));
    }
    const QList<QWidget *> stops = tabStops(dialog);
    QVERIFY(stops.size() > 1);
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const QRect before = inDialog(stops.at(i - 1));
        const QRect now = inDialog(stops.at(i));
        const bool below = now.center().y() > before.center().y();
        const bool rightOf = now.left() >= before.right();
        const bool sideButton = i == stops.size() - 1 && now.left() < before.left(); // "Delete" comes last
        const QString problem = nameOf(stops.at(i)) + QStringLiteral(" after ") + nameOf(stops.at(i - 1));
        QVERIFY2(below || rightOf || sideButton, qPrintable(problem));
    }
}

inline void checkTexts(QDialog *dialog)
{
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto *label = qobject_cast<QLabel *>(widget);
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        const auto *combo = qobject_cast<QComboBox *>(widget);
        if (!widget->isVisibleTo(dialog) || (!label && !button && !combo))
            continue;
        const QSize wanted = combo ? combo->minimumSizeHint() : widget->sizeHint();
        bool fits = widget->width() >= wanted.width() && widget->height() >= wanted.height();
        if (label && label->wordWrap())
            fits = widget->height() >= widget->heightForWidth(widget->width());
        QVERIFY2(fits, qPrintable(nameOf(widget) + QStringLiteral(" is cut")));
        const bool inside = widget->parentWidget()->rect().contains(widget->geometry());
        const bool scrolls = qobject_cast<QAbstractScrollArea *>(widget->parentWidget()->parentWidget());
        QVERIFY2(inside || scrolls, qPrintable(nameOf(widget) + QStringLiteral(" reaches out of its parent")));
    }
}

} // namespace DialogLayout
