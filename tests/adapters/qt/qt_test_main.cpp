#include <gtest/gtest.h>

#include <QApplication>

#include "adapters/qt/qt_desktop.h"

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Prepare_Toolkit();
  QApplication application(count, arguments);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
