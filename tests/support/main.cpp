#include <gtest/gtest.h>
#include <QApplication>
#include <iostream>

#include "platform/forms/form.h"

using namespace Qt::StringLiterals;

namespace {

/// No display, and a screen of the size that all forms must fit (enlarged, that of a small notebook).
void setEnvironment() {
  const QByteArray screen =
      qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? "screen_1366x768.json" : "screen_1024x768.json";
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZARIM_SOURCE_DIR "/tools/hands/" + screen);
  qputenv("CUPS_SERVER", "127.0.0.1:9");  // no printer of this machine's
}

/// What the platform without a display can't do is of no interest.
void showMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(u"This plugin does not support"_s)) std::cerr << text.toStdString() << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
  setEnvironment();
  qInstallMessageHandler(showMessage);
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setFont({QApplication::font().family(), 9});  // as a desktop sets it
  QApplication::setApplicationName(u"zarim"_s);
  QApplication::setQuitOnLastWindowClosed(false);
  forms::applyStyle();
  return RUN_ALL_TESTS();
}
