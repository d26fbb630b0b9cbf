#include "ui/desktop/views/painted_widget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QPaintEvent>

#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

namespace {

// A panel, a picture or a label. It is a button if it can be pressed.
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

  int childCount() const override { return static_cast<int>(SpokenChildren().size()); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(SpokenChildren().indexOf(const_cast<QAccessibleInterface*>(child)));
  }
  QAccessibleInterface* child(int index) const override { return SpokenChildren().value(index); }

 private:
  const QLabel* Label() const { return qobject_cast<const QLabel*>(widget()); }

  QList<QAccessibleInterface*> SpokenChildren() const {
    QList<QAccessibleInterface*> spoken;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
      QAccessibleInterface* const child = QAccessibleWidget::child(i);
      const auto* const own = child == nullptr ? nullptr : dynamic_cast<const Spoken*>(child->object());
      if (own == nullptr || !own->is_echo) spoken.append(child);
    }
    return spoken;
  }

  const Spoken& spoken_;
};

QAccessibleInterface* Describe(const QString& /*class_name*/, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  if (const auto* spoken = dynamic_cast<Spoken*>(object)) return new AccessiblePainting(*widget, *spoken);
  const bool is_plain_window =
      widget != nullptr && widget->isWindow() && widget->metaObject() == &QWidget::staticMetaObject;
  return is_plain_window ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

}  // namespace

void PaintedWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  paint_(painter, event->rect());
  if (hasFocus()) DrawFocusRing(painter, rect(), palette());
}

PaintedWidget* MakeFigure(QWidget* parent, PaintedWidget::Paint paint) {
  auto* const widget = new PaintedWidget(parent, std::move(paint));
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  widget->is_echo = true;  // decoration
  return widget;
}

void DescribePaintedWidgets() { QAccessible::installFactory(Describe); }

}  // namespace lectern::desktop
