// The viewer's tests need fonts and widgets, but no display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication applicazione(argc, argv);
  return RUN_ALL_TESTS();
}
