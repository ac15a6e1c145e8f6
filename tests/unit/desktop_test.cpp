// The program's face on the desktop: the emblem built into the program and the
// desktop entry it names to Qt.

#include "app/desktop.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QString>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

namespace orv::app {
namespace {

std::string ReadSourceFile(const std::string& relative) {
  std::ifstream in(std::filesystem::path(ORVANTA_SOURCE_DIR) / relative);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

// An icon needs the GUI application, on the offscreen platform when there is
// no display.
class WindowIcon : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    app_ = std::make_unique<QGuiApplication>(argc_, argv_);
  }
  static void TearDownTestSuite() { app_.reset(); }

 private:
  static inline char name_[] = "desktop_test";
  static inline char* argv_[] = {name_, nullptr};
  static inline int argc_ = 1;
  static inline std::unique_ptr<QGuiApplication> app_;
};

TEST_F(WindowIcon, OffersEveryBuiltInSize) {
  const QIcon icon = ApplicationIcon();
  ASSERT_FALSE(icon.isNull());
  QList<QSize> want;
  for (const int size : kIconSizes) want.append(QSize(size, size));
  EXPECT_EQ(icon.availableSizes(), want);
}

// Each size decodes at its own size and shows the emblem: a clear corner, an
// orange nucleus in the middle and a blue orbit crossing the horizontal axis.
TEST_F(WindowIcon, EachSizeIsTheAtomEmblem) {
  ApplicationIcon();  // registers the built-in images
  for (const int size : kIconSizes) {
    SCOPED_TRACE(size);
    const QImage image(QStringLiteral(":/icons/orvanta-%1.png").arg(size));
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), QSize(size, size));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    const QColor nucleus = image.pixelColor(size / 2, size / 2);
    EXPECT_GT(nucleus.red(), 150);
    EXPECT_GT(nucleus.red(), nucleus.blue() + 60);
    bool orbit = false;
    for (int x = size / 2; x < size && !orbit; ++x) {
      const QColor c = image.pixelColor(x, size / 2);
      orbit = c.alpha() > 128 && c.blue() > c.red() + 60 && c.blue() < 230;
    }
    EXPECT_TRUE(orbit);
  }
}

// The name given to Qt is the name of the installed entry and the id of the
// metainfo that launches it, so that the desktop ties the windows to the entry.
TEST(DesktopFileName, NamesTheEntryAndTheMetainfo) {
  const std::string id = kDesktopFileName;
  const std::string entry = ReadSourceFile("packaging/" + id + ".desktop");
  ASSERT_FALSE(entry.empty()) << "no packaging/" << id << ".desktop";
  EXPECT_NE(entry.find("\nIcon=orvanta\n"), std::string::npos);
  const std::string metainfo = ReadSourceFile("packaging/" + id + ".metainfo.xml");
  EXPECT_NE(metainfo.find("<id>" + id + "</id>"), std::string::npos);
  EXPECT_NE(metainfo.find("<launchable type=\"desktop-id\">" + id + ".desktop</launchable>"), std::string::npos);
}

}  // namespace
}  // namespace orv::app
