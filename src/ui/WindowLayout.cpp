#include "ui/WindowLayout.h"

#include "storage/PreferencesRepository.h"

#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QStyle>

namespace {

const QString GeometryKey = QStringLiteral("ui/window/geometry");
const QString StateKey = QStringLiteral("ui/window/state");
const QString SplitterKey = QStringLiteral("ui/window/splitter");

QByteArray storedBlob(PreferencesRepository *preferences, const QString &key)
{
    const QByteArray text = preferences->get(key, QString()).toLatin1();
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? decoded.decoded : QByteArray();
}

void storeBlob(PreferencesRepository *preferences, const QString &key, const QByteArray &blob)
{
    preferences->set(key, QString::fromLatin1(blob.toBase64()));
}

}

WindowLayout::WindowLayout(PreferencesRepository *preferences, QMainWindow *window, QSplitter *panes)
    : m_preferences(preferences)
    , m_window(window)
    , m_panes(panes)
{
}

void WindowLayout::restore()
{
    if (const QByteArray blob = storedBlob(m_preferences, GeometryKey); !blob.isEmpty())
        m_window->restoreGeometry(blob);
    if (const QByteArray blob = storedBlob(m_preferences, StateKey); !blob.isEmpty())
        m_window->restoreState(blob);
    const QByteArray panes = storedBlob(m_preferences, SplitterKey);
    if (panes.isEmpty() || !m_panes->restoreState(panes))
        applyDefaultPaneWidths();
    // A stored state carries the state of another version's panes along.
    m_panes->setChildrenCollapsible(false);
    m_panes->setOrientation(Qt::Horizontal);
}

void WindowLayout::save()
{
    storeBlob(m_preferences, GeometryKey, m_window->saveGeometry());
    storeBlob(m_preferences, StateKey, m_window->saveState());
    storeBlob(m_preferences, SplitterKey, m_panes->saveState());
}

void WindowLayout::clampToScreen()
{
    if (m_window->isMaximized() || m_window->isFullScreen())
        return;
    const QScreen *screen = m_window->screen();
    if (!screen)
        return;
    // The window manager's frame is not known before the window is up; its title bar is about as high as the style's.
    const QSize frame(0, m_window->style()->pixelMetric(QStyle::PM_TitleBarHeight));
    m_window->resize(m_window->size().boundedTo(screen->availableSize() - frame));
}

void WindowLayout::applyDefaultPaneWidths()
{
    // The centre gives up its share only to the panes that are there.
    QList<int> widths{ SidebarWidthPx, m_window->width() - SidebarWidthPx };
    for (int pane = 2; pane < m_panes->count(); ++pane) {
        widths[1] -= RightPaneWidthPx;
        widths.append(RightPaneWidthPx);
    }
    m_panes->setSizes(widths);
}
