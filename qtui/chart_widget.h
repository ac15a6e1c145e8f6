#pragma once
// A chart on screen: paints a copy of the model's chart itself, as a flat
// two-dimensional chart of the values against the row labels, with a title,
// a footnote, two titled axes, ticks, tick labels and light grid lines.

#include <QFont>
#include <QRectF>
#include <QString>
#include <QWidget>
#include <vector>

#include "shell/chart.h"

namespace orv::qt {

class ChartWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ChartWidget(QWidget* parent = nullptr);

  // Takes over what the model's chart shows.
  void Show(const Chart& chart);

  // The chart as this widget paints it.
  const ChartContent& Content() const { return content_; }

  // The category labels as last painted: text, box in the widget's
  // coordinates (upright labels: the box they cover), upright or not, face.
  struct CategoryLabel {
    QString text;
    QRectF box;
    bool upright;
    QFont font;
  };
  const std::vector<CategoryLabel>& CategoryLabels() const { return labels_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ChartContent content_;
  std::vector<CategoryLabel> labels_;
};

}  // namespace orv::qt
