// A window with all keys of the program.
#pragma once

#include <QDialog>

namespace lectern::desktop {

class KeySheet : public QDialog {
 public:
  explicit KeySheet(QWidget* parent);
};

}  // namespace lectern::desktop
