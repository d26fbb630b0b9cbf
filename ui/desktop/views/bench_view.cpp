#include "ui/desktop/views/bench_view.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <cassert>
#include <functional>

#include "forms/containers.h"
#include "ui/desktop/layout/places.h"
#include "ui/desktop/views/child_views.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

constexpr int kAround = 20;  // pixels around the tools
constexpr int kToolHeight = 30;

// A page that grows with the bench, and scrolls only if that is too small for it.
class BenchPage : public QScrollArea {
 public:
  QSize sizeHint() const override { return widget()->minimumSize(); }
};

// Tells when it has another size.
class Holder : public QWidget {
 public:
  std::function<void(const QSize&)> resized;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    if (resized) resized(event->size());
  }
};

}  // namespace

BenchView::BenchView(forms::Window& window, WindowView& view, const std::vector<std::string>& controls)
    : window_(window),
      view_(view),
      frame_(std::make_unique<QWidget>()),
      row_(new QHBoxLayout),
      pages_(new QTabWidget) {
  frame_->setObjectName("bench");
  frame_->setWindowTitle(ToQString(window.Caption()) + ": the keeper's bench");
  pages_->setDocumentMode(true);
  auto* const column = new QVBoxLayout(frame_.get());
  column->setContentsMargins(kAround, kAround, kAround, kAround);
  column->setSpacing(kAround);
  column->addLayout(row_);
  column->addWidget(pages_);
  for (const std::string& name : controls) {
    auto* const control = dynamic_cast<forms::PlacedControl*>(window.Find(name));
    assert(control != nullptr);
    auto* const holder = new Holder;
    const QSize size = PlaceOf(*control).size();
    views_.push_back(MakeView(*control, view, *holder));
    views_.back()->PutInCorner();
    views_.back()->Changed();
    if (dynamic_cast<forms::Container*>(control) != nullptr) {
      holder->setMinimumSize(size);
      holder->resized = [this, control, shown = views_.back().get()](const QSize& now) {
        view_.PutOnBench(*control, now);
        shown->Changed();
        if (!view_.GetEvents().AtWork()) view_.GetEvents().Run([] {});
      };
      AddPage(*control, *holder);
    } else {
      holder->setFixedSize(size.width(), kToolHeight);
      row_->addWidget(holder);
    }
  }
  row_->addStretch();
  view.GetEvents().Run([] {});  // shows the views
  Settle();
  frame_->resize(frame_->sizeHint().boundedTo(frame_->screen()->availableSize() * 9 / 10));
  frame_->show();
}

BenchView::~BenchView() = default;

void BenchView::AddPage(forms::PlacedControl& panel, QWidget& holder) {
  const auto* const frame = dynamic_cast<const forms::Frame*>(&panel);
  const QString title = ToQString(frame != nullptr ? frame->Caption() : panel.Name());
  const auto open = [this, &panel] {
    view_.GetEvents().Deliver(window_, [&panel] { panel.Visible = true; });
  };
  auto* const opener = new QPushButton("Open " + title, &holder);
  constexpr int kMargin = 16;
  opener->move(kMargin, kMargin);
  opener->hide();
  QObject::connect(opener, &QPushButton::clicked, opener, open);
  openers_.emplace_back(&panel, opener);
  open();
  auto* const page = new BenchPage;
  page->setFrameShape(QFrame::NoFrame);
  page->setFocusPolicy(Qt::NoFocus);
  page->setWidget(&holder);
  page->setWidgetResizable(true);
  pages_->addTab(page, title);
}

void BenchView::Settle() {
  for (const auto& [panel, opener] : openers_) {
    const bool is_open = panel->Visible;
    if (opener->isHidden() == is_open) continue;
    opener->setVisible(!is_open);
    if (!is_open) opener->setFocus(Qt::OtherFocusReason);
  }
  std::vector<ControlView*> order;
  for (const auto& view : views_) {
    if (!view->IsSeen()) continue;
    if (view->Widget()->focusPolicy() != Qt::NoFocus) order.push_back(view.get());
    if (ChildViews* inner = view->Children()) {
      inner->Stack();
      inner->AppendInTabOrder(order);
    }
  }
  SetTabOrder(order);
}

}  // namespace lectern::desktop
