#include "ui/desktop/app/icon.h"

namespace lectern::desktop {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QString(":/icons/lectern-%1.png").arg(size));
  return icon;
}

}  // namespace lectern::desktop
