#pragma once
// A chart on screen: paints a copy of the model's chart itself, as a flat
// two-dimensional chart of the values against the row labels, with a title,
// a footnote, two titled axes, ticks, tick labels and light grid lines.

#include <QWidget>

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

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ChartContent content_;
};

}  // namespace orv::qt
