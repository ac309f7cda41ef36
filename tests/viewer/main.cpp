// The viewer's tests need fonts and widgets, but no display, and leave the user's own choices alone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir preferenze;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, preferenze.path());
  const QApplication applicazione(argc, argv);
  return RUN_ALL_TESTS();
}
