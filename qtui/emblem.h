#pragma once
// The program's emblem: a nucleus with three electron orbits, painted to fit
// the widget.

#include <QWidget>

namespace orv::qt {

class Emblem : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orv::qt
