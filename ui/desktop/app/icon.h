// The program's mark, an open book on its stand: packaging/lectern.svg, in the sizes that a desktop asks for.
#pragma once

#include <QIcon>

namespace lectern::desktop {

QIcon ProgramIcon();

}  // namespace lectern::desktop
