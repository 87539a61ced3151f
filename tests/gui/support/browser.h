#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_BROWSER_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_BROWSER_H_

#include <QObject>
#include <QUrl>

namespace vendlingua::test {

/// Takes the place of the browser.
class Browser : public QObject {
  Q_OBJECT

 public:
  Browser();
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;
  ~Browser() override;

  QUrl opened;

 public slots:
  void Open(const QUrl& url) { opened = url; }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_BROWSER_H_
