#pragma once
// A picture box on screen: paints a copy of the model's display list, item
// by item, with antialiasing and true circles, scaled to the widget's size
// by the picture's user scale (radii along the horizontal axis).

#include <QWidget>
#include <vector>

#include "shell/picture.h"

namespace orv::qt {

class PictureWidget : public QWidget {
  Q_OBJECT

 public:
  explicit PictureWidget(QWidget* parent = nullptr);

  // Takes over what the model's surface shows: only the new items when the
  // surface has merely grown since the last time.
  void Show(const Picture& picture);

  // The display list as this widget paints it.
  const std::vector<PictureItem>& Items() const { return items_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureScale scale_;
  Color back_ = kBlack;
  std::vector<PictureItem> items_;
  unsigned clears_ = 0;
};

}  // namespace orv::qt
