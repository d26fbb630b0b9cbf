#include "ui/desktop/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ui/desktop/painted_widget.h"

namespace lectern::desktop {

namespace {

class AccessiblePainting : public QAccessibleWidget {
 public:
  explicit AccessiblePainting(PaintedWidget& widget) : QAccessibleWidget(&widget), widget_(widget) {}

  QAccessible::Role role() const override {
    if (widget_.press) return QAccessible::Button;
    return widget_.children().isEmpty() ? QAccessible::Graphic : QAccessible::Grouping;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget_.press) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction() && widget_.press) {
      widget_.press();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 private:
  PaintedWidget& widget_;
};

QAccessibleInterface* Make(const QString& /*class_name*/, QObject* object) {
  if (auto* const painted = dynamic_cast<PaintedWidget*>(object)) return new AccessiblePainting(*painted);
  auto* const widget = qobject_cast<QWidget*>(object);
  const bool is_plain_window =
      widget != nullptr && widget->isWindow() && widget->metaObject() == &QWidget::staticMetaObject;
  return is_plain_window ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

}  // namespace

void TellScreenReaders() { QAccessible::installFactory(Make); }

}  // namespace lectern::desktop
