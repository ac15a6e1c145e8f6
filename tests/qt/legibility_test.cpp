// Every screen through the real widgets, as a student with a dark desktop, a
// large font or a small screen sees it: answers, working lines and the
// periodic table's captions stand at readable contrast, no caption is cut,
// and every window opens wholly on the screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "app/registry.h"
#include "qtui/chart_widget.h"
#include "qtui/qt_view.h"
#include "qtui/theme.h"
#include "shell/look.h"
#include "shell/program.h"
#include "tests/qt/qt_run.h"

namespace orv::qt {
namespace {

using test::QtRun;
using test::ScreenNames;

// The desktop's palette for a test, put back afterwards.
class WithPalette {
 public:
  explicit WithPalette(const QPalette& palette) : old_(QApplication::palette()) { QApplication::setPalette(palette); }
  ~WithPalette() { QApplication::setPalette(old_); }
  WithPalette(const WithPalette&) = delete;
  WithPalette& operator=(const WithPalette&) = delete;

 private:
  QPalette old_;
};

class WithFont {
 public:
  explicit WithFont(double points) : old_(QApplication::font()) {
    QFont font("DejaVu Sans");
    font.setPointSizeF(points);
    QApplication::setFont(font);
  }
  ~WithFont() { QApplication::setFont(old_); }
  WithFont(const WithFont&) = delete;
  WithFont& operator=(const WithFont&) = delete;

 private:
  QFont old_;
};

QPalette LightPalette() { return QApplication::style()->standardPalette(); }

// A dark desktop theme as the common desktops ship it, disabled text gray.
QPalette DarkPalette() {
  QPalette p;
  const QColor window(0x35, 0x35, 0x35), base(0x2A, 0x2A, 0x2A), text(Qt::white), dim(0x7F, 0x7F, 0x7F);
  for (QPalette::ColorGroup g : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const bool off = g == QPalette::Disabled;
    p.setColor(g, QPalette::Window, window);
    p.setColor(g, QPalette::WindowText, off ? dim : text);
    p.setColor(g, QPalette::Base, off ? window : base);
    p.setColor(g, QPalette::AlternateBase, QColor(0x42, 0x42, 0x42));
    p.setColor(g, QPalette::Text, off ? dim : text);
    p.setColor(g, QPalette::Button, window);
    p.setColor(g, QPalette::ButtonText, off ? dim : text);
    p.setColor(g, QPalette::Light, QColor(0x50, 0x50, 0x50));
    p.setColor(g, QPalette::Midlight, QColor(0x45, 0x45, 0x45));
    p.setColor(g, QPalette::Mid, QColor(0x25, 0x25, 0x25));
    p.setColor(g, QPalette::Dark, QColor(0x20, 0x20, 0x20));
    p.setColor(g, QPalette::Shadow, QColor(0x10, 0x10, 0x10));
    p.setColor(g, QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
    p.setColor(g, QPalette::HighlightedText, Qt::white);
    p.setColor(g, QPalette::ToolTipBase, window);
    p.setColor(g, QPalette::ToolTipText, text);
  }
  return p;
}

struct NamedPalette {
  const char* name;
  QPalette (*make)();
};
const NamedPalette kPalettes[] = {{"light", &LightPalette}, {"dark", &DarkPalette}};

// The contrast of what is drawn on a widget's ground, inside `inset` pixels
// of its edge: the ground is the commonest colour there, the ink the pixel
// that stands out most from it. 1 when nothing is drawn.
double DrawnContrast(QWidget& widget, int inset) {
  const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QRect inner = image.rect().adjusted(inset, inset, -inset, -inset);
  std::map<int, int> counts;
  for (int y = inner.top(); y <= inner.bottom(); ++y) {
    for (int x = inner.left(); x <= inner.right(); ++x) ++counts[ToRgb(image.pixelColor(x, y))];
  }
  if (counts.empty()) return 1.0;
  const int ground = std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                       return a.second < b.second;
                     })->first;
  double best = 1.0;
  for (const auto& [rgb, n] : counts) best = std::max(best, look::Contrast(rgb, ground));
  return best;
}

// --- readable answers and captions ---

TEST(Legibility, DisabledAnswersAndWorkingLinesReadInLightAndDarkPalettes) {
  for (const NamedPalette& palette : kPalettes) {
    SCOPED_TRACE(palette.name);
    const WithPalette with(palette.make());
    QtRun run;
    int boxes = 0;
    double least = 21;
    std::string leastAt;
    for (const std::string& name : ScreenNames()) {
      Form* form = run.Show(name);
      if (form == nullptr) continue;
      for (const auto& c : form->controls()) {
        auto* edit = qobject_cast<QLineEdit*>(run.Widget(*c));
        if (edit == nullptr || c->Enabled()) continue;
        ++boxes;
        // They stay disabled: the student cannot type into them.
        EXPECT_FALSE(edit->isEnabled()) << name << "." << c->key();
        const QPalette& p = edit->palette();
        const double roles = look::Contrast(ToRgb(p.color(QPalette::Disabled, QPalette::Text)),
                                            ToRgb(p.color(QPalette::Disabled, QPalette::Base)));
        EXPECT_GE(roles, look::kReadable) << name << "." << c->key();
        // And what is drawn: an answer written straight into the widget.
        const QString shown = edit->text();
        {
          const QSignalBlocker quiet(edit);
          edit->setText("1,234.568 = 0.5 x 9");
          edit->setCursorPosition(0);
        }
        const double drawn = DrawnContrast(*edit, 3);
        {
          const QSignalBlocker quiet(edit);
          edit->setText(shown);
        }
        EXPECT_GE(drawn, look::kReadable) << name << "." << c->key();
        if (drawn < least) {
          least = drawn;
          leastAt = name + "." + c->key();
        }
      }
    }
    EXPECT_GT(boxes, 40);  // the result boxes and working lines of every calculator
    RecordProperty(std::string(palette.name) + "_least_answer_contrast", std::to_string(least) + " " + leastAt);
  }
}

TEST(Legibility, PeriodicTableCaptionsReadOnTheirFacesAndTheFormsGray) {
  for (const NamedPalette& palette : kPalettes) {
    SCOPED_TRACE(palette.name);
    const WithPalette with(palette.make());
    QtRun run;
    Form& form = run.Open("frmPeriodic");
    // The form keeps a gray ground, on which the key's colours were chosen.
    const int ground = ToRgb(run.Window(form)->palette().color(QPalette::Active, QPalette::Window));
    EXPECT_GE(look::Luminance(ground), look::Luminance(0xC0C0C0)) << std::hex << ground;
    int elements = 0;
    double least = 21;
    for (const auto& c : form.controls()) {
      QWidget* w = run.Widget(*c);
      if (c->kind() == Kind::Button && c->BackColor() != kNoColor) {
        ++elements;
        // The face colour is the element's class and stays.
        EXPECT_EQ(ToRgb(w->palette().color(QPalette::Active, QPalette::Button)), c->BackColor());
        const double roles =
            look::Contrast(ToRgb(w->palette().color(QPalette::Active, QPalette::ButtonText)), c->BackColor());
        const double drawn = DrawnContrast(*w, 4);
        EXPECT_GE(roles, look::kReadable) << c->key();
        EXPECT_GE(drawn, look::kReadable) << c->key();
        least = std::min(least, drawn);
      } else if (c->kind() == Kind::Label && c->ForeColor() == kNoColor) {
        // Period and group numbers and the series names: colours left open.
        EXPECT_GE(DrawnContrast(*w, 0), look::kReadable) << c->key();
      } else if (c->kind() == Kind::Label) {
        // The heading and the key keep their own colours.
        EXPECT_EQ(ToRgb(w->palette().color(QPalette::Active, QPalette::WindowText)), c->ForeColor()) << c->key();
      }
    }
    EXPECT_EQ(elements, 109);
    RecordProperty(std::string(palette.name) + "_least_element_contrast", std::to_string(least));
  }
}

TEST(Legibility, TheChartFollowsThePalette) {
  for (const NamedPalette& palette : kPalettes) {
    SCOPED_TRACE(palette.name);
    const QPalette p = palette.make();
    const WithPalette with(p);
    QtRun run;
    Form& form = run.Open("frmPTable2");
    QWidget* chart = nullptr;
    for (const auto& c : form.controls()) {
      if (c->kind() == Kind::Chart) chart = run.Widget(*c);
    }
    ASSERT_NE(chart, nullptr);
    const ChartInk ink = ChartInkFor(chart->palette());
    EXPECT_EQ(ink.ground, p.color(QPalette::Active, QPalette::Base));
    EXPECT_GE(look::Contrast(ToRgb(ink.text), ToRgb(ink.ground)), look::kReadable);
    EXPECT_GE(look::Contrast(ToRgb(ink.muted), ToRgb(ink.ground)), look::kReadable);
    EXPECT_GE(DrawnContrast(*chart, 2), look::kReadable);
    const QImage image = chart->grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() / 2, 4).rgb(), ink.ground.rgb());
  }
}

// A long answer that its box cannot show whole is in its tool tip; a tool
// tip the screen gave stays.
TEST(Legibility, AWholeLongAnswerCanBeRead) {
  QtRun run;
  Form& form = run.Open("frmSigfig");
  Control* answer = nullptr;
  Control* tipped = nullptr;
  for (const auto& c : form.controls()) {
    if (c->kind() == Kind::TextBox && !c->Enabled() && c->ToolTip().empty()) answer = c.get();
    if (c->kind() == Kind::Button && !c->ToolTip().empty()) tipped = c.get();
  }
  ASSERT_NE(answer, nullptr);
  const std::string longText = "100,000,000,000,000,000,000,000,000,000,000,000.000";
  answer->SetText(longText);
  QApplication::processEvents();
  EXPECT_EQ(run.Widget(*answer)->toolTip().toStdString(), longText);
  answer->SetText("1.5");
  QApplication::processEvents();
  EXPECT_EQ(run.Widget(*answer)->toolTip().toStdString(), "");
  ASSERT_NE(tipped, nullptr);
  const std::string tip = tipped->ToolTip();
  tipped->SetText(longText);
  QApplication::processEvents();
  EXPECT_EQ(run.Widget(*tipped)->toolTip().toStdString(), tip);
}

// --- fonts and screens ---

// Whether a control's caption is wider than the room its widget gives it, or
// for a word-wrapped label, taller.
bool CaptionCut(QWidget& w) {
  const QFontMetrics fm(w.font());
  if (auto* label = qobject_cast<QLabel*>(&w)) {
    const QString text = label->text();
    if (text.isEmpty()) return false;
    const QRect room =
        label->contentsRect().adjusted(label->margin(), label->margin(), -label->margin(), -label->margin());
    if (label->wordWrap()) {
      const QRect need = fm.boundingRect(QRect(0, 0, room.width(), 100000), Qt::TextWordWrap, text);
      return need.height() > room.height() || need.width() > room.width();
    }
    return fm.boundingRect(QRect(0, 0, 100000, 100000), 0, text).width() > room.width();
  }
  auto* button = qobject_cast<QAbstractButton*>(&w);
  if (button == nullptr || button->text().isEmpty()) return false;
  QString text = button->text();
  text.replace("&&", "\x01").remove('&').replace("\x01", "&");
  const int advance = fm.horizontalAdvance(text);
  QStyle* style = w.style();
  if (qobject_cast<QRadioButton*>(&w) != nullptr) {
    return advance + style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &w) +
               style->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &w) >
           w.width();
  }
  if (qobject_cast<QCheckBox*>(&w) != nullptr) {
    return advance + style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &w) +
               style->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &w) >
           w.width();
  }
  QStyleOptionButton option;
  option.initFrom(&w);
  option.text = text;
  return advance > style->subElementRect(QStyle::SE_PushButtonContents, &option, &w).width();
}

struct Measured {
  std::vector<std::string> cut;        // captions cut, as FORM.CTRL
  std::vector<std::string> offScreen;  // windows not wholly on the screen
  std::vector<std::string> folded;     // menus of the main screen folded away
};

Measured MeasureEveryScreen(double points) {
  const WithFont font(points);
  QtRun run;
  Measured m;
  for (const std::string& name : ScreenNames()) {
    Form* form = run.Show(name);
    if (form == nullptr) continue;
    for (const auto& c : form->controls()) {
      QWidget* w = run.Widget(*c);
      if (w != nullptr && CaptionCut(*w)) m.cut.push_back(name + "." + c->key());
    }
    QWidget* window = run.Window(*form);
    const QRect area = window->screen()->availableGeometry();
    if (!area.contains(window->frameGeometry())) {
      std::ostringstream where;
      where << name << " at " << window->frameGeometry().x() << "," << window->frameGeometry().y() << " "
            << window->frameGeometry().width() << "x" << window->frameGeometry().height();
      m.offScreen.push_back(where.str());
    }
    if (auto* bar = window->findChild<QMenuBar*>()) {
      for (QAction* a : bar->actions()) {
        const QRect g = bar->actionGeometry(a);
        if (a->isVisible() && (g.isEmpty() || g.right() >= bar->width())) {
          m.folded.push_back(name + "." + a->text().toStdString());
        }
      }
    }
  }
  return m;
}

std::string Join(const std::vector<std::string>& items) {
  std::string out;
  for (const std::string& s : items) out += (out.empty() ? "" : ", ") + s;
  return out;
}

TEST(Fonts, NoCaptionIsCutAndEveryWindowFitsTheScreen) {
  if (QGuiApplication::primaryScreen()->devicePixelRatio() != 1) GTEST_SKIP() << "for the screen at scale 1";
  ASSERT_EQ(QGuiApplication::primaryScreen()->availableGeometry().size(), QSize(1366, 768));
  for (double points : {9.0, 11.0, 13.0}) {
    SCOPED_TRACE(std::to_string(points) + " pt");
    const Measured m = MeasureEveryScreen(points);
    EXPECT_TRUE(m.cut.empty()) << m.cut.size() << " cut: " << Join(m.cut);
    EXPECT_TRUE(m.offScreen.empty()) << Join(m.offScreen);
    EXPECT_TRUE(m.folded.empty()) << Join(m.folded);
    RecordProperty("cut_at_" + std::to_string(static_cast<int>(points)) + "pt", static_cast<int>(m.cut.size()));
  }
}

// The same laptop screen at a scale of 2 leaves 683 by 384 for the windows:
// those larger than that shrink, fonts and all, and still open wholly on it.
TEST(Fonts, AtAScaleOfTwoEveryWindowStillOpensWhollyOnTheScreen) {
  if (QGuiApplication::primaryScreen()->devicePixelRatio() != 2) GTEST_SKIP() << "for the screen at scale 2";
  ASSERT_EQ(QGuiApplication::primaryScreen()->availableGeometry().size(), QSize(683, 384));
  const Measured m = MeasureEveryScreen(9.0);
  EXPECT_TRUE(m.cut.empty()) << m.cut.size() << " cut: " << Join(m.cut);
  EXPECT_TRUE(m.offScreen.empty()) << Join(m.offScreen);
  EXPECT_TRUE(m.folded.empty()) << Join(m.folded);
}

}  // namespace
}  // namespace orv::qt

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Whatever display the machine has: a 1366 by 768 screen at 96 dots an
  // inch, the Fusion style, and the DejaVu fonts the test set-up installs.
  // ORVANTA_TEST_SCREEN names another screen set-up beside this one.
  const QByteArray screen = qgetenv("ORVANTA_TEST_SCREEN");
  const std::string config =
      ORVANTA_SOURCE_DIR "/tests/qt/" + (screen.isEmpty() ? std::string("screen_1366x768.json") : screen.toStdString());
  qputenv("QT_QPA_PLATFORM", QByteArray("offscreen:configfile=") + config.c_str());
  QApplication app(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setPalette(QApplication::style()->standardPalette());
  QFont font("DejaVu Sans");
  font.setPointSizeF(9);
  QApplication::setFont(font);
  return RUN_ALL_TESTS();
}
