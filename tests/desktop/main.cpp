#include <QApplication>
#include <gtest/gtest.h>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/painted_widget.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  lectern::desktop::ApplyTheme();
  lectern::desktop::DescribePaintedWidgets();
  return RUN_ALL_TESTS();
}
