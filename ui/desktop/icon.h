// The program's mark: an open book on its stand.
#pragma once

#include <QIcon>

namespace lectern::desktop {

QIcon ProgramIcon();

}  // namespace lectern::desktop
