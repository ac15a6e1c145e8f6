#include "app/desktop.h"

#include <QGuiApplication>
#include <QString>

// The resource initialiser lives at global scope; calling it keeps the icons
// when the library is linked statically.
static void InitIconResources() { Q_INIT_RESOURCE(icons); }

namespace orv::app {

QIcon ApplicationIcon() {
  InitIconResources();
  QIcon icon;
  for (const int size : kIconSizes) {
    icon.addFile(QStringLiteral(":/icons/orvanta-%1.png").arg(size), QSize(size, size));
  }
  return icon;
}

void PresentToDesktop() {
  QGuiApplication::setDesktopFileName(QString::fromLatin1(kDesktopFileName));
  QGuiApplication::setWindowIcon(ApplicationIcon());
}

}  // namespace orv::app
