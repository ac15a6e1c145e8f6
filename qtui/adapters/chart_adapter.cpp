// Charts: the widget paints a copy of the model's chart.

#include "qtui/adapters/adapters.h"
#include "qtui/chart_widget.h"

namespace orv::qt {

namespace {

class Chart : public ControlAdapter {
 public:
  QObject* Create(Control&, BuildContext& context) const override { return new ChartWidget(context.parent); }

  void Sync(const Control& c, QObject* shown, Prop what) const override {
    auto* chart = static_cast<ChartWidget*>(shown);
    if (SyncCommon(c, chart, what)) return;
    if (what == Prop::Content) chart->Show(c.chart());
  }
};

}  // namespace

const ControlAdapter& ChartAdapter() {
  static const Chart adapter;
  return adapter;
}

}  // namespace orv::qt
