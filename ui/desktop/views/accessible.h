// What a screen reader is told of the widgets that Qt knows nothing of: windows, panels and pictures that can
// be pressed.
#pragma once

namespace lectern::desktop {

void TellScreenReaders();

}  // namespace lectern::desktop
