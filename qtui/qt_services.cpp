#include "qtui/qt_services.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>

#include "qtui/control_adapter.h"
#include "qtui/minimise_window.h"
#include "qtui/qt_view.h"
#include "shell/errors.h"

namespace orv::qt {

void QtMessages::Show(std::string_view text, Icon icon, std::string_view title) {
  static const QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                             QMessageBox::Critical};
  QMessageBox box(kIcons[static_cast<int>(icon)], Q(title), Q(text), QMessageBox::Ok, QApplication::activeWindow());
  box.setObjectName("msgbox");
  if (hook) hook(box);
  box.exec();
}

void QtMessages::ShowFatal(std::string_view words) { Show(words, Icon::Critical, "Orvanta"); }

void QtMessages::Beep() { QApplication::beep(); }

void QtPrinter::PrintImage(Form& form) {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) Raise(ErrorCode::PrinterError);
  const QImage image = GrabForm(view_, form);
  QPrinter printer(info, QPrinter::HighResolution);
  QPainter painter;
  if (!painter.begin(&printer)) Raise(ErrorCode::PrinterError);
  const QRect page = painter.viewport();
  QSize size = image.size();
  size.scale(page.size(), Qt::KeepAspectRatio);
  painter.setViewport(page.x(), page.y(), size.width(), size.height());
  painter.setWindow(image.rect());
  painter.drawImage(0, 0, image);
  painter.end();
}

void QtLauncher::LaunchCalculator() {
  static const char* const kCalculators[] = {"gnome-calculator", "kcalc",        "mate-calc",   "galculator",
                                             "qalculate-gtk",    "qalculate-qt", "speedcrunch", "xcalc"};
  // Started minimised: xcalc, an X toolkit program, by its -iconic option;
  // the others by minimising their window once it is up.
  for (const char* name : kCalculators) {
    const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
    if (path.isEmpty()) continue;
    const bool xt = std::string_view(name) == "xcalc";
    qint64 pid = 0;
    if (!QProcess::startDetached(path, xt ? QStringList{QStringLiteral("-iconic")} : QStringList{}, {}, &pid)) continue;
    if (!xt) MinimiseWindowOf(pid);
    return;
  }
  Raise(ErrorCode::FileNotFound);
}

std::string QtClipboard::Text() const { return QGuiApplication::clipboard()->text().toStdString(); }

void QtClipboard::SetText(std::string_view text) { QGuiApplication::clipboard()->setText(Q(text)); }

}  // namespace orv::qt
