#include "ui/desktop/app/notice.h"

#include <QAccessible>
#include <QLabel>
#include <QTimer>
#include <algorithm>

namespace lectern::desktop {

void ShowNotice(QWidget& window, const QString& text) {
  constexpr int kShown = 6000;  // milliseconds
  constexpr int kMargin = 12;   // pixels
  constexpr const char* kName = "notice";
  delete window.findChild<QLabel*>(kName, Qt::FindDirectChildrenOnly);
  auto* const notice = new QLabel(text, &window);
  notice->setObjectName(kName);
  notice->setTextFormat(Qt::PlainText);
  notice->setMargin(kMargin);
  notice->setWordWrap(true);
  notice->setAttribute(Qt::WA_TransparentForMouseEvents);
  notice->setAutoFillBackground(true);
  notice->setBackgroundRole(QPalette::ToolTipBase);
  notice->setForegroundRole(QPalette::ToolTipText);
  const int wide = notice->fontMetrics().horizontalAdvance(text) + 2 * kMargin + 2;
  const int width = std::min(wide, window.width() - 2 * kMargin);
  const int height = notice->heightForWidth(width);
  notice->setGeometry((window.width() - width) / 2, window.height() - height - kMargin, width, height);
  notice->show();
  notice->raise();
  QAccessibleEvent alert(notice, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  QTimer::singleShot(kShown, notice, &QObject::deleteLater);
}

}  // namespace lectern::desktop
