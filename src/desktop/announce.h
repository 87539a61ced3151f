#ifndef VENDLINGUA_DESKTOP_ANNOUNCE_H_
#define VENDLINGUA_DESKTOP_ANNOUNCE_H_

#include <QString>
#include <QWidget>

namespace vendlingua {

/// Tells screen readers that `widget` says `text` now, and has them say it at once unless it is
/// blank or what the widget said before.
void Announce(QWidget& widget, const QString& text);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_ANNOUNCE_H_
