#include "desktop/announce.h"

#include <QAccessible>

namespace vendlingua {

void Announce(QWidget& widget, const QString& text) {
  if (text == widget.accessibleDescription()) {
    return;
  }
  widget.setAccessibleDescription(text);
  if (text.isEmpty()) {
    return;
  }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent announcement(&widget, text);
#else
  QAccessibleEvent announcement(&widget, QAccessible::Alert);
#endif
  QAccessible::updateAccessibility(&announcement);
}

}  // namespace vendlingua
