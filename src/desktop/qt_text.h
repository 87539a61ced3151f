#ifndef VENDLINGUA_DESKTOP_QT_TEXT_H_
#define VENDLINGUA_DESKTOP_QT_TEXT_H_

#include <QString>
#include <QTextDocument>
#include <string>

namespace vendlingua {

/// What people read, which is UTF-8 outside of the windows, as the windows take it.
inline QString FromUtf8(const std::string& text) { return QString::fromStdString(text); }

/// A tooltip that shows `text` as it stands: a path may look like markup.
inline QString PlainToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_QT_TEXT_H_
