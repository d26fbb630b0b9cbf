#include "ui/desktop/views/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

#include "ui/desktop/views/spoken.h"

namespace lectern::desktop {

namespace {

bool IsEcho(QAccessibleInterface* shown) {
  const auto* const spoken = shown == nullptr ? nullptr : dynamic_cast<const Spoken*>(shown->object());
  return spoken != nullptr && spoken->is_echo;
}

// A panel, a picture or a label: a button where it can be pressed.
class AccessiblePainting : public QAccessibleWidget {
 public:
  AccessiblePainting(QWidget& widget, const Spoken& spoken) : QAccessibleWidget(&widget), spoken_(spoken) {}

  QAccessible::Role role() const override {
    if (spoken_.press) return QAccessible::Button;
    if (Label() != nullptr) return QAccessible::StaticText;
    return widget()->children().isEmpty() ? QAccessible::Graphic : QAccessible::Grouping;
  }

  QString text(QAccessible::Text kind) const override {
    const QString text = QAccessibleWidget::text(kind);
    const bool shows_it = kind == QAccessible::Name && text.isEmpty() && Label() != nullptr;
    return shows_it ? Label()->text() : text;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (spoken_.press) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction() && spoken_.press) {
      spoken_.press();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

  int childCount() const override { return static_cast<int>(Heard().size()); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(Heard().indexOf(const_cast<QAccessibleInterface*>(child)));
  }
  QAccessibleInterface* child(int index) const override { return Heard().value(index); }

 private:
  const QLabel* Label() const { return qobject_cast<const QLabel*>(widget()); }

  // What lies in it and is to be read out.
  QList<QAccessibleInterface*> Heard() const {
    QList<QAccessibleInterface*> heard;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
      QAccessibleInterface* const child = QAccessibleWidget::child(i);
      if (!IsEcho(child)) heard.append(child);
    }
    return heard;
  }

  const Spoken& spoken_;
};

QAccessibleInterface* Make(const QString& /*class_name*/, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  if (const auto* spoken = dynamic_cast<Spoken*>(object)) return new AccessiblePainting(*widget, *spoken);
  const bool is_plain_window =
      widget != nullptr && widget->isWindow() && widget->metaObject() == &QWidget::staticMetaObject;
  return is_plain_window ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

}  // namespace

void TellScreenReaders() { QAccessible::installFactory(Make); }

}  // namespace lectern::desktop
