// A sentence over the lower edge of a window, which goes by itself after a while and takes no input. It says
// what needs no answer, such as where a picture was saved. Screen readers read it out.
#pragma once

#include <QString>
#include <QWidget>

namespace lectern::desktop {

// Replaces the notice that the window still shows.
void ShowNotice(QWidget& window, const QString& text);

}  // namespace lectern::desktop
