#include <QApplication>
#include <gtest/gtest.h>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/accessible.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  lectern::desktop::Dress();
  lectern::desktop::TellScreenReaders();
  return RUN_ALL_TESTS();
}
