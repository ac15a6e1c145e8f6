// The widgets themselves, through a real Qt view of the program: what they
// paint and how their windows stand, which the scenario files don't see.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <cmath>
#include <string>
#include <vector>

#include "qtui/chart_widget.h"
#include "qtui/header_label.h"
#include "qtui/qt_view.h"
#include "tests/qt/qt_run.h"

namespace orv::test {
namespace {

// The splash is shown above the main screen, but a screen opened while it is
// up comes in front of it.
TEST(Splash, DoesNotStayAboveLaterScreens) {
  QtRun run;
  Form* splash = run.program.Find("frmSplash");
  ASSERT_NE(splash, nullptr);
  QWidget* window = run.view.Window(*splash);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_NE(window->windowType(), Qt::SplashScreen);  // kept above others by some window managers
  EXPECT_EQ(QApplication::activeWindow(), window);

  Form* main = run.program.Find("frmMain");
  run.program.UserClick(main->ctl("mnuSignificantfigures"));
  run.Settle();
  Form* sigfig = run.program.Find("frmSigfig");
  ASSERT_NE(sigfig, nullptr);
  EXPECT_EQ(QApplication::activeWindow(), run.view.Window(*sigfig));
  EXPECT_TRUE(window->isVisible());
}

// Counts the paint events of the widgets it watches.
class PaintCounter : public QObject {
 public:
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

// The splash takes the keys itself. Its window losing and regaining them
// changes nothing drawn, so neither it nor anything on it is painted again.
TEST(Splash, FocusComingAndGoingRepaintsNothing) {
  QtRun run;
  QWidget* window = run.view.Window(*run.program.Find("frmSplash"));
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(window->hasFocus());
  PaintCounter counter;
  window->installEventFilter(&counter);
  for (QWidget* w : window->findChildren<QWidget*>()) w->installEventFilter(&counter);
  window->clearFocus();
  QtRun::Settle();
  EXPECT_FALSE(window->hasFocus());
  window->setFocus();
  QtRun::Settle();
  EXPECT_TRUE(window->hasFocus());
  EXPECT_EQ(counter.paints, 0);
}

// Whether a text widget shows the whole of its text.
bool ShowsWholeText(QWidget* w) {
  if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    return QFontMetricsF(edit->font()).horizontalAdvance(edit->text()) <= edit->contentsRect().width() - 4;
  }
  if (auto* box = qobject_cast<QPlainTextEdit*>(w)) return box->verticalScrollBar()->maximum() == 0;
  return false;
}

TEST(MultiLineBox, WorkingLineOfSixIsotopesIsShownWhole) {
  QtRun run;
  Form& form = run.Open("frmAverageMass");
  const char* inputs[] = {"Text1", "Text2", "Text3",  "Text4",  "Text5",  "Text6",
                          "Text8", "Text9", "Text10", "Text11", "Text12", "Text13"};
  const char* values[] = {"123456.7", "0.1234567", "234567.8", "0.2345678", "345678.9", "0.3456789",
                          "456789.1", "0.4567891", "567891.2", "0.5678912", "678912.3", "0.6789123"};
  for (int i = 0; i < 12; ++i) run.program.UserAction([&] { form.ctl(inputs[i]).SetText(values[i]); });
  run.program.UserClick(form.ctl("cmdOk"));
  run.Settle();
  const std::string line = form.ctl("Text7").Text();
  ASSERT_EQ(line,
            "123456.7 * 0.1234567 + 234567.8 * 0.2345678 + 345678.9 * 0.3456789 + 456789.1 * 0.4567891 + "
            "567891.2 * 0.5678912 + 678912.3 * 0.6789123");
  QWidget* box = run.W(form, "Text7");
  EXPECT_TRUE(ShowsWholeText(box));
  // A one-line box still shows one line: the result box.
  EXPECT_NE(qobject_cast<QLineEdit*>(run.W(form, "Text14")), nullptr);
}

// Every atomic number has its label, and no two labels run into each other.
TEST(TrendChart, LabelsEveryCategoryLegibly) {
  QtRun run;
  for (const char* screen : {"frmPTable2", "frmPTable3", "frmPTable7"}) {
    SCOPED_TRACE(screen);
    Form& form = run.Open(screen);
    auto* chart = qobject_cast<qt::ChartWidget*>(run.W(form, "MSChart1"));
    ASSERT_NE(chart, nullptr);
    chart->grab();  // paints
    const auto& points = chart->Content().points;
    const auto& labels = chart->CategoryLabels();
    ASSERT_EQ(labels.size(), points.size());
    for (std::size_t i = 0; i < labels.size(); ++i) {
      EXPECT_EQ(labels[i].text, QString::fromStdString(points[i].label).trimmed());
      EXPECT_GE(QFontInfo(labels[i].font).pixelSize(), 6);
      EXPECT_TRUE(QRectF(chart->rect()).contains(labels[i].box)) << i;
      if (i > 0) {
        EXPECT_LE(labels[i - 1].box.right(), labels[i].box.left()) << i;
      }
    }
    run.program.UserClick(form.ctl("cmdCancel"));
  }
}

// The x of the first inked pixel of row `row` of a list at or after `from`.
int FirstInk(QListWidget* list, int row, double from) {
  const QImage image = list->grab().toImage();
  const QRect item = list->visualItemRect(list->item(row));
  const QPoint offset = list->viewport()->mapTo(list, QPoint(0, 0));
  for (int x = static_cast<int>(std::ceil(from)); x < image.width(); ++x) {
    for (int y = item.top() + offset.y(); y <= item.bottom() + offset.y(); ++y) {
      if (qGray(image.pixel(x, y)) < 128) return x;
    }
  }
  return -1;
}

struct HeaderCase {
  const char* screen;
  const char* label;
  const char* list;
  std::vector<int> columns;
};

// Each word of a header stands over the first character of its column, and
// the label keeps its text as given.
TEST(TableHeader, WordsStandOverTheirColumns) {
  const HeaderCase cases[] = {
      {"frmThermodynamics", "Label1", "List1", {0, 15, 29, 43}},  {"frmConstants", "Label1", "List1", {0, 31}},
      {"frmEnthalpies", "Label1", "List1", {0, 16, 35}},          {"frmStandard", "Label2", "List1", {0, 49}},
      {"frmCharacter", "Label1", "List1", {0, 11, 22}},           {"frmHalfLives", "Label1", "List1", {0, 12, 28}},
      {"frmFreezing", "Label6", "lstList1", {0, 15, 24, 32, 40}},
  };
  QtRun run;
  for (const HeaderCase& c : cases) {
    SCOPED_TRACE(c.screen);
    Form& form = run.Open(c.screen);
    auto* header = qobject_cast<qt::HeaderLabel*>(run.W(form, c.label));
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->text().toStdString(), form.ctl(c.label).Text());
    const auto pieces = header->Pieces();
    ASSERT_EQ(pieces.size(), c.columns.size());
    // Each group starts at its column, or, when wider than the column and its
    // gap, covers the column's first cell and stops short of the next column.
    auto* list = qobject_cast<QListWidget*>(run.W(form, c.list));
    ASSERT_NE(list, nullptr);
    const double cell = QFontMetricsF(list->font()).horizontalAdvance(QLatin1Char('0'));
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      SCOPED_TRACE(pieces[i].text.toStdString());
      const double x = header->ColumnX(c.columns[i]);
      if (std::abs(pieces[i].box.left() - x) > 0.5) {
        EXPECT_LT(pieces[i].box.left(), x);
        EXPECT_GE(pieces[i].box.right(), x + cell);
      }
      if (i + 1 < pieces.size()) {
        EXPECT_LT(pieces[i].box.right(), header->ColumnX(c.columns[i + 1]));
      }
    }
    // The columns are where the list draws them: the ink of row 0's first
    // value starts within its first character cell.
    const double listX =
        header->mapTo(header->window(), QPoint(0, 0)).x() - list->mapTo(list->window(), QPoint(0, 0)).x();
    const double column1 = header->ColumnX(c.columns[1]) + listX;
    const int ink = FirstInk(list, 0, column1 - cell / 2);
    EXPECT_GE(ink, column1 - 1);
    EXPECT_LT(ink, column1 + cell);
    if (form.find("cmdCancel") != nullptr && std::string(c.screen) != "frmFreezing") {
      run.program.UserClick(form.ctl("cmdCancel"));
    }
  }
}

}  // namespace
}  // namespace orv::test
