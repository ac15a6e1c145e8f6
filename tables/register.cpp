#include "shell/program.h"
#include "tables/data_tables.h"
#include "tables/frmPTable.h"
#include "tables/frmPeriodic.h"
#include "tables/frmPeriodicData.h"

namespace orv {

void RegisterTableScreens(ScreenRegistry& r) {
  RegisterDataTableScreens(r);
  RegisterTrendCharts(r);
  r.Add<frmPeriodic>("frmPeriodic");
  r.Add<frmPeriodicData>("frmPeriodicData");
}

}  // namespace orv
