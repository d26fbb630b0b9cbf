#include <QApplication>
#include <gtest/gtest.h>

#include "ui/desktop/accessible.h"
#include "ui/desktop/theme.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  lectern::desktop::Dress();
  lectern::desktop::TellScreenReaders();
  return RUN_ALL_TESTS();
}
